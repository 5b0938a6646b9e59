// SPDX-License-Identifier: MIT
#pragma once

#include "kernels/rows.hpp"

namespace lumi {

// Complex samples with parts T of float magnitudes m and phases p: (m cos p, m sin p), of floats. Integers
// are these floats times 2^-scaleFactor, to the nearest integer, ties to even, limited to the type; what is
// not a number gives the least one. dst has no byte in common with a source.
template <typename T>
void polarRows(SourceRows magnitudes, SourceRows phases, TargetRows dst, Extent samples, int scaleFactor);

}  // namespace lumi
