// SPDX-License-Identifier: MIT
// Transforms along rows, of complex samples and of real ones. A real row of 2m samples is a complex one of m
// samples, whose spectrum is split into those of the samples at even and at odd places.
#pragma once

#include "kernels/rows.hpp"
#include "kernels/transforms/transform.hpp"

namespace lumi::transforms {

using Byte = uint8_t;

// Up to eight rows, which need not be of one image.
struct EightRows {
  const Byte* src[kLanes];
  Byte* dst[kLanes];
  int count;
};

// A real transform of an even length.
struct RealTransform {
  Transform half;
  // exp(-2 pi i k / length) for k to a quarter of the length.
  const float *rootRe, *rootIm;
};

// Rows side by side in the lanes, forward or inverse, times scale. `points` has room for the points of a row,
// of real rows for twice as many, and `local` for localFloats().
void transformEightRows(const Transform& transform, bool inverse, float scale, const EightRows& rows,
                        float* points, float* local);
void transformEightRealRows(const RealTransform& transform, bool inverse, float scale, const EightRows& rows,
                            float* points, float* local);

// Real rows of an odd length, as the real and the imaginary parts of complex ones.
void transformOddRealRows(const Transform& transform, bool inverse, float scale, const EightRows& first,
                          const EightRows& second, float* points, float* local);

// One row by a split transform. Scratch has room for the row and, of a transform larger than 2^kLargestRoots,
// for localFloats() behind it; src may be dst.
void transformRow(const Transform& transform, bool inverse, float scale, const Byte* src, Byte* dst,
                  float* scratch);
void transformRealRow(const RealTransform& transform, bool inverse, float scale, const Byte* src, Byte* dst,
                      float* scratch);

}  // namespace lumi::transforms
