// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

#include "model/access.hpp"

namespace model {

template <typename D>
D limited(double x) {
  if (x < std::numeric_limits<D>::min()) return std::numeric_limits<D>::min();
  if (x > std::numeric_limits<D>::max()) return std::numeric_limits<D>::max();
  return static_cast<D>(x);
}

// The same value, limited to D; to floats by the rounding control, once: every sample is exact in double.
template <typename S, typename D>
D converted(S x) {
  if (std::numeric_limits<D>::is_integer) return limited<D>(static_cast<double>(x));
  return static_cast<D>(static_cast<double>(x));
}

// To an integer. 0 truncates, 1 goes to the nearest, ties to the even one, anything else to the nearest, ties
// away from zero.
inline double rounded(double x, int mode) {
  const double low = std::floor(std::fabs(x)), rest = std::fabs(x) - low;
  const bool isOdd = std::floor(low / 2) * 2 != low;
  const bool up = mode == 0 ? false : mode == 1 ? rest > 0.5 || (rest == 0.5 && isOdd) : rest >= 0.5;
  return std::copysign(low + (up ? 1 : 0), x);
}

// 1 doubled -s times, or halved s times: beyond a thousand it is infinity or 0 for long.
inline float floatFactor(int s) { return std::ldexp(1.0F, -std::clamp(s, -1000, 1000)); }

template <typename D>
D convertedFloat(float x, int mode, int scaleFactor) {
  if (scaleFactor != 0) x *= floatFactor(scaleFactor);
  if (std::isnan(x)) return std::numeric_limits<D>::min();
  return limited<D>(rounded(static_cast<double>(x), mode));
}

// Beyond these scale factors all is zero, or every sample but 0 reaches a limit.
struct ScaleLimits {
  const char* types;
  int zeroAbove, extremeBelow;
};
inline constexpr ScaleLimits kScaleLimits[] = {
    {"8u8s", 8, -6},     {"16s8s", 17, -6},   {"16u8s", 15, -6},   {"16u16s", 16, -14},
    {"32s16s", 32, -14}, {"32s16u", 33, -14}, {"32u8s", 15, -6},   {"32u8u", 15, -6},
    {"32u16s", 31, -15}, {"32u16u", 33, -15}, {"32u32s", 32, -30},
};

template <typename S, typename D>
D convertedScaled(S sample, int mode, int scaleFactor, ScaleLimits limits) {
  const int64_t x = sample;
  const int64_t lowest = std::numeric_limits<D>::min(), highest = std::numeric_limits<D>::max();
  int64_t result;
  if (scaleFactor > limits.zeroAbove) {
    result = 0;
  } else if (scaleFactor < limits.extremeBelow) {
    result = x > 0 ? highest : x < 0 ? lowest : 0;
  } else if (scaleFactor <= 0) {
    result = x * (int64_t{1} << -scaleFactor);
  } else {
    const int64_t magnitude = x < 0 ? -x : x, half = int64_t{1} << (scaleFactor - 1);
    int64_t quotient;
    if (mode == 0)
      quotient = magnitude >> scaleFactor;
    else if (mode == 1)
      quotient = (magnitude + half - 1 + ((magnitude >> scaleFactor) & 1)) >> scaleFactor;
    else
      quotient = (magnitude + half) >> scaleFactor;
    result = x < 0 ? -quotient : quotient;
  }
  return static_cast<D>(result < lowest ? lowest : result > highest ? highest : result);
}

// Makes the first samples of every pixel with convert(sample); its other samples stay.
template <typename S, typename D, typename Convert>
void convertImage(Image src, Image dst, LumiSize roi, Channels channels, Convert convert) {
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x)
      for (int c = 0; c < channels.moved; ++c)
        store<D>(dst.row(y), x * channels.dst + c, convert(load<S>(src.row(y), x * channels.src + c)));
}

}  // namespace model
