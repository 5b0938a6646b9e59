// SPDX-License-Identifier: MIT
// How often each sample stands in an image of bytes.
#pragma once

#include "kernels/rows.hpp"

namespace lumi {

struct ByteCounts {
  uint32_t of[256];
};

// Of fewer than 2^32 bytes.
ByteCounts countBytes(SourceRows src, Extent bytes);

}  // namespace lumi
