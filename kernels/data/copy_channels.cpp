// SPDX-License-Identifier: MIT
#include "kernels/data/copy_channels.hpp"

#include "kernels/simd/pixels.hpp"

namespace lumi {
namespace {

using namespace simd;

template <int sampleBytes>
constexpr size_t kBlock = 16 / sampleBytes;  // pixels

// One sample a pixel into a channel: vector `index` of the pixels takes its bytes from the plane's vector.
template <int sampleBytes, int channels>
constexpr Control spreadControl(int index, bool all) {
  Control c{};
  for (int j = 0; j < 16; ++j) {
    const int byte = index * 16 + j, pixel = byte / (sampleBytes * channels),
              within = byte % (sampleBytes * channels);
    c[j] =
        all || within < sampleBytes ? static_cast<Byte>(pixel * sampleBytes + within % sampleBytes) : kZero;
  }
  return c;
}

template <int sampleBytes, int channels>
constexpr auto spreadControls(bool all) {
  std::array<Control, channels> controls{};
  for (int i = 0; i < channels; ++i) controls[i] = spreadControl<sampleBytes, channels>(i, all);
  return controls;
}

// 0xFF over every sample but the chosen one.
template <int sampleBytes, int channels>
constexpr auto otherChannels() {
  auto masks = spreadControls<sampleBytes, channels>(false);
  for (Control& m : masks)
    for (Byte& b : m) b = b == kZero ? 0xFF : 0;
  return masks;
}

// Eight pixels of 32-bit samples without their alpha. In each half, vector i is pixel i of four, turned to
// where its samples stand in three vectors of four pixels.
void narrowEight(const Byte* src, Byte* dst) {
  const auto pixel = [&](int i) { return joined(load16(src + 16 * i), load16(src + 64 + 16 * i)); };
  const Bytes32 a = pixel(0), b = permuteDwords<1, 2, 3, 0>(pixel(1)),
                c = permuteDwords<2, 3, 0, 1>(pixel(2)), d = permuteDwords<3, 0, 1, 2>(pixel(3));
  storeThirds<Cached>(dst, blendDwords<0b10001000>(a, b), blendDwords<0b11001100>(b, c),
                      blendDwords<0b11101110>(c, d));
}

template <int sampleBytes>
[[gnu::always_inline]] inline void copyColourToAlphaRow(const Byte* src, Byte* dst, size_t pixels) {
  static constexpr Control control = widenControl<sampleBytes>(0), last = widenControl<sampleBytes>(4);
  static constexpr auto alpha = pixelMask<4 * sampleBytes, 3 * sampleBytes, 16>(0, 0xFF);
  for (; pixels >= kBlock<sampleBytes>; pixels -= kBlock<sampleBytes>, src += 48, dst += 64)
    for (int i = 0; i < 4; ++i) {
      const Bytes16 colour = i < 3 ? shuffleBytes(load16(src + 12 * i), vectorOf(control))
                                   : shuffleBytes(load16(src + 32), vectorOf(last));
      store16(dst + 16 * i, bitOr(colour, bitAnd(load16(dst + 16 * i), load16(alpha.bytes))));
      keepStoresInOrder();
    }
  for (; pixels; --pixels, src += 3 * sampleBytes, dst += 4 * sampleBytes) move<3 * sampleBytes>(dst, src);
}

template <int sampleBytes>
[[gnu::always_inline]] inline void copyColourFromAlphaRow(const Byte* src, Byte* dst, size_t pixels) {
  if constexpr (sampleBytes == 4) {
    for (; pixels >= 8; pixels -= 8, src += 128, dst += 96) narrowEight(src, dst);
  } else {
    static constexpr Control controls[] = {narrowControl<sampleBytes>(0), narrowControl<sampleBytes>(12),
                                           narrowControl<sampleBytes>(8), narrowControl<sampleBytes>(4)};
    for (; pixels >= kBlock<sampleBytes>; pixels -= kBlock<sampleBytes>, src += 64, dst += 48) {
      const auto group = [&](int i) { return shuffleBytes(load16(src + 16 * i), vectorOf(controls[i])); };
      storeTurned(dst, group(0), group(1), group(2), group(3));
    }
  }
  for (; pixels; --pixels, src += 4 * sampleBytes, dst += 3 * sampleBytes) move<3 * sampleBytes>(dst, src);
}

// A block of a plane's samples among the other channels of a destination.
template <int sampleBytes, int channels>
struct SpreadBlock {
  static constexpr size_t kPixels = kBlock<sampleBytes>;
  Bytes16 vectors[channels];

