// SPDX-License-Identifier: MIT
// Of an image of real samples and a constant.
#include "kernels/arithmetic/mul_functions.hpp"

namespace lumi {

#define LUMI_CONSTANT(T, ...)                                                                         \
  template void combineWithConstant<Mul, T, __VA_ARGS__>(const PixelPattern&, SourceRows, TargetRows, \
                                                         Extent, Scaling);
#define LUMI_CONSTANTS(T) LUMI_CONSTANT(T, 0, false) LUMI_CONSTANT(T, 0, true) LUMI_CONSTANT(T, 1, false)
LUMI_CONSTANTS(uint8_t)
LUMI_CONSTANTS(uint16_t)
LUMI_CONSTANTS(int16_t)
LUMI_CONSTANTS(float)

}  // namespace lumi
