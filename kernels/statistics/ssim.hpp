// SPDX-License-Identifier: MIT
// Structural similarity from local statistics.
#pragma once

#include "kernels/rows.hpp"

namespace lumi {

// Rows of floats: means of two images, of their squares and of their product. The destination may be any of
// them.
struct LocalStatistics {
  SourceRows mean1, mean2, meanSquare1, meanSquare2, meanProduct;
};

// Real is the type of the arithmetic, float or double.
template <typename Real>
void similarityRows(const LocalStatistics& src, TargetRows dst, Extent samples, float c1, float c2);

}  // namespace lumi
