// SPDX-License-Identifier: MIT
#pragma once

#include <type_traits>

#include "model/transforms/complex.hpp"

namespace model {

template <typename T>
T magnitude(T re, T im, int s) {
  if constexpr (std::is_floating_point_v<T>) {
    const T squares = re * re + im * im;
    return std::sqrt(squares);
  } else if constexpr (sizeof(T) == 4) {
    const double x = re, y = im;
    return scaledAndLimited<T>(std::sqrt(x * x + y * y), s);
  } else {
    const long double x = re, y = im;
    return scaledAndLimited<T>(std::sqrt(x * x + y * y), s);
  }
}

}  // namespace model
