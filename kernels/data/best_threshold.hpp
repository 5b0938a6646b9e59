// SPDX-License-Identifier: MIT
// How often each sample stands in an image of bytes, and the level that parts such counts best.
#pragma once

#include "kernels/rows.hpp"

namespace lumi {

struct ByteCounts {
  int32_t of[256];
};

// Of fewer than 2^31 bytes.
ByteCounts countBytes(SourceRows src, Extent bytes);

struct Histogram {
  double of[256];
};

// The lowest level for which the variance between the samples up to it and those above it is largest; 0 where
// there are no two classes. One sample at least.
uint8_t bestThreshold(const Histogram& histogram);

}  // namespace lumi
