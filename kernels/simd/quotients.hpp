// SPDX-License-Identifier: MIT
// Approximate reciprocals, pairs of doubles, and whole numbers as floats.
#pragma once

#include "kernels/simd/elementary.hpp"
#include "kernels/simd/rounding.hpp"

namespace lumi::simd {

// The processor's own, to about twelve bits.
inline Floats4 approximateReciprocal(Floats4 x) { return {_mm_rcp_ps(x.v)}; }
inline Floats8 approximateReciprocal(Floats8 x) { return {_mm256_rcp_ps(x.v)}; }

inline Doubles4 operator&(Doubles4 a, Doubles4 b) { return {_mm256_and_pd(a.v, b.v)}; }
inline Doubles4 operator|(Doubles4 a, Doubles4 b) { return {_mm256_or_pd(a.v, b.v)}; }
inline Floats4 operator^(Floats4 a, Floats4 b) { return {_mm_xor_ps(a.v, b.v)}; }

// A mask of what is a number.
inline Floats8 isNumber(Floats8 x) { return {_mm256_cmp_ps(x.v, x.v, _CMP_ORD_Q)}; }
inline Doubles4 isNumber(Doubles4 x) { return {_mm256_cmp_pd(x.v, x.v, _CMP_ORD_Q)}; }

// Masks of unequal numbers.
inline Floats4 isBelowOrAbove(Floats4 a, Floats4 b) { return {_mm_cmp_ps(a.v, b.v, _CMP_NEQ_OQ)}; }
inline Floats8 isBelowOrAbove(Floats8 a, Floats8 b) { return {_mm256_cmp_ps(a.v, b.v, _CMP_NEQ_OQ)}; }
inline Doubles4 isEqual(Doubles4 a, Doubles4 b) { return {_mm256_cmp_pd(a.v, b.v, _CMP_EQ_OQ)}; }
// Whether any sign is set.
inline bool anySign(Floats4 x) { return _mm_movemask_ps(x.v) != 0; }
inline bool anySign(Floats8 x) { return _mm256_movemask_ps(x.v) != 0; }
inline bool anySign(Doubles4 x) { return _mm256_movemask_pd(x.v) != 0; }

// Of neighbours: the sums of those of a and those of b in turn; each in the other's place; the second one's
// sign turned.
inline Doubles4 addPairs(Doubles4 a, Doubles4 b) { return {_mm256_hadd_pd(a.v, b.v)}; }
inline Doubles4 swappedPairs(Doubles4 x) { return {_mm256_permute_pd(x.v, 0b0101)}; }
inline Doubles4 conjugate(Doubles4 x) { return {_mm256_xor_pd(x.v, _mm256_setr_pd(0.0, -0.0, 0.0, -0.0))}; }

// All lanes the same, of any of the vectors.
template <typename V>
V broadcastReal(double x) {
  if constexpr (std::is_same_v<V, Doubles4>)
    return {_mm256_set1_pd(x)};
  else
    return broadcastFloat<V>(static_cast<float>(x));
}

// Whole numbers, which stay floats: by the rounding control, to nearest with ties to even, toward zero,
// toward minus infinity.
inline constexpr int kAsControlled = _MM_FROUND_CUR_DIRECTION | _MM_FROUND_NO_EXC,
                     kTowardZero = _MM_FROUND_TO_ZERO | _MM_FROUND_NO_EXC,
                     kDownward = _MM_FROUND_TO_NEG_INF | _MM_FROUND_NO_EXC;
template <int how>
Floats4 whole(Floats4 x) {
  return {_mm_round_ps(x.v, how)};
}
template <int how>
Floats8 whole(Floats8 x) {
  return {_mm256_round_ps(x.v, how)};
}
template <int how>
Doubles4 whole(Doubles4 x) {
  return {_mm256_round_pd(x.v, how)};
}

inline Floats4 floatsOf(Doubles4 x) { return {_mm256_cvtpd_ps(x.v)}; }
inline S32 rounded(Doubles4 x) { return {_mm256_cvtpd_epi32(x.v)}; }

}  // namespace lumi::simd
