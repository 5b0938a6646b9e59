// SPDX-License-Identifier: MIT
// The functions of multiplication of packed spectra: (ar + ai i) (br + bi i), of groups of pairs as
// kernels/simd/pairs.hpp loads them. reals() multiplies what has no imaginary part.
#pragma once

#include <algorithm>

#include "kernels/simd/convert.hpp"
#include "kernels/simd/pairs.hpp"
#include "kernels/simd/quads.hpp"

namespace lumi::simd {

// Each product is rounded by itself.
template <bool conjugate>
struct FloatPairProduct {
  template <size_t bytes>
  Parts<bytes> operator()(const Parts<bytes>& a, const Parts<bytes>& b) const {
    const auto floats = [](auto x) { return samplesOf<float>(x); };
    const auto ar = floats(a.real), ai = floats(a.imaginary), br = floats(b.real), bi = floats(b.imaginary);
    if constexpr (conjugate)
      return {bytesOf(ar * br + ai * bi), bytesOf(ai * br - ar * bi)};
    else
      return {bytesOf(ar * br - ai * bi), bytesOf(ar * bi + ai * br)};
  }
  // With zeros as imaginary parts the sum could lose the sign of a zero.
  Bytes16 reals(Bytes16 a, Bytes16 b) const { return bytesOf(samplesOf<float>(a) * samplesOf<float>(b)); }
};

// Of 16-bit parts, exact in 32 bits but where all four are -32768: the imaginary part would be 2^31. Wherever
// ar bi is 2^30, the largest product that there is, it stands alone, by contract. Every sum with it is above
// the largest word: where sums are limited to words first, only what wraps has to be told apart.
template <bool limited>
struct WordPairSums {
  S32 real, imaginary;

  WordPairSums(Bytes16 a, Bytes16 b) {
    const auto words = [](S32 x) { return as<int16_t>(x); };
    const S32 first{a}, second{b}, turned{shuffleBytes(b, vectorOf(kSwapped))};
    // -ai would not hold -32768; ~ai is less by one, so that a bi is missing.
    const S32 conjugate = first ^ broadcast16(static_cast<int32_t>(0xFFFF0000));
    real = multiplyAddPairs(words(conjugate), words(second)) + shiftRight<16>(second);
    const S32 sum = multiplyAddPairs(words(first), words(turned));
    if constexpr (limited) {
      imaginary = sum ^ isEqual(sum, broadcast16(INT32_MIN));
    } else {
      const S32 product = multiplyAddPairs(words(first & broadcast16(0xFFFF)), words(turned));
      imaginary = ifThenElse(isEqual(product, broadcast16(1 << 30)), product, sum);
    }
  }

 private:
  static constexpr Control kSwapped = {2, 3, 0, 1, 6, 7, 4, 5, 10, 11, 8, 9, 14, 15, 12, 13};
};

// A function of word pairs by what becomes of a sum; kLimited: it is limited to words before anything else.
template <typename Scaled>
struct WordPairProduct {
  Scaled scaled;

  Bytes16 operator()(Bytes16 a, Bytes16 b) const {
    const WordPairSums<Scaled::kLimited> x(a, b);
    return narrowSigned<int16_t>(scaled(x.real), scaled(x.imaginary)).v;
  }
};
struct WordSum {
  static constexpr bool kLimited = true;
  S32 operator()(S32 x) const { return x; }
};
// Shifts beyond the width leave the sign: 0 or -1, as rounding down wants.
struct ShiftedDownWordSum {
  static constexpr bool kLimited = false;
  Shift shift;
  S32 operator()(S32 x) const { return x >> shift; }
};
// What leaves the type does so before it is multiplied, too. 2^15 is enough for every sum but 0.
struct ShiftedUpWordSum {
  static constexpr bool kLimited = true;
  Shift shift;
  explicit ShiftedUpWordSum(int bits) : shift(std::min(bits, 15)) {}
  S32 operator()(S32 x) const {
    return min(max(x, broadcast16(int32_t{INT16_MIN})), broadcast16(int32_t{INT16_MAX})) << shift;
  }
};

// Of 32-bit parts, two sums of a vector's four, exact in 64 bits but for one: where all four parts are -2^31
// the imaginary one is 2^63, which wraps to -2^63. Nothing else gives that.
struct DwordPairSums {
  Quads real, imaginary;

