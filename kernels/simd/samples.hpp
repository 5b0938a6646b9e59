// SPDX-License-Identifier: MIT
// Vectors of samples: sixteen bytes of integers, sixteen or thirty-two of floats. What an operation means is
// the same for all of them; how it is done differs by type.
#pragma once

#include <limits>
#include <type_traits>

#include "kernels/simd/bytes.hpp"

namespace lumi::simd {

template <typename T>
struct Samples {
  static_assert(std::is_integral_v<T>);
  Bytes16 v;
};
using U8 = Samples<uint8_t>;
using S8 = Samples<int8_t>;
using U16 = Samples<uint16_t>;
using S16 = Samples<int16_t>;
using U32 = Samples<uint32_t>;
using S32 = Samples<int32_t>;

struct Floats4 {
  __m128 v;
};
struct Floats8 {
  __m256 v;
};

template <typename T>
Samples<T> broadcast(T x) {
  if constexpr (sizeof(T) == 1)
    return {_mm_set1_epi8(static_cast<char>(x))};
  else if constexpr (sizeof(T) == 2)
    return {_mm_set1_epi16(static_cast<short>(x))};
  else
    return {_mm_set1_epi32(static_cast<int>(x))};
}

template <typename T>
Samples<T> operator&(Samples<T> a, Samples<T> b) {
  return {bitAnd(a.v, b.v)};
}
template <typename T>
Samples<T> operator|(Samples<T> a, Samples<T> b) {
  return {bitOr(a.v, b.v)};
}
template <typename T>
Samples<T> operator^(Samples<T> a, Samples<T> b) {
  return {_mm_xor_si128(a.v, b.v)};
}
// b without the bits of a.
template <typename T>
Samples<T> andNot(Samples<T> a, Samples<T> b) {
  return {_mm_andnot_si128(a.v, b.v)};
}

// Sums and differences modulo the type.
template <typename T>
Samples<T> operator+(Samples<T> a, Samples<T> b) {
  if constexpr (sizeof(T) == 1) return {_mm_add_epi8(a.v, b.v)};
  if constexpr (sizeof(T) == 2) return {_mm_add_epi16(a.v, b.v)};
  if constexpr (sizeof(T) == 4) return {_mm_add_epi32(a.v, b.v)};
}
template <typename T>
Samples<T> operator-(Samples<T> a, Samples<T> b) {
  if constexpr (sizeof(T) == 1) return {_mm_sub_epi8(a.v, b.v)};
  if constexpr (sizeof(T) == 2) return {_mm_sub_epi16(a.v, b.v)};
  if constexpr (sizeof(T) == 4) return {_mm_sub_epi32(a.v, b.v)};
}

// All ones where it holds, else zero.
template <typename T>
Samples<T> isEqual(Samples<T> a, Samples<T> b) {
  if constexpr (sizeof(T) == 1) return {_mm_cmpeq_epi8(a.v, b.v)};
  if constexpr (sizeof(T) == 2) return {_mm_cmpeq_epi16(a.v, b.v)};
  if constexpr (sizeof(T) == 4) return {_mm_cmpeq_epi32(a.v, b.v)};
}

inline U8 max(U8 a, U8 b) { return {_mm_max_epu8(a.v, b.v)}; }
inline S8 max(S8 a, S8 b) { return {_mm_max_epi8(a.v, b.v)}; }
inline U16 max(U16 a, U16 b) { return {_mm_max_epu16(a.v, b.v)}; }
inline S16 max(S16 a, S16 b) { return {_mm_max_epi16(a.v, b.v)}; }
inline U32 max(U32 a, U32 b) { return {_mm_max_epu32(a.v, b.v)}; }
inline S32 max(S32 a, S32 b) { return {_mm_max_epi32(a.v, b.v)}; }
inline U8 min(U8 a, U8 b) { return {_mm_min_epu8(a.v, b.v)}; }
inline S8 min(S8 a, S8 b) { return {_mm_min_epi8(a.v, b.v)}; }
inline U16 min(U16 a, U16 b) { return {_mm_min_epu16(a.v, b.v)}; }
inline S16 min(S16 a, S16 b) { return {_mm_min_epi16(a.v, b.v)}; }
inline U32 min(U32 a, U32 b) { return {_mm_min_epu32(a.v, b.v)}; }
inline S32 min(S32 a, S32 b) { return {_mm_min_epi32(a.v, b.v)}; }

// Products of words, added up in pairs of neighbours.
inline S32 multiplyAddPairs(S16 a, S16 b) { return {_mm_madd_epi16(a.v, b.v)}; }

// Products of unsigned and signed bytes, added up in pairs of neighbours, limited to words.
inline S16 multiplyAddPairs(U8 a, S8 b) { return {_mm_maddubs_epi16(a.v, b.v)}; }

// The first, or the last, halves of two vectors, sample by sample in turn.
template <typename T>
Samples<T> interleaveLow(Samples<T> a, Samples<T> b) {
  if constexpr (sizeof(T) == 1) return {_mm_unpacklo_epi8(a.v, b.v)};
  if constexpr (sizeof(T) == 2) return {_mm_unpacklo_epi16(a.v, b.v)};
  if constexpr (sizeof(T) == 4) return {_mm_unpacklo_epi32(a.v, b.v)};
}
template <typename T>
Samples<T> interleaveHigh(Samples<T> a, Samples<T> b) {
  if constexpr (sizeof(T) == 1) return {_mm_unpackhi_epi8(a.v, b.v)};
  if constexpr (sizeof(T) == 2) return {_mm_unpackhi_epi16(a.v, b.v)};
  if constexpr (sizeof(T) == 4) return {_mm_unpackhi_epi32(a.v, b.v)};
}

template <typename T>
Samples<T> isAtLeast(Samples<T> a, Samples<T> b) {
  return isEqual(max(a, b), a);
}

// By samples: yes where the mask is all ones, no where it is zero.
template <typename T>
Samples<T> ifThenElse(Samples<T> mask, Samples<T> yes, Samples<T> no) {
  return {ifThenElse(mask.v, yes.v, no.v)};
}

// A count of bits to shift by, as the instructions take it.
struct Shift {
  Bytes16 count;
  explicit Shift(int bits) : count(_mm_cvtsi32_si128(bits)) {}
};

// Towards minus infinity for signed samples; counts beyond the type leave 0 or the sign.
inline U16 operator>>(U16 a, Shift s) { return {_mm_srl_epi16(a.v, s.count)}; }
inline S16 operator>>(S16 a, Shift s) { return {_mm_sra_epi16(a.v, s.count)}; }
inline U32 operator>>(U32 a, Shift s) { return {_mm_srl_epi32(a.v, s.count)}; }
inline S32 operator>>(S32 a, Shift s) { return {_mm_sra_epi32(a.v, s.count)}; }
template <typename T>
Samples<T> operator<<(Samples<T> a, Shift s) {
  static_assert(sizeof(T) > 1, "bytes have no shift of their own");
  if constexpr (sizeof(T) == 2) return {_mm_sll_epi16(a.v, s.count)};
  if constexpr (sizeof(T) == 4) return {_mm_sll_epi32(a.v, s.count)};
}

// The same by a count that is known when compiled.
template <int bits, typename T>
Samples<T> shiftRight(Samples<T> a) {
  static_assert(sizeof(T) > 1, "bytes have no shift of their own");
  if constexpr (sizeof(T) == 2)
    return {std::is_signed_v<T> ? _mm_srai_epi16(a.v, bits) : _mm_srli_epi16(a.v, bits)};
  else
    return {std::is_signed_v<T> ? _mm_srai_epi32(a.v, bits) : _mm_srli_epi32(a.v, bits)};
}

// (a + b + 1) / 2, without overflow.
inline U8 averageUp(U8 a, U8 b) { return {_mm_avg_epu8(a.v, b.v)}; }
inline U16 averageUp(U16 a, U16 b) { return {_mm_avg_epu16(a.v, b.v)}; }

// Limited to the type.
inline U8 addSaturated(U8 a, U8 b) { return {_mm_adds_epu8(a.v, b.v)}; }
inline U16 addSaturated(U16 a, U16 b) { return {_mm_adds_epu16(a.v, b.v)}; }
inline S16 addSaturated(S16 a, S16 b) { return {_mm_adds_epi16(a.v, b.v)}; }
inline U8 subSaturated(U8 a, U8 b) { return {_mm_subs_epu8(a.v, b.v)}; }
inline U16 subSaturated(U16 a, U16 b) { return {_mm_subs_epu16(a.v, b.v)}; }
inline S16 subSaturated(S16 a, S16 b) { return {_mm_subs_epi16(a.v, b.v)}; }

// yes where the mask is negative, else no.
inline S32 ifNegativeThenElse(S32 mask, S32 yes, S32 no) {
  return {_mm_castps_si128(
      _mm_blendv_ps(_mm_castsi128_ps(no.v), _mm_castsi128_ps(yes.v), _mm_castsi128_ps(mask.v)))};
}
// The limit on the side of a: 2^31 - 1 where it is not negative, -2^31 where it is.
inline S32 limitBySign(S32 a) { return shiftRight<31>(a) ^ broadcast(INT32_MAX); }
// A sum has left the type where its sign differs from that of both operands.
inline S32 addSaturated(S32 a, S32 b) {
  const S32 sum = a + b;
  return ifNegativeThenElse(andNot(a ^ b, sum ^ a), limitBySign(a), sum);
}
// A difference, where the operands' signs differ and its own differs from the first one's.
inline S32 subSaturated(S32 a, S32 b) {
  const S32 difference = a - b;
  return ifNegativeThenElse((a ^ b) & (difference ^ a), limitBySign(a), difference);
}

inline Floats4 operator+(Floats4 a, Floats4 b) { return {_mm_add_ps(a.v, b.v)}; }
inline Floats8 operator+(Floats8 a, Floats8 b) { return {_mm256_add_ps(a.v, b.v)}; }
inline Floats4 operator-(Floats4 a, Floats4 b) { return {_mm_sub_ps(a.v, b.v)}; }
inline Floats8 operator-(Floats8 a, Floats8 b) { return {_mm256_sub_ps(a.v, b.v)}; }
inline Floats4 operator*(Floats4 a, Floats4 b) { return {_mm_mul_ps(a.v, b.v)}; }
inline Floats8 operator*(Floats8 a, Floats8 b) { return {_mm256_mul_ps(a.v, b.v)}; }

// Sixteen bytes as samples of a type, and back.
template <typename T>
auto samplesOf(Bytes16 v) {
  if constexpr (std::is_same_v<T, float>)
    return Floats4{_mm_castsi128_ps(v)};
  else
    return Samples<T>{v};
}
template <typename T>
Bytes16 bytesOf(Samples<T> s) {
  return s.v;
}
inline Bytes16 bytesOf(Floats4 s) { return _mm_castps_si128(s.v); }

}  // namespace lumi::simd
