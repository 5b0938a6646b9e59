// SPDX-License-Identifier: MIT
// A member against its model, in images of all shapes.
#include <gtest/gtest.h>

#include <algorithm>

#include "common/member_checks.hpp"
#include "support/core_guard.hpp"
#include "support/stage.hpp"

namespace test {
namespace {

constexpr int kRounds = 24;  // of caseRound() cases each

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
  const int last = only >= 0 ? only : settings().scaled(kRounds * caseRound()) - 1;
  for (int index = std::max(0, only); index <= last; ++index) {
    const Case c = makeCase(m, settings().seed, index);
    const auto failure = sharedStage().run(m, c);
    ASSERT_FALSE(failure) << *failure << "\n" << describe(m, c) << "\n" << reproduction(m, index);
  }
  const auto stray = sharedStage().compareEverything();
  EXPECT_FALSE(stray) << *stray;
  EXPECT_EQ(testcore::counts().cacheQueries, 0) << "small images do not depend on the cache";
  EXPECT_EQ(testcore::counts().allocations, 0);
}

}  // namespace test
