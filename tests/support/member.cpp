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
  if (name == "A0C4") return {1, 4, 4};
  if (name == "AC1") return {1, 1, 1};
  if (name == "C3C" || name == "C4C") return {1, digitAt(1), 1};
  if (name.size() == 2 && name[0] == 'P' && counts) return {digitAt(1), 1, 1};
  if (name.size() == 2 && name[0] == 'C' && counts) return {1, digitAt(1), digitAt(1)};
  abortOver("layout", name);
}

bool isNumber(const Argument& argument) {
  return argument.kind == Kind::Offset || argument.kind == Kind::Number;
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
  return {};  // the family's test says
}

// Whether the member described the argument by its name; an array's length follows from the array.
bool setNamed(const ExportRow& row, const Argument& argument, const Call& call, Slot& slot) {
  const std::string name = argument.name;
  for (const Call::Block& block : call.blocks)
    if (name == block.name) return slot.setPointer(block.data), true;
  for (const Call::Chosen& chosen : call.chosen)
    if (name == chosen.name) return slot.setValue(argument.passing, chosen.value), true;
  for (const Argument& array : row.arguments)
    if (array.length && name == array.length)
      return slot.setValue(argument.passing, {{static_cast<double>(call.block(array.name).count)}}), true;
  return false;
}

// The arguments of a call in the order of the row.
std::vector<Slot> slotsOf(const ExportRow& row, const Call& call) {
  std::vector<Slot> slots = baseSlots(row);
  int step = 0, number = 0, sources = 0;
  const Byte* value = call.values;
  const int sample = sampleBytes(row.types.front());
  const auto image = [&](const std::string& role, Slot& slot) {
    const auto take = [&](Byte* first, int itsStep) { slot.setPointer(first), step = itsStep; };
    if (role == "dst" || role == "srcDst" || role == "dstMask") return take(call.dst[0], call.dstStep);
    if (role == "mask") return take(call.mask, call.maskStep);
    if (sources++ > 0) return take(call.src2, call.src2Step);
    take(call.src[0], call.srcStep);
  };
  for (size_t i = 0; i < slots.size(); ++i) {
    Slot& slot = slots[i];
    const Argument& argument = row.arguments[i];
    const int mine = number;
    number += isNumber(argument);
    if (setNamed(row, argument, call, slot)) continue;
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
        slot.setPointer(value);
        value += argument.count * sample;
        break;
      case Kind::Value:
        slot.setSample(argument.passing, row.types.front(), value);
        value += sample;
        break;
      case Kind::Size:
        if (std::string(argument.name) != "roi") abortOver("value of", argument.name);
        slot.set(call.roi);
        break;
      case Kind::Lower:
        slot.set(call.lower);
        break;
      case Kind::Upper:
        slot.set(call.upper);
        break;
      case Kind::Offset:
      case Kind::Number:
        slot.setValue(argument.passing, {{static_cast<double>(call.numbers[mine])}});
        break;
      default:
        abortOver("value of", argument.name);
    }
  }
  return slots;
}

}  // namespace

Operand operandOf(const std::string& type, const std::string& layout) {
  const Layout l = layoutOf(layout);
  const int bytes = sampleBytes(type);
  if (type == "1u") return {1, 0, 0, true};
  if (l.planes > 1) return Operand::planar(bytes, l.planes);
  return l.used == 1 ? Operand::chosenChannel(bytes, l.stored) : Operand::pixels(bytes, l.stored);
}

const Call::Block& Call::block(const std::string& name) const {
  for (const Block& block : blocks)
    if (name == block.name) return block;
  abortOver("array or results", name);
}

const Value& Call::value(const std::string& name) const {
  for (const Chosen& each : chosen)
    if (name == each.name) return each.value;
  abortOver("chosen value", name);
}

LumiPoint Call::point(const std::string& name) const {
  const double* const n = value(name).numbers;
  return {static_cast<int>(n[0]), static_cast<int>(n[1])};
}

LumiSize Call::size(const std::string& name) const {
  const LumiPoint p = point(name);
  return {p.x, p.y};
}

LumiRect Call::rect(const std::string& name) const {
  const double* const n = value(name).numbers;
  return {static_cast<int>(n[0]), static_cast<int>(n[1]), static_cast<int>(n[2]), static_cast<int>(n[3])};
}

namespace {

const Argument& argumentOf(const ExportRow& row, const std::string& name) {
  for (const Argument& argument : row.arguments)
    if (name == argument.name) return argument;
  abortOver("argument", name);
}

}  // namespace

void Member::results(const std::string& argument, const std::string& type) {
  const Argument& its = argumentOf(*row, argument);
  blocks.push_back({its.name, nullptr, type, true, {std::max(1, its.count)}, {}, {}});
}

void Member::array(const std::string& argument, const std::string& type, const std::vector<int>& lengths,
                   std::function<void(Random&, Byte*, int)> fill) {
  const Argument& its = argumentOf(*row, argument);
  blocks.push_back({its.name, its.length, type, false, lengths, std::move(fill), {}});
}

void Member::scratch(const std::string& argument, std::function<int(const Call&)> bytes) {
  blocks.push_back({argumentOf(*row, argument).name, nullptr, "8u", false, {0}, {}, std::move(bytes)});
}

void Member::choose(const std::string& argument, const std::vector<Value>& among) {
  const Argument& its = argumentOf(*row, argument);
  choices.push_back({its.name, among});
}

void Member::requireAll() const {
  if (!model) abortOver("model of", name);
  const auto isNamed = [&](const Argument& argument) {
    const std::string wanted = argument.name;
    for (const Block& block : blocks)
      if (wanted == block.name || (block.length && wanted == block.length)) return true;
    return std::any_of(choices.begin(), choices.end(), [&](const Choice& c) { return wanted == c.name; });
  };
  size_t number = 0;
  for (const Argument& argument : row->arguments) {
    if (!isNumber(argument)) continue;
    const bool isChosen = !numbers.at(number++).empty();
    if (!isChosen && !isNamed(argument))
      abortOver("what to choose a number from:", name + " " + argument.name);
  }
}

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
      else if (name == "dstMask")
        m.dst = operandOf("8u", "C1");
      else
        (m.src.planes ? m.src2 : m.src) = operandOf(row.types.front(), row.layouts.front());
      m.inPlace |= name == "srcDst";
    }
    m.valuesByPointer |= argument.kind == Kind::Values;
    if (argument.kind == Kind::Value) m.values += 1;
    if (argument.kind == Kind::Values) m.values += argument.count;
    if (isNumber(argument)) m.numbers.push_back(choicesOf(argument));
    if (m.numbers.size() > kMaxNumbers) abortOver("so many numbers of", m.name);
    if (argument.kind == Kind::Lower) m.bounds = {{0.0f, 255.0f}, {-1.0f, 1.0f}, {-0.1f, 1000.7f}};
  }
  for (const CheckStep& step : row.checks) {
    m.checksSteps |= step.check == Check::Step;
    m.checksRows |= step.check == Check::Row;
    m.refusesZeroSteps |= step.check == Check::Zerostep;
  }
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
