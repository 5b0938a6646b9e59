// SPDX-License-Identifier: MIT
// Least and greatest samples: against the model; by hand rows that must not be read, infinities, what is not
// a number, and alpha.
#include "lumi/min_max.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <vector>

#include "model/statistics/min_max.hpp"
#include "support/arena.hpp"
#include "support/fault.hpp"
#include "support/member.hpp"

namespace test {
namespace {

using SampleTypes = Types<Lum8u, Lum16u, Lum16s, Lum32f>;
constexpr Lum32f kInf = std::numeric_limits<Lum32f>::infinity(), kMost = std::numeric_limits<Lum32f>::max(),
                 kNan = std::numeric_limits<Lum32f>::quiet_NaN();

// Results by their names, and whether they are the greatest samples. Of two zeros either may be stored, which
// the least tolerance there is allows.
struct Result {
  const char* name;
  bool greatest;
};
std::vector<Member> extremes(const char* operation, const std::vector<Result>& results) {
  return membersOfOneType(
      operation,
      [=](Member& m, auto sample) {
        using T = decltype(sample);
        const int stored = m.channels.src, used = m.channels.moved;
        m.contents = kAnyContents;
        m.mayStream = false;
        for (const Result& each : results) m.results(each.name, m.types.front());
        m.model = [=](const Call& c) {
          const bool infinite = results.size() == 2 && c.roi.width < 11;
          for (const Result& each : results)
            for (int channel = 0; channel < used; ++channel) {
              const T start = model::opposite<T>(each.greatest, infinite);
              const T right = model::extremeOf(each.greatest, start, c.srcImage(), c.roi, stored, channel);
              const bool zero = std::is_floating_point_v<T> && right == 0;
              c.block(each.name).storeWithin(channel, right, zero ? 5e-324 : 0);
            }
        };
      },
      SampleTypes());
}

const bool minAdded = addModelTests(extremes("Min", {{"min", false}}));
const bool maxAdded = addModelTests(extremes("Max", {{"max", true}}));
const bool bothAdded = addModelTests(extremes("MinMax", {{"min", false}, {"max", true}}));

// The rows behind the one that cannot be beaten are on pages that cannot be read.
void expectStops(LumStatus (*extreme)(const Lum8u*, int, LumiSize, Lum8u*), Lum8u last) {
  for (const int width : {1, 5, 16, 100, 257}) {
    const Arena arena(1);
    Lum8u* const second = arena.end() - width;
    const auto row = [=](int y) { return second - (1 - y) * width; };
    std::fill(row(0), second + width, Lum8u{100});
    Lum8u result = 7;
    const auto call = [&] { ASSERT_EQ(extreme(row(0), width, {width, 3}, &result), lumStatusOk); };
    EXPECT_TRUE(faultOf(call).has_value()) << width;
    EXPECT_EQ(result, 7);
    second[width / 2] = last;
    EXPECT_FALSE(faultOf(call).has_value()) << width;
    EXPECT_EQ(result, last);
  }
}

TEST(Min, OfBytesStopsAtZero) { expectStops(lumiMin_8u_C1R, 0); }
TEST(Max, OfBytesStopsAtTheTop) { expectStops(lumiMax_8u_C1R, 255); }

TEST(Min, OfInfinitiesIsFinite) {
  for (const int width : {1, 7, 64, 100}) {
    const std::vector<Lum32f> above(static_cast<size_t>(width), kInf),
        below(static_cast<size_t>(width), -kInf);
    Lum32f result = 0;
    ASSERT_EQ(lumiMin_32f_C1R(above.data(), 0, {width, 2}, &result), lumStatusOk);
    EXPECT_EQ(result, kMost);
    ASSERT_EQ(lumiMin_32f_C1R(below.data(), 0, {width, 2}, &result), lumStatusOk);
    EXPECT_EQ(result, -kInf);
    ASSERT_EQ(lumiMax_32f_C1R(below.data(), 0, {width, 2}, &result), lumStatusOk);
    EXPECT_EQ(result, -kMost);
    ASSERT_EQ(lumiMax_32f_C1R(above.data(), 0, {width, 2}, &result), lumStatusOk);
    EXPECT_EQ(result, kInf);
  }
}

TEST(MinMax, OfInfinitiesDependsOnTheWidth) {
  for (const int width : {1, 10, 64, 100}) {
    const std::vector<Lum32f> above(static_cast<size_t>(width), kInf);
    Lum32f min = 0, max = 0;
    ASSERT_EQ(lumiMinMax_32f_C1R(above.data(), width * 4, {width, 1}, &min, &max), lumStatusOk);
    EXPECT_EQ(min, width < 11 ? kInf : kMost) << width;
    EXPECT_EQ(max, kInf);
  }
}

TEST(MinMax, PassesOverWhatIsNoNumber) {
  for (const int width : {1, 3, 9, 31, 32, 33, 100}) {
    std::vector<Lum32f> row(static_cast<size_t>(width), kNan);
    row.back() = -2;
    row[row.size() / 2] = 3;
    Lum32f min = 0, max = 0;
    ASSERT_EQ(lumiMinMax_32f_C1R(row.data(), 0, {width, 2}, &min, &max), lumStatusOk);
    EXPECT_EQ(min, width > 1 ? -2 : 3) << width;
    EXPECT_EQ(max, 3) << width;
  }
}

TEST(MinMax, AlphaIsNotLookedAt) {
  for (const Lum32f alpha : {kNan, kInf, -kInf}) {
    std::vector<Lum32f> row(4 * 37, 2);
    for (size_t i = 3; i < row.size(); i += 4) row[i] = alpha;
    row[5] = -8;
    Lum32f min[4] = {1, 1, 1, 1}, max[4] = {1, 1, 1, 1};
    ASSERT_EQ(lumiMinMax_32f_AC4R(row.data(), 0, {37, 2}, min, max), lumStatusOk);
    const Lum32f least[] = {2, -8, 2, 1}, greatest[] = {2, 2, 2, 1};
    EXPECT_TRUE(std::equal(min, min + 4, least));
    EXPECT_TRUE(std::equal(max, max + 4, greatest));
  }
}

}  // namespace
}  // namespace test
