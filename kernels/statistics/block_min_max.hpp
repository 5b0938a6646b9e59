// SPDX-License-Identifier: MIT
// The extremes of blocks of an image of one channel, of uint8_t, uint16_t, int16_t or floats.
#pragma once

#include "kernels/rows.hpp"

namespace lumi {

// A row of blocks, which are so many samples wide and as high as `samples` has rows; the last one may be
// narrower. Stores the least or the greatest sample of each block, one behind the other, and takes `extreme`
// on to the best of them. Infinities are told; what is not a number is passed over.
template <typename T>
void leastOfBlocks(SourceRows src, Extent samples, size_t blockWidth, uint8_t* map, T& extreme);
template <typename T>
void greatestOfBlocks(SourceRows src, Extent samples, size_t blockWidth, uint8_t* map, T& extreme);

}  // namespace lumi
