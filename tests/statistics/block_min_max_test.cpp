// SPDX-License-Identifier: MIT
// Extremes of blocks: against the model with images and maps between unmapped pages; every status, alone and
// in pairs; maps and results that are not there, infinities and NaNs.
#include "lumi/block_min_max.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <limits>
#include <vector>

#include "model/statistics/block_min_max.hpp"
#include "support/arena.hpp"
#include "support/contents.hpp"
#include "support/member.hpp"
#include "support/named_call.hpp"
#include "support/random.hpp"
#include "support/settings.hpp"

namespace test {
namespace {

const bool covered = addCovered({"lumiBlockMinMax_8u_C1R", "lumiBlockMinMax_16u_C1R",
                                 "lumiBlockMinMax_16s_C1R", "lumiBlockMinMax_32f_C1R"});

int ceilOf(int a, int b) { return (a + b - 1) / b; }

// One image of samples in an arena, at its end or its begin.
struct Placed {
  Byte* first;
  int step;

  static Placed in(const Arena& arena, int rowBytes, int rows, Random& random) {
    const int step = rowBytes + random.below(4) * random.below(9);
    Byte* const first = random.oneIn(3) ? arena.begin() : arena.end() - ((rows - 1) * step + rowBytes);
    return {first, step};
  }
  model::Image twinIn(const Arena& arena) const { return {arena.twin(first), step}; }
};

constexpr int kWidest = 1100, kHighest = 24;

class Blocks {
 public:
  template <typename T>
  void run(const std::string& type, int index) {
    const std::string name = "lumiBlockMinMax_" + type + "_C1R";
    Random random(mixSeed(settings().seed, name, index));
    const LumiSize roi{random.oneIn(4) ? random.between(490, kWidest) : random.between(1, 70),
                       random.between(1, kHighest)};
    const LumiSize block{random.oneIn(4) ? random.between(1, kWidest) : random.between(1, 34),
                         random.oneIn(3) ? 16 : random.between(1, kHighest)};
    const int kinds = random.between(1, 3);
    constexpr int kBytes = sizeof(T);
    const int across = ceilOf(roi.width, block.width), down = ceilOf(roi.height, block.height);
    const Placed src = Placed::in(src_, roi.width * kBytes, roi.height, random);
    const Placed min = Placed::in(min_, across * kBytes, down, random),
                 max = Placed::in(max_, across * kBytes, down, random);
    const std::vector<Contents> contents =
        std::is_floating_point_v<T> ? std::vector<Contents>{Contents::Small} : kAnyContents;
    for (int y = 0; y < roi.height; ++y)
      fillSamples(type, src.first + y * src.step, roi.width * kBytes, random.pick(contents), random);
    for (const Arena* arena : {&src_, &min_, &max_}) arena->copyToTwin(arena->begin(), arena->end());

    T extremes[2];
    NamedCall call(name);
    call.image("src", src.first, src.step).size("roi", roi).size("blockSize", block);
    call.pointer("minMap", kinds & 1 ? min.first : nullptr).number("minMapStep", min.step);
    call.pointer("maxMap", kinds & 2 ? max.first : nullptr).number("maxMapStep", max.step);
    call.pointer("min", &extremes[0]).pointer("max", &extremes[1]);
    ASSERT_EQ(call.run(), lumStatusOk);

    const model::Image image = src.twinIn(src_);
    T right[2] = {model::load<T>(image.first, 0), model::load<T>(image.first, 0)};
    if (kinds & 1) right[0] = model::blockExtremes<T>(false, image, roi, block, min.twinIn(min_));
    if (kinds & 2) right[1] = model::blockExtremes<T>(true, image, roi, block, max.twinIn(max_));
    const auto what = ::testing::Message()
                      << name << " case " << index << ": " << roi.width << " x " << roi.height
                      << ", blocks of " << block.width << " x " << block.height;
    for (const Arena* arena : {&src_, &min_, &max_})
      EXPECT_EQ(arena->firstDifference(arena->begin(), arena->end()), nullptr) << what;
    EXPECT_EQ(extremes[0], right[0]) << what;
    EXPECT_EQ(extremes[1], right[1]) << what;
  }

