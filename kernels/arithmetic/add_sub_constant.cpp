// SPDX-License-Identifier: MIT
// Of an image and a constant.
#include "kernels/arithmetic/add_sub_functions.hpp"

namespace lumi {

#define LUMI_CONSTANT(T, ...)                                                                         \
  template void combineWithConstant<Add, T, __VA_ARGS__>(const PixelPattern&, SourceRows, TargetRows, \
                                                         Extent, Scaling);                            \
  template void combineWithConstant<Sub, T, __VA_ARGS__>(const PixelPattern&, SourceRows, TargetRows, \
                                                         Extent, Scaling);
#define LUMI_ALL_CHANNELS(T) LUMI_CONSTANT(T, 0, false, false) LUMI_CONSTANT(T, 0, true, false)
LUMI_ALL_CHANNELS(uint8_t)
LUMI_ALL_CHANNELS(uint16_t)
LUMI_ALL_CHANNELS(int16_t)
LUMI_ALL_CHANNELS(int32_t)
LUMI_ALL_CHANNELS(float)
LUMI_CONSTANT(uint8_t, 1, false, false)
LUMI_CONSTANT(uint16_t, 1, false, false)
LUMI_CONSTANT(int16_t, 1, false, false)
LUMI_CONSTANT(int16_t, 2, false, false)
LUMI_CONSTANT(int32_t, 2, false, false)
LUMI_CONSTANT(float, 1, false, false)
LUMI_CONSTANT(float, 2, false, false)
LUMI_CONSTANT(int16_t, 0, true, true)

}  // namespace lumi
