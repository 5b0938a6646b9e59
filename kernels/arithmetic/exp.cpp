// SPDX-License-Identifier: MIT
#include "kernels/arithmetic/exp.hpp"

#include "kernels/arithmetic/unary_rows.hpp"

namespace lumi {
namespace {

using namespace simd;

// Exponentials grow so fast that few integers lie between those whose results round to zero and those whose
// results are limited: at most 13 for words, at any scale factor. Sixteen results from the last zero on, made
// once a call, serve all samples.
struct Results {
  static constexpr int kCount = 16;
  int first;  // the sample that the first one belongs to
  Byte low[kCount], high[kCount];
};

constexpr double kLog2OfE = 1.4426950408889634, kLn2 = 0.6931471805599453;

// e^x * 2^-s: the multiple of ln 2 next to x goes off in two parts, of which the first one's products are
// exact (Cody and Waite), and what is left, at most ln 2 / 2, has a polynomial whose coefficients make the
// largest error smallest (Remez): 2^-64. Zero gives 2^-s exactly.
double scaledExponential(int x, int s) {
  constexpr double high = 0.6931471803691238, low = 1.9082149292705877e-10;
  constexpr double coefficients[] = {2.092849652459937364e-09,
                                     2.511488700519402746e-08,
                                     2.75572269809876304e-07,
                                     2.755722490572198642e-06,
                                     2.480158738378915067e-05,
                                     1.984126990927428586e-04,
                                     1.388888888885091263e-03,
                                     8.333333333309500229e-03,
                                     4.166666666666675124e-02,
                                     1.666666666666670246e-01,
                                     0.5,
                                     1,
                                     1};
  const int n = static_cast<int>(x * kLog2OfE + (x < 0 ? -0.5 : 0.5));
  const double r = (x - n * high) - n * low;
  double sum = 0;
  for (double c : coefficients) sum = sum * r + c;
  return sum * powerOfTwo(n - s);
}

// e^0 to e^15.
alignas(32) constexpr double kExponentials[Results::kCount] = {
    1,
    2.718281828459045,
    7.38905609893065,
    20.085536923187668,
    54.598150033144236,
    148.4131591025766,
    403.4287934927351,
    1096.6331584284585,
    2980.9579870417283,
    8103.083927575384,
    22026.465794806718,
    59874.14171519782,
    162754.79141900392,
    442413.3920089205,
    1202604.2841647768,
    3269017.3724721107,
};

// The closest that e^x * 2^-s comes to a tie, for all words and all factors, is 2^-35 of it (but for e^0 / 2,
// which is one): a few errors of 2^-53 do not matter.
template <typename T>
Results resultsOf(int scaleFactor) {
  using Limits = std::numeric_limits<T>;
  // From 17 factors below on, the smallest sample is limited too.
  const int s = std::max(scaleFactor, static_cast<int>(Limits::min() * kLog2OfE) - 20);
  const double lastZero = (s - 1) * kLn2;  // e^lastZero * 2^-s is 1/2
  const int below = static_cast<int>(lastZero) - (lastZero < 0);
  Results results;
  results.first = std::max<int>(below, Limits::min());
  const Doubles4 first = broadcastDouble(scaledExponential(results.first, s)),
                 largest = broadcastDouble(Limits::max());
  const auto four = [&](int i) {
    return roundedToEven(min(first * loadDoubles4(kExponentials + i), largest));
  };
  const U16 low = narrowSigned<uint16_t>(four(0), four(4)), high = narrowSigned<uint16_t>(four(8), four(12)),
            byte = broadcast16<uint16_t>(0xFF);
  store16(results.low, narrowSigned<uint8_t>(as<int16_t>(low & byte), as<int16_t>(high & byte)).v);
  store16(results.high,
          narrowSigned<uint8_t>(as<int16_t>(shiftRight<8>(low)), as<int16_t>(shiftRight<8>(high))).v);
  return results;
}

constexpr int kLastResult = Results::kCount - 1;

struct ExpOfBytes {
  Samples<uint8_t> first;
  VectorBytes results;
  explicit ExpOfBytes(const Results& of)
      : first(broadcast(static_cast<uint8_t>(of.first))), results(repeated(load16(of.low))) {}

  VectorBytes vector(const Byte* p) const {
    const Samples<uint8_t> x{loadVector(p)};
    return shuffleBytes(results, bytesOf(min(subSaturated(x, first), broadcast<uint8_t>(kLastResult))));
  }
};

// The low and the high bytes of results come from tables of their own. An index with its top bit set gives 0.
template <typename T>
struct ExpOfWords {
  Samples<T> first;
  VectorBytes low, high;
  Shift toHigh;
  explicit ExpOfWords(const Results& of)
      : first(broadcast(static_cast<T>(of.first))),
        low(repeated(load16(of.low))),
        high(repeated(load16(of.high))),
        toHigh(8) {}

