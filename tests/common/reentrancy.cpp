// SPDX-License-Identifier: MIT
// The library has no state: any number of threads may be in it at once, each with images of its own.
#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

#include "common/member_checks.hpp"
#include "support/core_guard.hpp"
#include "support/settings.hpp"
#include "support/stage.hpp"

namespace test {
namespace {

constexpr int kThreads = 4, kRepeats = 40;

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

}  // namespace

void expectThreadsApart() {
  const CoreGuard guard;
  std::string failures[kThreads];
  std::vector<std::thread> threads;
  for (int t = 0; t < kThreads; ++t) threads.emplace_back([&failures, t] { failures[t] = runAll(t); });
  for (std::thread& thread : threads) thread.join();
  for (const std::string& failure : failures) EXPECT_EQ(failure, "");
}

}  // namespace test
