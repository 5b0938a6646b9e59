// SPDX-License-Identifier: MIT
// Vectors of a resize: pixels gathered by address, products of fixed-point samples, blends of floats.
#pragma once

#include "kernels/simd/convert.hpp"
#include "kernels/simd/ties_to_even.hpp"

namespace lumi::simd {

// Dwords or quadwords from addresses of their own.
inline Bytes16 gatherDwords(const Byte* a, const Byte* b, const Byte* c, const Byte* d) {
  const auto dword = [](const Byte* p) {
    int v = 0;
    move<4>(reinterpret_cast<Byte*>(&v), p);
    return v;
  };
  return _mm_insert_epi32(
      _mm_insert_epi32(_mm_insert_epi32(_mm_cvtsi32_si128(dword(a)), dword(b), 1), dword(c), 2), dword(d), 3);
}
inline Bytes16 gatherQuadwords(const Byte* a, const Byte* b) {
  return _mm_castps_si128(_mm_loadh_pi(_mm_castsi128_ps(loadFew<8>(a)), reinterpret_cast<const __m64*>(b)));
}
// Dwords index[0..3] - index[0], which are 0 to 3, of the four at p.
inline Bytes16 pickNear(const Byte* p, const int32_t* index) {
  const Bytes16 control =
      _mm_sub_epi32(load16(reinterpret_cast<const Byte*>(index)), _mm_set1_epi32(index[0]));
  return _mm_castps_si128(_mm_permutevar_ps(_mm_castsi128_ps(load16(p)), control));
}

// Word i from p.
template <int i>
Bytes16 insertWord(Bytes16 v, const Byte* p) {
  uint16_t word = 0;
  move<2>(reinterpret_cast<Byte*>(&word), p);
  return _mm_insert_epi16(v, word, i);
}

inline Doubles4 doublesOf(Bytes32 v) { return {_mm256_castsi256_pd(v)}; }

inline Floats8 load(const float* p) { return {_mm256_loadu_ps(p)}; }
inline Doubles4 load(const double* p) { return {_mm256_loadu_pd(p)}; }
inline void store(float* p, Floats8 x) { _mm256_storeu_ps(p, x.v); }
inline void store(float* p, Floats4 x) { _mm_storeu_ps(p, x.v); }
inline void store(double* p, Doubles4 x) { _mm256_storeu_pd(p, x.v); }
inline Floats8 broadcastWide(float x) { return {_mm256_set1_ps(x)}; }
inline Doubles4 broadcastWide(double x) { return {_mm256_set1_pd(x)}; }

// The even and the odd elements of two vectors, half by half.
inline Floats8 evens(Bytes32 a, Bytes32 b) { return {_mm256_shuffle_ps(asFloats(a), asFloats(b), 0x88)}; }
inline Floats8 odds(Bytes32 a, Bytes32 b) { return {_mm256_shuffle_ps(asFloats(a), asFloats(b), 0xDD)}; }
// Of the first or the last two floats of each half, those of a and b in turn.
inline Bytes32 interleaveLow(Floats8 a, Floats8 b) { return asBytes(_mm256_unpacklo_ps(a.v, b.v)); }
inline Bytes32 interleaveHigh(Floats8 a, Floats8 b) { return asBytes(_mm256_unpackhi_ps(a.v, b.v)); }
inline Doubles4 evenDoubles(Bytes32 a, Bytes32 b) {
  return {_mm256_unpacklo_pd(_mm256_castsi256_pd(a), _mm256_castsi256_pd(b))};
}
inline Doubles4 oddDoubles(Bytes32 a, Bytes32 b) {
  return {_mm256_unpackhi_pd(_mm256_castsi256_pd(a), _mm256_castsi256_pd(b))};
}

// Each float at a place of its half of one vector, or of two: then of the first where the sign is set.
inline Floats8 floatsAt(Bytes32 v, Bytes32 places) { return {_mm256_permutevar_ps(asFloats(v), places)}; }
inline Floats8 floatsAt(Bytes32 first, Bytes32 second, Bytes32 places) {
  const Floats8 negative = floatsAt(first, places), other = floatsAt(second, places);
  Floats8 chosen;
  // Of the intrinsic, compilers without wide integers make a branch for each float.
  asm("vblendvps %3, %2, %1, %0" : "=x"(chosen.v) : "x"(other.v), "x"(negative.v), "x"(asFloats(places)));
  return chosen;
}

// The low or the high word of each dword, as a dword.
template <typename T>
S32 lowWords(Bytes16 v) {
  static_assert(sizeof(T) == 2);
  return {std::is_signed_v<T> ? _mm_srai_epi32(_mm_slli_epi32(v, 16), 16)
                              : _mm_blend_epi16(v, _mm_setzero_si128(), 0xAA)};
}
template <typename T>
S32 highWords(Bytes16 v) {
  static_assert(sizeof(T) == 2);
  return {std::is_signed_v<T> ? _mm_srai_epi32(v, 16) : _mm_srli_epi32(v, 16)};
}

}  // namespace lumi::simd
