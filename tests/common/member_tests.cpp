// SPDX-License-Identifier: MIT
// Registers what every member is tested for.
#include <gtest/gtest.h>

#include "common/member_checks.hpp"

namespace test {
namespace {

struct MemberTest {
  const char* suite;
  bool (*applies)(const Member&);
  void (*run)(const Member&);
};

constexpr MemberTest kTests[] = {
    {"Model", [](const Member&) { return true; }, expectModel},
    {"WithoutMemory", allocatesScratch, expectRefusalWithoutMemory},
    {"Streaming", isTriedWithLargeImages, expectModelOfLargeImages},
    {"BehindTheMask", readsUnderAMask, expectNoReadsBehindTheMask},
    {"ValuesInDestination", takesValuesByPointer, expectValuesToBeReadFirst},
    {"ChosenChannels", hasChosenChannels, expectNothingAroundChosenChannels},
};

class OfMember : public testing::Test {
 public:
  OfMember(const Member& member, void (*run)(const Member&)) : member_(member), run_(run) {}
  void TestBody() override { run_(member_); }

 private:
  const Member& member_;
  void (*const run_)(const Member&);
};

class Reentrancy : public testing::Test {
 public:
  void TestBody() override { expectThreadsApart(); }
};

void registerReentrancy() {
  static const auto* const once =
      testing::RegisterTest("Reentrancy", "ThreadsDoNotDisturbEachOther", nullptr, nullptr, __FILE__,
                            __LINE__, []() -> testing::Test* { return new Reentrancy; });
  static_cast<void>(once);
}

}  // namespace

bool addModelTests(const std::vector<Member>& members) {
  for (const Member& each : members) {
    each.requireAll();
    addCovered({each.name});
    addedMembers().push_back(each);
    const Member& member = addedMembers().back();
    for (const MemberTest& test : kTests)
      if (test.applies(member))
        testing::RegisterTest(
            test.suite, member.name.c_str(), nullptr, nullptr, __FILE__, __LINE__,
            [&member, run = test.run]() -> testing::Test* { return new OfMember(member, run); });
    registerReentrancy();
  }
  return true;
}

}  // namespace test
