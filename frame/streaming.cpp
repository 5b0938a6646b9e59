// SPDX-License-Identifier: MIT
#include "frame/streaming.hpp"

#include "lumcore.h"

namespace lumi {

std::optional<int64_t> largestCache() {
  int32_t size = 0;
  if (lumGetMaxCacheSizeB(&size) != 0) return std::nullopt;
  return size;
}

int64_t reportedCache() {
  int32_t size = 0;
  static_cast<void>(lumGetMaxCacheSizeB(&size));
  return size;
}

bool streamsBeyondFloor(int64_t bytes) {
  const auto cache = largestCache();
  return cache && bytes >= *cache;
}

bool streamsFill(int64_t bytes) {
  if (bytes <= kFillStreamingFloor) return false;
  const auto cache = largestCache();
  return cache && *cache > 0 && bytes > *cache;
}

}  // namespace lumi
