// SPDX-License-Identifier: MIT
#include "kernels/data/convert.hpp"

#include "kernels/conversion.hpp"
#include "kernels/simd/convert.hpp"
#include "kernels/simd/rounding.hpp"

namespace lumi {
namespace {

using namespace simd;

// Results of a vector's size and of two, from the S samples that begin at p.
template <typename S, typename D>
struct Converted {
  static Bytes16 half(const Byte* p) {
    if constexpr (std::is_same_v<D, float>)
      return bytesOf(floatsOf(loadAs<S, std::conditional_t<std::is_same_v<S, uint32_t>, S, int32_t>>(p)));
    else if constexpr (sizeof(D) >= sizeof(S))
      return loadAs<S, D>(p).v;
    else if constexpr (2 * sizeof(D) == sizeof(S))
      return narrowSaturated<D>(loadTwo<S>(p)).v;
    else
      return narrowSaturated<D>(loadTwo<S>(p), loadTwo<S>(p + kBlock)).v;
  }
  static auto block(const Byte* p) {
    if constexpr (std::is_same_v<D, float> && std::is_same_v<S, int32_t>) {
      return bytesOf(floatsOf(Ints8{load32(p)}));
    } else if constexpr (std::is_same_v<S, uint8_t> && sizeof(D) == 2) {
      const U8 x{load16Once(p)};
      return Halves32{widenLow(x).v, widenHigh(x).v};
    } else {
      return Halves32{half(p), half(p + kSourceOfHalf<S, D>)};
    }
  }
};

}  // namespace

template <typename S, typename D, int alpha, bool streaming>
void convertRow(const uint8_t* src, uint8_t* dst, size_t samples) {
  using Store = std::conditional_t<streaming, Streaming, Cached>;
  runConversion<S, D, alpha, 4, Store>(src, dst, samples, Converted<S, D>());
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
