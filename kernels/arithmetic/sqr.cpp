// SPDX-License-Identifier: MIT
// Squares by a scale factor. No tie a^2 / 2^s goes up: for one, a is b * 2^((s - 1) / 2) with an odd b, b^2
// is 8 m + 1, and the even one of the two neighbours of b^2 / 2 is 4 m, below. So the rounded quotient is
// (a^2 + 2^(s-1) - 1) >> s.
#include "kernels/arithmetic/sqr.hpp"

#include "kernels/arithmetic/unary_rows.hpp"

namespace lumi {
namespace {

using namespace simd;

// The smallest number whose square times 2^k is above the type's largest sample, for each k.
template <typename T>
constexpr auto smallestBeyond() {
  constexpr int digits = std::numeric_limits<T>::digits;
  std::array<uint16_t, digits + 1> limits{};
  for (int k = 0; k <= digits; ++k) {
    uint32_t a = 0;
    while (a * a <= uint32_t{std::numeric_limits<T>::max()} >> k) ++a;
    limits[static_cast<size_t>(k)] = static_cast<uint16_t>(a);
  }
  return limits;
}

// The results of the bytes 1 to 16 for each k; all bytes above are limited too.
constexpr auto kSquaresOfBytes = [] {
  std::array<Control, 9> tables{};
  for (uint32_t k = 0; k < 9; ++k)
    for (uint32_t a = 1; a <= 16; ++a) {
      const uint32_t x = (a * a) << k;
      tables[k][a - 1] = static_cast<Byte>(x < 255 ? x : 255);
    }
  return tables;
}();

// x * 2^k of bytes.
struct MultipliedBytes {
  VectorBytes results;
  explicit MultipliedBytes(int k) : results(repeated(vectorOf(kSquaresOfBytes[static_cast<size_t>(k)]))) {}

  VectorBytes vector(const Byte* p) const {
    const Samples<uint8_t> a{loadVector(p)};
    // That of 0 is an index with its top bit set, which gives 0.
    return shuffleBytes(results, bytesOf(min(a, broadcast<uint8_t>(16)) - broadcast<uint8_t>(1)));
  }
};

// The average is half of a^2 + 2^(s-1) - 1, which may need a bit more than a word. At s = 1, a^2 / 2 goes
// down always.
struct DividedBytes {
  Samples<uint16_t> kept, bias;
  Shift rest;
  explicit DividedBytes(int s)
      : kept(broadcast(static_cast<uint16_t>(s == 1 ? 0xFFFE : 0xFFFF))),
        bias(broadcast(static_cast<uint16_t>(s == 1 ? 0 : (1 << (s - 1)) - 2))),
        rest(s - 1) {}

  // Below 2^15 for every s.
  Samples<int16_t> quotient(Samples<uint16_t> a) const {
    return as<int16_t>(averageUp((a * a) & kept, bias) >> rest);
  }
  VectorBytes vector(const Byte* p) const {
    const Samples<uint8_t> a{loadVector(p)};
    return bytesOf(narrowInterleaved<uint8_t>(quotient(widenLow(a)), quotient(widenHigh(a))));
  }
};

// Words as they are: a number limited to the smallest one beyond has a square of 16 bits, but for unsigned
// ones.
template <typename T>
struct SaturatedWords {
  static constexpr auto kBeyond = smallestBeyond<T>()[0];

  VectorBytes vector(const Byte* p) const {
    const Samples<T> x{loadVector(p)};
    const auto beyond = broadcast(kBeyond);
    if constexpr (std::is_signed_v<T>) {
      const auto a = min(magnitude(x), beyond);
      return bytesOf(min(a * a, broadcast<uint16_t>(INT16_MAX)));
    } else {
      return bytesOf((x * x) | isAtLeast(x, beyond));
    }
  }
};

// x * 2^k of words.
template <typename T>
struct MultipliedWords {
  Shift shift;
  Samples<uint16_t> beyond, largest;
  explicit MultipliedWords(int k)
      : shift(k),
        beyond(broadcast(kBeyond[static_cast<size_t>(k)])),
        largest(broadcast(static_cast<uint16_t>(std::numeric_limits<T>::max()))) {}

