// SPDX-License-Identifier: MIT
#include "kernels/filters/fixed_functions.hpp"

namespace lumi {

template <>
WindowFilter fixedFilter<int8_t, int16_t>(FixedFilter filter) {
  return simd::bytesToWords<int8_t>(filter);
}

}  // namespace lumi
