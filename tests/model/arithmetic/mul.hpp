// SPDX-License-Identifier: MIT
#pragma once

#include <type_traits>

#include "model/arithmetic/combine.hpp"

namespace model {

template <typename T>
T multiply(T a, T b, int s) {
  if constexpr (std::is_floating_point_v<T>)
    return a * b;
  else
    return scaled<T>(int64_t{a} * b, s);
}

template <typename T>
Complex<T> multiply(Complex<T> a, Complex<T> b, int s) {
  if constexpr (std::is_floating_point_v<T>) {
    return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
  } else {
    if (sizeof(T) == 4 && s > 32) return {0, 0};  // a stated limit
    const int64_t first = int64_t{a.re} * b.im, second = int64_t{a.im} * b.re;
    // Their sum, 2^63, is the one that 64 bits do not hold. Up to the limit it is too large for every T.
    const bool beyond = first == second && first == int64_t{1} << 62;
    return {scaled<T>(int64_t{a.re} * b.re - int64_t{a.im} * b.im, s),
            beyond ? std::numeric_limits<T>::max() : scaled<T>(first + second, s)};
  }
}

}  // namespace model
