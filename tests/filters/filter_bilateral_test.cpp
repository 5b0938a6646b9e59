// SPDX-License-Identifier: MIT
// Bilateral filters against the model, in exactly the memory that is promised, and their objects.
#include "lumi/filter_bilateral.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <type_traits>
#include <vector>

#include "filters/placed_image.hpp"
#include "model/filters/bilateral.hpp"
#include "support/member.hpp"
#include "support/object_memory.hpp"
#include "support/settings.hpp"

namespace test {
namespace {

const bool covered = addCovered({"lumiFilterBilateralBorderGetBufferSize", "lumiFilterBilateralBorderInit",
                                 "lumiFilterBilateralBorder_8u_C1R", "lumiFilterBilateralBorder_8u_C3R",
                                 "lumiFilterBilateralBorder_32f_C1R", "lumiFilterBilateralBorder_32f_C3R",
                                 "lumiFilterBilateralGetBufSize_8u_C1R", "lumiFilterBilateralInit_8u_C1R",
                                 "lumiFilterBilateral_8u_C1R"});

struct Trial {
  LumiSize roi;
  int radius, channels, border;
  float valueVariance, positionVariance;
  bool hasValue;
};

template <typename T>
constexpr LumiDataType kDataType = sizeof(T) == 1 ? lumiData8u : lumiData32f;

template <typename T>
NamedCall sizesOf(const Trial& t) {
  NamedCall call("lumiFilterBilateralBorderGetBufferSize");
  call.number("filterType", 100).size("roi", t.roi).number("radius", t.radius);
  return call.number("dataType", kDataType<T>).number("channels", t.channels).number("distanceMethod", 2);
}

template <typename T>
NamedCall initOf(const Trial& t) {
  NamedCall call("lumiFilterBilateralBorderInit");
  call.number("filterType", 100).size("roi", t.roi).number("radius", t.radius);
  call.number("dataType", kDataType<T>).number("channels", t.channels).number("distanceMethod", 2);
  return call.number("valueVariance", t.valueVariance).number("positionVariance", t.positionVariance);
}

std::vector<float> floatsAt(const Byte* p, size_t count) {
  std::vector<float> floats(count);
  for (size_t i = 0; i < count; ++i) floats[i] = model::load<float>(p, static_cast<int>(i));
  return floats;
}

// The object in its memory, by the layout that it has.
struct Object {
  std::vector<float> values, positions;

