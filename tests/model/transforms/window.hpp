// SPDX-License-Identifier: MIT
// Windows. Floats are rounded after every step that is told.
#pragma once

#include <type_traits>
#include <vector>

#include "model/transforms/complex.hpp"

namespace model {

enum class Window { Bartlett, Hamming };

// cos(2 pi t) by its series.
inline double cosineOfTurn(double t) {
  const double half = t > 0.5 ? 1 - t : t, part = half > 0.25 ? 0.5 - half : half;
  const double angle = 6.283185307179586 * part, square = angle * angle;
  double rest = 0;
  for (int n = 24; n >= 2; n -= 2) rest = (1 - rest) * (square / (n * (n - 1)));
  return half > 0.25 ? rest - 1 : 1 - rest;
}

inline std::vector<float> windowTable(Window window, int n) {
  std::vector<float> table(static_cast<size_t>(n));
  std::vector<double> cosines = {1, cosineOfTurn(1.0 / (n - 1)), cosineOfTurn(2.0 / (n - 1))};
  for (int i = 0; i < n; ++i) {
    const auto at = static_cast<size_t>(i);
    if (window == Window::Bartlett) {
      const float part = 2.0F * static_cast<float>(i) / static_cast<float>(n - 1);
      table[at] = 2 * i <= n - 1 ? part : 2 - part;
    } else {
      if (at >= cosines.size()) cosines.push_back(2 * cosines[1] * cosines[at - 1] - cosines[at - 2]);
      const int nearer = std::min(i, n - 1 - i);
      table[at] = static_cast<float>(0.54 - 0.46 * cosines[static_cast<size_t>(nearer)]);
    }
  }
  return table;
}

// From 0 to pi.
inline float windowCosine(float angle) {
  const float x = 1.57079637F - angle, z = x * x;
  return x + (x * z) * (-0.166666571F + z * (0.00833301729F + z * (-0.000198066152F + z * 2.6000547e-06F)));
}

inline float radialFactor(Window window, LumiSize roi, int x, int y) {
  const float half = static_cast<float>(roi.width) / 2, halfHeight = static_cast<float>(roi.height) / 2;
  const float q = half / halfHeight;
  const float dx = half - static_cast<float>(x), dy = halfHeight - static_cast<float>(y);
  const float r = std::sqrt(dx * dx + q * q * dy * dy), t = half - r;
  if (!(t > 0)) return 0;
  if (window == Window::Bartlett) return t * (2 / static_cast<float>(roi.width));
  return 0.54F - 0.46F * windowCosine(t * (6.28318531F / static_cast<float>(roi.width)));
}

template <typename T>
T underWindow(T sample, float first, float second) {
  const float result = static_cast<float>(sample) * first * second;
  if constexpr (std::is_floating_point_v<T>)
    return result;
  else
    return scaledAndLimited<T>(result, 0);
}

template <typename T>
void window(Image src, Image dst, LumiSize roi, Window which, bool radial) {
  const std::vector<float> columns = windowTable(which, roi.width), rows = windowTable(which, roi.height);
  for (int y = 0; y < roi.height; ++y) {
    const int fromEnd = std::min(y, roi.height - 1 - y);
    for (int x = 0; x < roi.width; ++x) {
      const auto u = static_cast<size_t>(x), v = static_cast<size_t>(y);
      const T sample = load<T>(src.row(y), x);
      store<T>(dst.row(y), x,
               radial && fromEnd > 0 ? underWindow(sample, radialFactor(which, roi, x, fromEnd), 1)
                                     : underWindow(sample, columns[u], rows[v]));
    }
  }
}

}  // namespace model
