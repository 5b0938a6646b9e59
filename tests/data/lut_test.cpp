// SPDX-License-Identifier: MIT
// Look-up by levels and values: against the model, every status of the members with several channels, and
// what the lists promise.
#include "lumi/lut.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>

#include "data/lut_lists.hpp"
#include "support/arena.hpp"
#include "support/core_guard.hpp"
#include "support/fault.hpp"
#include "support/list_faults.hpp"
#include "support/named_call.hpp"
#include "support/settings.hpp"

namespace test {
namespace {

using Samples = Types<Lum8u, Lum16u, Lum16s, Lum32f>;

const auto describe = [](model::Form form) {
  return [form](Member& m, auto sample) { lut::describe<decltype(sample)>(m, form); };
};
const bool constantAdded = addModelTests(membersOfOneType("LUT", describe(model::Form::Constant), Samples()));
const bool linearAdded =
    addModelTests(membersOfOneType("LUT_Linear", describe(model::Form::Linear), Samples()));
const bool cubicAdded = addModelTests(membersOfOneType("LUT_Cubic", describe(model::Form::Cubic), Samples()));

// A call of a member with several channels whose images no access survives, and what may be wrong with it, in
// the order in which it is told.
class ListCall {
 public:
  struct Fault {
    std::function<void(ListCall&)> apply;
    LumStatus status;
    int exclusive = 0;  // of two with one number only one can be there
  };

  explicit ListCall(const ExportRow& row)
      : call_(row), channels_(row.layouts[0] == std::string("C4") ? 4 : 3) {
    for (int c = 0; c < 4; ++c) {
      values_[c] = levels_[c] = list_;
      counts_[c] = 4;
    }
    isInPlace_ = row.arguments[0].name == std::string("srcDst");
    call_.size("roi", {7, 3}).pointer("values", values_).pointer("levels", levels_).pointer("count", counts_);
    for (const char* name : images()) call_.image(name, forbiddenMemory(), 256);
  }
  LumStatus run() { return call_.run(); }

  std::vector<Fault> faults() {
    std::vector<Fault> all;
    for (const char* name : images())
      all.push_back({[=](ListCall& c) { c.call_.pointer(name, nullptr); }, lumStatusNullPointer});
    for (const char* name : {"values", "levels", "count"})
      all.push_back({[=](ListCall& c) { c.call_.pointer(name, nullptr); }, lumStatusNullPointer});
    for (int c = 0; c < channels_; ++c) {
      all.push_back({[=](ListCall& call) { call.values_[c] = nullptr; }, lumStatusNullPointer});
      all.push_back({[=](ListCall& call) { call.levels_[c] = nullptr; }, lumStatusNullPointer});
      for (const int count : {1, 0, -1, INT32_MIN})
        all.push_back({[=](ListCall& call) { call.counts_[c] = count; }, lumStatusTooFewLutLevels, 1 + c});
    }
    for (const LumiSize size : {LumiSize{0, 3}, {-1, 3}, {7, 0}, {7, INT32_MIN}})
      all.push_back({[=](ListCall& c) { c.call_.size("roi", size); }, lumStatusBadSize, 9});
    for (const char* name : images())
      for (const int step : {0, -1, INT32_MIN})
        all.push_back({[=](ListCall& c) { c.call_.number(std::string(name) + "Step", step); },
                       lumStatusBadStep, name[0]});
    return all;
  }

