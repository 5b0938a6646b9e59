// SPDX-License-Identifier: MIT
// The row kernels that combine two operands, for any operation. An operation's functions on samples T are a
// specialization of Functions, whose choose(choice, run) calls run(f) with the one for a scaling or what else
// the operation is chosen by.
#pragma once

#include "kernels/arithmetic/combine.hpp"
#include "kernels/pointwise.hpp"
#include "kernels/simd/shift.hpp"

namespace lumi {

namespace simd {

template <typename Op, typename T>
struct Functions;

// What vectors of T samples are vectors of, for the loop and the functions.
template <typename T>
struct Unit {
  using Type = T;
};

// x * 2^k, limited to the type.
template <typename T>
struct ShiftedUp {
  LeftShift<T> shift;
  Samples<T> lowest, aboveHighest;

  explicit ShiftedUp(int k)
      : shift(k),
        lowest(broadcast(static_cast<T>(std::numeric_limits<T>::min() >> k))),
        aboveHighest(broadcast(static_cast<T>((std::numeric_limits<T>::max() >> k) + 1))) {}

  Samples<T> operator()(Samples<T> x) const {
    const Samples<T> over = isAtLeast(x, aboveHighest);
    if constexpr (std::is_signed_v<T>)
      return ifThenElse(over, broadcast(std::numeric_limits<T>::max()), shift(max(x, lowest)));
    else
      return shift(x) | over;
  }
};

// Limiting a result first loses nothing, for what leaves the type leaves it again.
template <typename Saturated, typename T>
struct Multiplied {
  ShiftedUp<T> shifted;

  explicit Multiplied(int k) : shifted(k) {}
  template <typename V>
  V operator()(V a, V b) const {
    return {shifted(Samples<T>{Saturated()(a, b).v}).v};
  }
};

// Calls run(f) with the function of a scaling where a half is a quotient like others.
template <typename Saturated, typename Divided, typename Larger, typename Run>
[[gnu::always_inline]] inline void chooseByPath(Scaling scaling, const Run& run) {
  switch (scaling.path) {
    case Scaling::Saturate:
      return run(Saturated());
    case Scaling::Halve:
    case Scaling::Divide:
      return run(Divided(scaling.bits));
    case Scaling::Multiply:
      return run(Larger(scaling.bits));
  }
}

template <typename T, int alpha, typename Store, typename F, typename A>
[[gnu::always_inline]] inline bool run(TargetRows dst, Extent samples, A a, SourceRows b, F f) {
  using B = ImageRow<T, T>;
  constexpr size_t pixel = alpha ? 4 * alpha * sizeof(T) : sizeof(T);
  return runPixels<pixel, pixel - alpha * sizeof(T), Store>(dst, samples, Binary<T, F, A, B>{a, B(b), f})
      .any();
}

}  // namespace simd

template <typename Op, typename T, int alpha>
[[gnu::flatten]] bool combineRows(SourceRows a, SourceRows b, TargetRows dst, Extent samples,
                                  ChoiceOf<Op> choice) {
  using U = typename simd::Unit<T>::Type;
  bool bad = false;
  simd::Functions<Op, T>::choose(choice, [&](auto f) {
    bad = simd::run<U, alpha, simd::Cached>(dst, samples, simd::ImageRow<U, U>(a), b, f);
  });
  return bad;
}

template <typename Op, typename T, int alpha, bool ofThree, bool streaming>
[[gnu::flatten]] void combineWithConstant(const PixelPattern& a, SourceRows b, TargetRows dst, Extent samples,
                                          ChoiceOf<Op> choice) {
  using Store = std::conditional_t<streaming, simd::Streaming, simd::Cached>;
  using U = typename simd::Unit<T>::Type;
  simd::Functions<Op, T>::choose(
      choice, [&](auto f) { simd::run<U, alpha, Store>(dst, samples, simd::ConstantRow<ofThree>{a}, b, f); });
}

}  // namespace lumi
