// SPDX-License-Identifier: MIT
#include "lumi/filter_box.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "model/filters/box.hpp"
#include "support/core_guard.hpp"
#include "support/member.hpp"
#include "support/random.hpp"
#include "support/settings.hpp"

namespace test {
namespace {

using model::Image;
using model::Window;

using BoxTypes = Types<Lum8u, Lum16u, Lum16s, Lum32f, Lum64f>;

// A place outside the window, which some members refuse, covers nothing.
Window windowOf(const Call& c) {
  const bool isPlain = std::any_of(c.chosen.begin(), c.chosen.end(), [](const Call::Chosen& each) {
    return std::string(each.name) == "maskSize";
  });
  return {c.size(isPlain ? "maskSize" : "mask"), c.point(isPlain ? "anchor" : "place")};
}
bool isInside(const Window& w) { return w.anchor.x < w.size.width && w.anchor.y < w.size.height; }

Member::Surroundings surroundings(const Call& c) {
  const Window w = windowOf(c);
  if (!isInside(w)) return {};
  return {w.anchor.x, w.anchor.y, w.size.width - 1 - w.anchor.x, w.size.height - 1 - w.anchor.y};
}

// Sides that have forms of their own, a sum of bytes that needs more than 16 bits (17 x 17), and single rows
// and columns. Images of wide pixels would not fit in their memory under high windows.
std::vector<Value> masks(int pixelBytes) {
  std::vector<Value> all = {{{3, 3}}, {{3, 3}}, {{5, 5}}, {{4, 3}}, {{3, 5}},  {{9, 2}},
                            {{1, 1}}, {{2, 1}}, {{1, 2}}, {{1, 6}}, {{15, 1}}, {{1, 3}}};
  if (pixelBytes <= 8) all.push_back({{7, 7}});
  if (pixelBytes <= 2) all.insert(all.end(), {{{17, 17}}, {{6, 31}}});
  return all;
}

// What a member refuses is told by its model; a place is not tested, and is in the window here.
void chooseWindows(Member& m, bool isPlace) {
  if (isPlace) {
    m.choose("mask", {{{3, 3}}, {{2, 2}}, {{5, 4}}, {{4, 3}}, {{9, 2}}, {{2, 13}}});
    m.choose("place", {{{0, 0}}, {{1, 0}}, {{1, 1}}});
  } else {
    m.choose("maskSize", masks(m.dst.pixelBytes));
    m.choose("anchor", {{{0, 0}}, {{0, 0}}, {{1, 0}}, {{0, 1}}, {{1, 1}}, {{2, 2}}, {{3, 1}}});
  }
}

const bool added = addModelTests(membersOf(
    "FilterBox",
    [](Member& m, auto, auto sample) {
      using T = decltype(sample);
      const bool doubles = sizeof(T) == 8, rowsTold = m.checksRows;
      chooseWindows(m, doubles);
      m.surroundings = surroundings;
      m.contents = std::is_floating_point_v<T> ? std::vector<Contents>{Contents::Small} : kAnyContents;
      m.floatResults = std::is_floating_point_v<T>;
      m.aliasing = m.inPlace ? Aliasing::None : Aliasing::SameImage;
      m.separateRows = true;
      m.allocates = true;
      m.mayStream = false;
      m.rounds = 12;
      m.model = [=, layout = m.layouts.back(), channels = m.channels](const Call& c) -> LumStatus {
        const Window w = windowOf(c);
        if (!isInside(w)) return lumStatusBadAnchor;
        if (rowsTold && c.srcStep < (c.roi.width + w.size.width - 1) * channels.src * int{sizeof(T)})
          return lumStatusBadStep;
        model::box<T>(c.srcImage(), c.dstImage(), c.roi, channels, w, layout);
        return lumStatusOk;
      };
    },
    BoxTypes()));

// A call of a member of one channel.
template <typename T>
struct Box {
  LumiSize roi{};
  LumiSize mask{};
  LumiPoint anchor{};

  int coveredWidth() const { return roi.width + mask.width - 1; }
  int coveredHeight() const { return roi.height + mask.height - 1; }
  std::vector<T> covered() const {
    return std::vector<T>(static_cast<size_t>(coveredWidth()) * static_cast<size_t>(coveredHeight()));
  }
  // Of what windows cover, row after row.
  std::vector<T> run(const std::vector<T>& src) const {
    std::vector<T> dst(static_cast<size_t>(roi.width * roi.height));
    const int step = coveredWidth() * static_cast<int>(sizeof(T));
    const T* const first = src.data() + anchor.y * coveredWidth() + anchor.x;
    EXPECT_EQ(call(first, step, dst.data(), roi.width * static_cast<int>(sizeof(T))), lumStatusOk);
    return dst;
  }

