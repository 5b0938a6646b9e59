// SPDX-License-Identifier: MIT
// Operations of the tests' own, described by hand, by which the drivers are tested. The drivers call
// with any stack, so that each function aligns its own, as the library's do.
#pragma once

#include <deque>
#include <vector>

#include "support/invoke.hpp"

namespace test {

template <typename Function>
ExportRow invented(Function* function, Words types, Words layouts, std::vector<Argument> arguments) {
  static std::deque<std::vector<Argument>> kept;
  kept.push_back(std::move(arguments));
  const auto any = reinterpret_cast<AnyFunction>(function);
  return {"invented", "", "Invented", types, layouts, any, {kept.back().data(), kept.back().size()}, {}};
}

inline Argument pointerOf(Kind kind, const char* name, int count = 0, const char* length = nullptr) {
  return {kind, Passing::Pointer, name, count, {}, length, {}};
}
inline Argument passed(Kind kind, Passing passing, const char* name) {
  return {kind, passing, name, 0, {}, nullptr, {}};
}
inline Argument stepOf(const char* name) { return passed(Kind::Step, Passing::Int32, name); }
inline Argument roi() { return {Kind::Size, Passing::Pair, "roi", 0, {{7, 3}}, nullptr, {}}; }

}  // namespace test
