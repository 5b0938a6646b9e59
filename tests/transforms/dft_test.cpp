// SPDX-License-Identifier: MIT
// Fourier transforms of any size: results of every method, sizes that suffice, and statuses in their order.
#include <gtest/gtest.h>

#include "support/settings.hpp"
#include "transforms/spectrum_runs.hpp"

namespace test {
namespace {

using namespace spectra;

const Family kDft = {"DFT", "width", "height", false};

const bool covered = [] {
  addCoveredMembers(kDft);
  return true;
}();

class DftWidth : public testing::TestWithParam<int> {};

// Each length along a row and down a column: short ones, prime factors of every pass, convolutions.
TEST_P(DftWidth, RunsAsTheDefinition) {
  const CoreGuard guard;
  Random random(mixSeed(settings().seed, "dft", GetParam()));
  double worst = 0;
  for (const TransformRun& member : floatRuns()) {
    if (member.layout != "C1" && !random.oneIn(4)) continue;
    const int other = random.between(1, 24);
    ASSERT_NO_FATAL_FAILURE(expectRun(kDft, member, {GetParam(), other}, random, &worst));
    ASSERT_NO_FATAL_FAILURE(expectRun(kDft, member, {other, GetParam()}, random, &worst));
  }
  // The bound of one run is 1: what comes near to it is to be looked at before it fails.
  EXPECT_LT(worst, 0.9);
}
INSTANTIATE_TEST_SUITE_P(UpTo67, DftWidth, testing::Range(1, 68), testing::PrintToStringParamName());
INSTANTIATE_TEST_SUITE_P(Longer, DftWidth,
                         testing::Values(73, 81, 94, 98, 100, 105, 106, 125, 127, 128, 149, 150, 163, 179,
                                         187, 212, 236, 243, 256, 298, 300, 343, 509, 512, 596, 604, 1000,
                                         1021, 1536, 2048),
                         testing::PrintToStringParamName());

TEST(Dft, RunsLongLengths) {
  Random random(settings().seed);
  double worst = 0;
  // Beyond the table of lengths of convolutions; of twos that split; of many factors.
  for (const LumiSize size :
       {LumiSize{4099, 2}, {8198, 1}, {1, 5003}, {12, 2048}, {60060, 1}, {2, 17017}, {16384, 1}})
    for (const bool inverse : {false, true}) {
      ASSERT_NO_FATAL_FAILURE(expectRun(kDft, {true, inverse, "C1", false, false}, size, random, &worst));
      ASSERT_NO_FATAL_FAILURE(expectRun(kDft, {false, inverse, "C1", true, false}, size, random, &worst));
    }
}

TEST(Dft, RoundsIntegers) {
  Random random(settings().seed);
  for (const TransformRun& member : integerRuns())
    for (int i = 0; i < 12; ++i) {
      const LumiSize size{random.between(1, 60), random.between(1, 60)};
      ASSERT_NO_FATAL_FAILURE(expectIntegers(kDft, member, size, random));
    }
}

void addSizes(std::vector<NamedFault>& faults, const char* name, const std::vector<int>& sizes) {
  for (const int n : sizes)
    faults.push_back({[=](NamedCall& c) { c.number(name, n); }, lumStatusBadSize, name[0]});
}
void addAxes(std::vector<NamedFault>& faults) {
  addSizes(faults, "width", {0, -1, INT32_MIN});
  addSizes(faults, "height", {0, -7});
  for (const int flag : {0, 3, -1, 16, 5})
    faults.push_back({[=](NamedCall& c) { c.number("flag", flag); }, lumStatusBadTransformFlag, 1});
  // Above the limit of all lengths, and a prime above that of convolutions; twice the prime for real ones
  // too.
  addSizes(faults, "width", {0x8000000, INT32_MAX, 134217689, 2 * 67108859});
  addSizes(faults, "height", {0x8000000, INT32_MAX, 134217689});
}

TEST(DftStatus, OfSizes) {
  for (const bool isReal : {false, true}) {
    int told[3] = {-7, -7, -7};
    const NamedCall right = kDft.getSize(isReal ? "R_32f" : "C_32fc", {60, 7}, 4, told);
    std::vector<NamedFault> faults = {nullFault("objectSize"), nullFault("initSize"),
                                      nullFault("bufferSize")};
    addAxes(faults);
    expectInOrder(right, faults, [&](LumStatus) { ASSERT_EQ(told[0] + told[1] + told[2], -21); });
    EXPECT_EQ(right.run(), lumStatusOk);
    EXPECT_GT(told[1], 0);
  }
}

// Scratch of Init is needed for mixed radices and convolutions, and nowhere else.
TEST(DftStatus, OfInit) {
  for (const std::string kind : {"C_32fc", "R_32f"}) {
    for (const LumiSize size : {LumiSize{16, 11}, {256, 64}, {15, 17}, {60, 7}, {8, 53}}) {
      int told[3];
      ASSERT_EQ(kDft.getSize(kind, size, 8, told).run(), lumStatusOk);
      const bool needsScratch = size.width == 60 || size.height == 17 || size.height == 53;
      EXPECT_EQ(told[1] > 0, needsScratch) << size.width << " " << size.height;
      const std::vector<Byte> before(static_cast<size_t>(told[0]), 0x5a);
      std::vector<Byte> object = before, scratch(static_cast<size_t>(told[1]) + 1);
      NamedCall right = kDft.init(kind, size, 2, needsScratch ? scratch.data() : nullptr);
      right.pointer("object", object.data());
      std::vector<NamedFault> faults = {nullFault("object")};
      addAxes(faults);
      if (needsScratch) faults.push_back(nullFault("scratch"));
      expectInOrder(right, faults, [&](LumStatus) { ASSERT_EQ(object, before); });
      EXPECT_EQ(right.run(), lumStatusOk);
    }
  }
}

// A prime whose convolution has 2^25 points: memory to make it is more than 31 bits tell, and is not asked
// for.
TEST(DftStatus, OfScratchThatNoSizeTells) {
  int told[3];
  constexpr LumiSize size{16777213, 1};
  ASSERT_EQ(kDft.getSize("C_32fc", size, 8, told).run(), lumStatusOk);
  EXPECT_EQ(told[1], INT32_MAX);
  Byte object[64] = {}, scratch[64] = {};
  NamedCall call = kDft.init("C_32fc", size, 8, scratch);
  EXPECT_EQ(call.pointer("object", object).run(), lumStatusNoMemory);
}

TEST(DftStatus, OfAllocatedObjects) {
  for (const std::string kind : {"C_32fc", "R_32f", "R_32s"}) {
    int any = 0;
    void* const nowhere = &any;
    void* object = nowhere;
    NamedCall right = kDft.initAlloc(kind, {60, 53}, 2);
    right.pointer("object", &object);
    std::vector<NamedFault> faults = {nullFault("object")};
    addAxes(faults);
    expectInOrder(right, faults, [&](LumStatus) { ASSERT_EQ(object, nowhere); });
    expectAllocatedObjects(kDft, right, kind);
  }
}

TEST(DftStatus, OfRuns) { expectRunStatuses(kDft); }

}  // namespace
}  // namespace test
