// SPDX-License-Identifier: MIT
// What the environment sets:
//   LUMI_TEST_SEED   seed of every random choice
//   LUMI_TEST_SHARE  the build's own factor on the number of cases, set by CMake
//   LUMI_TEST_CASES  factor on the number of cases of each export, 1 by default
//   LUMI_TEST_LIBRARY  the library that is to be tried: programs may be run with that of another build
//   LUMI_TEST_CASE   runs the case of this index alone, to look into a failure
#pragma once

#include <cstdint>
#include <string>

namespace test {

struct Settings {
  uint64_t seed;
  double caseFactor;
  int onlyCase;  // -1: all

  int scaled(int cases) const;
};

const Settings& settings();

// The family that this program tests, by the program's name; "library" for what belongs to none.
const std::string& programFamily();

}  // namespace test
