// SPDX-License-Identifier: MIT
// Row kernels that move bytes.
#pragma once

#include <cstddef>
#include <cstdint>

namespace lumi {

// Copies a row of bytes, in the direction that keeps a store from aliasing a later load.
void copyRow(const uint8_t* src, uint8_t* dst, size_t bytes);

// What a caller of the managed copy decides.
struct CacheUse {
  bool streamingStores, streamingLoads;
};
void copyRowManaged(const uint8_t* src, uint8_t* dst, size_t bytes, CacheUse use);

}  // namespace lumi
