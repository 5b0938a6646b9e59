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

// Halves of x down to 1 .. 2 leave m, of which ln(m) = 2 atanh((m - 1) / (m + 1)): the quotient is at most
// 1/3, and its power of 33 below 2^-52.
double naturalLogarithm(double x) {
  int halves = 0;
  for (; x >= 2; ++halves) x *= 0.5;
  const double q = (x - 1) / (x + 1);
  double sum = 0;
  for (int n = 33; n > 0; n -= 2) sum = 1.0 / n + sum * (q * q);
  return 2 * q * sum + halves * 0.6931471805599453;
}

}  // namespace lumi
