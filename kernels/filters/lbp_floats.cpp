// SPDX-License-Identifier: MIT
#include "kernels/filters/lbp_patterns.hpp"

namespace lumi {

using simd::patternByMode;
using simd::PatternOfFloats;

template <>
WindowFilter binaryPattern<float, uint8_t>(int side, int mode) {
  return side == 3 ? patternByMode<PatternOfFloats, uint8_t, 3>(mode)
                   : patternByMode<PatternOfFloats, uint8_t, 5>(mode);
}
template <>
WindowFilter binaryPattern<float, uint16_t>(int, int mode) {
  return patternByMode<PatternOfFloats, uint16_t, 5>(mode);
}

}  // namespace lumi
