// SPDX-License-Identifier: MIT
// Any number of threads may allocate at once. Each family's members are run so by
// tests/common/reentrancy.cpp.
#include <gtest/gtest.h>

#include <thread>
#include <vector>

#include "lumi/image_memory.h"
#include "support/core_guard.hpp"

namespace test {
namespace {

constexpr int kThreads = 4;

TEST(Reentrancy, ThreadsAllocateAtOnce) {
  const CoreGuard guard;
  std::vector<std::thread> threads;
  for (int t = 0; t < kThreads; ++t)
    threads.emplace_back([t] {
      for (int i = 1; i < 2000; ++i) {
        int step = 0;
        void* image = lumiMalloc_32f_C3(i % 97 + 1, t + 1, &step);
        EXPECT_EQ(step, ((i % 97 + 1) * 12 + 63) / 64 * 64);
        lumiFree(image);
      }
    });
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(testcore::counts().liveBlocks, 0);
  EXPECT_EQ(testcore::counts().strayFrees, 0);
}

}  // namespace
}  // namespace test
