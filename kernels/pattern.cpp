// SPDX-License-Identifier: MIT
#include "kernels/pattern.hpp"

#include "kernels/simd/pixels.hpp"

namespace lumi {
namespace {

using namespace simd;

constexpr size_t kVector = sizeof(Bytes32);

// Pixels longer than a vector, one after the other.
template <int pixelBytes>
PixelPattern repeatLong(const Byte* pixel) {
  PixelPattern p;
  size_t at = 0;
  for (; at + pixelBytes <= sizeof p.bytes; at += pixelBytes) move<pixelBytes>(p.bytes + at, pixel);
  std::memcpy(p.bytes + at, pixel, sizeof p.bytes - at);
  return p;
}

}  // namespace

template <int pixelBytes>
PixelPattern makePattern(const void* pixel) {
  if constexpr (pixelBytes > 16) {
    return repeatLong<pixelBytes>(static_cast<const Byte*>(pixel));
  } else {
    static constexpr Control controls[] = {repeatControl<pixelBytes>(0), repeatControl<pixelBytes>(16),
                                           repeatControl<pixelBytes>(32)};
    const Bytes16 once = loadPixel<pixelBytes>(static_cast<const Byte*>(pixel));
    PixelPattern p;
    const auto vector = [&](size_t i) { return shuffleBytes(once, vectorOf(controls[i % 3])); };
    // As wide as they will be loaded: a load over two stores would wait for both.
    constexpr size_t vectors = kVector % pixelBytes == 0 ? 2 : sizeof p.bytes / kVector;
    for (size_t i = 0; i < vectors; ++i)
      store32(p.bytes + i * kVector, joined(vector(2 * i), vector(2 * i + 1)));
    return p;
  }
}

#define LUMI_PIXEL(bytes) template PixelPattern makePattern<bytes>(const void*);
LUMI_PIXEL(1)
LUMI_PIXEL(2)
LUMI_PIXEL(3)
LUMI_PIXEL(4)
LUMI_PIXEL(6)
LUMI_PIXEL(8)
LUMI_PIXEL(12)
LUMI_PIXEL(16)
LUMI_PIXEL(24)
LUMI_PIXEL(32)

}  // namespace lumi
