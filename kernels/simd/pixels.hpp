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

// Stores the first bytes of a vector, and nothing behind them: by two stores that may lie over one another.
template <int bytes>
void storePixel(Byte* p, Bytes16 v) {
  static_assert(bytes == 3 || bytes == 4 || bytes == 6 || bytes == 8 || (bytes >= 12 && bytes <= 16));
  if constexpr (bytes == 16) {
    store16(p, v);
  } else if constexpr (bytes >= 8) {
    storeFirst8(p, v);
    if constexpr (bytes == 12) {
      const uint32_t last = firstDword(bytesFrom<8>(v));
      std::memcpy(p + 8, &last, 4);
    } else if constexpr (bytes > 12) {
      storeFirst8(p + bytes - 8, bytesFrom<bytes - 8>(v));
    }
  } else {
    const uint32_t first = firstDword(v);
    std::memcpy(p, &first, bytes < 4 ? 2 : 4);
    if constexpr (bytes == 3) p[2] = static_cast<Byte>(first >> 16);
    if constexpr (bytes == 6) {
      const uint32_t last = firstDword(bytesFrom<4>(v));
      std::memcpy(p + 4, &last, 2);
    }
  }
}

// Sorts 12 bytes of three samples a pixel into 16 with room for a fourth. The bytes begin at `start`.
template <int sampleBytes>
constexpr Control widenControl(int start) {
  Control c{};
  for (int j = 0; j < 16; ++j) {
    const int pixel = j / (4 * sampleBytes), within = j % (4 * sampleBytes);
    c[static_cast<size_t>(j)] =
        within < 3 * sampleBytes ? static_cast<Byte>(start + pixel * 3 * sampleBytes + within) : kZero;
  }
  return c;
}

// The way back, turned: the twelve bytes begin at byte `first` of the result, and go on at its start.
template <int sampleBytes>
constexpr Control narrowControl(int first) {
  Control c{};
  for (Byte& b : c) b = kZero;
  for (int k = 0; k < 12; ++k)
    c[static_cast<size_t>((first + k) % 16)] =
        static_cast<Byte>(k / (3 * sampleBytes) * 4 * sampleBytes + k % (3 * sampleBytes));
  return c;
}

// Four times twelve bytes in a row. Those of a begin at its start, of b at byte 12, of c at byte 8, of d at
// byte 4; each goes on at its own start.
struct FourTwelves {
  Bytes16 first, second, third;

  FourTwelves(Bytes16 a, Bytes16 b, Bytes16 c, Bytes16 d)
      : first(blendDwords<0b1000>(a, b)),
        second(blendDwords<0b1100>(b, c)),
        third(blendDwords<0b1110>(c, d)) {}
  void store(Byte* dst) const {
    store16(dst, first);
    store16(dst + 16, second);
    store16(dst + 32, third);
  }
};
inline void storeTurned(Byte* dst, Bytes16 a, Bytes16 b, Bytes16 c, Bytes16 d) {
  FourTwelves(a, b, c, d).store(dst);
}

}  // namespace lumi::simd
