// SPDX-License-Identifier: MIT
// The operating system's figures, from folders of the test's own making.
#include "system_cache.hpp"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace lumcore {
namespace {

constexpr uint64_t KiB = 1024, MiB = 1024 * KiB;

class SystemCache : public testing::Test {
 protected:
  SystemCache() : folder(testing::TempDir() + "lumcore-" + std::to_string(getpid())) {
    std::filesystem::create_directories(folder);
  }
  ~SystemCache() override { std::filesystem::remove_all(folder); }

  void add(int index, const char* type, const char* size) {
    const std::filesystem::path entry = folder / ("index" + std::to_string(index));
    std::filesystem::create_directory(entry);
    std::ofstream(entry / "type") << type << '\n';
    std::ofstream(entry / "size") << size << '\n';
  }

  std::filesystem::path folder;
};

TEST_F(SystemCache, TakesTheLargestThatHoldsData) {
  add(0, "Data", "48K");
  add(1, "Instruction", "64M");
  add(2, "Unified", "2M");
  add(3, "Unified", "1024K");
  EXPECT_EQ(systemCache(folder.c_str()), 2 * MiB);
}

TEST_F(SystemCache, WithoutFilesItIsWhatTheLibraryCallTells) {
  long wanted = 0;
  for (const int level : {_SC_LEVEL1_DCACHE_SIZE, _SC_LEVEL2_CACHE_SIZE, _SC_LEVEL3_CACHE_SIZE}) {
    const long bytes = sysconf(level);
    if (bytes > 0) wanted = bytes;
  }
  EXPECT_EQ(systemCache(folder.c_str()), static_cast<uint64_t>(wanted));
  add(0, "Unified", "unknown");
  EXPECT_EQ(systemCache(folder.c_str()), static_cast<uint64_t>(wanted));
}

TEST(BytesOfText, ReadsSizes) {
  EXPECT_EQ(bytesOfText("32768K\n"), 32 * MiB);
  EXPECT_EQ(bytesOfText("48K"), 48 * KiB);
  EXPECT_EQ(bytesOfText("3M\n"), 3 * MiB);
  EXPECT_EQ(bytesOfText("512\n"), 512u);
}

TEST(BytesOfText, RefusesAnythingElse) {
  for (const char* text : {"", "K", "\n", "-1K", "12X", "12KB", "99999999999K"}) {
    EXPECT_EQ(bytesOfText(text), 0u) << text;
  }
}

}  // namespace
}  // namespace lumcore
