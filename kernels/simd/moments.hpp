// SPDX-License-Identifier: MIT
// Pairs of doubles: a sum of samples, and one of their squares.
#pragma once

#include "kernels/simd/elementary.hpp"

namespace lumi::simd {

inline Doubles2 loadPair(const Byte* p) { return {_mm_castsi128_pd(load16(p))}; }
inline void storePair(Byte* p, Doubles2 x) { store16(p, bytesOf(x)); }

// What a sample adds that takes the place of another one. Products are below 2^31.
inline Doubles2 momentsOf(int entering, int leaving) {
  return {
      _mm_cvtepi32_pd(_mm_setr_epi32(entering - leaving, (entering - leaving) * (entering + leaving), 0, 0))};
}
inline Doubles2 momentsOf(float entering, float leaving) {
  const Doubles2 in{_mm_set1_pd(static_cast<double>(entering))},
      out{_mm_set1_pd(static_cast<double>(leaving))};
  const Doubles2 one{_mm_set_sd(1)};  // and 0, in whose place the sample itself comes
  const auto powers = [=](Doubles2 x) { return x * Doubles2{_mm_shuffle_pd(one.v, x.v, 0)}; };
  return powers(in) - powers(out);
}

// Of four pairs: the sums, and the sums of squares.
struct FourMoments {
  Doubles4 sums, squares;
};
inline FourMoments loadMoments(const Byte* p) {
  const Bytes32 first = load32(p), second = load32(p + 32);
  const Bytes32 even = permuteHalves<0, 0>(first, second), odd = permuteHalves<1, 1>(first, second);
  return {samplesOf<double>(interleaveLowQuads(even, odd)),
          samplesOf<double>(interleaveHighQuads(even, odd))};
}

// Four samples as doubles, and back: integers to nearest, ties to even.
template <typename T>
Doubles4 loadDoubles(const Byte* p) {
  if constexpr (std::is_floating_point_v<T>)
    return doublesOf(loadFloats4(p));
  else
    return doublesOf(as<int32_t>(widen<std::conditional_t<std::is_signed_v<T>, int32_t, uint32_t>>(
        Samples16<T>{loadFew<4 * sizeof(T)>(p)})));
}
template <typename T>
void storeDoubles(Byte* p, Doubles4 x) {
  if constexpr (std::is_floating_point_v<T>) {
    store16(p, bytesOf(Floats4{_mm256_cvtpd_ps(x.v)}));
  } else {
    const S32 dwords = roundedToEven(x);
    const S16 words = narrowSigned<int16_t>(dwords, dwords);
    if constexpr (sizeof(T) == 2) {
      storeFirst8(p, words.v);
    } else {
      const uint32_t bytes = firstDword(narrowSigned<T>(words, words).v);
      move<4>(p, reinterpret_cast<const Byte*>(&bytes));
    }
  }
}

}  // namespace lumi::simd
