// SPDX-License-Identifier: MIT
// Raw moments as their definition says, and what follows from them.
#pragma once

#include <cmath>
#include <cstdint>
#include <type_traits>

#include "model/access.hpp"

namespace model {

// The moments of one channel at 4 * q + p, and of the samples' magnitudes.
template <typename N>
struct RawMoments {
  N of[16] = {}, magnitude[16] = {};
};

// In integers modulo 2^64, or in extended precision.
template <typename T, typename N>
RawMoments<N> rawMoments(Image src, LumiSize roi, int stored, int channel) {
  RawMoments<N> all;
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x) {
      const T sample = load<T>(src.row(y), x * stored + channel);
      N yq = 1;
      for (int q = 0; q < 4; ++q, yq *= static_cast<N>(y)) {
        N factor = yq;
        for (int p = 0; p + q < 4; ++p, factor *= static_cast<N>(x)) {
          all.of[4 * q + p] += factor * static_cast<N>(sample);
          all.magnitude[4 * q + p] += factor * static_cast<N>(std::abs(static_cast<double>(sample)));
        }
      }
    }
  return all;
}

// Moments about the point (-ox, -oy), by the sum over all of them.
inline double shiftedMoment(const double* of, int m, int n, double ox, double oy) {
  const auto binomial = [](int k, int i) { return i == 0 || i == k ? 1 : k; };  // k up to 3
  double sum = 0;
  for (int p = 0; p <= m; ++p)
    for (int q = 0; q <= n; ++q)
      sum += binomial(m, p) * binomial(n, q) * std::pow(ox, m - p) * std::pow(oy, n - q) * of[4 * q + p];
  return sum;
}

}  // namespace model
