// SPDX-License-Identifier: MIT
// The map of structural similarity: against the model over sizes and placements, in place, and of equal
// images.
#include "lumi/ssim.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <vector>

#include "model/statistics/ssim.hpp"
#include "statistics/placed_image.hpp"
#include "support/named_call.hpp"
#include "support/settings.hpp"

namespace test {
namespace {

const bool covered = addCovered({"lumiSSIM_32f_C1R"});

constexpr const char* kSources[] = {"mean1", "mean2", "meanSquare1", "meanSquare2", "meanProduct"};

class Statistics {
 public:
  Statistics() : random_(settings().seed) {
    for (auto& arena : arenas_) arena = std::make_unique<Arena>(1 << 16);
  }

  // In place, a source is the destination.
  void expect(LumiSize roi, int hint, Contents contents, int inPlace = -1) {
    std::vector<PlacedImage> images;
    for (int i = 0; i < 6; ++i) {
      if (i == 5 && inPlace >= 0)
        images.push_back(images[static_cast<size_t>(inPlace)]);
      else
        images.emplace_back(*arenas_[i], roi, 4, 1, random_);
      if (i < 5 || inPlace < 0) images.back().fill("32f", contents, random_);
    }
    const model::Image sources[] = {images[0].twin(), images[1].twin(), images[2].twin(), images[3].twin(),
                                    images[4].twin()};
    const float c1 = 6.5025f, c2 = 58.5225f;
    if (hint == 2)
      model::ssim<double>(sources, images[5].twin(), roi, c1, c2);
    else
      model::ssim<float>(sources, images[5].twin(), roi, c1, c2);
    NamedCall call("lumiSSIM_32f_C1R");
    for (size_t i = 0; i < 5; ++i) {
      const std::string name = kSources[i];
      call.pointer(name, images[i].image().first).number(name + "Step", images[i].image().step);
    }
    call.image("dst", images[5].image().first, images[5].image().step).size("roi", roi);
    call.number("c1", c1).number("c2", c2).number("hint", hint);
    ASSERT_EQ(call.run(), lumStatusOk);
    equateNaNs(images[5], roi);
    for (const PlacedImage& each : images)
      ASSERT_TRUE(each.agrees()) << roi.width << " x " << roi.height << ", hint " << hint << ", in place "
                                 << inPlace;
  }
  Random& random() { return random_; }

 private:
  // The bits of what is no number are not told.
  static void equateNaNs(const PlacedImage& dst, LumiSize roi) {
    for (int y = 0; y < roi.height; ++y)
      for (int x = 0; x < roi.width; ++x) {
        const auto ours = model::load<Lum32f>(dst.image().row(y), x);
        if (std::isnan(ours) && std::isnan(model::load<Lum32f>(dst.twin().row(y), x)))
          model::store(dst.twin().row(y), x, ours);
      }
  }

  std::unique_ptr<Arena> arenas_[6];
  Random random_;
};

TEST(Ssim, AgreesWithTheModel) {
  Statistics statistics;
  for (int i = 0; i < settings().scaled(150); ++i) {
    const LumiSize roi{1 + i % 75, 1 + statistics.random().below(4)};
    const Contents contents = kAnyContents[static_cast<size_t>(statistics.random().below(3))];
    statistics.expect(roi, i % 3, contents, statistics.random().below(10) - 5);
  }
}

TEST(Ssim, EqualImagesAreSimilar) {
  const std::vector<Lum32f> mean{10, 0, 200, 3, -7, 255, 1, 90, 3},
      square{101, 0, 40010, 9, 50, 65030, 1, 9000, 10};
  for (const int hint : {0, 1, 2}) {
    std::vector<Lum32f> map(mean.size(), 0);
    ASSERT_EQ(lumiSSIM_32f_C1R(mean.data(), 36, mean.data(), 36, square.data(), 36, square.data(), 36,
                               square.data(), 36, map.data(), 36, {9, 1}, 6.5025f, 58.5225f, hint),
              lumStatusOk);
    for (const Lum32f each : map) EXPECT_EQ(each, 1);  // what stands above the line is what stands below
  }
}

TEST(Ssim, StabilisersAreAboveTwoToTheMinus23) {
  const Lum32f x = 1;
  Lum32f map = 0;
  const auto ssim = [&](Lum32f c1, Lum32f c2, int hint) {
    return lumiSSIM_32f_C1R(&x, 4, &x, 4, &x, 4, &x, 4, &x, 4, &map, 4, {1, 1}, c1, c2, hint);
  };
  const Lum32f least = 0x1p-23f, above = std::nextafter(least, 1.0f);
  EXPECT_EQ(ssim(least, 1, 1), lumStatusBadArgument);
  EXPECT_EQ(ssim(1, least, 1), lumStatusBadArgument);
  EXPECT_EQ(map, 0);
  EXPECT_EQ(ssim(above, above, 0), lumStatusOk);
  EXPECT_EQ(ssim(1, 1, 3), lumStatusBadArgument);
  EXPECT_EQ(map, 1);
}

}  // namespace
}  // namespace test
