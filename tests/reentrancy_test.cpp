// SPDX-License-Identifier: MIT
// The library has no state: any number of threads may be in it at once, each with images of its own.
#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

#include "lumi/image_memory.h"
#include "support/core_guard.hpp"
#include "support/member.hpp"
#include "support/settings.hpp"
#include "support/stage.hpp"

namespace test {
namespace {

constexpr int kThreads = 4, kRepeats = 200;

// Runs members in an order of its own, so that threads meet in the same ones and in different ones.
std::string runAll(int thread) {
  Stage stage(kLargestCaseImage);
  Random random(mixSeed(settings().seed, "reentrancy", thread));
  for (int i = 0; i < settings().scaled(kRepeats) * static_cast<int>(members().size()); ++i) {
    const Member& m = members()[static_cast<size_t>(random.below(static_cast<int>(members().size())))];
    const Case c = makeCase(m, random.next(), random.below(caseRound()));
    if (const auto failure = stage.run(m, c)) return *failure + "\n" + describe(m, c);
  }
  return {};
}

TEST(Reentrancy, ThreadsDoNotDisturbEachOther) {
  const CoreGuard guard;
  std::string failures[kThreads];
  std::vector<std::thread> threads;
  for (int t = 0; t < kThreads; ++t) threads.emplace_back([&failures, t] { failures[t] = runAll(t); });
  for (std::thread& thread : threads) thread.join();
  for (const std::string& failure : failures) EXPECT_EQ(failure, "");
}

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
