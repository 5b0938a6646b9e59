// SPDX-License-Identifier: MIT
// Of images of integers.
#include "kernels/arithmetic/div_functions.hpp"

namespace lumi {

#define LUMI_IMAGES(Op, T)                                                                   \
  template bool combineRows<Op, T, 0>(SourceRows, SourceRows, TargetRows, Extent, Division); \
  template bool combineRows<Op, T, 1>(SourceRows, SourceRows, TargetRows, Extent, Division);
LUMI_IMAGES(Div, uint8_t)
LUMI_IMAGES(Div, uint16_t)
LUMI_IMAGES(Div, int16_t)
LUMI_IMAGES(DivRound, uint8_t)
LUMI_IMAGES(DivRound, uint16_t)
LUMI_IMAGES(DivRound, int16_t)

}  // namespace lumi
