// SPDX-License-Identifier: MIT
// Row kernels of bit images. A row's first bit is bit `offset`, 0 to 7, of its first byte, counted as the
// kernel says. Bytes without a bit of the row are not touched. src and dst do not overlap.
#pragma once

#include <cstddef>
#include <cstdint>

namespace lumi {

// Bits, counted from the low end, become one of two samples of D, an unsigned integer that stands for any
// type of its size.
template <typename D>
void expandBitsRow(const uint8_t* src, unsigned offset, uint8_t* dst, size_t pixels, D zero, D one);

// Bits, counted from the high end, become 0 or 255.
void expandBitsToFullRow(const uint8_t* src, unsigned offset, uint8_t* dst, size_t pixels);

// Samples of S that are above the threshold set their bit, counted from the low end, others clear it.
template <typename S>
void bitsAboveRow(const uint8_t* src, uint8_t* dst, unsigned offset, size_t pixels, S threshold);

}  // namespace lumi
