// SPDX-License-Identifier: MIT
// The operation of multiplication.
#pragma once

#include "kernels/arithmetic/combine.hpp"

namespace lumi {

// a * b.
struct Mul {};

// A complex sample, whose parts are not made apart.
template <typename T>
struct Complex {
  T real, imaginary;
};

}  // namespace lumi
