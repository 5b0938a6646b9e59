// SPDX-License-Identifier: MIT
// Vectors of floats and doubles, and any sample type's vector as raw bytes.
#pragma once

#include "kernels/simd/samples.hpp"

namespace lumi::simd {

struct Floats4 {
  __m128 v;
};
struct Floats8 {
  __m256 v;
};
struct Doubles2 {
  __m128d v;
};
struct Doubles4 {
  __m256d v;
};

inline Floats4 operator+(Floats4 a, Floats4 b) { return {_mm_add_ps(a.v, b.v)}; }
inline Floats8 operator+(Floats8 a, Floats8 b) { return {_mm256_add_ps(a.v, b.v)}; }
inline Doubles2 operator+(Doubles2 a, Doubles2 b) { return {_mm_add_pd(a.v, b.v)}; }
inline Doubles4 operator+(Doubles4 a, Doubles4 b) { return {_mm256_add_pd(a.v, b.v)}; }
inline Floats4 operator-(Floats4 a, Floats4 b) { return {_mm_sub_ps(a.v, b.v)}; }
inline Floats8 operator-(Floats8 a, Floats8 b) { return {_mm256_sub_ps(a.v, b.v)}; }
inline Doubles2 operator-(Doubles2 a, Doubles2 b) { return {_mm_sub_pd(a.v, b.v)}; }
inline Doubles4 operator-(Doubles4 a, Doubles4 b) { return {_mm256_sub_pd(a.v, b.v)}; }
inline Floats4 operator*(Floats4 a, Floats4 b) { return {_mm_mul_ps(a.v, b.v)}; }
inline Floats8 operator*(Floats8 a, Floats8 b) { return {_mm256_mul_ps(a.v, b.v)}; }
inline Doubles2 operator*(Doubles2 a, Doubles2 b) { return {_mm_mul_pd(a.v, b.v)}; }
inline Doubles4 operator*(Doubles4 a, Doubles4 b) { return {_mm256_mul_pd(a.v, b.v)}; }

// Differences and sums in turn.
inline Floats4 subAddInTurn(Floats4 a, Floats4 b) { return {_mm_addsub_ps(a.v, b.v)}; }
inline Floats8 subAddInTurn(Floats8 a, Floats8 b) { return {_mm256_addsub_ps(a.v, b.v)}; }

inline Floats4 operator&(Floats4 a, Floats4 b) { return {_mm_and_ps(a.v, b.v)}; }
inline Floats8 operator&(Floats8 a, Floats8 b) { return {_mm256_and_ps(a.v, b.v)}; }
inline Floats4 operator|(Floats4 a, Floats4 b) { return {_mm_or_ps(a.v, b.v)}; }
inline Floats8 operator|(Floats8 a, Floats8 b) { return {_mm256_or_ps(a.v, b.v)}; }
inline Floats8 operator^(Floats8 a, Floats8 b) { return {_mm256_xor_ps(a.v, b.v)}; }

// Where either is not a number, and where both are zero, b.
inline Floats4 min(Floats4 a, Floats4 b) { return {_mm_min_ps(a.v, b.v)}; }
inline Floats8 min(Floats8 a, Floats8 b) { return {_mm256_min_ps(a.v, b.v)}; }
inline Floats4 max(Floats4 a, Floats4 b) { return {_mm_max_ps(a.v, b.v)}; }
inline Floats8 max(Floats8 a, Floats8 b) { return {_mm256_max_ps(a.v, b.v)}; }
inline Doubles4 min(Doubles4 a, Doubles4 b) { return {_mm256_min_pd(a.v, b.v)}; }
inline Doubles4 max(Doubles4 a, Doubles4 b) { return {_mm256_max_pd(a.v, b.v)}; }

// Masks; false where either is not a number.
inline Floats4 isAtLeast(Floats4 a, Floats4 b) { return {_mm_cmpge_ps(a.v, b.v)}; }
inline Floats8 isAtLeast(Floats8 a, Floats8 b) { return {_mm256_cmp_ps(a.v, b.v, _CMP_GE_OS)}; }
inline Floats4 isBelow(Floats4 a, Floats4 b) { return {_mm_cmp_ps(a.v, b.v, _CMP_LT_OQ)}; }
inline Floats8 isBelow(Floats8 a, Floats8 b) { return {_mm256_cmp_ps(a.v, b.v, _CMP_LT_OQ)}; }
template <typename V>
auto isAbove(V a, V b) -> decltype(isBelow(b, a)) {
  return isBelow(b, a);
}
inline Floats4 isEqual(Floats4 a, Floats4 b) { return {_mm_cmp_ps(a.v, b.v, _CMP_EQ_OQ)}; }
inline Floats8 isEqual(Floats8 a, Floats8 b) { return {_mm256_cmp_ps(a.v, b.v, _CMP_EQ_OQ)}; }

// b without the bits of a.
inline Floats4 andNot(Floats4 a, Floats4 b) { return {_mm_andnot_ps(a.v, b.v)}; }
inline Floats8 andNot(Floats8 a, Floats8 b) { return {_mm256_andnot_ps(a.v, b.v)}; }

// |x|, the bits of a NaN kept but for its sign.
inline Floats4 magnitude(Floats4 x) { return {_mm_andnot_ps(_mm_set1_ps(-0.0f), x.v)}; }
inline Floats8 magnitude(Floats8 x) { return {_mm256_andnot_ps(_mm256_set1_ps(-0.0f), x.v)}; }
inline Doubles4 magnitude(Doubles4 x) { return {_mm256_andnot_pd(_mm256_set1_pd(-0.0), x.v)}; }

// By lanes: yes where the mask is all ones, no where it is zero. The instruction is written out: compilers
// take the function for it apart into integers, which the level has no 32 bytes of.
inline Floats4 ifThenElse(Floats4 mask, Floats4 yes, Floats4 no) {
  __m128 v;
  asm("vblendvps %3, %2, %1, %0" : "=x"(v) : "x"(no.v), "x"(yes.v), "x"(mask.v));
  return {v};
}
inline Floats8 ifThenElse(Floats8 mask, Floats8 yes, Floats8 no) {
  __m256 v;
  asm("vblendvps %3, %2, %1, %0" : "=x"(v) : "x"(no.v), "x"(yes.v), "x"(mask.v));
  return {v};
}
inline Doubles4 ifThenElse(Doubles4 mask, Doubles4 yes, Doubles4 no) {
  __m256d v;
  asm("vblendvpd %3, %2, %1, %0" : "=x"(v) : "x"(no.v), "x"(yes.v), "x"(mask.v));
  return {v};
}
// The same by a comparison, which does not hold where either is not a number.
template <typename V>
auto ifAboveThenElse(V a, V b, V yes, V no) -> decltype(ifThenElse(isAbove(a, b), yes, no)) {
  return ifThenElse(isAbove(a, b), yes, no);
}
template <typename V>
auto ifAtLeastThenElse(V a, V b, V yes, V no) -> decltype(ifThenElse(isAtLeast(a, b), yes, no)) {
  return ifThenElse(isAtLeast(a, b), yes, no);
}

template <typename V>
V broadcastFloat(float x) {
  if constexpr (std::is_same_v<V, Floats8>)
    return {_mm256_set1_ps(x)};
  else
    return {_mm_set1_ps(x)};
}

inline Floats4 lowHalf(Floats8 x) { return {_mm256_castps256_ps128(x.v)}; }
inline Floats4 highHalf(Floats8 x) { return {_mm256_extractf128_ps(x.v, 1)}; }
inline Floats8 joined(Floats4 low, Floats4 high) {
  return {_mm256_insertf128_ps(_mm256_castps128_ps256(low.v), high.v, 1)};
}

inline Floats8 loadFloats8(const Byte* p) { return {asFloats(load32(p))}; }
inline Floats4 loadFloats4(const Byte* p) { return {_mm_castsi128_ps(load16(p))}; }

// A vector as raw bytes, and back.
template <typename T, size_t n>
auto bytesOf(SamplesOf<T, n> s) {
  return s.v;
}
inline Bytes16 bytesOf(Floats4 s) { return _mm_castps_si128(s.v); }
inline Bytes32 bytesOf(Floats8 s) { return asBytes(s.v); }
inline Bytes16 bytesOf(Doubles2 s) { return _mm_castpd_si128(s.v); }
inline Bytes32 bytesOf(Doubles4 s) { return _mm256_castpd_si256(s.v); }
template <typename T>
auto samplesOf(Bytes16 v) {
  if constexpr (std::is_same_v<T, float>)
    return Floats4{_mm_castsi128_ps(v)};
  else if constexpr (std::is_same_v<T, double>)
    return Doubles2{_mm_castsi128_pd(v)};
  else
    return Samples16<T>{v};
}
template <typename T>
auto samplesOf(Bytes32 v) {
  if constexpr (std::is_same_v<T, float>)
    return Floats8{asFloats(v)};
  else if constexpr (std::is_same_v<T, double>)
    return Doubles4{_mm256_castsi256_pd(v)};
  else
    return Samples32<T>{v};
}
template <typename Block>
Block blockAs(Bytes32 v) {
  if constexpr (std::is_same_v<Block, Floats8>)
    return {asFloats(v)};
  else
    return {v};
}

}  // namespace lumi::simd
