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

// From as many rows of samples as the mask has, each at its first pixel, smoothed columns and the differences
// of their ends: of so many pixels and of the columns beside them that the mask covers, the leftmost one
// first. Rows of samples are read, and those of sums written, up to 31 samples beyond.
template <GradientMask mask, typename T>
void sumColumns(const T* const* rows, size_t pixels, Wide<T>* smooth, Wide<T>* rise);

// Such sums for each channel, so many samples apart.
template <typename W>
struct GradientSums {
  const W *smooth, *rise;
  size_t channel;
};

// Both gradients, to rows of any alignment. Of three channels each pixel has those of the one with the
// largest sum of their squares, the first of equal ones.
template <GradientMask mask, int channels, typename W>
void gradientRow(GradientSums<W> sums, uint8_t* gx, uint8_t* gy, size_t pixels);

// Their magnitudes. Sums of squares of words are converted to floats, and their roots rounded, ties to even.
template <GradientMask mask, int channels, typename W>
void gradientMagnitudeRow(GradientSums<W> sums, uint8_t* dst, size_t pixels, bool isL2);

// Angles of gradients, with errors below 2 units of the last place. Up to 7 gradients are read behind the
// last one.
template <typename W>
void gradientAngleRow(const W* gx, const W* gy, uint8_t* dst, size_t pixels);

}  // namespace lumi
