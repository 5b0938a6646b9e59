// SPDX-License-Identifier: MIT
#include "lumi/filter_median.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "model/filters/median.hpp"
#include "support/member.hpp"
#include "support/named_faults.hpp"
#include "support/random.hpp"
#include "support/settings.hpp"

namespace test {
namespace {

bool isPixel(LumiSize mask) { return mask.width == 1 && mask.height == 1; }

// Of one pixel, the window is where the pixel is, wherever its anchor.
LumiPoint anchorOf(const Call& c) {
  return isPixel(c.size("maskSize")) ? LumiPoint{0, 0} : c.point("anchor");
}

bool isInside(LumiPoint anchor, LumiSize mask) { return anchor.x < mask.width && anchor.y < mask.height; }

int bufferBytes(const Call& c, int sampleBytes) {
  const LumiSize mask = c.size("maskSize");
  int bytes = 0;
  auto* const size = sampleBytes == 8 ? lumiFilterMedianGetBufferSize_64f : lumiFilterMedianGetBufferSize_32f;
  EXPECT_EQ(size(c.roi, mask, 1, &bytes), lumStatusOk);
  return bytes;
}

// Every network, and windows around them; more samples than bytes count (17 x 17); single rows and columns,
// one of them higher than a block of samples (31).
std::vector<Value> masks(int pixelBytes) {
  std::vector<Value> all = {{{3, 3}}, {{3, 3}}, {{5, 5}}, {{3, 1}}, {{5, 1}}, {{1, 3}},
                            {{1, 5}}, {{1, 1}}, {{3, 5}}, {{5, 3}}, {{7, 1}}, {{9, 7}}};
  if (pixelBytes <= 8) all.push_back({{1, 9}});
  if (pixelBytes <= 2) all.insert(all.end(), {{{17, 17}}, {{1, 31}}});
  return all;
}

const bool added = addModelTests(membersOf(
    "FilterMedian",
    [](Member& m, auto, auto sample) {
      using T = decltype(sample);
      const bool rowsTold = sizeof(T) == 4 && m.channels.src > 1, hasBuffer = rowsTold || sizeof(T) == 8;
      m.choose("maskSize", masks(m.dst.pixelBytes));
      m.choose("anchor", {{{0, 0}}, {{0, 0}}, {{1, 0}}, {{0, 1}}, {{1, 1}}, {{2, 2}}, {{3, 1}}});
      if (hasBuffer) m.scratch("buffer", [](const Call& c) { return bufferBytes(c, sizeof(T)); });
      m.surroundings = [](const Call& c) -> Member::Surroundings {
        const LumiSize mask = c.size("maskSize");
        const LumiPoint anchor = anchorOf(c);
        if (!isInside(anchor, mask)) return {};
        return {anchor.x, anchor.y, mask.width - 1 - anchor.x, mask.height - 1 - anchor.y};
      };
      m.checksSteps = true;
      m.contents = std::is_floating_point_v<T> ? std::vector<Contents>{Contents::Small} : kAnyContents;
      m.floatResults = std::is_floating_point_v<T>;
      m.separateRows = true;
      m.allocates = true;
      m.withoutMemory.reset();
      m.mayStream = false;
      m.rounds = 4;
      m.model = [=, channels = m.channels](const Call& c) -> LumStatus {
        const LumiSize mask = c.size("maskSize");
        const LumiPoint anchor = anchorOf(c);
        if (!isInside(anchor, mask)) return lumStatusBadAnchor;
        if (rowsTold && c.srcStep < (c.roi.width + mask.width - 1) * channels.src * int{sizeof(T)})
          return lumStatusBadStep;
        model::median<T>(c.srcImage(), c.dstImage(), c.roi, channels, mask, anchor);
        return lumStatusOk;
      };
    },
    Types<Lum8u, Lum16u, Lum16s, Lum32f, Lum64f>()));

const bool covered = addCovered({"lumiFilterMedianGetBufferSize_32f", "lumiFilterMedianGetBufferSize_64f"});

// A call of a member of one channel, on an image with all that its windows cover.
template <typename T>
struct Median {
  LumiSize roi{};
  LumiSize mask{};

