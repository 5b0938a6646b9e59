// SPDX-License-Identifier: MIT
// Gradients with a border: against the model with every border, sizes of buffers, statuses.
#include "lumi/filter_gradient_border.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <string>
#include <type_traits>
#include <vector>

#include "model/filters/border_place.hpp"
#include "model/filters/filter_fixed.hpp"
#include "support/member.hpp"
#include "support/named_faults.hpp"

namespace test {
namespace {

int padded(int bytes) { return (bytes + 31) / 32 * 32; }

// The smallest buffer that serves; sizes here are far below what an int holds.
int bufferBytes(LumiSize roi, int mask, int sampleBytes) {
  const int around = mask == 33 ? 2 : 4, held = mask == 33 ? 3 : 7;
  const int samples = (std::max(roi.width, roi.height) + around) * held;
  if (sampleBytes == 1) return padded(samples) + 32;
  return padded(padded(samples * sampleBytes) + around * padded(4 * roi.width) +
                padded((roi.width + roi.height) * around * sampleBytes)) +
         32;
}

const std::vector<Value> kBorders = [] {
  std::vector<Value> borders;
  for (const int type : {0, 1, 3, 4, 6})
    for (const int flags : {0, 0, 0x10, 0x20, 0x40, 0x80, 0x50, 0xF0})
      borders.push_back({{static_cast<double>(type | flags)}});
  return borders;
}();

template <typename S, typename D>
constexpr bool kFilters =
    std::is_same_v<S, D> ? !std::is_same_v<S, Lum8u> : std::is_same_v<S, Lum8u> && std::is_same_v<D, Lum16s>;

// `kernel` is the model's name of the filter.
void add(const std::string& operation, const std::string& kernel) {
  const bool five = kernel.find("Sobel") == 0;
  const auto describe = [&](Member& m, auto s, auto d) {
    using S = decltype(s);
    using D = decltype(d);
    m.contents = kAnyContents;
    m.floatResults = std::is_floating_point_v<D>;
    m.separateRows = true;
    m.wholeSteps = true;
    m.mayStream = false;
    m.heights = {1, 2, 3, 5, 17};
    m.rounds = 3;
    m.choose("maskSize", five ? std::vector<Value>{{{33}}, {{55}}} : std::vector<Value>{{{33}}});
    m.choose("border", kBorders);
    m.choose("borderValue", {{{0}}, {{7}}, {{200}}});
    m.scratch("buffer", [bytes = m.sampleBytes](const Call& c) {
      return bufferBytes(c.roi, static_cast<int>(c.number("maskSize")), bytes);
    });
    m.surroundings = [=](const Call& c) -> Member::Surroundings {
      const int border = static_cast<int>(c.number("border"));
      const int reach = c.number("maskSize") == 33 ? 1 : 2;
      const auto side = [=](int flag) { return (border & 15) == 6 || border & flag ? reach : 0; };
      const bool roberts = kernel.find("Roberts") == 0;
      return {kernel == "RobertsUp" ? 0 : side(64), side(16), kernel == "RobertsDown" ? 0 : side(128),
              roberts ? 0 : side(32)};
    };
    if constexpr (kFilters<S, D>)
      m.model = [=](const Call& c) {
        const model::FixedFilter<S, D> filter(kernel, c.number("maskSize") == 33 ? 3 : 5);
        const model::Bordered<S> image{c.srcImage(), c.roi, static_cast<int>(c.number("border")),
                                       static_cast<S>(c.number("borderValue"))};
        for (int y = 0; y < c.roi.height; ++y)
          for (int x = 0; x < c.roi.width; ++x)
            model::store<D>(c.dstImage().row(y), x,
                            filter([&](int dx, int dy) { return image(x + dx, y + dy); }));
      };
  };
  addModelTests(membersOf(operation, describe, Types<Lum8u, Lum16s, Lum32f>()));
}

struct Operation {
  const char *name, *kernel;
};
constexpr Operation kOperations[] = {
    {"FilterSobelHorizBorder", "SobelHoriz"},       {"FilterSobelVertBorder", "SobelVert"},
    {"FilterPrewittHorizBorder", "PrewittHoriz"},   {"FilterPrewittVertBorder", "PrewittVert"},
    {"FilterScharrHorizMaskBorder", "ScharrHoriz"}, {"FilterScharrVertMaskBorder", "ScharrVert"},
    {"FilterRobertsDownBorder", "RobertsDown"},     {"FilterRobertsUpBorder", "RobertsUp"}};

const bool added = [] {
  for (const auto& [name, kernel] : kOperations) {
    add(name, kernel);
    addCovered({std::string("lumi") + name + "GetBufferSize"});
  }
  for (const char* side : {"Horiz", "Vert"})
    for (const char* type : {"8u16s", "32f"})
      addCovered({std::string("lumiFilterSobel") + side + "GetBufferSize_" + type + "_C1R"});
  return true;
}();

TEST(GradientBorders, BufferSizes) {
  int bytes = 0;
  for (const LumiSize area : {LumiSize{1, 1}, LumiSize{640, 480}, LumiSize{13, 200}}) {
    for (const int mask : {33, 55}) {
      EXPECT_EQ(lumiFilterSobelVertBorderGetBufferSize(area, mask, lumiData8u, lumiData16s, 1, &bytes),
                lumStatusOk);
      EXPECT_EQ(bytes, bufferBytes(area, mask, 1));
      EXPECT_EQ(lumiFilterSobelHorizBorderGetBufferSize(area, mask, lumiData16s, lumiData16s, 1, &bytes),
                lumStatusOk);
      EXPECT_EQ(bytes, bufferBytes(area, mask, 2));
      EXPECT_EQ(lumiFilterSobelHorizGetBufferSize_8u16s_C1R(area, mask, &bytes), lumStatusOk);
      EXPECT_EQ(bytes, bufferBytes(area, mask, 1));
      EXPECT_EQ(lumiFilterSobelVertGetBufferSize_32f_C1R(area, mask, &bytes), lumStatusOk);
      EXPECT_EQ(bytes, bufferBytes(area, mask, 4));
    }
    EXPECT_EQ(lumiFilterRobertsUpBorderGetBufferSize(area, 33, lumiData32f, lumiData32f, 1, &bytes),
              lumStatusOk);
    EXPECT_EQ(bytes, bufferBytes(area, 33, 4));
  }
  EXPECT_EQ(lumiFilterSobelHorizGetBufferSize_8u16s_C1R({640, 480}, 33, &bytes), lumStatusOk);
  EXPECT_EQ(bytes, 1952 + 32);  // 1926 padded
}

TEST(GradientBorders, FaultsOfRuns) {
  for (const auto& [name, kernel] : kOperations)
    for (const std::string types : {"8u16s", "16s", "32f"}) {
      std::vector<NamedFault> faults = {
          nullFault("src"),
          nullFault("dst"),
          nullFault("buffer"),
          {[](NamedCall& c) {
             c.size("roi", {0, 3});
           },
           lumStatusBadSize},
          {[](NamedCall& c) {
             c.size("roi", {3, -1});
           },
           lumStatusBadSize},
          {[](NamedCall& c) { c.number("dstStep", 65); }, lumStatusOddStep},
      };
      if (types != "8u16s")
        faults.push_back({[](NamedCall& c) { c.number("srcStep", 65); }, lumStatusOddStep});
      for (const int mask : {0, 13, 35, 53, kernel[0] == 'S' && kernel[1] == 'o' ? 15 : 55})
        faults.push_back({[=](NamedCall& c) { c.number("maskSize", mask); }, lumStatusBadMaskSize});
      for (const int border : {2, 5, 7, 0x12, 0xFF, -1, 0x100, 0x103, 0x7FFFFFF0})
        faults.push_back({[=](NamedCall& c) { c.number("border", border); }, lumStatusBadArgument});
      alignas(8) unsigned char image[4 * 64] = {}, result[4 * 64] = {}, buffer[4096] = {};
      NamedCall right("lumi" + std::string(name) + "_" + types + "_C1R");
      right.image("src", image, 64).image("dst", result, 64).size("roi", {3, 3}).number("maskSize", 33);
      right.number("border", lumiBorderMirror).number("borderValue", 0).pointer("buffer", buffer);
      expectInOrder(right, faults, [&](LumStatus) {
        ASSERT_TRUE(std::all_of(std::begin(result), std::end(result), [](int byte) { return byte == 0; }));
      });
      std::fill(std::begin(image) + 64, std::begin(image) + 72, Lum8u{1});
      EXPECT_EQ(right.run(), lumStatusOk);
    }
}

TEST(GradientBorders, FaultsOfSizes) {
  for (const auto& [name, kernel] : kOperations) {
    const bool sobel = std::string(kernel).find("Sobel") == 0;
    std::vector<NamedFault> faults;
    const auto masks = [&] {
      for (const int mask : {0, 13, 35, sobel ? 15 : 55})
        faults.push_back({[=](NamedCall& c) { c.number("maskSize", mask); }, lumStatusBadMaskSize});
    };
    if (!sobel) masks();
    faults.push_back(nullFault("bufferSize"));
    faults.push_back({[](NamedCall& c) { c.size("area", {0, 1}); }, lumStatusBadSize});
    faults.push_back({[](NamedCall& c) { c.size("area", {1, 0}); }, lumStatusBadSize});
    if (sobel) masks();
    for (const int type : {0, 5, 11, 13})
      faults.push_back({[=](NamedCall& c) { c.number("srcType", type); }, lumStatusBadDataType, 1});
    for (const int type : {0, 1, 13})
      faults.push_back({[=](NamedCall& c) { c.number("dstType", type); }, lumStatusBadDataType, 1});
    for (const int channels : {0, 3, 4})
      faults.push_back({[=](NamedCall& c) { c.number("channels", channels); }, lumStatusBadChannelCount});
    int bytes = -21;
    NamedCall right("lumi" + std::string(name) + "GetBufferSize");
    right.size("area", {9, 9}).number("maskSize", 33).number("srcType", 7).number("dstType", 7);
    right.number("channels", 1).pointer("bufferSize", &bytes);
    expectInOrder(right, faults, [&](LumStatus) { ASSERT_EQ(bytes, -21); });
    EXPECT_EQ(right.run(), lumStatusOk);
  }
}

}  // namespace
}  // namespace test
