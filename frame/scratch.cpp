// SPDX-License-Identifier: MIT
#include "frame/scratch.hpp"

#include "lumcore.h"

namespace lumi {

void* allocate(int64_t bytes) {
  return bytes >= 0 && bytes <= INT32_MAX ? lumMalloc(static_cast<int32_t>(bytes)) : nullptr;
}

void release(void* block) {
  if (block) lumFree(block);
}

}  // namespace lumi
