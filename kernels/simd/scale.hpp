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
// Unsigned words as floats.
inline Floats8 floatsOf8Words(const Byte* p) {
  return {
      _mm256_cvtepi32_ps(joined(_mm_cvtepu16_epi32(loadFew<8>(p)), _mm_cvtepu16_epi32(loadFew<8>(p + 8))))};
}

// a / 256 to the nearest, halves up.
template <size_t bytes>
SamplesOf<int16_t, bytes> nearest256th(SamplesOf<int16_t, bytes> a) {
  return multiplyHighRounded(a, broadcastLike(a, int16_t{128}));
}
template <size_t bytes>
SamplesOf<int32_t, bytes> nearest256th(SamplesOf<int32_t, bytes> a) {
  return shiftRight<1>(shiftRight<7>(a) + broadcastLike(a, 1));
}

}  // namespace lumi::simd
