// SPDX-License-Identifier: MIT
#include "lumcore.h"

#include <unistd.h>

#include <cstddef>
#include <cstdlib>

void* lumMalloc(int32_t size) {
  constexpr size_t boundary = 64;
  if (size < 1) return nullptr;
  void* block = nullptr;
  return posix_memalign(&block, boundary, static_cast<size_t>(size)) == 0 ? block : nullptr;
}

void lumFree(void* block) { std::free(block); }

int32_t lumGetMaxCacheSizeB(int32_t* size) {
  if (!size) return -8;
  *size = static_cast<int32_t>(sysconf(_SC_LEVEL3_CACHE_SIZE));
  return *size > 0 ? 0 : -1;
}

uint64_t lumGetEnabledCpuFeatures() { return lumCpuSse42 | lumCpuAvx; }
