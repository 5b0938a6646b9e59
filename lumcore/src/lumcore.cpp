// SPDX-License-Identifier: MIT
#include "lumcore.h"

#include <cpuid.h>

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <cstdlib>

#include "processor.hpp"
#include "system_cache.hpp"

namespace lumcore {
namespace {

constexpr int32_t kNullPointer = -8, kUnknown = -1;

Registers cpuid(uint32_t leaf, uint32_t index) {
  Registers r{};
  __cpuid_count(leaf, index, r.eax, r.ebx, r.ecx, r.edx);
  return r;
}

uint64_t xcr0() {
  uint32_t low = 0, high = 0;
  __asm__("xgetbv" : "=a"(low), "=d"(high) : "c"(0));
  return uint64_t{high} << 32 | low;
}

int32_t findLargestCache() {
  uint64_t bytes = enumeratedCache(cpuid);
  if (bytes == 0) bytes = systemCache("/sys/devices/system/cpu/cpu0/cache");
  return bytes == 0 ? kUnknown : static_cast<int32_t>(std::min<uint64_t>(bytes, INT32_MAX));
}

}  // namespace
}  // namespace lumcore

using namespace lumcore;

void* lumMalloc(int32_t size) {
  constexpr size_t boundary = 64;
  if (size < 1) return nullptr;
  void* block = nullptr;
  return posix_memalign(&block, boundary, static_cast<size_t>(size)) == 0 ? block : nullptr;
}

void lumFree(void* block) { std::free(block); }

int32_t lumGetMaxCacheSizeB(int32_t* size) {
  // Threads that come first at the same time all find and publish the same answer.
  static std::atomic<int32_t> found{0};
  if (!size) return kNullPointer;
  int32_t bytes = found.load(std::memory_order_relaxed);
  if (bytes == 0) {
    bytes = findLargestCache();
    found.store(bytes, std::memory_order_relaxed);
  }
  *size = std::max(bytes, 0);
  return bytes > 0 ? 0 : kUnknown;
}

uint64_t lumGetEnabledCpuFeatures() { return enabledFeatures(cpuid, xcr0); }
