// SPDX-License-Identifier: MIT
// When stores bypass the cache: only for data that could not stay in it.
#pragma once

#include <cstdint>
#include <optional>

namespace lumi {

// Up to here no call leaves the ordinary store path and none asks for the cache size.
inline constexpr int64_t kStreamingFloor = 0x100000;
inline constexpr int64_t kFillStreamingFloor = 0x200000;

// The largest cache in bytes; nothing where the core library cannot tell.
std::optional<int64_t> largestCache();

// What the core library wrote, whether it vouches for it or not; 0 if it wrote nothing.
int64_t reportedCache();

// The rule of fills, layout changes and conversions; `bytes` counts what is read and written.
bool streamsBeyondFloor(int64_t bytes);
inline bool streamsOperation(int64_t bytes) { return bytes > kStreamingFloor && streamsBeyondFloor(bytes); }

// The rule of one-dimensional fills of scratch memory.
bool streamsFill(int64_t bytes);

}  // namespace lumi
