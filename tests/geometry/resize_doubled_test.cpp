// SPDX-License-Identifier: MIT
// Resizes to twice the size, where source pixels come two and two, and to sizes next to it, where one pair is
// none.
#include <gtest/gtest.h>

#include "geometry/resize_images.hpp"
#include "support/settings.hpp"

namespace test::resize {
namespace {

// Tiles of every width that begin and end in the middle of a pair, or between two.
TEST(ResizeDoubled, TilesBeginAndEndAnywhere) {
  Bench bench(size_t{1} << 20);
  for (const std::string kind : {"Nearest", "Linear"})
    for (const std::string& type : kind == "Linear" ? kTypes : kNearestTypes)
      for (int channels : kChannels) {
        const LumiSize src{40, 5}, dst{80, 10};
        const PlanMemory plan(kind, type, src, dst);
        Random random(mixSeed(settings().seed, runName(kind, type, channels), 2));
        for (int x = 0; x < 4; ++x)
          for (int width = 1; width <= dst.width - x; ++width) {
            const int y = random.below(4), height = random.between(1, 5);
            const Tile tile{src, dst, {x, y}, {width, height}, channels, random.oneIn(2) ? 1 : 6};
            Bench::Options options;
            options.flushAtEnd = random.oneIn(2);
            ASSERT_EQ(bench.run(kind, type, tile, plan.at, options, random), "")
                << describe(kind, type, tile);
          }
      }
}

// How many columns of a tile are not what doubling makes of its first one.
int columnsNotDoubled(const model::resize::Axis& axis, int offset, int columns) {
  int count = 0;
  for (int x = 0; x < columns; ++x) count += axis.nearest(offset + x) != axis.nearest(offset) + x / 2 ? 1 : 0;
  return count;
}

// Tiles of whole blocks of which only the first or the last pairs are none: those that are not looked at
// would be made by doubling.
TEST(ResizeDoubled, OnePairThatIsNoneIsSeen) {
  struct Pixel {
    const char* type;
    int channels, block;  // columns of a block
  };
  Bench bench(size_t{1} << 20);
  Random random(mixSeed(settings().seed, "nearly doubled", 0));
  for (const Pixel pixel : {Pixel{"8u", 1, 32}, {"16u", 1, 16}, {"32f", 1, 8}, {"8u", 4, 8}}) {
    int lastPairs = 0;
    for (int dst = 2 * pixel.block; dst <= 8 * pixel.block; ++dst)
      for (int src = dst / 2 - 3; src <= dst / 2 + 3; ++src) {
        if (src < 1) continue;
        const model::resize::Axis axis{src, dst};
        for (int offset = 0; offset + pixel.block <= dst; ++offset) {
          if (columnsNotDoubled(axis, offset, pixel.block) != 1) continue;
          const bool isLast = columnsNotDoubled(axis, offset, pixel.block - 1) == 0;
          lastPairs += isLast ? 1 : 0;
          if (!isLast && !random.oneIn(4)) continue;
          const Tile tile{{src, 2}, {dst, 2}, {offset, 0}, {pixel.block, 1}, pixel.channels};
          const PlanMemory plan("Nearest", pixel.type, tile.src, tile.dst);
          ASSERT_EQ(bench.run("Nearest", pixel.type, tile, plan.at, {}, random), "")
              << describe("Nearest", pixel.type, tile);
        }
      }
    EXPECT_GE(lastPairs, 4) << pixel.type << " C" << pixel.channels;
  }
}

}  // namespace
}  // namespace test::resize
