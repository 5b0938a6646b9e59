// SPDX-License-Identifier: MIT
// A block of 8 x 8 words in registers.
#pragma once

#include "kernels/simd/samples.hpp"

namespace lumi {

struct Words8x8 {
  simd::S16 row[8];
};

inline Words8x8 loadWords8x8(const simd::Byte* block) {
  Words8x8 words;
  for (int y = 0; y < 8; ++y) words.row[y] = {simd::load16(block + 16 * y)};
  return words;
}

// Three times, rows that lie half a block apart are put together word by word: each time an index's upper bit
// becomes its lowest one.
inline Words8x8 transposed(Words8x8 words) {
  for (int times = 0; times < 3; ++times) {
    Words8x8 next;
    for (int i = 0; i < 4; ++i) {
      next.row[2 * i] = interleaveLow(words.row[i], words.row[i + 4]);
      next.row[2 * i + 1] = interleaveHigh(words.row[i], words.row[i + 4]);
    }
    words = next;
  }
  return words;
}

}  // namespace lumi
