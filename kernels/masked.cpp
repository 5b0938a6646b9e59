// SPDX-License-Identifier: MIT
#include "kernels/masked.hpp"

#include <algorithm>

#include "kernels/simd/bytes.hpp"

namespace lumi {
namespace {

using namespace simd;

// Spreads sixteen mask bytes over the sixteen pixels they belong to: a control for each vector of pixels.
template <int pixelBytes>
constexpr auto spreadControls() {
  std::array<Control, pixelBytes> all{};
  for (size_t byte = 0; byte < kMaskBlock * pixelBytes; ++byte)
    all[byte / 16][byte % 16] = static_cast<Byte>(byte / pixelBytes);
  return all;
}

// 0xFF over the bytes of a pixel that are never stored; such pixels divide a vector.
template <int pixelBytes, int usedBytes>
constexpr Control keptBytes() {
  Control c{};
  for (size_t j = 0; j < c.size(); ++j) c[j] = j % pixelBytes < usedBytes ? 0 : 0xFF;
  return c;
}

// Sixteen pixels, of which those are left alone whose byte of `skip` is 0xFF. Two vectors at a time where
// they come in pairs.
template <int pixelBytes, int usedBytes>
inline void storeBlock(const Byte* src, Byte* dst, Bytes16 skip) {
  static constexpr auto controls = spreadControls<pixelBytes>();
  static constexpr Control kept = keptBytes<pixelBytes, usedBytes>();
  const auto skipOf = [&](int vector) {
    const Bytes16 spread = pixelBytes == 1 ? skip : shuffle(skip, vectorOf(controls[vector]));
    return usedBytes < pixelBytes ? either(spread, vectorOf(kept)) : spread;
  };
  if constexpr (pixelBytes % 2 == 0) {
    for (int k = 0; k < pixelBytes; k += 2, src += 32, dst += 32)
      store32(dst, merge(load32(src), load32(dst), joined(skipOf(k), skipOf(k + 1))));
  } else {
    for (int k = 0; k < pixelBytes; ++k, src += 16, dst += 16)
      store16(dst, select(load16(src), load16(dst), skipOf(k)));
  }
}

// The source moves on with the pixels, or stands still (a value, which is there even if no pixel is chosen).
template <int pixelBytes, int usedBytes, bool moving>
void maskedRow(const Byte* src, Byte* dst, const Byte* mask, size_t pixels) {
  size_t i = 0;
  const auto at = [&](size_t pixel) { return moving ? src + pixel * pixelBytes : src; };
  for (; i + kMaskBlock <= pixels; i += kMaskBlock) {
    const Bytes16 given = load16(mask + i);
    // A block that is not chosen reads no source.
    if (moving && noneSet(given)) continue;
    storeBlock<pixelBytes, usedBytes>(at(i), dst + i * pixelBytes, isZero(given));
  }
  for (; i < pixels; ++i)
    if (mask[i]) move<usedBytes>(dst + i * pixelBytes, at(i));
}

}  // namespace

template <int pixelBytes, int usedBytes>
void copyMaskedRow(const uint8_t* src, uint8_t* dst, const uint8_t* mask, size_t pixels) {
  maskedRow<pixelBytes, usedBytes, true>(src, dst, mask, pixels);
}

template <int pixelBytes, int usedBytes>
void fillMaskedRow(const uint8_t* block, uint8_t* dst, const uint8_t* mask, size_t pixels) {
  maskedRow<pixelBytes, usedBytes, false>(block, dst, mask, pixels);
}

#define LUMI_PIXEL(bytes, used)                                                               \
  template void copyMaskedRow<bytes, used>(const uint8_t*, uint8_t*, const uint8_t*, size_t); \
  template void fillMaskedRow<bytes, used>(const uint8_t*, uint8_t*, const uint8_t*, size_t);
LUMI_PIXEL(1, 1)
LUMI_PIXEL(2, 2)
LUMI_PIXEL(3, 3)
LUMI_PIXEL(4, 3)
LUMI_PIXEL(4, 4)
LUMI_PIXEL(6, 6)
LUMI_PIXEL(8, 6)
LUMI_PIXEL(8, 8)
LUMI_PIXEL(12, 12)
LUMI_PIXEL(16, 12)
LUMI_PIXEL(16, 16)
#undef LUMI_PIXEL

}  // namespace lumi
