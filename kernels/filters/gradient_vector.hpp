// SPDX-License-Identifier: MIT
// Horizontal and vertical gradients together, their magnitudes and angles: words of bytes, and floats of all
// other samples.
#pragma once

#include "kernels/rows.hpp"

namespace lumi {

enum class GradientMask { Sobel3, Sobel5, Prewitt, Scharr };

constexpr int gradientReach(GradientMask mask) { return mask == GradientMask::Sobel5 ? 2 : 1; }

// Pixels of a row that are made at a time, at most, times the channels. Up to 32 samples are read behind the
// last one that the mask covers.
inline constexpr size_t kMostGradients = 1536;

// As many rows of samples as the mask has, each at its first pixel of the first channel; those of other
// channels lie `channel` samples apart. Of three channels each pixel has both gradients of the one with the
// largest sum of their squares, the first of equal ones.
template <GradientMask mask, int channels, typename T>
void gradientRow(const T* const* rows, ptrdiff_t channel, uint8_t* gx, uint8_t* gy, size_t pixels);

// Rows of any alignment, as gradientRow stores them: W is int16_t or float. Sums of squares of words are
// converted to floats, and their roots rounded, ties to even.
template <typename W>
void gradientMagnitudeRow(const uint8_t* gx, const uint8_t* gy, uint8_t* dst, size_t pixels, bool isL2);

// Angles are floats, with errors below 2 units of the last place.
template <typename W>
void gradientAngleRow(const uint8_t* gx, const uint8_t* gy, uint8_t* dst, size_t pixels);

}  // namespace lumi