  static constexpr auto kBeyond = smallestBeyond<T>();

  VectorBytes vector(const Byte* p) const {
    const Samples<T> x{loadVector(p)};
    Samples<uint16_t> a = as<uint16_t>(x);
    if constexpr (std::is_signed_v<T>) a = magnitude(x);
    return bytesOf((((a * a) << shift) | isAtLeast(a, beyond)) & largest);
  }
};

template <typename T>
struct DividedWords;

// A square of at most 2^30 leaves room for what is added.
template <>
struct DividedWords<int16_t> {
  Samples<int32_t> bias;
  Shift shift;
  explicit DividedWords(int s) : bias(broadcast((int32_t{1} << (s - 1)) - 1)), shift(s) {}

  Samples<int32_t> quotient(Samples<int16_t> aAndZero) const {
    return (multiplyAddPairs(aAndZero, aAndZero) + bias) >> shift;
  }
  VectorBytes vector(const Byte* p) const {
    const Samples<int16_t> a{loadVector(p)}, zero = broadcast<int16_t>(0);
    return bytesOf(
        narrowInterleaved<int16_t>(quotient(interleaveLow(a, zero)), quotient(interleaveHigh(a, zero))));
  }
};

// A square of up to 32 bits does not: (a^2 + 2^(s-1) - 1) >> s is (((a^2 - 1) >> (s - 1)) + 1) >> 1 where a
// is not 0, and 1 gives 0 as well. It is below 2^31.
template <>
struct DividedWords<uint16_t> {
  Shift almost;
  explicit DividedWords(int s) : almost(s - 1) {}

  Samples<int32_t> quotient(Samples<uint16_t> lowAndHigh) const {
    const Samples<uint32_t> one = broadcast(uint32_t{1}), square = as<uint32_t>(lowAndHigh);
    return as<int32_t>(shiftRight<1>(((square - one) >> almost) + one));
  }
  VectorBytes vector(const Byte* p) const {
    const Samples<uint16_t> a = max(Samples<uint16_t>{loadVector(p)}, broadcast<uint16_t>(1));
    const Samples<uint16_t> low = a * a, high = multiplyHigh(a, a);
    return bytesOf(
        narrowInterleaved<uint16_t>(quotient(interleaveLow(low, high)), quotient(interleaveHigh(low, high))));
  }
};

struct SquareOfFloats {
  template <typename V>
  V operator()(V x) const {
    return x * x;
  }
};

}  // namespace

template <typename T, int alpha>
[[gnu::flatten]] void squareRows(SourceRows src, TargetRows dst, Extent samples, Scaling scaling) {
  if constexpr (std::is_same_v<T, float>) {
    runUnary<T, alpha>(src, dst, samples, OfFloats<SquareOfFloats>());
  } else {
    using Multiplied = std::conditional_t<sizeof(T) == 1, MultipliedBytes, MultipliedWords<T>>;
    using Divided = std::conditional_t<sizeof(T) == 1, DividedBytes, DividedWords<T>>;
    const bool divides = scaling.path == Scaling::Halve || scaling.path == Scaling::Divide;
    if (divides)
      runUnary<T, alpha>(src, dst, samples, Divided(scaling.bits));
    else if (sizeof(T) == 1 || scaling.bits > 0)
      runUnary<T, alpha>(src, dst, samples, Multiplied(scaling.bits));
    else if constexpr (sizeof(T) > 1)
      runUnary<T, alpha>(src, dst, samples, SaturatedWords<T>());
  }
}

#define LUMI_SQUARE(T)                                                     \
  template void squareRows<T, 0>(SourceRows, TargetRows, Extent, Scaling); \
  template void squareRows<T, 1>(SourceRows, TargetRows, Extent, Scaling);
LUMI_SQUARE(uint8_t)
LUMI_SQUARE(uint16_t)
LUMI_SQUARE(int16_t)
LUMI_SQUARE(float)

}  // namespace lumi
