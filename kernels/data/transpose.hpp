// SPDX-License-Identifier: MIT
// Rows that become columns. Pixels of equally many bytes move alike, whatever their samples.
#pragma once

#include "kernels/rows.hpp"

namespace lumi {

// Pixel (x, y) of src goes to (y, x) of dst; pixels counts those of a source row. Neither the images nor the
// rows of dst overlap. Steps may have any sign.
template <int pixelBytes>
void transposeRows(SourceRows src, TargetRows dst, Extent pixels);

// The same past the cache, a whole line of the destination at a time: its rows begin on 64-byte boundaries,
// and hold so many pixels that they end there too. For pixels of 1, 2, 4, 8, 12 and 16 bytes.
template <int pixelBytes>
void transposeRowsStreaming(SourceRows src, TargetRows dst, Extent pixels);

// In place: a square of so many rows.
template <int pixelBytes>
void transposeSquare(TargetRows image, int side);

}  // namespace lumi
