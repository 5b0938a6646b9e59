// SPDX-License-Identifier: MIT
// Addition and subtraction of images, and of an image and a constant.
#include "lumi/add_sub.h"

#include "arithmetic/combine.hpp"
#include "kernels/arithmetic/add_sub.hpp"

namespace lumi {

// A half of the largest sum is at most 2^(s-1) at the scale factor s, and a tie goes to zero. Complex samples
// are combined by their parts.
template <>
struct Operation<Add> : ScaledOperation<Operation<Add>> {
  template <typename T>
  static constexpr int kLargestScale = std::numeric_limits<Component<T>>::digits + 1;
  template <typename T>
  using Sample = Component<T>;

  // Sums of unsigned samples are all at the maximum where a factor shifts every bit out of a constant that is
  // not zero.
  template <typename T>
  static Outcome outcome(T value, int scaleFactor) {
    if (value == 0) return scaleFactor == 0 ? Outcome::Copied : Outcome::Combined;
    const bool shiftedOut = scaleFactor <= -std::numeric_limits<T>::digits;
    return std::is_unsigned_v<T> && shiftedOut ? Outcome::AllLargest : Outcome::Combined;
  }
};

// Unsigned differences are a bit less than sums.
template <>
struct Operation<Sub> : ScaledOperation<Operation<Sub>> {
  template <typename T>
  static constexpr int kLargestScale = std::numeric_limits<Component<T>>::digits +
                                       (std::is_signed_v<Component<T>> ? 1 : 0);
  template <typename T>
  using Sample = Component<T>;

  template <typename T>
  static Outcome outcome(T value, int scaleFactor) {
    return value == 0 && scaleFactor == 0 ? Outcome::Copied : Outcome::Combined;
  }
};

}  // namespace lumi

using namespace lumi;
#include "bind/add_sub.inc"
