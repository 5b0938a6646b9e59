// SPDX-License-Identifier: MIT
#include "kernels/filters/fixed_means.hpp"

namespace lumi {
namespace simd {
namespace {

// In doubles, which hold every sum.
struct By571InDoubles {
  static Samples<int32_t> of(Samples<int32_t> sum) { return productsToEven(sum, 1.0 / 571); }
};

// (sum + 286) / 571 by its reciprocal.
struct By571InIntegers {
  static Samples<int32_t> of(Samples<int32_t> sum) {
    const auto more = as<uint32_t>(sum + broadcastLike(sum, 286));
    return as<int32_t>(multiplyHigh(more, broadcastLike(more, uint32_t{7521834})));
  }
};

}  // namespace

template <>
struct FilterOf<FixedFilter::Gauss5, int16_t, int16_t> {
  using Type = Symmetric5<int16_t, int16_t, GaussRows, By571InDoubles>;
};
template <>
struct FilterOf<FixedFilter::Gauss5, uint16_t, uint16_t> {
  using Type = Symmetric5<uint16_t, uint16_t, GaussRows, By571InIntegers>;
};

}  // namespace simd

template <>
WindowFilter fixedFilter<int16_t, int16_t>(FixedFilter filter) {
  using F = FixedFilter;
  if (filter == F::RobertsDown) return simd::robertsFilter<int16_t, int16_t, -1>();
  if (filter == F::RobertsUp) return simd::robertsFilter<int16_t, int16_t, 1>();
  return simd::oneOf<int16_t, int16_t, F::SobelVert3, F::SobelVert5, F::SobelHoriz3, F::SobelHoriz5,
                     F::ScharrVert, F::ScharrHoriz, F::PrewittVert, F::PrewittHoriz, F::Laplace3, F::Laplace5,
                     F::Hipass5, F::Gauss3, F::Gauss5, F::Lowpass3, F::Lowpass5, F::Sharpen>(filter);
}

template <>
WindowFilter fixedFilter<uint16_t, uint16_t>(FixedFilter filter) {
  using F = FixedFilter;
  return simd::oneOf<uint16_t, uint16_t, F::Gauss3, F::Gauss5, F::Lowpass3, F::Lowpass5>(filter);
}

}  // namespace lumi
