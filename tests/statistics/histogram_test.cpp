// SPDX-License-Identifier: MIT
// Histograms by levels of the call: against the model; where the table is taken; every status of the members
// with several channels.
#include "lumi/histogram.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <numeric>

#include "statistics/histogram_lists.hpp"
#include "support/arena.hpp"
#include "support/core_guard.hpp"
#include "support/fault.hpp"
#include "support/list_faults.hpp"
#include "support/named_call.hpp"
#include "support/settings.hpp"

namespace test {
namespace {

using namespace histogram;

void fillCounts(Random& random, Byte* first, int count) {
  for (int c = 0; c < count; ++c) model::store<Lum32s>(first, c, random.pick(lut::kCounts));
}
void fillBounds(Random& random, Byte* first, int count) {
  for (int c = 0; c < count; ++c)
    model::store<Lum32s>(first, c,
                         random.oneIn(4) ? static_cast<int>(random.next()) : random.between(-300, 300));
}

const bool rangeAdded = addModelTests(membersOfOneType(
    "HistogramRange",
    [](Member& m, auto sample) {
      using T = decltype(sample);
      const bool isOne = m.layouts[0] == "C1";
      const model::Channels channels = m.channels;
      describeLists<fillAny>(m, "histogram", "32s");
      describeLists<lut::fillLevels<T>>(m, "levels", std::is_floating_point_v<T> ? "32f" : "32s");
      describeNumbers<fillCounts>(m, "count", lut::kCounts);
      m.contents = kAnyContents;
      m.mayStream = false;
      m.checksSteps = true;
      m.rounds = 8;
      m.model = [=](const Call& call) {
        for (int c = 0; c < channels.moved; ++c) {
          const ChannelCall its{call, isOne, c};
          storeAll(its.list("histogram"),
                   model::binCounts(model::channelOf<T>(call.srcImage(), call.roi, channels.src, c),
                                    levelsAt<LevelOf<T>>(its.list("levels"), its.number("count"))));
        }
      };
    },
    Types<Lum8u, Lum16u, Lum16s, Lum32f>()));

// The model of one channel.
template <typename T>
void even(const std::vector<T>& samples, bool isOne, Lum32s lower, Lum32s upper, int count, Byte* bins,
          Byte* levels) {
  const std::vector<double> all = model::evenLevels(lower, upper, count);
  storeAll(levels, std::vector<Lum32s>(all.begin(), all.end()));
  const bool isDivided =
      sizeof(T) == 2 && isOne && samples.size() < 65536 && (int64_t{upper} - lower) % (count - 1) == 0;
  storeAll(bins,
           isDivided ? model::dividedCounts(samples, lower, upper, count) : model::binCounts(samples, all));
}

const std::vector<int> kBounds = {-(1 << 30), 1 << 30, 0,     1,   10,  255, 256, -256,      -10,      1000,
                                  65536,      -32768,  32767, 120, -39, 234, 39,  INT32_MIN, INT32_MAX};

const bool evenAdded = addModelTests(membersOfOneType(
    "HistogramEven",
    [](Member& m, auto sample) {
      using T = decltype(sample);
      const bool isOne = m.layouts[0] == "C1";
      const model::Channels channels = m.channels;
      describeLists<fillAny>(m, "histogram", "32s");
      describeLists<fillAny>(m, "levels", "32s");
      describeNumbers<fillCounts>(m, "count", lut::kCounts);
      describeNumbers<fillBounds>(m, "lower", kBounds);
      describeNumbers<fillBounds>(m, "upper", kBounds);
      m.contents = kAnyContents;
      m.mayStream = false;
      m.checksSteps = true;
      m.rounds = 8;
      m.model = [=](const Call& call) {
        for (int c = 0; c < channels.moved; ++c) {
          const ChannelCall its{call, isOne, c};
          even(model::channelOf<T>(call.srcImage(), call.roi, channels.src, c), isOne, its.number("lower"),
               its.number("upper"), its.number("count"), its.list("histogram"), its.list("levels"));
        }
      };
    },
    Types<Lum8u, Lum16u, Lum16s>()));

// A call of a member with several channels whose images no access survives, and what may be wrong with it, in
// the order in which it is told.
class ListCall {
 public:
  struct Fault {
    std::function<void(ListCall&)> apply;
    LumStatus status;
    int exclusive = 0;  // of two with one number only one can be there
  };

