// SPDX-License-Identifier: MIT
#include "kernels/convert.hpp"

#include "kernels/pointwise.hpp"
#include "kernels/simd/convert.hpp"
#include "kernels/simd/rounding.hpp"

namespace lumi {
namespace {

using namespace simd;

// Results of a vector's size and of two, from the S samples that begin at p.
template <typename S, typename D>
struct Converted {
  static constexpr size_t kHalfSource = kHalf / sizeof(D) * sizeof(S);

  static Bytes16 half(const Byte* p) {
    if constexpr (std::is_same_v<D, float> && std::is_same_v<S, uint32_t>)
      return bytesOf(floatsOf(loadAs<S, uint32_t>(p)));
    else if constexpr (std::is_same_v<D, float>)
      return bytesOf(floatsOf(loadAs<S, int32_t>(p)));
    else if constexpr (sizeof(D) >= sizeof(S))
      return loadAs<S, D>(p).v;
    else if constexpr (2 * sizeof(D) == sizeof(S))
      return narrowed<D>(at(p, 0), at(p, 1)).v;
    else
      return narrowed<D>(at(p, 0), at(p, 1), at(p, 2), at(p, 3)).v;
  }
  static auto block(const Byte* p) {
    if constexpr (std::is_same_v<D, float> && !std::is_same_v<S, uint32_t>)
      return bytesOf(floatsOf(joined(loadAs<S, int32_t>(p), loadAs<S, int32_t>(p + kHalfSource))));
    else
      return Halves32{half(p), half(p + kHalfSource)};
  }

 private:
  static Samples<S> at(const Byte* p, size_t vector) { return {load16(p + vector * kHalf)}; }
};

// A rule of its own for its room, which is never less than a vector: pieces of source rows are gathered in
// steps of up to eight bytes, however few there are.
template <typename S, typename D>
struct Conversion : Unary<S, D, Converted<S, D>> {
  using Base = Unary<S, D, Converted<S, D>>;
  struct Room {
    alignas(kHalf) Byte bytes[Converted<S, D>::kHalfSource < kHalf ? kHalf : Converted<S, D>::kHalfSource];
  };
  explicit Conversion(const Byte* src) : Base{{src}, {}} {}
  Conversion gathered(Room& room, size_t at, size_t bytes) const {
    copyFew(room.bytes, this->a(at), ImageRow<S, D>::sourceBytes(bytes));
    return Conversion(room.bytes);
  }
};

}  // namespace

template <typename S, typename D, int alpha, bool streaming>
void convertRow(const uint8_t* src, uint8_t* dst, size_t samples) {
  constexpr size_t pixel = alpha ? 4 * sizeof(D) : sizeof(D), used = pixel - alpha * sizeof(D);
  const Conversion<S, D> rule(src);
  if constexpr (streaming) {
    // Streaming blocks lie on boundaries, which samples at odd addresses never reach.
    if (isAligned(dst, sizeof(D))) return runPixels<pixel, used, Streaming>(dst, samples * sizeof(D), rule);
  }
  runPixels<pixel, used>(dst, samples * sizeof(D), rule);
}

#define LUMI_PLAIN(S, D) template void convertRow<S, D, 0, false>(const Byte*, Byte*, size_t);
#define LUMI_ALPHA(S, D) \
  LUMI_PLAIN(S, D) template void convertRow<S, D, 1, false>(const Byte*, Byte*, size_t);
#define LUMI_STREAMING(S, D) \
  LUMI_ALPHA(S, D) template void convertRow<S, D, 0, true>(const Byte*, Byte*, size_t);
LUMI_STREAMING(uint8_t, int16_t)
LUMI_STREAMING(uint8_t, uint16_t)
LUMI_STREAMING(uint8_t, int32_t)
LUMI_STREAMING(uint8_t, float)
LUMI_STREAMING(int8_t, int32_t)
LUMI_STREAMING(int8_t, float)
LUMI_STREAMING(int16_t, float)
LUMI_STREAMING(uint16_t, float)
LUMI_STREAMING(int16_t, uint8_t)
LUMI_STREAMING(uint16_t, uint8_t)
LUMI_ALPHA(int16_t, int32_t)
LUMI_ALPHA(uint16_t, int32_t)
LUMI_ALPHA(int32_t, uint8_t)
LUMI_ALPHA(int32_t, int8_t)
LUMI_PLAIN(int8_t, int16_t)
LUMI_PLAIN(uint16_t, uint32_t)
LUMI_PLAIN(int32_t, float)
LUMI_PLAIN(uint32_t, float)
LUMI_PLAIN(int8_t, uint8_t)
LUMI_PLAIN(int8_t, uint16_t)
LUMI_PLAIN(int8_t, uint32_t)
LUMI_PLAIN(int16_t, uint16_t)
LUMI_PLAIN(int16_t, uint32_t)
LUMI_PLAIN(int32_t, uint32_t)

}  // namespace lumi
