// SPDX-License-Identifier: MIT
// Cosine transforms of 8 x 8 blocks in integers. A block is 64 words without gaps, of any alignment, and may
// be source and destination at once.
#pragma once

#include "kernels/rows.hpp"

namespace lumi {

// Eight rows of eight words, or of bytes with a level shift that is added modulo 2^16.
void forwardWords8x8(SourceRows src, uint8_t* block);
void forwardBytes8x8(SourceRows src, uint8_t* block, int16_t levelShift);

// Bytes as samples: the shift is added, saturating, before they are limited.
struct ByteRange {
  int16_t levelShift;
  uint8_t least, most;
};
void inverseWords8x8(const uint8_t* block, TargetRows dst);
void inverseBytes8x8(const uint8_t* block, TargetRows dst, ByteRange range);

// With one bit less between the stages, and one more before it.
void inverseTenBits8x8(const uint8_t* block, uint8_t* samples);

// Of 2 x 2 or 4 x 4 coefficients: the first words of the first rows. No other byte is read.
void inverseOfCorner2(const uint8_t* block, uint8_t* samples);
void inverseOfCorner4(const uint8_t* block, uint8_t* samples);

// The means of the inverse over squares: 2 x 2 or 4 x 4 of them, without gaps.
void meansOfInverse2(const uint8_t* block, uint8_t* means);
void meansOfInverse4(const uint8_t* block, uint8_t* means);

}  // namespace lumi
