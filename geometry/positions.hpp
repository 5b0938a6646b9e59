// SPDX-License-Identifier: MIT
// Positions of a resize in the source, computed in double precision as rounding to nearest has it, whatever
// the caller's control register says: a query, an Init and a run may find it in different states, and have to
// agree on every pixel. No value is denormal.
#pragma once

#include <cmath>
#include <cstdint>
#include <cstring>

#include "frame/rounding_control.hpp"
#include "kernels/geometry/resize_linear.hpp"

namespace lumi {

inline constexpr double kBelowTie =
    1e-10;  // what the nearest pixel takes off, so that ties go to the lower one
inline constexpr double kQ14Slack = 1e-7;  // what a weight gets before it is truncated

// The two source pixels between which a position lies: the first one's index, and how far the position is on
// its way to the second one.
struct Between {
  double index, fraction;
};

// The formulas, in a thread that rounds to nearest. Neither x nor i is negative.
class Positions {
 public:
  Positions(int32_t src, int32_t dst) : ratio_(static_cast<double>(src) / static_cast<double>(dst)) {}

  double product(int32_t x) const { return x * ratio_; }
  int32_t nearest(int32_t i) const { return static_cast<int32_t>((i + 0.5) * ratio_ - kBelowTie); }
  Between between(int32_t i) const {
    const double position = (i + 0.5) * ratio_ - 0.5, index = std::floor(position);
    return {index, position - index};
  }
  static float asFloat(double fraction) { return static_cast<float>(fraction); }
  static uint16_t asQ14(double fraction) { return static_cast<uint16_t>(fraction * kQ14 + kQ14Slack); }

 private:
  double ratio_;
};

// The same in a thread that rounds in any direction. What is not exact is rounded by integers; all other
// operations on doubles are exact in every mode.
class ExactPositions {
 public:
  ExactPositions(int32_t src, int32_t dst);

  double product(int32_t x) const { return product(static_cast<uint32_t>(x), shift_); }
  int32_t nearest(int32_t i) const;
  Between between(int32_t i) const;
  static float asFloat(double fraction);
  static uint16_t asQ14(double fraction);

 private:
  double centre(int32_t i) const { return product(2 * static_cast<uint32_t>(i) + 1, shift_ + 1); }
  double product(uint32_t n, int shift) const;

  uint64_t mantissa_;  // from 2^52 on; the ratio is mantissa / 2^shift
  int shift_;
};

// Calls use(positions) with the ones that the thread's rounding mode wants.
template <typename Use>
auto withPositions(int32_t src, int32_t dst, const Use& use) {
  return roundsToNearest() ? use(Positions(src, dst)) : use(ExactPositions(src, dst));
}

}  // namespace lumi