 private:
  Arena src_{(kWidest * 4 + 32) * kHighest}, min_{(kWidest * 4 + 32) * kHighest},
      max_{(kWidest * 4 + 32) * kHighest};
};

TEST(BlockMinMax, AsTheModel) {
  Blocks blocks;
  for (int i = 0; i < settings().scaled(400) && !::testing::Test::HasFailure(); ++i) {
    blocks.run<Lum8u>("8u", i);
    blocks.run<Lum16u>("16u", i);
    blocks.run<Lum16s>("16s", i);
    blocks.run<Lum32f>("32f", i);
  }
}

// 2 x 2 entries, the last ones of blocks one sample wide or high.
TEST(BlockMinMax, EdgesHaveWhatIsLeft) {
  std::vector<Lum8u> image(17 * 17, 50);
  image[16] = 3;
  image[16 * 17] = 90;
  image[17 * 17 - 1] = 60;
  Lum8u least[4], greatest[4], min, max;
  ASSERT_EQ(lumiBlockMinMax_8u_C1R(image.data(), 17, {17, 17}, least, 2, greatest, 2, {16, 16}, &min, &max),
            lumStatusOk);
  const Lum8u leasts[] = {50, 3, 50, 60}, greatests[] = {50, 50, 90, 60};
  EXPECT_TRUE(std::equal(least, least + 4, leasts));
  EXPECT_TRUE(std::equal(greatest, greatest + 4, greatests));
  EXPECT_EQ(min, 3);
  EXPECT_EQ(max, 90);
}

TEST(BlockMinMax, WithoutAMapTheFirstSampleStays) {
  const Lum16s image[] = {5, 9, -4, 7};
  Lum16s entry, min, max;
  ASSERT_EQ(lumiBlockMinMax_16s_C1R(image, 8, {4, 1}, &entry, 2, nullptr, 0, {4, 1}, &min, &max),
            lumStatusOk);
  EXPECT_EQ(min, -4);
  EXPECT_EQ(max, 5);
  ASSERT_EQ(lumiBlockMinMax_16s_C1R(image, 8, {4, 1}, nullptr, 0, &entry, 2, {4, 1}, &min, nullptr),
            lumStatusOk);
  EXPECT_EQ(min, 5);
  EXPECT_EQ(entry, 9);
}

TEST(BlockMinMax, OfInfinitiesAndNaNs) {
  constexpr Lum32f inf = std::numeric_limits<Lum32f>::infinity(),
                   nan = std::numeric_limits<Lum32f>::quiet_NaN();
  for (const int width : {3, 8, 21}) {
    std::vector<Lum32f> image(static_cast<size_t>(width), inf);
    Lum32f least, greatest, min, max;
    const auto run = [&] {
      return lumiBlockMinMax_32f_C1R(image.data(), width * 4, {width, 1}, &least, 4, &greatest, 4, {32, 2},
                                     &min, &max);
    };
    ASSERT_EQ(run(), lumStatusOk);
    EXPECT_EQ(least, inf);
    EXPECT_EQ(min, inf);
    image[1] = nan;
    image[2] = -inf;
    ASSERT_EQ(run(), lumStatusOk);
    EXPECT_EQ(least, -inf);
    EXPECT_EQ(greatest, inf);
    EXPECT_EQ(max, inf);
  }
}

// Of two faults the first in the order is told, and nothing is stored.
TEST(BlockMinMax, StatusesInTheirOrder) {
  const std::vector<Lum16u> image(70, 7);
  Lum16u least[40], greatest[40], extremes[2];
  const struct {
    LumStatus status;
    std::function<void(NamedCall&)> make;
  } faults[] = {
      {lumStatusNullPointer, [](NamedCall& c) { c.pointer("src", nullptr); }},
      {lumStatusNullPointer, [](NamedCall& c) { c.pointer("minMap", nullptr).pointer("maxMap", nullptr); }},
      {lumStatusBadSize,
       [](NamedCall& c) {
         c.size("roi", {0, 7});
       }},
      {lumStatusBadSize,
       [](NamedCall& c) {
         c.size("roi", {10, 0});
       }},
      {lumStatusBadSize,
       [](NamedCall& c) {
         c.size("blockSize", {0, 2});
       }},
      {lumStatusBadSize,
       [](NamedCall& c) {
         c.size("blockSize", {3, -1});
       }},
      {lumStatusBadStep, [](NamedCall& c) { c.number("srcStep", 19); }},
      {lumStatusBadStep, [](NamedCall& c) { c.number("minMapStep", 7); }},
      {lumStatusBadStep, [](NamedCall& c) { c.number("maxMapStep", 7); }},
  };
  for (size_t i = 0; i < std::size(faults); ++i)
    for (size_t j = i; j < std::size(faults); ++j) {
      for (auto* each : {least, greatest, extremes}) std::fill(each, each + 2, Lum16u{1234});
      NamedCall call("lumiBlockMinMax_16u_C1R");
      call.image("src", image.data(), 20).size("roi", {10, 7}).size("blockSize", {3, 2});
      call.pointer("minMap", least)
          .number("minMapStep", 8)
          .pointer("maxMap", greatest)
          .number("maxMapStep", 8);
      call.pointer("min", &extremes[0]).pointer("max", &extremes[1]);
      faults[j].make(call);
      faults[i].make(call);
      EXPECT_EQ(call.run(), faults[i].status) << i << " " << j;
      for (auto* each : {least, greatest, extremes}) EXPECT_EQ(*each, 1234) << i << " " << j;
    }
}

TEST(BlockMinMax, StepOfAMapThatIsNotThereIsNotLookedAt) {
  const Lum8u image[] = {1, 2};
  Lum8u entries[2];
  EXPECT_EQ(lumiBlockMinMax_8u_C1R(image, 2, {2, 1}, entries, 2, nullptr, -5, {1, 1}, nullptr, nullptr),
            lumStatusOk);
  EXPECT_EQ(entries[1], 2);
}

}  // namespace
}  // namespace test
