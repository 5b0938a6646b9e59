// SPDX-License-Identifier: MIT
// Vector pieces of mapping one sample type onto another.
#pragma once

#include "kernels/simd/convert.hpp"
#include "kernels/simd/rounding.hpp"

namespace lumi::simd {

// Bytes as floats.
inline Floats4 floatsOf4Bytes(const Byte* p) { return {_mm_cvtepi32_ps(_mm_cvtepu8_epi32(loadFew<4>(p)))}; }
inline Floats8 floatsOf8Bytes(const Byte* p) {
  return {_mm256_cvtepi32_ps(joined(_mm_cvtepu8_epi32(loadFew<4>(p)), _mm_cvtepu8_epi32(loadFew<4>(p + 4))))};
}

// a / 256 to the nearest, halves up.
inline S16 nearest256th(S16 a) { return {_mm_mulhrs_epi16(a.v, _mm_set1_epi16(128))}; }
inline S32 nearest256th(S32 a) { return shiftRight<1>(shiftRight<7>(a) + broadcast(1)); }

inline Floats4 lowHalf(Floats8 a) { return {_mm256_castps256_ps128(a.v)}; }

}  // namespace lumi::simd
