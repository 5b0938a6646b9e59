// SPDX-License-Identifier: MIT
// What the frame has to know of multiplication, which division by constants uses too.
#pragma once

#include "arithmetic/combine.hpp"
#include "kernels/arithmetic/mul.hpp"

namespace lumi {

// A half of the largest product, 2^(2 d) of signed samples of d bits, is a tie that goes to zero at the scale
// factor 2 d + 1; of unsigned samples the product is less. An imaginary part may be twice as large. That of
// 32-bit parts has a stated limit below its own.
template <>
struct Operation<Mul> : ScaledOperation<Operation<Mul>> {
  template <typename T>
  static constexpr int kLargestScale =
      std::is_same_v<T, Lum32sc> ? 32 : 2 * std::numeric_limits<Component<T>>::digits + kComponents<T> - 1;
  template <typename T>
  using Sample = std::conditional_t<kComponents<T> == 1, T, Complex<Component<T>>>;

  template <typename T>
  static Outcome outcome(T value, int scaleFactor) {
    if (value == 0) return Outcome::AllZero;
    return value == 1 && scaleFactor == 0 ? Outcome::Copied : Outcome::Combined;
  }
};

}  // namespace lumi
