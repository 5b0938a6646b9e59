// SPDX-License-Identifier: MIT
// Sines and cosines by the steps that are told, since their last bits follow from them; how near they come to
// what is right is a test of its own.
#pragma once

#include <cstdint>
#include <type_traits>

#include "model/transforms/complex.hpp"

namespace model {

// What an angle leaves of whole right angles.
struct Turned {
  float rest;
  int quarters;
};

// |angle| 2 / pi modulo 4, in units of 2^-62: the product of a float's 24 bits and 96 bits of 2 / pi, bit by
// bit.
inline Turned turnedFarFromZero(float angle) {
  constexpr uint32_t kTwoOverPi[] = {0xA2F9836E, 0x4E441529, 0xFC2757D1, 0xF534DDC0,
                                     0xDB629599, 0x3C439041, 0xFE5163AB};
  if (!std::isfinite(angle)) return {std::numeric_limits<float>::quiet_NaN(), 0};
  int exponent = 0;
  const auto mantissa = static_cast<uint64_t>(std::ldexp(std::frexp(std::fabs(angle), &exponent), 24));
  const int unit = exponent - 24;  // the lowest bit of the mantissa is 2^unit
  uint64_t high = 0;
  uint32_t low = 0;
  for (int place = 1 + unit; place > unit - 95; --place) {
    // The bit of the product of place 2^(1 - k), k from 0 to 95, takes that of 2 / pi of place 2^(1 - k -
    // unit).
    const int k = 1 + unit - place, bit = unit - 2 + k;
    if (bit < 0 || ((kTwoOverPi[bit / 32] >> (31 - bit % 32)) & 1) == 0) continue;
    const int shift = 95 - k;
    const uint64_t sum = uint64_t{low} + (shift < 32 ? static_cast<uint32_t>(mantissa << shift) : 0U);
    low = static_cast<uint32_t>(sum);
    high += (sum >> 32) + (shift < 32 ? mantissa >> (32 - shift) : mantissa << (shift - 32));
  }
  const auto quarters = static_cast<int>((high + (uint64_t{1} << 61)) >> 62);
  const auto rest = static_cast<int64_t>(high - (static_cast<uint64_t>(quarters) << 62));
  const auto radians = static_cast<float>(static_cast<double>(rest) * std::ldexp(1.5707963267948966, -62));
  return angle < 0 ? Turned{-radians, -quarters} : Turned{radians, quarters};
}

inline Turned turned(float angle) {
  if (!(std::fabs(angle) < 1048576)) return turnedFarFromZero(angle);
  const double x = angle, n = std::nearbyint(x * 0.63661977236758138);
  return {static_cast<float>((x - n * 1.5707963267341256) - n * 6.0771005065061922e-11), static_cast<int>(n)};
}

inline float cosineOfTurned(Turned t) {
  const float r = t.rest, z = r * r;
  const float sine = r + (r * z) * (-0.166666546F + z * (0.00833216076F + z * -0.00019515283F));
  const float cosine =
      (1 - z * 0.5F) + (z * z) * (0.0416666457F + z * (-0.00138873163F + z * 2.44331584e-05F));
  const float results[] = {cosine, -sine, -cosine, sine};
  return results[t.quarters & 3];
}

inline float cosine(float angle) { return cosineOfTurned(turned(angle)); }
inline float sine(float angle) {
  const Turned t = turned(angle);
  return cosineOfTurned({t.rest, t.quarters - 1});
}

// Floats stay; integers are scaled and limited, and NaNs make the least one.
template <typename T>
T partOf(float x, int s) {
  if constexpr (std::is_floating_point_v<T>)
    return x;
  else if (std::isnan(x))
    return std::numeric_limits<T>::min();
  else
    return scaledAndLimited<T>(static_cast<double>(x), s);
}

template <typename T>
void polarToCart(Image magnitude, Image phase, Image dst, LumiSize roi, int channels, int s) {
  for (int y = 0; y < roi.height; ++y)
    for (int i = 0; i < roi.width * channels; ++i) {
      const float m = load<float>(magnitude.row(y), i), p = load<float>(phase.row(y), i);
      store<T>(dst.row(y), 2 * i, partOf<T>(m * cosine(p), s));
      store<T>(dst.row(y), 2 * i + 1, partOf<T>(m * sine(p), s));
    }
}

}  // namespace model
