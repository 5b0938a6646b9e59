// SPDX-License-Identifier: MIT
// Checks of a window and of its anchor.
#pragma once

#include <cstdint>

#include "lumi/types.h"

namespace lumi::check {

constexpr LumStatus maskSize(LumiSize mask) {
  return mask.width < 1 || mask.height < 1 ? lumStatusBadMaskSize : lumStatusOk;
}

constexpr LumStatus anchorIn(LumiPoint anchor, LumiSize mask) {
  const bool inside = anchor.x >= 0 && anchor.x < mask.width && anchor.y >= 0 && anchor.y < mask.height;
  return inside ? lumStatusOk : lumStatusBadAnchor;
}

// Whether the steps hold what the windows of a row cover, and a row of results.
constexpr LumStatus windowsInSteps(int srcStep, int dstStep, int pixelBytes, int width, int maskWidth) {
  const int64_t covered = int64_t{width} + maskWidth - 1;
  const bool hold = covered * pixelBytes <= srcStep && int64_t{width} * pixelBytes <= dstStep;
  return hold ? lumStatusOk : lumStatusStepTooSmall;
}

}  // namespace lumi::check
