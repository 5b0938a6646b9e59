// SPDX-License-Identifier: MIT
// The operations of division: b / a, the first operand divides. A zero that divides an integer gives the
// limit of the type on the side of b, and 0 for 0.
#pragma once

#include "kernels/arithmetic/combine.hpp"

namespace lumi {

// Rounded by the vector unit's rounding control; samples that are divided by zero are marked.
struct Div {};
// The same, rounded as the division says.
struct DivRound {};

// The exact quotient times 2^exponent, and how it becomes an integer.
struct Division {
  enum Mode { TowardZero, NearestEven, HalfAway };
  int exponent = 0;
  Mode mode = NearestEven;
};

template <>
struct Choice<Div> {
  using Type = Division;
};
template <>
struct Choice<DivRound> {
  using Type = Division;
};

}  // namespace lumi