  explicit ListCall(const ExportRow& row)
      : call_(row),
        isEven_(row.operation == std::string("HistogramEven")),
        channels_(row.layouts[0] == std::string("C4") ? 4 : 3) {
    for (int c = 0; c < 4; ++c) {
      histograms_[c] = levels_[c] = forbiddenMemory();
      counts_[c] = 4;
    }
    call_.size("roi", {7, 3}).image("src", forbiddenMemory(), 256);
    call_.pointer("histogram", histograms_).pointer("levels", levels_).pointer("count", counts_);
    if (isEven_) call_.pointer("lower", counts_).pointer("upper", counts_);
  }
  LumStatus run() { return call_.run(); }

  std::vector<Fault> faults() const {
    std::vector<Fault> all;
    std::vector<const char*> names = {"src", "histogram", "levels", "count"};
    if (isEven_) names.insert(names.end(), {"lower", "upper"});
    for (const char* name : names)
      all.push_back({[=](ListCall& c) { c.call_.pointer(name, nullptr); }, lumStatusNullPointer});
    for (int c = 0; c < channels_; ++c) {
      all.push_back({[=](ListCall& call) { call.histograms_[c] = nullptr; }, lumStatusNullPointer});
      all.push_back({[=](ListCall& call) { call.levels_[c] = nullptr; }, lumStatusNullPointer});
      for (const int count : {1, 0, -1, INT32_MIN})
        all.push_back(
            {[=](ListCall& call) { call.counts_[c] = count; }, lumStatusTooFewHistogramLevels, 1 + c});
    }
    for (const LumiSize size : {LumiSize{0, 3}, {-1, 3}, {7, 0}, {7, INT32_MIN}})
      all.push_back({[=](ListCall& c) { c.call_.size("roi", size); }, lumStatusBadSize, 9});
    for (const int step : {0, -1, INT32_MIN})
      all.push_back({[=](ListCall& c) { c.call_.number("srcStep", step); }, lumStatusBadStep, 10});
    return all;
  }

