// SPDX-License-Identifier: MIT
// The functions of multiplication of complex samples, for each way of scaling:
//   real       ar br - ai bi
//   imaginary  ar bi + ai br
#pragma once

#include "kernels/arithmetic/combine_functions.hpp"
#include "kernels/arithmetic/mul.hpp"
#include "kernels/simd/convert.hpp"
#include "kernels/simd/quads.hpp"

namespace lumi::simd {

// Vectors are those of numbers as large as both parts.
template <>
struct Unit<Complex<int16_t>> {
  using Type = int32_t;
};
template <>
struct Unit<Complex<int32_t>> {
  using Type = int64_t;
};
template <>
struct Unit<Complex<float>> {
  using Type = double;
};

// Bytes of each sixteen, in their new order.
template <typename T>
Samples<T> shuffled(Samples<T> x, const Control& order) {
  const Bytes16 control = vectorOf(order);
  if constexpr (kVectorBytes == 16)
    return {shuffleBytes(x.v, control)};
  else
    return {shuffleBytes(x.v, joined(control, control))};
}
inline constexpr Control kSwappedWords = {2, 3, 0, 1, 6, 7, 4, 5, 10, 11, 8, 9, 14, 15, 12, 13};
inline constexpr Control kLowHighWords = {0, 1, 8, 9, 2, 3, 10, 11, 4, 5, 12, 13, 6, 7, 14, 15};

// Of 16-bit parts, exact in 32 bits but for one: where all four are -32768 the imaginary part is 2^31. It
// wraps to -2^31, which nothing else gives, and becomes 2^31 - 1. No scale factor tells: up to 16 both leave
// the type, beyond it one is less than half of what rounding decides about.
struct ComplexWords {
  Samples<int32_t> real, imaginary;

  ComplexWords(Samples<int32_t> a, Samples<int32_t> b) {
    const auto words = [](Samples<int32_t> x) { return as<int16_t>(x); };
    // -ai would not hold -32768; ~ai is less by one, so that a bi is missing.
    const Samples<int32_t> conjugate = a ^ broadcast(static_cast<int32_t>(0xFFFF0000));
    real = multiplyAddPairs(words(conjugate), words(b)) + shiftRight<16>(b);
    const Samples<int32_t> sum = multiplyAddPairs(words(a), words(shuffled(b, kSwappedWords)));
    imaginary = sum ^ isEqual(sum, broadcast(INT32_MIN));
  }
};

inline Samples<int32_t> narrowedPairs(Samples<int32_t> real, Samples<int32_t> imaginary) {
  return as<int32_t>(shuffled(narrowInterleaved<int16_t>(real, imaginary), kLowHighWords));
}

struct ComplexWordProduct {
  Samples<int32_t> operator()(Samples<int32_t> a, Samples<int32_t> b) const {
    const ComplexWords x(a, b);
    return narrowedPairs(x.real, x.imaginary);
  }
};

// Divided by 2^s, 1 <= s <= 31, to nearest, ties to even: the quotient rounded down goes up where the
// remainder is above half, or half and the quotient odd. No step leaves the type.
struct DividedComplexWords {
  Shift shift;
  Samples<int32_t> remainder, half;

  explicit DividedComplexWords(int s)
      : shift(s),
        remainder(broadcast(static_cast<int32_t>((uint32_t{1} << s) - 1))),
        half(broadcast(1 << (s - 1))) {}

  Samples<int32_t> quotient(Samples<int32_t> x) const {
    const Samples<int32_t> q = x >> shift;
    return q - isAboveSigned(x & remainder, half - (q & broadcast(1)));  // all ones is -1
  }
  Samples<int32_t> operator()(Samples<int32_t> a, Samples<int32_t> b) const {
    const ComplexWords x(a, b);
    return narrowedPairs(quotient(x.real), quotient(x.imaginary));
  }
};

template <>
struct Functions<Mul, Complex<int16_t>> {
  template <typename Run>
  [[gnu::always_inline]] static void choose(Scaling scaling, const Run& run) {
    chooseByPath<ComplexWordProduct, DividedComplexWords, Multiplied<ComplexWordProduct, int16_t>>(scaling,
                                                                                                   run);
  }
};

// Of 32-bit parts, exact in 64 bits, again but for one imaginary part: where all four are -2^31 it is 2^63,
// wraps to -2^63 and becomes 2^63 - 1. Up to the scale factor 32 either leaves the type.
struct ComplexDwords {
  Quads real, imaginary;

