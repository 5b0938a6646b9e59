// SPDX-License-Identifier: MIT
// The stand-in core library: that lumi runs on it, and that it does what tests ask of it.
#include <gtest/gtest.h>

#include <climits>
#include <cstdint>

#include "lumcore/include/lumcore.h"
#include "lumi/image_memory.h"
#include "support/core_guard.hpp"

namespace test {
namespace {

class Core : public testing::Test {
 protected:
  const CoreGuard guard_;
};

uintptr_t phase(const void* block) { return reinterpret_cast<uintptr_t>(block) % 64; }

TEST_F(Core, IsTheOneThatLumiRunsOn) {
  int step = 0;
  void* image = lumiMalloc_8u_C1(100, 2, &step);
  EXPECT_EQ(testcore::counts().allocations, 1);
  EXPECT_EQ(testcore::lastRequest(), 2 * 128);
  EXPECT_EQ(testcore::counts().liveBlocks, 1);
  lumiFree(image);
  EXPECT_EQ(testcore::counts().liveBlocks, 0);
}

TEST_F(Core, RefusesTheAllocationThatWasChosen) {
  testcore::failAllocation(2);
  void* blocks[] = {lumMalloc(1), lumMalloc(1), lumMalloc(1)};
  EXPECT_NE(blocks[0], nullptr);
  EXPECT_EQ(blocks[1], nullptr);
  EXPECT_NE(blocks[2], nullptr);
  for (void* block : blocks) lumFree(block);
  EXPECT_EQ(testcore::counts().liveBlocks, 0);
  EXPECT_EQ(testcore::counts().nullFrees, 1);
}

TEST_F(Core, RefusesSizesBelowOne) {
  for (int size : {0, -1, INT_MIN}) EXPECT_EQ(lumMalloc(size), nullptr);
}

TEST_F(Core, PlacesBlocksOffTheBoundary) {
  for (int offset : {0, 1, 4, 16, 63}) {
    testcore::setBlockOffset(offset);
    void* block = lumMalloc(1000);
    EXPECT_EQ(phase(block), static_cast<uintptr_t>(offset));
    lumFree(block);
  }
  EXPECT_EQ(testcore::counts().strayFrees, 0);
}

TEST_F(Core, TellsBlocksThatItNeverGaveOut) {
  int none = 0;
  lumFree(&none);
  EXPECT_EQ(testcore::counts().strayFrees, 1);
}

TEST_F(Core, ReportsTheCacheThatWasChosen) {
  int32_t size = 7;
  for (int chosen : {0, -1, 1, 2 << 20, INT_MIN, INT_MAX}) {
    testcore::setCacheSize(chosen);
    EXPECT_EQ(lumGetMaxCacheSizeB(&size), 0);
    EXPECT_EQ(size, chosen);
  }
  EXPECT_EQ(testcore::counts().cacheQueries, 6);
}

TEST_F(Core, FailsTheCacheQueryWithAndWithoutASize) {
  int32_t size = 7;
  testcore::failCacheQuery(-1);
  EXPECT_EQ(lumGetMaxCacheSizeB(&size), -1);
  EXPECT_EQ(size, 7);
  testcore::failCacheQuery(-9999, 12);
  EXPECT_EQ(lumGetMaxCacheSizeB(&size), -9999);
  EXPECT_EQ(size, 12);
  testcore::reset();
  EXPECT_EQ(lumGetMaxCacheSizeB(&size), 0);
  EXPECT_GT(size, 1 << 20);
}

}  // namespace
}  // namespace test
