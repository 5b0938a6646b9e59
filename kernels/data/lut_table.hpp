// SPDX-License-Identifier: MIT
// The tables of look-ups, filled by pieces of a function. A table has an entry for each value of a sample T,
// at the index that the sample's bits are as an unsigned number; pieces go from one value up to another,
// which is not part of them. Up to sixteen bytes behind a piece are read and stored back.
#pragma once

#include <cstdint>

namespace lumi {

// a t^3 + b t^2 + c t + base, with t = x - origin.
struct CubicCurve {
  double origin, base, a, b, c;
};
// offset + slope * x.
struct Line {
  double offset, slope;
};

// Each value itself.
template <typename T>
void fillIdentity(T* table, int from, int to);
template <typename T>
void fillConstant(T* table, int from, int to, T value);
// Results are cut off towards zero, and limited to T; what is no number becomes the least T.
template <typename T>
void fillLine(T* table, int from, int to, const Line& line);
template <typename T>
void fillCurve(T* table, int from, int to, const CubicCurve& curve);

}  // namespace lumi
