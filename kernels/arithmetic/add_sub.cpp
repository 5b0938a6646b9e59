// SPDX-License-Identifier: MIT
// Of two images.
#include "kernels/arithmetic/add_sub_functions.hpp"

namespace lumi {

#define LUMI_IMAGES(T, alpha)                                                                    \
  template bool combineRows<Add, T, alpha>(SourceRows, SourceRows, TargetRows, Extent, Scaling); \
  template bool combineRows<Sub, T, alpha>(SourceRows, SourceRows, TargetRows, Extent, Scaling);
LUMI_IMAGES(uint8_t, 0)
LUMI_IMAGES(uint16_t, 0)
LUMI_IMAGES(int16_t, 0)
LUMI_IMAGES(int32_t, 0)
LUMI_IMAGES(float, 0)
LUMI_IMAGES(uint8_t, 1)
LUMI_IMAGES(uint16_t, 1)
LUMI_IMAGES(int16_t, 1)
LUMI_IMAGES(int16_t, 2)
LUMI_IMAGES(int32_t, 2)
LUMI_IMAGES(float, 1)
LUMI_IMAGES(float, 2)

}  // namespace lumi
