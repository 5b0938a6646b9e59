// SPDX-License-Identifier: MIT
#include "kernels/filters/fixed_means.hpp"

namespace lumi {

template <>
struct simd::FilterOf<FixedFilter::Gauss5, float, float> {
  using Type = Symmetric5<float, float, GaussRows>;
};

template <>
WindowFilter fixedFilter<float, float>(FixedFilter filter) {
  using F = FixedFilter;
  if (filter == F::RobertsDown) return simd::robertsFilter<float, float, -1>();
  if (filter == F::RobertsUp) return simd::robertsFilter<float, float, 1>();
  return simd::oneOf<float, float, F::SobelVert3, F::SobelVert5, F::SobelHoriz3, F::SobelHoriz5,
                     F::SobelVertSecond3, F::SobelVertSecond5, F::SobelHorizSecond3, F::SobelHorizSecond5,
                     F::SobelCross3, F::SobelCross5, F::ScharrVert, F::ScharrHoriz, F::PrewittVert,
                     F::PrewittHoriz, F::Laplace3, F::Laplace5, F::Hipass5, F::Gauss3, F::Gauss5, F::Lowpass3,
                     F::Lowpass5, F::Sharpen>(filter);
}

}  // namespace lumi
