// SPDX-License-Identifier: MIT
#include "testcore.h"

#include <cstdlib>
#include <map>
#include <mutex>

#include "lumcore.h"

namespace {

constexpr int32_t kNullPointer = -8;
constexpr int kBoundary = 64;

struct Behaviour {
  int failIn = 0;
  int blockOffset = 0;
  int32_t cacheStatus = 0;
  bool storesCacheSize = true;
  int32_t cacheSize = 8 << 20;
};

struct State {
  std::mutex mutex;
  Behaviour behaviour;
  testcore::Counts counts{};
  int32_t lastRequest = 0;
  std::map<void*, void*> raw;  // block handed out, allocation that holds it
  int64_t olderBlocks = 0;     // live ones at the last reset
};

State& state() {
  static State it;
  return it;
}

template <typename Change>
void change(Change apply) {
  std::lock_guard lock(state().mutex);
  apply(state().behaviour);
}

}  // namespace

namespace testcore {

Counts counts() {
  std::lock_guard lock(state().mutex);
  Counts now = state().counts;
  now.liveBlocks = static_cast<int64_t>(state().raw.size()) - state().olderBlocks;
  return now;
}

int32_t lastRequest() {
  std::lock_guard lock(state().mutex);
  return state().lastRequest;
}

void reset() {
  std::lock_guard lock(state().mutex);
  state().behaviour = {};
  state().counts = {};
  state().lastRequest = 0;
  state().olderBlocks = static_cast<int64_t>(state().raw.size());
}

void failAllocation(int n) {
  change([=](Behaviour& b) { b.failIn = n; });
}

void setBlockOffset(int bytes) {
  change([=](Behaviour& b) { b.blockOffset = bytes; });
}

void setCacheSize(int32_t size) {
  change([=](Behaviour& b) { b.cacheStatus = 0, b.storesCacheSize = true, b.cacheSize = size; });
}

void failCacheQuery(int32_t status) {
  change([=](Behaviour& b) { b.cacheStatus = status, b.storesCacheSize = false; });
}

void failCacheQuery(int32_t status, int32_t stored) {
  change([=](Behaviour& b) { b.cacheStatus = status, b.storesCacheSize = true, b.cacheSize = stored; });
}

}  // namespace testcore

void* lumMalloc(int32_t size) {
  State& s = state();
  std::lock_guard lock(s.mutex);
  ++s.counts.allocations;
  s.lastRequest = size;
  const bool refused = s.behaviour.failIn > 0 && --s.behaviour.failIn == 0;
  if (refused || size < 1) return nullptr;
  void* raw = nullptr;
  if (posix_memalign(&raw, kBoundary, static_cast<size_t>(size) + kBoundary) != 0) return nullptr;
  void* block = static_cast<char*>(raw) + s.behaviour.blockOffset;
  s.raw.emplace(block, raw);
  return block;
}

void lumFree(void* block) {
  State& s = state();
  std::lock_guard lock(s.mutex);
  if (!block) {
    ++s.counts.nullFrees;
    return;
  }
  ++s.counts.frees;
  const auto found = s.raw.find(block);
  if (found == s.raw.end()) {
    ++s.counts.strayFrees;
    return;
  }
  std::free(found->second);
  s.raw.erase(found);
}

int32_t lumGetMaxCacheSizeB(int32_t* size) {
  State& s = state();
  std::lock_guard lock(s.mutex);
  ++s.counts.cacheQueries;
  if (!size) return kNullPointer;
  if (s.behaviour.storesCacheSize) *size = s.behaviour.cacheSize;
  return s.behaviour.cacheStatus;
}

uint64_t lumGetEnabledCpuFeatures() {
  return lumCpuSse2 | lumCpuSse3 | lumCpuSsse3 | lumCpuSse41 | lumCpuSse42 | lumCpuAvx;
}
