// SPDX-License-Identifier: MIT
// Wiener filters against the model, with given and with estimated noise, and statuses.
#include "lumi/filter_wiener.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <limits>
#include <string>
#include <type_traits>
#include <vector>

#include "filters/placed_image.hpp"
#include "model/filters/wiener.hpp"
#include "support/member.hpp"
#include "support/named_faults.hpp"
#include "support/object_memory.hpp"
#include "support/settings.hpp"

namespace test {
namespace {

struct Layout {
  const char* name;
  int stored, used;
};
constexpr Layout kLayouts[] = {{"C1R", 1, 1}, {"C3R", 3, 3}, {"C4R", 4, 4}, {"AC4R", 4, 3}};

template <typename T>
std::string nameOf(const Layout& layout) {
  const char* const type = sizeof(T) == 1 ? "8u" : sizeof(T) == 2 ? "16s" : "32f";
  return std::string("lumiFilterWiener_") + type + "_" + layout.name;
}

const bool covered = [] {
  for (const Layout& layout : kLayouts)
    addCovered({nameOf<Lum8u>(layout), nameOf<Lum16s>(layout), nameOf<Lum32f>(layout)});
  return addCovered({"lumiFilterWienerGetBufferSize"});
}();

struct Trial {
  LumiSize roi, mask;
  LumiPoint anchor;
  Layout layout;
  std::array<float, 4> noise;
  bool isFlat;
};

Trial anyTrial(Random& random, const Layout& layout, int index) {
  Trial t{};
  t.layout = layout;
  t.roi = {index < 16 ? 1 + index : random.between(1, 80), random.between(1, 7)};
  if (index == 16) t.roi = {random.between(130, 200), 2};
  t.mask = {random.between(2, 7), random.between(2, 7)};
  if (index == 17) t.mask = {random.between(20, 90), random.between(10, 30)};
  t.anchor = {random.below(t.mask.width), random.below(t.mask.height)};
  const bool isGiven = !random.oneIn(3);
  for (float& noise : t.noise)
    noise = isGiven ? random.pick(std::vector<float>{0, 1e-6F, 0.001F, 0.05F, 0.9999F}) : 1.19e-7F;
  if (isGiven) t.noise[static_cast<size_t>(random.below(layout.used))] = 0.02F;
  t.isFlat = random.oneIn(6);
  return t;
}

template <typename T>
T anySample(Random& random, int spread) {
  if constexpr (std::is_floating_point_v<T>)
    return static_cast<T>(random.between(-1000, 1000)) / 1000;
  else
    return spread == 0 ? static_cast<T>(random.next()) : static_cast<T>(100 + random.below(spread));
}

// Results of integers are the nearest ones but for a few roundings of doubles: only beside a tie may two be
// right. Of floats the sums have errors of 2^-53 of the largest ones for each row and column.
template <typename T>
void expectNear(T got, double right) {
  if constexpr (std::is_floating_point_v<T>)
    ASSERT_LE(std::fabs(static_cast<double>(got) - right), 0x1p-23);
  else
    ASSERT_LE(std::fabs(static_cast<double>(got) - right), 0.5 + 1e-9);
}

template <typename T>
void expectModel(Random& random, const Arena& arena, const Trial& t) {
  int bytes = 0;
  ASSERT_EQ(lumiFilterWienerGetBufferSize(t.roi, t.mask, t.layout.used, &bytes), lumStatusOk);
  const GuardedBlock buffer(bytes, random.below(64), random);
  const int spread = random.oneIn(2) ? 0 : random.between(2, 20);
  const T flat = anySample<T>(random, spread);
  const model::Image src =
      placed<T>(random, arena, t.roi, t.layout.stored,
                {t.anchor.x, t.anchor.y, t.mask.width - 1 - t.anchor.x, t.mask.height - 1 - t.anchor.y},
                [&] { return t.isFlat ? flat : anySample<T>(random, spread); });
  const int row = t.roi.width * t.layout.stored * static_cast<int>(sizeof(T)), step = row + random.below(3);
  const GuardedBlock result(step * (t.roi.height - 1) + row, random.below(40), random);
  const std::vector<Byte> before(result.at(), result.at() + result.bytes());
  std::array<float, 4> noise = t.noise;
  NamedCall call(nameOf<T>(t.layout));
  call.image("src", src.first, src.step).image("dst", result.at(), step).size("roi", t.roi);
  call.size("maskSize", t.mask).point("anchor", t.anchor).pointer("noise", noise.data());
  ASSERT_EQ(call.pointer("buffer", buffer.at()).run(), lumStatusOk);
  ASSERT_TRUE(result.staysInside() && buffer.staysInside());

  const model::WienerWindow window{src, t.mask, t.anchor, t.layout.stored};
  const auto used = noise.begin() + t.layout.used;
  const bool isEstimated = std::all_of(t.noise.begin(), t.noise.begin() + t.layout.used,
                                       [](float x) { return x < 1.1920929e-7F; });
  for (int c = 0; isEstimated && c < t.layout.used; ++c) {
    const double right = model::wienerNoise<T>(window, t.roi, c);
    const auto got = static_cast<double>(noise[static_cast<size_t>(c)]);
    ASSERT_LE(std::fabs(got - right), right * 0x1p-23 + (sizeof(T) == 4 ? 1e-12 : 0)) << c;
    if (t.isFlat && sizeof(T) < 4) {
      ASSERT_EQ(got, 0);
    }
  }
  if (!isEstimated) {
    ASSERT_EQ(noise, t.noise);
  }
  ASSERT_TRUE(std::equal(used, noise.end(), t.noise.begin() + t.layout.used));
  std::vector<Byte> expected = before;
  for (int y = 0; y < t.roi.height; ++y)
    for (int x = 0; x < t.roi.width; ++x)
      for (int c = 0; c < t.layout.used; ++c) {
        const ptrdiff_t at = ptrdiff_t{y} * step;
        const int i = x * t.layout.stored + c;
        const T got = model::load<T>(result.at() + at, i);
        const double right = model::wiener<T>(window, noise[static_cast<size_t>(c)], x, y, c);
        ASSERT_NO_FATAL_FAILURE(expectNear(got, right)) << x << ", " << y << ", " << c;
        model::store<T>(expected.data() + at, i, got);
      }
  // Alpha and what is between rows.
  ASSERT_TRUE(std::equal(expected.begin(), expected.end(), result.at()));
}

TEST(Wiener, IsTheModel) {
  Random random(settings().seed);
  const Arena arena(1 << 18);
  for (const Layout& layout : kLayouts)
    for (int i = 0; i < 24; ++i) {
      const Trial t = anyTrial(random, layout, i);
      ASSERT_NO_FATAL_FAILURE(expectModel<Lum8u>(random, arena, t)) << layout.name << " " << i;
      ASSERT_NO_FATAL_FAILURE(expectModel<Lum16s>(random, arena, t)) << layout.name << " " << i;
      ASSERT_NO_FATAL_FAILURE(expectModel<Lum32f>(random, arena, t)) << layout.name << " " << i;
    }
}

// Sums of squares that need more than 32 bits, and extremes of both signs.
TEST(Wiener, OfExtremes) {
  for (const int least : {-32768, 0}) {
    std::vector<Lum16s> image(40 * 40, 32767), result(4);
    for (size_t i = 0; i < image.size(); i += 2) image[i] = static_cast<Lum16s>(least);
    std::vector<Byte> buffer(2000);
    float noise = 0;
    ASSERT_EQ(lumiFilterWiener_16s_C1R(image.data(), 80, result.data(), 4, {2, 2}, {38, 38}, {0, 0}, &noise,
                                       buffer.data()),
              lumStatusOk);
    const double half = (32767 - least) / 2.0;
    EXPECT_FLOAT_EQ(noise, static_cast<float>(half * half / 4294836224.0));
    for (const Lum16s sample : result) EXPECT_NEAR(sample, (32767 + least) / 2.0, 1);
  }
}

TEST(Wiener, StrongNoiseLeavesTheMean) {
  const std::vector<Lum8u> image = {10, 20, 30, 40, 50, 60, 70, 80, 95};
  std::vector<Byte> buffer(400);
  Lum8u result = 0;
  float noise = 0.9F;
  ASSERT_EQ(lumiFilterWiener_8u_C1R(&image[4], 3, &result, 1, {1, 1}, {3, 3}, {1, 1}, &noise, buffer.data()),
            lumStatusOk);
  EXPECT_EQ(result, 51);  // of 455 / 9
  EXPECT_EQ(noise, 0.9F);
}

TEST(Wiener, SizesOfBuffers) {
  int bytes = -21;
  EXPECT_EQ(lumiFilterWienerGetBufferSize({100, 5}, {3, 9}, 1, &bytes), lumStatusOk);
  EXPECT_EQ(bytes, 108 * 16 + 15);
  EXPECT_EQ(lumiFilterWienerGetBufferSize({100, 5}, {3, 9}, 3, &bytes), lumStatusOk);
  EXPECT_EQ(bytes, 304 * 16 + 15);
  EXPECT_EQ(lumiFilterWienerGetBufferSize({1, 5}, {3, 9}, 4, &bytes), lumStatusOk);
  EXPECT_EQ(bytes, 8 * 16 + 15);
}

NamedFault wrong(const char* name, LumiSize size, LumStatus status) {
  return {[=](NamedCall& c) { c.size(name, size); }, status};
}

TEST(Wiener, FaultsOfSizes) {
  int bytes = -21;
  NamedCall right("lumiFilterWienerGetBufferSize");
  right.size("roi", {9, 9}).size("maskSize", {3, 3}).number("channels", 3).pointer("size", &bytes);
  std::vector<NamedFault> faults = {nullFault("size"), wrong("roi", {0, 9}, lumStatusBadSize),
                                    wrong("roi", {9, 0}, lumStatusBadSize)};
  for (const int channels : {0, 2, 5})
    faults.push_back({[=](NamedCall& c) { c.number("channels", channels); }, lumStatusBadChannelCount});
  faults.push_back(wrong("maskSize", {1, 3}, lumStatusBadMaskSize));
  faults.push_back(wrong("maskSize", {3, 1}, lumStatusBadMaskSize));
  expectInOrder(right, faults, [&](LumStatus) { ASSERT_EQ(bytes, -21); });
  EXPECT_EQ(right.run(), lumStatusOk);
}

TEST(Wiener, FaultsOfRuns) {
  const float nan = std::numeric_limits<float>::quiet_NaN();
  for (const Layout& layout : kLayouts)
    for (const std::string& name : {nameOf<Lum8u>(layout), nameOf<Lum16s>(layout), nameOf<Lum32f>(layout)}) {
      alignas(4) unsigned char image[768] = {}, result[512] = {}, buffer[1024];
      std::array<float, 4> levels[13];
      std::vector<NamedFault> faults = {nullFault("src"), nullFault("dst"), nullFault("noise"),
                                        nullFault("buffer")};
      faults[2].exclusive = 1;
      faults.push_back(wrong("roi", {0, 3}, lumStatusBadSize));
      faults.push_back(wrong("roi", {3, -1}, lumStatusBadSize));
      faults.push_back(wrong("maskSize", {1, 3}, lumStatusBadMaskSize));
      faults.push_back(wrong("maskSize", {3, 1}, lumStatusBadMaskSize));
      for (const LumiPoint at : {LumiPoint{-1, 0}, LumiPoint{3, 0}, LumiPoint{0, -1}, LumiPoint{0, 3}})
        faults.push_back({[=](NamedCall& c) { c.point("anchor", at); }, lumStatusBadAnchor});
      faults.push_back({[](NamedCall& c) { c.number("srcStep", 0); }, lumStatusBadStep});
      faults.push_back({[](NamedCall& c) { c.number("dstStep", -64); }, lumStatusBadStep});
      size_t k = 0;
      for (const float level : {-0.01F, 1.0F, nan})
        for (size_t c = 0; c < static_cast<size_t>(layout.used); ++c) {
          levels[k].fill(0.1F);
          levels[k][c] = level;
          faults.push_back({[p = levels[k].data()](NamedCall& call) { call.pointer("noise", p); },
                            lumStatusBadNoiseLevel, 1});
          ++k;
        }
      std::array<float, 4> noise = {0.1F, 0.1F, 0.1F, 0.1F};
      if (layout.used == 3) noise[3] = -1;  // of no channel
      NamedCall right(name);
      right.image("src", image, 64).image("dst", result, 64).size("roi", {3, 3}).size("maskSize", {3, 3});
      right.point("anchor", {0, 0}).pointer("noise", noise.data()).pointer("buffer", buffer);
      expectInOrder(right, faults, [&](LumStatus) {
        ASSERT_TRUE(std::all_of(std::begin(result), std::end(result), [](int byte) { return byte == 0; }));
      });
      EXPECT_EQ(right.run(), lumStatusOk);
    }
}

}  // namespace
}  // namespace test
