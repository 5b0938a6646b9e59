// SPDX-License-Identifier: MIT
// How often each byte stands in the channels of an image.
#pragma once

#include "kernels/rows.hpp"

namespace lumi {

struct ByteCounts {
  uint32_t of[256];
};

// The counts of the first `used` channels of pixels of `stored` bytes, modulo 2^32: one after the other.
template <int stored, int used>
void countBytes(SourceRows src, Extent pixels, ByteCounts* counts);

}  // namespace lumi
