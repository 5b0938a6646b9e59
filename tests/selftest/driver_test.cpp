// SPDX-License-Identifier: MIT
// The driver of members on operations of this test's own: it passes what is right and finds each mistake.
#include <gtest/gtest.h>

#include <cmath>

#include "common/member_checks.hpp"
#include "lumcore.h"
#include "selftest/invented.hpp"
#include "support/core_guard.hpp"
#include "support/named_call.hpp"

namespace test {
namespace {

enum class Mistake {
  None,
  OtherChannel,
  LevelTooFew,
  ReadsBehindLevels,
  WritesBehindResults,
  WritesSource,
  NoWarning,
  WritesWhenRefused,
  IgnoresPoint,
  IgnoresRect,
  RoundsFactor,
  LastBit,
  BeyondTolerance,
  KeepsBlock,
  WritesBeforeAllocating,
  OtherStatus
};
Mistake mistake = Mistake::None;

constexpr LumStatus kWarning = lumStatusDivideByZeroWarning, kRefused = lumStatusBadArgument;

// Sums of samples at or above how many levels, times a factor, within a part; from a place on.
struct Sums {
  model::Image src;
  LumiSize roi;
  LumiPoint at;
  LumiRect part;
  double factor;

  template <typename Level>
  LumStatus into(int count, Level level, double* sum) const {
    if (factor < 0) return kRefused;
    bool isZero = false;
    for (int c = 0; c < 3; ++c) sum[c] = 0;
    for (int y = at.y; y < roi.height; ++y)
      for (int x = at.x; x < roi.width; ++x)
        for (int c = 0; c < 3; ++c) {
          const int sample = model::load<Lum16u>(src.row(y), 3 * x + c);
          const bool inside = x < part.x + part.width && y < part.y + part.height;
          isZero |= sample == 0;
          for (int i = 0; i < count; ++i) sum[c] += inside && sample >= level(i) ? factor : 0;
        }
    return isZero ? kWarning : lumStatusOk;
  }
};

extern "C" [[gnu::force_align_arg_pointer]] LumStatus inventedSums(const Lum16u* src, int srcStep,
                                                                   LumiSize roi, LumiPoint at,
                                                                   const Lum32s* levels, int count,
                                                                   Lum64f* sum, LumiRect part, Lum64f factor,
                                                                   Lum64s unused) {
  auto* const bytes = reinterpret_cast<const Byte*>(levels);
  if (mistake == Mistake::WritesSource) reinterpret_cast<Byte*>(const_cast<Lum16u*>(src))[0] ^= 1;
  if (mistake == Mistake::ReadsBehindLevels) {
    volatile Byte behind = bytes[4 * count];
    static_cast<void>(behind);
  }
  if (mistake == Mistake::IgnoresPoint) at = {0, 0};
  if (mistake == Mistake::IgnoresRect) part = {0, 0, roi.width, roi.height};
  if (mistake == Mistake::RoundsFactor) factor = static_cast<float>(factor);
  if (unused != 5000000000) factor = 0;
  const Sums sums{{reinterpret_cast<Byte*>(const_cast<Lum16u*>(src)), srcStep}, roi, at, part, factor};
  double result[3];
  const auto level = [&](int i) { return model::load<Lum32s>(bytes, i); };
  LumStatus status = sums.into(count - (mistake == Mistake::LevelTooFew), level, result);
  if (status < 0 && mistake != Mistake::WritesWhenRefused) return status;
  if (mistake == Mistake::OtherChannel) std::swap(result[0], result[1]);
  if (mistake == Mistake::LastBit) result[2] = std::nextafter(result[2], HUGE_VAL);
  if (mistake == Mistake::BeyondTolerance) result[2] += 1e-3;
  std::memcpy(static_cast<void*>(sum), result, sizeof result);
  if (mistake == Mistake::WritesBehindResults) reinterpret_cast<Byte*>(sum)[sizeof result] ^= 1;
  return mistake == Mistake::NoWarning ? lumStatusOk : status;
}

const ExportRow& sumsRow() {
  static const ExportRow row = invented(
      inventedSums, {{"16u"}}, {{"C3"}},
      {pointerOf(Kind::Image, "src"), stepOf("srcStep"), roi(), passed(Kind::Point, Passing::Pair, "at"),
       pointerOf(Kind::Array, "levels", 0, "count"), passed(Kind::Number, Passing::Int32, "count"),
       pointerOf(Kind::Results, "sum", 3), passed(Kind::Rect, Passing::Rect, "part"),
       passed(Kind::Number, Passing::Double, "factor"), passed(Kind::Number, Passing::Int64, "unused")});
  return row;
}

Member sums() {
  Member m = memberOf(sumsRow());
  m.results("sum", "64f");
  m.array("levels", "32s", {1, 2, 7, 40}, [](Random& random, Byte* first, int count) {
    for (int i = 0; i < count; ++i) model::store<Lum32s>(first, i, random.below(65536));
  });
  m.choose("at", {{{0, 0}}, {{1, 2}}});
  m.choose("part", {{{0, 0, 9, 9}}, {{1, 1, 3, 2}}});
  m.choose("factor", {{{1}}, {{0.1}}, {{-1}}});
  m.choose("unused", {{{5e9}}});
  m.contents = kAnyContents;
  m.model = [](const Call& c) {
    double result[3];
    const Call::Block &levels = c.block("levels"), &sum = c.block("sum");
    const Sums sums{c.srcImage(), c.roi, c.point("at"), c.rect("part"), c.number("factor")};
    const auto level = [&](int i) { return model::load<Lum32s>(levels.data, i); };
    const LumStatus status = sums.into(levels.count, level, result);
    for (int i = 0; status >= 0 && i < sum.count; ++i) model::store<Lum64f>(sum.data, i, result[i]);
    return status;
  };
  return m;
}

// The first failure, or nothing.
std::string failureOf(const Member& m, Mistake made) {
  m.requireAll();
  Stage stage(kLargestCaseImage);
  mistake = made;
  std::string failure;
  for (int i = 0; i < 4 * caseRound() && failure.empty(); ++i) {
    const Case c = makeCase(m, settings().seed, i);
    failure = stage.run(m, c).value_or("");
  }
  if (failure.empty()) failure = stage.compareEverything().value_or("");
  mistake = Mistake::None;
  return failure;
}

// The third sum need not be right to the last bit.
Member nearSums() {
  Member m = sums();
  m.model = [exact = m.model](const Call& c) {
    const LumStatus status = exact(c);
    const Call::Block& sum = c.block("sum");
    if (status >= 0) sum.storeWithin<Lum64f>(2, model::load<Lum64f>(sum.data, 2), 1e-9);
    return status;
  };
  return m;
}

TEST(Driver, ResultsWithinATolerance) {
  EXPECT_EQ(failureOf(nearSums(), Mistake::None), "");
  EXPECT_EQ(failureOf(nearSums(), Mistake::LastBit), "");
  EXPECT_NE(failureOf(sums(), Mistake::LastBit), "");
  for (const Mistake each : {Mistake::BeyondTolerance, Mistake::OtherChannel, Mistake::RoundsFactor})
    EXPECT_NE(failureOf(nearSums(), each), "") << static_cast<int>(each);
}

TEST(Driver, ResultsArraysAndChosenValues) {
  EXPECT_EQ(failureOf(sums(), Mistake::None), "");
  for (const Mistake each :
       {Mistake::OtherChannel, Mistake::LevelTooFew, Mistake::ReadsBehindLevels, Mistake::WritesBehindResults,
        Mistake::WritesSource, Mistake::NoWarning, Mistake::WritesWhenRefused, Mistake::IgnoresPoint,
        Mistake::IgnoresRect, Mistake::RoundsFactor})
    EXPECT_NE(failureOf(sums(), each), "") << static_cast<int>(each);
}

TEST(DriverDeathTest, NothingIsLeftToADefault) {
  Member m = sums();
  m.choices.pop_back();
  EXPECT_DEATH(m.requireAll(), "unused");
  m.model = {};
  EXPECT_DEATH(m.requireAll(), "model");
  EXPECT_DEATH(withType("64f", [](auto) {}), "64f");
  EXPECT_DEATH(sampleBytes("12u"), "12u");
  EXPECT_DEATH(operandOf("8u", "C5"), "C5");
  EXPECT_DEATH(NamedCall(sumsRow()).number("levels", 1), "levels|pointer");
  EXPECT_DEATH(NamedCall(sumsRow()).size("part", {1, 1}), "part");
}

TEST(Driver, EveryTypeAndLayout) {
  const auto layout = [](const char* type, const char* name) {
    const Operand o = operandOf(type, name);
    return std::vector<int>{o.planes, o.pixelBytes, o.lastPixelBytes};
  };
  EXPECT_EQ(layout("64f", "C3"), (std::vector<int>{1, 24, 24}));
  EXPECT_EQ(layout("64s", "C1"), (std::vector<int>{1, 8, 8}));
  EXPECT_EQ(layout("16uc", "C1"), (std::vector<int>{1, 4, 4}));
  EXPECT_EQ(layout("64fc", "C1"), (std::vector<int>{1, 16, 16}));
  EXPECT_EQ(layout("24u", "C1"), (std::vector<int>{1, 3, 3}));
  EXPECT_EQ(layout("32u", "AC4"), (std::vector<int>{1, 16, 16}));
  EXPECT_EQ(layout("8u", "AC1"), (std::vector<int>{1, 1, 1}));
  EXPECT_EQ(layout("16s", "C4C"), (std::vector<int>{1, 8, 2}));
  EXPECT_EQ(layout("8u", "P2"), (std::vector<int>{2, 1, 1}));
  EXPECT_EQ(layout("16u", "P4"), (std::vector<int>{4, 2, 2}));
  EXPECT_EQ(layout("8u", "AP4"), (std::vector<int>{4, 1, 1}));
}

// Planted mistakes leak: blocks that are kept, and what a call held that ended in a memory fault. Only looked
// at by programs with address checks.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() {
  return "leak:inventedScratch\nleak:inventedInitAlloc\nleak:test::faultOf\n";
}

// A copy that goes through two blocks of scratch.
extern "C" [[gnu::force_align_arg_pointer]] LumStatus inventedScratch(const Lum8u* src, int srcStep,
                                                                      Lum8u* dst, int dstStep, LumiSize roi) {
  if (mistake == Mistake::WritesBeforeAllocating) dst[0] = static_cast<Lum8u>(src[0] + 1);
  void* const first = lumMalloc(roi.width);
  if (!first) return lumStatusNoMemory;
  void* const second = lumMalloc(roi.width);
  if (!second) {
    if (mistake != Mistake::KeepsBlock) lumFree(first);
    return mistake == Mistake::OtherStatus ? lumStatusBadSize : lumStatusNoMemory;
  }
  for (int y = 0; y < roi.height; ++y) {
    std::memcpy(first, src + ptrdiff_t{y} * srcStep, static_cast<size_t>(roi.width));
    std::memcpy(dst + ptrdiff_t{y} * dstStep, first, static_cast<size_t>(roi.width));
  }
  lumFree(second);
  lumFree(first);
  return lumStatusOk;
}

TEST(Driver, AllocationsThatFail) {
  const CoreGuard guard;
  const ExportRow row = invented(inventedScratch, {{"8u"}}, {{"C1"}},
                                 {pointerOf(Kind::Image, "src"), stepOf("srcStep"),
                                  pointerOf(Kind::Image, "dst"), stepOf("dstStep"), roi()});
  Member m = memberOf(row);
  m.allocates = true;
  m.model = [](const Call& c) {
    for (int y = 0; y < c.roi.height; ++y)
      for (int x = 0; x < c.roi.width; ++x) c.dstImage().row(y)[x] = c.srcImage().row(y)[x];
  };
  const auto failure = [&](Mistake made) {
    Stage stage(kLargestCaseImage);
    mistake = made;
    const auto result = failureWithoutMemory(m, stage, makeCase(m, settings().seed, 20));
    mistake = Mistake::None;
    return result.value_or("");
  };
  EXPECT_EQ(failure(Mistake::None), "");
  EXPECT_NE(failure(Mistake::KeepsBlock), "");
  EXPECT_NE(failure(Mistake::WritesBeforeAllocating), "");
  EXPECT_NE(failure(Mistake::OtherStatus), "");
}

}  // namespace
}  // namespace test
