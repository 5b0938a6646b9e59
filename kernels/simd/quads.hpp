// SPDX-License-Identifier: MIT
// Two signed 64-bit integers in sixteen bytes. The level has few operations on them.
#pragma once

#include "kernels/simd/samples.hpp"

namespace lumi::simd {

struct Quads {
  Bytes16 v;
};

inline Quads broadcastQuad(int64_t x) { return {_mm_set1_epi64x(x)}; }
// Exact products of the low, signed halves.
inline Quads multiplyLowHalves(Quads a, Quads b) { return {_mm_mul_epi32(a.v, b.v)}; }
inline Quads operator+(Quads a, Quads b) { return {_mm_add_epi64(a.v, b.v)}; }
inline Quads operator-(Quads a, Quads b) { return {_mm_sub_epi64(a.v, b.v)}; }
inline Quads operator&(Quads a, Quads b) { return {_mm_and_si128(a.v, b.v)}; }
inline Quads operator^(Quads a, Quads b) { return {_mm_xor_si128(a.v, b.v)}; }
// As unsigned numbers: zeros come in.
inline Quads operator>>(Quads a, Shift s) { return {_mm_srl_epi64(a.v, s.count)}; }
// The high halves by themselves.
inline Quads highHalves(Quads a) { return {_mm_srli_epi64(a.v, 32)}; }
inline Quads isAbove(Quads a, Quads b) { return {_mm_cmpgt_epi64(a.v, b.v)}; }
inline Quads isEqual(Quads a, Quads b) { return {_mm_cmpeq_epi64(a.v, b.v)}; }

}  // namespace lumi::simd
