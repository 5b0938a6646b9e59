// SPDX-License-Identifier: MIT
// Vectors of raw bytes: loads, stores and shuffles, named by meaning. AVX level, no alignment assumed
// unless the name says so.
#pragma once

#include <immintrin.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace lumi::simd {

using Byte = uint8_t;
using Bytes16 = __m128i;
using Bytes32 = __m256i;

inline Bytes16 load16(const Byte* p) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(p)); }
inline void store16(Byte* p, Bytes16 v) { _mm_storeu_si128(reinterpret_cast<__m128i*>(p), v); }
// Past the cache; p on a 16-byte boundary.
inline void stream16(Byte* p, Bytes16 v) { _mm_stream_si128(reinterpret_cast<__m128i*>(p), v); }

// A load that need not stay in the cache; p on a 16-byte boundary.
inline Bytes16 streamingLoad16(const Byte* p) {
  return _mm_stream_load_si128(reinterpret_cast<__m128i*>(const_cast<Byte*>(p)));
}

inline Bytes32 load32(const Byte* p) { return _mm256_loadu_si256(reinterpret_cast<const __m256i*>(p)); }
inline void store32(Byte* p, Bytes32 v) { _mm256_storeu_si256(reinterpret_cast<__m256i*>(p), v); }
// Past the cache; p on a 32-byte boundary.
inline void stream32(Byte* p, Bytes32 v) { _mm256_stream_si256(reinterpret_cast<__m256i*>(p), v); }

// Moves a scalar of n bytes without caring for its type or alignment.
template <size_t n>
inline void move(Byte* to, const Byte* from) {
  std::memcpy(to, from, n);
}

inline bool isAligned(const void* p, size_t boundary) {
  return (reinterpret_cast<uintptr_t>(p) & (boundary - 1)) == 0;
}

// Bytes from p up to the next boundary: 0 to boundary - 1.
inline size_t bytesToBoundary(const void* p, size_t boundary) {
  return (0 - reinterpret_cast<uintptr_t>(p)) & (boundary - 1);
}

// A shuffle control, in memory as the instruction takes it: byte j of the result is byte control[j] of
// the source, or zero for kZero.
using Control = std::array<Byte, 16>;
inline constexpr Byte kZero = 0x80;

inline Bytes16 vectorOf(const Control& c) { return load16(c.data()); }
inline Bytes16 shuffle(Bytes16 v, Bytes16 control) { return _mm_shuffle_epi8(v, control); }

// The bytes of b where mask is 0xFF, of a where it is 0.
inline Bytes16 merge(Bytes16 a, Bytes16 b, Bytes16 mask) {
  return _mm_or_si128(_mm_andnot_si128(mask, a), _mm_and_si128(mask, b));
}
inline Bytes16 either(Bytes16 a, Bytes16 b) { return _mm_or_si128(a, b); }
inline Bytes16 both(Bytes16 a, Bytes16 b) { return _mm_and_si128(a, b); }
// One where the mask's top bit is set, else zero's sample.
inline Bytes16 select(Bytes16 zero, Bytes16 one, Bytes16 mask) { return _mm_blendv_epi8(zero, one, mask); }
// 0xFF where the byte is zero, else 0.
inline Bytes16 isZero(Bytes16 v) { return _mm_cmpeq_epi8(v, _mm_setzero_si128()); }
inline bool noneSet(Bytes16 v) { return _mm_testz_si128(v, v) != 0; }

// Dwords of a where the immediate's bit is 0, of b where it is 1.
template <int which>
inline Bytes16 mergeDwords(Bytes16 a, Bytes16 b) {
  return _mm_castps_si128(_mm_blend_ps(_mm_castsi128_ps(a), _mm_castsi128_ps(b), which));
}

// Half `a` of the first vector (0 low, 1 high), then half `b` of the second.
template <int a, int b>
inline Bytes16 mergeHalves(Bytes16 first, Bytes16 second) {
  return _mm_castpd_si128(_mm_shuffle_pd(_mm_castsi128_pd(first), _mm_castsi128_pd(second), a | b << 1));
}

// Four vectors as the rows of a matrix of dwords.
struct Dwords4x4 {
  Bytes16 row[4];
};

inline Dwords4x4 transposed(const Dwords4x4& m) {
  const Bytes16 low01 = _mm_unpacklo_epi32(m.row[0], m.row[1]),
                low23 = _mm_unpacklo_epi32(m.row[2], m.row[3]);
  const Bytes16 high01 = _mm_unpackhi_epi32(m.row[0], m.row[1]),
                high23 = _mm_unpackhi_epi32(m.row[2], m.row[3]);
  return {{_mm_unpacklo_epi64(low01, low23), _mm_unpackhi_epi64(low01, low23),
           _mm_unpacklo_epi64(high01, high23), _mm_unpackhi_epi64(high01, high23)}};
}

}  // namespace lumi::simd
