// SPDX-License-Identifier: MIT
// Rows under a mask of one byte a pixel: a pixel is stored where its mask byte is not zero.
#pragma once

#include <cstddef>
#include <cstdint>

namespace lumi {

// Pixels that a mask vector covers.
inline constexpr size_t kMaskBlock = 16;

// Copies pixels of pixelBytes bytes, of which the first usedBytes are stored.
template <int pixelBytes, int usedBytes>
void copyMaskedRow(const uint8_t* src, uint8_t* dst, const uint8_t* mask, size_t pixels);

// Stores a value; `block` is the pixel sixteen times over.
template <int pixelBytes, int usedBytes>
void fillMaskedRow(const uint8_t* block, uint8_t* dst, const uint8_t* mask, size_t pixels);

}  // namespace lumi
