// SPDX-License-Identifier: MIT
// The larger or the smaller of two samples: against the model; NaNs and zeros by hand.
#include "lumi/extremes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <vector>

#include "model/data/extremes.hpp"
#include "support/member.hpp"

namespace test {
namespace {

bool addAll() {
  for (const bool larger : {false, true})
    addModelTests(membersOfOneType(
        larger ? "MaxEvery" : "MinEvery",
        [=](Member& m, auto sample) {
          m.contents = kAnyContents;
          m.mayStream = false;
          m.aliasing = Aliasing::SameImage;
          m.model = [=, channels = m.channels](const Call& c) {
            model::keepExtreme<decltype(sample)>(larger, c.srcImage(), c.dstImage(), c.roi, channels);
          };
        },
        Types<Lum8u, Lum16u, Lum16s, Lum32f>()));
  return true;
}
const bool added = addAll();

float withBits(uint32_t bits) {
  float x;
  std::memcpy(&x, &bits, sizeof x);
  return x;
}

// Whichever operand is NaN, the destination's bits stay; so do those of a zero beside one of the other sign.
// Long rows and short ones have code of their own.
TEST(Extremes, DestinationsStayBesideNaNsAndZeros) {
  const float nan = withBits(0x7FC00123), other = withBits(0xFFC04567);
  const std::pair<float, float> pairs[] = {{nan, 1.0F},   {nan, other},  {1.0F, other},
                                           {0.0F, -0.0F}, {-0.0F, 0.0F}, {nan, -INFINITY}};
  for (auto* keepExtreme : {lumiMaxEvery_32f_C1IR, lumiMinEvery_32f_C1IR})
    for (const auto& [src, dst] : pairs)
      for (const int width : {1, 5, 9, 200}) {
        const std::vector<float> sources(static_cast<size_t>(width), src), before(sources.size(), dst);
        std::vector<float> after = before;
        ASSERT_EQ(keepExtreme(sources.data(), 4 * width, after.data(), 4 * width, {width, 1}), lumStatusOk);
        EXPECT_EQ(std::memcmp(after.data(), before.data(), 4 * before.size()), 0) << src << " and " << dst;
      }
}

TEST(Extremes, AlphaOfTheDestinationStays) {
  const Lum8u src[] = {9, 1, 9, 200, 1, 9, 1, 0};
  Lum8u larger[] = {5, 5, 5, 5, 5, 5, 5, 5}, smaller[] = {5, 5, 5, 5, 5, 5, 5, 5};
  ASSERT_EQ(lumiMaxEvery_8u_AC4IR(src, 8, larger, 8, {2, 1}), lumStatusOk);
  ASSERT_EQ(lumiMinEvery_8u_AC4IR(src, 8, smaller, 8, {2, 1}), lumStatusOk);
  EXPECT_EQ(std::vector<int>(std::begin(larger), std::end(larger)),
            (std::vector<int>{9, 5, 9, 5, 5, 9, 5, 5}));
  EXPECT_EQ(std::vector<int>(std::begin(smaller), std::end(smaller)),
            (std::vector<int>{5, 1, 5, 5, 1, 5, 1, 5}));
}

}  // namespace
}  // namespace test
