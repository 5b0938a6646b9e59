// SPDX-License-Identifier: MIT
#include "kernels/filters/exponential.hpp"

#include "kernels/simd/elementary.hpp"

namespace lumi {

using simd::powerOfTwo;

double exponentialOfNegative(double x) {
  if (!(x > -700)) return 0;
  // ln 2 in two parts: the first has so few bits that its products are exact.
  const double turns = static_cast<double>(static_cast<int>(x * 1.4426950408889634 - 0.5));
  const double r = (x - turns * 0.693147180369123816490) - turns * 1.90821492927058770002e-10;
  double sum = 1;  // of the series up to r^14 / 14!: 0.35^15 / 15! is below 2^-61
  for (int n = 14; n > 0; --n) sum = 1 + r * sum / n;
  return sum * powerOfTwo(static_cast<int>(turns));
}

}  // namespace lumi
