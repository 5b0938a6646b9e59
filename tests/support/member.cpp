// SPDX-License-Identifier: MIT
#include "support/member.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <set>

#include "support/core_guard.hpp"
#include "support/settings.hpp"
#include "support/stage.hpp"

namespace test {
namespace {

constexpr int kRounds = 60;  // of caseRound() cases each

std::vector<Member>& added() {
  static std::vector<Member> list;
  return list;
}

std::set<std::string>& covered() {
  static std::set<std::string> names;
  return names;
}

Stage& sharedStage() {
  static Stage stage(kLargestCaseImage);
  return stage;
}

class ModelTest : public testing::Test {
 public:
  explicit ModelTest(const Member& member) : member_(member) {}

  void TestBody() override {
    const CoreGuard guard;
    const int only = settings().onlyCase;
    const int last = only >= 0 ? only : settings().scaled(kRounds * caseRound()) - 1;
    for (int index = std::max(0, only); index <= last; ++index) {
      const Case c = makeCase(member_, settings().seed, index);
      const auto failure = sharedStage().run(member_, c);
      ASSERT_FALSE(failure) << *failure << "\n" << describe(member_, c) << "\n" << reproduction(index);
    }
    const auto stray = sharedStage().compareEverything();
    EXPECT_FALSE(stray) << *stray;
    EXPECT_EQ(testcore::counts().cacheQueries, 0) << "small images do not depend on the cache";
    EXPECT_EQ(testcore::counts().allocations, 0);
  }

 private:
  std::string reproduction(int index) const {
    return "run again: LUMI_TEST_SEED=" + std::to_string(settings().seed) +
           " LUMI_TEST_CASE=" + std::to_string(index) + " lumi_tests --gtest_filter=Model." + member_.name;
  }

  const Member member_;
};

TEST(Coverage, EveryExportHasATest) {
  std::ifstream file(LUMI_STRUCTURE);
  ASSERT_TRUE(file) << LUMI_STRUCTURE;
  std::set<std::string> exports;
  std::string name, implementation;
  while (file >> name >> implementation) exports.insert(name);
  ASSERT_FALSE(exports.empty());
  for (const auto& e : exports) EXPECT_TRUE(covered().count(e)) << e << " has no test";
  for (const auto& c : covered()) EXPECT_TRUE(exports.count(c)) << c << " is tested but not exported";
}

}  // namespace

bool addModelTests(std::vector<Member> members) {
  for (const Member& member : members) {
    addCovered({member.name});
    added().push_back(member);
    testing::RegisterTest("Model", member.name.c_str(), nullptr, nullptr, __FILE__, __LINE__,
                          [member]() -> testing::Test* { return new ModelTest(member); });
  }
  return true;
}

const std::vector<Member>& members() { return added(); }

bool addCovered(std::vector<std::string> names) {
  for (const std::string& name : names)
    EXPECT_TRUE(covered().insert(name).second) << name << " is added twice";
  return true;
}

}  // namespace test
