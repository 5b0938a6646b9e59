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

  static constexpr auto kMask = pixelMask<kPixelBytes, kUsedBytes, kBlockBytes>();

  // Bytes that vectors may touch. Behind a single chosen sample, the last pixel's other channels may lie
  // outside the image.
  static size_t span(size_t pixels) {
    return pixels * kPixelBytes - (used == 1 ? kPixelBytes - kUsedBytes : 0);
  }

  static void blendVector(const Byte* src, Byte* dst, size_t k) {
    store32(dst, ifThenElse(load32(kMask.bytes + kVector * k), load32(src), load32(dst)));
    keepStoresInOrder();
  }

  // Blends all of a row that vectors may touch, or nothing where it is shorter than one; returns the pixels
  // that are done. A source that stands still is one block. The last vector lies over others, and is made
  // before them: its loads would wait for their stores.
  template <bool moving>
  static size_t blend(const Byte* src, Byte* dst, size_t bytes) {
    if (bytes < kVector) return 0;
    const size_t lastAt = bytes - kVector, phase = lastAt % kPixelBytes;
    const Bytes32 last = ifThenElse(load32(kMask.bytes + phase), load32(src + (moving ? lastAt : phase)),
                                    load32(dst + lastAt));
    size_t at = 0;
    for (; at + kBlockBytes <= bytes; at += kBlockBytes)
      for (size_t k = 0; k < stored; ++k)
        blendVector(src + (moving ? at : 0) + kVector * k, dst + at + kVector * k, k);
    for (size_t k = 0; at + kVector <= bytes; ++k, at += kVector)
      blendVector(src + (moving ? at : kVector * k), dst + at, k);
    store32(dst + lastAt, last);
    return (bytes + kPixelBytes - 1) / kPixelBytes;
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
void copyChosenRows(SourceRows src, TargetRows dst, Extent pixels) {
  using Row = Chosen<sampleBytes, stored, used>;
  const auto copyRow = [length = pixels.length](const Byte* s, Byte* d) {
    size_t done = 0;
    if (!overlapByPixels(s, d, Row::kPixelBytes, length)) {
      done = Row::pixelsToBoundary(d, length);
      Row::inOrder(s, Row::kPixelBytes, d, 0, done);
      done += Row::template blend<true>(s + done * Row::kPixelBytes, d + done * Row::kPixelBytes,
                                        Row::span(length - done));
    }
    Row::inOrder(s, Row::kPixelBytes, d, done, length);
  };
  walkRows(pixels.rows, copyRow, src, dst);
}

template <int sampleBytes, int stored, int used>
void fillChosenRows(const uint8_t* block, TargetRows dst, Extent pixels) {
  using Row = Chosen<sampleBytes, stored, used>;
  const auto fillRow = [block, length = pixels.length](Byte* d) {
    size_t done = Row::pixelsToBoundary(d, length);
    Row::inOrder(block, 0, d, 0, done);
    done += Row::template blend<false>(block, d + done * Row::kPixelBytes, Row::span(length - done));
    Row::inOrder(block, 0, d, done, length);
  };
  walkRows(pixels.rows, fillRow, dst);
}

#define LUMI_CHOSEN(sample, stored, used)                                             \
  template void copyChosenRows<sample, stored, used>(SourceRows, TargetRows, Extent); \
  template void fillChosenRows<sample, stored, used>(const uint8_t*, TargetRows, Extent);
#define LUMI_LAYOUTS(sample) LUMI_CHOSEN(sample, 3, 1) LUMI_CHOSEN(sample, 4, 1) LUMI_CHOSEN(sample, 4, 3)
LUMI_LAYOUTS(1)
LUMI_LAYOUTS(2)
LUMI_LAYOUTS(4)
LUMI_CHOSEN(8, 4, 3)

}  // namespace lumi
