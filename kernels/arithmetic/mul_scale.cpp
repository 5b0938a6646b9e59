// SPDX-License-Identifier: MIT
#include "kernels/arithmetic/mul_scale.hpp"

#include "kernels/arithmetic/combine_functions.hpp"
#include "kernels/arithmetic/products.hpp"

namespace lumi {
namespace simd {
namespace {

template <typename T>
struct Fraction;

// t / 255, rounded down, is (t + 1 + (t >> 8)) >> 8. With u = t + 1, 257 u >> 16 is the same: it is
// (u + (u >> 8)) >> 8, and where u >> 8 is not t >> 8, at a multiple 256 k of at most 254 * 256, both shifts
// leave k.
template <>
struct Fraction<uint8_t> {
  Samples<uint8_t> operator()(Samples<uint8_t> a, Samples<uint8_t> b) const {
    return narrowed<uint8_t>(products(a, b), [](auto t) {
      return multiplyHigh(t + broadcastLike(t, uint16_t{1}), broadcastLike(t, uint16_t{257}));
    });
  }
};

// t / 65535 is (t + 1 + (t >> 16)) >> 16: the high half, and one more where the low half and the high half
// make at least 65535.
template <>
struct Fraction<uint16_t> {
  Samples<uint16_t> operator()(Samples<uint16_t> a, Samples<uint16_t> b) const {
    const Samples<uint16_t> low = a * b, high = multiplyHigh(a, b);
    return high - isEqual(addSaturated(low, high), broadcast<uint16_t>(0xFFFF));  // all ones is -1
  }
};

}  // namespace

template <typename T>
struct Functions<MulScale, T> {
  template <typename Run>
  [[gnu::always_inline]] static void choose(Scaling, const Run& run) {
    run(Fraction<T>());
  }
};

}  // namespace simd

#define LUMI_ALL(T)                                                                               \
  template bool combineRows<MulScale, T, 0>(SourceRows, SourceRows, TargetRows, Extent, Scaling); \
  template bool combineRows<MulScale, T, 1>(SourceRows, SourceRows, TargetRows, Extent, Scaling); \
  LUMI_CONSTANT(T, 0, false) LUMI_CONSTANT(T, 0, true) LUMI_CONSTANT(T, 1, false)
#define LUMI_CONSTANT(T, ...)                                                                              \
  template void combineWithConstant<MulScale, T, __VA_ARGS__>(const PixelPattern&, SourceRows, TargetRows, \
                                                              Extent, Scaling);
LUMI_ALL(uint8_t)
LUMI_ALL(uint16_t)

}  // namespace lumi
