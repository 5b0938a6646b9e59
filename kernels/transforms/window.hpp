// SPDX-License-Identifier: MIT
#pragma once

#include "kernels/rows.hpp"

namespace lumi {

// Floats behind a table's last one that may be read or written with it.
inline constexpr int kWindowPadding = 32;

// dst(x, y) = src(x, y) * columns[x] * rows[y]: floats, whose products are rounded one after the other, and
// integers by these, to the nearest integer, ties to even, limited to the type. dst may be src; rows that
// overlap otherwise are done sample by sample.
template <typename T>
void windowRows(SourceRows src, TargetRows dst, Extent samples, const float* columns, const float* rows);

// factors[i] of so many: 2 i / (count - 1) up to the middle, and 2 less that behind it, in floats.
void triangleFactors(float* factors, size_t count);

// A row of a window that falls off with the distance from the middle.
struct RadialRow {
  float half;    // the width's
  float square;  // of the row's distance from the middle, in columns
  float scale;   // by which what is left of half makes 1, or pi
};

// factors[x] of so many columns, from what is left of half at the distance r: t = half - r, in floats. A
// cone's are t * scale, those of a raised cosine 0.54 - 0.46 cos(t * scale), with a cosine to 2^-23; 0 where
// t is not positive.
void coneFactors(float* factors, size_t columns, const RadialRow& row);
void raisedCosineFactors(float* factors, size_t columns, const RadialRow& row);

}  // namespace lumi
