// SPDX-License-Identifier: MIT
// Fast paths are taken where they should be, and not beyond. No result tells: every path stores the same.
// Only builds that count paths have these tests.
#ifdef LUMI_COUNT_PATHS

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <climits>
#include <vector>

#include "filters/filter_border_calls.hpp"
#include "geometry/resize_calls.hpp"
#include "kernels/path_count.hpp"
#include "lumi/add_sub.h"
#include "lumi/convert.h"
#include "lumi/copy.h"
#include "lumi/copy_channels.h"
#include "lumi/div.h"
#include "lumi/filter_box.h"
#include "lumi/filter_median.h"
#include "lumi/gradient_vector.h"
#include "lumi/hog.h"
#include "lumi/lut.h"
#include "lumi/lut_palette.h"
#include "lumi/min_max.h"
#include "lumi/min_max_index.h"
#include "lumi/mirror.h"
#include "lumi/mul.h"
#include "lumi/mul_pack.h"
#include "lumi/separable.h"
#include "lumi/set.h"
#include "lumi/shift.h"
#include "lumi/sum.h"
#include "lumi/threshold.h"
#include "lumi/transpose.h"
#include "support/core_guard.hpp"

namespace {

std::atomic<int> counts[64];

}  // namespace

extern "C" void lumiPathTaken(int path) { ++counts[path]; }

