// SPDX-License-Identifier: MIT
// Single pixels of up to sixteen bytes in vectors.
#pragma once

#include "kernels/simd/bytes.hpp"

namespace lumi::simd {

// One to four bytes as a dword, each moved by a register of its size: pieced together in memory, the dword
// would have to wait for the stores of its pieces.
template <int bytes>
uint32_t loadDword(const Byte* p) {
  uint32_t dword = 0;
  uint16_t word = 0;
  if constexpr (bytes >= 4)
    std::memcpy(&dword, p, 4);
  else if constexpr (bytes >= 2)
    std::memcpy(&word, p, 2), dword = word;
  if constexpr (bytes == 1) dword = *p;
  if constexpr (bytes == 3) dword |= uint32_t{p[2]} << 16;
  return dword;
}

// A pixel in the low bytes of a vector, and nothing behind it read.
template <int bytes>
Bytes16 loadPixel(const Byte* pixel) {
  static_assert(bytes <= 4 || bytes % 2 == 0);
  if constexpr (bytes == 16) return load16(pixel);
  const uint32_t first = loadDword<bytes>(pixel);
  if constexpr (bytes == 12) return dwordsOf(first, loadDword<4>(pixel + 4), loadDword<4>(pixel + 8));
  if constexpr (bytes > 4) return dwordsOf(first, loadDword<bytes - 4>(pixel + 4), 0);
  return dwordsOf(first, 0, 0);
}

// Repeats such a pixel, beginning with its byte `from`.
template <int pixelBytes>
constexpr Control repeatControl(int from) {
  Control c{};
  for (int j = 0; j < 16; ++j) c[static_cast<size_t>(j)] = static_cast<Byte>((from + j) % pixelBytes);
  return c;
}

}  // namespace lumi::simd
