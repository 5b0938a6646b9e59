// SPDX-License-Identifier: MIT
#include "kernels/filters/lbp_patterns.hpp"

namespace lumi {

using simd::patternByMode;
using simd::PatternOfBytes;

template <>
WindowFilter binaryPattern<uint8_t, uint8_t>(int side, int mode) {
  return side == 3 ? patternByMode<PatternOfBytes, uint8_t, 3>(mode)
                   : patternByMode<PatternOfBytes, uint8_t, 5>(mode);
}
template <>
WindowFilter binaryPattern<uint8_t, uint16_t>(int, int mode) {
  return patternByMode<PatternOfBytes, uint16_t, 5>(mode);
}

}  // namespace lumi
