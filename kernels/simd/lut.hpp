// SPDX-License-Identifier: MIT
// Vector pieces of look-ups: choices by bits, and functions of doubles as entries of tables.
#pragma once

#include "kernels/simd/elementary.hpp"

namespace lumi::simd {

// By bytes: yes where the mask's highest bit is set, else no. Of the function for it compilers make masks of
// whole bytes first.
template <size_t bytes>
SamplesOf<uint8_t, bytes> byHighestBit(SamplesOf<uint8_t, bytes> mask, SamplesOf<uint8_t, bytes> yes,
                                       SamplesOf<uint8_t, bytes> no) {
  SamplesOf<uint8_t, bytes> v;
  asm("vpblendvb %3, %2, %1, %0" : "=x"(v.v) : "x"(no.v), "x"(yes.v), "x"(mask.v));
  return v;
}

// The same address, of which compilers do not know that: what is there is loaded again rather than kept in
// registers that there are not.
inline const Byte* loadedAnew(const Byte* p) {
  asm("" : "+r"(p));
  return p;
}

struct Doubles8 {
  Doubles4 low, high;
};
// A mask of floats as one of the doubles that they become.
inline Doubles8 widenedMask(Floats8 mask) {
  const __m256 low = _mm256_unpacklo_ps(mask.v, mask.v), high = _mm256_unpackhi_ps(mask.v, mask.v);
  return {{_mm256_castps_pd(_mm256_permute2f128_ps(low, high, 0x20))},
          {_mm256_castps_pd(_mm256_permute2f128_ps(low, high, 0x31))}};
}
inline Doubles8 ifThenElse(Doubles8 mask, Doubles8 yes, Doubles8 no) {
  return {ifThenElse(mask.low, yes.low, no.low), ifThenElse(mask.high, yes.high, no.high)};
}
inline Doubles8 widened(Floats8 x) {
  return {{_mm256_cvtps_pd(_mm256_castps256_ps128(x.v))}, {_mm256_cvtps_pd(_mm256_extractf128_ps(x.v, 1))}};
}
inline Floats8 narrowed(Doubles8 x) {
  return {
      _mm256_insertf128_ps(_mm256_castps128_ps256(_mm256_cvtpd_ps(x.low.v)), _mm256_cvtpd_ps(x.high.v), 1)};
}
inline Doubles8 operator+(Doubles8 a, Doubles8 b) { return {a.low + b.low, a.high + b.high}; }
inline Doubles8 operator*(Doubles8 a, Doubles8 b) { return {a.low * b.low, a.high * b.high}; }

}  // namespace lumi::simd
