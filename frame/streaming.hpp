// SPDX-License-Identifier: MIT
// When stores bypass the cache: only for data that could not stay in it.
#pragma once

#include <cstdint>

namespace lumi {

// Below this no call leaves the ordinary store path and none asks for the cache size.
inline constexpr uint64_t kStreamingFloor = 0x100000;
inline constexpr uint64_t kFillStreamingFloor = 0x200000;

// The largest cache in bytes, or `unknown` where the core library cannot tell.
int64_t largestCache(int64_t unknown);

// The rule of fills, layout changes and conversions; `bytes` counts what is read and written.
bool streamsOperation(uint64_t bytes);

// The rule of one-dimensional fills of scratch memory.
bool streamsFill(uint64_t bytes);

}  // namespace lumi
