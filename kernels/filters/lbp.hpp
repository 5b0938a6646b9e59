// SPDX-License-Identifier: MIT
// Local binary patterns, and how far images of them differ.
#pragma once

#include "kernels/filters/window.hpp"

namespace lumi {

// Patterns of 3 x 3 or 5 x 5 by the mode of their bits, 0 to 3. Samples of the source are bytes or floats;
// results of bytes have eight neighbours, those of words sixteen, which 3 x 3 has not.
template <typename S, typename D>
WindowFilter binaryPattern(int side, int mode);

// The counts of bits that differ between two rows replace those of another pair, and the sums of columns
// follow. Counts and sums have room for a vector.
template <typename T>
void replaceBits(const uint8_t* a, const uint8_t* b, uint8_t* counts, uint8_t* columns, size_t samples);

// dst[x] = columns[x] + ... + columns[x + 4]. Up to a vector behind the last column is read.
template <typename T>
void sumFiveColumns(const uint8_t* columns, uint8_t* dst, size_t samples);

}  // namespace lumi
