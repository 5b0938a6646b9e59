// SPDX-License-Identifier: MIT
// Addition and subtraction, against the model; all pairs of bytes; overlap; sources that are not read.
#include "lumi/add_sub.h"

#include "arithmetic/combine_support.hpp"
#include "model/arithmetic/add_sub.hpp"

namespace test {
namespace {

bool addAll() {
  for (const char* operation : {"Add", "AddC"})
    addModelTests(membersOfOneType(operation, [](Member& m, auto sample) {
      describeCombination<decltype(sample)>(m, model::add<decltype(sample)>);
    }));
  for (const char* operation : {"Sub", "SubC"})
    addModelTests(membersOfOneType(operation, [](Member& m, auto sample) {
      describeCombination<decltype(sample)>(m, model::subtract<decltype(sample)>);
    }));
  return true;
}
const bool added = addAll();

TEST(AddSub, AllPairsOfBytesAtAllScaleFactors) {
  PairsOfBytes pairs;
  for (int s : scaleFactors()) {
    SCOPED_TRACE(s);
    pairs.expect(lumiAdd_8u_C1RSfs, model::add<Lum8u>, s);
    pairs.expect(lumiSub_8u_C1RSfs, model::subtract<Lum8u>, s);
  }
}

TEST(AddSub, AllConstantsAndBytesAtAllScaleFactors) {
  for (int s : scaleFactors()) {
    SCOPED_TRACE(s);
    expectBytesWithConstants(lumiAddC_8u_C1RSfs, model::add<Lum8u>, s);
    expectBytesWithConstants(lumiSubC_8u_C1RSfs, model::subtract<Lum8u>, s);
  }
}

TEST(AddSub, EdgesOfWiderTypesAtAllScaleFactors) {
  expectEdges<Lum16u>(lumiAdd_16u_C1RSfs, model::add<Lum16u>);
  expectEdges<Lum16u>(lumiSub_16u_C1RSfs, model::subtract<Lum16u>);
  expectEdges<Lum16s>(lumiAdd_16s_C1RSfs, model::add<Lum16s>);
  expectEdges<Lum16s>(lumiSub_16s_C1RSfs, model::subtract<Lum16s>);
  expectEdges<Lum32sc>(lumiAdd_32sc_C1RSfs, model::add<Lum32s>);
  expectEdges<Lum32sc>(lumiSub_32sc_C1RSfs, model::subtract<Lum32s>);
}

// Ties to even, saturation and limits, by hand.
TEST(AddSub, KnownResults) {
  const auto add = [](Lum8u a, Lum8u b, int s) {
    Lum8u d = 77;
    EXPECT_EQ(lumiAdd_8u_C1RSfs(&a, 1, &b, 1, &d, 1, {1, 1}, s), lumStatusOk);
    return int{d};
  };
  EXPECT_EQ(add(255, 255, 0), 255);
  EXPECT_EQ(add(255, 255, 1), 255);
  EXPECT_EQ(add(255, 255, 9), 1);
  EXPECT_EQ(add(255, 255, 10), 0);
  EXPECT_EQ(add(1, 2, 1), 2);
  EXPECT_EQ(add(2, 3, 1), 2);
  EXPECT_EQ(add(3, 4, 1), 4);
  EXPECT_EQ(add(0, 1, -8), 255);
  EXPECT_EQ(add(0, 0, -8), 0);
  const auto sub = [](Lum16s a, Lum16s b, int s) {
    Lum16s d = 77;
    EXPECT_EQ(lumiSub_16s_C1RSfs(&a, 2, &b, 2, &d, 2, {1, 1}, s), lumStatusOk);
    return int{d};
  };
  EXPECT_EQ(sub(-32768, 32767, 0), 32767);
  EXPECT_EQ(sub(-32768, 32767, 1), 32767);
  EXPECT_EQ(sub(3, 10, 1), 4);
  EXPECT_EQ(sub(32767, -32768, 16), -1);
  EXPECT_EQ(sub(32767, -32768, 17), 0);
}

TEST(AddSub, OverlappingRowsAreDoneInOrder) {
  for (int s : {0, 1, 2, -1}) {
    expectInOrder<Lum8u, Lum8u>(lumiAdd_8u_C1RSfs, model::add<Lum8u>, s);
    expectInOrder<Lum8u, Lum8u>(lumiSub_8u_C1RSfs, model::subtract<Lum8u>, s);
    expectInOrder<Lum16u, Lum16u>(lumiAdd_16u_C1RSfs, model::add<Lum16u>, s);
    expectInOrder<Lum16s, Lum16s>(lumiSub_16s_C1RSfs, model::subtract<Lum16s>, s);
  }
}

TEST(AddSub, ResultsThatAreAllZeroReadNoSource) {
  expectAllZeroFrom({"lumiAdd", "lumiSub"}, 108, [](const Member& m) {
    return m.types[0] == "8u"                            ? 9
           : m.types[0] == "16u"                         ? 17
           : m.types[0] == "16s" || m.types[0] == "16sc" ? 16
                                                         : 32;
  });
}

// A factor that shifts every bit out of a constant that is not zero makes every sum the maximum.
template <typename T, typename Function>
void expectMaximum(Function* function, int firstScale) {
  constexpr T largest = std::numeric_limits<T>::max();
  for (int s : {firstScale, firstScale - 1, -1000, INT32_MIN})
    for (T value : {T{1}, largest}) expectFilledUnread(function, value, s, largest);
}

TEST(AddSub, SumsThatAreAllMaximumReadNoSource) {
  expectMaximum<Lum8u>(lumiAddC_8u_C1RSfs, -8);
  expectMaximum<Lum16u>(lumiAddC_16u_C1RSfs, -16);
}

// Nothing to add: nothing is touched; wrong arguments are still wrong.
TEST(AddSub, ZeroConstantInPlaceTouchesNothing) {
  Arena closed(4096);
  closed.setAccessible(closed.begin(), closed.end(), false);
  auto* const bytes = closed.begin();
  EXPECT_EQ(lumiAddC_8u_C1IRSfs(0, bytes, 64, {64, 2}, 0), lumStatusOk);
  EXPECT_EQ(lumiSubC_16s_C1IRSfs(0, reinterpret_cast<Lum16s*>(bytes), 64, {32, 2}, 0), lumStatusOk);
  EXPECT_EQ(lumiAddC_8u_C1IRSfs(0, nullptr, 64, {64, 2}, 0), lumStatusNullPointer);
  EXPECT_EQ(lumiAddC_8u_C1IRSfs(0, bytes, 64, {0, 2}, 0), lumStatusBadSize);
}

// A row of samples is checked after its width is multiplied, and the product wraps.
TEST(AddSub, WidthsThatWrapAreBadSizes) {
  Lum8u sample = 0;
  EXPECT_EQ(lumiAdd_8u_C4RSfs(&sample, 1, &sample, 1, &sample, 1, {1 << 30, 1}, 0), lumStatusBadSize);
  EXPECT_EQ(lumiAdd_8u_C3RSfs(nullptr, 1, &sample, 1, &sample, 1, {0, 1}, 0), lumStatusBadSize);
  EXPECT_EQ(lumiAdd_8u_C3RSfs(nullptr, 1, &sample, 1, &sample, 1, {1, 0}, 0), lumStatusNullPointer);
  EXPECT_EQ(lumiAdd_8u_AC4RSfs(nullptr, 1, &sample, 1, &sample, 1, {0, 1}, 0), lumStatusNullPointer);
}

}  // namespace
}  // namespace test
