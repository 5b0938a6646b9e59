// SPDX-License-Identifier: MIT
// The functions of division of real integers. Every quotient is a true division of floats or doubles, rounded
// to an integer by an instruction; the result is that of the exact quotient. With n and d integers and e the
// exponent, x = n 2^e / d is k + 1/2, an integer, or at least 1 / (2 |n| 2^max(e, 0)) of its own size away
// from either:
//   bytes          Only x < 2^8 matters, that is n 2^e < 2^16 where e > 0: at least 2^-17. Floats keep 24
//   bits. words, e <= 0  At least 2^-17: floats again. words, e > 0   Only x < 2^16 matters, so that n 2^e <
//   2^32: at least 2^-33. Doubles keep 53 bits.
// So the float next to x is on the same side of every tie and integer, and a tie or an integer is a float.
// The sum of a half and the quotient is rounded too, by less than those distances.
#pragma once

#include "kernels/arithmetic/combine_functions.hpp"
#include "kernels/arithmetic/div.hpp"
#include "kernels/simd/convert.hpp"
#include "kernels/simd/quotients.hpp"

namespace lumi::simd {

// By the rounding control: to whole numbers, which stay floats, and to dwords.
struct AsControlled {
  explicit AsControlled(Division) {}
  template <typename V>
  V operator()(V x) const {
    return whole<kAsControlled>(x);
  }
  template <typename V>
  static auto dwords(V x) {
    return rounded(x);
  }
};

// As a division says, whatever the control. Half a unit is added to the size, and what is left is cut.
struct ByMode {
  bool toEven;
  double added;

  explicit ByMode(Division how)
      : toEven(how.mode == Division::NearestEven), added(how.mode == Division::HalfAway ? 0.5 : 0) {}
  template <typename V>
  V operator()(V x) const {
    const V sign = x & broadcastReal<V>(-0.0);
    const V cut = whole<kTowardZero>(x + (sign | broadcastReal<V>(added)));
    return toEven ? whole<kTiesToEven>(x) : cut;
  }
  template <typename V>
  auto dwords(V x) const {
    return rounded((*this)(x));
  }
};

// Each dword has four samples, which become floats where they are: as 256^k times their value, in both
// operands, so that quotients are the samples' own. No byte is moved.
template <typename Rounding>
struct ByteQuotients {
  using Block = Samples32<uint8_t>;
  Rounding rounding;
  float factor;

  explicit ByteQuotients(Division how)
      : rounding(how), factor(static_cast<float>(powerOfTwo(how.exponent))) {}

  template <int k, typename V>
  static V floatsAt(V bytes) {
    return floatsOf(intsOf(bytes & broadcastBits<V>(uint32_t{0xFF} << 8 * k)));
  }
  // Dwords are signed: 2^31 goes off, and on again. Where the control rounds down the sum of both is -0.
  template <typename V>
  static V floatsAtTop(V bytes) {
    const V top = broadcastBits<V>(0x80000000);
    const V x = floatsOf(intsOf((bytes & broadcastBits<V>(0xFF000000)) ^ top)) + broadcastFloat<V>(0x1p31F);
    return x & broadcastBits<V>(0x7FFFFFFF);
  }
  // 0 / 0, which is no number, gives 0; anything else divided by 0 is infinite.
  template <typename V>
  V quotients(V d, V n) const {
    const V x = n * broadcastFloat<V>(factor) / d;
    return rounding(min(max(x, broadcastFloat<V>(0)), broadcastFloat<V>(255)));
  }
  template <typename V>
  V of(V d, V n) const {
    const V x0 = quotients(floatsAt<0>(d), floatsAt<0>(n)), x1 = quotients(floatsAt<1>(d), floatsAt<1>(n)),
            x2 = quotients(floatsAt<2>(d), floatsAt<2>(n)), x3 = quotients(floatsAtTop(d), floatsAtTop(n));
    // Three bytes are below 2^24, and exact.
    const V low = x0 + (x1 * broadcastFloat<V>(0x1p8F) + x2 * broadcastFloat<V>(0x1p16F));
    const V high = x3 * broadcastFloat<V>(0x1p24F) - broadcastFloat<V>(0x1p31F);
    return withBits(rounded(low)) | (withBits(rounded(high)) ^ broadcastBits<V>(0x80000000));
  }

