// SPDX-License-Identifier: MIT
// Floats to integers and back. What rounds does so by the vector unit's rounding control, unless its name
// says otherwise.
#pragma once

#include "kernels/simd/samples.hpp"

namespace lumi::simd {

// Signed dwords in a vector that has no integer operations of its own.
struct Ints8 {
  Bytes32 v;
};
inline S32 lowHalf(Ints8 x) { return {lowHalf(x.v)}; }
inline S32 highHalf(Ints8 x) { return {highHalf(x.v)}; }
inline Ints8 joined(S32 low, S32 high) { return {joined(low.v, high.v)}; }

inline Floats8 loadFloats8(const Byte* p) { return {asFloats(load32(p))}; }
inline Floats4 loadFloats4(const Byte* p) { return {_mm_castsi128_ps(load16(p))}; }

template <typename Floats>
Floats broadcastFloat(float x) {
  if constexpr (std::is_same_v<Floats, Floats8>)
    return {_mm256_set1_ps(x)};
  else
    return {_mm_set1_ps(x)};
}

inline Bytes32 bytesOf(Floats8 x) { return asBytes(x.v); }
inline Floats4 operator&(Floats4 a, Floats4 b) { return {_mm_and_ps(a.v, b.v)}; }
inline Floats8 operator&(Floats8 a, Floats8 b) { return {_mm256_and_ps(a.v, b.v)}; }
inline Floats4 operator|(Floats4 a, Floats4 b) { return {_mm_or_ps(a.v, b.v)}; }
inline Floats8 operator|(Floats8 a, Floats8 b) { return {_mm256_or_ps(a.v, b.v)}; }

// Where either is not a number, the instructions give their second operand.
inline Floats4 limitedFromAbove(Floats4 x, Floats4 highest) { return {_mm_min_ps(highest.v, x.v)}; }
inline Floats8 limitedFromAbove(Floats8 x, Floats8 highest) { return {_mm256_min_ps(highest.v, x.v)}; }
// Zero where x is negative or not a number.
inline Floats4 positivePart(Floats4 x) { return {_mm_max_ps(x.v, _mm_setzero_ps())}; }
inline Floats8 positivePart(Floats8 x) { return {_mm256_max_ps(x.v, _mm256_setzero_ps())}; }

// Masks; false where either is not a number.
inline Floats4 isAtLeast(Floats4 a, Floats4 b) { return {_mm_cmpge_ps(a.v, b.v)}; }
inline Floats8 isAtLeast(Floats8 a, Floats8 b) { return {_mm256_cmp_ps(a.v, b.v, _CMP_GE_OS)}; }

inline S32 intsOf(Floats4 mask) { return {_mm_castps_si128(mask.v)}; }
inline Ints8 intsOf(Floats8 mask) { return {asBytes(mask.v)}; }
inline Ints8 operator^(Ints8 a, Ints8 b) { return {asBytes(_mm256_xor_ps(asFloats(a.v), asFloats(b.v)))}; }
inline Ints8 operator|(Ints8 a, Ints8 b) { return {asBytes(_mm256_or_ps(asFloats(a.v), asFloats(b.v)))}; }

// To an integer; INT32_MIN for what is beyond, and for what is not a number.
inline S32 rounded(Floats4 x) { return {_mm_cvtps_epi32(x.v)}; }
inline Ints8 rounded(Floats8 x) { return {_mm256_cvtps_epi32(x.v)}; }

// To nearest, ties away from zero, while the rounding control truncates; the same for what is beyond. The sum
// is truncated as well: rounded to nearest it could reach the next integer, as from the last float below 1/2.
template <typename Floats>
auto roundedAway(Floats x) {
  const Floats sign = broadcastFloat<Floats>(-0.0F), half = broadcastFloat<Floats>(0.5F);
  return rounded(x + ((x & sign) | half));
}

inline Floats4 floatsOf(S32 x) { return {_mm_cvtepi32_ps(x.v)}; }
inline Floats8 floatsOf(Ints8 x) { return {_mm256_cvtepi32_ps(x.v)}; }

// Both parts are exact, so that only the sum rounds.
inline Floats4 floatsOf(U32 x) {
  const S32 high{shiftRight<16>(x).v}, low{(x & broadcast<uint32_t>(0xFFFF)).v};
  return floatsOf(high) * broadcastFloat<Floats4>(65536) + floatsOf(low);
}

}  // namespace lumi::simd
