// SPDX-License-Identifier: MIT
#include "support/member.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <set>

#include "support/settings.hpp"

namespace test {
namespace {

struct Layout {
  int planes, stored, used;
};

Layout layoutOf(const std::string& name) {
  const auto digitAt = [&](size_t i) { return name[i] - '0'; };
  const bool counts = name.size() >= 2 && name.back() >= '1' && name.back() <= '4';
  if (name == "AP4") return {4, 1, 1};
  if (name == "AC4") return {1, 4, 3};
  if (name == "AC1") return {1, 1, 1};
  if (name == "C3C" || name == "C4C") return {1, digitAt(1), 1};
  if (name.size() == 2 && name[0] == 'P' && counts) return {digitAt(1), 1, 1};
  if (name.size() == 2 && name[0] == 'C' && counts) return {1, digitAt(1), digitAt(1)};
  abortOver("layout", name);
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
  return {static_cast<int>(argument.base.numbers[0])};
}

// The arguments of a call in the order of the row.
std::vector<Slot> slotsOf(const ExportRow& row, const Call& call) {
  std::vector<Slot> slots = baseSlots(row);
  int step = 0, number = 0;
  const auto image = [&](const std::string& role, Slot& slot) {
    const auto take = [&](Byte* first, int itsStep) { slot.setPointer(first), step = itsStep; };
    if (role == "src2") return take(call.src2, call.src2Step);
    if (role == "dst" || role == "srcDst") return take(call.dst[0], call.dstStep);
    if (role == "mask") return take(call.mask, call.maskStep);
    take(call.src[0], call.srcStep);
  };
  for (size_t i = 0; i < slots.size(); ++i) {
    Slot& slot = slots[i];
    const Argument& argument = row.arguments[i];
    switch (argument.kind) {
      case Kind::Image:
        image(argument.name, slot);
        break;
      case Kind::Planes:
        image(argument.name, slot);
        slot.setPointer(call.planes);
        break;
      case Kind::Step:
        slot.set(step);
        break;
      case Kind::Values:
        slot.setPointer(call.values);
        break;
      case Kind::Value:
        slot.setSample(argument.passing, row.types.front(), call.values);
        break;
      case Kind::Size:
        slot.set(call.roi);
        break;
      case Kind::Lower:
        slot.set(call.lower);
        break;
      case Kind::Upper:
        slot.set(call.upper);
        break;
      default:
        slot.setValue(argument.passing, {{static_cast<double>(call.numbers[number++])}});
    }
  }
  return slots;
}

}  // namespace

Outcome Member::invoke(const Call& call, int misalignment) const {
  return test::invoke(*row, slotsOf(*row, call).data(), misalignment);
}

LumStatus Member::run(const Call& call) const {
  const Outcome outcome = invoke(call);
  EXPECT_EQ(outcome.broken, "") << name;
  return outcome.status;
}

Member memberOf(const ExportRow& row) {
  Member m;
  m.name = row.name;
  m.types.assign(row.types.begin(), row.types.end());
  m.layouts.assign(row.layouts.begin(), row.layouts.end());
  m.sampleBytes = sampleBytes(row.types.front());
  m.components = m.types.front().back() == 'c' ? 2 : 1;
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
    if (argument.kind == Kind::Values) m.values = argument.count;
    if (argument.kind == Kind::Offset || argument.kind == Kind::Number)
      m.numbers.push_back(choicesOf(argument));
    if (argument.kind == Kind::Lower) m.bounds = {{0.0f, 255.0f}, {-1.0f, 1.0f}, {-0.1f, 1000.7f}};
  }
  for (const CheckStep& step : row.checks) m.checksSteps |= step.check == Check::Step;
  m.row = &row;
  return m;
}

const std::deque<Member>& members() { return addedMembers(); }

std::deque<Member>& addedMembers() {
  static std::deque<Member> list;
  return list;
}

std::set<std::string>& coveredNames() {
  static std::set<std::string> names;
  return names;
}

const Member& memberNamed(const std::string& name) {
  for (const Member& m : members())
    if (m.name == name) return m;
  abortOver("member", name);
}

bool addCovered(const std::vector<std::string>& names) {
  for (const std::string& name : names)
    EXPECT_TRUE(coveredNames().insert(name).second) << name << " is added twice";
  return true;
}

}  // namespace test
