// SPDX-License-Identifier: MIT
// Roots of unity by additions and multiplications alone, so that tables are the same in every build and can
// be made when the library is compiled.
#pragma once

#include <cstdint>

namespace lumi::transforms {

struct Root {
  double re, im;
};

// Taylor's series on |x| <= pi / 4: the first term left out is below 2^-60 of one.
constexpr double sineNearZero(double x) {
  const double s = x * x;
  double sum = 0;
  for (int i = 17; i > 1; i -= 2) sum = (sum + 1) * s * (-1.0 / (i * (i - 1)));
  return x + x * sum;
}
constexpr double cosineNearZero(double x) {
  const double s = x * x;
  double sum = 0;
  for (int i = 18; i > 2; i -= 2) sum = (sum + 1) * s * (-1.0 / (i * (i - 1)));
  return 1 - s / 2 * (1 + sum);
}

// exp(-2 pi i k / n) for 0 <= k < n < 2^60. The angle is a number of quadrants, and a rest of at most half of
// one on either side that is known exactly before it is rounded.
constexpr Root root(int64_t k, int64_t n) {
  const int64_t quadrants = (4 * k + n / 2) / n;
  const double rest =
      1.5707963267948966 * (static_cast<double>(4 * k - quadrants * n) / static_cast<double>(n));
  const double c = cosineNearZero(rest), s = sineNearZero(rest);
  switch (quadrants & 3) {
    case 0:
      return {c, -s};
    case 1:
      return {-s, -c};
    case 2:
      return {-c, s};
    default:
      return {s, c};
  }
}

}  // namespace lumi::transforms
