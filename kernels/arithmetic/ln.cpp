// SPDX-License-Identifier: MIT
// x = 2^k (1 + f) with 1 + f from sqrt(1/2) to sqrt(2), and ln(1 + f) = 2 s + s z p(z) with s = f / (2 + f),
// z = s^2: the series of the inverse hyperbolic tangent, with coefficients that make the largest error
// smallest (Remez).
#include "kernels/arithmetic/ln.hpp"

#include "kernels/arithmetic/unary_rows.hpp"
#include "kernels/simd/scale.hpp"

namespace lumi {
namespace {

using namespace simd;

// Exponents are counted in units of their lowest bit, as the bits of a float have them.
constexpr float kExponent = 1 << 23;

enum { kOne, kTwo, kRootOfTwo, kStep, kBias, kHighLn2, kLowLn2, kP0, kP1, kP2, kLeast, kMost };
constexpr auto kTable = spread(1.0F, 2.0F, 1.41421356F, kExponent, 127 * kExponent, 0.693145752F / kExponent,
                               1.42860677e-06F / kExponent, 0.666667726F, 0.399779074F, 0.298634446F,
                               std::numeric_limits<float>::min(), std::numeric_limits<float>::max());

template <typename V>
struct Parts {
  V k, f;
};

// Of positive normal numbers; the exponent's bias is the caller's.
template <typename V>
Parts<V> partsOf(V x, V bias, const Constants& constants) {
  const auto c = [&](int which) { return constants.get<V>(which); };
  const V k = floatsOf(intsOf(x & broadcastBits<V>(0x7F800000)));
  const V m = (x & broadcastBits<V>(0x007FFFFF)) | c(kOne);  // 1 to 2
  const V above = isBelow(c(kRootOfTwo), m);
  const V half = andNot(above & broadcastBits<V>(0x00800000), m);  // a lower exponent
  return {(k - bias) + (above & c(kStep)), half - c(kOne)};
}

// The error of p is 2^-29, and 2 s is f - s f. k ln 2 comes in two parts, of which the first one is exact
// (Cody and Waite); what is small is summed up first. Horner's order would keep the chain of steps too long.
template <typename V>
V lnOfParts(Parts<V> x, const Constants& constants) {
  const auto c = [&](int which) { return constants.get<V>(which); };
  const V f = x.f, s = f / (c(kTwo) + f), z = s * s;
  const V p = z * c(kP0) + (z * z) * (c(kP1) + z * c(kP2));
  return x.k * c(kHighLn2) + (f - (s * (f - p) - x.k * c(kLowLn2)));
}

template <typename V>
V lnOfNormal(V x, const Constants& constants) {
  return lnOfParts(partsOf(x, constants.get<V>(kBias), constants), constants);
}

// Zeros and negative samples are common enough to be dealt with on the spot.
template <typename V>
Marked<V> withoutLogarithm(V ln, V isZero, V isNegative) {
  constexpr float infinity = std::numeric_limits<float>::infinity();
  ln = ifThenElse(isZero, broadcastFloat<V>(-infinity), ln);
  ln = ifThenElse(isNegative, broadcastFloat<V>(std::numeric_limits<float>::quiet_NaN()), ln);
  return {ln, (isZero & broadcastBits<V>(kLnOfZero)) | (isNegative & broadcastBits<V>(kLnOfNegative))};
}

// Any floats: denormals, and those without a logarithm, too. By memory, since it is called seldom.
template <typename V>
[[gnu::noinline, gnu::cold]] void lnOfAny(const Byte* samples, Byte* results, Byte* marks) {
  const auto c = [](float value) { return broadcastFloat<V>(value); };
  const Constants constants(kTable);
  V x;
  std::memcpy(&x, samples, sizeof x);
  const V isSmall = isBelow(x, c(std::numeric_limits<float>::min()));
  const V enlarged = ifThenElse(isSmall, x * c(1 << 25), x);
  const V bias = ifThenElse(isSmall, c((127 + 25) * kExponent), c(127 * kExponent));
  V ln = lnOfParts(partsOf(enlarged, bias, constants), constants);
  ln = ifThenElse(isAtLeast(c(std::numeric_limits<float>::max()), x), ln, x + x);
  const Marked<V> all = withoutLogarithm(ln, isEqual(x, c(0)), isBelow(x, c(0)));
  std::memcpy(results, &all.results, sizeof all.results);
  std::memcpy(marks, &all.marks, sizeof all.marks);
}

struct LnOfFloats {
  Constants constants{kTable};

