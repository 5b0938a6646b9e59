// SPDX-License-Identifier: MIT
// Gradient vectors, pixel by pixel.
#pragma once

#include <cmath>
#include <cstdlib>
#include <type_traits>

#include "model/access.hpp"

namespace model {

enum class Gradient { Sobel, Prewitt, Scharr };

struct GradientImage {
  Image src;
  LumiSize roi;
  int channels;
  LumiBorderType border;
};

// Sums of integers are exact, those of floats have an order.
template <typename T>
using GradientSum = std::conditional_t<std::is_floating_point_v<T>, float, int>;

template <typename T>
struct GradientOf {
  GradientSum<T> x, y;
};

template <typename T>
GradientSum<T> gradientSample(const GradientImage& image, const T* value, int x, int y, int channel) {
  const auto isReal = [&](int flag) { return (image.border & 15) == 6 || (image.border & flag) != 0; };
  bool isConstant = false;
  const auto place = [&](int at, int length, int low, int high) {
    if ((at >= 0 && at < length) || isReal(at < 0 ? low : high)) return at;
    if ((image.border & 15) == 0) isConstant = true;
    return at < 0 ? 0 : length - 1;
  };
  const int px = place(x, image.roi.width, 64, 128), py = place(y, image.roi.height, 16, 32);
  if (isConstant) return value[channel];
  return load<T>(image.src.row(py), px * image.channels + channel);
}

template <typename T>
GradientOf<T> gradientOf(Gradient kind, int side, const GradientImage& image, const T* value, int x, int y,
                         int channel) {
  using Sum = GradientSum<T>;
  const int reach = side / 2;
  Sum smooth[5], rise[5];
  for (int i = 0; i < side; ++i) {
    Sum s[5];
    for (int k = 0; k < side; ++k) s[k] = gradientSample(image, value, x + i - reach, y + k - reach, channel);
    if (side == 5) {
      const Sum outer = s[0] + s[4], inner = s[1] + s[3], both = outer + 4 * inner;
      smooth[i] = both + 6 * s[2];
      rise[i] = (s[4] - s[0]) + 2 * (s[3] - s[1]);
      continue;
    }
    const Sum outer = s[0] + s[2];
    smooth[i] = kind == Gradient::Sobel    ? outer + 2 * s[1]
                : kind == Gradient::Scharr ? 3 * outer + 10 * s[1]
                                           : outer + s[1];
    rise[i] = s[2] - s[0];
  }
  if (side == 5) {
    const Sum outer = rise[0] + rise[4], inner = rise[1] + rise[3], both = outer + 4 * inner;
    return {(smooth[0] - smooth[4]) + 2 * (smooth[1] - smooth[3]), both + 6 * rise[2]};
  }
  const Sum outer = rise[0] + rise[2];
  return {smooth[0] - smooth[2], kind == Gradient::Sobel    ? outer + 2 * rise[1]
                                 : kind == Gradient::Scharr ? 3 * outer + 10 * rise[1]
                                                            : outer + rise[1]};
}

// Squares of 16-bit integers leave 32 bits: they are compared as floats.
template <typename T>
auto gradientSquare(const GradientOf<T>& g) {
  if constexpr (sizeof(T) == 1) {
    return g.x * g.x + g.y * g.y;
  } else {
    const auto x = static_cast<float>(g.x), y = static_cast<float>(g.y);
    const float xx = x * x, yy = y * y;
    return xx + yy;
  }
}

template <typename T>
GradientOf<T> strongestGradient(Gradient kind, int side, const GradientImage& image, const T* value, int x,
                                int y) {
  GradientOf<T> best = gradientOf(kind, side, image, value, x, y, 0);
  for (int channel = 1; channel < image.channels; ++channel) {
    const GradientOf<T> other = gradientOf(kind, side, image, value, x, y, channel);
    if (gradientSquare<T>(other) > gradientSquare<T>(best)) best = other;
  }
  return best;
}

// D is what results are stored in.
template <typename D, typename T>
D gradientMagnitude(const GradientOf<T>& g, int norm) {
  if (norm == 2) return static_cast<D>(std::abs(g.x) + std::abs(g.y));
  const float root = std::sqrt(static_cast<float>(gradientSquare<T>(g)));
  return static_cast<D>(sizeof(T) == 1 ? std::nearbyint(root) : root);
}

inline double gradientAngle(double x, double y) { return x == 0 && y == 0 ? 0 : std::atan2(y, x); }

}  // namespace model
