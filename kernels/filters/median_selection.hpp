// SPDX-License-Identifier: MIT
// Medians of windows of any size, with no memory: what is done where there is none for a faster way.
#pragma once

#include <cstddef>
#include <cstdint>

namespace lumi {

// The rows that windows cover, in any order, and the samples of one channel.
struct MedianRows {
  const uint8_t* first;
  ptrdiff_t step, pixelBytes;
  int rows, columns;  // of a window
};

// The medians of so many windows along a row.
template <typename T>
void selectMedians(const MedianRows& src, uint8_t* dst, int count);

}  // namespace lumi
