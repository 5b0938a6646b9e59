// SPDX-License-Identifier: MIT
// The functions of addition and subtraction, for each way of scaling.
#pragma once

#include "kernels/arithmetic/add_sub.hpp"
#include "kernels/arithmetic/combine_functions.hpp"

namespace lumi::simd {

// An exact sum or difference x, which may have a bit more than the samples: half of it, rounded down for
// signed samples and up for unsigned ones, and a word whose last bit tells whether x is odd.
template <typename T>
struct Exact {
  Samples<T> half, odd;
};

template <typename Op>
struct Combine;

template <>
struct Combine<Add> {
  template <typename T>
  static Samples<T> saturated(Samples<T> a, Samples<T> b) {
    return addSaturated(a, b);
  }
  template <typename T>
  static Exact<T> exact(Samples<T> a, Samples<T> b) {
    if constexpr (std::is_signed_v<T>)
      return {(a & b) + shiftRight<1>(a ^ b), a ^ b};
    else
      return {averageUp(a, b), a ^ b};
  }
  template <typename V>
  static V ofFloats(V a, V b) {
    return a + b;
  }
};

template <>
struct Combine<Sub> {
  template <typename T>
  static Samples<T> saturated(Samples<T> a, Samples<T> b) {
    return subSaturated(b, a);
  }
  template <typename T>
  static Exact<T> exact(Samples<T> a, Samples<T> b) {
    if constexpr (std::is_signed_v<T>) {
      return {shiftRight<1>(a ^ b) - andNot(b, a), a ^ b};
    } else {
      const Samples<T> difference = subSaturated(b, a);
      return {averageUp(difference, broadcast<T>(0)), difference};
    }
  }
  template <typename V>
  static V ofFloats(V a, V b) {
    return b - a;
  }
};

template <typename Op, typename T>
struct Saturated {
  static constexpr bool kStoresBind = true;
  Samples<T> operator()(Samples<T> a, Samples<T> b) const { return Combine<Op>::saturated(a, b); }
};

template <typename Op>
struct Saturated<Op, float> {
  template <typename V>
  V operator()(V a, V b) const {
    return Combine<Op>::ofFloats(a, b);
  }
};

// x / 2: of the two neighbours of a half the even one. Only a signed difference can leave the type, as
// (2^n - 1) / 2 rounded up.
template <typename Op, typename T>
struct Halved {
  Samples<T> operator()(Samples<T> a, Samples<T> b) const {
    const Exact<T> x = Combine<Op>::exact(a, b);
    const Samples<T> wrong = x.half & x.odd & broadcast<T>(1);
    if constexpr (std::is_signed_v<T>)
      return addSaturated(x.half, wrong);
    else
      return x.half - wrong;
  }
};

template <typename Op, typename T, bool isSigned = std::is_signed_v<T>>
struct Divided;

// x / 2^s for s >= 2, unsigned. With u = x / 2 rounded up, (x + 2^(s-1) - 1 + q) >> s is
// (u + 2^(s-2) - 1 + e) >> (s - 1), where q is the last bit of x >> s and e is q where x is even, else 0; for
// an even x, q is bit s - 1 of u. The sum may need a bit more than the type: the rounding-up average of u - 1
// and the rest is its half. (At u = 0 the average comes out one too large before the last shift, which drops
// it.)
template <typename Op, typename T>
struct Divided<Op, T, false> {
  Shift toLast;
  RightShift<T> rest;
  Samples<T> bias, last;  // no bit where the type has none so high

  explicit Divided(int s)
      : toLast(s - 1),
        rest(s - 2),
        bias(broadcast(static_cast<T>((uint32_t{1} << (s - 2)) - 1))),
        last(broadcast(static_cast<T>(s <= std::numeric_limits<T>::digits))) {}

  Samples<T> operator()(Samples<T> a, Samples<T> b) const {
    const Samples<T> one = broadcast<T>(1);
    const Exact<T> x = Combine<Op>::exact(a, b);
    const Samples<T> tieUp = andNot(x.odd, shiftedAsWords(x.half, toLast)) & last;
    return rest(averageUp(subSaturated(x.half, one), bias + tieUp));
  }
};

// Signed: q is the floor, and what remains decides. Of the remainder, the half's low s - 1 bits count in
// full, and an odd x only tells a tie from more than a tie. It rounds up above half, and at half if q is odd:
// low + (x odd or q odd) > 2^(s-2). No step leaves the type, whose bits are at least s.
template <typename Op, typename T>
struct Divided<Op, T, true> {
  Shift shift;
  Samples<T> low, aboveHalf;

  explicit Divided(int s)
      : shift(s - 1),
        low(broadcast(static_cast<T>((uint32_t{1} << (s - 1)) - 1))),
        aboveHalf(broadcast(static_cast<T>((uint32_t{1} << (s - 2)) + 1))) {}

  Samples<T> operator()(Samples<T> a, Samples<T> b) const {
    const Exact<T> x = Combine<Op>::exact(a, b);
    const Samples<T> q = x.half >> shift;
    const Samples<T> tieUp = (x.odd | q) & broadcast<T>(1);
    return q - isAtLeast(x.half & low, aboveHalf - tieUp);  // all ones is -1
  }
};

template <typename Op, typename T>
struct SumFunctions {
  template <typename Run>
  [[gnu::always_inline]] static void choose(Scaling scaling, const Run& run) {
    if constexpr (std::is_same_v<T, float>) {
      run(Saturated<Op, T>());
    } else {
      switch (scaling.path) {
        case Scaling::Saturate:
          return run(Saturated<Op, T>());
        case Scaling::Halve:
          return run(Halved<Op, T>());
        case Scaling::Divide:
          return run(Divided<Op, T>(scaling.bits));
        case Scaling::Multiply:
          return run(Multiplied<Saturated<Op, T>, T>(scaling.bits));
      }
    }
  }
};
template <typename T>
struct Functions<Add, T> : SumFunctions<Add, T> {};
template <typename T>
struct Functions<Sub, T> : SumFunctions<Sub, T> {};

}  // namespace lumi::simd
