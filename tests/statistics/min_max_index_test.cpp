// SPDX-License-Identifier: MIT
// Places of extremes: against the model; by hand ties, rows that must not be read, infinities and NaNs.
#include "lumi/min_max_index.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <vector>

#include "model/statistics/min_max_index.hpp"
#include "support/arena.hpp"
#include "support/fault.hpp"
#include "support/member.hpp"

namespace test {
namespace {

using SampleTypes = Types<Lum8u, Lum16u, Lum16s, Lum32f>;

std::vector<Member> places(const char* operation, const char* result, bool greatest) {
  return membersOfOneType(
      operation,
      [=](Member& m, auto sample) {
        using T = decltype(sample);
        const int stored = m.channels.src, used = m.channels.moved;
        m.contents = kAnyContents;
        m.mayStream = false;
        m.results(result, m.types.front());
        m.results("x", "32s");
        m.results("y", "32s");
        m.model = [=](const Call& c) {
          for (int channel = 0; channel < used; ++channel) {
            const T start = model::opposite<T>(greatest, stored != 1);
            const auto place = model::placeOf(greatest, start, c.srcImage(), c.roi, stored, channel);
            // Of two zeros either may be stored, which the least tolerance there is allows.
            const bool zero = std::is_floating_point_v<T> && place.value == 0;
            c.block(result).storeWithin(channel, place.value, zero ? 5e-324 : 0);
            model::store<Lum32s>(c.block("x").data, channel, place.x);
            model::store<Lum32s>(c.block("y").data, channel, place.y);
          }
        };
      },
      SampleTypes());
}

const bool minAdded = addModelTests(places("MinIndx", "min", false));
const bool maxAdded = addModelTests(places("MaxIndx", "max", true));

TEST(MinIndx, TakesTheFirstOfEqualSamples) {
  Lum8u image[8][20], min = 0;
  std::fill(&image[0][0], &image[0][0] + sizeof image, Lum8u{9});
  Lum32s x = -1, y = -1;
  ASSERT_EQ(lumiMinIndx_8u_C1R(image[0], 20, {20, 8}, &min, &x, &y), lumStatusOk);
  EXPECT_EQ(x, 0);
  EXPECT_EQ(y, 0);
  image[2][5] = image[3][1] = image[2][17] = 4;
  ASSERT_EQ(lumiMinIndx_8u_C1R(image[0], 20, {20, 8}, &min, &x, &y), lumStatusOk);
  EXPECT_EQ(min, 4);
  EXPECT_EQ(x, 5);
  EXPECT_EQ(y, 2);
}

// Two rows, and behind them a page that cannot be read: a call stops there once every channel has come to the
// limit, in whichever of the rows, and goes on while one has not.
template <typename T>
void expectStops(LumStatus (*find)(const T*, int, LumiSize, T*, Lum32s*, Lum32s*), int stored, int used,
                 T limit) {
  constexpr int kWidth = 21;
  const auto samples = static_cast<size_t>(kWidth * stored);
  const Arena arena(1);
  const auto at = [&](size_t i) { return arena.end() - (2 * samples - i) * sizeof(T); };
  for (size_t i = 0; i < 2 * samples; ++i) model::store<T>(at(i), 0, T{7});
  T value[4];
  Lum32s x[4] = {-1, -1, -1, -1}, y[4];
  const auto call = [&] {
    ASSERT_EQ(find(reinterpret_cast<const T*>(at(0)), static_cast<int>(samples * sizeof(T)), {kWidth, 3},
                   value, x, y),
              lumStatusOk);
  };
  for (int c = 0; c < used; ++c) {
    EXPECT_TRUE(faultOf(call).has_value()) << c;
    EXPECT_EQ(x[0], -1);
    model::store<T>(at(c % 2 ? samples : 0), (c + 3) * stored + c, limit);
  }
  EXPECT_FALSE(faultOf(call).has_value());
  for (int c = 0; c < used; ++c) {
    EXPECT_EQ(value[c], limit);
    EXPECT_EQ(x[c], c + 3);
    EXPECT_EQ(y[c], c % 2);
  }
}

TEST(MinIndx, StopsAtTheLeastValue) {
  expectStops<Lum8u>(lumiMinIndx_8u_C1R, 1, 1, 0);
  expectStops<Lum8u>(lumiMinIndx_8u_AC4R, 4, 3, 0);
  expectStops<Lum16u>(lumiMinIndx_16u_C4R, 4, 4, 0);
  expectStops<Lum16s>(lumiMinIndx_16s_C1R, 1, 1, -32768);
}

TEST(MaxIndx, StopsAtTheGreatestValue) {
  expectStops<Lum8u>(lumiMaxIndx_8u_C1R, 1, 1, 255);
  expectStops<Lum16u>(lumiMaxIndx_16u_AC4R, 4, 3, 65535);
  expectStops<Lum16s>(lumiMaxIndx_16s_C3R, 3, 3, 32767);
  expectStops<Lum16s>(lumiMaxIndx_16s_C4R, 4, 4, 32767);
}

TEST(MinIndx, OfInfinities) {
  constexpr Lum32f inf = std::numeric_limits<Lum32f>::infinity();
  for (const int width : {1, 9, 40}) {
    const std::vector<Lum32f> row(static_cast<size_t>(4 * width), inf);
    Lum32f value[4];
    Lum32s x[4] = {-1, -1, -1, -1}, y[4] = {-1, -1, -1, -1};
    ASSERT_EQ(lumiMinIndx_32f_C1R(row.data(), 0, {width, 3}, value, x, y), lumStatusOk);
    EXPECT_EQ(value[0], std::numeric_limits<Lum32f>::max());
    EXPECT_EQ(y[0], 0);
    ASSERT_EQ(lumiMinIndx_32f_AC4R(row.data(), 0, {width, 3}, value, x, y), lumStatusOk);
    for (int c = 0; c < 3; ++c) {
      EXPECT_EQ(value[c], inf);
      EXPECT_EQ(x[c], 0);
      EXPECT_EQ(y[c], 0);
    }
    EXPECT_EQ(x[3], -1);
  }
}

TEST(MaxIndx, PassesOverNaNsAndAlpha) {
  constexpr Lum32f nan = std::numeric_limits<Lum32f>::quiet_NaN();
  std::vector<Lum32f> row(4 * 37, nan);
  for (int c = 0; c < 3; ++c) row[static_cast<size_t>(4 * (20 + c) + c)] = -5;
  Lum32f value[4];
  Lum32s x[4], y[4];
  ASSERT_EQ(lumiMaxIndx_32f_AC4R(row.data(), 0, {37, 2}, value, x, y), lumStatusOk);
  for (int c = 0; c < 3; ++c) {
    EXPECT_EQ(value[c], -5);
    EXPECT_EQ(x[c], 20 + c);
    EXPECT_EQ(y[c], 0);
  }
}

}  // namespace
}  // namespace test
