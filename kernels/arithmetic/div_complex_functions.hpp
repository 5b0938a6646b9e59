// SPDX-License-Identifier: MIT
// The functions of division of complex integers. Both parts are made in doubles, from whole products of
// parts, divided by the square of the divisor's size, then multiplied by the power of two: each step rounds
// once, and of 16-bit samples none of them matters (products and sums are exact, and a quotient that fits is
// 2^-47 of its size or more away from every tie that it is not).
#pragma once

#include "kernels/arithmetic/div_float_functions.hpp"
#include "kernels/arithmetic/div_functions.hpp"

namespace lumi::simd {

// Two complex numbers n / d: n times the conjugate of d, and the square of the size of d.
struct ComplexFraction {
  Doubles4 parts, norm;

  ComplexFraction(Doubles4 d, Doubles4 n)
      : parts(addPairs(n * d, swappedPairs(n) * conjugate(d))), norm(addPairs(d * d, d * d)) {}
};

// By zero both parts, which are no numbers, become 0.
template <typename T>
struct ComplexPartQuotients {
  double factor;

  explicit ComplexPartQuotients(Division how) : factor(powerOfTwo(how.exponent)) {}

  // As dwords: what is above the limit is limited, what is below them gives the least dword.
  S32 dwords(S32 d, S32 n) const {
    const ComplexFraction x(doublesOf(d), doublesOf(n));
    const Doubles4 q = x.parts / x.norm * broadcastReal<Doubles4>(factor);
    return rounded(min(q & isNumber(q), broadcastReal<Doubles4>(std::numeric_limits<T>::max())));
  }
};

struct ComplexWordQuotient : ComplexPartQuotients<int16_t> {
  using ComplexPartQuotients<int16_t>::ComplexPartQuotients;

  Marked<Samples16<int32_t>> operator()(Samples16<int32_t> d, Samples16<int32_t> n) const {
    const WordDwords wideD(as<int16_t>(d)), wideN(as<int16_t>(n));
    return {as<int32_t>(narrowSigned<int16_t>(dwords(wideD.low, wideN.low), dwords(wideD.high, wideN.high))),
            isEqual(d, broadcast16<int32_t>(0))};
  }
};

struct ComplexDwordQuotient : ComplexPartQuotients<int32_t> {
  using ComplexPartQuotients<int32_t>::ComplexPartQuotients;

  Marked<Samples16<int64_t>> operator()(Samples16<int64_t> d, Samples16<int64_t> n) const {
    const Quads isZero = isEqual(Quads{d.v}, broadcastQuad(0));
    return {{dwords(S32{d.v}, S32{n.v}).v}, {isZero.v}};
  }
};

template <typename Quotient>
struct ComplexFunctions {
  template <typename Run>
  [[gnu::always_inline]] static void choose(Division how, const Run& run) {
    run(InSixteens<Quotient>(how));
  }
};
template <>
struct Functions<Div, Complex<int16_t>> : ComplexFunctions<ComplexWordQuotient> {};
template <>
struct Functions<Div, Complex<int32_t>> : ComplexFunctions<ComplexDwordQuotient> {};

}  // namespace lumi::simd
