// SPDX-License-Identifier: MIT
// Products and sums of filters.
#pragma once

#include "kernels/simd/convert.hpp"
#include "kernels/simd/rounding.hpp"

namespace lumi::simd {

// Products of words, added up in pairs of neighbours.
inline S32 pairSums(S16 a, S16 b) { return {_mm_madd_epi16(a.v, b.v)}; }

// Products of unsigned and signed bytes, added up in pairs of neighbours, limited to words.
inline S16 pairSums(U8 a, S8 b) { return {_mm_maddubs_epi16(a.v, b.v)}; }

// The last eight bytes, as the first.
inline S16 upperHalf(S16 x) { return {_mm_unpackhi_epi64(x.v, x.v)}; }

// The second four bytes, as the first.
inline U8 upperDword(U8 x) { return {_mm_srli_epi64(x.v, 32)}; }

// The samples of two vectors in turn, from the low or the high half.
inline U8 interleavedLow(U8 a, U8 b) { return {_mm_unpacklo_epi8(a.v, b.v)}; }
inline U8 interleavedHigh(U8 a, U8 b) { return {_mm_unpackhi_epi8(a.v, b.v)}; }
inline S16 interleavedLow(S16 a, S16 b) { return {_mm_unpacklo_epi16(a.v, b.v)}; }
inline S16 interleavedHigh(S16 a, S16 b) { return {_mm_unpackhi_epi16(a.v, b.v)}; }
inline S16 wordsLow(U8 x) { return {widenedLow(x).v}; }
inline S16 wordsHigh(U8 x) { return {widenedHigh(x).v}; }

inline void storeLow8(Byte* p, Bytes16 v) { _mm_storel_epi64(reinterpret_cast<__m128i*>(p), v); }

inline void storeFloats(Byte* p, Floats8 x) { store32(p, bytesOf(x)); }
inline void storeFloats(Byte* p, Floats4 x) { store16(p, bytesOf(x)); }
template <typename Floats>
Floats loadFloats(const Byte* p) {
  if constexpr (std::is_same_v<Floats, Floats8>)
    return loadFloats8(p);
  else
    return loadFloats4(p);
}

// Truncated; INT_MIN for what is beyond, and for what is not a number.
inline int truncated(float x) { return _mm_cvttss_si32(_mm_set_ss(x)); }

}  // namespace lumi::simd
