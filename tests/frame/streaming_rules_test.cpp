// SPDX-License-Identifier: MIT
// When stores bypass the cache, at each limit.
#include <gtest/gtest.h>

#include <cstdint>

#include "frame/streaming.hpp"
#include "support/core_guard.hpp"

namespace test {
namespace {

constexpr int32_t kMiB = 0x100000;

TEST(StreamingRules, OperationsStreamFromTheCacheSizeOn) {
  const CoreGuard guard;
  testcore::setCacheSize(kMiB + 64);
  EXPECT_FALSE(lumi::streamsOperation(kMiB + 63));
  EXPECT_TRUE(lumi::streamsOperation(kMiB + 64));
  EXPECT_TRUE(lumi::streamsOperation(INT64_MAX));
  for (int32_t size : {1, 0, -1, INT32_MIN}) {
    testcore::setCacheSize(size);
    EXPECT_TRUE(lumi::streamsOperation(kMiB + 1)) << size;
  }
  testcore::setCacheSize(INT32_MAX);
  EXPECT_FALSE(lumi::streamsOperation(INT32_MAX - 1));
  EXPECT_TRUE(lumi::streamsOperation(int64_t{INT32_MAX} + 1));
}

TEST(StreamingRules, FillsStreamAboveTheCacheSize) {
  const CoreGuard guard;
  testcore::setCacheSize(2 * kMiB + 64);
  EXPECT_FALSE(lumi::streamsFill(2 * kMiB + 64));
  EXPECT_TRUE(lumi::streamsFill(2 * kMiB + 65));
  for (int32_t size : {0, -1, INT32_MIN}) {
    testcore::setCacheSize(size);
    EXPECT_FALSE(lumi::streamsFill(4 * kMiB)) << size;
  }
  testcore::setCacheSize(1);
  EXPECT_TRUE(lumi::streamsFill(2 * kMiB + 1));
}

TEST(StreamingRules, NothingAsksUpToTheFloor) {
  const CoreGuard guard;
  testcore::setCacheSize(1);
  EXPECT_FALSE(lumi::streamsOperation(kMiB));
  EXPECT_FALSE(lumi::streamsFill(2 * kMiB));
  EXPECT_EQ(testcore::counts().cacheQueries, 0);
}

TEST(StreamingRules, AFailedQueryMeansOrdinaryStores) {
  const CoreGuard guard;
  testcore::failCacheQuery(-1);
  EXPECT_FALSE(lumi::streamsOperation(INT64_MAX));
  EXPECT_FALSE(lumi::streamsFill(INT64_MAX));
  EXPECT_EQ(lumi::reportedCache(), 0);
  testcore::failCacheQuery(-1, 64);
  EXPECT_FALSE(lumi::streamsOperation(INT64_MAX));
  EXPECT_FALSE(lumi::streamsFill(INT64_MAX));
  EXPECT_EQ(lumi::reportedCache(), 64);  // merging planes goes by what was stored
}

}  // namespace
}  // namespace test
