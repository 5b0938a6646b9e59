// SPDX-License-Identifier: MIT
// Calls of lumi, checked and timed.
#pragma once

#include <lumi.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <vector>

#include "check.hpp"

struct Call {
  const char* name;
  double nanoseconds;
  double pixels;
};

// Times calls that may be repeated, and keeps the median of a few runs.
class Calls {
 public:
  template <class Function>
  void time(const char* name, LumiSize roi, const Function& call) {
    using Clock = std::chrono::steady_clock;
    std::array<double, 7> runs{};
    for (double& run : runs) {
      const auto start = Clock::now();
      const LumStatus status = call();
      run = std::chrono::duration<double, std::nano>(Clock::now() - start).count();
      check(status, name);
    }
    std::nth_element(runs.begin(), runs.begin() + runs.size() / 2, runs.end());
    list_.push_back({name, runs[runs.size() / 2], 1.0 * roi.width * roi.height});
  }

  const std::vector<Call>& list() const { return list_; }

 private:
  std::vector<Call> list_;
};
