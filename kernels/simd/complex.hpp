// SPDX-License-Identifier: MIT
// Complex samples, two parts side by side, as vectors of either part.
#pragma once

#include "kernels/simd/convert.hpp"
#include "kernels/simd/rounding.hpp"

namespace lumi::simd {

template <typename V>
struct ComplexParts {
  V real, imaginary;
};

inline ComplexParts<Floats4> loadComplexFloats4(const Byte* p) {
  const Bytes16 a = load16(p), b = load16(p + 16);
  return {samplesOf<float>(evenPixels<4>(a, b)), samplesOf<float>(oddDwords(a, b))};
}
// Instructions on 32 bytes mix within sixteen: the first and the third of them go together.
inline ComplexParts<Floats8> loadComplexFloats8(const Byte* p) {
  const Bytes32 a = joined(load16(p), load16(p + 32)), b = joined(load16(p + 16), load16(p + 48));
  return {{_mm256_shuffle_ps(asFloats(a), asFloats(b), 0x88)},
          {_mm256_shuffle_ps(asFloats(a), asFloats(b), 0xDD)}};
}

// Four of 16-bit or 32-bit parts, as dwords: T is the part.
template <typename T>
ComplexParts<S32> loadComplexDwords(const Byte* p) {
  if constexpr (sizeof(T) == 4) {
    const Bytes16 a = load16(p), b = load16(p + 16);
    return {{evenPixels<4>(a, b)}, {oddDwords(a, b)}};
  } else if constexpr (std::is_signed_v<T>) {
    const S32 pairs{load16(p)};
    return {shiftRight<16>(pairs << Shift(16)), shiftRight<16>(pairs)};
  } else {
    const U32 pairs{load16(p)};
    return {as<int32_t>(pairs & broadcast16(uint32_t{0xFFFF})), as<int32_t>(shiftRight<16>(pairs))};
  }
}

// Eight complex samples of dwords, in turn.
inline void storeComplexDwords8(Byte* p, Bytes32 real, Bytes32 imaginary) {
  const __m256 x = asFloats(real), y = asFloats(imaginary);
  const Bytes32 low = asBytes(_mm256_unpacklo_ps(x, y)), high = asBytes(_mm256_unpackhi_ps(x, y));
  store32(p, permuteHalves<0, 0>(low, high));
  store32(p + sizeof(Bytes32), permuteHalves<1, 1>(low, high));
}
// The same of words.
inline void storeComplexWords8(Byte* p, S16 real, S16 imaginary) {
  store16(p, interleaveLow(real, imaginary).v);
  store16(p + sizeof(Bytes16), interleaveHigh(real, imaginary).v);
}

}  // namespace lumi::simd
