// SPDX-License-Identifier: MIT
// Every argument fault of every export, alone and in pairs: the status is that of the check that comes
// first, and nothing is read or written, since all memory that a call could touch is inaccessible.
#include <gtest/gtest.h>
#include <sys/mman.h>

#include <algorithm>
#include <string>

#include "support/fault.hpp"
#include "support/invoke.hpp"

namespace test {
namespace {

// Memory that no access survives, elsewhere for each argument: some operations look for equal pointers.
void* forbidden(size_t argument) {
  constexpr size_t each = 1 << 16, most = 16;
  static void* const memory = mmap(nullptr, each * most, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  return static_cast<unsigned char*>(memory) + each * (argument % most);
}

enum class Category { Null, NullValue, Width, Height, Step, Offset, Range, Refused, Harmless };

// One change to an otherwise valid list of arguments.
struct BadArgument {
  size_t argument;
  Category category;
  std::string name;
  void (*apply)(Slot&, int);
  int detail;
  Refused refused = {};  // instead of apply and detail
};

LumStatus statusOf(Check check) {
  switch (check) {
    case Check::Null:
    case Check::Value:
      return lumStatusNullPointer;
    case Check::Size:
    case Check::Width:
    case Check::Frame:
    case Check::Offset:
      return lumStatusBadSize;
    case Check::Step:
      return lumStatusBadStep;
    case Check::Range:
      return lumStatusBadDataRange;
    case Check::Own:
      break;
  }
  return lumStatusOk;
}

bool finds(Check check, const BadArgument& fault) {
  const Category category = fault.category;
  if (category == Category::Refused) return check == fault.refused.by;
  switch (check) {
    case Check::Null:
      return category == Category::Null;
    case Check::Size:
      return category == Category::Width || category == Category::Height;
    case Check::Width:
      return category == Category::Width;
    case Check::Step:
      return category == Category::Step;
    case Check::Offset:
      return category == Category::Offset;
    case Check::Range:
      return category == Category::Range;
    case Check::Value:
      return category == Category::NullValue;
    case Check::Frame:  // finds refused values only
    case Check::Own:
      break;
  }
  return false;
}

// The first check that finds one of the faults.
LumStatus expected(const ExportRow& row, const std::vector<const BadArgument*>& faults) {
  for (Check check : row.checks)
    for (const BadArgument* fault : faults)
      if (finds(check, *fault)) return statusOf(check);
  return lumStatusOk;
}

bool has(const ExportRow& row, Check check) {
  return std::find(row.checks.begin(), row.checks.end(), check) != row.checks.end();
}

std::vector<BadArgument> faultsOf(const ExportRow& row, size_t index) {
  const Argument& argument = row.arguments[index];
  std::vector<BadArgument> faults;
  const std::string where = " of argument " + std::to_string(index);
  const auto add = [&](Category category, const char* name, void (*apply)(Slot&, int), int detail = 0) {
    faults.push_back({index, category, name + where, apply, detail});
  };
  for (const Refused& refused : argument.refused)
    faults.push_back(
        {index, Category::Refused, "refused value" + where, nullptr, refused.value.width, refused});
  switch (argument.kind) {
    case Kind::Image:
    case Kind::Values:
    case Kind::Pointer: {
      const bool last = argument.kind == Kind::Values && has(row, Check::Value);
      add(last ? Category::NullValue : Category::Null, "null", [](Slot& s, int) { s.pointer = nullptr; });
      break;
    }
    case Kind::Planes:
      add(Category::Null, "null array", [](Slot& s, int) { s.planesNull = true; });
      for (int plane = 0; plane < argument.extra; ++plane)
        add(
            Category::Null, "null plane", [](Slot& s, int p) { s.planes[p] = nullptr; }, plane);
      break;
    case Kind::Size:
      for (int bad : {0, -1, INT32_MIN}) {
        add(
            Category::Width, "bad width", [](Slot& s, int v) { s.size.width = v; }, bad);
        add(
            Category::Height, "bad height", [](Slot& s, int v) { s.size.height = v; }, bad);
      }
      break;
    case Kind::Step:
      for (int bad : {0, -1, INT32_MIN})
        add(
            has(row, Check::Step) ? Category::Step : Category::Harmless, "step below 1",
            [](Slot& s, int v) { s.number = v; }, bad);
      break;
    case Kind::Offset:
      for (int bad : {-1, INT32_MIN})
        add(
            Category::Offset, "negative offset", [](Slot& s, int v) { s.number = v; }, bad);
      break;
    case Kind::Lower:  // the other bound is 255
      for (int bad : {255, 256})
        add(
            Category::Range, "lower bound", [](Slot& s, int v) { s.number = v; }, bad);
      break;
    case Kind::Upper:  // the other bound is 0
      for (int bad : {0, -1})
        add(
            Category::Range, "upper bound", [](Slot& s, int v) { s.number = v; }, bad);
      break;
    case Kind::Value:
    case Kind::Number:
    case Kind::Optional:
      break;
  }
  return faults;
}

std::vector<Slot> validArguments(const ExportRow& row) {
  std::vector<Slot> slots(row.arguments.size());
  for (size_t i = 0; i < slots.size(); ++i) {
    slots[i].pointer = forbidden(i);
    for (void*& plane : slots[i].planes) plane = forbidden(i);
    slots[i].size = {7, 3};
    slots[i].number = row.arguments[i].kind == Kind::Step ? 256 : row.arguments[i].extra;
  }
  return slots;
}

void apply(const BadArgument& fault, Slot& slot) {
  if (fault.category != Category::Refused) return fault.apply(slot, fault.detail);
  slot.size = fault.refused.value;
  slot.number = fault.refused.value.width;
}

// Two faults that cannot be there at once: one of them would write over the other.
bool exclude(const BadArgument& a, const BadArgument& b) {
  if (a.argument != b.argument) return false;
  return a.category == b.category || a.category == Category::Refused || b.category == Category::Refused;
}

// Runs the call with the faults in place; returns whether it did what it should.
::testing::AssertionResult holds(const ExportRow& row, const std::vector<const BadArgument*>& faults) {
  std::vector<Slot> slots = validArguments(row);
  for (const BadArgument* fault : faults) apply(*fault, slots[fault->argument]);
  const LumStatus want = expected(row, faults);
  LumStatus got = lumStatusOk;
  const auto touched = faultOf([&] { got = row.invoke.call(row.invoke.function, slots.data()); });
  if (!touched && want == got) return ::testing::AssertionSuccess();
  auto failure = ::testing::AssertionFailure() << row.name;
  if (touched)
    failure << " touches memory, and should give " << want << ", for";
  else
    failure << " gives " << got << ", not " << want << ", for";
  for (const BadArgument* fault : faults) failure << " [" << fault->name << " = " << fault->detail << "]";
  return failure;
}

TEST(FaultMatrix, EveryFaultAloneAndInPairs) {
  size_t calls = 0;
  for (const ExportRow* each : regularRows()) {
    const ExportRow& row = *each;
    std::vector<BadArgument> faults;
    for (size_t i = 0; i < row.arguments.size(); ++i)
      for (BadArgument& fault : faultsOf(row, i)) faults.push_back(std::move(fault));
    for (const BadArgument& first : faults) {
      // A harmless change alone would run the operation.
      if (first.category != Category::Harmless) {
        EXPECT_TRUE(holds(row, {&first}));
        ++calls;
      }
      for (const BadArgument& second : faults) {
        if (&second <= &first || exclude(first, second)) continue;
        if (first.category == Category::Harmless && second.category == Category::Harmless) continue;
        EXPECT_TRUE(holds(row, {&first, &second}));
        ++calls;
      }
    }
  }
  EXPECT_GT(calls, regularRows().size() * 20);
}

// The matrix rests on the rows: each row names its checks, and each fault of an argument has one.
TEST(FaultMatrix, EveryRowHasChecksForItsArguments) {
  ASSERT_FALSE(exportRows().empty());
  for (const ExportRow* row : regularRows())
    for (size_t i = 0; i < row->arguments.size(); ++i)
      for (const BadArgument& fault : faultsOf(*row, i)) {
        if (fault.category == Category::Harmless) continue;
        EXPECT_NE(expected(*row, {&fault}), lumStatusOk) << row->name << ": no check finds " << fault.name;
      }
}

}  // namespace
}  // namespace test
