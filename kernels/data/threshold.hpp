// SPDX-License-Identifier: MIT
// Row kernels of thresholds.
#pragma once

#include "kernels/pattern.hpp"
#include "kernels/rows.hpp"

namespace lumi {

// What becomes of samples beyond a threshold, and which constant pixels tell.
enum class Beyond {
  LimitedAbove,   // the threshold
  LimitedBelow,   // the threshold
  ReplacedAbove,  // a threshold, then a value
  ReplacedBelow,  // a threshold, then a value
  ReplacedBoth    // a lower threshold and its value, then an upper threshold and its value
};

// Pixels of three samples, or of a size that divides sixteen bytes; with alpha, the fourth sample of every
// pixel stays. dst may be src; where rows overlap otherwise, their samples are made one by one in order.
template <typename T, bool alpha, bool ofThree, bool streaming = false>
void thresholdRows(SourceRows src, TargetRows dst, Extent samples, Beyond beyond,
                   const PixelPattern* constants);

}  // namespace lumi
