// SPDX-License-Identifier: MIT
// Medians of large windows of bytes and words, at a cost that hardly grows with the window.
#pragma once

#include <cstddef>
#include <cstdint>

namespace lumi {

// The columns that the windows of a row cover, each with its last samples and a histogram of their upper
// bytes. Counters of a histogram are running: each tells how many samples are not above its level. There are
// sixteen for the upper four bits, and under each of them sixteen for the lower four, so that a sample
// changes two vectors, and a window that moves on gains and loses a vector of each. Source: S. Perreault and
// P. Hebert, Median filtering in constant time, 2007.
template <typename T>
class MedianColumns {
 public:
  // Windows have at most so many rows and samples: a counter of a column is a byte, and the difference of two
  // of them a signed one; those of a window are words.
  static constexpr int kMostRows = 127, kMostSamples = 65535;

  // Bytes of memory for so many columns under windows of so many rows.
  static int64_t bytes(int64_t columns, int rows);
  // Memory on a vector's boundary.
  MedianColumns(uint8_t* memory, int columns, int rows);

  // Takes a row of samples that lie so many bytes apart, at any address. Once there are as many as windows
  // have, it takes the place of the oldest.
  void take(const uint8_t* row, ptrdiff_t pixelBytes);
  // The medians of windows of so many columns, an odd number, and all rows: as many as there are places.
  void medians(uint8_t* dst, ptrdiff_t pixelBytes, int windowColumns);

 private:
  int columns_, rows_, slots_, slot_ = 0;
  bool isFull_ = false;
  ptrdiff_t plane_;
  uint8_t *counters_, *samples_, *lowBytes_, *lowHistograms_;
};

}  // namespace lumi