  int coveredWidth() const { return roi.width + mask.width - 1; }
  int coveredHeight() const { return roi.height + mask.height - 1; }
  size_t covered() const {
    return static_cast<size_t>(coveredWidth()) * static_cast<size_t>(coveredHeight());
  }

  std::vector<T> run(const std::vector<T>& src) const {
    std::vector<T> dst(static_cast<size_t>(roi.width * roi.height));
    EXPECT_EQ(call(src.data(), coveredWidth() * int{sizeof(T)}, dst.data(), roi.width * int{sizeof(T)}),
              lumStatusOk);
    return dst;
  }
  std::vector<T> expected(const std::vector<T>& src) const {
    std::vector<T> dst(static_cast<size_t>(roi.width * roi.height));
    auto* const bytes = reinterpret_cast<model::Byte*>(const_cast<T*>(src.data()));
    model::median<T>({bytes, coveredWidth() * int{sizeof(T)}},
                     {reinterpret_cast<model::Byte*>(dst.data()), roi.width * int{sizeof(T)}}, roi, {1, 1, 1},
                     mask, {0, 0});
    return dst;
  }

 private:
  LumStatus call(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep) const {
    return lumiFilterMedian_8u_C1R(src, srcStep, dst, dstStep, roi, mask, {0, 0});
  }
  LumStatus call(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep) const {
    return lumiFilterMedian_16u_C1R(src, srcStep, dst, dstStep, roi, mask, {0, 0});
  }
  LumStatus call(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep) const {
    return lumiFilterMedian_16s_C1R(src, srcStep, dst, dstStep, roi, mask, {0, 0});
  }
  LumStatus call(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep) const {
    return lumiFilterMedian_32f_C1R(src, srcStep, dst, dstStep, roi, mask, {0, 0});
  }
  LumStatus call(const Lum64f* src, int srcStep, Lum64f* dst, int dstStep) const {
    Lum8u unused = 0;
    return lumiFilterMedian_64f_C1R(src, srcStep, dst, dstStep, roi, mask, {0, 0}, &unused);
  }
};

template <typename T>
std::vector<T> noise(size_t count, int from, int to) {
  Random random(settings().seed);
  std::vector<T> samples(count);
  for (T& sample : samples) sample = static_cast<T>(random.between(from, to));
  return samples;
}

template <typename Check>
void ofEveryType(const Check& check) {
  check(Lum8u());
  check(Lum16u());
  check(Lum16s());
  check(Lum32f());
  check(Lum64f());
}

// Too many samples, or too many rows, for histograms.
TEST(FilterMedian, TakesWindowsOfAnySize) {
  ofEveryType([](auto any) {
    using T = decltype(any);
    for (const LumiSize mask : {LumiSize{3, 127}, LumiSize{3, 129}, LumiSize{515, 127}, LumiSize{517, 127}}) {
      const Median<T> median{{3, 2}, mask};
      const auto src = noise<T>(median.covered(), -300, 300);
      EXPECT_EQ(median.run(src), median.expected(src)) << mask.width << " x " << mask.height;
    }
  });
}

// More columns than are done together, and more samples than words count.
TEST(FilterMedian, TakesImagesOfAnySize) {
  ofEveryType([](auto any) {
    using T = decltype(any);
    for (const LumiSize roi : {LumiSize{2060, 2}, LumiSize{300, 300}}) {
      const Median<T> median{roi, {3, 5}};
      const auto src = noise<T>(median.covered(), 0, 60000);
      EXPECT_EQ(median.run(src), median.expected(src)) << roi.width << " x " << roi.height;
    }
  });
}

// Counters at their limits.
TEST(FilterMedian, KeepsFlatImages) {
  ofEveryType([](auto any) {
    using T = decltype(any);
    using Limits = std::numeric_limits<T>;
    for (const T sample : {Limits::lowest(), Limits::max(), T{1}})
      for (const LumiSize mask :
           {LumiSize{3, 3}, LumiSize{5, 5}, LumiSize{7, 7}, LumiSize{255, 1}, LumiSize{17, 17}}) {
        const Median<T> median{{5, 3}, mask};
        EXPECT_EQ(median.run(std::vector<T>(median.covered(), sample)), std::vector<T>(15, sample));
      }
  });
}

// An impulse disappears.
TEST(FilterMedian, RemovesAnImpulse) {
  ofEveryType([](auto any) {
    using T = decltype(any);
    const Median<T> median{{5, 5}, {3, 3}};
    std::vector<T> src(median.covered(), T{7});
    src[3 * 7 + 3] = T{100};
    EXPECT_EQ(median.run(src), std::vector<T>(25, T{7}));
  });
}

// Infinities, and zeros of both signs, have their places in the order of floats.
TEST(FilterMedianOfFloats, TakesAnyNumber) {
  const float inf = std::numeric_limits<float>::infinity();
  for (const LumiSize mask : {LumiSize{3, 1}, LumiSize{7, 1}}) {
    const Median<Lum32f> median{{1, 1}, mask};
    std::vector<Lum32f> src(median.covered(), -0.0F);
    src.front() = -inf;
    src.back() = inf;
    EXPECT_EQ(median.run(src).front(), 0);
    std::fill(src.begin() + 1, src.end() - 1, inf);
    EXPECT_EQ(median.run(src).front(), inf);
    std::fill(src.begin() + 1, src.end(), -inf);
    EXPECT_EQ(median.run(src).front(), -inf);
  }
}

// What is no number may be in the way of an order, but no other sample comes out.
TEST(FilterMedianOfFloats, GivesASampleOfTheWindow) {
  const float nan = std::numeric_limits<float>::quiet_NaN();
  for (const LumiSize mask : {LumiSize{3, 3}, LumiSize{5, 5}, LumiSize{7, 1}}) {
    const Median<Lum32f> median{{1, 1}, mask};
    std::vector<Lum32f> src = noise<Lum32f>(median.covered(), 3, 9);
    src[1] = nan;
    const float result = median.run(src).front();
    EXPECT_TRUE(std::isnan(result) || std::count(src.begin(), src.end(), result) > 0) << result;
  }
}

TEST(FilterMedianBuffers, SizesAreTheFormula) {
  int bytes = 0;
  EXPECT_EQ(lumiFilterMedianGetBufferSize_32f({10, 10}, {5, 7}, 3, &bytes), lumStatusOk);
  EXPECT_EQ(bytes, 140);
  EXPECT_EQ(lumiFilterMedianGetBufferSize_64f({10, 10}, {5, 7}, 1, &bytes), lumStatusOk);
  EXPECT_EQ(bytes, 4896);  // 4760 + 144 = 4904
  EXPECT_EQ(lumiFilterMedianGetBufferSize_64f({10, 10}, {1, 1}, 4, &bytes), lumStatusOk);
  EXPECT_EQ(bytes, 272);
}

TEST(FilterMedianFaults, OfFloatsOfSeveralChannels) {
  for (const int channels : {3, 4}) {
    const std::vector<Lum32f> src(100, 1.0F);
    std::vector<Lum32f> dst(100, 2.0F);
    Lum8u buffer[36];
    NamedCall right("lumiFilterMedian_32f_C" + std::to_string(channels) + "R");
    right.image("src", src.data() + channels, 12 * channels).image("dst", dst.data(), 4 * channels);
    right.size("roi", {1, 2}).size("maskSize", {3, 1}).point("anchor", {1, 0}).pointer("buffer", buffer);
    const std::vector<NamedFault> faults = {
        nullFault("src"),
        nullFault("dst"),
        {[](NamedCall& c) {
           c.size("roi", {1, 0});
         },
         lumStatusBadSize},
        {[](NamedCall& c) { c.number("srcStep", 0); }, lumStatusBadStep, 1},
        {[](NamedCall& c) { c.number("dstStep", 0); }, lumStatusBadStep},
        {[](NamedCall& c) {
           c.size("maskSize", {3, 2});
         },
         lumStatusBadMaskSize},
        {[](NamedCall& c) {
           c.point("anchor", {3, 0});
         },
         lumStatusBadAnchor},
        nullFault("buffer"),
        {[=](NamedCall& c) { c.number("srcStep", 12 * channels - 1); }, lumStatusBadStep, 1}};
    expectInOrder(right, faults, [&](LumStatus) {
      ASSERT_EQ(std::count(dst.begin(), dst.end(), 2.0F), 100) << "something was stored";
    });
    EXPECT_EQ(right.run(), lumStatusOk);
    EXPECT_EQ(dst.front(), 1.0F);
  }
}

}  // namespace
}  // namespace test
