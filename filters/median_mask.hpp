// SPDX-License-Identifier: MIT
// Windows of medians: what they may be, and which of them networks sort.
#pragma once

#include <optional>

#include "kernels/filters/median_filters.hpp"
#include "lumi/types.h"

namespace lumi {

// Sides are odd, so that a window's median is one of its samples.
inline LumStatus medianMask(LumiSize mask) {
  const auto isOdd = [](int side) { return side > 0 && side % 2 == 1; };
  return isOdd(mask.width) && isOdd(mask.height) ? lumStatusOk : lumStatusBadMaskSize;
}

inline bool isPixel(LumiSize mask) { return mask.width == 1 && mask.height == 1; }

// The shape of windows that networks sort.
inline std::optional<MedianShape> sortedShape(LumiSize mask) {
  const auto is = [&](int width, int height) { return mask.width == width && mask.height == height; };
  if (is(3, 3)) return MedianShape::Square3;
  if (is(5, 5)) return MedianShape::Square5;
  if (is(3, 1)) return MedianShape::Row3;
  if (is(5, 1)) return MedianShape::Row5;
  if (is(1, 3)) return MedianShape::Column3;
  if (is(1, 5)) return MedianShape::Column5;
  return std::nullopt;
}

}  // namespace lumi
