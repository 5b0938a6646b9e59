// SPDX-License-Identifier: MIT
#include "kernels/chosen.hpp"

#include "kernels/simd/bytes.hpp"

namespace lumi {
namespace {

using namespace simd;

// A block is as many pixels as a vector holds samples, and so `stored` vectors.
template <int sampleBytes, int stored, int used>
struct Chosen {
  static constexpr size_t kPixelBytes = sampleBytes * stored, kUsedBytes = sampleBytes * used;
  static constexpr size_t kBlockPixels = 16 / sampleBytes, kBlockBytes = kBlockPixels * kPixelBytes;
  // One sample of 32 bits is moved faster alone than blended in.
  static constexpr bool kBlend = sampleBytes < 4 || used > 1;
  // A block ends with the last pixel's other channels, which lie outside the image when the chosen
  // channel is not the first: one pixel must then be left for the tail.
  static constexpr size_t kReserve = used == 1 ? 1 : 0;

  // 0xFF where a byte is stored.
  static constexpr auto masks() {
    std::array<Control, stored> all{};
    for (size_t i = 0; i < kBlockBytes; ++i) all[i / 16][i % 16] = i % kPixelBytes < kUsedBytes ? 0xFF : 0;
    return all;
  }
  static constexpr auto kMasks = masks();

  static void block(const Byte* src, Byte* dst) {
    for (size_t k = 0; k < stored; ++k) {
      const Bytes16 mask = vectorOf(kMasks[k]);
      store16(dst + 16 * k, merge(load16(dst + 16 * k), load16(src + 16 * k), mask));
    }
  }

  static void inOrder(const Byte* src, size_t srcPixel, Byte* dst, size_t pixels) {
    for (size_t i = 0; i < pixels; ++i) move<kUsedBytes>(dst + i * kPixelBytes, src + i * srcPixel);
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
  if (Row::kBlend && !overlapByPixels(src, dst, Row::kPixelBytes, pixels))
    for (; pixels >= Row::kBlockPixels + Row::kReserve; pixels -= Row::kBlockPixels) {
      Row::block(src, dst);
      src += Row::kBlockBytes, dst += Row::kBlockBytes;
    }
  Row::inOrder(src, Row::kPixelBytes, dst, pixels);
}

template <int sampleBytes, int stored, int used>
void fillChosenRow(const void* samples, uint8_t* dst, size_t pixels) {
  using Row = Chosen<sampleBytes, stored, used>;
  const Byte* value = static_cast<const Byte*>(samples);
  Byte block[Row::kBlockBytes] = {};
  for (size_t i = 0; i < Row::kBlockPixels; ++i)
    std::memcpy(block + i * Row::kPixelBytes, value, Row::kUsedBytes);
  for (; Row::kBlend && pixels >= Row::kBlockPixels + Row::kReserve; pixels -= Row::kBlockPixels) {
    Row::block(block, dst);
    dst += Row::kBlockBytes;
  }
  Row::inOrder(value, 0, dst, pixels);
}

#define LUMI_CHOSEN(sample, stored, used)                                              \
  template void copyChosenRow<sample, stored, used>(const uint8_t*, uint8_t*, size_t); \
  template void fillChosenRow<sample, stored, used>(const void*, uint8_t*, size_t);
#define LUMI_LAYOUTS(sample) LUMI_CHOSEN(sample, 3, 1) LUMI_CHOSEN(sample, 4, 1) LUMI_CHOSEN(sample, 4, 3)
LUMI_LAYOUTS(1)
LUMI_LAYOUTS(2)
LUMI_LAYOUTS(4)

}  // namespace lumi
