// SPDX-License-Identifier: MIT
// The operations of samples.hpp on 32 bytes, for builds whose processors have such integers. Included by it.
#pragma once

namespace lumi::simd {

template <typename T>
Samples32<T> operator&(Samples32<T> a, Samples32<T> b) {
  return {_mm256_and_si256(a.v, b.v)};
}
template <typename T>
Samples32<T> operator|(Samples32<T> a, Samples32<T> b) {
  return {_mm256_or_si256(a.v, b.v)};
}
template <typename T>
Samples32<T> operator^(Samples32<T> a, Samples32<T> b) {
  return {_mm256_xor_si256(a.v, b.v)};
}
template <typename T>
Samples32<T> andNot(Samples32<T> a, Samples32<T> b) {
  return {_mm256_andnot_si256(a.v, b.v)};
}

template <typename T>
Samples32<T> operator+(Samples32<T> a, Samples32<T> b) {
  if constexpr (sizeof(T) == 1) return {_mm256_add_epi8(a.v, b.v)};
  if constexpr (sizeof(T) == 2) return {_mm256_add_epi16(a.v, b.v)};
  if constexpr (sizeof(T) == 4) return {_mm256_add_epi32(a.v, b.v)};
  if constexpr (sizeof(T) == 8) return {_mm256_add_epi64(a.v, b.v)};
}
template <typename T>
Samples32<T> operator-(Samples32<T> a, Samples32<T> b) {
  if constexpr (sizeof(T) == 1) return {_mm256_sub_epi8(a.v, b.v)};
  if constexpr (sizeof(T) == 2) return {_mm256_sub_epi16(a.v, b.v)};
  if constexpr (sizeof(T) == 4) return {_mm256_sub_epi32(a.v, b.v)};
  if constexpr (sizeof(T) == 8) return {_mm256_sub_epi64(a.v, b.v)};
}

inline Samples32<int16_t> operator*(Samples32<int16_t> a, Samples32<int16_t> b) {
  return {_mm256_mullo_epi16(a.v, b.v)};
}
inline Samples32<uint16_t> operator*(Samples32<uint16_t> a, Samples32<uint16_t> b) {
  return {_mm256_mullo_epi16(a.v, b.v)};
}
inline Samples32<int32_t> operator*(Samples32<int32_t> a, Samples32<int32_t> b) {
  return {_mm256_mullo_epi32(a.v, b.v)};
}

template <typename T>
Samples32<T> isEqual(Samples32<T> a, Samples32<T> b) {
  if constexpr (sizeof(T) == 1) return {_mm256_cmpeq_epi8(a.v, b.v)};
  if constexpr (sizeof(T) == 2) return {_mm256_cmpeq_epi16(a.v, b.v)};
  if constexpr (sizeof(T) == 4) return {_mm256_cmpeq_epi32(a.v, b.v)};
}

inline Samples32<uint8_t> max(Samples32<uint8_t> a, Samples32<uint8_t> b) {
  return {_mm256_max_epu8(a.v, b.v)};
}
inline Samples32<int8_t> max(Samples32<int8_t> a, Samples32<int8_t> b) { return {_mm256_max_epi8(a.v, b.v)}; }
inline Samples32<uint16_t> max(Samples32<uint16_t> a, Samples32<uint16_t> b) {
  return {_mm256_max_epu16(a.v, b.v)};
}
inline Samples32<int16_t> max(Samples32<int16_t> a, Samples32<int16_t> b) {
  return {_mm256_max_epi16(a.v, b.v)};
}
inline Samples32<uint32_t> max(Samples32<uint32_t> a, Samples32<uint32_t> b) {
  return {_mm256_max_epu32(a.v, b.v)};
}
inline Samples32<int32_t> max(Samples32<int32_t> a, Samples32<int32_t> b) {
  return {_mm256_max_epi32(a.v, b.v)};
}
inline Samples32<uint8_t> min(Samples32<uint8_t> a, Samples32<uint8_t> b) {
  return {_mm256_min_epu8(a.v, b.v)};
}
inline Samples32<int8_t> min(Samples32<int8_t> a, Samples32<int8_t> b) { return {_mm256_min_epi8(a.v, b.v)}; }
inline Samples32<uint16_t> min(Samples32<uint16_t> a, Samples32<uint16_t> b) {
  return {_mm256_min_epu16(a.v, b.v)};
}
inline Samples32<int16_t> min(Samples32<int16_t> a, Samples32<int16_t> b) {
  return {_mm256_min_epi16(a.v, b.v)};
}
inline Samples32<uint32_t> min(Samples32<uint32_t> a, Samples32<uint32_t> b) {
  return {_mm256_min_epu32(a.v, b.v)};
}
inline Samples32<int32_t> min(Samples32<int32_t> a, Samples32<int32_t> b) {
  return {_mm256_min_epi32(a.v, b.v)};
}

inline Samples32<int32_t> multiplyAddPairs(Samples32<int16_t> a, Samples32<int16_t> b) {
  return {_mm256_madd_epi16(a.v, b.v)};
}

inline Samples32<int16_t> multiplyHigh(Samples32<int16_t> a, Samples32<int16_t> b) {
  return {_mm256_mulhi_epi16(a.v, b.v)};
}
inline Samples32<uint16_t> multiplyHigh(Samples32<uint16_t> a, Samples32<uint16_t> b) {
  return {_mm256_mulhi_epu16(a.v, b.v)};
}
inline Samples32<uint32_t> multiplyHigh(Samples32<uint32_t> a, Samples32<uint32_t> b) {
  const Bytes32 even = _mm256_mul_epu32(a.v, b.v);
  const Bytes32 odd = _mm256_mul_epu32(_mm256_srli_epi64(a.v, 32), _mm256_srli_epi64(b.v, 32));
  return {_mm256_blend_epi16(_mm256_srli_epi64(even, 32), odd, 0xCC)};
}
inline Samples32<int16_t> multiplyHighRounded(Samples32<int16_t> a, Samples32<int16_t> b) {
  return {_mm256_mulhrs_epi16(a.v, b.v)};
}

inline Samples32<int16_t> multiplyAddPairs(Samples32<uint8_t> a, Samples32<int8_t> b) {
  return {_mm256_maddubs_epi16(a.v, b.v)};
}

inline Samples32<uint64_t> sumsOfDifferences(Samples32<uint8_t> a, Samples32<uint8_t> b) {
  return {_mm256_sad_epu8(a.v, b.v)};
}

template <typename T>
Samples32<T> interleaveLow(Samples32<T> a, Samples32<T> b) {
  if constexpr (sizeof(T) == 1) return {_mm256_unpacklo_epi8(a.v, b.v)};
  if constexpr (sizeof(T) == 2) return {_mm256_unpacklo_epi16(a.v, b.v)};
  if constexpr (sizeof(T) == 4) return {_mm256_unpacklo_epi32(a.v, b.v)};
}
template <typename T>
Samples32<T> interleaveHigh(Samples32<T> a, Samples32<T> b) {
  if constexpr (sizeof(T) == 1) return {_mm256_unpackhi_epi8(a.v, b.v)};
  if constexpr (sizeof(T) == 2) return {_mm256_unpackhi_epi16(a.v, b.v)};
  if constexpr (sizeof(T) == 4) return {_mm256_unpackhi_epi32(a.v, b.v)};
}

template <typename T>
Samples32<T> ifThenElse(Samples32<T> mask, Samples32<T> yes, Samples32<T> no) {
  return {_mm256_blendv_epi8(no.v, yes.v, mask.v)};
}

inline Samples32<uint16_t> operator>>(Samples32<uint16_t> a, Shift s) {
  return {_mm256_srl_epi16(a.v, s.count)};
}
inline Samples32<int16_t> operator>>(Samples32<int16_t> a, Shift s) {
  return {_mm256_sra_epi16(a.v, s.count)};
}
inline Samples32<uint32_t> operator>>(Samples32<uint32_t> a, Shift s) {
  return {_mm256_srl_epi32(a.v, s.count)};
}
inline Samples32<int32_t> operator>>(Samples32<int32_t> a, Shift s) {
  return {_mm256_sra_epi32(a.v, s.count)};
}
template <typename T>
Samples32<T> operator<<(Samples32<T> a, Shift s) {
  static_assert(sizeof(T) > 1, "bytes have no shift of their own");
  if constexpr (sizeof(T) == 2) return {_mm256_sll_epi16(a.v, s.count)};
  if constexpr (sizeof(T) == 4) return {_mm256_sll_epi32(a.v, s.count)};
}

template <int bits, typename T>
Samples32<T> shiftRight(Samples32<T> a) {
  static_assert(sizeof(T) > 1, "bytes have no shift of their own");
  if constexpr (sizeof(T) == 2)
    return {std::is_signed_v<T> ? _mm256_srai_epi16(a.v, bits) : _mm256_srli_epi16(a.v, bits)};
  else
    return {std::is_signed_v<T> ? _mm256_srai_epi32(a.v, bits) : _mm256_srli_epi32(a.v, bits)};
}
template <int bits, typename T>
Samples32<T> shiftLeft(Samples32<T> a) {
  static_assert(sizeof(T) == 2);
  return {_mm256_slli_epi16(a.v, bits)};
}

inline Samples32<uint8_t> averageUp(Samples32<uint8_t> a, Samples32<uint8_t> b) {
  return {_mm256_avg_epu8(a.v, b.v)};
}
inline Samples32<uint16_t> averageUp(Samples32<uint16_t> a, Samples32<uint16_t> b) {
  return {_mm256_avg_epu16(a.v, b.v)};
}

inline Samples32<uint8_t> addSaturated(Samples32<uint8_t> a, Samples32<uint8_t> b) {
  return {_mm256_adds_epu8(a.v, b.v)};
}
inline Samples32<uint16_t> addSaturated(Samples32<uint16_t> a, Samples32<uint16_t> b) {
  return {_mm256_adds_epu16(a.v, b.v)};
}
inline Samples32<int16_t> addSaturated(Samples32<int16_t> a, Samples32<int16_t> b) {
  return {_mm256_adds_epi16(a.v, b.v)};
}
inline Samples32<uint8_t> subSaturated(Samples32<uint8_t> a, Samples32<uint8_t> b) {
  return {_mm256_subs_epu8(a.v, b.v)};
}
inline Samples32<uint16_t> subSaturated(Samples32<uint16_t> a, Samples32<uint16_t> b) {
  return {_mm256_subs_epu16(a.v, b.v)};
}
inline Samples32<int16_t> subSaturated(Samples32<int16_t> a, Samples32<int16_t> b) {
  return {_mm256_subs_epi16(a.v, b.v)};
}

inline Samples32<int32_t> ifNegativeThenElse(Samples32<int32_t> mask, Samples32<int32_t> yes,
                                             Samples32<int32_t> no) {
  return {_mm256_castps_si256(
      _mm256_blendv_ps(_mm256_castsi256_ps(no.v), _mm256_castsi256_ps(yes.v), _mm256_castsi256_ps(mask.v)))};
}

template <typename T>
Samples32<T> isAboveSigned(Samples32<T> a, Samples32<T> b) {
  if constexpr (sizeof(T) == 1) return {_mm256_cmpgt_epi8(a.v, b.v)};
  if constexpr (sizeof(T) == 2) return {_mm256_cmpgt_epi16(a.v, b.v)};
  if constexpr (sizeof(T) == 4) return {_mm256_cmpgt_epi32(a.v, b.v)};
}

inline Samples32<uint16_t> magnitude(Samples32<int16_t> x) { return {_mm256_abs_epi16(x.v)}; }
inline Samples32<uint32_t> magnitude(Samples32<int32_t> x) { return {_mm256_abs_epi32(x.v)}; }
inline Samples32<int16_t> withSign(Samples32<int16_t> x, Samples32<int16_t> s) {
  return {_mm256_sign_epi16(x.v, s.v)};
}
inline Samples32<int32_t> withSign(Samples32<int32_t> x, Samples32<int32_t> s) {
  return {_mm256_sign_epi32(x.v, s.v)};
}

}  // namespace lumi::simd
