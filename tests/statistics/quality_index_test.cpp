// SPDX-License-Identifier: MIT
// The quality index: against the model within the rounding of its sums, flat channels, scratch that is not to
// be had.
#include "lumi/quality_index.h"

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "model/statistics/quality_index.hpp"
#include "support/core_guard.hpp"
#include "support/member.hpp"

namespace test {
namespace {

constexpr Lum32u kNoIndex = 0xFFC00000;

const bool added = addModelTests(membersOf(
    "QualityIndex",
    [](Member& m, auto sample, auto) {
      using T = decltype(sample);
      const int stored = m.channels.src, used = stored == 1 ? 1 : 3;
      // Of floats those whose sums are exact, so that the means are; rows that overlap would hold any.
      if (std::is_same_v<T, Lum32f>) {
        m.contents = {Contents::Small};
        m.checksRows = true;
      } else {
        m.contents = kAnyContents;
      }
      m.mayStream = false;
      m.allocates = true;
      m.results("quality", "32f");
      m.model = [=](const Call& c) {
        LumStatus status = lumStatusOk;
        for (int i = 0; i < used; ++i) {
          const model::Quality quality =
              model::qualityIndex<T>({c.srcImage(), stored, i}, {c.src2Image(), stored, i}, c.roi);
          if (quality.exists) {
            c.block("quality").storeWithin(i, static_cast<Lum32f>(quality.index), quality.tolerance);
          } else {
            model::store<Lum32u>(c.block("quality").data, i, kNoIndex);
            status = lumStatusZeroQualityDenominator;
          }
        }
        return status;
      };
    },
    Types<Lum8u, Lum16u, Lum32f>()));

Lum32u bitsOf(Lum32f x) {
  Lum32u bits;
  std::memcpy(&bits, &x, sizeof bits);
  return bits;
}

TEST(QualityIndex, FlatImagesHaveNone) {
  const std::vector<Lum8u> flat(64, 9), other(64, 200);
  Lum32f quality = 0;
  EXPECT_EQ(lumiQualityIndex_8u32f_C1R(flat.data(), 8, other.data(), 8, {8, 8}, &quality),
            lumStatusZeroQualityDenominator);
  EXPECT_EQ(bitsOf(quality), kNoIndex);
}

TEST(QualityIndex, FlatChannelBesideOthers) {
  std::vector<Lum8u> image(3 * 64);
  for (size_t i = 0; i < image.size(); ++i) image[i] = static_cast<Lum8u>(i % 3 == 1 ? 50 : i);
  Lum32f quality[3] = {};
  EXPECT_EQ(lumiQualityIndex_8u32f_C3R(image.data(), 24, image.data(), 24, {8, 8}, quality),
            lumStatusZeroQualityDenominator);
  // Sums of 64 squares, each sum and square rounded by 2^-24 at most.
  EXPECT_NEAR(quality[0], 1, 1e-5);
  EXPECT_EQ(bitsOf(quality[1]), kNoIndex);
  EXPECT_NEAR(quality[2], 1, 1e-5);
}

TEST(QualityIndex, OppositeImages) {
  const Lum32f a[] = {1, 2, 3, 4}, b[] = {4, 3, 2, 1};
  Lum32f quality = 0;
  EXPECT_EQ(lumiQualityIndex_32f_C1R(a, 8, b, 8, {2, 2}, &quality), lumStatusOk);
  EXPECT_EQ(quality, -1);  // all sums are exact
}

// Wide rows, many of them, and samples as large as there are.
TEST(QualityIndex, LargeSums) {
  constexpr int width = 5000, height = 30;
  std::vector<Lum16u> a(size_t{width} * height), b(a.size());
  Random random(1);
  for (size_t i = 0; i < a.size(); ++i) {
    a[i] = static_cast<Lum16u>(65535 - random.below(2000));
    b[i] = static_cast<Lum16u>(a[i] - random.below(1000));
  }
  Lum32f quality = 0;
  ASSERT_EQ(lumiQualityIndex_16u32f_C1R(a.data(), 2 * width, b.data(), 2 * width, {width, height}, &quality),
            lumStatusOk);
  const auto image = [&](std::vector<Lum16u>& of) {
    return model::Channel<Lum16u>{{reinterpret_cast<model::Byte*>(of.data()), 2 * width}, 1, 0};
  };
  const model::Quality expected = model::qualityIndex(image(a), image(b), {width, height});
  ASSERT_TRUE(expected.exists);
  // Sixteen lanes take 313 products of a row each, and 30 rows are added up: 2e-5 of a sum of magnitudes,
  // which is below ten covariances; the variances are sums of one sign.
  EXPECT_NEAR(quality, expected.index, 1e-3);
}

TEST(QualityIndex, MeansComeBeforeTheScratch) {
  const CoreGuard guard;
  testcore::failAllocation(1);
  const Lum8u image[] = {1, 2, 3, 4};
  Lum32f quality = 7;
  EXPECT_EQ(lumiQualityIndex_8u32f_C1R(image, 2, image, 2, {2, 2}, &quality), lumStatusNoMemory);
  EXPECT_EQ(quality, 7);
}

}  // namespace
}  // namespace test
