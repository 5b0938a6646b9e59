// SPDX-License-Identifier: MIT
// Vector pieces of quotients, roots, exponentials and logarithms.
#pragma once

#include "kernels/simd/convert.hpp"
#include "kernels/simd/ties_to_even.hpp"

namespace lumi::simd {

// Sixteen bytes over and over, as a table for shuffles.
#ifdef __AVX2__
inline VectorBytes repeated(Bytes16 v) { return joined(v, v); }
#else
inline VectorBytes repeated(Bytes16 v) { return v; }
#endif

inline Floats4 operator/(Floats4 a, Floats4 b) { return {_mm_div_ps(a.v, b.v)}; }
inline Floats8 operator/(Floats8 a, Floats8 b) { return {_mm256_div_ps(a.v, b.v)}; }
inline Doubles4 operator/(Doubles4 a, Doubles4 b) { return {_mm256_div_pd(a.v, b.v)}; }

inline Floats4 squareRoot(Floats4 x) { return {_mm_sqrt_ps(x.v)}; }
inline Floats8 squareRoot(Floats8 x) { return {_mm256_sqrt_ps(x.v)}; }
inline Doubles4 squareRoot(Doubles4 x) { return {_mm256_sqrt_pd(x.v)}; }
inline double squareRoot(double x) { return _mm_cvtsd_f64(_mm_sqrt_sd(_mm_setzero_pd(), _mm_set_sd(x))); }

// As the processor estimates 1 / sqrt(x).
inline float approximateInverseRoot(float x) { return _mm_cvtss_f32(_mm_rsqrt_ss(_mm_set_ss(x))); }

// The nearest integer, as a float, ties to even.
inline Floats4 nearest(Floats4 x) { return {_mm_round_ps(x.v, kTiesToEven)}; }
inline Floats8 nearest(Floats8 x) { return {_mm256_round_ps(x.v, kTiesToEven)}; }

inline bool allSet(Floats4 mask) { return _mm_movemask_ps(mask.v) == 0xF; }
inline bool allSet(Floats8 mask) { return _mm256_movemask_ps(mask.v) == 0xFF; }

// The bits that any of the dwords has.
inline int bitsOfDwords(Bytes32 v) {
  const Bytes16 four = bitOr(lowHalf(v), highHalf(v)), two = bitOr(four, permuteDwords<2, 3, 0, 1>(four));
  return static_cast<int>(firstDword(bitOr(two, permuteDwords<1, 0, 3, 2>(two))));
}

// Without the part behind the point.
inline S32 truncated(Floats4 x) { return {_mm_cvttps_epi32(x.v)}; }
inline Ints8 truncated(Floats8 x) { return {_mm256_cvttps_epi32(x.v)}; }
inline S32 truncated(Doubles4 x) { return {_mm256_cvttpd_epi32(x.v)}; }
inline S32 roundedToEven(Doubles4 x) { return {_mm256_cvttpd_epi32(_mm256_round_pd(x.v, kTiesToEven))}; }

// The floats with these bits.
inline Floats4 withBits(S32 bits) { return {_mm_castsi128_ps(bits.v)}; }
inline Floats8 withBits(Ints8 bits) { return {asFloats(bits.v)}; }
template <typename V>
V broadcastBits(uint32_t bits) {
  const auto word = static_cast<int>(bits);
  if constexpr (std::is_same_v<V, Floats8>)
    return {_mm256_castsi256_ps(_mm256_set1_epi32(word))};
  else
    return {_mm_castsi128_ps(_mm_set1_epi32(word))};
}

inline Doubles4 broadcastDouble(double x) { return {_mm256_set1_pd(x)}; }
inline Doubles4 loadDoubles4(const double* p) { return {_mm256_loadu_pd(p)}; }
inline Doubles4 doublesOf(S32 x) { return {_mm256_cvtepi32_pd(x.v)}; }
inline Doubles4 doublesOf(Floats4 x) { return {_mm256_cvtps_pd(x.v)}; }

// 2^exponent, of doubles that are not denormal.
inline double powerOfTwo(int exponent) {
  const auto bits = static_cast<uint64_t>(1023 + exponent) << 52;
  double x;
  std::memcpy(&x, &bits, sizeof x);
  return x;
}

}  // namespace lumi::simd
