// SPDX-License-Identifier: MIT
// Quotients of integers, in integers; of complex ones, in doubles; of floats, with the processor's own
// reciprocal.
#pragma once

#include <xmmintrin.h>

#include <cmath>
#include <cstdlib>
#include <type_traits>

#include "model/arithmetic/combine.hpp"
#include "model/arithmetic/mul.hpp"

namespace model {

enum class Round { TowardZero, NearestEven, HalfAway };

// Scale factors within which there is anything to divide.
struct DivisionLimits {
  int least, largest;
};
template <typename T>
constexpr DivisionLimits divisionLimits() {
  if (sizeof(T) == 1) return {-15, 8};
  return std::is_signed_v<T> ? DivisionLimits{-30, 15} : DivisionLimits{-31, 16};
}

// n / (d 2^s).
template <typename T>
T divide(T d, T n, int s, Round round = Round::NearestEven) {
  using Limits = std::numeric_limits<T>;
  constexpr DivisionLimits limits = divisionLimits<T>();
  const T extreme = n == 0 ? T{0} : (n < 0) != (d < 0) ? Limits::min() : Limits::max();
  if (d == 0 || s < limits.least) return extreme;
  if (s > limits.largest) return 0;
  const int64_t above = std::abs(int64_t{n}) << std::max(0, -s), below = std::abs(int64_t{d})
                                                                         << std::max(0, s);
  int64_t q = above / below;
  const int64_t twice = above % below * 2;
  if (round == Round::NearestEven && (twice > below || (twice == below && q % 2 != 0))) ++q;
  if (round == Round::HalfAway && twice >= below) ++q;
  if ((n < 0) != (d < 0)) q = -q;
  return static_cast<T>(std::clamp<int64_t>(q, Limits::min(), Limits::max()));
}

// Whether a division by it warns.
template <typename T>
bool warns(T d) {
  return d == 0 && !(std::is_floating_point_v<T> && std::signbit(static_cast<float>(d)));
}
template <typename T>
bool warns(Complex<T> d) {
  return d.re == 0 && d.im == 0;
}

inline float fromBits(uint32_t bits) {
  float x;
  std::memcpy(&x, &bits, sizeof x);
  return x;
}

inline float divide(float d, float n, int, Round = Round::NearestEven) {
  if (d == 0 && std::signbit(d)) return d;
  if (d == 0) {
    if (n == 0 || std::isnan(n)) return fromBits(0x7FBFFFFF);
    return std::copysign(std::numeric_limits<float>::infinity(), n);
  }
  const float r = _mm_cvtss_f32(_mm_rcp_ps(_mm_set1_ps(d)));
  const float e = 1 - d * r;
  const float q0 = n * r;
  const float q1 = q0 + q0 * e;
  return q0 + q1 * e;
}

inline Complex<float> divide(Complex<float> d, Complex<float> n, int, Round = Round::NearestEven) {
  if (warns(d)) return {fromBits(0x7FC00000), fromBits(0x7FC00000)};
  const double dr = d.re, di = d.im, nr = n.re, ni = n.im, m = 1 / (dr * dr + di * di);
  return {static_cast<float>((nr * dr + ni * di) * m), static_cast<float>((ni * dr - nr * di) * m)};
}

// A part of a quotient, before it is scaled.
template <typename T>
T scaledPart(double q, int s) {
  constexpr double low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max();
  if (sizeof(T) == 2 && s > 32) return 0;
  if (sizeof(T) == 2 && s < -32) return q == 0 ? T{0} : static_cast<T>(q < 0 ? low : high);
  const double scaled = std::clamp(std::ldexp(q, -std::clamp(s, -900, 900)), low, high);
  return static_cast<T>(std::lrint(scaled));
}

template <typename T>
Complex<T> divide(Complex<T> d, Complex<T> n, int s, Round = Round::NearestEven) {
  if (warns(d)) return {0, 0};
  const double dr = d.re, di = d.im, nr = n.re, ni = n.im, norm = dr * dr + di * di;
  return {scaledPart<T>((nr * dr + ni * di) / norm, s), scaledPart<T>((ni * dr - nr * di) / norm, s)};
}

// Constants; floats by a product with the reciprocal.
template <typename T>
bool isRefused(T d) {
  return d == 0;
}
template <typename T>
bool isRefused(Complex<T> d) {
  return warns(d);
}
inline bool isRefused(Complex<float> d) { return d.re * d.re + d.im * d.im == 0; }

template <typename T>
T divideByConstant(T d, T n, int s) {
  return divide(d, n, s);
}
inline float divideByConstant(float d, float n, int) { return n * (1 / d); }
inline Complex<float> divideByConstant(Complex<float> d, Complex<float> n, int) {
  const float m = 1 / (d.re * d.re + d.im * d.im);
  return multiply(Complex<float>{d.re * m, -(d.im * m)}, n, 0);
}

}  // namespace model
