// SPDX-License-Identifier: MIT
// The tables of windows along rows and columns. By sums, products and quotients alone: every build has the
// same bits.
#pragma once

#include "kernels/transforms/window.hpp"

namespace lumi {

// cos(2 pi t) for t from 0 to 1, to a few units of a double's last place.
inline double cosineOfTurn(double t) {
  constexpr double kTwoPi = 6.283185307179586;
  const double half = t > 0.5 ? 1 - t : t;
  const bool isLeft = half > 0.25;
  const double angle = kTwoPi * (isLeft ? 0.5 - half : half);
  double sum = 0;
  // Up to a right angle, the term of the 24th power is below 2^-63.
  for (int n = 24; n > 0; n -= 2) sum = (1 - sum) * (angle * angle / (n * (n - 1)));
  return isLeft ? sum - 1 : 1 - sum;
}

struct Bartlett {
  static constexpr float kFull = 1;  // what is left of half a width comes to this at the middle
  static constexpr float kEdge = 0;  // of a table's ends

  static constexpr auto radialFactors = coneFactors;

  static void fill(float* table, int n) { triangleFactors(table, static_cast<size_t>(n)); }
};

struct Hamming {
  static constexpr float kFull = 3.14159274F;
  static constexpr float kEdge = 0.08F;

  static constexpr auto radialFactors = raisedCosineFactors;

  static void fill(float* table, int n) {
    const double first = cosineOfTurn(1.0 / (n - 1)), second = cosineOfTurn(2.0 / (n - 1));
    double before = 1, cosine = first;
    for (int i = 0; i <= (n - 1) / 2; ++i) {
      const double now = i == 0 ? 1 : i == 1 ? first : i == 2 ? second : 2 * first * cosine - before;
      before = cosine;
      cosine = now;
      table[i] = table[n - 1 - i] = static_cast<float>(0.54 - 0.46 * now);
    }
  }
};

}  // namespace lumi