  // Whose low halves are the parts.
  DwordPairSums(Quads ar, Quads ai, Quads br, Quads bi)
      : real(multiplyLowHalves(ar, br) - multiplyLowHalves(ai, bi)),
        imaginary(multiplyLowHalves(ar, bi) + multiplyLowHalves(ai, br)) {}
};

// Two and two sums limited to dwords: one is a dword where its high half is the sign of the low one.
inline Bytes16 narrowedInTurn(Quads even, Quads odd) {
  const S32 low{blendDwords<0b1010>(even.v, permuteDwords<0, 0, 2, 2>(odd.v))},
      high{blendDwords<0b1010>(permuteDwords<1, 1, 3, 3>(even.v), odd.v)};
  return ifThenElse(isEqual(high, shiftRight<31>(low)), low, limitBySign(high)).v;
}

template <typename Scaled>
struct DwordPairProduct {
  Scaled scaled;

  Parts<16> operator()(const Parts<16>& a, const Parts<16>& b) const {
    const Quads ar{a.real}, ai{a.imaginary}, br{b.real}, bi{b.imaginary};
    const DwordPairSums even(ar, ai, br, bi),
        odd(highHalves(ar), highHalves(ai), highHalves(br), highHalves(bi));
    return {scaled.real(even.real, odd.real), scaled.imaginary(even.imaginary, odd.imaginary)};
  }
};
struct DwordSum {
  Bytes16 real(Quads even, Quads odd) const { return narrowedInTurn(even, odd); }
  Bytes16 imaginary(Quads even, Quads odd) const {
    const auto limited = [](Quads x) { return x ^ isEqual(x, broadcastQuad(INT64_MIN)); };
    return narrowedInTurn(limited(even), limited(odd));
  }
};
// Only zeros can be shifted in: negative sums are shifted as their complements, and 2^63 as the unsigned
// number that it is. Shifts beyond the width leave 0 or, of what is negative, -1.
struct ShiftedDownDwordSum {
  Shift shift;

  Quads shifted(Quads x, Quads sign) const { return ((x ^ sign) >> shift) ^ sign; }
  static Quads sign(Quads x) { return isAbove(broadcastQuad(0), x); }
  Bytes16 real(Quads even, Quads odd) const {
    return narrowedInTurn(shifted(even, sign(even)), shifted(odd, sign(odd)));
  }
  Bytes16 imaginary(Quads even, Quads odd) const {
    const auto signOf = [](Quads x) { return sign(x) ^ isEqual(x, broadcastQuad(INT64_MIN)); };
    return narrowedInTurn(shifted(even, signOf(even)), shifted(odd, signOf(odd)));
  }
};
// As with words.
struct ShiftedUpDwordSum {
  Shift shift;
  S32 lowest, highest;

  explicit ShiftedUpDwordSum(int bits) : ShiftedUpDwordSum(Bits{std::min(bits, 31)}) {}
  Bytes16 real(Quads even, Quads odd) const { return shifted(DwordSum().real(even, odd)); }
  Bytes16 imaginary(Quads even, Quads odd) const { return shifted(DwordSum().imaginary(even, odd)); }

 private:
  struct Bits {
    int count;
  };
  explicit ShiftedUpDwordSum(Bits bits)
      : shift(bits.count),
        lowest(broadcast16(INT32_MIN >> bits.count)),
        highest(broadcast16(INT32_MAX >> bits.count)) {}
  Bytes16 shifted(Bytes16 limited) const {
    const S32 x{limited};
    return ifThenElse(isAboveSigned(x, highest), broadcast16(INT32_MAX), max(x, lowest) << shift).v;
  }
};

// Calls run(f) with the function for a scale factor.
template <template <typename> class Product, typename Sum, typename Down, typename Up, typename Run>
[[gnu::always_inline]] inline void chooseByScale(int scaleFactor, const Run& run) {
  if (scaleFactor == 0)
    run(Product<Sum>{});
  else if (scaleFactor > 0)
    run(Product<Down>{Down{Shift(scaleFactor)}});
  else
    run(Product<Up>{Up(scaleFactor < -32 ? 32 : -scaleFactor)});
}

template <typename T, typename Run>
[[gnu::always_inline]] inline void choosePairProduct(int scaleFactor, const Run& run) {
  if constexpr (std::is_same_v<T, float>)
    run(FloatPairProduct<false>());
  else if constexpr (std::is_same_v<T, int16_t>)
    chooseByScale<WordPairProduct, WordSum, ShiftedDownWordSum, ShiftedUpWordSum>(scaleFactor, run);
  else
    chooseByScale<DwordPairProduct, DwordSum, ShiftedDownDwordSum, ShiftedUpDwordSum>(scaleFactor, run);
}

}  // namespace lumi::simd
