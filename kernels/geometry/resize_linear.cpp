// SPDX-License-Identifier: MIT
// Linear interpolation of bytes. Products are taken in words, exactly:
//
//   columns  (a (2^14 - c) + b c + 2^7) >> 8 = 64 a + ((64 a - 64 b) (-2 c) + 2^14 >> 15)
//   rows     (p (2^14 - c) + q c + 2^19) >> 20 = (p + ((p - q) (-4 c) >> 16) + 2^5) >> 6
//
// -2 c is a word even for c = 2^14; -4 c is up to c = 2^13. Beyond, the rows change places: with 2^14 - c for
// c the formula stays true to the bit, since (q - p) 2^16 >> 16 is q - p.
#include "kernels/geometry/resize_linear.hpp"

#include <algorithm>

#include "kernels/path_count.hpp"
#include "kernels/simd/pixels.hpp"
#include "kernels/simd/resize.hpp"

namespace lumi {
namespace {

using namespace simd;

constexpr size_t kLanes = 8, kStep = 16;

// A block makes eight elements: of eight columns, or of two pixels.
template <int channels>
inline constexpr size_t kColumns = channels == 1 ? 8 : 2;
// Elements that count: the last two of two 3-channel pixels are overwritten by the next block.
template <int channels>
inline constexpr size_t kUsed = kColumns<channels>* channels;

// Where the eight columns' samples lie in one vector.
struct WindowBlock {
  int16_t weights[kLanes];  // -2 c
  Control control;
  int32_t offset;
};
// Where they are gathered.
template <int channels>
struct GatherBlock {
  int16_t weights[kLanes];
  int32_t distances[kColumns<channels>];  // from the row's start
};

// One or two rows, which share their columns' blocks.
template <int n>
using Sources = const Byte* const (&)[n];
template <int n>
struct Elements {
  int16_t* const (&rows)[n];

