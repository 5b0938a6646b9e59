// SPDX-License-Identifier: MIT
// The functions of reductions to norms.
#pragma once

#include <type_traits>

#include "kernels/simd/elementary.hpp"

namespace lumi::simd {

// |x| of integers, and that of their differences, in the same bytes without a sign.
struct Magnitude {
  template <typename T>
  auto operator()(Samples16<T> x) const {
    if constexpr (std::is_signed_v<T>)
      return magnitude(x);
    else
      return x;
  }
  template <typename V>
  V operator()(V x) const {
    return magnitude(x);
  }
};
struct Distance {
  template <typename T>
  auto operator()(Samples16<T> a, Samples16<T> b) const {
    return as<std::make_unsigned_t<T>>(max(a, b) - min(a, b));
  }
  template <typename V>
  V operator()(V a, V b) const {
    return magnitude(a - b);
  }
};

// What the functions make of samples T.
template <typename T>
struct MagnitudeType {
  using Type = std::make_unsigned_t<T>;
};
template <>
struct MagnitudeType<float> {
  using Type = float;
};
template <typename T>
using MagnitudeOf = typename MagnitudeType<T>::Type;

}  // namespace lumi::simd
