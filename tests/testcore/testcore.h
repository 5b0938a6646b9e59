// SPDX-License-Identifier: MIT
// Control of the stand-in core library of the tests. Left alone it behaves like a proper lumcore.
#pragma once

#include <cstdint>

namespace testcore {

struct Counts {
  int64_t allocations;   // calls of lumMalloc, refused ones included
  int64_t frees;         // calls of lumFree with a block
  int64_t nullFrees;     // calls of lumFree with null
  int64_t strayFrees;    // calls of lumFree with what is no live block
  int64_t liveBlocks;    // handed out and not given back
  int64_t cacheQueries;  // calls of lumGetMaxCacheSizeB
};

Counts counts();
int32_t lastRequest();  // size that lumMalloc was asked for last

// Behaves like a proper lumcore from now on, and counts from zero: blocks of before are not counted as live.
void reset();

// The n-th allocation from now fails: 1 is the next one, 0 none.
void failAllocation(int n);

// Blocks start this many bytes (0 to 63) past a 64-byte boundary.
void setBlockOffset(int bytes);

// What lumGetMaxCacheSizeB reports: any size at all.
void setCacheSize(int32_t size);

// lumGetMaxCacheSizeB returns this status from now on, and stores nothing,
void failCacheQuery(int32_t status);
// or stores a size that is not to be used.
void failCacheQuery(int32_t status, int32_t stored);

}  // namespace testcore
