// SPDX-License-Identifier: MIT
// Horizontal and vertical gradients together, their magnitudes and angles: words of bytes, and floats of all
// other samples.
#pragma once

#include <type_traits>

#include "kernels/rows.hpp"

namespace lumi {

enum class GradientMask { Sobel3, Sobel5, Prewitt, Scharr };

constexpr int gradientReach(GradientMask mask) { return mask == GradientMask::Sobel5 ? 2 : 1; }

// What samples become.
template <typename T>
using Wide = std::conditional_t<sizeof(T) == 1, int16_t, float>;

// Pixels that are made at a time, at most: their sums stay in the nearest cache.
inline constexpr size_t kMostGradients = 512;

// Rows of results, of any alignment. Both gradients are made where there is a place for them, and magnitudes
// where there is one for those. Sums of squares of words are converted to floats, and their roots rounded,
// ties to even.
struct GradientTargets {
  uint8_t *gx, *gy, *magnitude;
  bool isL2;
};

// From as many rows of samples as the mask has, each at its first pixel of the first channel; those of other
// channels lie `channel` samples apart. Of three channels each pixel has the gradients of the one with the
// largest sum of their squares, the first of equal ones. Up to 31 samples behind the last one under the mask
// are read.
template <GradientMask mask, int channels, typename T>
void gradientRow(const T* const* rows, ptrdiff_t channel, GradientTargets targets, size_t pixels);

// Angles of gradients, with errors below 2 units of the last place. Up to 7 gradients are read behind the
// last one.
template <typename W>
void gradientAngleRow(const W* gx, const W* gy, uint8_t* dst, size_t pixels);

}  // namespace lumi
