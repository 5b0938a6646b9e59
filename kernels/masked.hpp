// SPDX-License-Identifier: MIT
// Rows under a mask of one byte a pixel: a pixel is stored where its mask byte is not zero.
#pragma once

#include "kernels/rows.hpp"

namespace lumi {

// Pixels that a mask vector covers.
inline constexpr size_t kMaskBlock = 16;

// Copies pixels of pixelBytes bytes, of which the first usedBytes are stored.
template <int pixelBytes, int usedBytes>
void copyMaskedRows(SourceRows src, TargetRows dst, SourceRows mask, Extent pixels);

// Stores a value; `block` is the pixel sixteen times over.
template <int pixelBytes, int usedBytes>
void fillMaskedRows(const uint8_t* block, TargetRows dst, SourceRows mask, Extent pixels);

}  // namespace lumi
