// SPDX-License-Identifier: MIT
#pragma once

#include "kernels/rows.hpp"
#include "kernels/scaling.hpp"

namespace lumi {

// dst = src * src; the last `alpha` samples of every four stay. Floats take no scaling, and of integers
// not every square may round to zero. dst may be src.
template <typename T, int alpha>
void squareRows(SourceRows src, TargetRows dst, Extent samples, Scaling scaling);

}  // namespace lumi
