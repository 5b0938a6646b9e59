// SPDX-License-Identifier: MIT
// Products and sums of filters.
#pragma once

#include "kernels/simd/convert.hpp"
#include "kernels/simd/ties_to_even.hpp"

namespace lumi::simd {

// The last eight bytes, as the first.
inline S16 upperHalf(S16 x) { return {_mm_unpackhi_epi64(x.v, x.v)}; }

// The second four bytes, as the first.
inline U8 upperDword(U8 x) { return {_mm_srli_epi64(x.v, 32)}; }

template <size_t bytes>
SamplesOf<int16_t, bytes> wordsLow(SamplesOf<uint8_t, bytes> x) {
  return as<int16_t>(widenLow(x));
}
template <size_t bytes>
SamplesOf<int16_t, bytes> wordsHigh(SamplesOf<uint8_t, bytes> x) {
  return as<int16_t>(widenHigh(x));
}

inline void storeFloats(Byte* p, Floats8 x) { store32(p, bytesOf(x)); }
inline void storeFloats(Byte* p, Floats4 x) { store16(p, bytesOf(x)); }
template <typename Floats>
Floats loadFloats(const Byte* p) {
  if constexpr (std::is_same_v<Floats, Floats8>)
    return loadFloats8(p);
  else
    return loadFloats4(p);
}

// The same float in all lanes.
template <typename Floats>
Floats broadcastFrom(const Byte* p) {
  float x;
  std::memcpy(&x, p, sizeof x);
  return broadcastFloat<Floats>(x);
}

// Truncated; INT_MIN for what is beyond, and for what is not a number.
inline int truncated(float x) { return _mm_cvttss_si32(_mm_set_ss(x)); }

}  // namespace lumi::simd
