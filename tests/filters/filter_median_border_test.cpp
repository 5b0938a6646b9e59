// SPDX-License-Identifier: MIT
// Medians with a border: against the model with every border, in place and not; sizes of buffers; statuses.
#include "lumi/filter_median_border.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "model/filters/border_place.hpp"
#include "model/filters/median.hpp"
#include "support/member.hpp"
#include "support/named_faults.hpp"

namespace test {
namespace {

using BorderTypes = Types<Lum8u, Lum16u, Lum16s, Lum32f>;

template <typename T>
constexpr LumiDataType dataType() {
  if (std::is_floating_point_v<T>) return lumiData32f;
  return sizeof(T) == 1 ? lumiData8u : std::is_signed_v<T> ? lumiData16s : lumiData16u;
}

int bufferBytes(LumiSize roi, LumiSize mask, LumiDataType type) {
  int bytes = -1;
  EXPECT_EQ(lumiFilterMedianBorderGetBufferSize(roi, mask, type, 1, &bytes), lumStatusOk);
  return bytes;
}

std::vector<Value> borders() {
  std::vector<Value> all;
  for (const int type : {0, 1, 6})
    for (const int flags : {0, 0, 0x10, 0x20, 0x40, 0x80, 0x50, 0xA0, 0xE0, 0xF0})
      all.push_back({{static_cast<double>(type | flags)}});
  return all;
}

const bool added = addModelTests(membersOfOneType(
    "FilterMedianBorder",
    [](Member& m, auto sample) {
      using T = decltype(sample);
      m.choose("maskSize", {{{3, 3}},
                            {{3, 3}},
                            {{5, 5}},
                            {{3, 1}},
                            {{5, 1}},
                            {{1, 3}},
                            {{1, 5}},
                            {{1, 1}},
                            {{7, 3}},
                            {{3, 9}}});
      m.choose("border", borders());
      m.choose("borderValue", {{{0}}, {{7}}, {{200}}});
      m.scratch("buffer",
                [](const Call& c) { return bufferBytes(c.roi, c.size("maskSize"), dataType<T>()); });
      m.surroundings = [](const Call& c) -> Member::Surroundings {
        const int border = static_cast<int>(c.number("border"));
        const LumiSize mask = c.size("maskSize");
        const auto side = [=](int flag, int size) {
          return (border & 15) == 6 || border & flag ? size / 2 : 0;
        };
        return {side(64, mask.width), side(16, mask.height), side(128, mask.width), side(32, mask.height)};
      };
      m.contents = std::is_floating_point_v<T> ? std::vector<Contents>{Contents::Small} : kAnyContents;
      m.floatResults = std::is_floating_point_v<T>;
      m.aliasing = Aliasing::SameImage;
      m.surroundingsApart = true;
      m.separateRows = true;
      m.wholeSteps = true;
      m.allocates = true;
      m.withoutMemory.reset();
      m.mayStream = false;
      m.heights = {1, 2, 3, 5, 17};
      m.rounds = 6;
      m.model = [](const Call& c) {
        const LumiSize mask = c.size("maskSize");
        const model::Bordered<T> image{c.srcImage(), c.roi, static_cast<int>(c.number("border")),
                                       static_cast<T>(c.number("borderValue"))};
        std::vector<T> medians;
        for (int y = 0; y < c.roi.height; ++y)
          for (int x = 0; x < c.roi.width; ++x)
            medians.push_back(model::medianOf<T>(mask, [&](int column, int row) {
              return image(x + column - mask.width / 2, y + row - mask.height / 2);
            }));
        for (int y = 0; y < c.roi.height; ++y)
          for (int x = 0; x < c.roi.width; ++x)
            model::store<T>(c.dstImage().row(y), x, medians[static_cast<size_t>(y * c.roi.width + x)]);
      };
    },
    BorderTypes()));

const bool covered = addCovered({"lumiFilterMedianBorderGetBufferSize"});

// Worked by hand, term by term.
TEST(FilterMedianBorder, SizesAreTheFormula) {
  // 2 * 3 * 64, 64 * (2 + 1), 42 * 4 = 168 and 32 * 4 = 128 padded
  EXPECT_EQ(bufferBytes({40, 30}, {3, 3}, lumiData8u), 384 + 192 + 192);
  // 1 * 4 * 21 padded, 2 * 3 * 96, 64 * (3 + 6), 46 * 4 * 2 and 32 * 10 * 2
  EXPECT_EQ(bufferBytes({40, 30}, {7, 3}, lumiData16s), 192 + 576 + 64 * (3 + 6) + 640);
  // A line of floats; nothing above or below it: 4 * 7 padded, 2 * 160, 64 * 12, 30 * 10 * 4
  EXPECT_EQ(bufferBytes({40, 30}, {7, 1}, lumiData32f), 32 + 320 + 64 * (0 + 12) + 1216);
  // 225 and 15 of memory for sorted samples
  EXPECT_EQ(bufferBytes({10, 30}, {15, 15}, lumiData32f), 240 * 12 + 64 + 24 * 44 * 4);
  // 625 samples: by keys; 34 * 54 * 4 = 7344
  EXPECT_EQ(bufferBytes({10, 30}, {25, 25}, lumiData32f), 40 * 128 + 12288 + 7360);
  // The window is as wide as the image.
  EXPECT_EQ(bufferBytes({5, 30}, {5, 3}, lumiData16u), 128 + (9 * 32 * 2 + 31) / 32 * 32);
}

// A source of equal rows, and a destination of which the last row stays.
TEST(FilterMedianBorder, TakesStepsOfZeroAndLess) {
  const Lum8u row[7] = {9, 1, 8, 2, 7, 3, 6},
              src[3][7] = {{1, 2, 3, 4, 5, 6, 7}, {9, 9, 9, 0, 0, 0, 0}, {5, 5, 5, 5, 5, 5, 5}};
  Lum8u dst[3][7] = {}, buffer[4096];
  const LumiSize roi{7, 3}, mask{3, 3};
  EXPECT_EQ(lumiFilterMedianBorder_8u_C1R(row, 0, dst[0], 7, roi, mask, lumiBorderReplicate, 0, buffer),
            lumStatusOk);
  for (const auto& line : dst)
    EXPECT_EQ(std::vector<Lum8u>(line, line + 7), (std::vector<Lum8u>{9, 8, 2, 7, 3, 6, 6}));
  Lum8u upward[3][7] = {}, last[7] = {};
  EXPECT_EQ(lumiFilterMedianBorder_8u_C1R(src[0], 7, dst[0], 7, roi, mask, lumiBorderConst, 4, buffer),
            lumStatusOk);
  EXPECT_EQ(lumiFilterMedianBorder_8u_C1R(src[0], 7, upward[2], -7, roi, mask, lumiBorderConst, 4, buffer),
            lumStatusOk);
  EXPECT_EQ(lumiFilterMedianBorder_8u_C1R(src[0], 7, last, 0, roi, mask, lumiBorderConst, 4, buffer),
            lumStatusOk);
  for (int y = 0; y < 3; ++y) EXPECT_TRUE(std::equal(dst[y], dst[y] + 7, upward[2 - y]));
  EXPECT_TRUE(std::equal(last, last + 7, dst[2]));
}

TEST(FilterMedianBorder, FaultsOfRuns) {
  for (const std::string type : {"8u", "16u", "16s", "32f"}) {
    std::vector<NamedFault> faults = {nullFault("src"),
                                      nullFault("dst"),
                                      nullFault("buffer"),
                                      {[](NamedCall& c) {
                                         c.size("roi", {0, 3});
                                       },
                                       lumStatusBadSize},
                                      {[](NamedCall& c) {
                                         c.size("roi", {3, -1});
                                       },
                                       lumStatusBadSize}};
    const auto oddStep = [&](const char* step, int bytes) {
      faults.push_back({[=](NamedCall& c) { c.number(step, bytes); }, lumStatusOddStep});
    };
    if (type != "8u") {
      oddStep("srcStep", 65);
      oddStep("dstStep", 65);
    }
    if (type == "32f") {
      oddStep("srcStep", 66);
      oddStep("dstStep", -62);
    }
    for (const LumiSize mask : {LumiSize{2, 3}, LumiSize{3, 4}, LumiSize{-1, 3}, LumiSize{3, 0}})
      faults.push_back({[=](NamedCall& c) { c.size("maskSize", mask); }, lumStatusBadMaskSize});
    for (const int border : {2, 3, 4, 5, 7, 0x12, 0xF3, 0xFF, -1, 0x7FFFFFF7})
      faults.push_back({[=](NamedCall& c) { c.number("border", border); }, lumStatusBadArgument});
    alignas(4) unsigned char image[4 * 64] = {}, result[4 * 64] = {}, buffer[4096] = {};
    std::fill(std::begin(image), std::end(image), Lum8u{1});
    NamedCall right("lumiFilterMedianBorder_" + type + "_C1R");
    right.image("src", image, 64).image("dst", result, 64).size("roi", {3, 3}).size("maskSize", {3, 3});
    right.number("border", lumiBorderReplicate).number("borderValue", 0).pointer("buffer", buffer);
    expectInOrder(right, faults,
                  [&](LumStatus) { ASSERT_EQ(std::count(std::begin(result), std::end(result), 0), 4 * 64); });
    EXPECT_EQ(right.run(), lumStatusOk);
    EXPECT_EQ(result[0], 1);
  }
}

}  // namespace
}  // namespace test
