// SPDX-License-Identifier: MIT
// Two-dimensional transforms of images: along rows, then down columns; an inverse one the other way round. Real images
// become packed spectra of the same size.
#pragma once

#include "frame/layout.hpp"
#include "kernels/rows.hpp"
#include "kernels/transforms/columns.hpp"
#include "kernels/transforms/rows.hpp"

namespace lumi {

struct SpectrumPlan {
  size_t width, height;
  // Of complex rows, the half stands for the whole row.
  transforms::RealTransform rows;
  bool rowsAreLong;  // one goes by itself, in the lanes with parts of its own
  transforms::Transform columns;
  bool inverse;
  float rowScale, columnScale;
};

void transformComplex(const SpectrumPlan& plan, SourceRows src, TargetRows dst, float* scratch);

// From samples to a packed spectrum, or back; src may be dst. Layout is C1, C3, C4 or AC4.
template <typename Layout>
void transformPacked(const SpectrumPlan& plan, SourceRows src, TargetRows dst, float* scratch);

}  // namespace lumi
