// SPDX-License-Identifier: MIT
#include "lumi/image_memory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cstdint>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "support/core_guard.hpp"
#include "support/member.hpp"
#include "support/random.hpp"
#include "support/settings.hpp"

namespace test {
namespace {

struct Allocator {
  std::string name;
  int pixelBytes;
  std::function<void*(int width, int height, int* step)> allocate;
};

// The bytes of a pixel are told apart from the return type: complex samples and alpha count in full.
template <typename T>
Allocator allocator(const char* name, T* (*function)(int, int, int*), int pixelBytes) {
  return {name, pixelBytes,
          [=](int width, int height, int* step) -> void* { return function(width, height, step); }};
}

#define LUMI_NAMED(function) #function, function

const std::vector<Allocator>& allocators() {
  static const std::vector<Allocator> list = {
      allocator(LUMI_NAMED(lumiMalloc_8u_C1), 1),     allocator(LUMI_NAMED(lumiMalloc_8u_C2), 2),
      allocator(LUMI_NAMED(lumiMalloc_16s_C1), 2),    allocator(LUMI_NAMED(lumiMalloc_16u_C1), 2),
      allocator(LUMI_NAMED(lumiMalloc_8u_C3), 3),     allocator(LUMI_NAMED(lumiMalloc_8u_C4), 4),
      allocator(LUMI_NAMED(lumiMalloc_8u_AC4), 4),    allocator(LUMI_NAMED(lumiMalloc_16s_C2), 4),
      allocator(LUMI_NAMED(lumiMalloc_16u_C2), 4),    allocator(LUMI_NAMED(lumiMalloc_32f_C1), 4),
      allocator(LUMI_NAMED(lumiMalloc_32s_C1), 4),    allocator(LUMI_NAMED(lumiMalloc_16s_C3), 6),
      allocator(LUMI_NAMED(lumiMalloc_16u_C3), 6),    allocator(LUMI_NAMED(lumiMalloc_16s_C4), 8),
      allocator(LUMI_NAMED(lumiMalloc_16s_AC4), 8),   allocator(LUMI_NAMED(lumiMalloc_16u_C4), 8),
      allocator(LUMI_NAMED(lumiMalloc_16u_AC4), 8),   allocator(LUMI_NAMED(lumiMalloc_32f_C2), 8),
      allocator(LUMI_NAMED(lumiMalloc_32s_C2), 8),    allocator(LUMI_NAMED(lumiMalloc_32fc_C1), 8),
      allocator(LUMI_NAMED(lumiMalloc_32sc_C1), 8),   allocator(LUMI_NAMED(lumiMalloc_32f_C3), 12),
      allocator(LUMI_NAMED(lumiMalloc_32s_C3), 12),   allocator(LUMI_NAMED(lumiMalloc_32f_C4), 16),
      allocator(LUMI_NAMED(lumiMalloc_32f_AC4), 16),  allocator(LUMI_NAMED(lumiMalloc_32s_C4), 16),
      allocator(LUMI_NAMED(lumiMalloc_32s_AC4), 16),  allocator(LUMI_NAMED(lumiMalloc_32fc_C2), 16),
      allocator(LUMI_NAMED(lumiMalloc_32sc_C2), 16),  allocator(LUMI_NAMED(lumiMalloc_32fc_C3), 24),
      allocator(LUMI_NAMED(lumiMalloc_32sc_C3), 24),  allocator(LUMI_NAMED(lumiMalloc_32fc_C4), 32),
      allocator(LUMI_NAMED(lumiMalloc_32fc_AC4), 32), allocator(LUMI_NAMED(lumiMalloc_32sc_C4), 32),
      allocator(LUMI_NAMED(lumiMalloc_32sc_AC4), 32)};
  return list;
}

const bool covered = [] {
  for (const Allocator& a : allocators()) addCovered({a.name});
  return addCovered({"lumiFree"});
}();

constexpr int kUnset = -12345;

int32_t wrapped(int64_t value) {
  const auto bits = static_cast<uint32_t>(static_cast<uint64_t>(value));
  int32_t result;
  std::memcpy(&result, &bits, sizeof result);
  return result;
}

// Width times pixel bytes, rounded up to a multiple of 64; what does not fit into 32 bits wraps.
int32_t stepOf(const Allocator& a, int width) {
  const int64_t padded = int64_t{width} * a.pixelBytes + 63;
  return wrapped(padded - padded % 64);
}

int32_t requestOf(const Allocator& a, int width, int height) {
  return wrapped(int64_t{stepOf(a, width)} * height);
}

class ImageMemory : public testing::TestWithParam<Allocator> {
 protected:
  const CoreGuard guard_;
};

TEST_P(ImageMemory, RowsAreMultiplesOf64Bytes) {
  for (int width = 1; width <= 260; ++width)
    for (int height : {1, 2, 7}) {
      int step = kUnset;
      void* image = GetParam().allocate(width, height, &step);
      const int row = width * GetParam().pixelBytes;
      ASSERT_NE(image, nullptr);
      ASSERT_EQ(step % 64, 0);
      ASSERT_GE(step, row);
      ASSERT_LT(step - row, 64);
      ASSERT_EQ(testcore::lastRequest(), step * height);
      ASSERT_EQ(reinterpret_cast<uintptr_t>(image) % 64, 0u);
      std::memset(image, 0x5a, static_cast<size_t>(step * height));
      lumiFree(image);
    }
  EXPECT_EQ(testcore::counts().liveBlocks, 0);
  EXPECT_EQ(testcore::counts().allocations, 260 * 3);
  EXPECT_EQ(testcore::counts().frees, 260 * 3);
  EXPECT_EQ(testcore::counts().strayFrees, 0);
}

TEST_P(ImageMemory, HandsOutTheBlockAsItIs) {
  testcore::setBlockOffset(4);
  int step = kUnset;
  void* image = GetParam().allocate(33, 2, &step);
  EXPECT_EQ(reinterpret_cast<uintptr_t>(image) % 64, 4u);
  lumiFree(image);
  EXPECT_EQ(testcore::counts().strayFrees, 0);
  EXPECT_EQ(testcore::counts().liveBlocks, 0);
}

TEST_P(ImageMemory, NullStepGivesNullAndAllocatesNothing) {
  for (int width : {-1, 0, 1, 64})
    for (int height : {-1, 0, 1, 64}) EXPECT_EQ(GetParam().allocate(width, height, nullptr), nullptr);
  EXPECT_EQ(testcore::counts().allocations, 0);
}

TEST_P(ImageMemory, SizesBelowOneGiveNullAndAZeroStep) {
  for (int bad : {0, -1, -64, INT_MIN})
    for (int other : {1, 64, 0, -7, INT_MAX}) {
      int step = kUnset;
      EXPECT_EQ(GetParam().allocate(bad, other, &step), nullptr);
      EXPECT_EQ(step, 0);
      step = kUnset;
      EXPECT_EQ(GetParam().allocate(other, bad, &step), nullptr);
      EXPECT_EQ(step, 0);
    }
  EXPECT_EQ(testcore::counts().allocations, 0);
}

TEST_P(ImageMemory, FailedAllocationLeavesTheStepSet) {
  testcore::failAllocation(2);
  int step = kUnset;
  void* first = GetParam().allocate(10, 3, &step);
  EXPECT_NE(first, nullptr);
  step = kUnset;
  EXPECT_EQ(GetParam().allocate(100, 3, &step), nullptr);
  EXPECT_EQ(step, stepOf(GetParam(), 100));
  lumiFree(first);
  EXPECT_EQ(testcore::counts().liveBlocks, 0);
}

void expectWrapped(const Allocator& a, int width, int height) {
  // Refused where it would be large: what is asked for counts, not what a machine can give.
  const int32_t request = requestOf(a, width, height);
  if (request > 1 << 20) testcore::failAllocation(1);
  const int64_t before = testcore::counts().allocations;
  int step = kUnset;
  void* image = a.allocate(width, height, &step);
  EXPECT_EQ(step, stepOf(a, width)) << width << " x " << height;
  EXPECT_EQ(testcore::counts().allocations, before + 1) << width << " x " << height;
  EXPECT_EQ(testcore::lastRequest(), request) << width << " x " << height;
  EXPECT_EQ(image == nullptr, request < 1 || request > 1 << 20) << width << " x " << height;
  lumiFree(image);
}

TEST_P(ImageMemory, SizesWrapIn32Bits) {
  const Allocator& a = GetParam();
  const int64_t halfway = (int64_t{1} << 31) / a.pixelBytes;  // the row becomes negative
  const int64_t around = (int64_t{1} << 32) / a.pixelBytes;   // and returns to small values
  std::vector<int> widths = {1,       64,          65,           1 << 16,      (1 << 16) + 1,
                             1 << 30, INT_MAX - 1, INT_MAX - 63, INT_MAX - 64, INT_MAX};
  for (int64_t wide : {halfway, around})
    for (int64_t near = wide - 2; near <= wide + 2; ++near)
      if (near <= INT_MAX) widths.push_back(static_cast<int>(near));
  for (int width : widths)
    for (int height : {1, 2, 3, 1 << 15, 1 << 16, (1 << 16) + 1, 1 << 25, 1 << 26, 1 << 30, INT_MAX})
      expectWrapped(a, width, height);
  Random random(mixSeed(settings().seed, a.name, 0));
  for (int i = 0; i < settings().scaled(2000); ++i) {
    const auto any = [&] { return static_cast<int>(random.next() >> random.between(33, 63)); };
    expectWrapped(a, std::max(1, any()), std::max(1, any()));
  }
  EXPECT_EQ(testcore::counts().liveBlocks, 0);
}

INSTANTIATE_TEST_SUITE_P(Each, ImageMemory, testing::ValuesIn(allocators()),
                         [](const auto& each) { return each.param.name; });

TEST(ImageMemorySteps, AreTheOnesOfTheTable) {
  const CoreGuard guard;
  int step = 0;
  const auto stepFor = [&](auto* function, int width) {
    lumiFree(function(width, 1, &step));
    return step;
  };
  EXPECT_EQ(stepFor(lumiMalloc_8u_C1, 1), 64);
  EXPECT_EQ(stepFor(lumiMalloc_8u_C1, 64), 64);
  EXPECT_EQ(stepFor(lumiMalloc_8u_C1, 65), 128);
  EXPECT_EQ(stepFor(lumiMalloc_8u_C3, 64), 192);
  EXPECT_EQ(stepFor(lumiMalloc_16u_AC4, 9), 128);
  EXPECT_EQ(stepFor(lumiMalloc_32f_AC4, 5), 128);
  EXPECT_EQ(stepFor(lumiMalloc_32fc_C3, 3), 128);
  EXPECT_EQ(stepFor(lumiMalloc_32sc_AC4, 2), 64);
}

TEST(ImageMemoryFree, PassesNullOnToTheCoreLibrary) {
  const CoreGuard guard;
  lumiFree(nullptr);
  EXPECT_EQ(testcore::counts().nullFrees, 1);
  EXPECT_EQ(testcore::counts().frees, 0);
}

TEST(ImageMemoryFree, PassesTheBlockItselfOn) {
  const CoreGuard guard;
  int step = 0;
  lumiFree(lumiMalloc_32f_C4(20, 20, &step));
  EXPECT_EQ(testcore::counts().frees, 1);
  EXPECT_EQ(testcore::counts().strayFrees, 0);
  EXPECT_EQ(testcore::counts().liveBlocks, 0);
}

}  // namespace
}  // namespace test
