// SPDX-License-Identifier: MIT
// Of two images of real samples.
#include "kernels/arithmetic/mul_functions.hpp"

namespace lumi {

#define LUMI_IMAGES(T)                                                                       \
  template bool combineRows<Mul, T, 0>(SourceRows, SourceRows, TargetRows, Extent, Scaling); \
  template bool combineRows<Mul, T, 1>(SourceRows, SourceRows, TargetRows, Extent, Scaling);
LUMI_IMAGES(uint8_t)
LUMI_IMAGES(uint16_t)
LUMI_IMAGES(int16_t)
LUMI_IMAGES(float)

}  // namespace lumi
