// SPDX-License-Identifier: MIT
// Means of the pixels about each one, weighted by how near they are and how much alike.
#pragma once

#include "kernels/rows.hpp"

namespace lumi {

// A disc of points: those within `radius`. Rows of samples are a ring of 2 * radius + 1, which begin with the
// leftmost point of the first result; channels are planes behind one another. Weights are those of the
// points, row after row; the one in the middle counts as 1.
struct DiscPoints {
  const uint8_t* ring;
  ptrdiff_t rowBytes, planeBytes;
  int first;  // the place of the topmost row
  int radius;
  const uint8_t* weights;
};

// A grid of points `step` pixels apart, and how many of them there are on each side of a result. Weights are
// products of those of both distances, in steps. The source is of one channel, at the first result.
struct GridPoints {
  SourceRows src;
  int reachX, reachY, step;
  const uint8_t* weights;
};

// Of bytes, by a table of floats with an entry for each difference: of all channels together.
template <int channels>
void bilateralBytes(const DiscPoints& points, const uint8_t* table, uint8_t* dst, size_t pixels);
void bilateralBytes(const GridPoints& points, const uint8_t* table, uint8_t* dst, size_t pixels);

// Of floats: 2^(factor * d^2) for a difference d.
template <int channels>
void bilateralFloats(const DiscPoints& points, float factor, uint8_t* dst, size_t pixels);

}  // namespace lumi
