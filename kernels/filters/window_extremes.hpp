// SPDX-License-Identifier: MIT
// The largest, or the smallest, samples of windows. Of zeros of both signs the one that comes first in the
// window, row after row, is the result, whichever way it is found. What is no number counts as the least of
// all, or the greatest.
#pragma once

#include "kernels/filters/window.hpp"

namespace lumi {

enum class Extreme { Max, Min };

// Rows of results that are made together, at most.
inline constexpr int kExtremeRows = 16;

struct ExtremeKernels {
  // dst(i) is the extreme of taps[0](i), taps[1](i) and so on, for so many bytes of samples: at least a
  // vector. The destination must not overlap the taps.
  void (*ofTaps)(const uint8_t* const* taps, int count, uint8_t* dst, size_t bytes);
  // Row y of the results is the extreme of the rows y to y + height - 1, for as many rows as the extent has:
  // no more than either height or kExtremeRows. The rows must be results themselves.
  void (*ofRows)(const uint8_t* const* rows, int height, TargetRows dst, Extent bytes);
  int sampleBytes;
  bool isFloat;
  size_t vectorBytes;
  WindowFilter three, narrowThree,
      five;  // of 3 x 3, also in half the block, and 5 x 5; the last not of doubles
};

// T: uint8_t, uint16_t, int16_t, float, double. Limited results of floats are finite: infinities become the
// largest number of their sign.
template <typename T, Extreme extreme, bool limited = false>
const ExtremeKernels& extremeKernels();

}  // namespace lumi