  Object(const GuardedBlock& memory, const Trial& t, bool isOfBytes) {
    const Byte* const first = memory.at() + memory.at()[0];
    EXPECT_EQ(reinterpret_cast<uintptr_t>(first) % 8, 0U);
    EXPECT_GE(memory.at()[0], 1);
    EXPECT_LE(memory.at()[0], 8);
    const int header[] = {0x4B61738D, 100, 2, isOfBytes ? 1 : 13, t.channels, t.radius};
    EXPECT_EQ(std::memcmp(first, header, sizeof header), 0);
    EXPECT_EQ(floatsAt(first + 24, 2), (std::vector<float>{t.valueVariance, t.positionVariance}));
    values = floatsAt(first + 32, isOfBytes ? static_cast<size_t>(256 * t.channels) : 0);
    const size_t n = t.radius == 1 ? 1 : t.radius == 2 ? 3 : model::disc(t.radius).size();
    positions = floatsAt(first + 32 + 4 * values.size(), n);
    EXPECT_EQ(memory.bytes(), static_cast<int>(4 * (values.size() + n)) + (isOfBytes ? 40 : 44));
  }
};

template <typename T>
T anySample(Random& random, bool areAlike) {
  if constexpr (std::is_floating_point_v<T>)
    return static_cast<T>(random.between(-1000, 1000)) / (areAlike ? 1000 : 7);
  else
    return static_cast<T>(areAlike ? random.between(100, 120) : random.between(0, 255));
}

Trial anyTrial(Random& random, int channels, int index) {
  const std::vector<int> flags = {0, 0, 0, 0x10, 0x20, 0x40, 0x80, 0xF0, 0x100, random.between(0, 15) * 16};
  Trial t{};
  t.roi = {index < 20 ? 1 + index : random.between(1, 60), random.between(1, 6)};
  if (index == 20) t.roi = {random.between(100, 150), 9};
  t.radius = index % 4 < 3 ? 1 + index % 4 : random.between(4, 8);
  t.channels = channels;
  t.border = random.pick(std::vector<int>{0, 1, 6}) | random.pick(flags);
  t.valueVariance = random.pick(std::vector<float>{0.01F, 30, 400, 1e6F});
  t.positionVariance = random.pick(std::vector<float>{0.5F, 4, 1e5F});
  t.hasValue = !random.oneIn(3);
  return t;
}

// The object's own tables are those of the formula, rounded once.
void expectTables(const Object& object, const Trial& t) {
  const auto expectNear = [](float got, double right) {
    ASSERT_LE(std::fabs(static_cast<double>(got) - right), right * 0x1.01p-24 + 0x1p-149);
  };
  const std::vector<double> positions =
      model::positionWeights(t.radius, static_cast<double>(t.positionVariance));
  for (size_t i = 0; i < positions.size(); ++i)
    ASSERT_NO_FATAL_FAILURE(expectNear(object.positions[i], positions[i]));
  bool isCut = false;
  for (size_t i = 0; i < object.values.size(); ++i) {
    const auto squared = static_cast<double>(i) * static_cast<double>(i);
    float right = static_cast<float>(std::exp(-squared / (2 * static_cast<double>(t.valueVariance))));
    if (right < 1e-10F) right = 0;
    if (t.radius == 1) right *= object.positions[0];
    isCut = isCut || right < 1e-10F;
    if (isCut)
      ASSERT_EQ(object.values[i], 0) << i;
    else  // which rounding makes differ by one place, and the product by another
      ASSERT_LE(std::fabs(object.values[i] - right), right * 0x1p-22F) << i;
  }
}

template <typename T>
void expectModel(Random& random, const Arena& arena, const Trial& t) {
  ObjectSteps steps(random);
  int bytes = 0;
  ASSERT_EQ(steps.init(sizesOf<T>(t).pointer("bufferSize", &bytes), "specSize", initOf<T>(t), "spec"), "");
  ASSERT_EQ(steps.makeScratch(sizesOf<T>(t).pointer("specSize", &bytes), "bufferSize"), "");
  const Object object(steps.object(), t, sizeof(T) == 1);
  ASSERT_NO_FATAL_FAILURE(expectTables(object, t));
  const auto reach = [&](int flag) { return (t.border & 15) == 6 || (t.border & flag) != 0 ? t.radius : 0; };
  const bool areAlike = random.oneIn(2);
  const auto sample = [&] { return anySample<T>(random, areAlike); };
  const model::Image src =
      placed<T>(random, arena, t.roi, t.channels, {reach(64), reach(16), reach(128), reach(32)}, sample);
  const T value[3] = {sample(), sample(), sample()};
  const T* const outside = t.hasValue ? value : nullptr;
  const int row = t.roi.width * t.channels * static_cast<int>(sizeof(T)), step = row + random.below(3);
  const GuardedBlock result(step * (t.roi.height - 1) + row, random.below(40), random);
  const std::string name = "lumiFilterBilateralBorder_" + std::string(sizeof(T) == 1 ? "8u" : "32f") + "_C" +
                           std::to_string(t.channels) + "R";
  NamedCall call(name);
  call.image("src", src.first, src.step).image("dst", result.at(), step).size("roi", t.roi);
  call.number("border", t.border).pointer("borderValue", outside);
  ASSERT_EQ(steps.run(call, "spec", "buffer"), "");
  ASSERT_TRUE(result.staysInside());
  const model::BilateralImage image{src, t.roi, t.channels, t.border};
  for (int y = 0; y < t.roi.height; ++y)
    for (int i = 0; i < t.roi.width * t.channels; ++i) {
      const int x = i / t.channels, c = i % t.channels;
      const T got = model::load<T>(result.at() + ptrdiff_t{y} * step, i);
      if constexpr (sizeof(T) == 1) {
        ASSERT_EQ(got,
                  model::bilateralByte(image, t.radius, object.values, object.positions, outside, x, y, c))
            << x << ", " << y;
      } else {
        const model::BoundedMean mean = model::bilateralFloat(
            image, t.radius, static_cast<double>(t.valueVariance), object.positions, outside, x, y, c);
        ASSERT_LE(std::fabs(static_cast<double>(got) - mean.right), mean.tolerance) << x << ", " << y;
      }
    }
}

TEST(BilateralBorder, IsTheModel) {
  Random random(settings().seed);
  const Arena arena(1 << 17);
  for (const int channels : {1, 3})
    for (int i = 0; i < 32; ++i) {
      const Trial t = anyTrial(random, channels, i);
      ASSERT_NO_FATAL_FAILURE(expectModel<Lum8u>(random, arena, t)) << i << " of " << channels;
      ASSERT_NO_FATAL_FAILURE(expectModel<Lum32f>(random, arena, t)) << i << " of " << channels;
    }
}

// Runs on an image of any sample, with the replicated border.
template <typename T>
std::vector<T> filtered(const std::vector<T>& image, const Trial& t) {
  int specBytes = 0, bufferBytes = 0;
  EXPECT_EQ(lumiFilterBilateralBorderGetBufferSize(100, t.roi, t.radius, kDataType<T>, 1, 2, &specBytes,
                                                   &bufferBytes),
            lumStatusOk);
  std::vector<Byte> object(static_cast<size_t>(specBytes)), buffer(static_cast<size_t>(bufferBytes));
  auto* const spec = reinterpret_cast<LumiFilterBilateralBorderSpec*>(object.data());
  EXPECT_EQ(lumiFilterBilateralBorderInit(100, t.roi, t.radius, kDataType<T>, 1, 2, t.valueVariance,
                                          t.positionVariance, spec),
            lumStatusOk);
  std::vector<T> result(image.size());
  const int step = t.roi.width * static_cast<int>(sizeof(T));
  if constexpr (sizeof(T) == 1)
    EXPECT_EQ(lumiFilterBilateralBorder_8u_C1R(image.data(), step, result.data(), step, t.roi, 1, nullptr,
                                               spec, buffer.data()),
              lumStatusOk);
  else
    EXPECT_EQ(lumiFilterBilateralBorder_32f_C1R(image.data(), step, result.data(), step, t.roi, 1, nullptr,
                                                spec, buffer.data()),
              lumStatusOk);
  return result;
}

// Flat images, any image where nothing counts but what does not differ, and variances of any kind.
TEST(BilateralBorder, WhatStaysAsItWas) {
  const std::vector<Lum8u> flat(12 * 9, 77);
  const std::vector<Lum32f> flatFloats(12 * 9, 0.1F);
  std::vector<Lum8u> ramp(12 * 9);
  for (size_t i = 0; i < ramp.size(); ++i) ramp[i] = static_cast<Lum8u>(2 * i);
  for (int radius = 1; radius < 8; ++radius) {
    EXPECT_EQ(filtered(flat, {{12, 9}, radius, 1, 1, 50, 3, false}), flat);
    EXPECT_EQ(filtered(flatFloats, {{12, 9}, radius, 1, 1, 50, 3, false}), flatFloats);
    for (const float none : {0.01F, 1e-30F, 0.0F})
      EXPECT_EQ(filtered(ramp, {{12, 9}, radius, 1, 1, none, 3, false}), ramp) << none;
  }
  const float nan = std::numeric_limits<float>::quiet_NaN();
  for (const float odd : {-1.0F, -1e-30F, nan, std::numeric_limits<float>::infinity()}) {
    filtered(ramp, {{12, 9}, 3, 1, 1, odd, odd, false});
    filtered(flatFloats, {{12, 9}, 3, 1, 1, odd, odd, false});
  }
}

TEST(BilateralBorder, SizesOfBuffers) {
  int spec = 0, buffer = 0;
  const auto ask = [&](LumiSize roi, int radius, LumiDataType type, int channels) {
    EXPECT_EQ(lumiFilterBilateralBorderGetBufferSize(100, roi, radius, type, channels, 2, &spec, &buffer),
              lumStatusOk);
  };
  ask({640, 480}, 3, lumiData8u, 1);
  EXPECT_EQ(spec, (256 + 29) * 4 + 40);
  EXPECT_EQ(buffer, 5824 + 60 * 64 + 45 * 64);  // 9 * 646 = 5814 padded; 1951 / 32 and 1471 / 32
  ask({6, 480}, 3, lumiData8u, 3);
  EXPECT_EQ(spec, (768 + 29) * 4 + 40);
  EXPECT_EQ(buffer, 17504);  // 3 * 12 * 486 is 17496
  ask({640, 480}, 2, lumiData32f, 1);
  EXPECT_EQ(spec, 3 * 4 + 44);
  EXPECT_EQ(buffer, 5184 + 15456 + 160 * 64 + 120 * 64);
}

TEST(GridBilateral, IsTheModel) {
  Random random(settings().seed);
  const Arena arena(1 << 17);
  for (int i = 0; i < 60; ++i) {
    const LumiSize roi = {random.between(1, 50), random.between(1, 5)};
    LumiSize mask = {random.between(1, 13), random.between(1, 13)};
    const float values = random.pick(std::vector<float>{0.1F, 20, 900, 1e6F});
    const float positions = random.pick(std::vector<float>{0.5F, 9, 1e4F});
    const int step = random.between(1, 4), type = random.between(100, 101);
    ObjectSteps steps(random);
    NamedCall query("lumiFilterBilateralGetBufSize_8u_C1R"), init("lumiFilterBilateralInit_8u_C1R");
    query.number("filterType", type).size("roi", roi).size("maskSize", mask);
    init.number("filterType", type).size("maskSize", mask).number("step", step);
    init.number("valueSigma", values).number("positionSigma", positions);
    ASSERT_EQ(steps.init(query, "size", init, "spec"), "");
    const auto weight = [](int d, double sigma) {
      return static_cast<float>(std::exp(-0.5 / sigma * d * d));
    };
    const double points = static_cast<double>(mask.width) * mask.height;
    const double end =
        std::trunc(std::sqrt(static_cast<double>(values) * 1.42 * (std::log(points) + 6.3))) + 1;
    const std::vector<float> ofValues = floatsAt(steps.object().at() + 16, 256);
    for (int d = 0; d < 256; ++d)
      ASSERT_FLOAT_EQ(ofValues[static_cast<size_t>(d)], d < end ? weight(d, static_cast<double>(values)) : 0)
          << d;
    const auto reached = [=](int side) { return (side - 1) / 2 / step * step; };
    const int most = std::max(reached(mask.width), reached(mask.height));
    const std::vector<float> ofPositions =
        floatsAt(steps.object().at() + 16 + 1024, static_cast<size_t>(most) + 1);
    for (int d = 0; d <= most; ++d)
      ASSERT_FLOAT_EQ(ofPositions[static_cast<size_t>(d)], weight(d, static_cast<double>(positions))) << d;
    // A run's mask may be smaller, or larger than the object's, which then counts.
    if (random.oneIn(3)) mask = {random.between(1, 20), random.between(1, 20)};
    const int reachX = std::min(reached(mask.width), most), reachY = std::min(reached(mask.height), most);
    const model::Image src = placed<Lum8u>(random, arena, roi, 1, {reachX, reachY, reachX, reachY},
                                           [&] { return static_cast<Lum8u>(random.next()); });
    std::vector<Lum8u> result(static_cast<size_t>(roi.width * roi.height));
    NamedCall call("lumiFilterBilateral_8u_C1R");
    call.image("src", src.first, src.step).image("dst", result.data(), roi.width).size("roi", roi);
    ASSERT_EQ(steps.run(call.size("maskSize", mask), "spec", ""), "");
    for (int y = 0; y < roi.height; ++y)
      for (int x = 0; x < roi.width; ++x)
        ASSERT_EQ(result[static_cast<size_t>(y * roi.width + x)],
                  model::gridBilateral(src, reachX, reachY, step, ofValues, ofPositions, x, y))
            << x << ", " << y << " of " << i;
  }
}

}  // namespace
}  // namespace test
