// SPDX-License-Identifier: MIT
// Single pixels of up to sixteen bytes in vectors.
#pragma once

#include "kernels/simd/bytes.hpp"

namespace lumi::simd {

// A pixel in the low bytes of a vector, and nothing behind it read. By way of registers: a vector load would
// have to wait for the stores of a copy.
template <int bytes>
Bytes16 loadPixel(const Byte* pixel) {
  if constexpr (bytes == 16) {
    return load16(pixel);
  } else {
    uint32_t dwords[3] = {};
    for (int i = 0; i < 3; ++i)
      if (4 * i < bytes)
        std::memcpy(&dwords[i], pixel + 4 * i, static_cast<size_t>(bytes - 4 * i < 4 ? bytes - 4 * i : 4));
    return dwordsOf(dwords[0], dwords[1], dwords[2]);
  }
}

// Repeats such a pixel, beginning with its byte `from`.
template <int pixelBytes>
constexpr Control repeatControl(int from) {
  Control c{};
  for (int j = 0; j < 16; ++j) c[static_cast<size_t>(j)] = static_cast<Byte>((from + j) % pixelBytes);
  return c;
}

// The first or the last bytes of a vector.
inline void storeFirst8(Byte* p, Bytes16 v) { _mm_storel_epi64(reinterpret_cast<__m128i*>(p), v); }
inline void storeLast8(Byte* p, Bytes16 v) {
  _mm_storeh_pd(reinterpret_cast<double*>(p), _mm_castsi128_pd(v));
}
inline uint32_t firstDword(Bytes16 v) { return static_cast<uint32_t>(_mm_cvtsi128_si32(v)); }
inline uint32_t lastDword(Bytes16 v) { return static_cast<uint32_t>(_mm_extract_epi32(v, 3)); }

}  // namespace lumi::simd
