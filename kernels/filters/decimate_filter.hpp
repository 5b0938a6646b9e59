// SPDX-License-Identifier: MIT
// Decimation of 8-bit samples: of every group of samples in a line, fewer are made, each a weighted sum of
// some of the line's samples.
#pragma once

#include "kernels/rows.hpp"

namespace lumi {

// The weights of one result of a group, from the sample `first` of the group on, which may lie before it.
// They add up to 256.
struct DecimationPhase {
  int first, count;
  int16_t taps[10];
};

// A fraction: what a group has, and what is made of it.
struct Decimation {
  int samples, results;
  const DecimationPhase* phases;
};

inline constexpr int kDecimations = 5;
const Decimation& decimationOf(int fraction);

// Rows of so many groups. Of a row's samples those under the weights are read, and no others.
void decimateRows(int fraction, SourceRows src, TargetRows dst, int groups, int rows);
// The same down columns: so many groups of rows, of so many samples each.
void decimateColumns(int fraction, SourceRows src, TargetRows dst, size_t samples, int groups);

}  // namespace lumi
