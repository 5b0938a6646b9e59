// SPDX-License-Identifier: MIT
// Row kernels of the larger or the smaller of two samples.
#pragma once

#include "kernels/rows.hpp"

namespace lumi {

struct Larger;
struct Smaller;

// srcDst = the larger or the smaller of src and srcDst; of floats srcDst where either is NaN, and where both
// are zero. With alpha, the fourth sample of every pixel stays. srcDst may be src; where rows overlap
// otherwise, their samples are made one by one in order.
template <typename Op, typename T, bool alpha>
void extremeRows(SourceRows src, TargetRows srcDst, Extent samples);

}  // namespace lumi
