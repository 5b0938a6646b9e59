// SPDX-License-Identifier: MIT
// Angles of complex numbers, and sines and cosines of angles: by sums, products, quotients and comparisons
// alone, so that every build has the same bits.
#pragma once

#include "kernels/simd/constants.hpp"
#include "kernels/simd/elementary.hpp"
#include "kernels/simd/quotients.hpp"

namespace lumi::simd {

inline Doubles4 operator^(Doubles4 a, Doubles4 b) { return {_mm256_xor_pd(a.v, b.v)}; }
// b without the bits of a.
inline Doubles4 andNot(Doubles4 a, Doubles4 b) { return {_mm256_andnot_pd(a.v, b.v)}; }
inline Doubles4 isBelow(Doubles4 a, Doubles4 b) { return {_mm256_cmp_pd(a.v, b.v, _CMP_LT_OQ)}; }
// A mask of where either is not a number.
inline Floats4 isUnordered(Floats4 a, Floats4 b) { return {_mm_cmpunord_ps(a.v, b.v)}; }
inline Floats8 isUnordered(Floats8 a, Floats8 b) { return {_mm256_cmp_ps(a.v, b.v, _CMP_UNORD_Q)}; }

// The angle of x + iy, from -pi to pi, as C's atan2f has it for zeros of either sign and for infinities too;
// where either is not a number, none. The error is below 2 units of the last place. The smaller of both parts
// over the larger one has an arc tangent a = q + q^3 p(q^2), with coefficients that make the largest error
// smallest (Remez): 2^-28 of a. The angle then is a whole number of right angles and a or -a. Terms of p are
// summed up in pairs of neighbours: every other one would add up to more than all do.
class AngleOfFloats {
 public:
  template <typename V>
  V operator()(V y, V x) const {
    const auto c = [&](int which) { return constants_.get<V>(which); };
    const V width = andNot(c(kSign), x), height = andNot(c(kSign), y);
    // One of both is not a number where a part is none.
    const V small = min(height, width), large = max(width, height);
    V ratio = small / large;
    if (__builtin_expect(anySign(isUnordered(ratio, ratio)), false)) {
      ratio = ifThenElse(isEqual(height, width), c(kOne), ratio);  // infinities
      ratio = andNot(isEqual(height + width, broadcastFloat<V>(0)), ratio);
    }
    const V square = ratio * ratio, fourth = square * square;
    const V p = ((c(kP0) + square * c(kP1)) + fourth * (c(kP2) + square * c(kP3))) +
                (fourth * fourth) * (((c(kP4) + square * c(kP5)) + fourth * (c(kP6) + square * c(kP7))) +
                                     (fourth * fourth) * c(kP8));
    const V arc = ratio + (ratio * square) * p;
    const V isSteep = isBelow(width, height), sign = x & c(kSign);
    const V turns = c(kOne) - andNot(isSteep, sign | c(kOne));  // 0 and 2, or 1 where it is steep
    const V turned = arc ^ (sign ^ (isSteep & c(kSign)));
    const V angle = turns * c(kHigh) + (turned + turns * c(kLow));
    return angle | (y & c(kSign));
  }

