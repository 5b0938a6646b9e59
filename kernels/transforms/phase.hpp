// SPDX-License-Identifier: MIT
#pragma once

#include "kernels/rows.hpp"

namespace lumi {

// dst = the angle of complex samples with parts T, from -pi to pi, in radians; that of zero is 0. Of floats
// the error is below 2 units of the last place; zeros of either sign, infinities and NaNs give what C's
// atan2f does. Of integers it is times 2^-scaleFactor, to the nearest integer, ties to even, limited to the
// type: exactly of 16-bit parts; of 32-bit parts the result is the right one unless the exact one is within
// 2^-51 2^-scaleFactor of a tie. dst has no byte in common with src.
template <typename T>
void phaseRows(SourceRows src, TargetRows dst, Extent samples, int scaleFactor);

}  // namespace lumi
