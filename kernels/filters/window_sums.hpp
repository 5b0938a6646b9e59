// SPDX-License-Identifier: MIT
// Sums of all windows of an image, at a cost that does not depend on the window: each column of the window's
// rows has a sum that loses a row and wins one from row to row, and along a row a window's sum loses a column
// and wins one. Integers are exact modulo 2^16 or 2^32, so that a sum that fits is right whatever was lost on
// the way.
#pragma once

#include <cstddef>
#include <cstdint>

namespace lumi {

// The most rows that are added at a time.
inline constexpr int kSummedRows = 8;

// Arrays of sums may lie at any address. Counts are samples.
struct SumKernels {
  size_t sumBytes;
  // Sums of so many rows, without or with what is there already; a row that replaces another.
  void (*set)(const uint8_t* const* rows, int taken, uint8_t* columns, size_t count);
  void (*add)(const uint8_t* const* rows, int taken, uint8_t* columns, size_t count);
  void (*replace)(const uint8_t* entering, const uint8_t* leaving, uint8_t* columns, size_t count);
  // Sums of `pixels` columns each, of whole vectors: up to 16 bytes and a pixel of columns behind the last
  // one are read, and up to 12 bytes behind the last sum are written.
  void (*along)(const uint8_t* columns, size_t pixels, uint8_t* sums, size_t count);
};

// T: uint8_t, uint16_t, int16_t. Sum: uint16_t (of bytes), uint32_t, or float for windows whose sums have
// more bits. These lose what is small beside them.
template <typename T, typename Sum>
const SumKernels& sumKernels(int channels);

}  // namespace lumi
