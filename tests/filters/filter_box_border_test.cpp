// SPDX-License-Identifier: MIT
#include "lumi/filter_box_border.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "model/filters/box.hpp"
#include "model/filters/box_border.hpp"
#include "support/core_guard.hpp"
#include "support/member.hpp"

namespace test {
namespace {

using model::Window;

using BorderTypes = Types<Lum8u, Lum16u, Lum16s, Lum32f>;

Window windowOf(const Call& c) {
  const LumiSize size = c.size("maskSize");
  return {size, {(size.width - 1) / 2, (size.height - 1) / 2}};
}

template <typename T>
constexpr LumiDataType dataType() {
  if (std::is_floating_point_v<T>) return lumiData32f;
  return sizeof(T) == 1 ? lumiData8u : std::is_signed_v<T> ? lumiData16s : lumiData16u;
}

int bufferBytes(LumiSize roi, LumiSize mask, LumiDataType type, int channels) {
  int bytes = -1;
  EXPECT_EQ(lumiFilterBoxBorderGetBufferSize(roi, mask, type, channels, &bytes), lumStatusOk);
  return bytes;
}

std::vector<Value> masks(int pixelBytes) {
  std::vector<Value> all = {{{3, 3}}, {{3, 3}}, {{5, 5}}, {{4, 3}}, {{2, 2}}, {{9, 2}},
                            {{1, 1}}, {{2, 1}}, {{1, 2}}, {{1, 3}}, {{15, 1}}};
  if (pixelBytes <= 8) all.push_back({{7, 7}});
  if (pixelBytes <= 2) all.insert(all.end(), {{{17, 17}}, {{6, 31}}});
  return all;
}

// Where all flags stand, the type does not matter.
const std::vector<Value> kBorders = {{{0}},    {{0}},    {{1}},    {{1}},    {{6}},    {{0x10}},
                                     {{0x21}}, {{0x40}}, {{0x81}}, {{0x30}}, {{0xC1}}, {{0x71}},
                                     {{0xE0}}, {{0xF2}}, {{0xF7}}, {{0x16}}};

const bool added = addModelTests(membersOfOneType(
    "FilterBoxBorder",
    [](Member& m, auto sample) {
      using T = decltype(sample);
      m.choose("maskSize", masks(m.dst.pixelBytes));
      m.choose("border", kBorders);
      m.array("borderValue", m.types.front(), {m.channels.moved},
              [](Random& random, Byte* values, int count) {
                for (int i = 0; i < count; ++i)
                  model::store<T>(values, i, static_cast<T>(random.between(0, 255)));
              });
      m.scratch("buffer", [channels = m.channels.src](const Call& c) {
        return bufferBytes(c.roi, c.size("maskSize"), dataType<T>(), channels);
      });
      m.surroundings = [](const Call& c) {
        return model::inMemory(windowOf(c), static_cast<int>(c.number("border")));
      };
      m.contents = std::is_floating_point_v<T> ? std::vector<Contents>{Contents::Small} : kAnyContents;
      m.floatResults = std::is_floating_point_v<T>;
      m.separateRows = true;
      m.mayStream = false;
      m.rounds = 8;
      m.model = [channels = m.channels](const Call& c) {
        const model::Border border{static_cast<int>(c.number("border")), c.block("borderValue").data};
        model::boxBorder<T>(c.srcImage(), c.dstImage(), c.roi, channels, windowOf(c), border);
      };
    },
    BorderTypes()));

const bool covered = addCovered({"lumiFilterBoxBorderGetBufferSize"});

// Worked by hand, term by term.
TEST(FilterBoxBorder, SizesAreTheFormula) {
  // P = 42, Q = 32: 44 * 4, 8 * (42 * (6 - 1 - 2) + 32 * (6 - 1 - 2)), 4 * 2 * 40, 4 * 2
  EXPECT_EQ(bufferBytes({40, 30}, {3, 3}, lumiData8u, 1), 176 + 8 * (126 + 96) + 320 + 8);
  // P = 43, Q = 4: 45 * 12, 24 * (43 * (4 - 0 - 2) + 4 * (8 - 1 - 2)), 12 * 43 * 4, 4
  EXPECT_EQ(bufferBytes({40, 3}, {4, 2}, lumiData32f, 3), 540 + 24 * (86 + 20) + 2064 + 4);
  // One row and column: 42 * 16, 32 * 0, 16 * 40, 4
  EXPECT_EQ(bufferBytes({40, 30}, {1, 1}, lumiData16s, 4), 672 + 640 + 4);
  // The window has half as many columns as the image and one more.
  EXPECT_EQ(bufferBytes({9, 30}, {5, 3}, lumiData16u, 1), 60 + 8 * (13 * 3 + 32 * 6) + 4 * 13 * 32 + 8);
  EXPECT_EQ(bufferBytes({10, 30}, {5, 3}, lumiData16u, 1), 64 + 8 * (14 * 3 + 32 * 6) + 4 * 2 * 10 + 8);
}

// Null is wrong for a constant border with nothing in memory, before the type is looked at; other borders do
// not look.
TEST(FilterBoxBorder, WantsAValueWhereItIsUsed) {
  const Lum8u src[9] = {9, 9, 9, 9, 9, 9, 9, 9, 9};
  Lum8u dst[9] = {}, buffer[4096];
  const LumiSize roi{3, 3}, mask{3, 3};
  EXPECT_EQ(lumiFilterBoxBorder_8u_C1R(src, 3, dst, 3, roi, mask, lumiBorderConst, nullptr, buffer),
            lumStatusNullPointer);
  EXPECT_EQ(lumiFilterBoxBorder_8u_C1R(src, 3, dst, 3, roi, {0, 3}, lumiBorderConst, nullptr, buffer),
            lumStatusBadMaskSize);
  EXPECT_EQ(std::count(dst, dst + 9, 0), 9);
  EXPECT_EQ(lumiFilterBoxBorder_8u_C1R(src, 3, dst, 3, roi, mask, lumiBorderReplicate, nullptr, buffer),
            lumStatusOk);
  EXPECT_EQ(std::count(dst, dst + 9, 9), 9);
  // The middle alone has all around it in memory.
  EXPECT_EQ(lumiFilterBoxBorder_8u_C1R(src + 4, 3, dst + 4, 3, {1, 1}, mask, 0xF0, nullptr, buffer),
            lumStatusOk);
}

// Sums that 32 bits do not hold.
TEST(FilterBoxBorder, TakesWindowsOfAnySum) {
  const LumiSize roi{5, 3}, mask{240, 210};
  const std::vector<Lum16u> src(15, 65000);
  std::vector<Lum16u> dst(15);
  std::vector<Lum8u> buffer(static_cast<size_t>(bufferBytes(roi, mask, lumiData16u, 1)));
  EXPECT_EQ(lumiFilterBoxBorder_16u_C1R(src.data(), 10, dst.data(), 10, roi, mask, lumiBorderReplicate,
                                        nullptr, buffer.data()),
            lumStatusOk);
  for (const Lum16u mean : dst) EXPECT_NEAR(mean, 65000, 1 + 500 * 65000 / 16777216.0);
}

}  // namespace
}  // namespace test
