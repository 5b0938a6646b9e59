// SPDX-License-Identifier: MIT
// No export is left out: a family's program covers each of its exports, and each family has a program.
#include <gtest/gtest.h>
#include <unistd.h>

#include <set>

#include "support/member.hpp"

namespace test {
namespace {

std::string programFolder() {
  char path[4096];
  const ssize_t length = readlink("/proc/self/exe", path, sizeof path);
  const std::string program(path, length > 0 ? static_cast<size_t>(length) : 0);
  return program.substr(0, program.rfind('/') + 1);
}

class EveryExportHasATest : public testing::Test {
 public:
  void TestBody() override {
    std::set<std::string> exports;
    for (const ExportName& name : exportNames())
      if (name.family == programFamily()) exports.insert(name.name);
    EXPECT_FALSE(exports.empty()) << programFamily() << " is no family";
    for (const auto& e : exports) EXPECT_TRUE(coveredNames().count(e)) << e << " has no test";
    for (const auto& c : coveredNames())
      EXPECT_TRUE(exports.count(c)) << c << " is tested, but no export of " << programFamily();
  }
};

class EveryFamilyHasAProgram : public testing::Test {
 public:
  void TestBody() override {
    ASSERT_GT(exportNames().size(), 0u);
    for (const ExportName& name : exportNames()) {
      const std::string program = programFolder() + name.family + "_test";
      EXPECT_EQ(access(program.c_str(), X_OK), 0) << program << " is to test " << name.name;
    }
  }
};

template <typename Test>
void add(const char* name) {
  testing::RegisterTest("Coverage", name, nullptr, nullptr, __FILE__, __LINE__,
                        []() -> testing::Test* { return new Test; });
}

const bool registered = [] {
  programFamily() == "library" ? add<EveryFamilyHasAProgram>("EveryFamilyHasAProgram")
                               : add<EveryExportHasATest>("EveryExportHasATest");
  return true;
}();

}  // namespace
}  // namespace test
