// SPDX-License-Identifier: MIT
// A member against its model, in images of all shapes.
#include <gtest/gtest.h>

#include <algorithm>

#include "common/member_checks.hpp"
#include "support/core_guard.hpp"
#include "support/stage.hpp"

namespace test {
namespace {

constexpr int kAllocationCases = 12;

Stage& sharedStage() {
  static Stage stage(kLargestCaseImage);
  return stage;
}

std::string reproduction(const Member& m, int index) {
  return "run again: LUMI_TEST_SEED=" + std::to_string(settings().seed) +
         " LUMI_TEST_CASE=" + std::to_string(index) + " " + programFamily() + "_test --gtest_filter=Model." +
         m.name;
}

}  // namespace

void expectModel(const Member& m) {
  const CoreGuard guard;
  const int only = settings().onlyCase;
  const int last = only >= 0 ? only : settings().scaled(m.rounds * caseRound()) - 1;
  for (int index = std::max(0, only); index <= last; ++index) {
    const Case c = makeCase(m, settings().seed, index);
    const auto failure = sharedStage().run(m, c);
    ASSERT_FALSE(failure) << *failure << "\n" << describe(m, c) << "\n" << reproduction(m, index);
  }
  const auto stray = sharedStage().compareEverything();
  EXPECT_FALSE(stray) << *stray;
  EXPECT_EQ(testcore::counts().cacheQueries, 0) << "small images do not depend on the cache";
  if (!m.allocates) {
    EXPECT_EQ(testcore::counts().allocations, 0);
  }
  EXPECT_EQ(testcore::counts().liveBlocks, 0);
}

bool allocatesScratch(const Member& m) { return m.allocates; }

std::optional<std::string> failureWithoutMemory(const Member& m, Stage& stage, const Case& c) {
  const auto leaves = [] { return testcore::counts().liveBlocks != 0 || testcore::counts().strayFrees != 0; };
  testcore::reset();
  if (const auto failure = stage.run(m, c)) return failure;
  const int64_t allocations = testcore::counts().allocations;
  if (leaves()) return "a block is left behind";
  for (int n = 1; n <= allocations; ++n) {
    testcore::reset();
    testcore::failAllocation(n);
    const std::string which = "allocation " + std::to_string(n) + " fails: ";
    if (const auto failure = stage.run(m, c, m.withoutMemory)) return which + *failure;
    if (leaves()) return which + "a block is left behind";
  }
  return std::nullopt;
}

void expectRefusalWithoutMemory(const Member& m) {
  const CoreGuard guard;
  for (int i = 0; i < settings().scaled(kAllocationCases); ++i) {
    const Case c = makeCase(m, settings().seed, i * 7);
    const auto failure = failureWithoutMemory(m, sharedStage(), c);
    ASSERT_FALSE(failure) << *failure << "\n" << describe(m, c);
  }
}

}  // namespace test
