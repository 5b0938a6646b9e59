// SPDX-License-Identifier: MIT
// Rows of two images as differences from their means, and sums of products of those.
#pragma once

#include <cstddef>
#include <cstdint>

#include "kernels/rows.hpp"

namespace lumi {

// Rows of differences have as many floats as a multiple of this; those behind the image's are zero.
inline constexpr int kCentredBlock = 16;

// One channel of pixels of `channels` T samples, as floats less their mean; src is at the channel's sample.
// The row has `room` floats, a multiple of kCentredBlock.
template <typename T, int channels>
void centredRow(const uint8_t* src, size_t pixels, float mean, float* row, size_t room);

struct RowProducts {
  float product, norm1, norm2;
};

// The sum of a * b over rows of differences, and the roots of those of a * a and b * b, in single precision.
RowProducts rowProducts(const float* a, const float* b, size_t room);

}  // namespace lumi
