// SPDX-License-Identifier: MIT
// Roots by the processor's instruction. Integer results are exact: a root r = sqrt(x) * 2^-s that is no tie
// differs from the nearest one, k + 1/2, since (2k + 1)^2 and x * 4^(1 - s) differ by 1 at least where s is
// not above 0; so by 2^-21 of r at least for words down to s = -1, and for bytes by 2^-19. A float's error is
// below 2^-23 in any rounding mode. Words at lower factors come as close as 2^-35, and are made of doubles.
// Roots that are ties, and all whole ones, are exact in either.
#include "kernels/arithmetic/sqrt.hpp"

#include "kernels/arithmetic/unary_rows.hpp"
#include "kernels/simd/scale.hpp"

namespace lumi {
namespace {

using namespace simd;

struct RootOfFloats {
  template <typename V>
  auto operator()(V x) const {
    return Marked<V>{squareRoot(x), isBelow(x, broadcastFloat<V>(0))};
  }
};

struct RootOfBytes {
  Floats8 factor;
  explicit RootOfBytes(int s) : factor(broadcastFloat<Floats8>(static_cast<float>(powerOfTwo(-s)))) {}

  S16 eight(const Byte* p) const {
    const Ints8 roots = roundedToEven(squareRoot(floatsOf8Bytes(p)) * factor);
    return narrowSaturated<int16_t>(lowHalf(roots), highHalf(roots));
  }
  Bytes16 half(const Byte* p) const { return narrowSaturated<uint8_t>(eight(p), eight(p + 8)).v; }
};

// Results with marks where samples can be negative.
template <typename T>
auto marked(Samples16<T> results, Samples16<T> x) {
  if constexpr (std::is_signed_v<T>)
    return bytesOf(Marked<Samples16<T>>{results, isAboveSigned(broadcast16<T>(0), x)});
  else
    return results.v;
}
template <typename T>
Samples16<T> notNegative(Samples16<T> x) {
  if constexpr (std::is_signed_v<T>)
    return max(x, broadcast16<T>(0));
  else
    return x;
}

template <typename T>
struct RootOfWords {
  Floats8 factor;
  explicit RootOfWords(int s) : factor(broadcastFloat<Floats8>(static_cast<float>(powerOfTwo(-s)))) {}

  auto half(const Byte* p) const {
    const Samples16<T> given{load16(p)}, x = notNegative(given);
    const Floats8 samples = floatsOf(joined(firstDwords(x), lastDwords(x)));
    const Ints8 roots = roundedToEven(squareRoot(samples) * factor);
    return marked(narrowSigned<T>(lowHalf(roots), highHalf(roots)), given);
  }
};

template <typename T>
struct FineRootOfWords {
  Doubles4 factor;
  explicit FineRootOfWords(int s) : factor(broadcastDouble(powerOfTwo(-s))) {}

  S32 four(S32 x) const { return roundedToEven(squareRoot(doublesOf(x)) * factor); }
  auto half(const Byte* p) const {
    const Samples16<T> given{load16(p)}, x = notNegative(given);
    return marked(narrowSigned<T>(four(firstDwords(x)), four(lastDwords(x))), given);
  }
};

}  // namespace

template <typename T, int alpha>
[[gnu::flatten]] bool rootRows(SourceRows src, TargetRows dst, Extent samples,
                               [[maybe_unused]] int scaleFactor) {
  if constexpr (std::is_same_v<T, float>) {
    return runUnary<T, alpha>(src, dst, samples, OfFloats<RootOfFloats>()).any();
  } else {
    // From 9 on all results are zero, and from one bit more than the sample's down on all but that of zero
    // are limited: dwords hold a root of 8 bits, times 2^16.
    const int s = std::clamp(scaleFactor, -std::numeric_limits<T>::digits - 1, 9);
    if constexpr (sizeof(T) == 1)
      return runUnary<T, alpha>(src, dst, samples, OfHalves<RootOfBytes>(s)).any();
    else if (s >= -1)
      return runUnary<T, alpha>(src, dst, samples, OfHalves<RootOfWords<T>>(s)).any();
    else
      return runUnary<T, alpha>(src, dst, samples, OfHalves<FineRootOfWords<T>>(s)).any();
  }
}

#define LUMI_ROOT(T)                                                 \
  template bool rootRows<T, 0>(SourceRows, TargetRows, Extent, int); \
  template bool rootRows<T, 1>(SourceRows, TargetRows, Extent, int);
LUMI_ROOT(uint8_t)
LUMI_ROOT(uint16_t)
LUMI_ROOT(int16_t)
LUMI_ROOT(float)

}  // namespace lumi
