// SPDX-License-Identifier: MIT
// Single pixels of up to sixteen bytes in vectors.
#pragma once

#include "kernels/simd/bytes.hpp"

namespace lumi::simd {

// Up to four bytes in a register; none give 0. Put together there, for a copy in memory would be stored in
// parts and loaded at once, which stalls.
template <int bytes>
uint32_t dwordOf(const Byte* p) {
  uint32_t dword = 0;
  uint16_t word = 0;
  if constexpr (bytes >= 4) std::memcpy(&dword, p, 4);
  if constexpr (bytes == 2 || bytes == 3) std::memcpy(&word, p, 2);
  if constexpr (bytes == 3) return word | uint32_t{p[2]} << 16;
  if constexpr (bytes == 2) return word;
  if constexpr (bytes == 1) return p[0];
  return dword;
}

// A pixel in the low bytes of a vector, and nothing behind it read. By way of registers: a vector load would
// have to wait for the stores of a copy.
template <int bytes>
Bytes16 loadPixel(const Byte* pixel) {
  if constexpr (bytes == 16)
    return load16(pixel);
  else
    return dwordsOf(dwordOf<bytes>(pixel), dwordOf<bytes - 4>(pixel + 4), dwordOf<bytes - 8>(pixel + 8));
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
