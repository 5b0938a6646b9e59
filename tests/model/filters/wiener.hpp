// SPDX-License-Identifier: MIT
// Wiener filters, window by window.
#pragma once

#include <algorithm>
#include <cmath>
#include <type_traits>

#include "model/access.hpp"

namespace model {

struct WienerWindow {
  Image src;
  LumiSize mask;
  LumiPoint anchor;
  int stored;

  double n() const { return static_cast<double>(mask.width) * mask.height; }

  // n^2 times the variance of a pixel's window; the sum of its samples goes to `total`. All of it is exact
  // for bytes and words.
  template <typename T>
  double variance(int x, int y, int channel, double& total) const {
    double squares = 0;
    total = 0;
    for (int j = 0; j < mask.height; ++j)
      for (int i = 0; i < mask.width; ++i) {
        const T sample = load<T>(src.row(y - anchor.y + j), (x - anchor.x + i) * stored + channel);
        const auto s = static_cast<double>(sample);
        total += s;
        squares += s * s;
      }
    return n() * squares - total * total;
  }
};

template <typename T>
double wienerScale() {
  return sizeof(T) == 1 ? 65025.0 : sizeof(T) == 2 ? 4294836224.0 : 1.0;
}

// Before it is stored.
template <typename T>
double wiener(const WienerWindow& window, float noise, int x, int y, int channel) {
  double total = 0;
  const double n = window.n(), level = wienerScale<T>() * static_cast<double>(noise) * n * n;
  const double variance = std::max(window.variance<T>(x, y, channel, total), level);
  const auto sample = static_cast<double>(load<T>(window.src.row(y), x * window.stored + channel));
  if (variance == 0) return sample;
  return sample + (total - n * sample) * (level / n) / variance;
}

// What is estimated where no noise is given.
template <typename T>
double wienerNoise(const WienerWindow& window, LumiSize roi, int channel) {
  double sum = 0;
  for (int y = 0; y < roi.height; ++y) {
    double ofRow = 0, total = 0;
    for (int x = 0; x < roi.width; ++x) ofRow += window.variance<T>(x, y, channel, total);
    sum += ofRow / roi.width;
  }
  const float perScale = sizeof(T) == 1 ? 1.53787e-5F : sizeof(T) == 2 ? 2.3283775e-10F : 1.0F;
  return static_cast<double>(perScale) * (sum / roi.height) / (window.n() * window.n());
}

}  // namespace model
