// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>
#include <limits>
#include <type_traits>

#include "model/access.hpp"
#include "model/statistics/float_sum.hpp"

namespace model {

enum class Norm { Inf, L1, L2 };

// One image, the differences of two.
struct OfOne {
  Image image;

  template <typename V, typename T>
  V at(int y, int i) const {
    return static_cast<V>(load<T>(image.row(y), i));
  }
};
struct OfDifferences {
  Image first, second;

  template <typename V, typename T>
  V at(int y, int i) const {
    return static_cast<V>(static_cast<V>(load<T>(first.row(y), i)) -
                          static_cast<V>(load<T>(second.row(y), i)));
  }
};

template <typename Visit>
void forEach(LumiSize roi, int stored, int c, Visit visit) {
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x) visit(y, x * stored + c);
}

// Of integers, before a root.
template <typename T, typename Of>
uint64_t exactTotal(Norm norm, const Of& of, LumiSize roi, int stored, int c) {
  uint64_t total = 0;
  forEach(roi, stored, c, [&](int y, int i) {
    const auto x = static_cast<uint64_t>(std::llabs(of.template at<int64_t, T>(y, i)));
    if (norm == Norm::Inf)
      total = x > total ? x : total;
    else
      total += norm == Norm::L1 ? x : x * x;
  });
  return total;
}

template <typename Of>
float largestFloat(const Of& of, LumiSize roi, int stored, int c) {
  float largest = 0;
  forEach(roi, stored, c, [&](int y, int i) {
    const float x = std::fabs(of.template at<float, Lum32f>(y, i));
    if (x > largest) largest = x;
  });
  return largest;
}

// Sums of floats in numbers of type V, before a root.
template <typename V, typename Of>
Interval floatTotal(Norm norm, const Of& of, LumiSize roi, int stored, int c) {
  FloatSum sum;
  forEach(roi, stored, c, [&](int y, int i) {
    const long double x = std::fabs(of.template at<V, Lum32f>(y, i));
    sum.add(norm == Norm::L1 ? x : x * x);
  });
  return sum.inPrecision(precisionOf<V>());
}

// Whether a sum of magnitudes or squares in numbers of type V is zero: all of them are.
template <typename V>
bool isZero(Norm norm, const OfOne& of, LumiSize roi, int stored, int c) {
  bool zero = true;
  forEach(roi, stored, c, [&](int y, int i) {
    const V x = of.at<V, Lum32f>(y, i), square = x * x;
    zero &= (norm == Norm::L2 ? square : x) == 0;
  });
  return zero;
}

inline Interval rootOf(const Interval& x) { return {std::sqrt(x.low), std::sqrt(x.high)}; }
inline Interval quotientOf(const Interval& x, const Interval& y) {
  constexpr long double infinity = std::numeric_limits<long double>::infinity();
  const bool isNaN = std::isnan(x.low) || std::isnan(y.low) || (std::isinf(x.low) && std::isinf(y.low));
  if (isNaN) return {NAN, NAN};
  if (std::isinf(x.high) && std::isinf(y.high)) return {-infinity, infinity};  // may be no number
  return {x.low / y.high, y.low == 0 ? infinity : x.high / y.low};
}

}  // namespace model
