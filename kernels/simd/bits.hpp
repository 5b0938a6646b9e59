// SPDX-License-Identifier: MIT
// Vector pieces of bit images: samples from bits, bits from samples.
#pragma once

#include "kernels/simd/floats.hpp"
#include "kernels/simd/samples.hpp"

namespace lumi::simd {

// n bytes from `first` on, then n bytes from `last` on.
template <size_t n>
Bytes16 loadTwo(const Byte* first, const Byte* last) {
  int low = 0, high = 0;
  std::memcpy(&low, first, n);
  std::memcpy(&high, last, n);
  const Bytes16 v = _mm_cvtsi32_si128(low);
  if constexpr (n == 1) return _mm_insert_epi8(v, high, 1);
  if constexpr (n == 2) return _mm_insert_epi16(v, high, 1);
  if constexpr (n == 4) return _mm_insert_epi32(v, high, 1);
}

// Four bytes, the lowest first, then zeros.
inline Bytes16 bytesOfWord(uint32_t word) { return _mm_cvtsi32_si128(static_cast<int>(word)); }

// Bit k tells whether the top bit of byte k is set.
inline uint32_t topBits(Bytes16 v) { return static_cast<uint32_t>(_mm_movemask_epi8(v)); }

// A threshold as the comparisons take it.
template <typename T>
auto thresholdOf(T x) {
  if constexpr (std::is_same_v<T, float>)
    return Floats8{_mm256_set1_ps(x)};
  else
    return broadcast16(x);
}

// Bit k tells whether sample k at p is not above the threshold; of eight samples, the bits behind theirs are
// anything. NaN is not above, nor is anything above it.
template <typename T>
Samples16<T> notAbove(Samples16<T> v, Samples16<T> threshold) {
  return isEqual(min(v, threshold), v);
}
inline uint32_t notAbove8(const Byte* p, U8 threshold) {
  return topBits(notAbove(U8{_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p))}, threshold).v);
}
template <typename Words>
uint32_t notAbove8(const Byte* p, Words threshold) {
  const Bytes16 v = notAbove(Words{load16(p)}, threshold).v;
  return topBits(_mm_packs_epi16(v, v));
}
inline uint32_t notAbove8(const Byte* p, Floats8 threshold) {
  const __m256 v = _mm256_cmp_ps(asFloats(load32(p)), threshold.v, _CMP_NGT_UQ);
  return static_cast<uint32_t>(_mm256_movemask_ps(v));
}

inline uint32_t notAbove16(const Byte* p, U8 threshold) {
  return topBits(notAbove(U8{load16(p)}, threshold).v);
}
template <typename Words>
uint32_t notAbove16(const Byte* p, Words threshold) {
  const Bytes16 low = notAbove(Words{load16(p)}, threshold).v;
  return topBits(_mm_packs_epi16(low, notAbove(Words{load16(p + 16)}, threshold).v));
}
inline uint32_t notAbove16(const Byte* p, Floats8 threshold) {
  return notAbove8(p, threshold) | notAbove8(p + 32, threshold) << 8;
}

}  // namespace lumi::simd
