// SPDX-License-Identifier: MIT
#include "frame/streaming.hpp"

#include "lumcore.h"

namespace lumi {

int64_t largestCache(int64_t unknown) {
  int32_t size = 0;
  return lumGetMaxCacheSizeB(&size) == 0 ? size : unknown;
}

bool streamsOperation(uint64_t bytes) {
  if (bytes <= kStreamingFloor) return false;
  // A size of zero or less that the core library vouches for is below any byte count.
  const int64_t cache = largestCache(INT64_MAX);
  return cache <= 0 || bytes >= static_cast<uint64_t>(cache);
}

bool streamsFill(uint64_t bytes) {
  if (bytes <= kFillStreamingFloor) return false;
  const int64_t cache = largestCache(0);
  return cache > 0 && bytes > static_cast<uint64_t>(cache);
}

}  // namespace lumi
