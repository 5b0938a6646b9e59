// SPDX-License-Identifier: MIT
// Sums of absolute differences between a template and the windows of an image.
#pragma once

#include <cstdint>

#include "kernels/rows.hpp"

namespace lumi {

// Sums of T samples for windows at `windows.length` columns of `windows.rows` rows, which all lie inside the
// image. Of integers they are 32-bit, modulo 2^32, divided by 2^scale (0 to 32) to the nearest, ties to even,
// and limited to 2^31 - 1. Floats are added row after row of the template, each from left to right.
template <typename T>
void sumDifferences(SourceRows src, SourceRows tpl, Extent tplSamples, TargetRows dst, Extent windows,
                    int scale);

}  // namespace lumi
