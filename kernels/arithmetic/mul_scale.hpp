// SPDX-License-Identifier: MIT
// Multiplication of fractions of full scale.
#pragma once

#include "kernels/arithmetic/combine.hpp"

namespace lumi {

// a * b / m, rounded down, where m is the largest sample.
struct MulScale {};

}  // namespace lumi
