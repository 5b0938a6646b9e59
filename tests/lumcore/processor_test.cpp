// SPDX-License-Identifier: MIT
// Decisions about the processor, from register values of processors other than this one.
#include "processor.hpp"

#include <gtest/gtest.h>

#include <map>
#include <utility>

namespace lumcore {
namespace {

// Leaf and index to registers; what is not listed reads as zeros, as it does on a processor.
struct Processor {
  std::map<std::pair<uint32_t, uint32_t>, Registers> leaves;

  Registers operator()(uint32_t leaf, uint32_t index) const {
    const auto found = leaves.find({leaf, index});
    return found == leaves.end() ? Registers{} : found->second;
  }
};

constexpr uint64_t KiB = 1024, MiB = 1024 * KiB;

// Read on a virtual machine with two threads of a server processor: 48 KiB data, 32 KiB instructions, 1 MiB
// second level, 32 MiB third level. Its older leaf 0x80000006 tells 384 MiB, the whole socket's.
const Processor serverWithExtensions{{
    {{0, 0}, {0x1C, 0x68747541, 0x444D4163, 0x69746E65}},
    {{1, 0}, {0x00B00F21, 0x00020800, 0xFFFA3203, 0x178BFBFF}},
    {{7, 0}, {0x00000001, 0xF1BF07AB, 0x00405FC6, 0x00000110}},
    {{0x80000000, 0}, {0x80000021, 0x68747541, 0x444D4163, 0x69746E65}},
    {{0x80000001, 0}, {0x00B00F21, 0x40000000, 0x004003F3, 0x2FD3FBFF}},
    {{0x80000006, 0}, {0x40802040, 0x60804040, 0x04008140, 0x0C009140}},
    {{0x8000001D, 0}, {0x00000121, 0x02C0003F, 0x0000003F, 0}},
    {{0x8000001D, 1}, {0x00000122, 0x01C0003F, 0x0000003F, 0}},
    {{0x8000001D, 2}, {0x00000143, 0x03C0003F, 0x000003FF, 2}},
    {{0x8000001D, 3}, {0x00004163, 0x03C0003F, 0x00007FFF, 1}},
}};

// The basic leaf of a desktop processor with four cores: 32, 32 and 256 KiB, 8 MiB shared.
const Processor desktopWithBasicLeaf{{
    {{0, 0}, {0xD, 0x756E6547, 0x6C65746E, 0x49656E69}},
    {{1, 0}, {0x000306A9, 0x00100800, 0x7FBAE3FF, 0xBFEBFBFF}},
    {{4, 0}, {0x1C004121, 0x01C0003F, 0x0000003F, 0}},
    {{4, 1}, {0x1C004122, 0x01C0003F, 0x0000003F, 0}},
    {{4, 2}, {0x1C004143, 0x01C0003F, 0x000001FF, 0}},
    {{4, 3}, {0x1C03C163, 0x03C0003F, 0x00001FFF, 6}},
    {{0x80000000, 0}, {0x80000008, 0, 0, 0}},
    {{0x80000001, 0}, {0, 0, 0x00000001, 0x28100800}},
}};

TEST(CacheBytes, MultipliesWaysPartitionsLineAndSets) {
  EXPECT_EQ(cacheBytes({0x21, 0x02C0003F, 63, 0}), 48 * KiB);             // 12 ways, 64 bytes, 64 sets
  EXPECT_EQ(cacheBytes({0x63, 0x03C0103F, 0x7FFF, 0}), 64 * MiB);         // two partitions
  EXPECT_EQ(cacheBytes({0x63, 0x02C0003F, 36863, 0}), 27 * MiB);          // sets need not be a power of two
  EXPECT_EQ(cacheBytes({0x63, 0x05C0003F, 0xFFFF, 0}), 96 * MiB);         // 24 ways
  EXPECT_EQ(cacheBytes({0x83, 0x03C0003F, 0x01FFFFFF, 0}), 32768 * MiB);  // more than 32 bits
}

TEST(CacheBytes, IgnoresInstructionCaches) { EXPECT_EQ(cacheBytes({0x22, 0x01C0003F, 63, 0}), 0u); }

TEST(EnumeratedCache, ExtendedLeaf) { EXPECT_EQ(enumeratedCache(serverWithExtensions), 32 * MiB); }

TEST(EnumeratedCache, BasicLeaf) { EXPECT_EQ(enumeratedCache(desktopWithBasicLeaf), 8 * MiB); }

TEST(EnumeratedCache, ExtendedLeafIsPreferredWhereReported) {
  Processor both = serverWithExtensions;
  both.leaves[{4, 0}] = {0x163, 0x03C0003F, 0x3FFF, 0};
  EXPECT_EQ(enumeratedCache(both), 32 * MiB);
  both.leaves[{0x80000001, 0}].ecx &= ~(1U << 22);
  EXPECT_EQ(enumeratedCache(both), 16 * MiB);
}

TEST(EnumeratedCache, BasicLeafServesWhereTheExtendedOneIsEmpty) {
  Processor hollow = serverWithExtensions;
  hollow.leaves.erase({0x8000001D, 0});
  EXPECT_EQ(enumeratedCache(hollow), 0u);
  hollow.leaves[{4, 0}] = {0x163, 0x03C0003F, 0x3FFF, 0};
  EXPECT_EQ(enumeratedCache(hollow), 16 * MiB);
}

TEST(EnumeratedCache, LargestWinsWhateverTheOrder) {
  Processor shuffled = desktopWithBasicLeaf;
  std::swap(shuffled.leaves[{4, 0}], shuffled.leaves[{4, 3}]);
  EXPECT_EQ(enumeratedCache(shuffled), 8 * MiB);
}

TEST(EnumeratedCache, WithoutLeavesNothingIsKnown) {
  EXPECT_EQ(enumeratedCache(Processor{}), 0u);
  Processor old = desktopWithBasicLeaf;
  old.leaves[{0, 0}].eax = 3;
  EXPECT_EQ(enumeratedCache(old), 0u);
}

TEST(EnumeratedCache, EndsWhenTheListDoesNot) {
  const auto endless = [](uint32_t leaf, uint32_t) {
    return leaf == 4 ? Registers{0x21, 0x01C0003F, 0x3F, 0} : Registers{leaf == 0 ? 4U : 0U, 0, 0, 0};
  };
  EXPECT_EQ(enumeratedCache(endless), 32 * KiB);
}

constexpr uint64_t uptoSse42 = lumCpuSse2 | lumCpuSse3 | lumCpuSsse3 | lumCpuSse41 | lumCpuSse42;
uint64_t features(const Processor& processor, uint64_t saved) {
  return enabledFeatures(processor, [saved] { return saved; });
}

TEST(EnabledFeatures, ProcessorAndSystemTogether) {
  const uint64_t all = uptoSse42 | lumCpuAvx | lumCpuAvx2 | lumCpuFma | lumCpuAvx512f;
  EXPECT_EQ(features(serverWithExtensions, 0xE7), all);
  EXPECT_EQ(features(desktopWithBasicLeaf, 0x07), uptoSse42 | lumCpuAvx);
}

TEST(EnabledFeatures, NeedTheirSavedState) {
  const uint64_t narrow = uptoSse42 | lumCpuAvx | lumCpuAvx2 | lumCpuFma;
  EXPECT_EQ(features(serverWithExtensions, 0x07), narrow);
  EXPECT_EQ(features(serverWithExtensions, 0x67), narrow);     // part of the 512-bit state only
  EXPECT_EQ(features(serverWithExtensions, 0x03), uptoSse42);  // no upper halves
  EXPECT_EQ(features(serverWithExtensions, 0x05), uptoSse42);
}

TEST(EnabledFeatures, SavedStateIsNotReadWhereItIsNotReadable) {
  Processor closed = serverWithExtensions;
  closed.leaves[{1, 0}].ecx &= ~(1U << 27);
  bool read = false;
  EXPECT_EQ(enabledFeatures(closed, [&read] { return read = true, uint64_t{0xE7}; }), uptoSse42);
  EXPECT_FALSE(read);
}

TEST(EnabledFeatures, LeavesBeyondTheLastAreNotRead) {
  Processor old = serverWithExtensions;
  old.leaves[{0, 0}].eax = 6;
  EXPECT_EQ(features(old, 0xE7), uptoSse42 | lumCpuAvx | lumCpuFma);
  EXPECT_EQ(features(Processor{}, 0xE7), 0u);
}

}  // namespace
}  // namespace lumcore
