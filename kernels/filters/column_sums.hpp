// SPDX-License-Identifier: MIT
// Sums of columns as floats, for images whose every sum fits 31 bits.
#pragma once

#include "kernels/rows.hpp"

namespace lumi {

// The fewest samples of a row.
inline constexpr size_t kLeastColumnSums = 8;

// Each result is the sum of the sample above it, in the source's row of the same number, and of those in the
// next `window` - 1 rows, rounded once. Rows of results must not overlap one another. T: uint8_t, uint16_t,
// int16_t.
template <typename T>
void columnSumRows(SourceRows src, int window, TargetRows dst, Extent samples);

}  // namespace lumi