  ComplexDwords(Bytes16 a, Bytes16 b) {
    const auto second = [](Bytes16 x) { return Quads{permuteDwords<1, 1, 3, 3>(x)}; };
    const Quads ar{a}, br{b}, ai = second(a), bi = second(b);
    real = multiplyLowHalves(ar, br) - multiplyLowHalves(ai, bi);
    const Quads sum = multiplyLowHalves(ar, bi) + multiplyLowHalves(ai, br);
    imaginary = sum ^ isEqual(sum, broadcastQuad(INT64_MIN));
  }
};

// Limited to dwords: x is one where its high half is the sign of the low one.
inline Bytes16 narrowedPairs(Quads real, Quads imaginary) {
  const S32 low{blendDwords<0b1010>(real.v, permuteDwords<0, 0, 2, 2>(imaginary.v))},
      high{blendDwords<0b1010>(permuteDwords<1, 1, 3, 3>(real.v), imaginary.v)};
  return ifThenElse(isEqual(high, shiftRight<31>(low)), low, limitBySign(high)).v;
}

struct ComplexDwordProduct {
  Samples16<int64_t> operator()(Samples16<int64_t> a, Samples16<int64_t> b) const {
    const ComplexDwords x(a.v, b.v);
    return {narrowedPairs(x.real, x.imaginary)};
  }
};

// Divided by 2^s, 1 <= s <= 32, to nearest, ties to even. Sizes and signs go apart, since only zeros can be
// shifted in; a size is at most 2^63 - 1, and the sum of its rounding below 2^64.
struct DividedComplexDwords {
  Shift shift;
  Quads bias;

  explicit DividedComplexDwords(int s) : shift(s), bias(broadcastQuad((int64_t{1} << (s - 1)) - 1)) {}

  Quads quotient(Quads x) const {
    const Quads sign = isAbove(broadcastQuad(0), x), size = (x ^ sign) - sign;
    const Quads rounded = (size + bias + ((size >> shift) & broadcastQuad(1))) >> shift;
    return (rounded ^ sign) - sign;
  }
  Samples16<int64_t> operator()(Samples16<int64_t> a, Samples16<int64_t> b) const {
    const ComplexDwords x(a.v, b.v);
    return {narrowedPairs(quotient(x.real), quotient(x.imaginary))};
  }
};

template <>
struct Functions<Mul, Complex<int32_t>> {
  template <typename Run>
  [[gnu::always_inline]] static void choose(Scaling scaling, const Run& run) {
    using Product = InSixteens<ComplexDwordProduct>;
    chooseByPath<Product, InSixteens<DividedComplexDwords>, Multiplied<Product, int32_t>>(scaling, run);
  }
};

struct ComplexFloatProduct {
  template <typename V>
  V operator()(V a, V b) const {
    const auto x = bytesOf(a), y = bytesOf(b);
    const auto floats = [](auto bytes) { return samplesOf<float>(bytes); };
    const auto real = floats(permuteDwords<0, 0, 2, 2>(x)), imaginary = floats(permuteDwords<1, 1, 3, 3>(x));
    return samplesOf<double>(
        bytesOf(subAddInTurn(real * floats(y), imaginary * floats(permuteDwords<1, 0, 3, 2>(y)))));
  }
};

template <>
struct Functions<Mul, Complex<float>> {
  template <typename Run>
  [[gnu::always_inline]] static void choose(Scaling, const Run& run) {
    run(ComplexFloatProduct());
  }
};

}  // namespace lumi::simd
