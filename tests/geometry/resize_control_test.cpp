// SPDX-License-Identifier: MIT
// The caller's control register changes neither what a plan holds nor which pixels are read: an Init, a query
// and a run may each find another rounding mode in it.
#include <gtest/gtest.h>

#include <cstring>

#include "geometry/resize_images.hpp"
#include "support/core_guard.hpp"
#include "support/settings.hpp"

namespace test::resize {
namespace {

// To nearest, down, up, to zero; the last ones also flush denormals, in results and in operands.
constexpr unsigned kControls[] = {kDefaultControl, 0x3F80, 0x5F80, 0x7F80, 0x9FC0, 0xFFC0};

// Lengths whose ratio is rounded, and positions whose products with it are whole numbers but for that.
void chooseAxis(Random& random, int* src, int* dst, int* offset) {
  const int factor = random.between(1, 12), reducedSrc = random.between(1, 9);
  const int reducedDst = random.between(1, 60);
  *src = std::max(2, factor * reducedSrc);
  *dst = factor * reducedDst;
  *offset = std::min(random.below(factor) * reducedDst, *dst - 1);
}

Tile tileAtWholePositions(Random& random) {
  Tile tile{};
  chooseAxis(random, &tile.src.width, &tile.dst.width, &tile.offset.x);
  chooseAxis(random, &tile.src.height, &tile.dst.height, &tile.offset.y);
  tile.size = {std::min(tile.dst.width - tile.offset.x, 40), std::min(tile.dst.height - tile.offset.y, 8)};
  tile.channels = random.pick(kChannels);
  return tile;
}

std::string inModes(unsigned atInit, unsigned atRun) {
  return " with control " + std::to_string(atInit) + " at Init and " + std::to_string(atRun) + " at the run";
}

class ResizeControl : public testing::TestWithParam<std::string> {};

// Every mode at Init with every mode at the run. Results of integers and picked pixels are the model's, sums
// of floats those that a plan made to nearest gives in the same mode.
TEST_P(ResizeControl, PlansAndRunsMayFindDifferentModes) {
  const std::string type = GetParam();
  const CoreGuard guard;
  Bench bench(size_t{4} << 20);
  for (const std::string kind : {"Nearest", "Linear"}) {
    if (kind == "Nearest" && type == "64f") continue;
    const bool isExact = kind == "Nearest" || type == "8u";
    for (int i = 0; i < settings().scaled(60); ++i) {
      Random random(mixSeed(settings().seed, "control " + kind + type, i));
      const Tile tile = tileAtWholePositions(random);
      const PlanMemory usual(kind, type, tile.src, tile.dst);
      for (unsigned atInit : kControls) {
        const PlanMemory plan = [&] {
          const ScopedControl control(atInit);
          return PlanMemory(kind, type, tile.src, tile.dst);
        }();
        for (unsigned atRun : kControls) {
          Bench::Options options;
          options.flushAtEnd = random.oneIn(2);
          options.control = atRun;
          options.reference = isExact ? nullptr : usual.at;
          const std::string failure = bench.run(kind, type, tile, plan.at, options, random);
          ASSERT_EQ(failure, "") << describe(kind, type, tile) << inModes(atInit, atRun) << ", case " << i;
        }
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Types, ResizeControl, testing::ValuesIn(kTypes),
                         [](const auto& type) { return type.param; });

TEST(ResizeControl, QueriesTellTheSameInEveryMode) {
  for (int i = 0; i < settings().scaled(1000); ++i) {
    Random random(mixSeed(settings().seed, "control queries", i));
    const Tile tile = tileAtWholePositions(random);
    for (const std::string& type : kTypes) {
      const PlanMemory plan("Linear", type, tile.src, tile.dst);
      for (unsigned atQuery : kControls) {
        const ScopedControl control(atQuery);
        LumiPoint offset{}, start{};
        LumiSize size{};
        ASSERT_EQ(getSrcOffset(type, plan.at, tile.offset, &offset).run(), lumStatusOk);
        ASSERT_EQ(getSrcRoi(type, plan.at, tile.offset, tile.size, &start, &size).run(), lumStatusOk);
        Lum32s bytes = 0, init = 0;
        const int antialiasing = type == "64f" ? 0 : random.below(2);
        ASSERT_EQ(getSize(type, tile.src, tile.dst, 2, antialiasing, &bytes, &init).run(), lumStatusOk);
        const ScopedControl toNearest(kDefaultControl);
        const model::resize::Axis h = tile.horizontal(), v = tile.vertical();
        const LumiPoint expected{h.start(tile.offset.x), v.start(tile.offset.y)};
        const auto what = describe("Linear", type, tile) + inModes(kDefaultControl, atQuery);
        ASSERT_TRUE(offset.x == expected.x && offset.y == expected.y) << what;
        ASSERT_TRUE(start.x == expected.x && start.y == expected.y) << what;
        ASSERT_EQ(size.width, h.index(tile.offset.x + tile.size.width - 1) - expected.x + 1) << what;
        ASSERT_EQ(size.height, v.index(tile.offset.y + tile.size.height - 1) - expected.y + 1) << what;
        ASSERT_EQ(bytes,
                  model::resize::sizes(tile.src, tile.dst, 2, antialiasing != 0, type == "64f").object);
      }
    }
  }
}

// At half and twice the size no sum of words is rounded before its result: that one goes to the nearest, ties
// to even, in every mode.
TEST(ResizeControl, WordsRoundToNearestInEveryMode) {
  Bench bench(size_t{1} << 20);
  Random random(mixSeed(settings().seed, "control words", 0));
  for (const std::string type : {"16u", "16s"})
    for (int channels : kChannels)
      for (bool halves : {false, true})
        for (unsigned atRun : kControls) {
          const LumiSize small{29, 7}, large{58, 14};
          const Tile tile{
              halves ? large : small, halves ? small : large, {0, 0}, halves ? small : large, channels};
          const PlanMemory plan("Linear", type, tile.src, tile.dst);
          Bench::Options options;
          options.control = atRun;
          ASSERT_EQ(bench.run("Linear", type, tile, plan.at, options, random), "")
              << describe("Linear", type, tile) << inModes(kDefaultControl, atRun);
        }
}

// Plans of large sizes, where every operation of the formula rounds: indices and weights to the bit.
TEST(ResizeControl, PlansAreTheSameInEveryMode) {
  for (int i = 0; i < settings().scaled(200); ++i) {
    Random random(mixSeed(settings().seed, "control plans", i));
    const int limit = random.oneIn(2) ? 400 : INT32_MAX;
    const LumiSize src{random.between(2, limit), random.between(2, limit)};
    const LumiSize dst{random.between(1, 4000), random.between(1, 40)};
    for (const std::string kind : {"Nearest", "Linear"})
      for (const std::string& type : kind == "Linear" ? kTypes : kNearestTypes) {
        Lum32s bytes = 0, unused = 0;
        ASSERT_EQ(getSize(type, src, dst, kind == "Linear" ? 2 : 1, 0, &bytes, &unused).run(), lumStatusOk);
        // Made at one place, for a plan holds pointers into itself.
        std::vector<Byte> memory(static_cast<size_t>(bytes)), usual;
        for (unsigned atInit : kControls) {
          std::fill(memory.begin(), memory.end(), Byte{0});
          const ScopedControl control(atInit);
          ASSERT_EQ(init(kind, type, src, dst, memory.data()).run(), lumStatusOk);
          if (atInit == kDefaultControl)
            usual = memory;
          else
            ASSERT_TRUE(memory == usual)
                << kind << " " << type << " " << src.width << "x" << src.height << " to " << dst.width << "x"
                << dst.height << inModes(atInit, kDefaultControl);
        }
      }
  }
}

}  // namespace
}  // namespace test::resize
