// SPDX-License-Identifier: MIT
// Float taps. No product is fused with a sum: the order of the sums, and so each bit, is part of the result.
#include <algorithm>
#include <type_traits>

#include "kernels/filters/filter_blocks.hpp"
#include "kernels/filters/filter_floats.hpp"
#include "kernels/filters/separable.hpp"
#include "kernels/path_count.hpp"
#include "kernels/simd/elementary.hpp"

namespace lumi {
namespace {

using namespace simd;

// Samples as a vector of sums, or as a single one.
template <typename V, typename T>
V loadAs(const Byte* p) {
  if constexpr (std::is_arithmetic_v<V>) {
    T sample;
    move<sizeof sample>(reinterpret_cast<Byte*>(&sample), p);
    return static_cast<V>(sample);
  } else if constexpr (std::is_floating_point_v<T>) {
    return samplesOf<T>(load32(p));
  } else {
    return floatsAt<T>(p);
  }
}

template <typename V, typename Tap>
V broadcastTap(const Tap* at) {
  const Tap tap = loadAs<Tap, Tap>(reinterpret_cast<const Byte*>(at));
  if constexpr (std::is_arithmetic_v<V>)
    return tap;
  else if constexpr (std::is_same_v<V, Doubles4>)
    return broadcastDouble(tap);
  else
    return broadcastFloat<V>(tap);
}

template <typename T, typename V>
void storeSamples(Byte* dst, V sums) {
  if constexpr (std::is_floating_point_v<T> && std::is_arithmetic_v<V>) {
    move<sizeof sums>(dst, reinterpret_cast<const Byte*>(&sums));
  } else if constexpr (std::is_floating_point_v<T>) {
    store32(dst, bytesOf(sums));
  } else if constexpr (std::is_arithmetic_v<V>) {
    Byte stored[16];
    storeAs<T>(stored, broadcastFloat<Floats8>(sums));
    move<sizeof(T)>(dst, stored);
  } else {
    storeAs<T>(dst, sums);
  }
}

// Taps over samples of type S, which lie a step apart, with results of type D.
template <typename S, typename D, typename Tap>
class FloatLine {
 public:
  FloatLine(const Tap* taps, int count, ptrdiff_t step)
      : last_(taps + (count - 1)), count_(count), step_(step) {}

  void run(SourceRows src, TargetRows dst, Extent samples) const {
    if (samples.length < kWide)
      return walkRows(
          samples.rows, [&](const Byte* s, Byte* d) { few(s, d, samples.length); }, src, dst);
    if (src.step == step_ && samples.rows > 1) countPath(Path::TapRowsShared);
    int y = 0;
    if (src.step == step_)
      for (; y + 1 < samples.rows; y += 2)
        inBlocks<2 * kWide, kWide>(samples.length, [&](auto size, size_t i) {
          block<Wide, 2, decltype(size)::value / kWide>(src, dst, y, i);
        });
    for (; y < samples.rows; ++y)
      inBlocks<4 * kWide, kWide>(samples.length, [&](auto size, size_t i) {
        block<Wide, 1, decltype(size)::value / kWide>(src, dst, y, i);
      });
  }

 private:
  using Wide = std::conditional_t<std::is_same_v<Tap, double>, Doubles4, Floats8>;
  static constexpr int kWide = static_cast<int>(32 / sizeof(Tap));

  void few(const Byte* src, Byte* dst, size_t samples) const {
    for (size_t i = 0; i < samples; ++i) block<Tap, 1, 1>({src, 0}, {dst, 0}, 0, i);
  }

  // One row of the result, or two that share their samples.
  template <typename V, int rows, int vectors>
  [[gnu::always_inline]] void block(SourceRows src, TargetRows dst, int y, size_t i) const {
    V sums[rows][vectors] = {};
    const Byte* p = src.row(y) + i * sizeof(S);
    if constexpr (rows == 1)
      for (int k = 0; k < count_; ++k, p += step_) add(sums[0], p, broadcastTap<V>(last_ - k));
    else
      sumTwo(sums, p);
    for (int r = 0; r < rows; ++r)
      for (size_t v = 0; v < vectors; ++v)
        storeSamples<D>(dst.row(y + r) + (i + v * kLanes<V>)*sizeof(D), sums[r][v]);
  }

  // The second row has each sample under the tap that the first one had a step before.
  template <typename V, int vectors>
  [[gnu::always_inline]] void sumTwo(V (&sums)[2][vectors], const Byte* p) const {
    V tap = broadcastTap<V>(last_);
    add(sums[0], p, tap);
    p += step_;
    for (int k = 1; k < count_; ++k, p += step_) {
      const V before = tap;
      tap = broadcastTap<V>(last_ - k);
      for (int v = 0; v < vectors; ++v) {
        const V x = samplesAt<V>(p, v);
        sums[0][v] = sums[0][v] + x * tap;
        sums[1][v] = sums[1][v] + x * before;
      }
    }
    add(sums[1], p, tap);
  }

