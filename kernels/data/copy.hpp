// SPDX-License-Identifier: MIT
// Row kernels that move bytes.
#pragma once

#include "kernels/rows.hpp"

namespace lumi {

// Copies bytes, each row in the direction that keeps a store from aliasing a later load.
void copyRows(SourceRows src, TargetRows dst, Extent bytes);
void copyRow(const uint8_t* src, uint8_t* dst, size_t bytes);

// What a caller of the managed copy decides.
struct CacheUse {
  bool streamingStores, streamingLoads;
};
void copyRowsManaged(SourceRows src, TargetRows dst, Extent bytes, CacheUse use);

}  // namespace lumi
