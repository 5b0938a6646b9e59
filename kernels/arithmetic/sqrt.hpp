// SPDX-License-Identifier: MIT
#pragma once

#include "kernels/rows.hpp"

namespace lumi {

// dst = the root of src: of floats the IEEE one, of integers the exact one times 2^-scaleFactor, to the
// nearest integer, ties to even, limited to the type. The last `alpha` samples of every four stay. A negative
// sample gives 0, of floats NaN; whether there was one is returned. dst may be src.
template <typename T, int alpha>
bool rootRows(SourceRows src, TargetRows dst, Extent samples, int scaleFactor);

}  // namespace lumi
