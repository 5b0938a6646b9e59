// SPDX-License-Identifier: MIT
#include "model/filters/decimate_filter.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <vector>

#include "lumi/decimate_filter.h"
#include "support/arena.hpp"
#include "support/fault.hpp"
#include "support/member.hpp"

namespace test {
namespace {

const bool added = [] {
  for (const bool isColumn : {false, true})
    addModelTests(membersOfOneType(
        isColumn ? "DecimateFilterColumn" : "DecimateFilterRow",
        [=](Member& m, auto) {
          const auto fractionOf = [](const Call& c) -> const model::Fraction& {
            return model::fractions()[static_cast<size_t>(c.number("fraction"))];
          };
          m.contents = kAnyContents;
          m.mayStream = false;
          m.separateRows = true;
          if (isColumn) m.heights = {1, 2, 3, 4, 5, 9, 10, 13, 20, 31};
          m.choose("fraction", {{{0}}, {{1}}, {{2}}, {{3}}, {{4}}});
          m.surroundings = [=](const Call& c) -> Member::Surroundings {
            const model::Fraction& f = fractionOf(c);
            const int side = isColumn ? c.roi.height : c.roi.width, left = side % f.samples;
            if (side < f.samples) return {0, 0, 0, 0};
            if (isColumn) return {0, f.before(), 0, f.behind() - left};
            return {f.before(), 0, f.behind() - left, 0};
          };
          m.model = [=](const Call& c) {
            model::decimate(c.srcImage(), c.roi, c.dstImage(), fractionOf(c), isColumn);
          };
        },
        Types<Lum8u>()));
  return true;
}();

using Decimate = LumStatus (*)(const Lum8u*, int, LumiSize, Lum8u*, int, int);
struct Direction {
  Decimate decimate;
  bool isColumn;
};
const Direction kDirections[] = {{lumiDecimateFilterRow_8u_C1R, false},
                                 {lumiDecimateFilterColumn_8u_C1R, true}};

// Nothing behind the destination, which is smaller than the source, and nothing beyond the samples under a
// weight: where one more is missing at either end, the call faults.
TEST(DecimateFilter, TouchesItsSamplesAndResultsOnly) {
  const Arena src(1 << 12), dst(1 << 12);
  for (const Direction& d : kDirections)
    for (int fraction = 0; fraction < 5; ++fraction) {
      const model::Fraction& f = model::fractions()[static_cast<size_t>(fraction)];
      const int side = 6 * f.samples + 1, across = 5, pixels = f.before() + 6 * f.samples + f.behind();
      const LumiSize roi = d.isColumn ? LumiSize{across, side} : LumiSize{side, across};
      const LumiSize made = model::decimatedSize(roi, f, d.isColumn);
      const int srcStep = d.isColumn ? across : pixels, bytes = pixels * across;
      const int offset = f.before() * (d.isColumn ? srcStep : 1);
      Byte* const to = dst.end() - made.width * made.height;
      const auto runs = [&](const Byte* first) {
        LumStatus status = lumStatusOk;
        const auto fault =
            faultOf([&] { status = d.decimate(first + offset, srcStep, roi, to, made.width, fraction); });
        EXPECT_EQ(status, lumStatusOk);
        return !fault;
      };
      EXPECT_TRUE(runs(src.begin()));
      EXPECT_TRUE(runs(src.end() - bytes));
      EXPECT_FALSE(runs(src.begin() - 1));
      EXPECT_FALSE(runs(src.end() - bytes + 1));
    }
}

TEST(DecimateFilter, FlatImagesStayFlat) {
  constexpr int kStep = 64, kAround = 8;
  for (const Direction& d : kDirections)
    for (int fraction = 0; fraction < 5; ++fraction)
      for (const int value : {0, 1, 127, 254, 255}) {
        const std::vector<Lum8u> src(kStep * 64, static_cast<Lum8u>(value));
        std::vector<Lum8u> dst(kStep * 64, 77);
        const LumiSize roi{40, 40};
        ASSERT_EQ(d.decimate(src.data() + kAround * kStep + kAround, kStep, roi, dst.data(), kStep, fraction),
                  lumStatusOk);
        const LumiSize made =
            model::decimatedSize(roi, model::fractions()[static_cast<size_t>(fraction)], d.isColumn);
        for (int y = 0; y < made.height; ++y)
          for (int x = 0; x < made.width; ++x) ASSERT_EQ(dst[static_cast<size_t>(y * kStep + x)], value);
        EXPECT_EQ(std::count(dst.begin(), dst.end(), value == 77 ? 0 : 77),
                  kStep * 64 - made.width * made.height);
      }
}

TEST(DecimateFilter, LinesWithoutAGroupGiveNothing) {
  const int samples[] = {2, 5, 3, 10, 4};
  for (const Direction& d : kDirections)
    for (int fraction = 0; fraction < 5; ++fraction) {
      const int side = samples[fraction] - 1;
      const LumiSize roi = d.isColumn ? LumiSize{3, side} : LumiSize{side, 3};
      const Arena none(1);
      none.setAccessible(none.begin(), none.end(), false);
      LumStatus status = lumStatusNullPointer;
      const auto fault =
          faultOf([&] { status = d.decimate(none.begin(), 16, roi, none.begin(), 16, fraction); });
      none.setAccessible(none.begin(), none.end(), true);
      EXPECT_FALSE(fault);
      EXPECT_EQ(status, lumStatusOk);
    }
}

// (2 * 255 + 33 * 255 + ... + 128) >> 8 goes beyond both limits.
TEST(DecimateFilter, ResultsAreLimited) {
  std::vector<Lum8u> src(64, 0);
  const auto half = [&] {
    Lum8u dst = 7;
    EXPECT_EQ(lumiDecimateFilterRow_8u_C1R(src.data() + 20, 64, {2, 1}, &dst, 1, 0), lumStatusOk);
    return int{dst};
  };
  for (const int i : {0, 3, 4, 5, 6, 9}) src[static_cast<size_t>(16 + i)] = 255;
  EXPECT_EQ(half(), 255);
  for (Lum8u& sample : src) sample = static_cast<Lum8u>(255 - sample);
  EXPECT_EQ(half(), 0);
  std::fill(src.begin(), src.end(), Lum8u{0});
  src[20] = 1;  // 114 and 128 are below 256
  EXPECT_EQ(half(), 0);
  src[21] = 1;
  src[19] = 1;  // 33
  EXPECT_EQ(half(), 1);
}

}  // namespace
}  // namespace test
