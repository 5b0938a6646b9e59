// SPDX-License-Identifier: MIT
// Two-dimensional transforms of images: along rows, then down columns; an inverse one the other way round.
// Real images become packed spectra of the same size.
#pragma once

#include "frame/layout.hpp"
#include "kernels/rows.hpp"
#include "kernels/transforms/columns.hpp"
#include "kernels/transforms/rows.hpp"

namespace lumi {

// How rows go: eight side by side; of real rows of an odd length sixteen, as parts of complex ones; or one by
// itself, in the lanes with parts of its own.
enum class RowMethod { eight, odd, single };

struct SpectrumPlan {
  size_t width, height;
  // Of complex rows and of real ones of an odd length, the half stands for the whole row.
  transforms::RealTransform rows;
  RowMethod method;
  transforms::Transform columns;
  bool inverse;
  float rowScale, columnScale;
};

// Bytes of scratch that rows side by side need with a transform of so many points and its local memory:
// points, what they are made of, and planes of channels.
constexpr int64_t rowBytes(int64_t points, int64_t localFloats) {
  return 4 * transforms::kPointBytes * points + 4 * localFloats;
}

void transformComplex(const SpectrumPlan& plan, SourceRows src, TargetRows dst, float* scratch);

// From samples to a packed spectrum, or back; src may be dst. Layout is C1, C3, C4 or AC4.
template <typename Layout>
void transformPacked(const SpectrumPlan& plan, SourceRows src, TargetRows dst, float* scratch);

}  // namespace lumi
