// SPDX-License-Identifier: MIT
// Comparisons: against the model; every set of passing channels; NaNs, zeros and operators by hand.
#include "lumi/compare.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>
#include <vector>

#include "model/data/compare.hpp"
#include "support/member.hpp"

namespace test {
namespace {

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();

// holdsOf(sample, call) gives what has to hold of two samples.
template <typename T, typename HoldsOf>
void describe(Member& m, HoldsOf holdsOf) {
  m.contents = kAnyContents;
  m.mayStream = false;
  if (m.types[0] == "8u" && m.layouts[0] == "C1") m.aliasing = Aliasing::SameImage;
  m.model = [=, channels = m.channels, hasConstant = m.values > 0](const Call& c) {
    const auto holds = holdsOf(T(), c);
    if (hasConstant)
      model::compareConstant<T>(c.srcImage(), c.values, c.dstImage(), c.roi, channels, holds);
    else
      model::compareImages<T>(c.srcImage(), c.src2Image(), c.dstImage(), c.roi, channels, holds);
  };
}

bool addAll() {
  for (const char* operation : {"Compare", "CompareC"})
    addModelTests(membersOfOneType(
        operation,
        [](Member& m, auto sample) {
          using T = decltype(sample);
          m.choose("cmpOp", {{{0}}, {{1}}, {{2}}, {{3}}, {{4}}});
          describe<T>(m, [](T, const Call& c) {
            return [op = static_cast<int>(c.number("cmpOp"))](const T& a, const T& b) {
              return model::compares(a, b, op);
            };
          });
        },
        Types<Lum8u, Lum16u, Lum16s, Lum32f>()));
  for (const char* operation : {"CompareEqualEps", "CompareEqualEpsC"})
    addModelTests(membersOfOneType(
        operation,
        [](Member& m, Lum32f) {
          m.choose("tolerance",
                   {{{0}}, {{-0.0}}, {{0.25}}, {{3.5}}, {{1000}}, {{1e30}}, {{INFINITY}}, {{NAN}}});
          describe<Lum32f>(m, [](Lum32f, const Call& c) {
            return [most = static_cast<float>(c.number("tolerance"))](float a, float b) {
              const float difference = a - b;
              return std::fabs(difference) <= most;
            };
          });
        },
        Types<Lum32f>()));
  return true;
}
const bool added = addAll();

// Pixels of which those channels pass whose bits are set in their index: masks are 255 where all that count
// do.
template <int channels, int counted, typename T>
void expectMasks(LumStatus (*compare)(const T*, int, const T*, int, Lum8u*, int, LumiSize, LumCmpOp),
                 LumStatus (*compareC)(const T*, int, const T*, Lum8u*, int, LumiSize, LumCmpOp)) {
  constexpr int sets = 1 << channels, all = (1 << counted) - 1;
  constexpr T passing[] = {4, 5, 5, 5, 6}, failing[] = {5, 6, 6, 4, 5};  // beside 5, by each operator
  for (int op = 0; op < 5; ++op)
    for (const int width : {1, 3, 15, 16, 17, 33, 64, 77}) {
      std::vector<T> a, b(static_cast<size_t>(channels * width), T{5});
      std::vector<Lum8u> wanted;
      for (int x = 0; x < width; ++x) {
        const int set = (x * 5 + width) % sets;
        for (int c = 0; c < channels; ++c) a.push_back(set >> c & 1 ? passing[op] : failing[op]);
        wanted.push_back((set & all) == all ? Lum8u{255} : Lum8u{0});
      }
      const int step = static_cast<int>(sizeof(T)) * channels * width;
      std::vector<Lum8u> mask(static_cast<size_t>(width), 9), maskC = mask;
      ASSERT_EQ(compare(a.data(), step, b.data(), step, mask.data(), width, {width, 1}, op), lumStatusOk);
      EXPECT_EQ(mask, wanted) << "operator " << op << ", width " << width;
      ASSERT_EQ(compareC(a.data(), step, b.data(), maskC.data(), width, {width, 1}, op), lumStatusOk);
      EXPECT_EQ(maskC, wanted) << "constant, operator " << op << ", width " << width;
    }
}

TEST(Compare, EveryChannelHasToPass) {
  expectMasks<3, 3>(lumiCompare_8u_C3R, lumiCompareC_8u_C3R);
  expectMasks<4, 4>(lumiCompare_8u_C4R, lumiCompareC_8u_C4R);
  expectMasks<4, 3>(lumiCompare_8u_AC4R, lumiCompareC_8u_AC4R);
  expectMasks<3, 3>(lumiCompare_16u_C3R, lumiCompareC_16u_C3R);
  expectMasks<4, 4>(lumiCompare_16u_C4R, lumiCompareC_16u_C4R);
  expectMasks<4, 3>(lumiCompare_16u_AC4R, lumiCompareC_16u_AC4R);
  expectMasks<3, 3>(lumiCompare_16s_C3R, lumiCompareC_16s_C3R);
  expectMasks<4, 4>(lumiCompare_16s_C4R, lumiCompareC_16s_C4R);
  expectMasks<4, 3>(lumiCompare_16s_AC4R, lumiCompareC_16s_AC4R);
  expectMasks<3, 3>(lumiCompare_32f_C3R, lumiCompareC_32f_C3R);
  expectMasks<4, 4>(lumiCompare_32f_C4R, lumiCompareC_32f_C4R);
  expectMasks<4, 3>(lumiCompare_32f_AC4R, lumiCompareC_32f_AC4R);
}

TEST(Compare, AllPairsOfBytes) {
  std::vector<Lum8u> a(65536), b(65536), mask(65536);
  for (size_t i = 0; i < a.size(); ++i) a[i] = static_cast<Lum8u>(i), b[i] = static_cast<Lum8u>(i >> 8);
  for (int op = 0; op < 5; ++op) {
    ASSERT_EQ(lumiCompare_8u_C1R(a.data(), 256, b.data(), 256, mask.data(), 256, {256, 256}, op),
              lumStatusOk);
    for (size_t i = 0; i < a.size(); ++i)
      ASSERT_EQ(mask[i], model::compares(int{a[i]}, int{b[i]}, op) ? 255 : 0) << i << ", operator " << op;
  }
}

TEST(Compare, OtherOperatorsDoNothing) {
  const Lum8u a[3] = {1, 2, 3};
  Lum8u mask[3] = {7, 7, 7};
  for (const LumCmpOp op : {5, 7, -1, INT_MAX, INT_MIN}) {
    EXPECT_EQ(lumiCompare_8u_C1R(a, 3, a, 3, mask, 3, {3, 1}, op), lumStatusOk);
    EXPECT_EQ(lumiCompareC_8u_C1R(a, 3, 2, mask, 3, {3, 1}, op), lumStatusOk);
    EXPECT_EQ(lumiCompareC_8u_C3R(a, 3, a, mask, 3, {1, 1}, op), lumStatusOk);
    EXPECT_EQ(std::vector<int>(mask, mask + 3), (std::vector<int>{7, 7, 7}));
    EXPECT_EQ(lumiCompare_8u_C1R(a, 0, a, 3, mask, 3, {3, 1}, op), lumStatusBadStep);
    EXPECT_EQ(lumiCompareC_8u_C3R(a, 3, nullptr, mask, 3, {1, 1}, op), lumStatusNullPointer);
  }
}

TEST(Compare, NothingHoldsOfNaN) {
  const float a[4] = {kNaN, kNaN, 1, 2}, b[4] = {kNaN, 1, kNaN, 2};
  for (int op = 0; op < 5; ++op) {
    Lum8u mask[4] = {7, 7, 7, 7};
    ASSERT_EQ(lumiCompare_32f_C1R(a, 16, b, 16, mask, 4, {4, 1}, op), lumStatusOk);
    const int last = op >= 1 && op <= 3 ? 255 : 0;
    EXPECT_EQ(std::vector<int>(mask, mask + 4), (std::vector<int>{0, 0, 0, last})) << op;
    ASSERT_EQ(lumiCompareC_32f_C1R(a, 16, kNaN, mask, 4, {4, 1}, op), lumStatusOk);
    EXPECT_EQ(std::vector<int>(mask, mask + 4), (std::vector<int>{0, 0, 0, 0})) << op;
  }
}

TEST(Compare, TolerancesOfZeroAndNone) {
  const float a[5] = {0.0F, -0.0F, 1.0F, INFINITY, 2.0F}, b[5] = {-0.0F, 0.0F, 1.5F, INFINITY, 2.0F};
  const auto masks = [&](float tolerance) {
    Lum8u mask[5] = {7, 7, 7, 7, 7};
    EXPECT_EQ(lumiCompareEqualEps_32f_C1R(a, 20, b, 20, mask, 5, {5, 1}, tolerance), lumStatusOk);
    return std::vector<int>(mask, mask + 5);
  };
  EXPECT_EQ(masks(0.0F), (std::vector<int>{255, 255, 0, 0, 255}));
  EXPECT_EQ(masks(-0.0F), masks(0.0F));
  EXPECT_EQ(masks(0.5F), (std::vector<int>{255, 255, 255, 0, 255}));
  EXPECT_EQ(masks(kNaN), (std::vector<int>{0, 0, 0, 0, 0}));
}

TEST(Compare, TheToleranceIsTestedLast) {
  const float a[4] = {};
  Lum8u mask = 7;
  EXPECT_EQ(lumiCompareEqualEps_32f_C1R(a, 4, a, 4, &mask, 1, {1, 0}, -1), lumStatusBadSize);
  EXPECT_EQ(lumiCompareEqualEps_32f_C1R(a, 4, a, 4, &mask, 1, {1, 1}, -1e-45F), lumStatusBadEpsilon);
  EXPECT_EQ(lumiCompareEqualEpsC_32f_C1R(a, 4, 0, &mask, 1, {1, 1}, -INFINITY), lumStatusBadEpsilon);
  EXPECT_EQ(lumiCompareEqualEpsC_32f_AC4R(a, 16, nullptr, &mask, 1, {1, 1}, -1), lumStatusNullPointer);
  EXPECT_EQ(mask, 7);
}

}  // namespace
}  // namespace test