 private:
  std::vector<const char*> images() const {
    return isInPlace_ ? std::vector<const char*>{"srcDst"} : std::vector<const char*>{"src", "dst"};
  }
  NamedCall call_;
  int channels_, counts_[4];
  bool isInPlace_;
  const void *values_[4], *levels_[4];
  // Of integers; as floats they ascend too.
  const Lum32s list_[4] = {1, 2, 3, 4};
};

TEST(LutStatus, OfSeveralChannelsInOrder) {
  for (const ExportRow& row : exportRows()) {
    if (row.family != std::string("lut") || row.layouts[0] == std::string("C1")) continue;
    expectFaultsInOrder<ListCall>(row);
  }
}

// Lists end where memory does, and have no level too many.
TEST(LutLists, AreReadToTheirEndAndNoFurther) {
  const CoreGuard guard;
  const Arena values(1), levels(1);
  for (const ExportRow& row : exportRows()) {
    if (row.family != std::string("lut") || row.layouts[0] != std::string("C1")) continue;
    const bool isFloat = row.types[0] == std::string("32f"), isInPlace = row.arguments.size() == 6;
    for (const int count : {2, 3, 4, 5, 33, 34, 70}) {
      Byte* const v = values.end() - 4 * count;
      Byte* const l = levels.end() - 4 * count;
      for (int k = 0; k < count; ++k) {
        if (isFloat) {
          model::store<Lum32f>(v, k, static_cast<float>(k));
          model::store<Lum32f>(l, k, static_cast<float>(k));
        } else {
          model::store<Lum32s>(v, k, k);
          model::store<Lum32s>(l, k, k);
        }
      }
      Byte image[64] = {};
      NamedCall call(row);
      call.size("roi", {7, 2}).pointer("values", v).pointer("levels", l).number("count", count);
      isInPlace ? call.image("srcDst", image, 32) : call.image("src", image, 32).image("dst", image, 32);
      LumStatus status = lumStatusBadSize;
      ASSERT_FALSE(faultOf([&] { status = call.run(); })) << row.name << " with " << count;
      ASSERT_EQ(status, lumStatusOk) << row.name;
    }
  }
}

TEST(Lut, LastValueIsNeverUsed) {
  const Lum32s values[] = {10, 20, 30}, levels[] = {0, 128, 256};
  Lum8u src[256], dst[256];
  for (int i = 0; i < 256; ++i) src[i] = static_cast<Lum8u>(i);
  ASSERT_EQ(lumiLUT_8u_C1R(src, 256, dst, 256, {256, 1}, values, levels, 3), lumStatusOk);
  for (int i = 0; i < 256; ++i) ASSERT_EQ(dst[i], i < 128 ? 10 : 20) << i;
}

TEST(Lut, SamplesOutsideTheLevelsStayAndValuesAreLimited) {
  const Lum32s levels[] = {50, 75, 100}, values[] = {300, -5, 7};
  Lum8u src[256], dst[256];
  for (int i = 0; i < 256; ++i) src[i] = static_cast<Lum8u>(i);
  ASSERT_EQ(lumiLUT_8u_C1R(src, 256, dst, 256, {256, 1}, values, levels, 3), lumStatusOk);
  for (int i = 0; i < 256; ++i) ASSERT_EQ(dst[i], i < 50 || i >= 100 ? i : i < 75 ? 255 : 0) << i;
}

TEST(Lut, LineOfEqualEndsIsTheIdentity) {
  const Lum32s both[] = {0, 256};
  Lum8u image[256];
  for (int i = 0; i < 256; ++i) image[i] = static_cast<Lum8u>(i);
  ASSERT_EQ(lumiLUT_Linear_8u_C1IR(image, 256, {256, 1}, both, both, 2), lumStatusOk);
  for (int i = 0; i < 256; ++i) ASSERT_EQ(image[i], i);
}

TEST(Lut, NegativeResultsAreCutOffTowardsZero) {
  const Lum32s levels[] = {0, 4}, values[] = {-10, -9};
  Lum16s image[] = {0, 1, 2, 3, 4};
  ASSERT_EQ(lumiLUT_Linear_16s_C1IR(image, 10, {5, 1}, values, levels, 2), lumStatusOk);
  const Lum16s expected[] = {-9, -9, -9, -8, 4};
  for (int i = 0; i < 5; ++i) EXPECT_EQ(image[i], expected[i]) << i;
}

// The lower level is limited to the type's largest value, which so gets the value of a piece behind it.
TEST(Lut, PieceBehindTheTableHasTheLastEntry) {
  const Lum32s levels[] = {10, 20, 300, 400}, values[] = {1, 1, 77, 88};
  Lum8u image[] = {254, 255};
  ASSERT_EQ(lumiLUT_Linear_8u_C1IR(image, 2, {2, 1}, values, levels, 4), lumStatusOk);
  EXPECT_EQ(image[1], 77);
}

TEST(Lut, FloatRangesAreHalfOpen) {
  const Lum32f levels[] = {0, 1}, values[] = {5, 6};
  Lum32f image[] = {-0.0F, 0.5F, 1.0F, std::numeric_limits<float>::quiet_NaN()};
  ASSERT_EQ(lumiLUT_32f_C1IR(image, 16, {4, 1}, values, levels, 2), lumStatusOk);
  EXPECT_EQ(image[0], 5);
  EXPECT_EQ(image[1], 5);
  EXPECT_EQ(image[2], 1);
  EXPECT_TRUE(std::isnan(image[3]));
}

// Differences of the farthest integers do not wrap.
TEST(Lut, DifferencesOfTheFarthestIntegers) {
  const Lum32s levels[] = {INT32_MIN, INT32_MAX}, values[] = {INT32_MIN, INT32_MAX};
  Lum16s image[] = {-32768, -1, 0, 1, 32767};
  ASSERT_EQ(lumiLUT_Linear_16s_C1IR(image, 10, {5, 1}, values, levels, 2), lumStatusOk);
  const Lum16s expected[] = {-32767, 0, 0, 1, 32767};
  for (int i = 0; i < 5; ++i) EXPECT_EQ(image[i], expected[i]) << i;
}

// 16-bit members with one and three channels have a table from 4097 pixels on, and only these take memory. In
// disorder the two ways differ: halving compares 100 with the second level and goes on before it.
template <typename T, typename Lut>
void expectWays(Lut lut) {
  const CoreGuard guard;
  const Lum32s levels[] = {0, 150, 50, 200}, values[] = {1, 2, 3, 4};
  for (const LumiSize roi : {LumiSize{4096, 1}, {4097, 1}, {64, 64}, {17, 241}}) {
    std::vector<T> image(static_cast<size_t>(roi.width * roi.height), T{100});
    ASSERT_EQ(lut(image.data(), roi.width * 2, roi, values, levels, 4), lumStatusOk);
    const bool isDirect = roi.width * roi.height <= 4096;
    EXPECT_EQ(image.front(), isDirect ? 1 : 3) << roi.width;
    EXPECT_EQ(image.back(), image.front());
    EXPECT_EQ(testcore::counts().allocations, isDirect ? 0 : 1);
    testcore::reset();
  }
}

TEST(Lut, FewWordsNeedNoTable) {
  expectWays<Lum16u>(lumiLUT_16u_C1IR);
  expectWays<Lum16s>(lumiLUT_16s_C1IR);
}

// Every entry of the large tables, of each form; images above the limit of the direct way.
template <typename T>
void expectEveryEntry() {
  Random random(settings().seed);
  constexpr int count = 1 << 16, low = std::numeric_limits<T>::min();
  for (const char* operation : {"LUT", "LUT_Linear", "LUT_Cubic"}) {
    const ExportRow& row = rowNamed("lumi" + std::string(operation) + (low < 0 ? "_16s_C1IR" : "_16u_C1IR"));
    const model::Form form = operation == std::string("LUT")          ? model::Form::Constant
                             : operation == std::string("LUT_Linear") ? model::Form::Linear
                                                                      : model::Form::Cubic;
    for (int turn = 0; turn < settings().scaled(3); ++turn) {
      const int levelCount = random.pick(lut::kCounts);
      alignas(4) Byte values[4 * lut::kMostLevels], levels[4 * lut::kMostLevels];
      lut::fillValues<T>(random, values, lut::kMostLevels);
      lut::fillLevels<T>(random, levels, levelCount);
      std::vector<T> image(count);
      for (int i = 0; i < count; ++i) image[static_cast<size_t>(i)] = static_cast<T>(low + i);
      NamedCall call(row);
      call.image("srcDst", image.data(), 2 * 256).size("roi", {256, 256});
      call.pointer("values", values).pointer("levels", levels).number("count", levelCount);
      ASSERT_EQ(call.run(), lumStatusOk);
      const model::Levels<Lum32s> list{values, levels, levelCount};
      const model::Form used = form == model::Form::Cubic && levelCount < 4 ? model::Form::Linear : form;
      for (int i = 0; i < count; ++i)
        ASSERT_EQ(image[static_cast<size_t>(i)], model::entry<T>(used, list, low + i))
            << operation << " " << low + i;
    }
  }
}

TEST(Lut, EveryEntryOfTheLargeTables) {
  const CoreGuard guard;
  expectEveryEntry<Lum16u>();
  expectEveryEntry<Lum16s>();
}

// Every byte, alone and beside the others, through tables of any bytes: by shuffles.
TEST(Lut, EveryByte) {
  Random random(settings().seed);
  for (int turn = 0; turn < 100; ++turn) {
    Byte values[4 * 40], levels[4 * 40];
    lut::fillValues<Lum8u>(random, values, 40);
    lut::fillLevels<Lum8u>(random, levels, 40);
    Lum8u src[256], dst[256];
    for (int i = 0; i < 256; ++i) src[i] = static_cast<Lum8u>(i * 37);
    NamedCall call("lumiLUT_8u_C1R");
    call.image("src", src, 256).image("dst", dst, 256).size("roi", {256, 1});
    ASSERT_EQ(call.pointer("values", values).pointer("levels", levels).number("count", 40).run(),
              lumStatusOk);
    const model::Levels<Lum32s> list{values, levels, 40};
    for (int i = 0; i < 256; ++i)
      ASSERT_EQ(dst[i], model::entry<Lum8u>(model::Form::Constant, list, src[i])) << int{src[i]};
  }
}

// One function for all channels takes another way; it stores the same.
TEST(Lut, EqualFunctionsOfSeveralChannels) {
  const Lum32s levels[] = {0, 64, 128, 255}, values[] = {9, 200, 30, 0}, other[] = {9, 200, 31, 0};
  const Lum32s* const allLevels[] = {levels, levels, levels, levels};
  const int counts[] = {4, 4, 4, 4};
  Lum8u src[4 * 300], dst[4 * 300];
  for (int i = 0; i < 1200; ++i) src[i] = static_cast<Lum8u>(i * 7);
  for (const Lum32s* last : {values, other}) {
    const Lum32s* const allValues[] = {values, values, last, last};
    const auto expected = [&](int c, int x) {
      const Lum32s v = c < 2 ? values[2] : last[2];
      return x < 64 ? 9 : x < 128 ? 200 : x < 255 ? v : 255;
    };
    ASSERT_EQ(lumiLUT_8u_C3R(src, 900, dst, 900, {300, 1}, allValues, allLevels, counts), lumStatusOk);
    for (int i = 0; i < 900; ++i) ASSERT_EQ(dst[i], expected(i % 3, src[i])) << i;
    ASSERT_EQ(lumiLUT_8u_C4R(src, 1200, dst, 1200, {300, 1}, allValues, allLevels, counts), lumStatusOk);
    for (int i = 0; i < 1200; ++i) ASSERT_EQ(dst[i], expected(i % 4, src[i])) << i;
    std::fill(std::begin(dst), std::end(dst), Lum8u{77});
    ASSERT_EQ(lumiLUT_8u_AC4R(src, 1200, dst, 1200, {300, 1}, allValues, allLevels, counts), lumStatusOk);
    for (int i = 0; i < 1200; ++i) ASSERT_EQ(dst[i], i % 4 == 3 ? 77 : expected(i % 4, src[i])) << i;
  }
}

// A channel with less than four levels makes all of them linear.
TEST(Lut, OneShortListMakesAllChannelsLinear) {
  const Lum32s levels[] = {0, 50, 150, 256}, values[] = {0, 200, 20, 250};
  const Lum32s *const allValues[] = {values, values, values}, *const allLevels[] = {levels, levels, levels};
  const int counts[] = {4, 4, 3};
  Lum8u cubic[768], line[768];
  for (int i = 0; i < 768; ++i) cubic[i] = line[i] = static_cast<Lum8u>(i / 3);
  ASSERT_EQ(lumiLUT_Cubic_8u_C3IR(cubic, 768, {256, 1}, allValues, allLevels, counts), lumStatusOk);
  ASSERT_EQ(lumiLUT_Linear_8u_C3IR(line, 768, {256, 1}, allValues, allLevels, counts), lumStatusOk);
  EXPECT_EQ(std::memcmp(cubic, line, sizeof line), 0);
}

}  // namespace
}  // namespace test