  void store(size_t k, size_t at, S16 v) const { store16(reinterpret_cast<Byte*>(rows[k] + at), v.v); }
};

template <typename Block>
void put(uint8_t* scratch, size_t i, const Block& block) {
  move<sizeof block>(scratch + i * sizeof block, reinterpret_cast<const Byte*>(&block));
}

// -2 c; beyond the last column it is repeated.
int weightOf(const TileColumns<uint8_t>& columns, size_t x) {
  return -2 * columns.weights[2 * std::min(x, columns.count - 1) + 1];
}

// Of eight columns.
Bytes16 weightsOf(const TileColumns<uint8_t>& columns, size_t x) {
  const auto* const pairs = reinterpret_cast<const Byte*>(columns.weights + 2 * x);
  const S16 c =
      narrowSaturated<int16_t>(highWords<int16_t>(load16(pairs)), highWords<int16_t>(load16(pairs + 16)));
  return (broadcast16<int16_t>(0) - (c + c)).v;
}

template <int channels, typename Block>
void setWeights(Block& block, const TileColumns<uint8_t>& columns, size_t x) {
  auto* const weights = reinterpret_cast<Byte*>(block.weights);
  if constexpr (channels != 1) {
    constexpr Control kEach = channels == 3 ? Control{0, 1, 0, 1, 0, 1, 2, 3, 2, 3, 2, 3}
                                            : Control{0, 1, 0, 1, 0, 1, 0, 1, 2, 3, 2, 3, 2, 3, 2, 3};
    const auto pair = static_cast<uint32_t>(weightOf(columns, x) & 0xFFFF) |
                      static_cast<uint32_t>(weightOf(columns, x + 1)) << 16;
    store16(weights, shuffleBytes(dwordsOf(pair, 0, 0), vectorOf(kEach)));
  } else if (x + kLanes <= columns.count) {
    store16(weights, weightsOf(columns, x));
  } else {
    for (size_t lane = 0; lane < kLanes; ++lane)
      block.weights[lane] = static_cast<int16_t>(weightOf(columns, x + lane));
  }
}

// The source column from the row's start on; blocks that reach beyond the last one repeat it.
int32_t columnOf(const TileColumns<uint8_t>& columns, size_t x) {
  return columns.index[std::min(x, columns.count - 1)] - columns.origin;
}

// A pixel at a distance in units of so many bytes. Columns fit 32 bits, but not the bytes of long rows: their
// distances are columns. Of four channels they always are, for a processor's addresses have that factor.
template <int unit>
const Byte* pixelAt(const Byte* src, int32_t distance) {
  return src + static_cast<ptrdiff_t>(distance) * unit;
}
template <int channels>
inline constexpr int kUnit = channels == 4 ? 4 : 1;

bool suitsWindows(const TileColumns<uint8_t>& columns) {
  constexpr auto kMostBetween = static_cast<int32_t>(kStep) - 2;  // of the first and the last pair's columns
  const auto between = [&](size_t x, size_t last) { return columnOf(columns, last) - columnOf(columns, x); };
  if (between(0, columns.count) < kMostBetween) return false;
  for (size_t x = 0; x < columns.count; x += kLanes)
    if (between(x, x + kLanes - 1) > kMostBetween) return false;
  return true;
}

void makeWindows(const TileColumns<uint8_t>& columns, uint8_t* scratch) {
  const int32_t last = columnOf(columns, columns.count) - (static_cast<int32_t>(kStep) - 2);
  for (size_t i = 0, x = 0; x < columns.count; ++i, x += kLanes) {
    WindowBlock block;
    setWeights<1>(block, columns, x);
    block.offset = std::min(columnOf(columns, x), last);
    int16_t at[kLanes];
    for (size_t lane = 0; lane < kLanes; ++lane)
      at[lane] = static_cast<int16_t>(0x0101 * (columnOf(columns, x + lane) - block.offset) + 0x0100);
    move<sizeof at>(block.control.data(), reinterpret_cast<const Byte*>(at));
    put(scratch, i, block);
  }
}

template <int channels>
void makeGathers(const TileColumns<uint8_t>& columns, int unit, uint8_t* scratch) {
  for (size_t i = 0, x = 0; x < columns.count; ++i, x += kColumns<channels>) {
    GatherBlock<channels> block;
    setWeights<channels>(block, columns, x);
    for (size_t k = 0; k < kColumns<channels>; ++k)
      block.distances[k] = columnOf(columns, x + k) * (channels / unit);
    put(scratch, i, block);
  }
}

// Pairs of a sample and its right neighbour to elements.
template <size_t bytes>
SamplesOf<int16_t, bytes> blendPairs(SamplesOf<uint8_t, bytes> pairs, SamplesOf<int16_t, bytes> weights) {
  const auto sumsWith = [=](int16_t twoFactors) {
    return multiplyAddPairs(pairs, as<int8_t>(broadcastLike(weights, twoFactors)));
  };
  return sumsWith(64) + multiplyHighRounded(sumsWith(static_cast<int16_t>(0xC040)), weights);  // 64, -64
}
S16 blendPairs(Bytes16 pairs, const uint8_t* weights) { return blendPairs(U8{pairs}, S16{load16(weights)}); }

int32_t offsetOf(const uint8_t* block) {
  int32_t offset = 0;
  move<4>(reinterpret_cast<Byte*>(&offset), block + offsetof(WindowBlock, offset));
  return offset;
}

#ifdef __AVX2__
// Two blocks at once, as many as there are pairs of them; returns the blocks done.
template <int n>
size_t blendTwoWindows(Sources<n> src, Elements<n> rows, const uint8_t* blocks, size_t count) {
  size_t i = 0;
  for (; i + 2 <= count; i += 2, blocks += 2 * sizeof(WindowBlock)) {
    const uint8_t* const next = blocks + sizeof(WindowBlock);
    const auto both = [=](size_t at) { return joined(load16(blocks + at), load16(next + at)); };
    const Bytes32 control = both(offsetof(WindowBlock, control));
    const Samples32<int16_t> weights{both(offsetof(WindowBlock, weights))};
    const int32_t first = offsetOf(blocks), second = offsetOf(next);
    for (size_t k = 0; k < n; ++k) {
      const Bytes32 windows = joined(load16(src[k] + first), load16(src[k] + second));
      const Samples32<uint8_t> pairs{shuffleBytes(windows, control)};
      store32(reinterpret_cast<Byte*>(rows.rows[k] + i * kLanes), blendPairs(pairs, weights).v);
    }
  }
  return i;
}
#endif

template <int n>
void blendWindows(Sources<n> src, Elements<n> rows, const uint8_t* blocks, size_t count) {
  countPath(Path::LinearByteWindows);
  size_t i = 0;
#ifdef __AVX2__
  i = blendTwoWindows<n>(src, rows, blocks, count);
  blocks += i * sizeof(WindowBlock);
#endif
  for (; i < count; ++i, blocks += sizeof(WindowBlock)) {
    const int32_t offset = offsetOf(blocks);
    const Bytes16 control = load16(blocks + offsetof(WindowBlock, control));
    for (size_t k = 0; k < n; ++k)
      rows.store(k, i * kLanes, blendPairs(shuffleBytes(load16(src[k] + offset), control), blocks));
  }
}

// Two pixels and their right neighbours as pairs of samples.
template <int channels>
Bytes16 neighbours(const Byte* first, const Byte* second) {
  constexpr Control kPairs = channels == 3 ? Control{0, 3, 1, 4, 2, 5, 8, 11, 9, 12, 10, 13, 6, 6, 6, 6}
                                           : Control{0, 4, 1, 5, 2, 6, 3, 7, 8, 12, 9, 13, 10, 14, 11, 15};
  return shuffleBytes(gatherQuadwords(first, second), vectorOf(kPairs));
}

template <int channels, int unit>
Bytes16 gathered(const Byte* src, const int32_t* distances) {
  if constexpr (channels == 1) {
    Bytes16 v = _mm_setzero_si128();
    v = insertWord<0>(v, src + distances[0]);
    v = insertWord<1>(v, src + distances[1]);
    v = insertWord<2>(v, src + distances[2]);
    v = insertWord<3>(v, src + distances[3]);
    v = insertWord<4>(v, src + distances[4]);
    v = insertWord<5>(v, src + distances[5]);
    v = insertWord<6>(v, src + distances[6]);
    return insertWord<7>(v, src + distances[7]);
  } else {
    return neighbours<channels>(pixelAt<unit>(src, distances[0]), pixelAt<unit>(src, distances[1]));
  }
}

template <int channels, int unit, int n>
void blendGathers(Sources<n> src, Elements<n> rows, const uint8_t* blocks, size_t first, size_t end) {
  using Block = GatherBlock<channels>;
  for (size_t i = first; i < end; ++i) {
    const uint8_t* const block = blocks + i * sizeof(Block);
    int32_t distances[kColumns<channels>];
    move<sizeof distances>(reinterpret_cast<Byte*>(distances), block + offsetof(Block, distances));
    for (size_t k = 0; k < n; ++k)
      rows.store(k, i * kUsed<channels>, blendPairs(gathered<channels, unit>(src[k], distances), block));
  }
}

// The last 3-channel pixels end less than eight bytes after their start: each is copied apart.
template <int unit, int n>
void blendLast(Sources<n> src, Elements<n> rows, const uint8_t* blocks, size_t first, size_t end) {
  using Block = GatherBlock<3>;
  for (size_t i = first; i < end; ++i) {
    const uint8_t* const block = blocks + i * sizeof(Block);
    int32_t distances[2];
    move<sizeof distances>(reinterpret_cast<Byte*>(distances), block + offsetof(Block, distances));
    for (size_t k = 0; k < n; ++k) {
      Byte pixels[16] = {};
      move<6>(pixels, pixelAt<unit>(src[k], distances[0]));
      move<6>(pixels + 8, pixelAt<unit>(src[k], distances[1]));
      rows.store(k, i * kUsed<3>, blendPairs(neighbours<3>(pixels, pixels + 8), block));
    }
  }
}

// As many samples of the destination as a vector has, from two rows of Q6.
template <size_t bytes>
SamplesOf<uint8_t, bytes> blendQ6(const int16_t* nearer, const int16_t* farther,
                                  SamplesOf<int16_t, bytes> weight) {
  const auto words = [&](size_t at) {
    const auto p = loadSamples<bytes, int16_t>(reinterpret_cast<const Byte*>(nearer + at)),
               q = loadSamples<bytes, int16_t>(reinterpret_cast<const Byte*>(farther + at));
    return multiplyHighRounded(p + multiplyHigh(p - q, weight),
                               broadcastLike(p, int16_t{512}));  // (x + 32) >> 6
  };
  return narrowSaturated<uint8_t>(words(0), words(bytes / sizeof(int16_t)));
}

// Both stages at once. The sums have 14 fraction bits; an odd integer part rounds up from a unit below its
// half.
int roundedQ14(int sum) { return (sum + (sum >> 14 & 1) + (1 << 13)) >> 14; }
S32 roundedQ14(S32 sum) {
  return shiftRight<14>(sum + (shiftRight<14>(sum) & broadcast16(1)) + broadcast16(1 << 13));
}

// Of four pairs of samples.
uint32_t blendQ14(Bytes16 pairs, Bytes16 weights) {
  const S32 sum = multiplyAddPairs(S16{widen<uint16_t>(U8{pairs}).v}, S16{weights});
  const S16 words = narrowSaturated<int16_t>(roundedQ14(sum), broadcast16(0));
  return firstDword(narrowSaturated<uint8_t>(words, words).v);
}

// Of two pixels; c is the second one's weight.
template <int channels>
uint32_t blendPixels(const Byte* first, const Byte* second, int c) {
  if constexpr (channels == 1) return static_cast<uint32_t>(roundedQ14(*first * (kQ14 - c) + *second * c));
  const U8 a{dwordsOf(loadDword<channels>(first), 0, 0)}, b{dwordsOf(loadDword<channels>(second), 0, 0)};
  return blendQ14(interleaveLow(a, b).v, broadcast16(kQ14 - c + (c << 16)).v);
}

template <int channels>
void storePixel(Byte* dst, uint32_t pixel) {
  move<channels>(dst, reinterpret_cast<const Byte*>(&pixel));
}

}  // namespace

template <int channels>
size_t ColumnBlender<uint8_t, channels>::scratchBytes(size_t columns) {
  static_assert(sizeof(WindowBlock) <= sizeof(GatherBlock<1>));
  return (columns + kColumns<channels> - 1) / kColumns<channels> * sizeof(GatherBlock<channels>);
}

template <int channels>
ColumnBlender<uint8_t, channels>::ColumnBlender(const TileColumns<uint8_t>& columns, uint8_t* scratch)
    : blocks_(scratch),
      blockCount_((columns.count + kColumns<channels> - 1) / kColumns<channels>),
      vectorBlocks_(blockCount_),
      unit_(kUnit<channels>) {
  if (channels == 1 && suitsWindows(columns)) {
    makeWindows(columns, scratch);
    return;
  }
  if (channels == 1) vectorBlocks_ = 0;
  if (channels == 3) {
    if (columnOf(columns, columns.count) > INT32_MAX / channels) unit_ = channels;
    const int32_t* const end = columns.index + columns.count;
    const int32_t last = end[-1];
    const auto beforeLast = static_cast<size_t>(std::lower_bound(columns.index, end, last) - columns.index);
    vectorBlocks_ = beforeLast / kColumns<channels>;
  }
  makeGathers<channels>(columns, unit_, scratch);
}

template <int channels>
template <int n, int unit>
[[gnu::always_inline]] inline void ColumnBlender<uint8_t, channels>::blendGathered(
    const uint8_t* const (&src)[n], int16_t* const (&rows)[n]) const {
  const size_t byVectors = channels == 1 ? blockCount_ : vectorBlocks_;
  blendGathers<channels, unit, n>(src, {rows}, blocks_, 0, byVectors);
  if constexpr (channels == 3) blendLast<unit, n>(src, {rows}, blocks_, byVectors, blockCount_);
}

template <int channels>
template <int n>
[[gnu::always_inline]] inline void ColumnBlender<uint8_t, channels>::blendEach(
    const uint8_t* const (&src)[n], int16_t* const (&rows)[n]) const {
  if constexpr (channels == 1)
    if (vectorBlocks_ != 0) return blendWindows<n>(src, {rows}, blocks_, blockCount_);
  if constexpr (channels == 3)
    if (unit_ == channels) return blendGathered<n, channels>(src, rows);
  blendGathered<n, kUnit<channels>>(src, rows);
}

template <int channels>
void ColumnBlender<uint8_t, channels>::blend(const uint8_t* src, int16_t* row) const {
  blendEach<1>({src}, {row});
}
template <int channels>
void ColumnBlender<uint8_t, channels>::blendTwo(const uint8_t* first, int16_t* upper, const uint8_t* second,
                                                int16_t* lower) const {
  blendEach<2>({first, second}, {upper, lower});
}

template <int channels>
void ColumnBlender<uint8_t, channels>::blendOnce(const uint8_t* src, const TileColumns<uint8_t>& columns,
                                                 uint8_t* dst) {
  size_t x = 0;
  if constexpr (channels == 1) {
    for (; x + 4 <= columns.count; x += 4) {
      Bytes16 pairs = dwordsOf(0, 0, 0);
      pairs = insertWord<0>(pairs, src + columnOf(columns, x));
      pairs = insertWord<1>(pairs, src + columnOf(columns, x + 1));
      pairs = insertWord<2>(pairs, src + columnOf(columns, x + 2));
      pairs = insertWord<3>(pairs, src + columnOf(columns, x + 3));
      const auto* const weights = reinterpret_cast<const Byte*>(columns.weights + 2 * x);
      storePixel<4>(dst + x, blendQ14(pairs, load16(weights)));
    }
  }
  for (; x < columns.count; ++x) {
    const Byte* const pixel = pixelAt<channels>(src, columnOf(columns, x));
    storePixel<channels>(dst + x * channels,
                         blendPixels<channels>(pixel, pixel + channels, columns.weights[2 * x + 1]));
  }
}

template <int channels>
void ColumnBlender<uint8_t, channels>::repeatBlend(const uint8_t* first, const uint8_t* second, uint16_t c,
                                                   uint8_t* dst, size_t count) {
  const uint32_t pixel = blendPixels<channels>(first, second, c);
  storePixel<channels>(dst, pixel);
  for (size_t i = 1; i < count; ++i) storePixel<channels>(dst + i * channels, pixel);
}

template class ColumnBlender<uint8_t, 1>;
template class ColumnBlender<uint8_t, 3>;
template class ColumnBlender<uint8_t, 4>;

template <>
void blendRows<uint8_t>(const int16_t* first, const int16_t* second, uint16_t c, uint8_t* dst,
                        size_t samples) {
  const bool nearsSecond = c > kQ14 / 2;
  const int16_t *const nearer = nearsSecond ? second : first, *const farther = nearsSecond ? first : second;
  const auto weight = broadcast(static_cast<int16_t>(-4 * (nearsSecond ? kQ14 - c : c)));
  const auto blockAt = [=](size_t i) { return blendQ6(nearer + i, farther + i, firstOf<kStep>(weight)).v; };
  if (samples >= kStep) {
    size_t i = 0;
    for (; i + kVectorBytes <= samples; i += kVectorBytes)
      storeVector(dst + i, blendQ6(nearer + i, farther + i, weight).v);
    if constexpr (kVectorBytes > kStep)
      for (; i + kStep <= samples; i += kStep) store16(dst + i, blockAt(i));
    store16(dst + samples - kStep, blockAt(samples - kStep));
  } else {
    Byte all[kStep];
    store16(all, blockAt(0));
    std::memcpy(dst, all, samples);
  }
}

}  // namespace lumi