 private:
  LumStatus call(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep) const {
    return lumiFilterBox_8u_C1R(src, srcStep, dst, dstStep, roi, mask, anchor);
  }
  LumStatus call(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep) const {
    return lumiFilterBox_16u_C1R(src, srcStep, dst, dstStep, roi, mask, anchor);
  }
  LumStatus call(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep) const {
    return lumiFilterBox_16s_C1R(src, srcStep, dst, dstStep, roi, mask, anchor);
  }
  LumStatus call(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep) const {
    return lumiFilterBox_32f_C1R(src, srcStep, dst, dstStep, roi, mask, anchor);
  }
  LumStatus call(const Lum64f* src, int srcStep, Lum64f* dst, int dstStep) const {
    return lumiFilterBox_64f_C1R(src, srcStep, dst, dstStep, roi, mask, anchor);
  }
};

class FilterBox : public testing::Test {
 protected:
  const CoreGuard guard;
  Random random{settings().seed};
  Lum64f means_ = 0;
};

TEST_F(FilterBox, CutsOffUnderThreeByThreeAndRoundsOtherwise) {
  const Box<Lum8u> square{{1, 1}, {3, 3}, {1, 1}}, wider{{1, 1}, {4, 3}, {1, 1}},
      pair{{1, 1}, {2, 1}, {0, 0}};
  EXPECT_EQ(square.run({1, 1, 1, 1, 0, 1, 1, 1, 1}), std::vector<Lum8u>{0});
  EXPECT_EQ(wider.run({1, 1, 1, 1, 1, 0, 1, 1, 1, 1, 1, 1}), std::vector<Lum8u>{1});
  EXPECT_EQ(pair.run({1, 2}), std::vector<Lum8u>{2});
}

// The sum of 8100 white pixels has a product that just fits 32 bits; a pixel more, and the mean is cut off.
TEST_F(FilterBox, WhiteStaysWhite) {
  for (const LumiSize mask :
       {LumiSize{90, 90}, LumiSize{8101, 1}, LumiSize{1, 8101}, LumiSize{91, 91}, LumiSize{7, 7}}) {
    const Box<Lum8u> box{{3, 2}, mask, {0, 0}};
    EXPECT_EQ(box.run(std::vector<Lum8u>(box.covered().size(), 255)), std::vector<Lum8u>(6, 255))
        << mask.width;
  }
}

// Of every number of samples the factor and the shift.
TEST_F(FilterBox, DividesBytesByItsTable) {
  for (int n = 1; n <= 9000; n += n < 300 ? 1 : 61) {
    const Box<Lum8u> box{{3, 1}, {n, 1}, {0, 0}};
    std::vector<Lum8u> src = box.covered();
    const int most = random.oneIn(2) ? 255 : 8;
    for (Lum8u& sample : src) sample = static_cast<Lum8u>(random.between(0, most));
    const std::vector<Lum8u> means = box.run(src);
    const auto sample = [&](int x, int, int) { return src[static_cast<size_t>(x)]; };
    const Window window{box.mask, box.anchor};
    for (int x = 0; x < box.roi.width; ++x)
      EXPECT_EQ(means[static_cast<size_t>(x)],
                model::boxMean<Lum8u>(model::windowSum(sample, window, x, 0, 0), window, "C1"))
          << n;
  }
}

// Sums beyond 32 bits are floats: each step of theirs is wrong by half a unit in the last place at most.
template <typename T>
void expectNearMeans(Random& random, LumiSize mask, int low, int high) {
  const Box<T> box{{3, 3}, mask, {0, 0}};
  std::vector<T> src = box.covered();
  for (T& sample : src) sample = static_cast<T>(random.between(low, high));
  const std::vector<T> means = box.run(src);
  const double steps = mask.width + mask.height + 12, largest = std::max(std::abs(low), std::abs(high));
  for (int y = 0; y < 3; ++y)
    for (int x = 0; x < 3; ++x) {
      double sum = 0;
      for (int row = 0; row < mask.height; ++row)
        for (int column = 0; column < mask.width; ++column)
          sum += static_cast<double>(src[static_cast<size_t>((y + row) * box.coveredWidth() + x + column)]);
      const double right = sum / static_cast<double>(mask.width) / mask.height;
      EXPECT_NEAR(means[static_cast<size_t>(y * 3 + x)], right, 1 + steps * std::ldexp(largest, -24))
          << x << " " << y;
    }
}

TEST_F(FilterBox, TakesWindowsOfAnySum) {
  expectNearMeans<Lum16u>(random, {200, 170}, 60000, 65535);
  expectNearMeans<Lum16u>(random, {40000, 1}, 65000, 65535);
  expectNearMeans<Lum16s>(random, {280, 250}, -32768, -32000);
  expectNearMeans<Lum8u>(random, {2900, 2900}, 250, 255);
}

// Few roundings, of sums of the window's own samples.
template <typename T>
void expectAccurate(Random& random, LumiSize roi, LumiSize mask) {
  const Box<T> box{roi, mask, {mask.width - 1, mask.height / 2}};
  std::vector<T> src = box.covered();
  for (T& sample : src)
    sample = static_cast<T>(std::ldexp(random.between(-1000000, 1000000), random.between(-30, 10)));
  const std::vector<T> means = box.run(src);
  const double roundings = mask.height + std::ceil(std::log2(mask.width)) + 3;
  const double unit = std::numeric_limits<T>::epsilon() / 2;
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x) {
      long double sum = 0, magnitudes = 0;
      for (int row = 0; row < mask.height; ++row)
        for (int column = 0; column < mask.width; ++column) {
          const T sample = src[static_cast<size_t>((y + row) * box.coveredWidth() + x + column)];
          sum += sample;
          magnitudes += std::abs(sample);
        }
      const long double area = static_cast<long double>(mask.width) * mask.height;
      const double bound = static_cast<double>(magnitudes / area) * roundings * unit;
      EXPECT_NEAR(static_cast<double>(means[static_cast<size_t>(y * roi.width + x)]),
                  static_cast<double>(sum / area), bound)
          << x << " " << y << " of " << mask.width << " x " << mask.height;
    }
}

TEST_F(FilterBox, SumsOfFloatsAreAccurate) {
  for (const LumiSize mask :
       {LumiSize{3, 3}, LumiSize{15, 7}, LumiSize{1, 20}, LumiSize{13, 1}, LumiSize{64, 5}, LumiSize{7, 2}}) {
    expectAccurate<Lum32f>(random, {37, 11}, mask);
    expectAccurate<Lum64f>(random, {19, 9}, mask);
  }
}

// What is no number spoils the windows that it is in, and no other.
TEST_F(FilterBox, NoNumberReachesBeyondItsWindows) {
  const Box<Lum32f> box{{23, 17}, {6, 5}, {0, 0}};
  std::vector<Lum32f> src(box.covered().size(), 1.0F);
  const int badX = 11, badY = 9;
  src[static_cast<size_t>(badY * box.coveredWidth() + badX)] = std::numeric_limits<float>::infinity();
  const std::vector<Lum32f> means = box.run(src);
  for (int y = 0; y < 17; ++y)
    for (int x = 0; x < 23; ++x) {
      const bool holds = x <= badX && badX < x + 6 && y <= badY && badY < y + 5;
      EXPECT_EQ(std::isfinite(means[static_cast<size_t>(y * 23 + x)]), !holds) << x << " " << y;
    }
}

// The member of doubles does not look at it.
TEST_F(FilterBox, DoublesTakeAnyPlace) {
  std::vector<Lum64f> image(20 * 20), means(4);
  for (size_t i = 0; i < image.size(); ++i) image[i] = static_cast<double>(i);
  const LumiSize roi{2, 2}, mask{2, 2};
  // Windows begin seven rows below the pixel and nine columns to the right.
  ASSERT_EQ(lumiFilterBox_64f_C1R(&image[21], 160, means.data(), 16, roi, mask, {-9, -7}), lumStatusOk);
  const double first = 21 + 7 * 20 + 9 + 10.5;
  EXPECT_EQ(means, (std::vector<Lum64f>{first, first + 1, first + 20, first + 21}));
}

// Between sizes and what is no memory: none is asked for that could be granted.
TEST_F(FilterBox, MemoryThatNoSizeTellsIsRefused) {
  Lum32f pixel = 7;
  const LumiSize roi{1, INT32_MAX}, mask{INT32_MAX / 8, INT32_MAX};
  EXPECT_EQ(lumiFilterBox_32f_C1IR(&pixel, 4, roi, mask, {1, 1}), lumStatusNoMemory);
  EXPECT_EQ(
      lumiFilterBox_64f_C1R(&means_, INT32_MAX, &means_, 8, {1, 1}, {INT32_MAX / 16, INT32_MAX}, {0, 0}),
      lumStatusNoMemory);
  EXPECT_EQ(pixel, 7);
}

}  // namespace
}  // namespace test
