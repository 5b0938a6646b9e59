// SPDX-License-Identifier: MIT
// Functions of pieces between levels, of which each sample looks for its own.
#pragma once

#include "kernels/rows.hpp"
#include "kernels/unaligned.hpp"

namespace lumi {

// A function of floats: of degree 0, or of 1 or 3 with as many coefficients for each piece, the slope or the
// a, b and c of a curve.
struct PiecewiseFunction {
  Unaligned<float> levels, values;
  const double* coefficients;
  int count;
  bool ascending;
};

// The first piece counts that a sample is in. The last samples of a pixel have no function and stay.
template <int degree>
void searchRows(SourceRows src, TargetRows dst, Extent pixels, const PiecewiseFunction* functions, int used,
                int stored);

// The level whose curve has its origin there: its second knot, but for pieces that lie in the middle of their
// four knots.
inline int originOf(int piece, int count) { return piece == 0 ? 1 : piece == count - 2 ? count - 3 : piece; }

struct StepFunction {
  Unaligned<int32_t> levels, values;
  int count;
};

// Constant pieces of 16-bit integers, found by halving the list, whatever its order.
template <typename T>
void bisectRows(SourceRows src, TargetRows dst, Extent pixels, const StepFunction* functions, int channels);

}  // namespace lumi
