// SPDX-License-Identifier: MIT
#pragma once

#include "kernels/rows.hpp"

namespace lumi {

// What samples without a logarithm were met: any of these bits.
inline constexpr int kLnOfZero = 1, kLnOfNegative = 2;

// dst = ln(src) for floats, or ln(src) * 2^-scaleFactor for integers, to the nearest one, limited to the
// type. Integers that are not positive give 0; that there were any is told as kLnOfZero. Floats give minus
// infinity and NaN; what the first row with such a sample has is told. dst may be src.
template <typename T>
int lnRows(SourceRows src, TargetRows dst, Extent samples, int scaleFactor);

}  // namespace lumi
