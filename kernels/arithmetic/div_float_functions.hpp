// SPDX-License-Identifier: MIT
// The functions of division of floats and of complex samples.
#pragma once

#include "kernels/arithmetic/div.hpp"
#include "kernels/arithmetic/mul_complex_functions.hpp"
#include "kernels/simd/quotients.hpp"

namespace lumi::simd {

// By the approximate reciprocal r: with e = 1 - d r, the quotient is n r (1 + e + e^2), in this order. Its
// bits are the processor's. By 0 it is infinite on the side of n, where n is a number and not zero; by -0 it
// is -0, and not marked.
struct FloatQuotient {
  explicit FloatQuotient(Division) {}

  // Out of the way: rare, and registers are few.
  template <typename V>
  [[gnu::noinline, gnu::cold]] static V replaced(const V& d, const V& n, const V& isZero, const V& q) {
    const V infinite = (n & broadcastFloat<V>(-0.0F)) | broadcastBits<V>(0x7F800000);
    const V byZero =
        ifThenElse(isBelowOrAbove(n, broadcastFloat<V>(0)), infinite, broadcastBits<V>(0x7FBFFFFF));
    const V minusOne = broadcastFloat<V>(-1), isMinus = isEqual(d | broadcastFloat<V>(1), minusOne);
    return ifThenElse(isZero, ifThenElse(isMinus, d, byZero), q);
  }
  template <typename V>
  Marked<V> operator()(V d, V n) const {
    const V zero = broadcastFloat<V>(0), one = broadcastFloat<V>(1);
    const V isZero = isEqual(d, zero);
    const V divisor = d | (isZero & one);  // 0 becomes 1
    const V r = approximateReciprocal(divisor);
    const V e = one - divisor * r;
    const V q0 = n * r;
    const V q = q0 + (q0 + q0 * e) * e;
    if (__builtin_expect(!anySign(isZero), true)) return {q, zero};
    return {replaced(d, n, isZero, q), andNot(d, isZero) & broadcastFloat<V>(-0.0F)};
  }
};

// Two complex numbers n / d: n times the conjugate of d, and the square of the size of d.
struct ComplexFraction {
  Doubles4 parts, norm;

  ComplexFraction(Doubles4 d, Doubles4 n)
      : parts(addPairs(n * d, swappedPairs(n) * conjugate(d))), norm(addPairs(d * d, d * d)) {}
};

// In doubles, whose squares of floats neither overflow nor vanish. By 0 both parts are no number.
struct ComplexFloatQuotient {
  explicit ComplexFloatQuotient(Division) {}

  Marked<Doubles2> of(Doubles2 d, Doubles2 n) const {
    const Floats4 floats = samplesOf<float>(bytesOf(d));
    const ComplexFraction x(doublesOf(floats), doublesOf(samplesOf<float>(bytesOf(n))));
    const Floats4 zeroPart = isEqual(floats, broadcastFloat<Floats4>(0));
    const Floats4 isZero = zeroPart & samplesOf<float>(permuteDwords<1, 0, 3, 2>(bytesOf(zeroPart)));
    const Floats4 q = ifThenElse(isZero, broadcastBits<Floats4>(0x7FC00000), floatsOf(x.parts / x.norm));
    return {samplesOf<double>(bytesOf(q)), samplesOf<double>(bytesOf(isZero))};
  }
  Marked<Doubles2> operator()(Doubles2 d, Doubles2 n) const { return of(d, n); }
  Marked<Doubles4> operator()(Doubles4 d, Doubles4 n) const {
    const auto half = [](Bytes16 x) { return samplesOf<double>(x); };
    const Bytes32 x = bytesOf(d), y = bytesOf(n);
    const Marked<Doubles2> low = of(half(lowHalf(x)), half(lowHalf(y))),
                           high = of(half(highHalf(x)), half(highHalf(y)));
    return {samplesOf<double>(joined(bytesOf(low.results), bytesOf(high.results))),
            samplesOf<double>(joined(bytesOf(low.marks), bytesOf(high.marks)))};
  }
};

template <>
struct Functions<Div, float> {
  template <typename Run>
  [[gnu::always_inline]] static void choose(Division how, const Run& run) {
    run(FloatQuotient(how));
  }
};
template <>
struct Functions<Div, Complex<float>> {
  template <typename Run>
  [[gnu::always_inline]] static void choose(Division how, const Run& run) {
    run(ComplexFloatQuotient(how));
  }
};

}  // namespace lumi::simd
