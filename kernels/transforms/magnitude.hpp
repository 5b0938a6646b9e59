// SPDX-License-Identifier: MIT
#pragma once

#include "kernels/rows.hpp"

namespace lumi {

// dst = sqrt(re^2 + im^2) of complex samples with parts T. Of floats each step is rounded to a float; of
// integers it is times 2^-scaleFactor, to the nearest integer, ties to even, limited to the type: exactly of
// 16-bit parts; of 32-bit parts each step but the last is rounded to a double, so that the result is the
// right one unless the exact one is within 2^-20 2^-scaleFactor of a tie. dst has no byte in common with src.
template <typename T>
void magnitudeRows(SourceRows src, TargetRows dst, Extent samples, int scaleFactor);

}  // namespace lumi
