// SPDX-License-Identifier: MIT
// Cosine transforms of any length, of eight sequences in the lanes of vectors: orthonormal, the forward one
//
//   y(0) = sum of x(n) / sqrt(N), y(k) = sqrt(2 / N) sum of x(n) cos((2n + 1) k pi / (2N))
//
// by a Fourier transform of the samples at even places, followed by those at odd ones from behind (Makhoul,
// "A fast cosine transform in one and two dimensions", 1980).
#pragma once

#include "kernels/rows.hpp"
#include "kernels/transforms/rows.hpp"

namespace lumi::transforms {

struct CosineTransform {
  size_t length;
  // Of even lengths the real transform; of odd ones its half is a complex one of the whole length.
  RealTransform fourier;
  // exp(-pi i k / (2 length)) for k to half of the length.
  const float *turnRe, *turnIm;
  float first, rest;  // factors of coefficient 0 and of the others, forward
};

// Floats of scratch.
size_t cosineScratch(const CosineTransform& transform);

// Rows, up to eight at a time.
void transformCosineRows(const CosineTransform& transform, bool inverse, const EightRows& rows,
                         float* scratch);

// All columns of an image of so many floats a row; src may be dst. With alpha, every fourth column stays.
void transformCosineColumns(const CosineTransform& transform, bool inverse, SourceRows src, TargetRows dst,
                            size_t columns, bool withAlpha, float* scratch);

}  // namespace lumi::transforms