  VectorBytes vector(const Byte* p) const {
    const Samples<T> x{loadVector(p)};
    const auto above = as<uint16_t>(max(x, first) - first);
    const auto index = min(above, broadcast<uint16_t>(kLastResult)) | broadcast<uint16_t>(0x8000);
    const Samples<uint16_t> lows{shuffleBytes(low, bytesOf(index))},
        highs{shuffleBytes(high, bytesOf(index))};
    return bytesOf(lows | (highs << toHigh));
  }
};

// x = n ln 2 + r with |r| of at most ln 2 / 2, where n ln 2 goes off in two parts, of which the first one's
// products are exact (Cody and Waite). e^r is 1 + r + r^2 p(r), with coefficients that make the largest error
// smallest (Remez): 2^-28. What is small is summed up first.
namespace of_floats {

enum { kLog2, kHighLn2, kLowLn2, kP0, kP1, kP2, kP3, kP4, kOne, kExponent, kBias, kMost };
constexpr float kStep = 1 << 23;  // of the exponent among a float's bits
constexpr auto kTable =
    spread(1.44269504F, 0.693145752F, 1.42860677e-06F, 0.5F, 1.66665188e-01F, 4.16662057e-02F,
           8.36889178e-03F, 1.39504953e-03F, 1.0F, kStep, 127 * kStep, 87.0F);

template <typename V>
struct Power {
  V mantissa, exponent;
};

template <typename V>
Power<V> powerOf(V x, const Constants& constants) {
  const auto c = [&](int which) { return constants.get<V>(which); };
  const V n = nearest(x * c(kLog2));
  const V high = x - n * c(kHighLn2), low = n * c(kLowLn2), r = high - low, square = r * r;
  const V p = (c(kP0) + c(kP1) * r) + square * ((c(kP2) + c(kP3) * r) + square * c(kP4));
  return {((p * square - low) + high) + c(kOne), n};
}

template <typename V>
V powerOfTwo(V n, const Constants& constants) {
  return withBits(truncated(n * constants.get<V>(kExponent) + constants.get<V>(kBias)));
}

// Any floats, by memory, since it is called seldom. 2^n is made in two steps: the result may be a denormal,
// or 2^128 times less than 1. Beyond the limits all results are infinite, or zero.
template <typename V>
[[gnu::noinline, gnu::cold]] void expOfAny(const Byte* samples, Byte* results) {
  const Constants constants(kTable);
  V x;
  std::memcpy(&x, samples, sizeof x);
  x = max(broadcastFloat<V>(-104), min(broadcastFloat<V>(89), x));  // not a number stays
  const Power<V> power = powerOf(x, constants);
  const V half = nearest(power.exponent * broadcastFloat<V>(0.5F));
  x = power.mantissa * powerOfTwo(half, constants) * powerOfTwo(power.exponent - half, constants);
  std::memcpy(results, &x, sizeof x);
}

struct Exp {
  Constants constants{kTable};

  template <typename V>
  V operator()(V x) const {
    const V magnitude = x & broadcastBits<V>(INT32_MAX);
    if (__builtin_expect(allSet(isBelow(magnitude, constants.get<V>(kMost))), true)) {
      const Power<V> power = powerOf(x, constants);
      return power.mantissa * powerOfTwo(power.exponent, constants);
    }
    Byte samples[sizeof(V)], results[sizeof(V)];
    std::memcpy(samples, &x, sizeof x);
    expOfAny<V>(samples, results);
    std::memcpy(&x, results, sizeof x);
    return x;
  }
};

}  // namespace of_floats

}  // namespace

template <typename T>
[[gnu::flatten]] void expRows(SourceRows src, TargetRows dst, Extent samples,
                              [[maybe_unused]] int scaleFactor) {
  if constexpr (std::is_same_v<T, float>)
    runUnary<T, 0>(src, dst, samples, OfFloats<of_floats::Exp>());
  else if constexpr (sizeof(T) == 1)
    runUnary<T, 0>(src, dst, samples, ExpOfBytes(resultsOf<T>(scaleFactor)));
  else
    runUnary<T, 0>(src, dst, samples, ExpOfWords<T>(resultsOf<T>(scaleFactor)));
}

template void expRows<uint8_t>(SourceRows, TargetRows, Extent, int);
template void expRows<uint16_t>(SourceRows, TargetRows, Extent, int);
template void expRows<int16_t>(SourceRows, TargetRows, Extent, int);
template void expRows<float>(SourceRows, TargetRows, Extent, int);

}  // namespace lumi
