// SPDX-License-Identifier: MIT
#include "kernels/chosen.hpp"

#include "kernels/simd/bytes.hpp"

namespace lumi {
namespace {

using namespace simd;

template <int sampleBytes, int stored, int used>
struct Chosen {
  static constexpr size_t kVector = sizeof(Bytes32), kPixelBytes = sampleBytes * stored,
                          kUsedBytes = sampleBytes * used;
  static constexpr size_t kBlockBytes = kChosenBlock<stored>;

  struct Masks {
    alignas(kVector) Byte bytes[kBlockBytes];  // 0xFF where a byte is stored
  };
  static constexpr Masks masks() {
    Masks m{};
    for (size_t i = 0; i < kBlockBytes; ++i) m.bytes[i] = i % kPixelBytes < kUsedBytes ? 0xFF : 0;
    return m;
  }
  static constexpr Masks kMasks = masks();

  // Bytes that vectors may touch. Behind a single chosen sample, the last pixel's other channels may lie
  // outside the image.
  static size_t span(size_t pixels) {
    return pixels * kPixelBytes - (used == 1 ? kPixelBytes - kUsedBytes : 0);
  }

  static void blendVector(const Byte* src, Byte* dst, size_t k) {
    store32(dst, ifThenElse(load32(kMasks.bytes + kVector * k), load32(src), load32(dst)));
  }

  // Blends whole vectors and returns the pixels that are done. A source that stands still is one block.
  template <bool moving>
  static size_t blend(const Byte* src, Byte* dst, size_t bytes) {
    size_t at = 0;
    for (; at + kBlockBytes <= bytes; at += kBlockBytes)
      for (size_t k = 0; k < stored; ++k)
        blendVector(src + (moving ? at : 0) + kVector * k, dst + at + kVector * k, k);
    for (size_t k = 0; at + kVector <= bytes; ++k, at += kVector)
      blendVector(src + (moving ? at : kVector * k), dst + at, k);
    return (at + kPixelBytes - 1) / kPixelBytes;  // no sample lies across the end of a vector
  }

  // Pixels up to the first that starts a vector, on rows long enough to gain by aligned stores; none where
  // no pixel does.
  static size_t pixelsToBoundary(const Byte* dst, size_t pixels) {
    constexpr size_t longRow = 1024;
    if (pixels < longRow) return 0;
    for (size_t i = 0; i < kVector; ++i)
      if (isAligned(dst + i * kPixelBytes, kVector)) return i;
    return 0;
  }

  static void inOrder(const Byte* src, size_t srcPixel, Byte* dst, size_t from, size_t pixels) {
    for (size_t i = from; i < pixels; ++i) move<kUsedBytes>(dst + i * kPixelBytes, src + i * srcPixel);
  }
};

// Rows that share bytes, other than channels of the very same pixels.
bool overlapByPixels(const Byte* src, const Byte* dst, size_t pixelBytes, size_t pixels) {
  const auto distance = static_cast<size_t>(src < dst ? dst - src : src - dst);
  return distance >= pixelBytes && distance < pixelBytes * pixels;
}

}  // namespace

template <int sampleBytes, int stored, int used>
void copyChosenRow(const uint8_t* src, uint8_t* dst, size_t pixels) {
  using Row = Chosen<sampleBytes, stored, used>;
  size_t done = 0;
  if (!overlapByPixels(src, dst, Row::kPixelBytes, pixels)) {
    done = Row::pixelsToBoundary(dst, pixels);
    Row::inOrder(src, Row::kPixelBytes, dst, 0, done);
    done += Row::template blend<true>(src + done * Row::kPixelBytes, dst + done * Row::kPixelBytes,
                                      Row::span(pixels - done));
  }
  Row::inOrder(src, Row::kPixelBytes, dst, done, pixels);
}

template <int sampleBytes, int stored, int used>
void fillChosenRow(const uint8_t* block, uint8_t* dst, size_t pixels) {
  using Row = Chosen<sampleBytes, stored, used>;
  size_t done = Row::pixelsToBoundary(dst, pixels);
  Row::inOrder(block, 0, dst, 0, done);
  done += Row::template blend<false>(block, dst + done * Row::kPixelBytes, Row::span(pixels - done));
  Row::inOrder(block, 0, dst, done, pixels);
}

#define LUMI_CHOSEN(sample, stored, used)                                              \
  template void copyChosenRow<sample, stored, used>(const uint8_t*, uint8_t*, size_t); \
  template void fillChosenRow<sample, stored, used>(const uint8_t*, uint8_t*, size_t);
#define LUMI_LAYOUTS(sample) LUMI_CHOSEN(sample, 3, 1) LUMI_CHOSEN(sample, 4, 1) LUMI_CHOSEN(sample, 4, 3)
LUMI_LAYOUTS(1)
LUMI_LAYOUTS(2)
LUMI_LAYOUTS(4)
LUMI_CHOSEN(8, 4, 3)

}  // namespace lumi
