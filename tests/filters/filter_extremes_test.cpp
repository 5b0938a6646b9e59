// SPDX-License-Identifier: MIT
#include "lumi/filter_extremes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "model/filters/extremes.hpp"
#include "support/core_guard.hpp"
#include "support/member.hpp"
#include "support/random.hpp"
#include "support/settings.hpp"

namespace test {
namespace {

using model::Window;
using ExtremeTypes = Types<Lum8u, Lum16u, Lum16s, Lum32f>;

Window windowOf(const Call& c) { return {c.size("maskSize"), c.point("anchor")}; }
bool isInside(const Window& w) { return w.anchor.x < w.size.width && w.anchor.y < w.size.height; }

Member::Surroundings surroundings(const Call& c) {
  const Window w = windowOf(c);
  if (!isInside(w)) return {};
  return {w.anchor.x, w.anchor.y, w.size.width - 1 - w.anchor.x, w.size.height - 1 - w.anchor.y};
}

// Sides that have forms of their own, widths about the numbers of steps that they are made in, heights below
// and above the rows that are made together. Images of wide pixels would not fit in their memory under high
// windows.
std::vector<Value> masks(int pixelBytes) {
  std::vector<Value> all = {{{3, 3}}, {{3, 3}}, {{5, 5}}, {{4, 3}},  {{3, 5}}, {{9, 2}}, {{1, 1}},
                            {{2, 1}}, {{1, 2}}, {{1, 6}}, {{15, 1}}, {{1, 3}}, {{6, 4}}};
  if (pixelBytes <= 8) all.insert(all.end(), {{{7, 7}}, {{21, 2}}});
  if (pixelBytes <= 2) all.insert(all.end(), {{{17, 17}}, {{6, 31}}, {{33, 5}}});
  return all;
}

void describe(Member& m) {
  m.choose("maskSize", masks(m.dst.pixelBytes));
  m.choose("anchor", {{{0, 0}}, {{0, 0}}, {{1, 0}}, {{0, 1}}, {{1, 1}}, {{2, 2}}, {{3, 1}}});
  m.surroundings = surroundings;
  m.surroundingsApart = true;
  m.contents = kAnyContents;
  m.aliasing = Aliasing::SameImage;
  m.separateRows = true;
  m.allocates = true;
  m.mayStream = false;
  m.rounds = 12;
}

template <bool largest>
bool addMembers(const char* operation) {
  return addModelTests(membersOfOneType(
      operation,
      [](Member& m, auto sample) {
        using T = decltype(sample);
        describe(m);
        m.model = [channels = m.channels](const Call& c) -> LumStatus {
          const Window w = windowOf(c);
          if (!isInside(w)) return lumStatusBadAnchor;
          const auto source = [&](int x, int y, int k) {
            return model::load<T>(c.srcImage().row(y), x * channels.src + k);
          };
          if (w.area() == 1)
            model::storeResults(model::imageOfResults<T>(c.roi, channels.moved, source), c.dstImage(), c.roi,
                                channels);
          else
            model::extremes<T>(c.srcImage(), c.dstImage(), c.roi, channels, w, {largest},
                               [](int, int) { return true; });
          return lumStatusOk;
        };
      },
      ExtremeTypes()));
}

const bool largest = addMembers<true>("FilterMax"), smallest = addMembers<false>("FilterMin");

class FilterExtremes : public testing::Test {
 protected:
  const CoreGuard guard;
  Random random{settings().seed};
};

// An image of floats under windows of that size, of all that they cover, row after row.
std::vector<Lum32f> maxima(const std::vector<Lum32f>& covered, LumiSize roi, LumiSize mask) {
  std::vector<Lum32f> dst(static_cast<size_t>(roi.width * roi.height));
  EXPECT_EQ(lumiFilterMax_32f_C1R(covered.data(), (roi.width + mask.width - 1) * 4, dst.data(), roi.width * 4,
                                  roi, mask, {0, 0}),
            lumStatusOk);
  return dst;
}

// Whichever way a window's size goes, and wherever the pixel lies.
TEST_F(FilterExtremes, TheFirstOfEqualZerosIsStored) {
  const LumiSize roi{37, 20};
  for (const LumiSize mask : {LumiSize{3, 3}, LumiSize{5, 5}, LumiSize{7, 1}, LumiSize{1, 9}, LumiSize{6, 4},
                              LumiSize{23, 3}, LumiSize{4, 19}}) {
    const int width = roi.width + mask.width - 1;
    std::vector<Lum32f> covered(static_cast<size_t>(width * (roi.height + mask.height - 1)));
    for (Lum32f& sample : covered) sample = random.oneIn(2) ? 0.0F : random.oneIn(2) ? -0.0F : -1.0F;
    const std::vector<Lum32f> dst = maxima(covered, roi, mask);
    for (int y = 0; y < roi.height; ++y)
      for (int x = 0; x < roi.width; ++x) {
        const auto first = [&] {
          for (int row = 0; row < mask.height; ++row)
            for (int column = 0; column < mask.width; ++column) {
              const Lum32f sample = covered[static_cast<size_t>((y + row) * width + x + column)];
              if (sample == 0) return sample;
            }
          return -1.0F;
        };
        const Lum32f got = dst[static_cast<size_t>(y * roi.width + x)], want = first();
        ASSERT_EQ(got, want) << mask.width << " x " << mask.height;
        ASSERT_EQ(std::signbit(got), std::signbit(want)) << mask.width << " x " << mask.height;
      }
  }
}

TEST_F(FilterExtremes, NoNumberIsBelowAll) {
  const float nan = std::numeric_limits<float>::quiet_NaN(),
              infinity = std::numeric_limits<float>::infinity();
  EXPECT_EQ(maxima({nan, -3}, {1, 1}, {2, 1}), std::vector<Lum32f>{-3});
  EXPECT_EQ(maxima({-3, nan}, {1, 1}, {1, 2}), std::vector<Lum32f>{-3});
  EXPECT_EQ(maxima({nan, nan}, {1, 1}, {2, 1}), std::vector<Lum32f>{-infinity});
  EXPECT_EQ(maxima({infinity, nan}, {1, 1}, {2, 1}), std::vector<Lum32f>{infinity});
  EXPECT_TRUE(std::isnan(maxima({nan}, {1, 1}, {1, 1})[0]));
}

// Windows that are far larger than the image.
TEST_F(FilterExtremes, WindowsMayBeLargerThanTheImage) {
  const LumiSize roi{2, 3}, mask{301, 130};
  const int width = roi.width + mask.width - 1, height = roi.height + mask.height - 1;
  std::vector<Lum8u> covered(static_cast<size_t>(width * height), 5);
  std::vector<Lum8u> dst(6);
  const auto run = [&](int x, int y, Lum8u value) {
    covered[static_cast<size_t>(y * width + x)] = value;
    EXPECT_EQ(lumiFilterMax_8u_C1R(&covered[static_cast<size_t>(width * 100 + 7)], width, dst.data(), 2, roi,
                                   mask, {7, 100}),
              lumStatusOk);
    covered[static_cast<size_t>(y * width + x)] = 5;
    return dst;
  };
  EXPECT_EQ(run(0, 0, 9), (std::vector<Lum8u>{9, 5, 5, 5, 5, 5}));
  EXPECT_EQ(run(301, 131, 9), (std::vector<Lum8u>{5, 5, 5, 5, 5, 9}));
  EXPECT_EQ(run(150, 60, 9), std::vector<Lum8u>(6, 9));
  EXPECT_EQ(run(300, 1, 9), (std::vector<Lum8u>{9, 9, 9, 9, 5, 5}));
}

TEST_F(FilterExtremes, MemoryThatNoSizeTellsIsRefused) {
  Lum8u pixel = 7, result = 3;
  EXPECT_EQ(lumiFilterMax_8u_C1R(&pixel, 1, &result, 1, {1, 1}, {INT32_MAX, INT32_MAX}, {0, 0}),
            lumStatusNoMemory);
  EXPECT_EQ(result, 3);
}

}  // namespace
}  // namespace test
