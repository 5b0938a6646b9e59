// SPDX-License-Identifier: MIT
// The operations of addition and subtraction, on real samples: complex ones are rows of their parts.
#pragma once

#include "kernels/arithmetic/combine.hpp"

namespace lumi {

// a + b.
struct Add {};
// b - a: the first operand is subtracted from the second. Unsigned differences below zero count as zero
// before they are scaled.
struct Sub {};

}  // namespace lumi
