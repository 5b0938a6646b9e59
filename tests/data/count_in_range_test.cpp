// SPDX-License-Identifier: MIT
// Counts of samples in a range: against the model; bounds that no sample or every one meets, many samples in
// one lane, and what is not a number by hand.
#include "lumi/count_in_range.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

#include "data/ordered_bounds.hpp"
#include "model/data/count_in_range.hpp"
#include "support/member.hpp"

namespace test {
namespace {

const bool added = addModelTests(membersOfOneType(
    "CountInRange",
    [](Member& m, auto sample) {
      using T = decltype(sample);
      const int stored = m.channels.src, used = m.values / 2;
      m.contents = kAnyContents;
      m.mayStream = false;
      m.results("count", "32s");
      m.arrangeValues = [=](Random& random, Byte* bounds) { arrangeBounds<T>(random, bounds, used, used); };
      m.model = [=](const Call& c) {
        return model::countInRange<T>(c.srcImage(), c.roi, stored, used, c.values, c.block("count").data);
      };
    },
    Types<Lum8u, Lum32f>()));

TEST(CountInRange, BoundsAreIncluded) {
  const Lum8u image[] = {4, 5, 6, 5, 255, 0, 5};
  Lum32s count = -1;
  ASSERT_EQ(lumiCountInRange_8u_C1R(image, 7, {7, 1}, &count, 5, 5), lumStatusOk);
  EXPECT_EQ(count, 3);
  ASSERT_EQ(lumiCountInRange_8u_C1R(image, 7, {7, 1}, &count, 0, 255), lumStatusOk);
  EXPECT_EQ(count, 7);
  EXPECT_EQ(lumiCountInRange_8u_C1R(image, 7, {7, 1}, &count, 6, 5), lumStatusBadRange);
  EXPECT_EQ(count, 7);
}

// More equal samples than a byte counts, in rows by themselves and in rows as one.
TEST(CountInRange, LanesDoNotGoAround) {
  constexpr int width = 3 * 48 * 257, height = 3;
  const std::vector<Lum8u> image(size_t{width} * height, 7);
  for (const int channels : {1, 3}) {
    const LumiSize roi{width / channels - 1, height};
    const Lum8u bounds[3] = {7, 7, 7};
    Lum32s counts[3] = {};
    if (channels == 1)
      ASSERT_EQ(lumiCountInRange_8u_C1R(image.data(), width, roi, counts, 7, 7), lumStatusOk);
    else
      ASSERT_EQ(lumiCountInRange_8u_C3R(image.data(), width, roi, counts, bounds, bounds), lumStatusOk);
    for (int c = 0; c < channels; ++c) EXPECT_EQ(counts[c], roi.width * roi.height) << c;
  }
}

TEST(CountInRange, NotANumberIsInNoRange) {
  constexpr float nan = std::numeric_limits<float>::quiet_NaN(), inf = std::numeric_limits<float>::infinity();
  const std::vector<Lum32f> image = {nan, 1, 2, inf, -inf, nan, 0, -0.0f, 3};
  const auto count = [&](float lower, float upper) {
    Lum32s result = -1;
    EXPECT_EQ(lumiCountInRange_32f_C1R(image.data(), 36, {9, 1}, &result, lower, upper), lumStatusOk);
    return result;
  };
  EXPECT_EQ(count(-inf, inf), 7);
  EXPECT_EQ(count(0, 2), 4);
  EXPECT_EQ(count(nan, inf), 0);
  EXPECT_EQ(count(1, nan), 4);
}

}  // namespace
}  // namespace test
