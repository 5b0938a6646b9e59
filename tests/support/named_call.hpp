// SPDX-License-Identifier: MIT
#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "support/invoke.hpp"

namespace test {

// A call of an export; arguments are set by their names, in any order.
class NamedCall {
 public:
  explicit NamedCall(const std::string& name) : NamedCall(rowNamed(name)) {}
  explicit NamedCall(const ExportRow& row) : row_(row), slots_(row.arguments.size()) {}

  NamedCall& pointer(const std::string& name, const void* p) {
    slot(name).pointer = const_cast<void*>(p);
    return *this;
  }
  NamedCall& number(const std::string& name, int n) {
    slot(name).number = n;
    return *this;
  }
  NamedCall& size(const std::string& name, LumiSize s) {
    slot(name).size = s;
    return *this;
  }
  NamedCall& point(const std::string& name, LumiPoint p) {
    slot(name).point = p;
    return *this;
  }
  // With its step.
  NamedCall& image(const std::string& name, const void* first, int step) {
    return pointer(name, first).number(name + "Step", step);
  }
  // Samples of which one is passed by value, and more by pointer.
  NamedCall& values(const std::string& name, const void* samples) {
    slot(name).value = samples;
    return pointer(name, samples);
  }
  LumStatus run() const { return row_.invoke.call(row_.invoke.function, slots_.data()); }

 private:
  static const ExportRow& rowNamed(const std::string& name) {
    for (const ExportRow& row : exportRows())
      if (row.name == name) return row;
    std::fprintf(stderr, "no export %s\n", name.c_str());
    std::abort();
  }
  Slot& slot(const std::string& name) {
    for (size_t i = 0; i < slots_.size(); ++i)
      if (row_.arguments[i].name == name) return slots_[i];
    std::fprintf(stderr, "no argument %s of %s\n", name.c_str(), row_.name);
    std::abort();
  }

  const ExportRow& row_;
  std::vector<Slot> slots_;
};

}  // namespace test
