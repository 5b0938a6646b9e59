// SPDX-License-Identifier: MIT
#include "support/member.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <set>

#include "support/core_guard.hpp"
#include "support/settings.hpp"
#include "support/stage.hpp"

namespace test {
namespace {

constexpr int kRounds = 24;  // of caseRound() cases each

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

struct Layout {
  int planes, stored, used;
};

Layout layoutOf(const std::string& name) {
  if (name[0] == 'P') return {name[1] - '0', 1, 1};
  if (name == "AC4") return {1, 4, 3};
  return {1, name[1] - '0', name.size() > 2 ? 1 : name[1] - '0'};
}

int sampleBytes(const std::string& type) {
  return withType(type, [](auto sample) { return static_cast<int>(sizeof sample); }) *
         (type.back() == 'c' ? 2 : 1);
}

Operand operandOf(const std::string& type, const std::string& layout) {
  const Layout l = layoutOf(layout);
  const int bytes = sampleBytes(type);
  if (type == "1u") return {1, 0, 0, true};
  if (l.planes > 1) return Operand::planar(bytes, l.planes);
  return l.used == 1 ? Operand::chosenChannel(bytes, l.stored) : Operand::pixels(bytes, l.stored);
}

// What an argument of this name is chosen from.
std::vector<int> choicesOf(const Argument& argument) {
  const std::string name = argument.name;
  if (argument.kind == Kind::Offset) return {0, 1, 2, 3, 4, 5, 6, 7, 8, 13, 22, 31, 1000, INT_MAX};
  if (name == "scaleFactor") {
    std::vector<int> all = {INT_MIN, -1000, INT_MAX, 1000};
    for (int s = -40; s <= 40; ++s) all.push_back(s);
    for (int s = -3; s <= 9; ++s) all.insert(all.end(), 3, s);
    return all;
  }
  if (name == "roundMode") return {0, 1, 2, 0, 1, 2, 3, -1, INT_MAX};
  if (name == "hint") return {0, 1, 2, 2, 3, -1};
  if (name == "flags") return {0, 1, 2, 3};
  return {argument.extra};
}

// The arguments of a call in the order of the row.
std::vector<Slot> slotsOf(const ExportRow& row, const Call& call) {
  std::vector<Slot> slots(row.arguments.size());
  int step = 0, number = 0;
  const auto image = [&](const std::string& role, Slot& slot) {
    const auto take = [&](Byte* first, int itsStep) { slot.pointer = first, step = itsStep; };
    if (role == "src2") return take(call.src2, call.src2Step);
    if (role == "dst" || role == "srcDst") return take(call.dst[0], call.dstStep);
    if (role == "mask") return take(call.mask, call.maskStep);
    take(call.src[0], call.srcStep);
  };
  for (size_t i = 0; i < slots.size(); ++i) {
    Slot& slot = slots[i];
    switch (row.arguments[i].kind) {
      case Kind::Image:
      case Kind::Planes:
        image(row.arguments[i].name, slot);
        slot.planeArray = call.planes;
        break;
      case Kind::Step:
        slot.number = step;
        break;
      case Kind::Values:
        slot.pointer = const_cast<Byte*>(call.values);
        break;
      case Kind::Value:
        slot.value = call.values;
        break;
      case Kind::Size:
        slot.size = call.roi;
        break;
      case Kind::Lower:
        slot.value = &call.lower;
        break;
      case Kind::Upper:
        slot.value = &call.upper;
        break;
      default:
        slot.number = call.numbers[number++];
    }
  }
  return slots;
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

Member memberOf(const ExportRow& row) {
  Member m;
  m.name = row.name;
  m.types = row.types;
  m.layouts = row.layouts;
  m.sampleBytes = sampleBytes(row.types.front());
  m.components = row.types.front().back() == 'c' ? 2 : 1;
  const Layout src = layoutOf(row.layouts.front()), dst = layoutOf(row.layouts.back());
  m.channels = {src.stored, dst.stored, std::min(src.used, dst.used)};
  for (const Argument& argument : row.arguments) {
    const std::string name = argument.name;
    if (argument.kind == Kind::Image || argument.kind == Kind::Planes) {
      if (name == "mask")
        m.masked = true;
      else if (name == "dst" || name == "srcDst")
        m.dst = operandOf(row.types.back(), row.layouts.back());
      else
        (name == "src2" ? m.src2 : m.src) = operandOf(row.types.front(), row.layouts.front());
      m.inPlace |= name == "srcDst";
    }
    if (argument.kind == Kind::Value) m.values = 1;
    if (argument.kind == Kind::Values) m.values = argument.extra;
    if (argument.kind == Kind::Offset || argument.kind == Kind::Number)
      m.numbers.push_back(choicesOf(argument));
    if (argument.kind == Kind::Lower) m.bounds = {{0.0f, 255.0f}, {-1.0f, 1.0f}, {-0.1f, 1000.7f}};
  }
  for (Check check : row.checks) m.checksSteps |= check == Check::Step;
  m.run = [&row](const Call& c) { return row.invoke.call(row.invoke.function, slotsOf(row, c).data()); };
  return m;
}

const Member& memberNamed(const std::string& name) {
  for (const Member& m : added())
    if (m.name == name) return m;
  std::fprintf(stderr, "no member %s\n", name.c_str());
  std::abort();
}

bool addModelTests(const std::vector<Member>& members) {
  for (const Member& member : members) {
    addCovered({member.name});
    added().push_back(member);
    testing::RegisterTest("Model", member.name.c_str(), nullptr, nullptr, __FILE__, __LINE__,
                          [member]() -> testing::Test* { return new ModelTest(member); });
  }
  return true;
}

const std::vector<Member>& members() { return added(); }

bool addCovered(const std::vector<std::string>& names) {
  for (const std::string& name : names)
    EXPECT_TRUE(covered().insert(name).second) << name << " is added twice";
  return true;
}

}  // namespace test