namespace test {
namespace {

using lumi::Path;

// How often a call takes a path.
template <typename Call>
int taken(Path path, const Call& call) {
  std::atomic<int>& count = counts[static_cast<int>(path)];
  const int before = count;
  EXPECT_EQ(call(), lumStatusOk);
  return count - before;
}

TEST(Paths, LongCopiesMoveStrings) {
  std::vector<Lum8u> src(0x7000), dst(0x7000);
  const auto copies = [&](int width) {
    return taken(Path::StringMove, [&] {
      return lumiCopy_8u_C1R(src.data(), width, dst.data(), width, {width, 1});
    });
  };
  EXPECT_EQ(copies(0x7000), 1);
  EXPECT_EQ(copies(0x7000 - 1), 0);
}

TEST(Paths, ShiftsByNothingCopy) {
  constexpr int kWidth = 0x7000;
  std::vector<Lum8u> src(kWidth), dst(kWidth);
  const auto copies = [&](Lum32u count) {
    return taken(Path::StringMove, [&] {
      return lumiLShiftC_8u_C1R(src.data(), kWidth, count, dst.data(), kWidth, {kWidth, 1});
    });
  };
  EXPECT_EQ(copies(0), 1);
  EXPECT_EQ(copies(1), 0);
}

TEST(Paths, DivisionsByOneCopy) {
  constexpr int kWidth = 0x7000;
  std::vector<Lum8u> src(kWidth), dst(kWidth);
  const auto copies = [&](Lum8u value, int scaleFactor) {
    return taken(Path::StringMove, [&] {
      return lumiDivC_8u_C1RSfs(src.data(), kWidth, value, dst.data(), kWidth, {kWidth, 1}, scaleFactor);
    });
  };
  EXPECT_EQ(copies(1, 0), 1);
  EXPECT_EQ(copies(2, 0), 0);
  EXPECT_EQ(copies(1, 1), 0);
}

TEST(Paths, EqualFunctionsOfBytesHaveOneTable) {
  const Lum32s levels[] = {0, 256}, values[] = {1, 2}, other[] = {2, 2};
  const Lum32s* const allLevels[] = {levels, levels, levels};
  const int counts[] = {2, 2, 2};
  Lum8u image[30] = {};
  const auto runs = [&](const Lum32s* last) {
    const Lum32s* const allValues[] = {values, values, last};
    return taken(Path::LookUpOneTable, [&] {
      return lumiLUT_8u_C3IR(image, 30, {10, 1}, allValues, allLevels, counts);
    });
  };
  EXPECT_EQ(runs(values), 1);
  EXPECT_EQ(runs(other), 0);
}

TEST(Paths, SmallPalettesTakeOneShuffle) {
  const Lum8u table[32] = {};
  Lum8u image[30] = {};
  const auto runs = [&](int bits) {
    return taken(Path::LookUpSixteen, [&] {
      return lumiLUTPalette_8u_C1R(image, 30, image, 30, {30, 1}, table, bits);
    });
  };
  EXPECT_EQ(runs(4), 1);
  EXPECT_EQ(runs(1), 1);
  EXPECT_EQ(runs(5), 0);
}

TEST(Paths, FewAscendingLevelsAreStepsOfVectors) {
  float levels[34], image[8] = {};
  for (int k = 0; k < 34; ++k) levels[k] = static_cast<float>(k);
  const auto runs = [&](int count) {
    return taken(Path::LookUpSteps, [&] {
      return lumiLUT_32f_C1IR(image, 32, {8, 1}, levels, levels, count);
    });
  };
  EXPECT_EQ(runs(33), 1);
  EXPECT_EQ(runs(34), 0);
  std::swap(levels[1], levels[2]);
  EXPECT_EQ(runs(33), 0);
}

TEST(Paths, LongFillsStoreStrings) {
  std::vector<Lum8u> dst(0x180000);
  const auto fills = [&](int width) {
    return taken(Path::StringFill, [&] { return lumiSet_8u_C1R(7, dst.data(), width, {width, 1}); });
  };
  EXPECT_EQ(fills(0x180000), 1);
  EXPECT_EQ(fills(0x180000 - 1), 0);
}

TEST(Paths, FillsBeyondTheCacheStream) {
  const CoreGuard guard;
  const Lum8u value[3] = {1, 2, 3};
  std::vector<Lum8u> dst((1 << 20) + 3);
  const auto fills = [&](int bytes) {
    return taken(Path::StreamingFill, [&] {
      return lumiSet_8u_C3R(value, dst.data(), bytes, {bytes / 3, 1});
    });
  };
  testcore::setCacheSize(1 << 20);
  EXPECT_EQ(fills((1 << 20) + 2), 1);  // a multiple of 3
  EXPECT_EQ(fills((1 << 20) - 1), 0);
  testcore::setCacheSize((1 << 20) + 3);
  EXPECT_EQ(fills((1 << 20) + 2), 0);
}

TEST(Paths, RowsThatTouchRunAsOne) {
  std::vector<Lum8u> src(40 * 3), dst(40 * 3);
  const auto adds = [&](int srcStep, int dstStep, int height) {
    return taken(Path::FusedRows, [&] {
      return lumiAdd_8u_C1IRSfs(src.data(), srcStep, dst.data(), dstStep, {39, height}, 0);
    });
  };
  EXPECT_EQ(adds(39, 39, 3), 1);
  EXPECT_EQ(adds(39, 40, 3), 0);
  EXPECT_EQ(adds(40, 39, 3), 0);
  EXPECT_EQ(adds(39, 39, 1), 0);
}

// Not where rows behind a stop must not be read, nor where each row has a sum of its own.
TEST(Paths, ReductionsRunAsOneRowWhereNoRowMayStop) {
  const std::vector<Lum8u> bytes(39 * 3, 7);
  const std::vector<Lum32f> floats(4 * 20 * 3, 1);
  Lum64f sums[4];
  Lum8u least[4], greatest[4];
  Lum32s x[4], y[4];
  const auto fused = [](const auto& call) { return taken(Path::FusedRows, call); };
  EXPECT_EQ(fused([&] { return lumiSum_8u_C1R(bytes.data(), 39, {39, 3}, sums); }), 1);
  EXPECT_EQ(fused([&] { return lumiSum_8u_C1R(bytes.data(), 39, {38, 3}, sums); }), 0);
  EXPECT_EQ(fused([&] { return lumiSum_32f_C4R(floats.data(), 320, {20, 3}, sums, 1); }), 1);
  EXPECT_EQ(fused([&] { return lumiSum_32f_AC4R(floats.data(), 320, {20, 3}, sums, 2); }), 1);
  EXPECT_EQ(fused([&] { return lumiSum_32f_AC4R(floats.data(), 320, {20, 3}, sums, 0); }), 0);
  EXPECT_EQ(fused([&] { return lumiMinMax_8u_C3R(bytes.data(), 39, {13, 3}, least, greatest); }), 1);
  EXPECT_EQ(fused([&] { return lumiMin_8u_C1R(bytes.data(), 39, {39, 3}, least); }), 0);
  EXPECT_EQ(fused([&] { return lumiMaxIndx_8u_C3R(bytes.data(), 39, {13, 3}, greatest, x, y); }), 0);
}

TEST(Paths, LargeConversionsBypassTheCache) {
  const CoreGuard guard;
  testcore::setCacheSize(1);
  constexpr int kPixels = 349526;  // with three bytes each, just above a mebibyte
  const std::vector<Lum8u> src(kPixels);
  std::vector<Lum16s> dst(kPixels + 1);
  const auto converts = [&](int pixels, size_t byte) {
    auto* const to = reinterpret_cast<Lum16s*>(reinterpret_cast<Lum8u*>(dst.data()) + byte);
    return taken(Path::StreamingRows, [&] {
      return lumiConvert_8u16s_C1R(src.data(), pixels, to, 2 * pixels, {pixels, 1});
    });
  };
  EXPECT_EQ(converts(kPixels, 0), 1);
  EXPECT_EQ(converts(kPixels - 1, 0), 0);
  EXPECT_EQ(converts(kPixels, 1), 0) << "no sample there starts on a boundary";
}

TEST(Paths, LargeThresholdsOfWordsBypassTheCache) {
  const CoreGuard guard;
  constexpr int kWidth = 512, kRows = (1 << 20) / (2 * kWidth);
  std::vector<Lum16u> src(kWidth * (kRows + 1)), dst(src.size());
  const auto limits = [&](const Lum16u* from, Lum16u* to, int rows) {
    return taken(Path::StreamingRows, [&] {
      return lumiThreshold_GT_16u_C1R(from, 2 * kWidth, to, 2 * kWidth, {kWidth, rows}, 9);
    });
  };
  testcore::setCacheSize(2 << 20);  // twice the results of so many rows
  EXPECT_EQ(limits(src.data(), dst.data(), kRows + 1), 1);
  EXPECT_EQ(limits(src.data(), dst.data(), kRows), 0);
  EXPECT_EQ(limits(src.data(), src.data(), kRows + 1), 0) << "in place";
  testcore::setCacheSize(0);
  EXPECT_EQ(limits(src.data(), dst.data(), kRows / 4 + 1), 1);
  EXPECT_EQ(limits(src.data(), dst.data(), kRows / 4), 0);
}

TEST(Paths, LargeComplexRowsWithConstantsBypassTheCache) {
  const Lum16sc value[3] = {{1, 2}, {3, 4}, {5, 6}};
  constexpr int kStep = 12 * 64, kRows = (1 << 20) / (2 * kStep) + 1;
  std::vector<Lum16sc> src(kStep / 4 * kRows), dst(src.size());
  for (auto* combine : {lumiAddC_16sc_C3RSfs, lumiMulC_16sc_C3RSfs}) {
    const auto combines = [&](const Lum16sc* from, Lum16sc* to, int rows) {
      return taken(Path::StreamingRows, [&] {
        return combine(from, kStep, value, to, kStep, {64, rows}, 0);
      });
    };
    EXPECT_EQ(combines(src.data(), dst.data(), kRows), 1);
    EXPECT_EQ(combines(src.data(), dst.data(), kRows - 1), 0);
    EXPECT_EQ(combines(src.data(), src.data(), kRows), 0) << "in place";
  }
}

TEST(Paths, LargeMergesBypassTheCache) {
  const CoreGuard guard;
  testcore::setCacheSize(1 << 20);
  constexpr int kWidth = 512;
  const auto merges = [&](int rows, int width) {
    std::vector<Lum8u> plane(static_cast<size_t>(width) * rows), dst(3 * plane.size() + 32);
    const Lum8u* const planes[3] = {plane.data(), plane.data(), plane.data()};
    auto* const to = dst.data() + (32 - reinterpret_cast<uintptr_t>(dst.data()) % 32) % 32;
    return taken(Path::StreamingPlanes, [&] {
      return lumiCopy_8u_P3C3R(planes, width, to, 3 * width, {width, rows});
    });
  };
  EXPECT_EQ(merges((1 << 20) / (6 * kWidth) + 1, kWidth), 1);
  EXPECT_EQ(merges((1 << 20) / (6 * kWidth), kWidth), 0);
  EXPECT_EQ(merges((1 << 20) / (6 * kWidth) + 30, kWidth - 32), 0);
}

// Beyond so many bytes; images of four channels where the cache is too small for both.
TEST(Paths, LargeMirrorsBypassTheCache) {
  const CoreGuard guard;
  testcore::setCacheSize(1 << 20);
  constexpr int kStep = 1 << 12;
  std::vector<Lum8u> src(600 * kStep), dst(src.size());
  const auto mirrors = [&](int rows, int flip) {
    return taken(Path::StreamingRows, [&] {
      return lumiMirror_8u_C1R(src.data(), kStep, dst.data(), kStep, {kStep, rows}, flip);
    });
  };
  EXPECT_EQ(mirrors(513, 0), 1);
  EXPECT_EQ(mirrors(512, 0), 0);
  EXPECT_EQ(mirrors(513, 1), 0);
  const auto ofFour = [&](int rows, int flip) {
    return taken(Path::StreamingRows, [&] {
      return lumiMirror_8u_C4R(src.data(), kStep, dst.data(), kStep, {kStep / 4, rows}, flip);
    });
  };
  for (const int flip : {0, 1, 2}) {
    EXPECT_EQ(ofFour(129, flip), 1);
    EXPECT_EQ(ofFour(128, flip), 0);
  }
  testcore::setCacheSize(1 << 21);
  EXPECT_EQ(ofFour(129, 1), 0);
  const auto ofThree = [&](int rows) {
    return taken(Path::StreamingRows, [&] {
      return lumiMirror_8u_C3R(src.data(), kStep, dst.data(), kStep, {kStep / 3, rows}, 0);
    });
  };
  EXPECT_EQ(ofThree(600), 0);
}

// Where the cache is smaller than both images.
TEST(Paths, LargeTranspositionsBypassTheCache) {
  const CoreGuard guard;
  constexpr int kWidth = 1088, kHeight = 64;
  std::vector<Lum8u> src(kWidth * kHeight + 64), dst(src.size());
  const auto aligned = [](std::vector<Lum8u>& v) {
    return v.data() + (64 - reinterpret_cast<uintptr_t>(v.data()) % 64) % 64;
  };
  const auto transposes = [&](int cache) {
    testcore::setCacheSize(cache);
    return taken(Path::StreamingRows, [&] {
      return lumiTranspose_8u_C1R(aligned(src), kWidth, aligned(dst), kHeight, {kWidth, kHeight});
    });
  };
  EXPECT_EQ(transposes(2 * kWidth * kHeight - 1), 1);
  EXPECT_EQ(transposes(2 * kWidth * kHeight), 0);
  testcore::failCacheQuery(-1);
  EXPECT_EQ(
      taken(Path::StreamingRows,
            [&] {
              return lumiTranspose_8u_C1R(aligned(src), kWidth, aligned(dst), kHeight, {kWidth, kHeight});
            }),
      1)
      << "a size that is not told counts as none";
}

// How often a resize takes a path: of the first columns, or of all.
int resizes(Path path, const std::string& kind, const std::string& type, int channels, LumiSize src,
            LumiSize dst, int dstStep = 0, int columns = 0) {
  const resize::PlanMemory plan(kind, type, src, dst);
  const int pixel = resize::sampleBytes(type) * channels;
  if (dstStep == 0) dstStep = dst.width * pixel;
  std::vector<Lum8u> from(static_cast<size_t>(src.width * src.height * pixel));
  std::vector<Lum8u> to(static_cast<size_t>(dst.width * dst.height * pixel));
  Lum32s bytes = 0;
  EXPECT_EQ(resize::getBufferSize(type, plan.at, dst, channels, &bytes).run(), lumStatusOk);
  std::vector<Lum8u> scratch(static_cast<size_t>(bytes));
  NamedCall call = resize::apply(kind, type, channels, {0, 0},
                                 {columns == 0 ? dst.width : columns, dst.height}, plan.at, scratch.data());
  call.image("src", from.data(), src.width * pixel).image("dst", to.data(), dstStep);
  return taken(path, [&] { return call.run(); });
}

// Blocks of sixteen bytes, with a pixel behind the last one.
TEST(Paths, NearestHalves) {
  const auto halves = [](const std::string& type, int channels, LumiSize src, LumiSize dst) {
    return resizes(Path::NearestHalved, "Nearest", type, channels, src, dst);
  };
  EXPECT_EQ(halves("8u", 1, {34, 3}, {17, 3}), 3);
  EXPECT_EQ(halves("8u", 1, {32, 3}, {16, 3}), 0);
  EXPECT_EQ(halves("16s", 1, {18, 3}, {9, 3}), 3);
  EXPECT_EQ(halves("16s", 1, {16, 3}, {8, 3}), 0);
  EXPECT_EQ(halves("8u", 4, {10, 3}, {5, 3}), 3);
  EXPECT_EQ(halves("8u", 4, {8, 3}, {4, 3}), 0);
  EXPECT_EQ(halves("8u", 3, {34, 3}, {17, 3}), 0);
  EXPECT_EQ(halves("8u", 1, {37, 3}, {17, 3}), 0);
}

TEST(Paths, NearestDoubles) {
  const auto doubles = [](const std::string& type, int channels, LumiSize src, LumiSize dst) {
    return resizes(Path::NearestDoubled, "Nearest", type, channels, src, dst);
  };
  EXPECT_EQ(doubles("8u", 1, {16, 3}, {32, 3}), 3);
  EXPECT_EQ(doubles("8u", 1, {15, 3}, {30, 3}), 0);
  EXPECT_EQ(doubles("16u", 1, {8, 3}, {16, 3}), 3);
  EXPECT_EQ(doubles("32f", 1, {4, 3}, {8, 3}), 3);
  EXPECT_EQ(doubles("8u", 3, {16, 3}, {32, 3}), 0);
  EXPECT_EQ(doubles("8u", 1, {17, 3}, {32, 3}), 0);
  // 33 columns are in pairs but for the last one, which is alone; its neighbour in the plan would not be its
  // pair.
  const auto first = [](int columns) {
    return resizes(Path::NearestDoubled, "Nearest", "8u", 1, {64, 3}, {126, 3}, 0, columns);
  };
  EXPECT_EQ(first(33), 3);
  EXPECT_EQ(first(34), 0);
}

// Blocks of sixteen bytes from 32 bytes of the source.
TEST(Paths, NearestPicksFromWindows) {
  const auto picks = [](const std::string& type, int channels, LumiSize src, LumiSize dst) {
    return resizes(Path::NearestWindows, "Nearest", type, channels, src, dst);
  };
  EXPECT_EQ(picks("8u", 1, {24, 3}, {16, 3}), 3);
  EXPECT_EQ(picks("8u", 1, {23, 3}, {15, 3}), 0);
  EXPECT_EQ(picks("16u", 1, {12, 3}, {8, 3}), 3);
  EXPECT_EQ(picks("8u", 1, {34, 3}, {16, 3}), 3);
  EXPECT_EQ(picks("8u", 1, {35, 3}, {16, 3}), 0);
  EXPECT_EQ(picks("8u", 1, {15, 3}, {20, 3}), 0);
  EXPECT_EQ(picks("32f", 1, {24, 3}, {16, 3}), 0);
}

// Equal rows are copied, but for long ones that are doubled, and rows that overlap.
TEST(Paths, NearestCopiesRows) {
  const auto copies = [](LumiSize src, LumiSize dst, int dstStep = 0) {
    return resizes(Path::NearestRowCopied, "Nearest", "8u", 1, src, dst, dstStep);
  };
  EXPECT_EQ(copies({24, 2}, {16, 6}), 4);
  EXPECT_EQ(copies({24, 6}, {16, 6}), 0);
  EXPECT_EQ(copies({24, 2}, {16, 6}, 15), 0);
  EXPECT_EQ(copies({2048, 1}, {4096, 2}), 1);
  EXPECT_EQ(copies({2049, 1}, {4098, 2}), 0);
  EXPECT_EQ(copies({4098, 1}, {4098, 2}), 1);
}

TEST(Paths, LinearHalves) {
  const auto halves = [](const std::string& type, int channels, LumiSize src, LumiSize dst) {
    return resizes(Path::LinearHalved, "Linear", type, channels, src, dst) > 0;
  };
  for (const int channels : resize::kChannels) EXPECT_TRUE(halves("8u", channels, {40, 12}, {20, 6}));
  for (const std::string type : {"16u", "16s", "32f"}) {
    EXPECT_TRUE(halves(type, 1, {40, 12}, {20, 6})) << type;
    EXPECT_FALSE(halves(type, 3, {40, 12}, {20, 6})) << type;
  }
  EXPECT_FALSE(halves("8u", 1, {40, 12}, {20, 5}));
  EXPECT_FALSE(halves("8u", 1, {41, 12}, {20, 6}));
  EXPECT_FALSE(halves("64f", 1, {40, 12}, {20, 6}));
}

TEST(Paths, LinearDoubles) {
  const auto doubles = [](const std::string& type, int channels, LumiSize src, LumiSize dst) {
    return resizes(Path::LinearDoubled, "Linear", type, channels, src, dst) > 0;
  };
  for (const int channels : resize::kChannels) EXPECT_TRUE(doubles("8u", channels, {20, 6}, {40, 12}));
  EXPECT_TRUE(doubles("32f", 1, {20, 6}, {40, 12}));
  EXPECT_FALSE(doubles("32f", 3, {20, 6}, {40, 12}));
  EXPECT_FALSE(doubles("16u", 1, {20, 6}, {40, 12}));
  EXPECT_FALSE(doubles("8u", 1, {20, 6}, {40, 11}));
  EXPECT_FALSE(doubles("8u", 1, {20, 6}, {41, 12}));
}

// Eight columns from sixteen bytes; columns whose taps span less than that have none.
TEST(Paths, LinearBytesPickFromWindows) {
  const auto picks = [](int channels, LumiSize src, LumiSize dst) {
    return resizes(Path::LinearByteWindows, "Linear", "8u", channels, src, dst) > 0;
  };
  EXPECT_TRUE(picks(1, {80, 6}, {40, 5}));
  EXPECT_FALSE(picks(1, {88, 6}, {40, 5}));
  EXPECT_TRUE(picks(1, {16, 6}, {24, 5}));
  EXPECT_FALSE(picks(1, {15, 6}, {24, 5}));
  EXPECT_FALSE(picks(3, {40, 6}, {36, 5}));
}

// Four columns from eight samples, eight columns at a time.
TEST(Paths, LinearFloatsPickFromWindows) {
  const auto picks = [](const std::string& type, int channels, LumiSize src, LumiSize dst) {
    return resizes(Path::LinearFloatWindows, "Linear", type, channels, src, dst) > 0;
  };
  for (const std::string type : {"16u", "16s", "32f"}) {
    EXPECT_TRUE(picks(type, 1, {80, 6}, {40, 5})) << type;
    EXPECT_FALSE(picks(type, 1, {96, 6}, {40, 5})) << type;
    EXPECT_TRUE(picks(type, 1, {9, 6}, {8, 5})) << type;
    EXPECT_FALSE(picks(type, 1, {8, 6}, {7, 5})) << type;
    EXPECT_FALSE(picks(type, 3, {60, 6}, {40, 5})) << type;
  }
  EXPECT_FALSE(picks("64f", 1, {60, 6}, {40, 5}));
}

// How often filtering a byte image takes a path.
int filters(Path path, std::vector<Lum16s> taps, LumiSize roi) {
  const model::FilterKernel kernel{{3, 3}, std::move(taps), {}, 16, lumRoundNearestEven};
  filter::Work work(kernel, lumiData8u, 1, roi);
  std::vector<Lum8u> src(static_cast<size_t>(roi.width * roi.height)), dst(src.size());
  const Lum8u value[4] = {};
  const NamedCall call =
      filter::apply<Lum8u>(1, filter::imageOf(src, roi.width), filter::imageOf(dst, roi.width), roi,
                           lumiBorderReplicate, value, work.spec.data(), work.buffer.data());
  return taken(path, [&] { return call.run(); });
}

// Taps whose magnitudes add up to 128, over rows of sixteen samples.
TEST(Paths, FiltersSumSmallTapsInWords) {
  const auto sums = [](Lum16s middle, int width) {
    return filters(Path::FilterWordSums, {1, 1, 1, 1, middle, 1, 1, 1, 1}, {width, 9});
  };
  EXPECT_GT(sums(120, 18), 0);
  EXPECT_GT(sums(-120, 18), 0);
  EXPECT_EQ(sums(121, 18), 0);
  EXPECT_EQ(sums(120, 15), 0);
}

// From four rows on, without those above and below.
TEST(Paths, FiltersDoNarrowStripsByColumns) {
  const auto strips = [](int height) {
    return filters(Path::FilterStrip, {1, 2, 1, 2, 4, 2, 1, 2, 1}, {40, height});
  };
  EXPECT_EQ(strips(6), 2);
  EXPECT_EQ(strips(5), 0);
}

// Windows of 3 x 3 have a form of their own; sums of up to 257 bytes fit in 16 bits.
TEST(Paths, BoxesOfFewBytes) {
  std::vector<Lum8u> src(40 * 40), dst(src.size());
  const auto box = [&](Path path, LumiSize mask) {
    return taken(path, [&] {
      return lumiFilterBox_8u_C1R(src.data(), 40, dst.data(), 40, {20, 4}, mask, {0, 0});
    });
  };
  EXPECT_EQ(box(Path::BoxOfThree, {3, 3}), 1);
  EXPECT_EQ(box(Path::BoxOfThree, {3, 4}), 0);
  EXPECT_EQ(box(Path::WindowSumsOfWords, {16, 16}), 1);
  EXPECT_EQ(box(Path::WindowSumsOfWords, {16, 17}), 0);
  const auto inPlace = [&](Path path, LumiSize mask) {
    return taken(path, [&] { return lumiFilterBox_8u_C1IR(src.data(), 40, {20, 4}, mask, {0, 0}); });
  };
  EXPECT_EQ(inPlace(Path::BoxOfThree, {3, 3}), 0);
  EXPECT_EQ(inPlace(Path::WindowSumsOfWords, {3, 3}), 1);
}

// The blocks of a window of many rows do not fit into the cache.
TEST(Paths, BoxesOfManyFloatsGoInStrips) {
  std::vector<Lum32f> src(2000 * 61), dst(2000);
  const auto strips = [&](int width, int height) {
    return taken(Path::WindowStrips, [&] {
      return lumiFilterBox_32f_C1R(src.data(), 8000, dst.data(), 8000, {width, 1}, {9, height}, {0, 0});
    });
  };
  EXPECT_EQ(strips(1900, 60), 1);
  EXPECT_EQ(strips(1000, 60), 0);
  EXPECT_EQ(strips(1900, 20), 0);
}

// Small windows are sorted, and those that are too high for counters of bytes have each median selected.
TEST(Paths, LargeMediansTakeHistograms) {
  const std::vector<Lum32f> src(20 * 160);
  std::vector<Lum32f> dst(20);
  const auto* const bytes = reinterpret_cast<const Lum8u*>(src.data());
  auto* const results = reinterpret_cast<Lum8u*>(dst.data());
  const auto ofBytes = [&](LumiSize mask) {
    return taken(Path::MedianHistograms, [&] {
      return lumiFilterMedian_8u_C1R(bytes, 80, results, 80, {4, 1}, mask, {0, 0});
    });
  };
  EXPECT_EQ(ofBytes({3, 3}), 0);
  EXPECT_EQ(ofBytes({5, 3}), 1);
  EXPECT_EQ(ofBytes({3, 127}), 1);
  EXPECT_EQ(ofBytes({3, 129}), 0);
  const auto ofFloats = [&](LumiSize mask) {
    return taken(Path::MedianHistograms, [&] {
      return lumiFilterMedian_32f_C1R(src.data(), 80, dst.data(), 80, {4, 1}, mask, {0, 0});
    });
  };
  EXPECT_EQ(ofFloats({5, 5}), 0);
  EXPECT_EQ(ofFloats({7, 5}), 1);
}

// Beyond 512 columns the middle of an image is done where it lies, but not that of three channels.
TEST(Paths, GradientsOfWideImagesAreMadeInPlace) {
  std::vector<Lum8u> src(3 * 600 * 2), buffer(1 << 14);
  std::vector<Lum16s> dst(600 * 2);
  const auto inPlace = [&](auto* gradients, int width, int channels, auto value) {
    return taken(Path::GradientsInPlace, [&] {
      return gradients(src.data(), width * channels, dst.data(), 2 * width, nullptr, 0, nullptr, 0, nullptr,
                       0, {width, 2}, lumiMask3x3, 2, lumiBorderConst, value, buffer.data());
    });
  };
  EXPECT_EQ(inPlace(lumiGradientVectorSobel_8u16s_C1R, 513, 1, Lum8u{9}), 1);
  EXPECT_EQ(inPlace(lumiGradientVectorSobel_8u16s_C1R, 512, 1, Lum8u{9}), 0);
  EXPECT_EQ(inPlace(lumiGradientVectorSobel_8u16s_C3C1R, 600, 3, src.data()), 0);
}

TEST(Paths, FourBlocksOfAWindowAreAddedUpTogether) {
  const auto together = [](int across) {
    const LumiHOGConfig config = {0, 4, 8, 4, 9, 2, 0.2F, 4 + 4 * across, 8};
    std::vector<Lum8u> object(72 + 16 * 64), image(1024), buffer(12 * 1024);
    std::vector<Lum32f> descriptor(36 * 16);
    auto* const spec = reinterpret_cast<LumiHOGSpec*>(object.data());
    EXPECT_EQ(lumiHOGInit(&config, spec), lumStatusOk);
    return taken(Path::HogBlocksTogether, [&] {
      return lumiHOG_8u32f_C1R(image.data(), 128, {config.windowWidth, 8}, nullptr, 1, descriptor.data(),
                               spec, lumiBorderReplicate, 0, buffer.data());
    });
  };
  EXPECT_EQ(together(3), 0);
  EXPECT_EQ(together(4), 1);
  EXPECT_EQ(together(11), 2);
}

TEST(Paths, LongRowsOfPackedFloatsGoInWideGroups) {
  std::vector<Lum32f> a(60), b(60), dst(60);
  const auto wide = [&](auto* multiply, int width, int channels) {
    const int step = width * channels * static_cast<int>(sizeof(Lum32f));
    return taken(Path::WidePairs, [&] {
      return multiply(a.data(), step, b.data(), step, dst.data(), step, {width, 1});
    });
  };
  EXPECT_EQ(wide(lumiMulPack_32f_C1R, 17, 1), 1);
  EXPECT_EQ(wide(lumiMulPack_32f_C1R, 16, 1), 0);
  EXPECT_EQ(wide(lumiMulPackConj_32f_C3R, 5, 3), 1);
  EXPECT_EQ(wide(lumiMulPackConj_32f_C3R, 4, 3), 0);
  EXPECT_EQ(wide(lumiMulPack_32f_AC4R, 5, 4), 1);
  EXPECT_EQ(wide(lumiMulPack_32f_AC4R, 4, 4), 0);
}

// Of taps that are bytes: magnitudes of up to 128, or weights of up to 257 that are divided.
TEST(Paths, SmallTapsAreSummedInWords) {
  const std::vector<Lum8u> src(40 * 3);
  std::vector<Lum8u> dst(40);
  const auto sums = [&](std::vector<Lum32s> taps, int divisor) {
    return taken(Path::TapWordSums, [&] {
      return lumiFilterRow_8u_C1R(src.data(), 40, dst.data(), 40, {16, 1}, taps.data(),
                                  static_cast<int>(taps.size()), static_cast<int>(taps.size()) - 1, divisor);
    });
  };
  EXPECT_EQ(sums({-64, 0, 64}, 3), 1);
  EXPECT_EQ(sums({-64, 0, 65}, 3), 0);
  EXPECT_EQ(sums({-128, 0, 0}, 1), 1);
  EXPECT_EQ(sums({128, 0, 0}, 1), 0);
  EXPECT_EQ(sums({64, 64, 64, 64, 1}, 2), 1);
  EXPECT_EQ(sums({64, 64, 64, 64, 2}, 2), 0);
  EXPECT_EQ(sums({64, 64, 64, 64}, 3), 0);
  EXPECT_EQ(sums({64, 65, 64}, 2), 0);
  EXPECT_EQ(sums({127, 1, 127}, 1 << 14), 1);
  EXPECT_EQ(sums({127, 1, 127}, 1 << 15), 0);
  EXPECT_EQ(sums({80, -1, 80}, 256), 0);
}

TEST(Paths, RowsShareTheSamplesOfColumns) {
  const std::vector<Lum8u> src(40 * 8);
  const std::vector<Lum32f> floats(40 * 8);
  std::vector<Lum8u> dst(40 * 8);
  std::vector<Lum32f> results(40 * 8);
  const Lum32s taps[] = {1, 2, 1};
  const Lum32f weights[] = {1, 2, 1};
  const auto runs = [&](int height) {
    return taken(Path::TapRowsShared, [&] {
      return lumiFilterColumn_8u_C1R(src.data(), 40, dst.data(), 40, {40, height}, taps, 3, 2, 4);
    });
  };
  EXPECT_EQ(runs(2), 1);
  EXPECT_EQ(runs(1), 0);
  EXPECT_EQ(
      taken(
          Path::TapRowsShared,
          [&] {
            return lumiFilterColumn_32f_C1R(floats.data(), 160, results.data(), 160, {40, 3}, weights, 3, 2);
          }),
      1);
  EXPECT_EQ(taken(Path::TapRowsShared,
                  [&] {
                    return lumiFilterRow_8u_C1R(src.data(), 40, dst.data(), 40, {30, 3}, taps, 3, 2, 4);
                  }),
            0);
}

}  // namespace
}  // namespace test

#endif  // LUMI_COUNT_PATHS
