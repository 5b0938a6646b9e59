// SPDX-License-Identifier: MIT
// Fixed filters with their surroundings in memory: against the model, and known results.
#include "lumi/filter_fixed.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <type_traits>
#include <vector>

#include "model/filters/filter_fixed.hpp"
#include "support/member.hpp"

namespace test {
namespace {

enum class Mask { None, ThreeOrFive, Any };

// Pairs of sample types that there are.
template <typename S, typename D>
constexpr bool kFilters = std::is_floating_point_v<S> == std::is_floating_point_v<D> &&
                          sizeof(S) <= sizeof(D) &&
                          (std::is_same_v<S, D> ? !std::is_same_v<S, Lum8s>
                                                : std::is_same_v<D, Lum16s> && sizeof(S) == 1);
using FilterTypes = Types<Lum8u, Lum8s, Lum16u, Lum16s, Lum32f>;

void add(const std::string& name, Mask mask = Mask::None) {
  // "SobelVertMask" is SobelVert with any mask.
  const std::string kernel = mask == Mask::Any ? name.substr(0, name.size() - 4) : name;
  const auto describe = [&](Member& m, auto s, auto d) {
    using S = decltype(s);
    using D = decltype(d);
    m.contents = kAnyContents;
    m.floatResults = std::is_floating_point_v<D>;
    m.separateRows = true;
    m.mayStream = false;
    m.heights = {1, 1, 2, 3, 8, 19};
    m.rounds = 2;
    const bool withMask = std::any_of(m.row->arguments.begin(), m.row->arguments.end(),
                                      [](const Argument& a) { return std::string(a.name) == "maskSize"; });
    if (withMask && mask == Mask::ThreeOrFive) m.choose("maskSize", {{{33}}, {{55}}});
    if (withMask && mask == Mask::Any) m.choose("maskSize", {{{33}}, {{55}}, {{13}}, {{0}}});
    const auto side = [=](const Call& c) { return withMask && c.number("maskSize") != 33 ? 5 : 3; };
    m.surroundings = [=](const Call& c) -> Member::Surroundings {
      if (name == "RobertsDown") return {1, 1, 0, 0};
      if (name == "RobertsUp") return {0, 1, 1, 0};
      const int reach = side(c) / 2;
      return {reach, reach, reach, reach};
    };
    if constexpr (kFilters<S, D>)
      m.model = [=, channels = m.channels](const Call& c) {
        model::fixedFilter<S, D>(kernel, side(c), c.srcImage(), c.dstImage(), c.roi, channels);
      };
  };
  addModelTests(membersOf("Filter" + name, describe, FilterTypes()));
}

const bool added = [] {
  for (const char* name : {"SobelHoriz", "SobelVert", "SobelHorizSecond", "SobelVertSecond", "SobelCross",
                           "Laplace", "Hipass", "Gauss", "Lowpass"})
    add(name, Mask::ThreeOrFive);
  for (const char* name : {"SobelHorizMask", "SobelVertMask"}) add(name, Mask::Any);
  for (const char* name :
       {"PrewittHoriz", "PrewittVert", "ScharrHoriz", "ScharrVert", "RobertsDown", "RobertsUp", "Sharpen"})
    add(name);
  return true;
}();

// The result of one pixel amid its window, row after row.
template <typename T, typename Operation>
T resultOf(const std::vector<T>& window, const Operation& operation) {
  const int side = window.size() == 9 ? 3 : 5, step = side * static_cast<int>(sizeof(T));
  T result{};
  const T* const centre = window.data() + (side + 1) * (side / 2);
  EXPECT_EQ(operation(centre, step, &result, LumiSize{1, 1}), lumStatusOk);
  return result;
}

TEST(FixedFilters, KnownResults) {
  const auto lowpass = [](const Lum8u* s, int step, Lum8u* d, LumiSize roi) {
    return lumiFilterLowpass_8u_C1R(s, step, d, 1, roi, lumiMask3x3);
  };
  EXPECT_EQ(resultOf<Lum8u>({4, 0, 0, 0, 0, 0, 0, 0, 0}, lowpass), 0);  // 9 * 7281 is 7 below 2^16
  EXPECT_EQ(resultOf<Lum8u>({5, 0, 0, 0, 0, 0, 0, 0, 0}, lowpass), 1);
  EXPECT_EQ(resultOf<Lum8u>(std::vector<Lum8u>(9, 255), lowpass), 255);
  const auto gauss = [](const Lum8u* s, int step, Lum8u* d, LumiSize roi) {
    return lumiFilterGauss_8u_C1R(s, step, d, 1, roi, lumiMask3x3);
  };
  EXPECT_EQ(resultOf<Lum8u>({8, 0, 0, 0, 0, 0, 0, 0, 0}, gauss), 0);  // ties go to even
  EXPECT_EQ(resultOf<Lum8u>({24, 0, 0, 0, 0, 0, 0, 0, 0}, gauss), 2);
  const auto roberts = [](const Lum8u* s, int step, Lum8u* d, LumiSize roi) {
    return lumiFilterRobertsDown_8u_C1R(s, step, d, 1, roi);
  };
  EXPECT_EQ(resultOf<Lum8u>({9, 0, 0, 0, 5, 0, 0, 0, 0}, roberts), 0);
  EXPECT_EQ(resultOf<Lum8u>({3, 0, 0, 0, 5, 0, 0, 0, 0}, roberts), 2);
}

// Signs: a ramp that falls downward, and one that rises to the right.
TEST(FixedFilters, SignsOfGradients) {
  const std::vector<Lum8u> falling = {30, 30, 30, 20, 20, 20, 10, 10, 10};
  const std::vector<Lum8u> rising = {10, 20, 30, 10, 20, 30, 10, 20, 30};
  Lum16s result = 0;
  EXPECT_EQ(lumiFilterSobelHoriz_8u16s_C1R(&falling[4], 3, &result, 2, {1, 1}, lumiMask3x3), lumStatusOk);
  EXPECT_EQ(result, -80);
  EXPECT_EQ(lumiFilterScharrHoriz_8u16s_C1R(&falling[4], 3, &result, 2, {1, 1}), lumStatusOk);
  EXPECT_EQ(result, -320);
  EXPECT_EQ(lumiFilterSobelVert_8u16s_C1R(&rising[4], 3, &result, 2, {1, 1}, lumiMask3x3), lumStatusOk);
  EXPECT_EQ(result, -80);
  EXPECT_EQ(lumiFilterScharrVert_8u16s_C1R(&rising[4], 3, &result, 2, {1, 1}), lumStatusOk);
  EXPECT_EQ(result, 320);
  const auto horizontal = [](const Lum8u* s, int step, Lum8u* d, LumiSize roi) {
    return lumiFilterSobelHoriz_8u_C1R(s, step, d, 1, roi);
  };
  EXPECT_EQ(resultOf(falling, horizontal), 0);
}

// Every sum of words that a mean of 25 can have near a limit, and the extremes of each.
TEST(FixedFilters, MeansOfFlatImages) {
  for (const int side : {3, 5})
    for (int value = -32768; value <= 32767; value += value < -32700 || value > 32690 ? 1 : 257) {
      const LumiMaskSize mask = side == 3 ? lumiMask3x3 : lumiMask5x5;
      const auto words = std::vector<Lum16s>(static_cast<size_t>(side * side), static_cast<Lum16s>(value));
      const auto mean = [=](const Lum16s* s, int step, Lum16s* d, LumiSize roi) {
        return lumiFilterLowpass_16s_C1R(s, step, d, 2, roi, mask);
      };
      const int result = resultOf(words, mean);
      // The reciprocals are cut: at most one too low, and never above.
      ASSERT_TRUE(result == value || result == value - 1) << value << " gives " << result;
    }
}

}  // namespace
}  // namespace test
