// SPDX-License-Identifier: MIT
// Rows of which some samples of each pixel are stored and the others stay: one chosen channel, or the
// colour of pixels with alpha.
#pragma once

#include <cstddef>
#include <cstdint>

namespace lumi {

// Copies the first `used` of `stored` samples of each pixel. Both pointers are at the first such sample;
// with one used sample nothing after the last one is touched, and rows that overlap give what a copy in
// order of the pixels gives.
template <int sampleBytes, int stored, int used>
void copyChosenRow(const uint8_t* src, uint8_t* dst, size_t pixels);

// Stores `used` samples into each pixel, under the same promise.
template <int sampleBytes, int stored, int used>
void fillChosenRow(const void* samples, uint8_t* dst, size_t pixels);

}  // namespace lumi
