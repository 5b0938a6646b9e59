// SPDX-License-Identifier: MIT
#pragma once

#include <type_traits>

#include "model/arithmetic/combine.hpp"

namespace model {

template <typename T>
T add(T a, T b, int s) {
  if constexpr (std::is_floating_point_v<T>)
    return a + b;
  else
    return scaled<T>(int64_t{a} + b, s);
}

// The first operand from the second; below zero counts as zero in unsigned types.
template <typename T>
T subtract(T a, T b, int s) {
  if constexpr (std::is_floating_point_v<T>)
    return b - a;
  else if constexpr (std::is_unsigned_v<T>)
    return scaled<T>(std::max<int64_t>(0, int64_t{b} - a), s);
  else
    return scaled<T>(int64_t{b} - a, s);
}

}  // namespace model
