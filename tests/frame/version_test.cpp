// SPDX-License-Identifier: MIT
#include "lumi/version.h"

#include <gtest/gtest.h>

#include <regex>
#include <string>

#include "support/member.hpp"

namespace test {
namespace {

const bool covered = addCovered({"lumiGetLibVersion"});

TEST(Version, IsOneConstantRecord) {
  const LumLibraryVersion* version = lumiGetLibVersion();
  ASSERT_NE(version, nullptr);
  EXPECT_EQ(lumiGetLibVersion(), version);
}

TEST(Version, HoldsTheNumbersOfTheRelease) {
  const LumLibraryVersion& version = *lumiGetLibVersion();
  EXPECT_EQ(version.major, 1);
  EXPECT_EQ(version.minor, 0);
  EXPECT_EQ(version.majorBuild, 0);
  EXPECT_EQ(version.build, LUMI_BUILD_NUMBER);
}

TEST(Version, NamesTheProcessorLevel) {
  const LumLibraryVersion& version = *lumiGetLibVersion();
  EXPECT_EQ(std::string(version.targetCode, 4), std::string("k5\0\0", 4));
  EXPECT_STREQ(version.name, "lumIP AVX (k5)");
}

TEST(Version, SpellsOutNumbersAndDate) {
  const LumLibraryVersion& version = *lumiGetLibVersion();
  EXPECT_EQ(version.versionText, "1.0.0 (r" + std::to_string(LUMI_BUILD_NUMBER) + ")");
  const std::regex date(
      "(Jan|Feb|Mar|Apr|May|Jun|Jul|Aug|Sep|Oct|Nov|Dec) ( [1-9]|[12][0-9]|3[01]) 20[0-9]{2}");
  EXPECT_TRUE(std::regex_match(version.buildDate, date)) << version.buildDate;
}

}  // namespace
}  // namespace test
