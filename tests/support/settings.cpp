// SPDX-License-Identifier: MIT
#include "support/settings.hpp"

#include <algorithm>
#include <cerrno>
#include <cstdlib>

namespace test {

int Settings::scaled(int cases) const { return std::max(1, static_cast<int>(cases * caseFactor)); }

const Settings& settings() {
  static const Settings it = [] {
    const char* seed = std::getenv("LUMI_TEST_SEED");
    const char* share = std::getenv("LUMI_TEST_SHARE");
    const char* factor = std::getenv("LUMI_TEST_CASES");
    const char* only = std::getenv("LUMI_TEST_CASE");
    return Settings{seed ? std::strtoull(seed, nullptr, 0) : 20240229u,
                    (share ? std::atof(share) : 1.0) * (factor ? std::atof(factor) : 1.0),
                    only ? std::atoi(only) : -1};
  }();
  return it;
}

const std::string& programFamily() {
  static const std::string family = [] {
    const std::string name = program_invocation_short_name;
    return name.substr(0, name.rfind("_test"));
  }();
  return family;
}

}  // namespace test
