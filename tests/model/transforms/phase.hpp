// SPDX-License-Identifier: MIT
// Phases of 16-bit integers by the arc tangent of long doubles, of which no tie is near enough to matter. Of
// floats and 32-bit integers the steps are those that are told, since the last bits follow from them; how
// near they come to the arc tangent is a test of its own.
#pragma once

#include <type_traits>

#include "model/transforms/complex.hpp"

namespace model {

inline float angle(float y, float x) {
  if (std::isnan(x) || std::isnan(y)) return std::numeric_limits<float>::quiet_NaN();
  const float width = std::fabs(x), height = std::fabs(y);
  const float large = std::max(width, height), small = std::min(width, height);
  const float q = large == 0 ? 0 : std::isinf(small) ? 1 : small / large;
  constexpr float p[] = {-0.333332991F, 0.199985483F,   -0.142642422F, 0.109521891F,   -0.0840345994F,
                         0.0579577494F, -0.0311779895F, 0.0109146765F, -0.00179363623F};
  const float z = q * q, w = z * z;
  const float lower = (p[0] + z * p[1]) + w * (p[2] + z * p[3]);
  const float upper = (p[4] + z * p[5]) + w * (p[6] + z * p[7]);
  const float sum = lower + (w * w) * (upper + (w * w) * p[8]);
  const float arc = q + (q * z) * sum;
  const bool isSteep = height > width, isLeft = std::signbit(x);
  const float turns = isSteep ? 1.0F : isLeft ? 2.0F : 0.0F;
  const float turned = isSteep != isLeft ? -arc : arc;
  const float result = turns * 1.57079637F + (turned + turns * -4.37113883e-08F);
  return std::copysign(result, y);
}

inline double angle(double y, double x) {
  const double width = std::fabs(x), height = std::fabs(y);
  const double large = std::max(width, height), small = std::min(width, height);
  const bool isNear = small > large * 0.41421356237309503;
  const double q = large == 0 ? 0 : isNear ? (small - large) / (large + small) : small / large;
  constexpr double p[] = {-0.33333333333333198, 0.19999999999953239,   -0.14285714280165923,
                          0.11111110782134842,  -0.090908977249047951, 0.076920597141341751,
                          -0.06663099188733676, 0.058478592730227333,  -0.050391907381749,
                          0.038062152484479098, -0.017905055732281228};
  const double z = q * q, w = z * z;
  double even = p[10], odd = p[9];
  for (int i = 8; i >= 0; i -= 2) even = even * w + p[i];
  for (int i = 7; i >= 1; i -= 2) odd = odd * w + p[i];
  double arc = q + (q * z) * (even + z * odd), eighths = isNear ? 1 : 0;
  if (height > width) arc = -arc, eighths = 2 - eighths;
  if (x < 0) arc = -arc, eighths = 4 - eighths;
  const double result = eighths * 0.78539816339744828 + (arc + eighths * 3.0616169978683829e-17);
  return y < 0 ? -result : result;
}

template <typename T>
T phase(T re, T im, int s) {
  if constexpr (std::is_floating_point_v<T>)
    return angle(im, re);
  else if constexpr (sizeof(T) == 4)
    return scaledAndLimited<T>(angle(static_cast<double>(im), static_cast<double>(re)), s);
  else
    return scaledAndLimited<T>(std::atan2(static_cast<long double>(im), static_cast<long double>(re)), s);
}

}  // namespace model