  [[gnu::always_inline]] SpreadBlock(const Byte* src, const Byte* dst) {
    static constexpr auto controls = spreadControls<sampleBytes, channels>(false);
    static constexpr auto others = otherChannels<sampleBytes, channels>();
    const Bytes16 samples = load16(src);
    for (size_t i = 0; i < channels; ++i)
      vectors[i] = bitOr(bitAnd(load16(dst + 16 * i), vectorOf(others[i])),
                         shuffleBytes(samples, vectorOf(controls[i])));
  }
  void store(Byte* dst) const {
    for (size_t i = 0; i < channels; ++i) store16(dst + 16 * i, vectors[i]);
  }
};

// Eight 32-bit samples into one channel of three. In each half the samples are turned so that each stands
// where one of the three vectors of four pixels wants it; the halves then go to the vectors of memory.
template <>
struct SpreadBlock<4, 3> {
  static constexpr size_t kPixels = 8;
  Bytes32 first, second, third;

  [[gnu::always_inline]] SpreadBlock(const Byte* src, const Byte* dst) {
    const Bytes32 turned = permuteDwords<0, 3, 2, 1>(load32(src));
    first = blendDwords<0b01001001>(load32(dst), permuteHalves<0, 0>(turned, turned));
    second = blendDwords<0b10010010>(load32(dst + 32), turned);
    third = blendDwords<0b00100100>(load32(dst + 64), permuteHalves<1, 1>(turned, turned));
  }
  void store(Byte* dst) const {
    store32(dst, first);
    keepStoresInOrder();
    store32(dst + 32, second);
    keepStoresInOrder();
    store32(dst + 64, third);
  }
};

// A block ends with the last pixel's other channels, which lie outside the image when the chosen channel
// is not the first: one pixel at least is left for the tail. What else is left goes in a block that begins
// before it, and is made before all others: loads would wait for their stores. Single dwords into four
// channels go one by one: a vector holds too few of them to gain.
template <int sampleBytes, int channels>
[[gnu::always_inline]] inline void planeToChannelRow(const Byte* src, Byte* dst, size_t pixels) {
  constexpr size_t step = sampleBytes * channels;
  size_t i = 0;
  if constexpr (sampleBytes * channels < 16) {
    using Block = SpreadBlock<sampleBytes, channels>;
    if (pixels > Block::kPixels) {
      const size_t end = pixels - 1, lastFirst = end - Block::kPixels;
      const Block last(src + lastFirst * sampleBytes, dst + lastFirst * step);
      for (; i + Block::kPixels <= end; i += Block::kPixels)
        Block(src + i * sampleBytes, dst + i * step).store(dst + i * step);
      last.store(dst + lastFirst * step);
      i = end;
    }
  }
  for (; i < pixels; ++i) move<sampleBytes>(dst + i * step, src + i * sampleBytes);
}

template <int channels>
[[gnu::always_inline]] inline void duplicateRow(const Byte* src, Byte* dst, size_t pixels) {
  static constexpr auto controls = spreadControls<1, channels>(true);
  for (; pixels >= 16; pixels -= 16, src += 16, dst += 16 * channels) {
    const Bytes16 samples = load16(src);
    for (int i = 0; i < channels; ++i) store16(dst + 16 * i, shuffleBytes(samples, vectorOf(controls[i])));
  }
  for (; pixels; --pixels, ++src)
    for (int c = 0; c < channels; ++c) *dst++ = *src;
}

}  // namespace

template <int sampleBytes>
void copyColourToAlphaRows(SourceRows src, TargetRows dst, Extent pixels) {
  walkPixels(copyColourToAlphaRow<sampleBytes>, src, dst, pixels);
}

template <int sampleBytes>
void copyColourFromAlphaRows(SourceRows src, TargetRows dst, Extent pixels) {
  walkPixels(copyColourFromAlphaRow<sampleBytes>, src, dst, pixels);
}

template <int sampleBytes, int channels>
void planeToChannelRows(SourceRows src, TargetRows dst, Extent pixels) {
  walkPixels(planeToChannelRow<sampleBytes, channels>, src, dst, pixels);
}

template <int channels>
void duplicateRows(SourceRows src, TargetRows dst, Extent pixels) {
  walkPixels(duplicateRow<channels>, src, dst, pixels);
}

#define LUMI_SAMPLES(sample)                                                   \
  template void planeToChannelRows<sample, 3>(SourceRows, TargetRows, Extent); \
  template void planeToChannelRows<sample, 4>(SourceRows, TargetRows, Extent); \
  template void copyColourToAlphaRows<sample>(SourceRows, TargetRows, Extent); \
  template void copyColourFromAlphaRows<sample>(SourceRows, TargetRows, Extent);
LUMI_SAMPLES(1)
LUMI_SAMPLES(2)
LUMI_SAMPLES(4)
template void duplicateRows<3>(SourceRows, TargetRows, Extent);
template void duplicateRows<4>(SourceRows, TargetRows, Extent);

}  // namespace lumi
