// SPDX-License-Identifier: MIT
// Of images of floats.
#include "kernels/arithmetic/div_float_functions.hpp"

namespace lumi {

#define LUMI_IMAGES(T)                                                                        \
  template bool combineRows<Div, T, 0>(SourceRows, SourceRows, TargetRows, Extent, Division); \
  template bool combineRows<Div, T, 1>(SourceRows, SourceRows, TargetRows, Extent, Division);
LUMI_IMAGES(float)
LUMI_IMAGES(Complex<float>)

}  // namespace lumi
