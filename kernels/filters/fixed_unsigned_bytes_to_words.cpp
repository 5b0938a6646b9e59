// SPDX-License-Identifier: MIT
#include "kernels/filters/fixed_functions.hpp"

namespace lumi {

template <>
WindowFilter fixedFilter<uint8_t, int16_t>(FixedFilter filter) {
  return simd::bytesToWords<uint8_t>(filter);
}

}  // namespace lumi
