// SPDX-License-Identifier: MIT
// Medians of windows that are too large to be sorted, or of a shape that no sorting is made for.
#pragma once

#include "frame/rows.hpp"
#include "kernels/filters/median_selection.hpp"

namespace lumi {

// The first row of the source begins with the first pixel of the first window.
struct LargeMedian {
  SourceRows src;
  TargetRows dst;
  LumiSize roi, mask;
  int pixelBytes, channels;  // those that are filtered
};

// Through histograms of columns, at a cost that hardly depends on the window. False where windows are too
// large for them, or where there is no memory: then nothing is written.
template <typename T>
bool storeMedians(const LargeMedian& filter);

// One by one, with no memory.
template <typename T>
void storeSelectedMedians(const LargeMedian& filter);

}  // namespace lumi
