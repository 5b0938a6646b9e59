// SPDX-License-Identifier: MIT
// Rows of which some samples of each pixel are stored and the others stay: one chosen channel, or the
// colour of pixels with alpha.
#pragma once

#include "kernels/rows.hpp"

namespace lumi {

// Copies the first `used` of `stored` samples of each pixel. Both pointers are at the first such sample;
// with one used sample nothing after the last one is touched, and rows that overlap give what a copy in
// order of the pixels gives.
template <int sampleBytes, int stored, int used>
void copyChosenRows(SourceRows src, TargetRows dst, Extent pixels);

// Stores a value under the same promise; `block` is the pixel repeated over kChosenBlock bytes.
template <int sampleBytes, int stored, int used>
void fillChosenRows(const uint8_t* block, TargetRows dst, Extent pixels);

// A whole number of pixels of `stored` samples, and of vectors.
template <int stored>
inline constexpr size_t kChosenBlock = 32 * stored;

}  // namespace lumi
