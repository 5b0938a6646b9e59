// SPDX-License-Identifier: MIT
// Of an image of integers by a constant.
#include "kernels/arithmetic/div_functions.hpp"

namespace lumi {

#define LUMI_CONSTANT(T, ...)                                                                         \
  template void combineWithConstant<Div, T, __VA_ARGS__>(const PixelPattern&, SourceRows, TargetRows, \
                                                         Extent, Division);
#define LUMI_CONSTANTS(T) LUMI_CONSTANT(T, 0, false) LUMI_CONSTANT(T, 0, true) LUMI_CONSTANT(T, 1, false)
LUMI_CONSTANTS(uint8_t)
LUMI_CONSTANTS(uint16_t)
LUMI_CONSTANTS(int16_t)

}  // namespace lumi
