// SPDX-License-Identifier: MIT
#pragma once

#include "kernels/rows.hpp"

namespace lumi {

// dst = |src| for 16-bit signed samples, where -32768 gives 32767, or floats; the last `alpha` samples of
// every four stay. dst may be src.
template <typename T, int alpha>
void absRows(SourceRows src, TargetRows dst, Extent samples);

}  // namespace lumi
