// SPDX-License-Identifier: MIT
// The level that parts the counts of an image's samples best.
#pragma once

#include <cstdint>

namespace lumi {

struct Histogram {
  double of[256];
};

// The lowest level for which the variance between the samples up to it and those above it is largest; 0 where
// there are no two classes. One sample at least.
uint8_t bestThreshold(const Histogram& histogram);

}  // namespace lumi
