// SPDX-License-Identifier: MIT
// Vectors of integer samples. Samples<T> is as wide as the build's integer vectors, so that what is said of
// it holds for every build; Samples16<T> is for code that thinks in sixteen bytes. What an operation means is
// the same for all types; how it is done differs. Where sixteen bytes matter (interleaving, shuffles), wider
// vectors are rows of sixteen bytes that do not mix.
#pragma once

#include <limits>
#include <type_traits>

#include "kernels/simd/bytes.hpp"

namespace lumi::simd {

template <typename T, size_t bytes>
struct SamplesOf {
  static_assert(std::is_integral_v<T>);
  typename Register<bytes>::Type v;
};
template <typename T>
using Samples16 = SamplesOf<T, 16>;
template <typename T>
using Samples32 = SamplesOf<T, 32>;
template <typename T>
using Samples = SamplesOf<T, kVectorBytes>;
using U8 = Samples16<uint8_t>;
using S8 = Samples16<int8_t>;
using U16 = Samples16<uint16_t>;
using S16 = Samples16<int16_t>;
using U32 = Samples16<uint32_t>;
using S32 = Samples16<int32_t>;

// The same bits as samples of another type.
template <typename T, typename U, size_t bytes>
SamplesOf<T, bytes> as(SamplesOf<U, bytes> x) {
  return {x.v};
}

template <typename T>
Samples16<T> broadcast16(T x) {
  if constexpr (sizeof(T) == 1)
    return {_mm_set1_epi8(static_cast<char>(x))};
  else if constexpr (sizeof(T) == 2)
    return {_mm_set1_epi16(static_cast<short>(x))};
  else if constexpr (sizeof(T) == 4)
    return {_mm_set1_epi32(static_cast<int>(x))};
  else
    return {_mm_set1_epi64x(static_cast<int64_t>(x))};
}
// As wide as the vector, which only tells that.
template <typename T, size_t bytes>
SamplesOf<T, bytes> broadcastLike(SamplesOf<T, bytes>, T x) {
  if constexpr (bytes == 16)
    return broadcast16(x);
  else
    return {joined(broadcast16(x).v, broadcast16(x).v)};
}
// So many bytes of samples: a vector that begins with them.
template <size_t bytes, typename T>
auto loadSamples(const Byte* p) {
  if constexpr (bytes <= 16)
    return Samples16<T>{loadFew<bytes>(p)};
  else
    return Samples32<T>{load32(p)};
}

// The first bytes of a vector that is as wide or wider.
template <size_t bytes, typename T, size_t width>
SamplesOf<T, bytes> firstOf(SamplesOf<T, width> x) {
  if constexpr (bytes == width)
    return x;
  else
    return {lowHalf(x.v)};
}
template <typename T>
Samples<T> broadcast(T x) {
  return broadcastLike(Samples<T>(), x);
}

// A count of bits to shift by, as the instructions take it.
struct Shift {
  Bytes16 count;
  explicit Shift(int bits) : count(_mm_cvtsi32_si128(bits)) {}
};

template <typename T>
Samples16<T> operator&(Samples16<T> a, Samples16<T> b) {
  return {_mm_and_si128(a.v, b.v)};
}
template <typename T>
Samples16<T> operator|(Samples16<T> a, Samples16<T> b) {
  return {_mm_or_si128(a.v, b.v)};
}
template <typename T>
Samples16<T> operator^(Samples16<T> a, Samples16<T> b) {
  return {_mm_xor_si128(a.v, b.v)};
}
// b without the bits of a.
template <typename T>
Samples16<T> andNot(Samples16<T> a, Samples16<T> b) {
  return {_mm_andnot_si128(a.v, b.v)};
}

// Sums and differences modulo the type.
template <typename T>
Samples16<T> operator+(Samples16<T> a, Samples16<T> b) {
  if constexpr (sizeof(T) == 1) return {_mm_add_epi8(a.v, b.v)};
  if constexpr (sizeof(T) == 2) return {_mm_add_epi16(a.v, b.v)};
  if constexpr (sizeof(T) == 4) return {_mm_add_epi32(a.v, b.v)};
  if constexpr (sizeof(T) == 8) return {_mm_add_epi64(a.v, b.v)};
}
template <typename T>
Samples16<T> operator-(Samples16<T> a, Samples16<T> b) {
  if constexpr (sizeof(T) == 1) return {_mm_sub_epi8(a.v, b.v)};
  if constexpr (sizeof(T) == 2) return {_mm_sub_epi16(a.v, b.v)};
  if constexpr (sizeof(T) == 4) return {_mm_sub_epi32(a.v, b.v)};
  if constexpr (sizeof(T) == 8) return {_mm_sub_epi64(a.v, b.v)};
}

// Products modulo the type.
inline S16 operator*(S16 a, S16 b) { return {_mm_mullo_epi16(a.v, b.v)}; }
inline U16 operator*(U16 a, U16 b) { return {_mm_mullo_epi16(a.v, b.v)}; }
inline S32 operator*(S32 a, S32 b) { return {_mm_mullo_epi32(a.v, b.v)}; }

// All ones where it holds, else zero.
template <typename T>
Samples16<T> isEqual(Samples16<T> a, Samples16<T> b) {
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

// (a * b) shifted right by the bits of a sample; and (a * b + 2^14) >> 15.
inline S16 multiplyHigh(S16 a, S16 b) { return {_mm_mulhi_epi16(a.v, b.v)}; }
inline U16 multiplyHigh(U16 a, U16 b) { return {_mm_mulhi_epu16(a.v, b.v)}; }
inline U32 multiplyHigh(U32 a, U32 b) {
  const Bytes16 even = _mm_mul_epu32(a.v, b.v);
  const Bytes16 odd = _mm_mul_epu32(_mm_srli_epi64(a.v, 32), _mm_srli_epi64(b.v, 32));
  return {_mm_blend_epi16(_mm_srli_epi64(even, 32), odd, 0xCC)};
}
inline S16 multiplyHighRounded(S16 a, S16 b) { return {_mm_mulhrs_epi16(a.v, b.v)}; }

// Products of unsigned and signed bytes, added up in pairs of neighbours, limited to words.
inline S16 multiplyAddPairs(U8 a, S8 b) { return {_mm_maddubs_epi16(a.v, b.v)}; }

// The sums of eight |a - b| each, as 64-bit numbers.
inline Samples16<uint64_t> sumsOfDifferences(U8 a, U8 b) { return {_mm_sad_epu8(a.v, b.v)}; }

// At each of the first eight bytes of a: the sum of |a - b| of the four that begin there and the first four
// of b.
inline U16 sumsAtEightPlaces(U8 a, U8 b) { return {_mm_mpsadbw_epu8(a.v, b.v, 0)}; }

// The first, or the last, halves of two vectors, sample by sample in turn.
template <typename T>
Samples16<T> interleaveLow(Samples16<T> a, Samples16<T> b) {
  if constexpr (sizeof(T) == 1) return {_mm_unpacklo_epi8(a.v, b.v)};
  if constexpr (sizeof(T) == 2) return {_mm_unpacklo_epi16(a.v, b.v)};
  if constexpr (sizeof(T) == 4) return {_mm_unpacklo_epi32(a.v, b.v)};
}
template <typename T>
Samples16<T> interleaveHigh(Samples16<T> a, Samples16<T> b) {
  if constexpr (sizeof(T) == 1) return {_mm_unpackhi_epi8(a.v, b.v)};
  if constexpr (sizeof(T) == 2) return {_mm_unpackhi_epi16(a.v, b.v)};
  if constexpr (sizeof(T) == 4) return {_mm_unpackhi_epi32(a.v, b.v)};
}

// By samples: yes where the mask is all ones, no where it is zero.
template <typename T>
Samples16<T> ifThenElse(Samples16<T> mask, Samples16<T> yes, Samples16<T> no) {
  return {_mm_blendv_epi8(no.v, yes.v, mask.v)};
}

// Towards minus infinity for signed samples; counts beyond the type leave 0 or the sign.
inline U16 operator>>(U16 a, Shift s) { return {_mm_srl_epi16(a.v, s.count)}; }
inline S16 operator>>(S16 a, Shift s) { return {_mm_sra_epi16(a.v, s.count)}; }
inline U32 operator>>(U32 a, Shift s) { return {_mm_srl_epi32(a.v, s.count)}; }
inline S32 operator>>(S32 a, Shift s) { return {_mm_sra_epi32(a.v, s.count)}; }
template <typename T>
Samples16<T> operator<<(Samples16<T> a, Shift s) {
  static_assert(sizeof(T) > 1, "bytes have no shift of their own");
  if constexpr (sizeof(T) == 2) return {_mm_sll_epi16(a.v, s.count)};
  if constexpr (sizeof(T) == 4) return {_mm_sll_epi32(a.v, s.count)};
}

// The same by a count that is known when compiled.
template <int bits, typename T>
Samples16<T> shiftRight(Samples16<T> a) {
  static_assert(sizeof(T) > 1, "bytes have no shift of their own");
  if constexpr (sizeof(T) == 2)
    return {std::is_signed_v<T> ? _mm_srai_epi16(a.v, bits) : _mm_srli_epi16(a.v, bits)};
  else
    return {std::is_signed_v<T> ? _mm_srai_epi32(a.v, bits) : _mm_srli_epi32(a.v, bits)};
}
template <int bits, typename T>
Samples16<T> shiftLeft(Samples16<T> a) {
  static_assert(sizeof(T) == 2);
  return {_mm_slli_epi16(a.v, bits)};
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

// All ones where a is above b, both taken as signed.
template <typename T>
Samples16<T> isAboveSigned(Samples16<T> a, Samples16<T> b) {
  if constexpr (sizeof(T) == 1) return {_mm_cmpgt_epi8(a.v, b.v)};
  if constexpr (sizeof(T) == 2) return {_mm_cmpgt_epi16(a.v, b.v)};
  if constexpr (sizeof(T) == 4) return {_mm_cmpgt_epi32(a.v, b.v)};
}

// |x| as an unsigned number of the same size.
inline U16 magnitude(S16 x) { return {_mm_abs_epi16(x.v)}; }
inline U32 magnitude(S32 x) { return {_mm_abs_epi32(x.v)}; }
// x with its sign turned where s is negative, and 0 where s is 0.
inline S16 withSign(S16 x, S16 s) { return {_mm_sign_epi16(x.v, s.v)}; }
inline S32 withSign(S32 x, S32 s) { return {_mm_sign_epi32(x.v, s.v)}; }

}  // namespace lumi::simd

#ifdef __AVX2__
#include "kernels/simd/samples32.hpp"
#endif

namespace lumi::simd {

// What follows is made of the above, in any width.

template <typename T, size_t bytes>
SamplesOf<T, bytes> isAtLeast(SamplesOf<T, bytes> a, SamplesOf<T, bytes> b) {
  return isEqual(max(a, b), a);
}
template <typename T, size_t bytes>
SamplesOf<T, bytes> isAbove(SamplesOf<T, bytes> a, SamplesOf<T, bytes> b) {
  if constexpr (std::is_signed_v<T>)
    return isAboveSigned(a, b);
  else
    return isAtLeast(b, a) ^ broadcastLike(a, std::numeric_limits<T>::max());
}

// A choice by a comparison, through whichever mask is had for less.
template <typename T, size_t bytes>
SamplesOf<T, bytes> ifAboveThenElse(SamplesOf<T, bytes> a, SamplesOf<T, bytes> b, SamplesOf<T, bytes> yes,
                                    SamplesOf<T, bytes> no) {
  if constexpr (std::is_signed_v<T>)
    return ifThenElse(isAboveSigned(a, b), yes, no);
  else
    return ifThenElse(isAtLeast(b, a), no, yes);
}
template <typename T, size_t bytes>
SamplesOf<T, bytes> ifAtLeastThenElse(SamplesOf<T, bytes> a, SamplesOf<T, bytes> b, SamplesOf<T, bytes> yes,
                                      SamplesOf<T, bytes> no) {
  return std::is_signed_v<T> ? ifAboveThenElse(b, a, no, yes) : ifThenElse(isAtLeast(a, b), yes, no);
}

// The limit on the side of a: 2^31 - 1 where it is not negative, -2^31 where it is.
template <size_t bytes>
SamplesOf<int32_t, bytes> limitBySign(SamplesOf<int32_t, bytes> a) {
  return shiftRight<31>(a) ^ broadcastLike(a, INT32_MAX);
}
// A sum has left the type where its sign differs from that of both operands.
template <size_t bytes>
SamplesOf<int32_t, bytes> addSaturated(SamplesOf<int32_t, bytes> a, SamplesOf<int32_t, bytes> b) {
  const auto sum = a + b;
  return ifNegativeThenElse(andNot(a ^ b, sum ^ a), limitBySign(a), sum);
}
// A difference, where the operands' signs differ and its own differs from the first one's.
template <size_t bytes>
SamplesOf<int32_t, bytes> subSaturated(SamplesOf<int32_t, bytes> a, SamplesOf<int32_t, bytes> b) {
  const auto difference = a - b;
  return ifNegativeThenElse((a ^ b) & (difference ^ a), limitBySign(a), difference);
}

}  // namespace lumi::simd
