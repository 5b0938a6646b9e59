// SPDX-License-Identifier: MIT
// Floats to the nearest integer, ties to even, whatever the vector unit's rounding control says. What is
// beyond 32 bits, and what is not a number, gives INT32_MIN.
#pragma once

#include "kernels/simd/rounding.hpp"

namespace lumi::simd {

inline constexpr int kTiesToEven = _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC;

inline S32 roundedToEven(Floats4 x) { return {_mm_cvttps_epi32(_mm_round_ps(x.v, kTiesToEven))}; }
inline Ints8 roundedToEven(Floats8 x) { return {_mm256_cvttps_epi32(_mm256_round_ps(x.v, kTiesToEven))}; }
inline int roundedToEven(float x) {
  const __m128 v = _mm_set_ss(x);
  return _mm_cvttss_si32(_mm_round_ss(v, v, kTiesToEven));
}

}  // namespace lumi::simd