  template <typename V>
  Marked<V> operator()(V x) const {
    const V isNormal = isAtLeast(x, constants.get<V>(kLeast)) & isAtLeast(constants.get<V>(kMost), x);
    const V ln = lnOfNormal(x, constants);
    if (__builtin_expect(allSet(isNormal), true)) return {ln, broadcastFloat<V>(0)};
    const V isZero = isEqual(x, broadcastFloat<V>(0)), isNegative = isBelow(x, broadcastFloat<V>(0));
    if (allSet(isNormal | isZero | isNegative)) return withoutLogarithm(ln, isZero, isNegative);
    Byte samples[sizeof(V)], results[sizeof(V)], marks[sizeof(V)];
    std::memcpy(samples, &x, sizeof x);
    lnOfAny<V>(samples, results, marks);
    Marked<V> all;
    std::memcpy(&all.results, results, sizeof results);
    std::memcpy(&all.marks, marks, sizeof marks);
    return all;
  }
};

// For all bytes and all factors, results stay 0.0001 away from a tie, which floats tell, but for ln 163 *
// 2^4, which is 81.5 and 0.000003. So rounding up begins 2^-15 below a half.
struct LnOfBytes {
  Floats8 factor, upward = broadcastFloat<Floats8>(0.5F + 1.0F / (1 << 15));
  Constants constants{kTable};
  explicit LnOfBytes(int s) : factor(broadcastFloat<Floats8>(static_cast<float>(powerOfTwo(-s)))) {}

  S16 eight(const Byte* p) const {
    const Floats8 x = max(floatsOf8Bytes(p), broadcastFloat<Floats8>(1));
    const Ints8 results = truncated(lnOfNormal(x, constants) * factor + upward);
    return narrowSaturated<int16_t>(lowHalf(results), highHalf(results));
  }
  auto half(const Byte* p) const {
    return bytesOf(Marked<U8>{narrowSaturated<uint8_t>(eight(p), eight(p + 8)),
                              isEqual(U8{load16(p)}, broadcast16<uint8_t>(0))});
  }
};

// Of words, logarithms come within 2^-36 of a tie: doubles tell, by an error of 2^-44.
template <typename T>
struct LnOfWords {
  Doubles4 factor;
  Constants constants{kTable};
  explicit LnOfWords(int s) : factor(broadcastDouble(powerOfTwo(-s))) {}

  S32 four(Floats4 k, Floats4 fraction) const {
    const auto c = [](double value) { return broadcastDouble(value); };
    const Doubles4 f = doublesOf(fraction), s = f / (c(2) + f), z = s * s;
    Doubles4 p = c(0.1957278348023941398);
    p = p * z + c(0.2217705518936215232);
    p = p * z + c(0.2857208590932669297);
    p = p * z + c(0.3999999587635325174);
    p = p * z + c(0.6666666667487682548);
    p = p * z + c(2);
    const Doubles4 ln = doublesOf(k) * c(0.6931471805599453 / kExponent) + s * p;
    return truncated(ln * factor + c(0.5));
  }
  auto half(const Byte* p) const {
    const Samples16<T> given{load16(p)}, one = broadcast16<T>(1), x = max(given, one);
    const Parts<Floats8> parts =
        partsOf(floatsOf(joined(firstDwords(x), lastDwords(x))), constants.get<Floats8>(kBias), constants);
    const Samples16<T> results =
        narrowSigned<T>(four(lowHalf(parts.k), lowHalf(parts.f)), four(highHalf(parts.k), highHalf(parts.f)));
    return bytesOf(Marked<Samples16<T>>{results, given ^ x});
  }
};

}  // namespace

template <typename T>
[[gnu::flatten]] int lnRows(SourceRows src, TargetRows dst, Extent samples,
                            [[maybe_unused]] int scaleFactor) {
  if constexpr (std::is_same_v<T, float>) {
    return walkKeepingFirst(
        samples.rows,
        [&](const Byte* s, Byte* d) {
          const Marks marks = runUnary<T, 0>({s, 0}, {d, 0}, {samples.length, 1}, OfFloats<LnOfFloats>());
          return bitsOfDwords(marks.all());
        },
        src, dst);
  } else {
    // From 5 on all results are zero, and at the lowest factor that of 2 is limited already.
    const int s = std::clamp(scaleFactor, -std::numeric_limits<T>::digits - 1, 5);
    using F = std::conditional_t<sizeof(T) == 1, LnOfBytes, LnOfWords<T>>;
    return runUnary<T, 0>(src, dst, samples, OfHalves<F>(s)).any() ? kLnOfZero : 0;
  }
}

template int lnRows<uint8_t>(SourceRows, TargetRows, Extent, int);
template int lnRows<uint16_t>(SourceRows, TargetRows, Extent, int);
template int lnRows<int16_t>(SourceRows, TargetRows, Extent, int);
template int lnRows<float>(SourceRows, TargetRows, Extent, int);

}  // namespace lumi
