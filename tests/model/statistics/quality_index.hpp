// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cmath>
#include <limits>

#include "model/access.hpp"

namespace model {

// An index and how far a result may lie from it. Differences of integers from their mean are the same floats
// in every implementation; their sums are of n terms in single precision and any order, so that each is off
// by at most (n + 8) * 2^-24 of the sum of magnitudes, roots and squares included. The mean of floats is a
// sum in single precision itself: it and each difference may be off by `shift`.
struct Quality {
  bool exists;
  double index, tolerance;
};

template <typename T>
struct Channel {
  Image image;
  int stored, channel;

  double at(int x, int y) const { return static_cast<double>(load<T>(image.row(y), x * stored + channel)); }
};

template <typename T>
double meanOf(const Channel<T>& c, LumiSize roi, double* shift) {
  double sum = 0, magnitudes = 0;
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x) {
      sum += c.at(x, y);
      magnitudes += std::fabs(c.at(x, y));
    }
  const double n = double{1} * roi.width * roi.height;
  *shift = std::is_same_v<T, Lum32f> ? (n + 16) * 0x1p-24 * magnitudes / n + 0x1p-22 * magnitudes / n : 0;
  return c.stored == 1 ? sum / n : sum * (1.0 / n);
}

template <typename T>
Quality qualityIndex(const Channel<T>& first, const Channel<T>& second, LumiSize roi) {
  double shift1 = 0, shift2 = 0;
  const double m1 = meanOf(first, roi, &shift1), m2 = meanOf(second, roi, &shift2);
  const auto f1 = static_cast<float>(m1), f2 = static_cast<float>(m2);
  double covariance = 0, v1 = 0, v2 = 0, magnitudes = 0, sum1 = 0, sum2 = 0;
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x) {
      const double a = static_cast<float>(first.at(x, y)) - f1, b = static_cast<float>(second.at(x, y)) - f2;
      covariance += a * b;
      magnitudes += std::fabs(a * b);
      v1 += a * a;
      v2 += b * b;
      sum1 += std::fabs(a);
      sum2 += std::fabs(b);
    }
  const double n = double{1} * roi.width * roi.height, unit = (n + 8) * 0x1p-24;
  const double means = m1 * m1 + m2 * m2, denominator = (v1 + v2) * means;
  const double ofVariances =
      unit * (v1 + v2) + 2 * (shift1 * sum1 + shift2 * sum2) + n * (shift1 * shift1 + shift2 * shift2);
  const double ofDenominator =
      ofVariances * means + (v1 + v2) * 2 * (shift1 * std::fabs(m1) + shift2 * std::fabs(m2));
  if (!(denominator >= 0x1p-23)) return {false, 0, 0};
  const double index = 4 * m1 * m2 * covariance / denominator;
  const double ofCovariance = unit * magnitudes + shift1 * sum2 + shift2 * sum1 + n * shift1 * shift2;
  const double ofNumerator = 4 * (std::fabs(m1 * m2) * ofCovariance +
                                  std::fabs(covariance) * (shift1 * std::fabs(m2) + shift2 * std::fabs(m1)));
  const double least = std::max(denominator - ofDenominator, denominator / 2);
  return {true, index, (ofNumerator + std::fabs(index) * ofDenominator) / least + 0x1p-22 * std::fabs(index)};
}

}  // namespace model
