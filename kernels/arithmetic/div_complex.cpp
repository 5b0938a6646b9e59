// SPDX-License-Identifier: MIT
// Of complex integers: images, and an image by a constant.
#include "kernels/arithmetic/div_complex_functions.hpp"

namespace lumi {

#define LUMI_IMAGES(T)                                                                                 \
  template bool combineRows<Div, Complex<T>, 0>(SourceRows, SourceRows, TargetRows, Extent, Division); \
  template bool combineRows<Div, Complex<T>, 1>(SourceRows, SourceRows, TargetRows, Extent, Division);
#define LUMI_CONSTANT(T, ...)                                                                      \
  template void combineWithConstant<Div, Complex<T>, __VA_ARGS__>(const PixelPattern&, SourceRows, \
                                                                  TargetRows, Extent, Division);
#define LUMI_ALL(T) \
  LUMI_IMAGES(T) LUMI_CONSTANT(T, 0, false) LUMI_CONSTANT(T, 0, true) LUMI_CONSTANT(T, 1, false)
LUMI_ALL(int16_t)
LUMI_ALL(int32_t)

}  // namespace lumi