 private:
  enum { kSign, kOne, kHigh, kLow, kP0, kP1, kP2, kP3, kP4, kP5, kP6, kP7, kP8 };
  static constexpr auto kTable =
      spread(-0.0F, 1.0F, 1.57079637F, -4.37113883e-08F, -0.333332991F, 0.199985483F, -0.142642422F,
             0.109521891F, -0.0840345994F, 0.0579577494F, -0.0311779895F, 0.0109146765F, -0.00179363623F);
  Constants constants_{kTable};
};

// The same of doubles that are whole numbers below 2^32, no negative zeros, with an error below 2^-51.
// Quotients above tan(pi/8) are turned by pi/4, so that they stay below it: p has an error of 2^-59.
// Multiples of pi/4 come in two parts, of which the first one's products are exact.
class AngleOfWholes {
 public:
  Doubles4 operator()(Doubles4 y, Doubles4 x) const {
    const auto c = [&](int which) { return constants_.get<Doubles4>(which); };
    const Doubles4 width = andNot(c(kSign), x), height = andNot(c(kSign), y);
    const Doubles4 large = max(height, width), small = min(height, width);
    const Doubles4 isNear = isBelow(large * c(kTangent), small);
    const Doubles4 quotient = (small - (isNear & large)) / (large + (isNear & small));
    const Doubles4 ratio = andNot(isEqual(large, broadcastDouble(0)), quotient);
    const Doubles4 square = ratio * ratio, fourth = square * square;
    Doubles4 even = c(kP10), odd = c(kP9);
    for (int i = kP8; i >= kP0; i -= 2) even = even * fourth + c(i);
    for (int i = kP7; i >= kP1; i -= 2) odd = odd * fourth + c(i);
    const Doubles4 arc = ratio + (ratio * square) * (even + square * odd);
    const Doubles4 isSteep = isBelow(width, height), isLeft = isBelow(x, broadcastDouble(0));
    const Doubles4 steep = isSteep & c(kSign), left = x & c(kSign);
    const Doubles4 upper = ((isNear & c(kOne)) ^ steep) + (isSteep & c(kTwo));  // k or 2 - k eighths
    const Doubles4 turns = (upper ^ left) + (isLeft & c(kFour));
    const Doubles4 angle = turns * c(kHigh) + ((arc ^ (steep ^ left)) + turns * c(kLow));
    return angle ^ (y & c(kSign));
  }

 private:
  enum { kSign, kOne, kTwo, kFour, kTangent, kHigh, kLow, kP0, kP1, kP7 = kP0 + 7, kP8, kP9, kP10 };
  static constexpr auto kTable =
      spread(-0.0, 1.0, 2.0, 4.0, 0.41421356237309503, 0.78539816339744828, 3.0616169978683829e-17,
             -0.33333333333333198, 0.19999999999953239, -0.14285714280165923, 0.11111110782134842,
             -0.090908977249047951, 0.076920597141341751, -0.06663099188733676, 0.058478592730227333,
             -0.050391907381749, 0.038062152484479098, -0.017905055732281228);
  Constants constants_{kTable};
};

// What an angle leaves of whole right angles: at most half of one to either side.
struct QuarterTurns {
  Floats8 rest;
  Ints8 count;  // the two lowest bits are right
};

// Of angles of 2^20 and more, one by one: the bits of 2/pi that matter are 96 from two before the point of
// the product on (Payne and Hanek). What no angle is left of, infinite ones too, is not a number.
struct QuarterTurn {
  float rest;
  int32_t count;
};
[[gnu::noinline, gnu::cold]] inline QuarterTurn quarterTurnOfLarge(float angle) {
  constexpr uint32_t kTwoOverPi[] = {0,          0xA2F9836E, 0x4E441529, 0xFC2757D1,
                                     0xF534DDC0, 0xDB629599, 0x3C439041, 0xFE5163AB};
  uint32_t bits;
  std::memcpy(&bits, &angle, sizeof bits);
  const int exponent = static_cast<int>(bits >> 23 & 0xFF);
  if (exponent == 0xFF) return {angle - angle, 0};
  const uint64_t mantissa = (bits & 0x7FFFFF) | 0x800000;
  const int first = 32 + exponent - 150 - 2;  // 27 to 134 of the table's bits
  const auto window = [&](int i) {
    const uint32_t* const word = kTwoOverPi + first / 32 + i;
    return static_cast<uint32_t>(((uint64_t{word[0]} << 32 | word[1]) << first % 32) >> 32);
  };
  // A quarter turn is 2^62 of this; more than four are lost.
  const uint64_t middle = mantissa * window(1) + (mantissa * window(2) >> 32);
  const uint64_t turns = (mantissa * window(0) << 32) + middle;
  const auto count = static_cast<int32_t>((turns + (uint64_t{1} << 61)) >> 62);
  const auto rest = static_cast<int64_t>(turns - (static_cast<uint64_t>(count) << 62));
  const double high = static_cast<double>(static_cast<int32_t>(rest >> 32)),
               low = static_cast<double>(static_cast<uint32_t>(rest));
  const auto radians =
      static_cast<float>((high * 4294967296.0 + low) * (1.5707963267948966 / 4611686018427387904.0));
  return (bits >> 31) != 0 ? QuarterTurn{-radians, -count} : QuarterTurn{radians, count};
}

struct SineAndCosine {
  Floats8 sine, cosine;
};

// Of any angles. Right angles go off as doubles, pi/2 in two parts: n times the first one is exact for n
// below 2^20, and what is left has an error of 2^-67, so that even next to multiples of pi/2 only the
// rounding to a float counts. Then polynomials with an error of 2^-28: each result has one below 1.6 units of
// its last place.
class SinesAndCosines {
 public:
  SineAndCosine operator()(Floats8 angle) const {
    const auto c = [&](int which) { return constants_.get<Floats8>(which); };
    const QuarterTurns turns = quarterTurns(angle);
    const Floats8 r = turns.rest, z = r * r;
    const Floats8 sine = r + (r * z) * (c(kS0) + z * (c(kS1) + z * c(kS2)));
    const Floats8 cosine = (c(kOne) - z * c(kHalf)) + (z * z) * (c(kC0) + z * (c(kC1) + z * c(kC2)));
    const auto signOf = [](auto bits) { return withBits(joined(bits(0), bits(1))); };
    const S32 counts[] = {lowHalf(turns.count), highHalf(turns.count)};
    const Floats8 isOdd = signOf([&](int i) { return counts[i] << Shift(31); });  // the sign chooses
    const Floats8 sineSign = signOf([&](int i) { return counts[i] << Shift(30); }) & c(kSign);
    const Floats8 cosineSign =
        signOf([&](int i) { return (counts[i] + broadcast16(1)) << Shift(30); }) & c(kSign);
    return {ifThenElse(isOdd, cosine, sine) ^ sineSign, ifThenElse(isOdd, sine, cosine) ^ cosineSign};
  }

