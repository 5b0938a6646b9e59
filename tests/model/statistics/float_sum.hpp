// SPDX-License-Identifier: MIT
// Where a sum of floats may lie that is made in any order.
#pragma once

#include <algorithm>
#include <cmath>
#include <limits>

namespace model {

// NaN if low is.
struct Interval {
  long double low, high;
};

// Numbers that are rounded to nearest: half a unit in the last place of 1, half the smallest number, and the
// largest.
struct Precision {
  long double roundoff, underflow, largest;
};
template <typename T>
Precision precisionOf() {
  using Limits = std::numeric_limits<T>;
  return {Limits::epsilon() / 2, Limits::denorm_min() / 2.0L, Limits::max()};
}

// Terms to 64 bits, and what their sum comes to where each term is rounded, and each addition.
class FloatSum {
 public:
  void add(long double term) {
    sum_ += term;
    if (std::isfinite(term)) magnitudes_ += std::fabs(term);
    mixed_ |= term < 0;
    ++count_;
  }
  // A sum of n numbers, in any order, is right within (n - 1) u times the sum of their magnitudes, to the
  // first order; the terms add u of their own, or half of the smallest number where they are below the
  // normal ones. The sum that is kept here is right within n 2^-64 such parts. Beyond the largest number a
  // sum of one sign is infinite, one of both signs anything.
  Interval inPrecision(const Precision& p) const {
    if (std::isnan(sum_)) return {sum_, sum_};
    constexpr long double infinity = std::numeric_limits<long double>::infinity();
    const long double bound = (count_ + 2) * p.roundoff * magnitudes_ + count_ * p.underflow;
    if (mixed_ && magnitudes_ + bound >= p.largest) return {-infinity, infinity};
    const auto limited = [&](long double x) { return x > p.largest ? infinity : x; };
    const Interval all{limited(sum_ - bound), limited(sum_ + bound)};
    return mixed_ ? all : Interval{std::max(all.low, 0.0L), all.high};
  }

 private:
  long double sum_ = 0, magnitudes_ = 0;
  int count_ = 0;
  bool mixed_ = false;
};

}  // namespace model
