// SPDX-License-Identifier: MIT
// The library that a program has loaded is the one it is to try: builds lend each other their programs.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

namespace {

TEST(Library, IsTheOneToBeTried) {
  const char* wanted = std::getenv("LUMI_TEST_LIBRARY");
  if (!wanted) GTEST_SKIP() << "LUMI_TEST_LIBRARY names none";
  Dl_info loaded;
  ASSERT_NE(dladdr(dlsym(RTLD_DEFAULT, "lumiGetLibVersion"), &loaded), 0);
  EXPECT_TRUE(std::filesystem::equivalent(loaded.dli_fname, wanted))
      << loaded.dli_fname << " instead of " << wanted;
}

}  // namespace
