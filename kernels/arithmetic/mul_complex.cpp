// SPDX-License-Identifier: MIT
// Of complex samples.
#include "kernels/arithmetic/mul_complex_functions.hpp"

namespace lumi {

#define LUMI_IMAGES(T)                                                                                \
  template bool combineRows<Mul, Complex<T>, 0>(SourceRows, SourceRows, TargetRows, Extent, Scaling); \
  template bool combineRows<Mul, Complex<T>, 1>(SourceRows, SourceRows, TargetRows, Extent, Scaling);
#define LUMI_CONSTANT(T, ...)                                                                      \
  template void combineWithConstant<Mul, Complex<T>, __VA_ARGS__>(const PixelPattern&, SourceRows, \
                                                                  TargetRows, Extent, Scaling);
#define LUMI_ALL(T) \
  LUMI_IMAGES(T) LUMI_CONSTANT(T, 0, false) LUMI_CONSTANT(T, 0, true) LUMI_CONSTANT(T, 1, false)
LUMI_ALL(int16_t)
LUMI_ALL(int32_t)
LUMI_ALL(float)
LUMI_CONSTANT(int16_t, 0, true, true)

}  // namespace lumi
