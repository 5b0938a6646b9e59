// SPDX-License-Identifier: MIT
// Runs of a resize against the model, in memory that is as large as promised and ends at inaccessible pages.
#include <gtest/gtest.h>
#include <sys/mman.h>

#include <atomic>
#include <cfenv>
#include <numeric>
#include <thread>

#include "geometry/resize_images.hpp"
#include "support/core_guard.hpp"
#include "support/settings.hpp"

namespace test::resize {
namespace {

// Lengths of one axis: equal, multiples of one another, any.
void chooseLengths(Random& random, int least, int limit, int* src, int* dst) {
  const int kind = random.below(8);
  *src = random.between(least, limit);
  *dst = random.between(1, limit);
  if (kind == 0) *dst = *src;
  if (kind == 1) *dst = std::min(*src * random.between(2, 4), 4 * limit);
  if (kind == 2) *src = std::max(*dst * random.between(2, 12), least);
  if (kind == 3) *src = std::max(*dst / 2 * 3, least);
  if (kind == 4) *src = random.between(least, least + 2);
  if (kind == 5) *dst = random.between(1, 3);
  if (kind == 6) *src = std::max(2 * *dst + random.below(*dst / 3 + 1), least);
}

Tile randomTile(Random& random, bool linear, int limit) {
  Tile tile{};
  chooseLengths(random, linear ? 2 : 1, limit, &tile.src.width, &tile.dst.width);
  chooseLengths(random, linear ? 2 : 1, limit / 4 + 2, &tile.src.height, &tile.dst.height);
  if (random.oneIn(8)) tile.src = {2 * tile.dst.width, 2 * tile.dst.height};
  if (random.oneIn(8)) {
    tile.src = {std::min(tile.src.width, limit), std::min(tile.src.height, limit)};
    tile.dst = {2 * tile.src.width, 2 * tile.src.height};
  }
  constexpr int kMostPixels = 700000;  // of the largest pixels, in the memory that tests have
  const auto isTooLarge = [](LumiSize size) { return size.width * size.height > kMostPixels; };
  if (isTooLarge(tile.src) || isTooLarge(tile.dst)) return randomTile(random, linear, limit);
  tile.size = tile.dst;
  if (random.oneIn(2)) {
    tile.offset = {random.below(tile.dst.width), random.below(tile.dst.height)};
    tile.size = {random.between(1, tile.dst.width - tile.offset.x),
                 random.between(1, tile.dst.height - tile.offset.y)};
    if (random.oneIn(4)) tile.size.width = random.between(1, tile.dst.width + 9);
    if (random.oneIn(4)) tile.size.height = random.between(1, tile.dst.height + 9);
  }
  if (random.oneIn(3)) tile.border = random.oneIn(3) ? 6 : 1;
  tile.border |= linear && random.oneIn(2) ? random.below(16) << 4 : 0;
  if (tile.border == 0) tile.border = 1;
  return tile;
}

class ResizeRun : public testing::TestWithParam<std::string> {};

// Every member over images of all ratios, whole and in tiles.
void compareWithModel(const std::string& kind, const std::string& type, int limit, int cases) {
  const CoreGuard guard;
  Bench bench(size_t{24} << 20);
  for (int channels : kChannels) {
    const std::string name = runName(kind, type, channels);
    for (int i = 0; i < settings().scaled(cases); ++i) {
      Random random(mixSeed(settings().seed, name, i));
      Tile tile = randomTile(random, kind == "Linear", limit);
      tile.border = tile.border == 0 ? 1 : (tile.border & 7) == 0 ? tile.border | 1 : tile.border;
      tile.channels = channels;
      const PlanMemory plan(kind, type, tile.src, tile.dst, static_cast<size_t>(random.below(64)));
      ASSERT_EQ(plan.status, lumStatusOk) << describe(kind, type, tile);
      Bench::Options options;
      options.flushAtEnd = random.oneIn(2);
      options.upsideDownSrc = random.oneIn(3);
      options.upsideDownDst = random.oneIn(3);
      options.srcPadding = random.oneIn(2) ? random.below(9) : 0;
      options.dstPadding = random.oneIn(2) ? random.below(9) : 0;
      options.dstShift = random.oneIn(2) ? random.below(64) : 0;
      options.scratchShift = random.below(64);
      options.floatLimits = random.oneIn(2);
      const std::string failure = bench.run(kind, type, tile, plan.at, options, random);
      ASSERT_EQ(failure, "") << describe(kind, type, tile) << ", case " << i;
      ASSERT_TRUE(plan.staysInside());
    }
  }
  EXPECT_EQ(testcore::counts().allocations, 0);
}

TEST_P(ResizeRun, LinearDoesWhatTheModelDoes) { compareWithModel("Linear", GetParam(), 90, 1500); }
TEST_P(ResizeRun, LargeLinearDoesWhatTheModelDoes) { compareWithModel("Linear", GetParam(), 400, 80); }
TEST_P(ResizeRun, NearestDoesWhatTheModelDoes) {
  if (GetParam() == "64f") return;  // has none
  compareWithModel("Nearest", GetParam(), 90, 1500);
  compareWithModel("Nearest", GetParam(), 400, 80);
}

// Every width about the blocks of the kernels.
TEST_P(ResizeRun, EveryWidth) {
  Bench bench(size_t{1} << 20);
  for (const std::string kind : {"Nearest", "Linear"}) {
    if (kind == "Nearest" && GetParam() == "64f") continue;
    for (int channels : kChannels)
      for (int width = 1; width <= 70; ++width)
        for (int src : {2, width / 3 + 2, width / 2, width + 1, width * 3 / 2 + 2, width * 2, width * 2 + 1,
                        width * 3 + 2}) {
          if (src < (kind == "Linear" ? 2 : 1)) continue;
          // The half and the double on both axes are paths of their own.
          const int rows = src == 2 * width ? 8 : width == 2 * src ? 2 : 5;
          const Tile tile{{src, rows}, {width, 4}, {0, 0}, {width, 4}, channels, 1};
          const PlanMemory plan(kind, GetParam(), tile.src, tile.dst);
          Random random(mixSeed(settings().seed, kind, width * 1000 + src));
          Bench::Options options;
          options.flushAtEnd = random.oneIn(2);
          const std::string failure = bench.run(kind, GetParam(), tile, plan.at, options, random);
          ASSERT_EQ(failure, "") << describe(kind, GetParam(), tile);
        }
  }
}

INSTANTIATE_TEST_SUITE_P(Types, ResizeRun, testing::ValuesIn(kTypes),
                         [](const auto& type) { return type.param; });

// Every weight with every pair of bytes, by the model of one pixel: columns alone, then rows alone.
TEST(ResizeBytes, EveryPairOfSamplesAtManyWeights) {
  for (int dst : {3, 7, 64, 1000, 16384, 49152})
    for (bool vertical : {false, true}) {
      const int length = std::min(dst, 1000);
      const LumiSize src = vertical ? LumiSize{256, 2} : LumiSize{2, 256};
      const LumiSize whole = vertical ? LumiSize{256, dst} : LumiSize{dst, 256};
      const LumiSize size = vertical ? LumiSize{256, length} : LumiSize{length, 256};
      const LumiPoint offset =
          vertical ? LumiPoint{0, dst / 2 - length / 2} : LumiPoint{dst / 2 - length / 2, 0};
      const PlanMemory plan("Linear", "8u", src, whole);
      const Tile tile{src, whole, offset, size, 1, 1};
      std::vector<Byte> image(512),
          result(static_cast<size_t>(size.width) * static_cast<size_t>(size.height)), expected;
      Lum32s bytes = 0;
      ASSERT_EQ(getBufferSize("8u", plan.at, size, 1, &bytes).run(), lumStatusOk);
      std::vector<Byte> scratch(static_cast<size_t>(bytes));
      for (int other = 0; other < 256; other += 17) {
        const int step = vertical ? 256 : 2;
        for (int i = 0; i < 256; ++i) {
          image[static_cast<size_t>(vertical ? i : 2 * i)] = static_cast<Byte>(i);
          image[static_cast<size_t>(vertical ? 256 + i : 2 * i + 1)] = static_cast<Byte>(other);
        }
        // The tile starts in the first pixel, or in the second one where it lies beyond the middle.
        const int startX = tile.horizontal().start(offset.x), startY = tile.vertical().start(offset.y);
        const model::Image from{image.data() + startX + startY * step, step};
        NamedCall call = apply("Linear", "8u", 1, offset, size, plan.at, scratch.data());
        call.image("src", from.first, step).image("dst", result.data(), size.width);
        ASSERT_EQ(call.run(), lumStatusOk);
        expected.assign(result.size(), 0);
        model::resize::linear<Lum8u>(tile, from, {expected.data(), size.width});
        ASSERT_EQ(result, expected) << dst << " " << vertical << " " << other;
      }
    }
}

// NaN and infinity go the way of the formula; NaNs need not have equal bits.
TEST(ResizeFloats, SpecialValues) {
  const float special[] = {0.0f, -0.0f, 1.0f, -3.5f, INFINITY, -INFINITY, NAN, 3e38f, -3e38f, 1e-45f};
  Random random(mixSeed(settings().seed, "resize specials", 0));
  for (int i = 0; i < 300; ++i) {
    const Tile tile{{9, 7}, {random.between(1, 40), random.between(1, 12)}, {0, 0}, {40, 12}, 1, 1};
    std::vector<float> image(9 * 7), result(40 * 12, 5.0f), expected(40 * 12, 5.0f);
    for (float& sample : image) sample = random.pick(special);
    const PlanMemory plan("Linear", "32f", tile.src, tile.dst);
    std::vector<Byte> scratch(4096);
    NamedCall call = apply("Linear", "32f", 1, {0, 0}, tile.dst, plan.at, scratch.data());
    ASSERT_EQ(call.image("src", image.data(), 36).image("dst", result.data(), 160).run(), lumStatusOk);
    model::resize::linear<Lum32f>(tile, {reinterpret_cast<Byte*>(image.data()), 36},
                                  {reinterpret_cast<Byte*>(expected.data()), 160});
    for (size_t k = 0; k < result.size(); ++k)
      ASSERT_TRUE((std::isnan(result[k]) && std::isnan(expected[k])) ||
                  std::memcmp(&result[k], &expected[k], sizeof(float)) == 0)
          << result[k] << " is not " << expected[k];
  }
}

// Facts that a reader can check by hand.
TEST(ResizeExamples, NearestTakesTheLowerOfTwo) {
  const PlanMemory plan("Nearest", "8u", {4, 1}, {2, 1});
  const Byte src[4] = {10, 11, 12, 13};
  Byte dst[3] = {0, 0, 77}, scratch[256];
  // One column more than the destination has: clipped, with a warning.
  NamedCall call = apply("Nearest", "8u", 1, {0, 0}, {3, 1}, plan.at, scratch);
  EXPECT_EQ(call.image("src", src, 4).image("dst", dst, 2).run(), lumStatusSizeAboveSpec);
  EXPECT_EQ(dst[0], 10);
  EXPECT_EQ(dst[1], 12);
  EXPECT_EQ(dst[2], 77);
  // Over the edge by its offset alone: no warning.
  call.point("dstOffset", {1, 0}).size("dstSize", {2, 1}).pointer("src", src + 2).pointer("dst", dst);
  EXPECT_EQ(call.run(), lumStatusOk);
  EXPECT_EQ(dst[0], 12);
  EXPECT_EQ(dst[1], 12);
}

TEST(ResizeExamples, LinearTwiceAsLarge) {
  const PlanMemory plan("Linear", "8u", {2, 2}, {4, 4});
  const Byte src[4] = {0, 100, 0, 100};
  Byte dst[16] = {}, scratch[512];
  NamedCall call = apply("Linear", "8u", 1, {0, 0}, {4, 4}, plan.at, scratch);
  EXPECT_EQ(call.image("src", src, 2).image("dst", dst, 4).run(), lumStatusOk);
  const Byte row[4] = {0, 25, 75, 100};
  for (int y = 0; y < 4; ++y) EXPECT_EQ(std::memcmp(dst + 4 * y, row, 4), 0) << y;
}

// A plan may be shared, and is only read: its pages are made so.
class SharedPlan {
 public:
  SharedPlan(const std::string& kind, const std::string& type, LumiSize src, LumiSize dst) {
    Lum32s bytes = 0, unused = 0;
    EXPECT_EQ(getSize(type, src, dst, kind == "Linear" ? 2 : 1, 0, &bytes, &unused).run(), lumStatusOk);
    size_ = static_cast<size_t>(bytes);
    at = mmap(nullptr, size_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    EXPECT_NE(at, MAP_FAILED);
    EXPECT_EQ(init(kind, type, src, dst, at).run(), lumStatusOk);
    EXPECT_EQ(mprotect(at, size_, PROT_READ), 0);
  }
  ~SharedPlan() { munmap(at, size_); }
  SharedPlan(const SharedPlan&) = delete;
  SharedPlan& operator=(const SharedPlan&) = delete;

  void* at;

 private:
  size_t size_;
};

// One tile of a whole image.
void runTile(const std::string& kind, const std::string& type, const Tile& tile, const void* plan, Byte* src,
             int srcStep, Byte* dst, int dstStep) {
  const int pixel = sampleBytes(type) * tile.channels;
  LumiPoint start{};
  EXPECT_EQ(getSrcOffset(type, plan, tile.offset, &start).run(), lumStatusOk);
  Lum32s bytes = 0;
  EXPECT_EQ(getBufferSize(type, plan, tile.size, tile.channels, &bytes).run(), lumStatusOk);
  std::vector<Byte> scratch(static_cast<size_t>(bytes));
  NamedCall call =
      apply(kind, type, tile.channels, tile.offset, tile.size, plan, scratch.data(), tile.border);
  call.image("src", src + start.y * srcStep + start.x * pixel, srcStep);
  call.image("dst", dst + tile.offset.y * dstStep + tile.offset.x * pixel, dstStep);
  EXPECT_EQ(call.run(), lumStatusOk);
}

// Cuts of an axis at random places.
std::vector<int> cuts(Random& random, int length) {
  std::vector<int> at = {0, length};
  for (int i = random.below(5); i > 0; --i) at.push_back(random.below(length));
  std::sort(at.begin(), at.end());
  at.erase(std::unique(at.begin(), at.end()), at.end());
  return at;
}

std::vector<Tile> tilesOf(Random& random, const Tile& whole) {
  const std::vector<int> xs = cuts(random, whole.dst.width), ys = cuts(random, whole.dst.height);
  std::vector<Tile> tiles;
  for (size_t i = 0; i + 1 < xs.size(); ++i)
    for (size_t j = 0; j + 1 < ys.size(); ++j) {
      Tile tile = whole;
      tile.offset = {xs[i], ys[j]};
      tile.size = {xs[i + 1] - xs[i], ys[j + 1] - ys[j]};
      tiles.push_back(tile);
    }
  for (size_t i = tiles.size(); i > 1; --i)
    std::swap(tiles[i - 1], tiles[static_cast<size_t>(random.below(static_cast<int>(i)))]);
  return tiles;
}

// Tiles in any order, by several threads at once, make the same image as one run.
void compareTilings(const std::string& kind, const std::string& type, int index, int threads) {
  Random random(mixSeed(settings().seed, kind + type, index));
  Tile whole = randomTile(random, true, 120);
  whole.channels = random.pick(kChannels);
  whole.offset = {0, 0};
  whole.size = whole.dst;
  whole.border = 1;
  const int pixel = sampleBytes(type) * whole.channels, srcStep = whole.src.width * pixel,
            dstStep = whole.dst.width * pixel;
  std::vector<Byte> src(static_cast<size_t>(srcStep) * static_cast<size_t>(whole.src.height));
  for (size_t i = 0; i < src.size(); ++i)
    src[i] = static_cast<Byte>(type.back() == 'f' ? i % 64 : random.below(256));
  std::vector<Byte> once(static_cast<size_t>(dstStep) * static_cast<size_t>(whole.dst.height)), tiled = once;
  const SharedPlan plan(kind, type, whole.src, whole.dst);
  runTile(kind, type, whole, plan.at, src.data(), srcStep, once.data(), dstStep);

  const std::vector<Tile> tiles = tilesOf(random, whole);
  std::atomic<size_t> next{0};
  const auto work = [&] {
    for (size_t i = next++; i < tiles.size(); i = next++)
      runTile(kind, type, tiles[i], plan.at, src.data(), srcStep, tiled.data(), dstStep);
  };
  std::vector<std::thread> others;
  for (int t = 1; t < threads; ++t) others.emplace_back(work);
  work();
  for (std::thread& other : others) other.join();
  ASSERT_EQ(once, tiled) << describe(kind, type, whole) << " in " << tiles.size() << " tiles";
}

TEST(ResizeTiles, AnyTilingMakesTheWhole) {
  for (const std::string kind : {"Nearest", "Linear"})
    for (const std::string& type : kind == "Linear" ? kTypes : kNearestTypes)
      for (int i = 0; i < settings().scaled(120); ++i) {
        compareTilings(kind, type, i, 1);
        if (testing::Test::HasFailure()) return;
      }
}

TEST(ResizeTiles, ThreadsShareAPlan) {
  for (const std::string kind : {"Nearest", "Linear"})
    for (const std::string& type : kind == "Linear" ? kTypes : kNearestTypes)
      for (int i = 1000; i < 1000 + settings().scaled(15); ++i) {
        compareTilings(kind, type, i, 4);
        if (testing::Test::HasFailure()) return;
      }
}

}  // namespace
}  // namespace test::resize
