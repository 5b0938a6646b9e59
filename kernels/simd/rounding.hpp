// SPDX-License-Identifier: MIT
// Floats to integers and back. What rounds does so by the vector unit's rounding control, unless its name
// says otherwise.
#pragma once

#include "kernels/simd/floats.hpp"

namespace lumi::simd {

// Signed dwords. Without 32-byte integers they have no operations but these.
using Ints8 = Samples32<int32_t>;
inline S32 lowHalf(Ints8 x) { return {lowHalf(x.v)}; }
inline S32 highHalf(Ints8 x) { return {highHalf(x.v)}; }
inline Ints8 joined(S32 low, S32 high) { return {joined(low.v, high.v)}; }
#ifndef __AVX2__
inline Ints8 operator^(Ints8 a, Ints8 b) { return {asBytes(_mm256_xor_ps(asFloats(a.v), asFloats(b.v)))}; }
inline Ints8 operator|(Ints8 a, Ints8 b) { return {asBytes(_mm256_or_ps(asFloats(a.v), asFloats(b.v)))}; }
#endif
inline S32 intsOf(Floats4 mask) { return {_mm_castps_si128(mask.v)}; }
inline Ints8 intsOf(Floats8 mask) { return {asBytes(mask.v)}; }

// To an integer; INT32_MIN for what is beyond, and for what is not a number.
inline S32 rounded(Floats4 x) { return {_mm_cvtps_epi32(x.v)}; }
inline Ints8 rounded(Floats8 x) { return {_mm256_cvtps_epi32(x.v)}; }

// To nearest, ties away from zero, while the rounding control truncates; the same for what is beyond. The sum
// is truncated as well: rounded to nearest it could reach the next integer, as from the last float below 1/2.
template <typename V>
auto roundedAway(V x) {
  const V sign = broadcastFloat<V>(-0.0F), half = broadcastFloat<V>(0.5F);
  return rounded(x + ((x & sign) | half));
}

inline Floats4 floatsOf(S32 x) { return {_mm_cvtepi32_ps(x.v)}; }
inline Floats8 floatsOf(Ints8 x) { return {_mm256_cvtepi32_ps(x.v)}; }

// Both parts are exact, so that only the sum rounds.
template <size_t bytes>
auto floatsOf(SamplesOf<uint32_t, bytes> x) {
  const auto high = floatsOf(as<int32_t>(shiftRight<16>(x))),
             low = floatsOf(as<int32_t>(x & broadcastLike(x, uint32_t{0xFFFF})));
  return high * broadcastFloat<std::decay_t<decltype(high)>>(65536) + low;
}

}  // namespace lumi::simd
