// SPDX-License-Identifier: MIT
#include "support/named_call.hpp"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

namespace test {
namespace {

[[noreturn]] void abortOver(const ExportRow& row, const std::string& argument) {
  std::fprintf(stderr, "%s has no such argument: %s\n", row.name, argument.c_str());
  std::abort();
}

}  // namespace

NamedCall& NamedCall::pointer(const std::string& name, const void* p) {
  slot(name, Passing::Pointer).setPointer(p);
  return *this;
}

NamedCall& NamedCall::number(const std::string& name, double n) {
  const size_t i = indexOf(name);
  slots_[i].setValue(row_.arguments[i].passing, {{n}});
  return *this;
}

NamedCall& NamedCall::size(const std::string& name, LumiSize s) {
  slot(name, Passing::Pair).set(s);
  return *this;
}

NamedCall& NamedCall::point(const std::string& name, LumiPoint p) {
  slot(name, Passing::Pair).set(p);
  return *this;
}

NamedCall& NamedCall::rect(const std::string& name, LumiRect r) {
  slot(name, Passing::Rect).set(r);
  return *this;
}

NamedCall& NamedCall::image(const std::string& name, const void* first, int step) {
  return pointer(name, first).number(name + "Step", step);
}

NamedCall& NamedCall::values(const std::string& name, const void* samples) {
  const size_t i = indexOf(name);
  if (row_.arguments[i].passing == Passing::Pointer) return pointer(name, samples);
  slots_[i].setSample(row_.arguments[i].passing, row_.types.front(), samples);
  return *this;
}

LumStatus NamedCall::run() const {
  thread_local int turn = 0;
  const int misalignment = sizeof(void*) == 4 ? 4 * (turn++ % 4) : 0;
  const Outcome outcome = invoke(row_, slots_.data(), misalignment);
  EXPECT_EQ(outcome.broken, "") << row_.name << ", stack misaligned by " << misalignment;
  return outcome.status;
}

size_t NamedCall::indexOf(const std::string& name) const {
  for (size_t i = 0; i < slots_.size(); ++i)
    if (row_.arguments[i].name == name) return i;
  abortOver(row_, name);
}

Slot& NamedCall::slot(const std::string& name, Passing passing) {
  const size_t i = indexOf(name);
  if (row_.arguments[i].passing != passing) abortOver(row_, name);
  return slots_[i];
}

}  // namespace test
