// SPDX-License-Identifier: MIT
#include "lumi/median_shapes.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

#include "model/filters/median_shapes.hpp"
#include "support/arena.hpp"
#include "support/member.hpp"

namespace test {
namespace {

std::vector<Value> numbers(std::initializer_list<int> list) {
  std::vector<Value> values;
  for (const int n : list) values.push_back({{static_cast<double>(n), 0, 0, 0}});
  return values;
}

void describe(Member& m) {
  m.contents = kAnyContents;
  m.separateRows = true;
  m.mayStream = false;
  m.heights = {1, 1, 2, 3, 8, 19};
  m.rounds = 2;
}

using Shape = std::vector<model::Offset> (*)(int mask);

std::vector<model::Offset> row(int mask) {
  return model::square(mask / 10, [](int, int y) { return y == 0; });
}
std::vector<model::Offset> column(int mask) {
  return model::square(mask % 10, [](int x, int) { return x == 0; });
}
std::vector<model::Offset> cross(int mask) {
  return model::square(mask % 10, [](int x, int y) { return x == 0 || y == 0; });
}

bool addShape(const char* name, std::initializer_list<int> masks, Shape shape) {
  return addModelTests(membersOfOneType(
      name,
      [=](Member& m, auto sample) {
        using T = decltype(sample);
        describe(m);
        m.choose("maskSize", numbers(masks));
        const auto mask = [](const Call& c) { return static_cast<int>(c.number("maskSize")); };
        m.surroundings = [=](const Call& c) -> Member::Surroundings {
          const int across = mask(c) / 10 / 2, down = mask(c) % 10 / 2;
          return {across, down, across, down};
        };
        m.model = [=, channels = m.channels](const Call& c) {
          model::median<T>(shape(mask(c)), c.srcImage(), c.dstImage(), c.roi, channels);
        };
      },
      Types<Lum8u, Lum16u, Lum16s>()));
}

const bool added = addShape("FilterMedianHoriz", {31, 51}, row) &&
                   addShape("FilterMedianVert", {13, 15}, column) &&
                   addShape("FilterMedianCross", {33, 55}, cross);

const bool addedColours = addModelTests(membersOfOneType(
    "FilterMedianColor",
    [](Member& m, auto sample) {
      using T = decltype(sample);
      describe(m);
      m.choose("maskSize", numbers({33, 55}));
      const auto side = [](const Call& c) { return static_cast<int>(c.number("maskSize")) % 10; };
      m.surroundings = [=](const Call& c) -> Member::Surroundings {
        const int reach = side(c) / 2;
        return {reach, reach, reach, reach};
      };
      m.heights = {1, 1, 2, 7};
      m.rounds = 1;
      m.model = [=, channels = m.channels](const Call& c) {
        model::colourMedian<T>(side(c), c.srcImage(), c.dstImage(), c.roi, channels);
      };
    },
    Types<Lum8u, Lum16s, Lum32f>()));

const bool addedWeights = addModelTests(membersOfOneType(
    "FilterMedianWeightedCenter3x3",
    [](Member& m, Lum8u) {
      describe(m);
      m.rounds = 6;
      m.choose("weight", numbers({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, std::numeric_limits<int>::max() - 1}));
      m.surroundings = [](const Call&) -> Member::Surroundings { return {1, 1, 1, 1}; };
      m.model = [channels = m.channels](const Call& c) {
        const int weight = static_cast<int>(c.number("weight")), odd = weight - (weight % 2 == 0 ? 1 : 0);
        auto window = model::square(3, [](int, int) { return true; });
        for (int i = 1; i < std::min(odd, 99); ++i) window.push_back({0, 0});
        model::median<Lum8u>(window, c.srcImage(), c.dstImage(), c.roi, channels);
        return weight % 2 == 0 ? lumStatusEvenMedianWeight : lumStatusOk;
      };
    },
    Types<Lum8u>()));

const bool addedPlanes = addModelTests(membersOfOneType(
    "Median",
    [](Member& m, Lum8u) {
      m.contents = kAnyContents;
      m.mayStream = false;
      m.model = [](const Call& c) {
        for (int y = 0; y < c.roi.height; ++y)
          for (int x = 0; x < c.roi.width; ++x) {
            std::vector<Lum8u> samples;
            for (int plane = 0; plane < 3; ++plane)
              samples.push_back(model::load<Lum8u>(model::Image{c.src[plane], c.srcStep}.row(y), x));
            model::store<Lum8u>(c.dstImage().row(y), x, model::medianOf(samples));
          }
      };
    },
    Types<Lum8u>()));

TEST(MedianShapes, CrossesRemoveAnImpulse) {
  std::vector<Lum16s> src(9 * 9, -300);
  src[9 * 4 + 4] = std::numeric_limits<Lum16s>::max();
  for (const LumiMaskSize mask : {lumiMask3x3, lumiMask5x5}) {
    std::vector<Lum16s> dst(5 * 5);
    ASSERT_EQ(lumiFilterMedianCross_16s_C1R(&src[9 * 2 + 2], 18, dst.data(), 10, {5, 5}, mask), lumStatusOk);
    EXPECT_EQ(dst, std::vector<Lum16s>(5 * 5, -300));
  }
}

// Pixels that lie in a square about a pixel but not in its cross need not be in memory: those beside the
// outermost rows lie outside of it here.
TEST(MedianShapes, CornersOfCrossesAreNotRead) {
  const Arena arena(3 * Arena::pageBytes());
  const auto bytes = arena.end() - arena.begin();
  for (const LumiMaskSize mask : {lumiMask3x3, lumiMask5x5})
    for (const int width : {1, 4, 15, 16, 40}) {
      const int reach = mask == lumiMask3x3 ? 1 : 2;
      const auto step = static_cast<int>((bytes - width) / (2 * reach));
      std::vector<Lum8u> dst(static_cast<size_t>(width));
      std::fill(arena.begin(), arena.end(), Lum8u{7});
      const Lum8u* const first = arena.begin() + ptrdiff_t{reach} * step;
      ASSERT_EQ(lumiFilterMedianCross_8u_C1R(first, step, dst.data(), width, {width, 1}, mask), lumStatusOk);
      EXPECT_EQ(dst, std::vector<Lum8u>(dst.size(), 7));
    }
}

// A colour of its neighbourhood, where each channel by itself would give one that is not there.
TEST(MedianShapes, ColoursAreOfTheirNeighbourhood) {
  std::vector<Lum8u> src;
  for (int i = 0; i < 9; ++i)
    for (int c = 0; c < 3; ++c) src.push_back(i % 3 == c ? 200 : 10);
  Lum8u dst[3] = {};
  ASSERT_EQ(lumiFilterMedianColor_8u_C3R(&src[12], 9, dst, 3, {1, 1}, lumiMask3x3), lumStatusOk);
  EXPECT_EQ(std::vector<Lum8u>(dst, dst + 3), (std::vector<Lum8u>{200, 10, 10}));  // the first of equal ones
}

TEST(MedianShapes, WeightsOfTheCentre) {
  const std::vector<Lum8u> src = {1, 2, 3, 4, 90, 6, 7, 8, 9};
  const auto result = [&](int weight, LumStatus status) {
    Lum8u dst = 0;
    EXPECT_EQ(lumiFilterMedianWeightedCenter3x3_8u_C1R(&src[4], 3, &dst, 1, {1, 1}, weight), status);
    return int{dst};
  };
  EXPECT_EQ(result(1, lumStatusOk), 6);
  EXPECT_EQ(result(3, lumStatusOk), 7);
  EXPECT_EQ(result(5, lumStatusOk), 8);
  EXPECT_EQ(result(7, lumStatusOk), 9);
  EXPECT_EQ(result(8, lumStatusEvenMedianWeight), 9);
  EXPECT_EQ(result(9, lumStatusOk), 90);
  EXPECT_EQ(result(10, lumStatusEvenMedianWeight), 90);
  EXPECT_EQ(result(0, lumStatusBadCenterWeight), 0);
}

}  // namespace
}  // namespace test
