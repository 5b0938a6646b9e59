// SPDX-License-Identifier: MIT
// Row kernels of bit images. A row's first bit is bit `offset`, 0 to 7, of its first byte, counted as the
// kernel says. Bytes without a bit of the row are not touched. src and dst do not overlap.
#pragma once

#include "kernels/rows.hpp"

namespace lumi {

// Bits, counted from the low end, become one of two samples of D, an unsigned integer that stands for any
// type of its size.
template <typename D>
void expandBitsRows(SourceRows src, unsigned offset, TargetRows dst, Extent pixels, D zero, D one);

// Bits, counted from the high end, become 0 or 255.
void expandBitsToFullRows(SourceRows src, unsigned offset, TargetRows dst, Extent pixels);

// Samples of S that are above the threshold set their bit, counted from the low end, others clear it.
template <typename S>
void bitsAboveRows(SourceRows src, TargetRows dst, unsigned offset, Extent pixels, S threshold);

}  // namespace lumi
