// SPDX-License-Identifier: MIT
// Functions of one sample, sample by sample.
#pragma once

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>

#include "model/arithmetic/combine.hpp"

namespace model {

inline Lum16s absolute(Lum16s x, int) { return static_cast<Lum16s>(x == -32768 ? 32767 : x < 0 ? -x : x); }
inline Lum32f absolute(Lum32f x, int) { return std::copysign(x, 1.0F); }

template <typename T>
T square(T x, int s) {
  if constexpr (std::is_floating_point_v<T>)
    return x * x;
  else
    return scaled<T>(int64_t{x} * x, s);
}

// The largest k for which the exact root is above k - 1/2, or just there and k is even: (2k - 1)^2 against
// 4 x, times the power of four that makes both whole.
template <typename T>
T root(T x, int s) {
  if constexpr (std::is_floating_point_v<T>) {
    return std::sqrt(x);
  } else {
    if (x <= 0 || s > 9) return 0;  // 256 / 2^10 is far below a half
    if (s < -16) return std::numeric_limits<T>::max();
    const int64_t left = s > 0 ? int64_t{1} << 2 * s : 1,
                  right = s < 0 ? int64_t{4} * x << -2 * s : int64_t{4} * x;
    int64_t low = 0, high = std::numeric_limits<T>::max();
    while (low < high) {
      const int64_t k = (low + high + 1) / 2, square = (2 * k - 1) * (2 * k - 1) * left;
      if (square < right || (square == right && k % 2 == 0))
        low = k;
      else
        high = k - 1;
    }
    return static_cast<T>(low);
  }
}

template <typename T>
T limitedTo(double x) {
  return static_cast<T>(std::min(x, double{std::numeric_limits<T>::max()}));
}

// The factors that matter are far from these, and their powers of two are numbers.
inline int bounded(int s) { return std::clamp(s, -1000, 1000); }

// In floats the stated steps, each rounded; their error is tested elsewhere.
inline Lum32f logarithm(Lum32f x) {
  if (std::isnan(x) || x < 0) return std::numeric_limits<Lum32f>::quiet_NaN();
  if (x == 0) return -std::numeric_limits<Lum32f>::infinity();
  if (std::isinf(x)) return x;
  int exponent = 0;
  Lum32f m = 2 * std::frexp(x, &exponent);
  --exponent;
  if (m > 1.41421356F) m /= 2, ++exponent;
  const auto k = static_cast<Lum32f>(exponent);
  const Lum32f f = m - 1, s = f / (2 + f), z = s * s;
  const Lum32f p = z * 0.666667726F + (z * z) * (0.399779074F + z * 0.298634446F);
  return k * 0.693145752F + (f - (s * (f - p) - k * 1.42860677e-06F));
}

template <typename T>
T logarithm(T x, int s) {
  if constexpr (std::is_floating_point_v<T>)
    return logarithm(x);
  else
    return x > 0 ? limitedTo<T>(std::ldexp(std::log(static_cast<double>(x)), -bounded(s)) + 0.5) : T{0};
}

inline Lum32f exponential(Lum32f x) {
  if (std::isnan(x)) return x;
  if (x > 89) return std::numeric_limits<Lum32f>::infinity();
  if (x < -104) return 0;
  const Lum32f n = std::nearbyint(x * 1.44269504F);
  const Lum32f high = x - n * 0.693145752F, low = n * 1.42860677e-06F, r = high - low;
  const Lum32f square = r * r;
  const Lum32f p = (0.5F + 1.66665188e-01F * r) +
                   square * ((4.16662057e-02F + 8.36889178e-03F * r) + square * 1.39504953e-03F);
  const Lum32f power = ((p * square - low) + high) + 1;
  return std::ldexp(power, static_cast<int>(n));
}

// e^x 2^-s as e^(x - s ln 2), since the power itself may be no number; of 0 it is 2^-s.
template <typename T>
T exponential(T x, int s) {
  if constexpr (std::is_floating_point_v<T>) {
    return exponential(x);
  } else {
    using Wide = long double;
    if (x == 0) return limitedTo<T>(std::nearbyint(std::ldexp(1.0, -bounded(s))));
    const Wide power = std::exp(static_cast<Wide>(x) - s * 0.693147180559945309417232121458176568L);
    return limitedTo<T>(static_cast<double>(std::nearbyint(std::min<Wide>(power, 1e9L))));
  }
}

inline Lum32s signAndMagnitude(Lum32s x) {
  const int64_t magnitude = x < 0 ? -int64_t{x} : int64_t{x};
  return static_cast<Lum32s>(static_cast<uint32_t>(magnitude) | (x < 0 ? 0x80000000u : 0u));
}

// The warning of a sample, if any.
template <typename T>
LumStatus rootStatus(T x) {
  return x < 0 ? lumStatusSqrtOfNegative : lumStatusOk;
}
template <typename T>
LumStatus logarithmStatus(T x) {
  if constexpr (std::is_floating_point_v<T>)
    return x == 0 ? lumStatusLogSingularity : x < 0 ? lumStatusLogDomain : lumStatusOk;
  else
    return x <= 0 ? lumStatusLogOfZero : lumStatusOk;
}

// All colour samples; the first row with a warning decides, and in it the lowest one.
template <typename T, typename Function, typename Warning>
LumStatus unary(Image src, Image dst, LumiSize roi, Channels channels, Function f, Warning warning) {
  LumStatus first = lumStatusOk;
  for (int y = 0; y < roi.height; ++y) {
    LumStatus ofRow = lumStatusOk;
    for (int x = 0; x < roi.width; ++x)
      for (int c = 0; c < channels.moved; ++c) {
        const int i = x * channels.dst + c;
        const T sample = load<T>(src.row(y), i);
        store<T>(dst.row(y), i, f(sample));
        const LumStatus status = warning(sample);
        if (ofRow == lumStatusOk || (status != lumStatusOk && status < ofRow)) ofRow = status;
      }
    if (first == lumStatusOk) first = ofRow;
  }
  return first;
}

// Steps rounded down to whole samples.
inline Image wholeSteps(Image image, int sampleBytes) {
  return {image.first, image.step / sampleBytes * sampleBytes};
}

}  // namespace model
