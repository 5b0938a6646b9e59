// SPDX-License-Identifier: MIT
// Vectors whose lanes are separate sequences, as transforms compute many at a time; and the ways between them
// and images, where a sequence lies along a row or down a column.
#pragma once

#include "kernels/simd/elementary.hpp"

namespace lumi::simd {

template <typename V>
struct LanesOf;
template <>
struct LanesOf<Floats8> {
  using Scalar = float;
  static constexpr size_t kCount = 8;
};
template <typename V>
using ScalarOf = typename LanesOf<V>::Scalar;

template <typename V>
V loadLanes(const ScalarOf<V>* p);
template <>
inline Floats8 loadLanes<Floats8>(const float* p) {
  return {_mm256_loadu_ps(p)};
}
inline void storeLanes(float* p, Floats8 x) { _mm256_storeu_ps(p, x.v); }

// The same number in all lanes.
template <typename V>
V broadcastLane(const ScalarOf<V>* p);
template <>
inline Floats8 broadcastLane<Floats8>(const float* p) {
  return {_mm256_broadcast_ss(p)};
}

// Of sixteen floats in the order of memory, those at even and at odd places. Lanes are in the order 0 1 4 5 2
// 3 6 7, which interleaveLow and interleaveHigh undo.
inline Floats8 evenLanes(Floats8 a, Floats8 b) { return {_mm256_shuffle_ps(a.v, b.v, 0x88)}; }
inline Floats8 oddLanes(Floats8 a, Floats8 b) { return {_mm256_shuffle_ps(a.v, b.v, 0xDD)}; }
inline Floats8 interleaveLowLanes(Floats8 a, Floats8 b) { return {_mm256_unpacklo_ps(a.v, b.v)}; }
inline Floats8 interleaveHighLanes(Floats8 a, Floats8 b) { return {_mm256_unpackhi_ps(a.v, b.v)}; }

// Floats p[0 .. 3] and q[0 .. 3] as one vector.
inline Floats8 loadTwoFours(const Byte* p, const Byte* q) { return joined(loadFloats4(p), loadFloats4(q)); }
inline void storeFours(Byte* p, Byte* q, Floats8 x) {
  store16(p, bytesOf(lowHalf(x)));
  store16(q, bytesOf(highHalf(x)));
}

// Floats p[0], p[1], c and d.
inline Floats4 pairOf(const Byte* p, float c, float d) {
  const __m128 first = _mm_castsi128_ps(loadFew<8>(p));
  return {_mm_movelh_ps(first, _mm_unpacklo_ps(_mm_set_ss(c), _mm_set_ss(d)))};
}

// From the last lane to the first.
inline Floats8 reversed(Floats8 x) {
  return {_mm256_permute_ps(_mm256_permute2f128_ps(x.v, x.v, 0x01), 0x1B)};
}

// In each half, rows of four become columns: of eight rows' floats c .. c + 3, joined as (row i, row i + 4),
// the four columns with the rows as lanes; and back.
inline void transposeHalves(Floats8 (&x)[4]) {
  const Floats8 low01 = interleaveLowLanes(x[0], x[1]), high01 = interleaveHighLanes(x[0], x[1]);
  const Floats8 low23 = interleaveLowLanes(x[2], x[3]), high23 = interleaveHighLanes(x[2], x[3]);
  x[0] = {_mm256_shuffle_ps(low01.v, low23.v, 0x44)};
  x[1] = {_mm256_shuffle_ps(low01.v, low23.v, 0xEE)};
  x[2] = {_mm256_shuffle_ps(high01.v, high23.v, 0x44)};
  x[3] = {_mm256_shuffle_ps(high01.v, high23.v, 0xEE)};
}

}  // namespace lumi::simd