 private:
  enum { kSign, kOne, kHalf, kS0, kS1, kS2, kC0, kC1, kC2, kMost };
  static constexpr auto kTable = spread(-0.0F, 1.0F, 0.5F, -0.166666546F, 0.00833216076F, -0.00019515283F,
                                        0.0416666457F, -0.00138873163F, 2.44331584e-05F, 1048576.0F);
  enum { kTwoOverPi, kFirst, kSecond };
  static constexpr auto kTurns = spread(0.63661977236758138, 1.5707963267341256, 6.0771005065061922e-11);

  QuarterTurns quarterTurns(Floats8 angle) const {
    const auto c = [&](int which) { return turns_.get<Doubles4>(which); };
    const auto countOf = [&](Doubles4 x) { return whole<kTiesToEven>(x * c(kTwoOverPi)); };
    const auto restOf = [&](Doubles4 x, Doubles4 n) {
      return floatsOf((x - n * c(kFirst)) - n * c(kSecond));
    };
    const Doubles4 a = doublesOf(lowHalf(angle)), b = doublesOf(highHalf(angle));
    const Doubles4 m = countOf(a), n = countOf(b);
    const QuarterTurns turns{joined(restOf(a, m), restOf(b, n)), joined(truncated(m), truncated(n))};
    const Floats8 isSmall = isBelow(magnitude(angle), constants_.get<Floats8>(kMost));
    if (__builtin_expect(allSet(isSmall), true)) return turns;
    return withLarge(angle, turns);
  }

  static QuarterTurns withLarge(Floats8 angle, const QuarterTurns& small) {
    float angles[8], rests[8];
    int32_t counts[8];
    std::memcpy(angles, &angle, sizeof angles);
    std::memcpy(rests, &small.rest, sizeof rests);
    std::memcpy(counts, &small.count, sizeof counts);
    for (int i = 0; i < 8; ++i) {
      if (angles[i] > -1048576.0F && angles[i] < 1048576.0F) continue;
      const QuarterTurn turn = quarterTurnOfLarge(angles[i]);
      rests[i] = turn.rest;
      counts[i] = turn.count;
    }
    QuarterTurns all;
    std::memcpy(&all.rest, rests, sizeof rests);
    std::memcpy(&all.count, counts, sizeof counts);
    return all;
  }

  Constants constants_{kTable}, turns_{kTurns};
};

}  // namespace lumi::simd
