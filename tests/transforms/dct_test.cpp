// SPDX-License-Identifier: MIT
// Cosine transforms of images: results, sizes that suffice, statuses in their order.
#include "model/transforms/dct.hpp"

#include <gtest/gtest.h>

#include "support/settings.hpp"
#include "transforms/spectrum_runs.hpp"

namespace test {
namespace {

using namespace spectra;

const std::vector<std::string> kDirections = {"Fwd", "Inv"}, kLayouts = {"C1", "C3", "C4", "AC4"};

const bool covered = [] {
  for (const std::string& direction : kDirections) {
    const std::string name = "lumiDCT" + direction;
    for (const std::string& layout : kLayouts) addCovered({name + "_32f_" + layout + "R"});
    for (const std::string what : {"GetSize", "Init", "InitAlloc", "Free", "GetBufSize"})
      addCovered({name + what + "_32f"});
  }
  return true;
}();

NamedCall sized(const std::string& name, LumiSize size) {
  return NamedCall(name).number("width", size.width).number("height", size.height);
}
NamedCall getSize(const std::string& direction, LumiSize size, int* told) {
  return sized("lumiDCT" + direction + "GetSize_32f", size)
      .pointer("objectSize", told)
      .pointer("initSize", told + 1)
      .pointer("bufferSize", told + 2);
}

void expectCosines(const std::string& direction, const std::string& layout, LumiSize size, Random& random,
                   double* worst) {
  const auto where = testing::Message()
                     << direction << " " << layout << " " << size.width << "x" << size.height;
  const std::string name = "lumiDCT" + direction;
  int told[3];
  ObjectSteps steps(random);
  NamedCall query = getSize(direction, size, told);
  ASSERT_EQ(query.run(), lumStatusOk) << where;
  std::vector<Byte> scratch(static_cast<size_t>(told[1]));
  const bool isBlock = size.width == 8 && size.height == 8;
  ASSERT_EQ(told[1] == 0, isBlock) << where;
  ASSERT_EQ(steps.init(query, "objectSize",
                       sized(name + "Init_32f", size).pointer("scratch", isBlock ? nullptr : scratch.data()),
                       "object"),
            "")
      << where;
  int bytes = 0;
  ASSERT_EQ(steps.makeScratch(NamedCall(name + "GetBufSize_32f")
                                  .pointer("object", steps.object().at())
                                  .pointer("bufferSize", &bytes),
                              "bufferSize"),
            "")
      << where;
  const int stored = layout.back() - '0', used = layout == "AC4" ? 3 : stored,
            samples = size.width * size.height;
  const RunImage src(size, stored, 4, random), other(size, stored, 4, random);
  const RunImage& dst = random.oneIn(3) ? src : other;
  for (int i = 0; i < samples; ++i)
    for (int c = 0; c < used; ++c) src.set(i, c, (random.below(20001) - 10000) / 10000.0);
  src.remember();
  std::vector<std::vector<double>> right;
  for (int c = 0; c < used; ++c) {
    std::vector<double> x;
    for (int i = 0; i < samples; ++i) x.push_back(src.at(i, c));
    right.push_back(model::cosineTransformedImage(x, static_cast<size_t>(size.width),
                                                  static_cast<size_t>(size.height), direction == "Inv"));
  }
  NamedCall call(name + "_32f_" + layout + "R");
  call.image("src", src.first(), src.step()).image("dst", dst.first(), dst.step()).pointer("buffer", nullptr);
  if (random.oneIn(4)) {
    ASSERT_EQ(call.pointer("object", steps.object().at()).run(), lumStatusOk) << where;
  } else {
    ASSERT_EQ(steps.run(call, "object", "buffer"), "") << where;
  }
  for (int c = 0; c < used; ++c) {
    std::vector<double> got;
    for (int i = 0; i < samples; ++i) {
      got.push_back(dst.at(i, c));
      dst.accept(i, c);
    }
    // One sample is multiplied by the estimate of 1 / sqrt(1), twice.
    const LumiSize stages = samples == 1 ? LumiSize{2, 2} : size;
    const double error = relativeError(got, right[static_cast<size_t>(c)], stages);
    ASSERT_LT(error, 1) << where << ", channel " << c;
    *worst = std::max(*worst, error);
  }
  ASSERT_TRUE(dst.isUnchanged()) << where << ": alpha, or what lies beside the image";
  ASSERT_TRUE(src.isUnchanged()) << where << ": the source";
}

class DctWidth : public testing::TestWithParam<int> {};

TEST_P(DctWidth, RunsAsTheDefinition) {
  const CoreGuard guard;
  Random random(mixSeed(settings().seed, "dct", GetParam()));
  double worst = 0;
  for (const std::string& direction : kDirections)
    for (const std::string& layout : kLayouts) {
      const int other = random.between(1, 20);
      ASSERT_NO_FATAL_FAILURE(expectCosines(direction, layout, {GetParam(), other}, random, &worst));
      ASSERT_NO_FATAL_FAILURE(expectCosines(direction, layout, {other, GetParam()}, random, &worst));
    }
  // The bound of one run is 1: what comes near to it is to be looked at before it fails.
  EXPECT_LT(worst, 0.9);
}
INSTANTIATE_TEST_SUITE_P(UpTo40, DctWidth, testing::Range(1, 41), testing::PrintToStringParamName());
INSTANTIATE_TEST_SUITE_P(Longer, DctWidth,
                         testing::Values(48, 53, 64, 81, 100, 106, 127, 128, 212, 256, 509, 512, 600),
                         testing::PrintToStringParamName());

// Beyond where transforms are split, and of lengths that need a convolution.
TEST(Dct, RunsLongLengths) {
  Random random(settings().seed);
  double worst = 0;
  for (const LumiSize size : {LumiSize{1024, 1}, {4096, 1}, {1, 2048}, {2 * 1031, 1}, {1, 2053}})
    for (const std::string& direction : kDirections)
      ASSERT_NO_FATAL_FAILURE(expectCosines(direction, "C1", size, random, &worst));
}

// 8 x 8 with tight rows takes no scratch, with others it does.
TEST(Dct, TransformsBlocks) {
  Random random(settings().seed);
  double worst = 0;
  for (const std::string& direction : kDirections) {
    for (const std::string& layout : kLayouts)
      for (int i = 0; i < 8; ++i)
        ASSERT_NO_FATAL_FAILURE(expectCosines(direction, layout, {8, 8}, random, &worst));
    const CoreGuard guard;
    void* object = nullptr;
    const std::string name = "lumiDCT" + direction;
    ASSERT_EQ(sized(name + "InitAlloc_32f", {8, 8}).pointer("object", &object).run(), lumStatusOk);
    float image[8 * 9] = {};
    NamedCall call(name + "_32f_C1R");
    call.image("src", image, 32).image("dst", image, 32).pointer("object", object).pointer("buffer", nullptr);
    const auto before = testcore::counts().allocations;
    EXPECT_EQ(call.run(), lumStatusOk);
    EXPECT_EQ(testcore::counts().allocations, before);
    testcore::failAllocation(1);
    EXPECT_EQ(call.image("src", image, 36).run(), lumStatusNoMemory);
    EXPECT_EQ(NamedCall(name + "Free_32f").pointer("object", object).run(), lumStatusOk);
  }
}

void addSizes(std::vector<NamedFault>& faults, const char* name, const std::vector<int>& sizes) {
  for (const int n : sizes)
    faults.push_back({[=](NamedCall& c) { c.number(name, n); }, lumStatusBadSize, name[0]});
}
const std::vector<int> kTooSmall = {0, -1, INT32_MIN}, kTooLarge = {0x10000000, 0x4000000 + 1, INT32_MAX};

TEST(DctStatus, OfSizesAndInit) {
  for (const std::string& direction : kDirections) {
    int told[3] = {-7, -7, -7};
    const NamedCall right = getSize(direction, {12, 5}, told);
    std::vector<NamedFault> faults = {nullFault("objectSize"), nullFault("initSize"),
                                      nullFault("bufferSize")};
    for (const char* name : {"width", "height"}) addSizes(faults, name, kTooSmall);
    for (const char* name : {"width", "height"}) addSizes(faults, name, kTooLarge);
    expectInOrder(right, faults, [&](LumStatus) { ASSERT_EQ(told[0] + told[1] + told[2], -21); });
    EXPECT_EQ(right.run(), lumStatusOk);

    const std::vector<Byte> before(static_cast<size_t>(told[0]), 0x5a);
    std::vector<Byte> object = before, scratch(static_cast<size_t>(told[1]));
    NamedCall init = sized("lumiDCT" + direction + "Init_32f", {12, 5});
    init.pointer("object", object.data()).pointer("scratch", scratch.data());
    faults = {nullFault("object")};
    for (const char* name : {"width", "height"}) addSizes(faults, name, kTooSmall);
    faults.push_back(nullFault("scratch"));
    for (const char* name : {"width", "height"}) addSizes(faults, name, kTooLarge);
    expectInOrder(init, faults, [&](LumStatus) { ASSERT_EQ(object, before); });
    EXPECT_EQ(init.run(), lumStatusOk);
  }
}

TEST(DctStatus, OfAllocatedObjects) {
  for (const std::string& direction : kDirections) {
    int any = 0;
    void* object = &any;
    NamedCall right = sized("lumiDCT" + direction + "InitAlloc_32f", {12, 53});
    right.pointer("object", &object);
    std::vector<NamedFault> faults = {nullFault("object")};
    for (const char* name : {"width", "height"}) addSizes(faults, name, kTooSmall);
    for (const char* name : {"width", "height"}) addSizes(faults, name, kTooLarge);
    expectInOrder(right, faults, [&](LumStatus) { ASSERT_EQ(object, &any); });
    const std::string result = expectAllocatedLife(
        right, "object", NamedCall("lumiDCT" + direction + "Free_32f"), "object", [](void*) {});
    EXPECT_EQ(result, "");
  }
}

TEST(DctStatus, OfRuns) {
  void* objects[2] = {};
  for (size_t i = 0; i < 2; ++i)
    ASSERT_EQ(
        sized("lumiDCT" + kDirections[i] + "InitAlloc_32f", {4, 3}).pointer("object", &objects[i]).run(),
        lumStatusOk);
  for (size_t i = 0; i < 2; ++i) {
    const std::string name = "lumiDCT" + kDirections[i];
    int bytes = -7;
    NamedCall query(name + "GetBufSize_32f");
    query.pointer("object", objects[i]).pointer("bufferSize", &bytes);
    void* const wrong = objects[1 - i];
    const NamedFault bad = {[=](NamedCall& c) { c.pointer("object", wrong); }, lumStatusBadContext, 1};
    NamedFault none = nullFault("object");
    none.exclusive = 1;
    expectInOrder(query, {none, nullFault("bufferSize"), bad}, [&](LumStatus) { ASSERT_EQ(bytes, -7); });
    EXPECT_EQ(NamedCall(name + "Free_32f").pointer("object", wrong).run(), lumStatusBadContext);
    EXPECT_EQ(NamedCall(name + "Free_32f").pointer("object", nullptr).run(), lumStatusNullPointer);
    for (const std::string& layout : kLayouts) {
      SCOPED_TRACE(name + layout);
      const CoreGuard guard;
      const std::vector<Byte> before(64 * 3, 0x3c);
      std::vector<Byte> src = before, dst = before;
      NamedCall right(name + "_32f_" + layout + "R");
      right.pointer("object", objects[i]).pointer("buffer", nullptr);
      right.image("src", src.data(), 64).image("dst", dst.data(), 64);
      std::vector<NamedFault> faults = {none, bad};
      for (const auto& [image, at] : {std::pair{"src", src.data()}, {"dst", dst.data()}}) {
        const char* const which = image;
        Byte* const first = at;
        faults.push_back(
            {[=](NamedCall& c) { c.image(which, nullptr, 64); }, lumStatusNullPointer, which[0]});
        faults.push_back({[=](NamedCall& c) { c.image(which, first, 0); }, lumStatusBadStep, which[0]});
      }
      std::swap(faults[3], faults[4]);
      expectInOrder(right, faults, [&](LumStatus) { ASSERT_EQ(dst, before); });
      testcore::failAllocation(1);
      EXPECT_EQ(right.run(), lumStatusNoMemory);
      EXPECT_EQ(dst, before);
      EXPECT_EQ(right.run(), lumStatusOk);
      EXPECT_EQ(testcore::counts().liveBlocks, 0);
    }
  }
  for (size_t i = 0; i < 2; ++i)
    EXPECT_EQ(NamedCall("lumiDCT" + kDirections[i] + "Free_32f").pointer("object", objects[i]).run(),
              lumStatusOk);
}

}  // namespace
}  // namespace test