  static Bytes16 zeros(Bytes16 x) { return isZero(x); }
  static Bytes32 zeros(Bytes32 x) { return joined(isZero(lowHalf(x)), isZero(highHalf(x))); }
  template <typename V>
  Marked<V> operator()(V d, V n) const {
    return {{bytesOf(of(samplesOf<float>(d.v), samplesOf<float>(n.v)))}, {zeros(d.v)}};
  }
};

// Sixteen bytes of words as dwords: 2^16 times signed ones, in both operands.
struct WordDwords {
  S32 low, high;

  explicit WordDwords(S16 x)
      : low(as<int32_t>(interleaveLow(broadcast16<int16_t>(0), x))),
        high(as<int32_t>(interleaveHigh(broadcast16<int16_t>(0), x))) {}
  explicit WordDwords(U16 x)
      : low(as<int32_t>(interleaveLow(x, broadcast16<uint16_t>(0)))),
        high(as<int32_t>(interleaveHigh(x, broadcast16<uint16_t>(0)))) {}

  Floats8 floats() const { return floatsOf(joined(low, high)); }
};

template <typename T, typename Rounding>
struct WordQuotients {
  Rounding rounding;
  double factor;

  explicit WordQuotients(Division how) : rounding(how), factor(powerOfTwo(how.exponent)) {}

  // As dwords, which the narrowing limits: limited here is what could be beyond them. Below them, and for
  // what is no number, the conversion gives the least dword: 0 / 0 is made 0 where that is not the lower
  // limit.
  template <typename V>
  auto dwords(V d, V n) const {
    V x = n * broadcastReal<V>(factor) / d;
    if constexpr (std::is_signed_v<T>) x = x & isNumber(x);
    return rounding.dwords(min(broadcastReal<V>(std::numeric_limits<T>::max()), x));
  }
};

template <typename T, typename Rounding>
struct WordsByFloats : WordQuotients<T, Rounding> {
  using WordQuotients<T, Rounding>::WordQuotients;

  Marked<Samples16<T>> operator()(Samples16<T> d, Samples16<T> n) const {
    const Ints8 x = this->dwords(WordDwords(d).floats(), WordDwords(n).floats());
    return {narrowSigned<T>(lowHalf(x), highHalf(x)), isEqual(d, broadcast16<T>(0))};
  }
};

template <typename T, typename Rounding>
struct WordsByDoubles : WordQuotients<T, Rounding> {
  using WordQuotients<T, Rounding>::WordQuotients;

  Marked<Samples16<T>> operator()(Samples16<T> d, Samples16<T> n) const {
    const WordDwords wideD(d), wideN(n);
    const S32 low = this->dwords(doublesOf(wideD.low), doublesOf(wideN.low)),
              high = this->dwords(doublesOf(wideD.high), doublesOf(wideN.high));
    return {narrowSigned<T>(low, high), isEqual(d, broadcast16<T>(0))};
  }
};

template <typename T, typename Rounding, typename Run>
[[gnu::always_inline]] inline void chooseDivision(Division how, const Run& run) {
  if constexpr (sizeof(T) == 1)
    return run(ByteQuotients<Rounding>(how));
  else if (how.exponent <= 0)
    return run(InSixteens<WordsByFloats<T, Rounding>>(how));
  else
    return run(InSixteens<WordsByDoubles<T, Rounding>>(how));
}

template <typename T>
struct Functions<Div, T> {
  template <typename Run>
  [[gnu::always_inline]] static void choose(Division how, const Run& run) {
    chooseDivision<T, AsControlled>(how, run);
  }
};
template <typename T>
struct Functions<DivRound, T> {
  template <typename Run>
  [[gnu::always_inline]] static void choose(Division how, const Run& run) {
    chooseDivision<T, ByMode>(how, run);
  }
};
}  // namespace lumi::simd
