// SPDX-License-Identifier: MIT
// Rows of pixels in reverse order, and rows that change places. Pixels of equally many bytes move alike,
// whatever their samples; of fewer bytes used than a pixel has, the others stay where they are.
#pragma once

#include "kernels/rows.hpp"

namespace lumi {

// Each row of dst is the same row of src with its pixels in reverse order. The images do not overlap. Only
// pixels of 4, 8 and 16 bytes may be streamed.
template <int pixelBytes, int usedBytes>
void reverseRows(SourceRows src, TargetRows dst, Extent pixels, bool streaming);

// Rows of a and b change places, and the order of their pixels is reversed. Each row of a has so many pixels
// from its start on, each row of b as many up to its start: b is given by the ends of its rows. They are
// apart.
template <int pixelBytes, int usedBytes>
void exchangeReversed(TargetRows a, TargetRows bEnds, Extent pixels);

// Rows of a and b change places.
template <int pixelBytes, int usedBytes>
void exchangeRows(TargetRows a, TargetRows b, Extent pixels);

// A copy past the cache.
void copyRowsStreaming(SourceRows src, TargetRows dst, Extent bytes);

}  // namespace lumi
