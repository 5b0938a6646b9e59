// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "support/invoke.hpp"

namespace test {

// A call of an export; arguments are set by their names, in any order.
class NamedCall {
 public:
  explicit NamedCall(const std::string& name) : NamedCall(rowNamed(name)) {}
  explicit NamedCall(const ExportRow& row) : row_(row), slots_(row.arguments.size()) {}

  NamedCall& pointer(const std::string& name, const void* p);
  NamedCall& number(const std::string& name, double n);
  NamedCall& size(const std::string& name, LumiSize s);
  NamedCall& point(const std::string& name, LumiPoint p);
  NamedCall& rect(const std::string& name, LumiRect r);
  // With its step.
  NamedCall& image(const std::string& name, const void* first, int step);
  // Samples of which one is passed by value, and more by pointer.
  NamedCall& values(const std::string& name, const void* samples);

  // Expects that the rules of the calling convention are kept; 32-bit stacks are misaligned in turn.
  LumStatus run() const;

 private:
  size_t indexOf(const std::string& name) const;
  Slot& slot(const std::string& name, Passing passing);

  const ExportRow& row_;
  std::vector<Slot> slots_;
};

}  // namespace test
