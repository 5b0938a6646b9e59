// SPDX-License-Identifier: MIT
// Vector pieces of mapping one sample type onto another.
#pragma once

#include "kernels/simd/samples.hpp"

namespace lumi::simd {

// Four or eight bytes, then zeros.
inline Bytes16 load4(const Byte* p) {
  int v = 0;
  std::memcpy(&v, p, sizeof v);
  return _mm_cvtsi32_si128(v);
}
inline Bytes16 load8(const Byte* p) { return _mm_loadl_epi64(reinterpret_cast<const __m128i*>(p)); }

// Words whose low bytes are the first or the last eight bytes of `low`, and whose high ones those of `high`.
inline Bytes16 wordsOf(Bytes16 low, Bytes16 high) { return _mm_unpacklo_epi8(low, high); }
inline Bytes16 wordsOfHigh(Bytes16 low, Bytes16 high) { return _mm_unpackhi_epi8(low, high); }

// Bytes as floats.
inline Floats4 floatsOf4Bytes(const Byte* p) { return {_mm_cvtepi32_ps(_mm_cvtepu8_epi32(load4(p)))}; }
inline Floats8 floatsOf8Bytes(const Byte* p) {
  return {_mm256_cvtepi32_ps(joined(_mm_cvtepu8_epi32(load4(p)), _mm_cvtepu8_epi32(load4(p + 4))))};
}

// Samples limited to those of half the size.
inline S8 packSat(S16 a, S16 b) { return {_mm_packs_epi16(a.v, b.v)}; }
inline S16 packSat(S32 a, S32 b) { return {_mm_packs_epi32(a.v, b.v)}; }

// a / 256 to the nearest, halves up.
inline S16 nearest256th(S16 a) { return {_mm_mulhrs_epi16(a.v, _mm_set1_epi16(128))}; }
inline S32 nearest256th(S32 a) { return shiftRight<1>(shiftRight<7>(a) + broadcast(1)); }

// Floats by the unit's rounding, limited to 16 bits. NaN and what is beyond 32-bit integers on either side
// give the lower limit, so a limit from above comes first; a NaN is no number to limit, and stays.
inline Floats8 limitedFromAbove(Floats8 a, Floats8 limit) { return {_mm256_min_ps(limit.v, a.v)}; }
inline S16 roundedToWords(Floats8 a) {
  const Bytes32 v = _mm256_cvtps_epi32(a.v);
  return packSat(S32{lowHalf(v)}, S32{highHalf(v)});
}
inline Bytes16 packSatUnsigned(S16 a, S16 b) { return _mm_packus_epi16(a.v, b.v); }

inline Floats8 broadcastFloats8(float x) { return {_mm256_set1_ps(x)}; }
inline Floats4 lowHalf(Floats8 a) { return {_mm256_castps256_ps128(a.v)}; }
inline Floats8 loadFloats8(const Byte* p) { return {asFloats(load32(p))}; }

}  // namespace lumi::simd
