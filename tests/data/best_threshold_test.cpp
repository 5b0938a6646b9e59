// SPDX-License-Identifier: MIT
// The best threshold: against the model, and what is known of few levels and of levels that hardly count.
#include "lumi/best_threshold.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "model/data/best_threshold.hpp"
#include "support/member.hpp"

namespace test {
namespace {

const bool added = addModelTests(membersOfOneType(
    "ComputeThreshold_Otsu",
    [](Member& m, Lum8u) {
      m.contents = kAnyContents;
      m.mayStream = false;
      m.results("threshold", "8u");
      m.model = [](const Call& c) {
        return model::bestThreshold(c.srcImage(), c.roi, c.block("threshold").data);
      };
    },
    Types<Lum8u>()));

int thresholdOf(const std::vector<Lum8u>& image, int width) {
  Lum8u threshold = 99;
  EXPECT_EQ(lumiComputeThreshold_Otsu_8u_C1R(image.data(), width,
                                             {width, static_cast<int>(image.size()) / width}, &threshold),
            lumStatusOk);
  return threshold;
}

TEST(BestThreshold, OneLevelHasNone) {
  for (int level = 0; level < 256; ++level)
    EXPECT_EQ(thresholdOf(std::vector<Lum8u>(77, static_cast<Lum8u>(level)), 11), 0) << level;
}

TEST(BestThreshold, OfTwoLevelsTheLowerOne) {
  for (int low = 0; low < 255; low += 5)
    for (int high = low + 1; high < 256; high += 7) {
      std::vector<Lum8u> image(64, static_cast<Lum8u>(low));
      image[static_cast<size_t>(high % 64)] = static_cast<Lum8u>(high);
      EXPECT_EQ(thresholdOf(image, 8), low) << low << " and " << high;
    }
}

// Images of one value of the model's: of many shapes, where variances lie close to one another.
TEST(BestThreshold, HistogramsOfManyShapes) {
  for (int shape = 0; shape < 200; ++shape) {
    Random random(static_cast<uint64_t>(shape));
    const int first = random.below(200), last = random.between(first, 255), most = 1 << random.below(10);
    double histogram[256] = {};
    std::vector<Lum8u> image;
    for (int level = first; level <= last; ++level) {
      const int count = random.oneIn(3) ? 0 : random.below(most);
      histogram[level] = count;
      image.insert(image.end(), static_cast<size_t>(count), static_cast<Lum8u>(level));
    }
    if (image.empty()) continue;
    EXPECT_EQ(thresholdOf(image, static_cast<int>(image.size())), model::bestThreshold(histogram)) << shape;
  }
}

// A few pixels of 2^25 are no class of their own, but what they leave in the sums counts.
TEST(BestThreshold, LevelsThatHardlyCount) {
  constexpr int width = 1 << 13, height = 1 << 12;
  std::vector<Lum8u> image(static_cast<size_t>(width) * height, 200);
  double histogram[256] = {};
  size_t at = 0;
  const auto put = [&](int level, int count) {
    histogram[level] += count;
    for (int i = 0; i < count; ++i) image[at++] = static_cast<Lum8u>(level);
  };
  put(3, 2);
  put(9, 1);
  put(50, 1 << 20);
  put(255, 3);
  histogram[200] = static_cast<double>(image.size() - at);
  EXPECT_EQ(thresholdOf(image, width), model::bestThreshold(histogram));
}

TEST(BestThreshold, StepsBelowTheWidthAreBad) {
  const Lum8u image[8] = {};
  Lum8u threshold = 99;
  EXPECT_EQ(lumiComputeThreshold_Otsu_8u_C1R(image, 3, {4, 1}, &threshold), lumStatusBadStep);
  EXPECT_EQ(lumiComputeThreshold_Otsu_8u_C1R(image, 3, {4, 0}, &threshold), lumStatusBadSize);
  EXPECT_EQ(threshold, 99);
  EXPECT_EQ(lumiComputeThreshold_Otsu_8u_C1R(image, 4, {4, 2}, &threshold), lumStatusOk);
  EXPECT_EQ(threshold, 0);
}

}  // namespace
}  // namespace test
