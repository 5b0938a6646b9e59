// SPDX-License-Identifier: MIT
#include "kernels/masked.hpp"

#include <type_traits>

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

// Vectors of 32 bytes where pixels are whole dwords, else of 16.
struct Narrow {
  using V = Bytes16;
  static V load(const Byte* p) { return load16(p); }
  static void blend(Byte* p, V value, V skip) { store16(p, ifThenElse(skip, load16(p), value)); }
};
struct Wide {
  using V = Bytes32;
  static V load(const Byte* p) { return load32(p); }
  static void blend(Byte* p, V value, V skip) { store32(p, ifThenElse(skip, load32(p), value)); }
};
template <int pixelBytes>
using Unit = std::conditional_t<pixelBytes % 4 == 0, Wide, Narrow>;

// The source moves on with the pixels.
template <int pixelBytes>
struct Moving {
  using U = Unit<pixelBytes>;
  const Byte* src;

  typename U::V vector(size_t pixel, size_t k) const {
    return U::load(src + pixel * pixelBytes + k * sizeof(typename U::V));
  }
  const Byte* sample(size_t pixel) const { return src + pixel * pixelBytes; }
  // A block that is not chosen reads no source.
  static bool leavesOut(Bytes16 skip) { return allSet(skip); }
};

// A value: one vector, or three that take turns, in registers. In memory they would be read between stores
// that the processor cannot always tell from them.
template <int pixelBytes>
struct Still {
  using U = Unit<pixelBytes>;
  static constexpr size_t kPeriod = sizeof(typename U::V) % pixelBytes == 0 ? 1 : 3;
  const Byte* block;
  typename U::V vectors[kPeriod];

  explicit Still(const Byte* pixels) : block(pixels) {
    for (size_t k = 0; k < kPeriod; ++k) vectors[k] = U::load(pixels + k * sizeof(typename U::V));
  }
  typename U::V vector(size_t, size_t k) const { return vectors[k % kPeriod]; }
  const Byte* sample(size_t) const { return block; }
  static bool leavesOut(Bytes16) { return false; }
};

// 0xFF over the bytes of vector k of sixteen pixels that stay, from a byte a pixel.
template <int pixelBytes, int usedBytes>
inline Bytes16 spreadOver(Bytes16 skip, size_t k) {
  static constexpr auto controls = spreadControls<pixelBytes>();
  static constexpr auto kept = pixelMask<pixelBytes, usedBytes, 16>(0, 0xFF);  // never stored
  const Bytes16 spread = pixelBytes == 1 ? skip : shuffleBytes(skip, vectorOf(controls[k]));
  return usedBytes < pixelBytes ? bitOr(spread, load16(kept.bytes)) : spread;
}

template <int pixelBytes, int usedBytes, typename Source>
inline void maskedBlock(const Source& source, Byte* dst, const Byte* mask, size_t i) {
  using U = Unit<pixelBytes>;
  const Bytes16 skip = isZero(load16(mask + i));
  if (Source::leavesOut(skip)) return;
  Byte* d = dst + i * pixelBytes;
  if constexpr (pixelBytes % 4 == 0) {
    for (size_t k = 0; k < pixelBytes / 2; ++k)
      U::blend(d + 32 * k, source.vector(i, k),
               joined(spreadOver<pixelBytes, usedBytes>(skip, 2 * k),
                      spreadOver<pixelBytes, usedBytes>(skip, 2 * k + 1)));
  } else {
    for (size_t k = 0; k < pixelBytes; ++k)
      U::blend(d + 16 * k, source.vector(i, k), spreadOver<pixelBytes, usedBytes>(skip, k));
  }
}

template <int pixelBytes, int usedBytes, typename Source>
[[gnu::always_inline]] inline void maskedRow(const Source& source, Byte* dst, const Byte* mask,
                                             size_t pixels) {
  size_t i = 0;
  if constexpr (pixelBytes <= 2)  // so little work a block that the loop itself would count
    for (; i + 2 * kMaskBlock <= pixels; i += 2 * kMaskBlock) {
      maskedBlock<pixelBytes, usedBytes>(source, dst, mask, i);
      maskedBlock<pixelBytes, usedBytes>(source, dst, mask, i + kMaskBlock);
    }
  for (; i + kMaskBlock <= pixels; i += kMaskBlock) maskedBlock<pixelBytes, usedBytes>(source, dst, mask, i);
  for (; i < pixels; ++i)
    if (mask[i]) move<usedBytes>(dst + i * pixelBytes, source.sample(i));
}

}  // namespace

template <int pixelBytes, int usedBytes>
void copyMaskedRows(SourceRows src, TargetRows dst, SourceRows mask, Extent pixels) {
  walkRows(
      pixels.rows,
      [length = pixels.length](const Byte* s, Byte* d, const Byte* m) {
        maskedRow<pixelBytes, usedBytes>(Moving<pixelBytes>{s}, d, m, length);
      },
      src, dst, mask);
}

template <int pixelBytes, int usedBytes>
void fillMaskedRows(const uint8_t* block, TargetRows dst, SourceRows mask, Extent pixels) {
  const Still<pixelBytes> value(block);
  walkRows(
      pixels.rows,
      [&, length = pixels.length](Byte* d, const Byte* m) {
        maskedRow<pixelBytes, usedBytes>(value, d, m, length);
      },
      dst, mask);
}

#define LUMI_PIXEL(bytes, used)                                                          \
  template void copyMaskedRows<bytes, used>(SourceRows, TargetRows, SourceRows, Extent); \
  template void fillMaskedRows<bytes, used>(const uint8_t*, TargetRows, SourceRows, Extent);
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
