// SPDX-License-Identifier: MIT
// Every argument fault of every export, alone and in pairs: the status is that of the check that comes
// first, and nothing is read or written, since all memory that a call could touch is inaccessible.
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <xmmintrin.h>

#include <algorithm>
#include <cstring>
#include <map>
#include <string>

#include "support/fault.hpp"
#include "support/invoke.hpp"
#include "support/settings.hpp"

namespace test {
namespace {

// Memory that no access survives, elsewhere for each argument: some operations look for equal pointers.
void* forbidden(size_t argument) {
  constexpr size_t each = 1 << 16, most = 32;
  static void* const memory = mmap(nullptr, each * most, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  return static_cast<unsigned char*>(memory) + each * (argument % most);
}

// What is wrong with an argument. Harmless: nothing that this export looks at.
enum class Wrong {
  Null,
  NullPlane,
  NullValue,
  Width,
  Height,
  Unequal,
  Step,
  ShortStep,
  Offset,
  Range,
  Refused,
  Harmless
};

// One change to an otherwise valid list of arguments.
struct BadArgument {
  size_t argument;
  Wrong wrong;
  std::string name;
  Slot slot;                         // the argument as it is then
  int part = 0;                      // of the slot: the plane, or a size's number
  const Refused* refused = nullptr;  // a value that the row lists
};

LumStatus statusOf(const CheckStep& step) {
  if (step.status != lumStatusOk) return step.status;
  switch (step.check) {
    case Check::Null:
    case Check::Value:
    case Check::Each:
    case Check::Pointer:
      return lumStatusNullPointer;
    case Check::Size:
    case Check::Width:
    case Check::Square:
    case Check::Inside:
    case Check::Offset:
      return lumStatusBadSize;
    case Check::Step:
    case Check::Row:
    case Check::Zerostep:
      return lumStatusBadStep;
    case Check::Range:
      return lumStatusBadDataRange;
    case Check::Status:
    case Check::Own:
      break;
  }
  return lumStatusOk;
}

bool isTestedApart(const ExportRow& row, size_t argument) {
  return std::any_of(row.checks.begin(), row.checks.end(), [&](const CheckStep& step) {
    return step.check == Check::Pointer && std::strcmp(step.argument, row.arguments[argument].name) == 0;
  });
}

bool has(const ExportRow& row, Check check) {
  return std::any_of(row.checks.begin(), row.checks.end(),
                     [&](const CheckStep& step) { return step.check == check; });
}

bool finds(const CheckStep& step, const ExportRow& row, const BadArgument& fault) {
  const Wrong wrong = fault.wrong;
  if (wrong == Wrong::Refused) {
    if (step.check != fault.refused->by) return false;
    return step.check != Check::Status ||
           (step.status == fault.refused->status &&
            std::strcmp(step.argument, row.arguments[fault.argument].name) == 0);
  }
  switch (step.check) {
    case Check::Null:
      return (wrong == Wrong::Null && !isTestedApart(row, fault.argument)) ||
             (wrong == Wrong::NullPlane && row.arguments[fault.argument].kind == Kind::Planes &&
              !has(row, Check::Each));
    case Check::Pointer:
      return wrong == Wrong::Null && std::strcmp(step.argument, row.arguments[fault.argument].name) == 0;
    case Check::Size:
      return wrong == Wrong::Width || wrong == Wrong::Height;
    case Check::Width:
      return wrong == Wrong::Width;
    case Check::Square:
      return wrong == Wrong::Unequal;
    case Check::Row:
      return wrong == Wrong::Step || wrong == Wrong::ShortStep;
    case Check::Step:
    case Check::Zerostep:
      return wrong == Wrong::Step;
    case Check::Offset:
      return wrong == Wrong::Offset;
    case Check::Range:
      return wrong == Wrong::Range;
    case Check::Value:
      return wrong == Wrong::NullValue;
    case Check::Each:
      return wrong == Wrong::NullPlane;
    case Check::Inside:  // these find refused values only
    case Check::Status:
    case Check::Own:
      break;
  }
  return false;
}

// The first check that finds one of the faults.
LumStatus expected(const ExportRow& row, const std::vector<const BadArgument*>& faults) {
  for (const CheckStep& step : row.checks)
    for (const BadArgument* fault : faults)
      if (finds(step, row, *fault)) return statusOf(step);
  return lumStatusOk;
}

std::vector<Slot> validArguments(const ExportRow& row) {
  std::vector<Slot> slots = baseSlots(row);
  for (size_t i = 0; i < slots.size(); ++i) {
    const Argument& argument = row.arguments[i];
    if (argument.kind == Kind::Planes || argument.kind == Kind::Arrays) {
      slots[i].isPlanes = true;
      for (void*& plane : slots[i].planes) plane = forbidden(i);
    } else if (argument.passing == Passing::Pointer) {
      slots[i].setPointer(forbidden(i));
    } else if (argument.kind == Kind::Step) {
      slots[i].set(256);
    }
  }
  return slots;
}

// The faults of one argument.
class Faults {
 public:
  Faults(const ExportRow& row, size_t index)
      : row_(row), index_(index), argument_(row.arguments[index]), valid_(validArguments(row)[index]) {
    for (const Refused& refused : argument_.refused) {
      Slot slot;
      slot.setValue(argument_.passing, refused.value);
      add(Wrong::Refused, "a refused value", slot);
      list_.back().refused = &refused;
    }
    addGeneral();
  }
  const std::vector<BadArgument>& list() const { return list_; }

 private:
  void addGeneral() {
    switch (argument_.kind) {
      case Kind::Image:
      case Kind::Pointer:
      case Kind::Results:
      case Kind::Array:
        return addNull(Wrong::Null);
      case Kind::Values:
        return addNull(has(row_, Check::Value) ? Wrong::NullValue : Wrong::Null);
      case Kind::Planes:
      case Kind::Arrays:
        return addPlanes();
      case Kind::Size:
        return addSizes();
      case Kind::Step:
        return addSteps();
      case Kind::Offset:
        return addNumbers(Wrong::Offset, {-1, INT32_MIN});
      case Kind::Lower:  // the other bound is 255
        return addNumbers(Wrong::Range, {255, 256});
      case Kind::Upper:  // the other bound is 0
        return addNumbers(Wrong::Range, {0, -1});
      case Kind::Value:
      case Kind::Number:
      case Kind::Point:
      case Kind::Rect:
      case Kind::Optional:
        return;
    }
  }

  void add(Wrong wrong, const std::string& what, const Slot& slot, int part = 0) {
    list_.push_back({index_, wrong, what + " of " + argument_.name, slot, part});
  }
  void addNull(Wrong wrong) {
    Slot slot;
    slot.setPointer(nullptr);
    add(wrong, "null", slot);
  }
  void addSteps() {
    const bool refused = has(row_, Check::Step) || has(row_, Check::Row),
               zeroRefused = refused || has(row_, Check::Zerostep);
    addNumbers(zeroRefused ? Wrong::Step : Wrong::Harmless, {0});
    addNumbers(refused ? Wrong::Step : Wrong::Harmless, {-1, INT32_MIN});
    if (has(row_, Check::Row)) addNumbers(Wrong::ShortStep, {1});  // below seven samples, or three of a mask
  }
  void addPlanes() {
    addNull(Wrong::Null);
    for (int plane = 0; plane < argument_.count; ++plane) {
      Slot slot = valid_;
      slot.planes[plane] = nullptr;
      add(Wrong::NullPlane, "null plane " + std::to_string(plane), slot, plane);
    }
  }
  void addNumbers(Wrong wrong, const std::vector<double>& numbers) {
    for (const double number : numbers) {
      Slot slot;
      slot.setValue(argument_.passing, {{number}});
      add(wrong, std::to_string(number), slot);
    }
  }
  // A size with statuses of its own is tested by the values that the row lists.
  void addSizes() {
    for (const Refused& refused : argument_.refused)
      if (refused.by == Check::Status) return;
    if (has(row_, Check::Square)) {
      Slot slot;
      slot.set(LumiSize{7, 3});
      add(Wrong::Unequal, "unequal sides", slot);
    }
    for (const int bad : {0, -1, INT32_MIN})
      for (const int part : {0, 1}) {
        Slot slot = valid_;
        std::memcpy(slot.bytes + 4 * part, &bad, sizeof bad);
        add(part == 0 ? Wrong::Width : Wrong::Height, std::to_string(bad), slot, part);
      }
  }

  const ExportRow& row_;
  size_t index_;
  const Argument& argument_;
  Slot valid_;
  std::vector<BadArgument> list_;
};

std::vector<BadArgument> faultsOf(const ExportRow& row) {
  std::vector<BadArgument> all;
  for (size_t i = 0; i < row.arguments.size(); ++i) {
    const Faults faults(row, i);
    all.insert(all.end(), faults.list().begin(), faults.list().end());
  }
  return all;
}

// Parts of one argument can be wrong at once: width and height, and two planes.
bool exclude(const BadArgument& a, const BadArgument& b) {
  if (a.argument != b.argument) return false;
  const auto isSide = [](const BadArgument& f) {
    return f.wrong == Wrong::Width || f.wrong == Wrong::Height;
  };
  const bool haveParts =
      (isSide(a) && isSide(b)) || (a.wrong == Wrong::NullPlane && b.wrong == Wrong::NullPlane);
  return !haveParts || a.part == b.part;
}

void apply(const BadArgument& fault, Slot& slot) {
  if (fault.wrong == Wrong::NullPlane)
    slot.planes[fault.part] = nullptr;
  else if (fault.wrong == Wrong::Width || fault.wrong == Wrong::Height)
    std::memcpy(slot.bytes + 4 * fault.part, fault.slot.bytes + 4 * fault.part, 4);
  else
    slot = fault.slot;
}

// Runs the call with the faults in place; returns whether it did what it should.
::testing::AssertionResult holds(const ExportRow& row, const std::vector<Slot>& valid,
                                 const std::vector<const BadArgument*>& faults) {
  std::vector<Slot> slots = valid;
  for (const BadArgument* fault : faults) apply(*fault, slots[fault->argument]);
  const LumStatus want = expected(row, faults);
  Outcome got;
  const unsigned control = _mm_getcsr();
  const auto touched = faultOf([&] { got = invoke(row, slots.data()); });
  _mm_setcsr(control);  // a call that is refused may leave the rounding as it set it
  if (!touched && want == got.status && got.broken.empty()) return ::testing::AssertionSuccess();
  auto failure = ::testing::AssertionFailure() << row.name;
  if (touched)
    failure << " touches memory, and should give " << want << ", for";
  else
    failure << " gives " << got.status << ", not " << want << " " << got.broken << ", for";
  for (const BadArgument* fault : faults) failure << " [" << fault->name << "]";
  return failure;
}

// Returns how many calls were made.
size_t expectStatuses(const ExportRow& row) {
  const std::vector<BadArgument> faults = faultsOf(row);
  const std::vector<Slot> valid = validArguments(row);
  size_t calls = 0;
  const auto expect = [&](const std::vector<const BadArgument*>& wrong) {
    EXPECT_TRUE(holds(row, valid, wrong));
    ++calls;
  };
  for (const BadArgument& first : faults) {
    // A harmless change alone would run the operation.
    if (first.wrong != Wrong::Harmless) expect({&first});
    for (const BadArgument& second : faults) {
      if (&second <= &first || exclude(first, second)) continue;
      if (first.wrong == Wrong::Harmless && second.wrong == Wrong::Harmless) continue;
      expect({&first, &second});
    }
  }
  return calls;
}

// The matrix rests on the rows: each fault of an argument has a check that finds it.
void expectChecksForAll(const ExportRow& row) {
  for (const BadArgument& fault : faultsOf(row))
    EXPECT_TRUE(fault.wrong == Wrong::Harmless || expected(row, {&fault}) != lumStatusOk)
        << row.name << ": no check finds " << fault.name;
}

class FaultMatrix : public testing::Test {
 public:
  explicit FaultMatrix(std::vector<const ExportRow*> rows) : rows_(std::move(rows)) {}

  void TestBody() override {
    for (const ExportRow* row : rows_) {
      expectChecksForAll(*row);
      EXPECT_GT(expectStatuses(*row), 0u) << row->name;
    }
  }

 private:
  std::vector<const ExportRow*> rows_;
};

// A test for each operation of the family.
const bool registered = [] {
  std::map<std::string, std::vector<const ExportRow*>> operations;
  for (const ExportRow* row : regularRows())
    if (row->family == programFamily()) operations[row->operation].push_back(row);
  for (const auto& [name, rows] : operations)
    testing::RegisterTest("FaultMatrix", name.c_str(), nullptr, nullptr, __FILE__, __LINE__,
                          [rows = rows]() -> testing::Test* { return new FaultMatrix(rows); });
  return true;
}();

}  // namespace
}  // namespace test