  template <typename V, int vectors>
  [[gnu::always_inline]] static void add(V (&sums)[vectors], const Byte* p, V tap) {
    for (int v = 0; v < vectors; ++v) sums[v] = sums[v] + samplesAt<V>(p, v) * tap;
  }

  template <typename V>
  static V samplesAt(const Byte* p, int v) {
    return loadAs<V, S>(p + static_cast<size_t>(v) * kLanes<V> * sizeof(S));
  }

  template <typename V>
  static constexpr size_t kLanes = sizeof(V) / sizeof(Tap);

  const Tap* last_;
  int count_;
  ptrdiff_t step_;
};

// Integer samples are made floats once for several taps, in pieces that stay in the nearest cache. A piece of
// columns has rows of the result and what is under the kernel beyond them.
constexpr size_t kPiece = 256, kColumnPiece = 128, kMostChannels = 4;
constexpr int kMostPieceTaps = 64, kMostColumnTaps = 17, kPieceRows = 16;

// Calls piece(first sample, samples), with at least eight of them each.
template <size_t most, typename Piece>
void inPieces(size_t samples, Piece piece) {
  for (size_t i = 0; i < samples; i += most) {
    const size_t at = std::min(i, samples - 8);
    piece(at, std::min(most, samples - at));
  }
}

template <typename T>
void filterRowPieces(const float* taps, int count, ptrdiff_t tapStep, const Byte* src, Byte* dst,
                     size_t samples) {
  const size_t channels = static_cast<size_t>(tapStep) / sizeof(T);
  const FloatLine<float, T, float> line(taps, count, static_cast<ptrdiff_t>(channels * sizeof(float)));
  const size_t reach = static_cast<size_t>(count - 1) * channels;
  float floats[kPiece + (kMostPieceTaps - 1) * kMostChannels];
  inPieces<kPiece>(samples, [&](size_t at, size_t length) {
    toFloats<T>(src + at * sizeof(T), floats, length + reach);
    line.run({reinterpret_cast<const Byte*>(floats), 0}, {dst + at * sizeof(T), 0}, {length, 1});
  });
}

template <typename T>
void filterColumnPieces(const float* taps, int count, SourceRows src, TargetRows dst, Extent samples) {
  float floats[kPieceRows + kMostColumnTaps - 1][kColumnPiece];
  const FloatLine<float, T, float> line(taps, count, sizeof floats[0]);
  for (int y = 0; y < samples.rows; y += kPieceRows) {
    const int rows = std::min(kPieceRows, samples.rows - y);
    inPieces<kColumnPiece>(samples.length, [&](size_t at, size_t length) {
      for (int i = 0; i < rows + count - 1; ++i)
        toFloats<T>(src.row(y + i) + at * sizeof(T), floats[i], length);
      line.run({reinterpret_cast<const Byte*>(floats), sizeof floats[0]},
               {dst.row(y) + at * sizeof(T), dst.step}, {length, rows});
    });
  }
}

template <typename T>
bool fitRowPieces(int count, ptrdiff_t tapStep) {
  constexpr ptrdiff_t size = sizeof(T);
  return count <= kMostPieceTaps && tapStep <= size * static_cast<ptrdiff_t>(kMostChannels) &&
         tapStep % size == 0;
}

}  // namespace

template <typename T, typename Tap>
void filterFloatTaps(const Tap* taps, int count, SourceRows src, ptrdiff_t tapStep, TargetRows dst,
                     Extent samples) {
  if constexpr (std::is_integral_v<T>) {
    if (samples.length >= 8 && fitRowPieces<T>(count, tapStep))
      return walkRows(
          samples.rows,
          [&](const Byte* s, Byte* d) { filterRowPieces<T>(taps, count, tapStep, s, d, samples.length); },
          src, dst);
    if (samples.length >= 8 && src.step == tapStep && samples.rows > 1 && count <= kMostColumnTaps)
      return filterColumnPieces<T>(taps, count, src, dst, samples);
  }
  FloatLine<T, T, Tap>(taps, count, tapStep).run(src, dst, samples);
}

template void filterFloatTaps<uint8_t>(const float*, int, SourceRows, ptrdiff_t, TargetRows, Extent);
template void filterFloatTaps<uint16_t>(const float*, int, SourceRows, ptrdiff_t, TargetRows, Extent);
template void filterFloatTaps<int16_t>(const float*, int, SourceRows, ptrdiff_t, TargetRows, Extent);
template void filterFloatTaps<float>(const float*, int, SourceRows, ptrdiff_t, TargetRows, Extent);
template void filterFloatTaps<double>(const double*, int, SourceRows, ptrdiff_t, TargetRows, Extent);

}  // namespace lumi
