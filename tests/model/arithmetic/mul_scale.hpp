// SPDX-License-Identifier: MIT
#pragma once

#include <limits>

#include "model/arithmetic/combine.hpp"

namespace model {

// Of fractions of the largest sample, rounded down.
template <typename T>
T multiplyFractions(T a, T b) {
  return static_cast<T>(uint64_t{a} * b / std::numeric_limits<T>::max());
}

}  // namespace model
