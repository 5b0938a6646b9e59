// SPDX-License-Identifier: MIT
// Rows of floats that weighted rows come to, and their columns taken apart and put together. Products and
// sums are made one after the other, in the order of the weights, and none is fused. Results lie in no
// source.
#pragma once

#include <cstddef>

#include "kernels/rows.hpp"

namespace lumi {

// At least one of them.
struct WeightList {
  const float* first;
  int64_t count;
};

// The sum of weights[k] * row k, whose rows of even and of odd k are sequences of their own.
void weighRowsInTurn(uint8_t* dst, size_t floats, WeightList weights, SourceRows even, SourceRows odd);

// The weighted rows of a sequence, plus those of another.
struct WeightedRows {
  WeightList weights;
  SourceRows rows;
};
void weighTwoSequences(uint8_t* dst, size_t floats, const WeightedRows& a, const WeightedRows& b);

// Pixels of one or three floats: the first, third and so on, and the others.
template <int channels>
void splitPixels(const uint8_t* src, size_t pixels, uint8_t* even, uint8_t* odd);
// The same backwards: as many pairs.
template <int channels>
void mergePixels(const uint8_t* even, const uint8_t* odd, size_t pairs, uint8_t* dst);

}  // namespace lumi