 private:
  NamedCall call_;
  bool isEven_;
  int channels_, counts_[4];
  const void *histograms_[4], *levels_[4];
};

TEST(HistogramStatus, OfSeveralChannelsInOrder) {
  for (const ExportRow& row : exportRows()) {
    const std::string operation = row.operation;
    if (operation != "HistogramRange" && operation != "HistogramEven") continue;
    if (row.layouts[0] == std::string("C1")) continue;
    expectFaultsInOrder<ListCall>(row);
  }
}

// Words of one channel, many of which are equal.
template <typename T>
std::vector<T> wordsOf(int count) {
  Random random(static_cast<uint64_t>(count));
  std::vector<T> words(static_cast<size_t>(count));
  for (T& word : words)
    word = static_cast<T>(random.oneIn(3) ? random.next() : static_cast<uint64_t>(random.between(-9, 900)));
  return words;
}

LumStatus range(const Lum16u* src, int step, LumiSize roi, Lum32s* bins, const Lum32s* levels, int count) {
  return lumiHistogramRange_16u_C1R(src, step, roi, bins, levels, count);
}
LumStatus range(const Lum16s* src, int step, LumiSize roi, Lum32s* bins, const Lum32s* levels, int count) {
  return lumiHistogramRange_16s_C1R(src, step, roi, bins, levels, count);
}

// So many levels of 16-bit samples, from below the type's range to above it; reversed, or two of them equal,
// where they are not to ascend.
template <typename T>
std::vector<Lum32s> manyLevels(int count, bool ascend, bool reversed) {
  constexpr int low = std::numeric_limits<T>::min() - 7, high = std::numeric_limits<T>::max() + 9;
  std::vector<Lum32s> levels;
  for (int k = 0; k < count; ++k)
    levels.push_back(low + static_cast<int>(int64_t{high - low} * k / (count - 1)));
  if (!ascend && reversed) std::swap(levels.front(), levels.back());
  if (!ascend && !reversed) levels[1] = levels[0];
  return levels;
}

// Expects the counts, and a refusal without memory exactly where a table is to be taken.
template <typename T>
void expectTable(int pixels, int count, bool ascend, bool takesTable) {
  const auto where = testing::Message() << pixels << " pixels, " << count << " levels, ascend " << ascend;
  const std::vector<T> image = wordsOf<T>(pixels);
  const std::vector<Lum32s> levels = manyLevels<T>(count, ascend, count % 2 == 0);
  const std::vector<Lum32s> untouched(levels.size() - 1, -77);
  std::vector<Lum32s> bins = untouched;
  const int step = pixels * static_cast<int>(sizeof(T));
  const auto call = [&] { return range(image.data(), step, {pixels, 1}, bins.data(), levels.data(), count); };
  const CoreGuard guard;
  testcore::failAllocation(1);
  EXPECT_EQ(call(), takesTable ? lumStatusNoMemory : lumStatusOk) << where;
  EXPECT_EQ(testcore::counts().allocations, takesTable) << where;
  if (takesTable) {
    EXPECT_EQ(bins, untouched) << where;
    EXPECT_EQ(call(), lumStatusOk) << where;
    EXPECT_EQ(testcore::lastRequest(), 65536 * 4) << where;
    EXPECT_EQ(testcore::counts().liveBlocks, 0) << where;
  }
  EXPECT_EQ(bins, model::binCounts(image, std::vector<double>(levels.begin(), levels.end()))) << where;
}

struct Limit {
  int pixels, levels;
};
const std::vector<Limit> kAscending = {{6400, 134}, {9216, 78}, {12544, 50}, {16384, 34},
                                       {20736, 22}, {25600, 6}, {36864, 2}};
const std::vector<Limit> kAny = {{1024, 434}, {2304, 222}, {4096, 126}, {6400, 78}, {9216, 50}, {12544, 34},
                                 {16384, 22}, {20736, 14}, {25600, 10}, {30976, 6}, {43264, 2}};

template <typename T>
void expectLimits(const std::vector<Limit>& limits, bool ascend) {
  expectTable<T>(limits[0].pixels - 1, 1000, ascend, false);
  for (size_t i = 0; i < limits.size(); ++i) {
    const auto [pixels, levels] = limits[i];
    const int fewest = ascend ? 2 : 3;  // two levels may ascend or not, but are not more than two
    if (levels >= fewest) expectTable<T>(pixels, levels, ascend, false);
    expectTable<T>(pixels, levels + 1, ascend, true);
    if (i > 0) {
      expectTable<T>(pixels - 1, limits[i - 1].levels, ascend, false);
      expectTable<T>(pixels - 1, limits[i - 1].levels + 1, ascend, true);
    }
  }
}

TEST(HistogramTable, IsTakenByTheLimits) {
  expectLimits<Lum16u>(kAscending, true);
  expectLimits<Lum16s>(kAscending, true);
  expectLimits<Lum16u>(kAny, false);
  expectLimits<Lum16s>(kAny, false);
}

// Of several channels each has its own limit; one that takes the table is enough for a refusal.
TEST(HistogramTable, IsTakenByEachChannel) {
  constexpr int side = 112;  // 12544 pixels
  const std::vector<Lum16u> image = wordsOf<Lum16u>(side * side * 4);
  const std::vector<Lum32s> few = manyLevels<Lum16u>(50, true, false),
                            many = manyLevels<Lum16u>(51, true, false);
  for (int large = 0; large < 4; ++large) {
    std::vector<Lum32s> bins(4 * 51, -77);
    Lum32s* histograms[4];
    const Lum32s* levels[4];
    int counts[4];
    for (int c = 0; c < 4; ++c) {
      histograms[c] = bins.data() + c * 51;
      levels[c] = c == large ? many.data() : few.data();
      counts[c] = c == large ? 51 : 50;
    }
    const CoreGuard guard;
    testcore::failAllocation(1);
    const auto call = [&](auto lumi) {
      return lumi(image.data(), side * 8, LumiSize{side, side}, histograms, levels, counts);
    };
    EXPECT_EQ(call(lumiHistogramRange_16u_AC4R), large < 3 ? lumStatusNoMemory : lumStatusOk);
    EXPECT_EQ(bins == std::vector<Lum32s>(4 * 51, -77), large < 3);
    ASSERT_EQ(call(lumiHistogramRange_16u_C4R), large < 3 ? lumStatusOk : lumStatusNoMemory);
    if (large == 3) {
      ASSERT_EQ(call(lumiHistogramRange_16u_C4R), lumStatusOk);
    }
    const model::Image asBytes{reinterpret_cast<Byte*>(const_cast<Lum16u*>(image.data())), side * 8};
    for (int c = 0; c < 4; ++c) {
      const auto wanted = model::binCounts(model::channelOf<Lum16u>(asBytes, {side, side}, 4, c),
                                           std::vector<double>(levels[c], levels[c] + counts[c]));
      EXPECT_TRUE(std::equal(wanted.begin(), wanted.end(), histograms[c])) << c;
    }
  }
}

// Without a remainder small images need no memory; the levels are told even where there is none.
TEST(HistogramEven, DividesSmallImagesWithoutRemainder) {
  const std::vector<Lum16s> image = wordsOf<Lum16s>(65536);
  const auto call = [&](int pixels, int upper, std::vector<Lum32s>& bins, std::vector<Lum32s>& levels) {
    return lumiHistogramEven_16s_C1R(image.data(), 2 * pixels, {pixels, 1}, bins.data(), levels.data(),
                                     static_cast<int>(levels.size()), -500, upper);
  };
  for (const auto& [pixels, upper, isDivided] :
       {std::tuple{65535, 500, true}, {65536, 500, false}, {65535, 501, false}, {65535, -1500, true}}) {
    const CoreGuard guard;
    testcore::failAllocation(1);
    std::vector<Lum32s> bins(100, -77), levels(101, -77), wantedBins(100), wantedLevels(101);
    const auto status = call(pixels, upper, bins, levels);
    EXPECT_EQ(status, isDivided ? lumStatusOk : lumStatusNoMemory) << pixels << " " << upper;
    even(std::vector<Lum16s>(image.begin(), image.begin() + pixels), true, -500, upper, 101,
         reinterpret_cast<Byte*>(wantedBins.data()), reinterpret_cast<Byte*>(wantedLevels.data()));
    EXPECT_EQ(levels, wantedLevels);
    if (!isDivided) {
      EXPECT_EQ(bins, std::vector<Lum32s>(100, -77));
      EXPECT_EQ(call(pixels, upper, bins, levels), lumStatusOk);
    }
    EXPECT_EQ(bins, wantedBins) << pixels << " " << upper;
  }
}

TEST(HistogramEven, LevelsOfARemainder) {
  const Lum8u image[] = {0, 2, 3, 5, 6, 7, 8, 9, 10, 11};
  Lum32s bins[4], levels[5];
  ASSERT_EQ(lumiHistogramEven_8u_C1R(image, 10, {10, 1}, bins, levels, 5, 0, 10), lumStatusOk);
  EXPECT_EQ(std::vector<Lum32s>(levels, levels + 5), (std::vector<Lum32s>{0, 3, 6, 8, 10}));
  EXPECT_EQ(std::vector<Lum32s>(bins, bins + 4), (std::vector<Lum32s>{2, 2, 2, 2}));
  ASSERT_EQ(lumiHistogramEven_8u_C1R(image, 10, {10, 1}, bins, levels, 5, 10, 0), lumStatusOk);
  EXPECT_EQ(std::vector<Lum32s>(levels, levels + 5), (std::vector<Lum32s>{10, 7, 4, 2, 0}));
  EXPECT_EQ(std::vector<Lum32s>(bins, bins + 4), (std::vector<Lum32s>{0, 0, 0, 0}));
  ASSERT_EQ(lumiHistogramEven_8u_C1R(image, 10, {10, 1}, bins, levels, 2, INT32_MIN, INT32_MAX), lumStatusOk);
  EXPECT_EQ(levels[1], INT32_MAX);
  EXPECT_EQ(bins[0], 10);
}

TEST(Histogram, BinsAreHalfOpenAndLimitedToTheType) {
  const Lum8u image[] = {0, 4, 5, 5, 9, 10, 255};
  Lum32s bins[3];
  const Lum32s levels[] = {0, 5, 10, 255}, wide[] = {0, 1000}, beyond[] = {-9, 0, 300, 400};
  ASSERT_EQ(lumiHistogramRange_8u_C1R(image, 7, {7, 1}, bins, levels, 4), lumStatusOk);
  EXPECT_EQ(std::vector<Lum32s>(bins, bins + 3), (std::vector<Lum32s>{2, 3, 1}));
  ASSERT_EQ(lumiHistogramRange_8u_C1R(image, 7, {7, 1}, bins, wide, 2), lumStatusOk);
  EXPECT_EQ(bins[0], 7);
  ASSERT_EQ(lumiHistogramRange_8u_C1R(image, 7, {7, 1}, bins, beyond, 4), lumStatusOk);
  EXPECT_EQ(std::vector<Lum32s>(bins, bins + 3), (std::vector<Lum32s>{0, 7, 0}));
}

TEST(Histogram, BinsOfOtherListsCountByThemselves) {
  const Lum16u image[] = {0, 49, 50, 99, 100, 65535};
  Lum32s bins[2];
  const Lum32s levels[] = {0, 100, 50};
  ASSERT_EQ(lumiHistogramRange_16u_C1R(image, 12, {6, 1}, bins, levels, 3), lumStatusOk);
  EXPECT_EQ(bins[0], 4);
  EXPECT_EQ(bins[1], 0);
}

TEST(Histogram, NotANumberIsInNoBin) {
  constexpr float nan = std::numeric_limits<float>::quiet_NaN(), inf = std::numeric_limits<float>::infinity();
  const Lum32f image[] = {nan, -inf, -1, -0.0f, 0, 1, inf, nan};
  Lum32s bins[2];
  const Lum32f levels[] = {-inf, 0, inf}, broken[] = {-1, nan, 2};
  ASSERT_EQ(lumiHistogramRange_32f_C1R(image, 32, {8, 1}, bins, levels, 3), lumStatusOk);
  EXPECT_EQ(bins[0], 2);
  EXPECT_EQ(bins[1], 3);
  ASSERT_EQ(lumiHistogramRange_32f_C1R(image, 32, {8, 1}, bins, broken, 3), lumStatusOk);
  EXPECT_EQ(bins[0], 0);
  EXPECT_EQ(bins[1], 0);
  // A list long enough to be searched.
  std::vector<Lum32f> many(200);
  std::iota(many.begin(), many.end(), -100.0f);
  std::vector<Lum32s> counts(199);
  ASSERT_EQ(lumiHistogramRange_32f_C1R(image, 32, {8, 1}, counts.data(), many.data(), 200), lumStatusOk);
  EXPECT_EQ(counts[100], 2);
  EXPECT_EQ(std::accumulate(counts.begin(), counts.end(), 0), 4);
}

// More equal samples than any lane, block or neighbour's table holds by itself, in rows as one and apart.
TEST(Histogram, ManyEqualSamples) {
  constexpr int width = 1 << 15, height = 5;
  const std::vector<Lum8u> bytes(size_t{width} * height, 255);
  const std::vector<Lum32f> floats(size_t{width} * height, 255);
  for (const int gap : {0, 8}) {
    const LumiSize roi{width - gap, height};
    Lum32s bins[2], levels[] = {0, 255, 256};
    const Lum32f floatLevels[] = {0, 255, 256};
    ASSERT_EQ(lumiHistogramRange_8u_C1R(bytes.data(), width, roi, bins, levels, 3), lumStatusOk);
    EXPECT_EQ(bins[1], roi.width * height);
    ASSERT_EQ(lumiHistogramRange_32f_C1R(floats.data(), 4 * width, roi, bins, floatLevels, 3), lumStatusOk);
    EXPECT_EQ(bins[0], 0);
    EXPECT_EQ(bins[1], roi.width * height);
  }
}

}  // namespace
}  // namespace test
