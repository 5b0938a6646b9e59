// SPDX-License-Identifier: MIT
// The functions of division of floats, real and complex.
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

  template <typename V>
  static V quotient(V d, V n) {
    const V r = approximateReciprocal(d);
    const V e = broadcastFloat<V>(1) - d * r;
    const V q = n * r;
    return q + (q + q * e) * e;
  }
  // Out of the way: rare, and registers are few.
  template <typename V>
  [[gnu::noinline, gnu::cold]] static void divideWithZeros(const V& d, const V& n, Marked<V>* result) {
    const V one = broadcastFloat<V>(1), isZero = isEqual(d, broadcastFloat<V>(0));
    const V isMinus = isEqual(d | one, broadcastFloat<V>(-1));
    const V infinite = (n & broadcastFloat<V>(-0.0F)) | broadcastBits<V>(0x7F800000);
    const V byZero =
        ifThenElse(isBelowOrAbove(n, broadcastFloat<V>(0)), infinite, broadcastBits<V>(0x7FBFFFFF));
    const V q = quotient(d | (isZero & one), n);  // 0 becomes 1
    result->results = ifThenElse(isZero, ifThenElse(isMinus, d, byZero), q);
    result->marks = andNot(d, isZero) & broadcastFloat<V>(-0.0F);
  }
  // The rare call takes copies: what it is given the address of would be stored for every vector.
  template <typename V>
  Marked<V> operator()(V d, V n) const {
    if (__builtin_expect(!anySign(isEqual(d, broadcastFloat<V>(0))), true))
      return {quotient(d, n), broadcastFloat<V>(0)};
    const V divisor = d, dividend = n;
    Marked<V> result;
    divideWithZeros(divisor, dividend, &result);
    return result;
  }
};

// In doubles, whose squares of floats neither overflow nor vanish, by the reciprocal of the norm: four
// samples at once, their real and their imaginary parts apart. By 0 both parts are no number.
struct ComplexFloatQuotient {
  explicit ComplexFloatQuotient(Division) {}

  struct Parts {
    Doubles4 real, imaginary;

    explicit Parts(Bytes32 samples)
        : real(doublesOf(samplesOf<float>(evenPixels<4>(lowHalf(samples), highHalf(samples))))),
          imaginary(doublesOf(samplesOf<float>(oddDwords(lowHalf(samples), highHalf(samples))))) {}
  };
  static Doubles4 joinedParts(Doubles4 real, Doubles4 imaginary) {
    const Bytes16 re = bytesOf(floatsOf(real)), im = bytesOf(floatsOf(imaginary));
    return samplesOf<double>(joined(interleaveLowDwords(re, im), interleaveHighDwords(re, im)));
  }
  // Out of the way: rare, and registers are few.
  [[gnu::noinline, gnu::cold]] static void replace(const Doubles4& isZero, Marked<Doubles4>* q) {
    const Doubles4 none = broadcastReal<Doubles4>(std::numeric_limits<double>::quiet_NaN());
    q->marks = joinedParts(isZero, isZero);
    q->results = ifThenElse(q->marks, joinedParts(none, none), q->results);
  }
  Marked<Doubles4> operator()(Doubles4 divisors, Doubles4 dividends) const {
    const Parts d(bytesOf(divisors)), n(bytesOf(dividends));
    const Doubles4 norm = d.real * d.real + d.imaginary * d.imaginary, zero = broadcastReal<Doubles4>(0);
    const Doubles4 reciprocal = broadcastReal<Doubles4>(1) / norm, isZero = isEqual(norm, zero);
    const Doubles4 q = joinedParts((n.real * d.real + n.imaginary * d.imaginary) * reciprocal,
                                   (n.imaginary * d.real - n.real * d.imaginary) * reciprocal);
    if (__builtin_expect(!anySign(isZero), true)) return {q, zero};
    const Doubles4 which = isZero;
    Marked<Doubles4> replaced{q, zero};
    replace(which, &replaced);
    return replaced;
  }
  Marked<Doubles2> operator()(Doubles2 d, Doubles2 n) const {
    const auto twice = [](Doubles2 x) { return samplesOf<double>(joined(bytesOf(x), bytesOf(x))); };
    const auto half = [](Doubles4 x) { return samplesOf<double>(lowHalf(bytesOf(x))); };
    const Marked<Doubles4> q = (*this)(twice(d), twice(n));
    return {half(q.results), half(q.marks)};
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
