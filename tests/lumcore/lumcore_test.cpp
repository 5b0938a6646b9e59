// SPDX-License-Identifier: MIT
// The core library itself, on the machine at hand.
#include "lumcore.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <thread>
#include <unordered_set>
#include <vector>

// Lets a sanitized build ask for more than there is.
extern "C" const char* __asan_default_options();
extern "C" const char* __asan_default_options() { return "allocator_may_return_null=1"; }

namespace {

using Block = std::unique_ptr<void, decltype(&lumFree)>;

bool aligned(const void* block) { return reinterpret_cast<uintptr_t>(block) % 64 == 0; }

TEST(Malloc, BlocksAreAlignedAndUsableToTheLastByte) {
  std::vector<Block> blocks;
  for (const int32_t size : {1, 2, 63, 64, 65, 4095, 4096, 100003, 1 << 24}) {
    blocks.emplace_back(lumMalloc(size), &lumFree);
    ASSERT_NE(blocks.back(), nullptr) << size;
    EXPECT_TRUE(aligned(blocks.back().get())) << size;
    std::memset(blocks.back().get(), 0x5A, static_cast<size_t>(size));
  }
}

TEST(Malloc, SizesBelowOneGiveNull) {
  for (const int32_t size : {0, -1, -64, INT32_MIN}) EXPECT_EQ(lumMalloc(size), nullptr) << size;
}

TEST(Malloc, LargestSizeGivesNullOrABlock) {
  const Block block(lumMalloc(INT32_MAX), &lumFree);
  if (!block) return;
  EXPECT_TRUE(aligned(block.get()));
  static_cast<volatile char*>(block.get())[INT32_MAX - 1] = 1;
}

// A process with 32-bit pointers cannot hold four such blocks; one with 64-bit pointers may, so nothing
// is touched.
TEST(Malloc, ShortMemoryGivesNull) {
  std::vector<Block> blocks;
  int refused = 0;
  for (int i = 0; i < 4; ++i) {
    blocks.emplace_back(lumMalloc(INT32_MAX), &lumFree);
    refused += blocks.back() == nullptr;
  }
  if (sizeof(void*) == 4) {
    EXPECT_GT(refused, 0);
  }
  const Block small(lumMalloc(64), &lumFree);
  EXPECT_NE(small, nullptr);
}

TEST(Free, AcceptsNull) { lumFree(nullptr); }

// First of the tests that ask, so that the first calls of the process meet.
TEST(MaxCacheSize, FirstCallsFromSeveralThreadsAgree) {
  constexpr size_t count = 8;
  std::atomic<bool> go{false};
  int32_t sizes[count] = {}, statuses[count] = {};
  std::vector<std::thread> threads;
  for (size_t i = 0; i < count; ++i) {
    threads.emplace_back([&, i] {
      while (!go) std::this_thread::yield();
      statuses[i] = lumGetMaxCacheSizeB(&sizes[i]);
    });
  }
  go = true;
  for (std::thread& thread : threads) thread.join();
  for (size_t i = 0; i < count; ++i) {
    EXPECT_EQ(statuses[i], 0);
    EXPECT_GT(sizes[i], 0);
    EXPECT_EQ(sizes[i], sizes[0]);
  }
}

TEST(MaxCacheSize, NullPointerIsRefused) { EXPECT_EQ(lumGetMaxCacheSizeB(nullptr), -8); }

TEST(MaxCacheSize, AgreesWithTheKernel) {
  int64_t largest = 0;
  for (int index = 0; index < 10; ++index) {
    const std::string entry = "/sys/devices/system/cpu/cpu0/cache/index" + std::to_string(index) + '/';
    std::string type;
    int64_t kilobytes = 0;
    std::ifstream(entry + "type") >> type;
    std::ifstream(entry + "size") >> kilobytes;
    if (type == "Data" || type == "Unified") largest = std::max(largest, kilobytes * 1024);
  }
  if (largest == 0) GTEST_SKIP() << "the kernel lists no caches here";
  int32_t size = 0;
  ASSERT_EQ(lumGetMaxCacheSizeB(&size), 0);
  EXPECT_EQ(size, largest);
}

TEST(EnabledCpuFeatures, AgreeWithTheKernel) {
  std::ifstream file("/proc/cpuinfo");
  std::string line;
  while (std::getline(file, line) && line.rfind("flags", 0) != 0) continue;
  if (!file) GTEST_SKIP() << "the kernel lists no flags here";
  std::istringstream words(line);
  std::unordered_set<std::string> flags;
  for (std::string word; words >> word;) flags.insert(word);

  const uint64_t enabled = lumGetEnabledCpuFeatures();
  const struct {
    const char* flag;
    uint64_t bit;
  } rows[] = {{"sse2", lumCpuSse2},    {"pni", lumCpuSse3},     {"ssse3", lumCpuSsse3},
              {"sse4_1", lumCpuSse41}, {"sse4_2", lumCpuSse42}, {"avx", lumCpuAvx},
              {"avx2", lumCpuAvx2},    {"fma", lumCpuFma},      {"avx512f", lumCpuAvx512f}};
  uint64_t named = 0;
  for (const auto& row : rows) {
    EXPECT_EQ((enabled & row.bit) != 0, flags.count(row.flag) != 0) << row.flag;
    named |= row.bit;
  }
  EXPECT_EQ(enabled & ~named, 0u);
}

// lumi looks at bits 4 and 5 when it is loaded, and needs what they stand for.
TEST(EnabledCpuFeatures, BitsFourAndFiveAreTheLevelOfLumi) {
  EXPECT_EQ(lumCpuSse42, 16);
  EXPECT_EQ(lumCpuAvx, 32);
  EXPECT_EQ(lumGetEnabledCpuFeatures() & 48, 48u);
}

}  // namespace
