// SPDX-License-Identifier: MIT
// Results of kernel filtering with border, against the model; what is read and written; sharing.
#include "model/filters/filter_border.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cstring>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "filters/filter_border_calls.hpp"
#include "support/arena.hpp"
#include "support/core_guard.hpp"
#include "support/member.hpp"
#include "support/random.hpp"
#include "support/settings.hpp"

namespace test {
namespace {

using model::FilterImage;
using model::FilterKernel;

const bool covered = [] {
  for (const char* type : {"8u", "16s", "16u", "32f"})
    for (const int channels : filter::kChannels) addCovered({filter::runName(type, channels)});
  return addCovered({"lumiFilterBorderGetSize", "lumiFilterBorderInit_16s", "lumiFilterBorderInit_32f"});
}();

struct Trial {
  FilterKernel kernel;
  LumiSize roi;
  LumiBorderType border;
  int srcGap = 0, dstGap = 0;  // bytes between rows
  bool atEnd = true;           // images and memory end, else begin, at an unmapped page
  int specPhase = 0, bufferPhase = 0;
};

std::string describe(const Trial& t, int channels) {
  std::ostringstream out;
  out << "C" << channels << " kernel " << t.kernel.size.width << "x" << t.kernel.size.height
      << (t.kernel.integers.empty() ? " float" : " integers / ") << t.kernel.divisor << " mode "
      << t.kernel.roundMode << " roi " << t.roi.width << "x" << t.roi.height << " border " << t.border
      << " gaps " << t.srcGap << " " << t.dstGap << " atEnd " << t.atEnd << " phases " << t.specPhase << " "
      << t.bufferPhase;
  return out.str();
}

// Memory in an arena: flush with its end or its beginning, but for the phase.
struct Block {
  Byte* first;
  size_t bytes;
};
Block place(const Arena& arena, size_t bytes, bool atEnd, int phase) {
  return {atEnd ? arena.end() - bytes - phase : arena.begin() + phase, bytes};
}
// Only the block itself may have changed.
bool keptAround(const Arena& arena, Block block) {
  return !arena.firstDifference(arena.begin(), block.first) &&
         !arena.firstDifference(block.first + block.bytes, arena.end());
}

template <typename T>
void fillSamples(Random& random, Byte* first, size_t count) {
  const bool extremes = std::is_integral_v<T> && random.oneIn(4);
  for (size_t i = 0; i < count; ++i) {
    T sample;
    if constexpr (std::is_integral_v<T>) {
      sample = static_cast<T>(random.next());
      if (extremes) sample = random.oneIn(2) ? std::numeric_limits<T>::max() : std::numeric_limits<T>::min();
    } else {
      sample = static_cast<T>(random.between(-1000000, 1000000)) / 1021;
    }
    std::memcpy(first + i * sizeof(T), &sample, sizeof(T));
  }
}

// Sizes, object and run, all in exactly the memory that is promised.
class Bench {
 public:
  template <typename T>
  std::string run(Random& random, int channels, const Trial& t) {
    const auto fail = [&](const char* what) { return std::string(what) + ": " + describe(t, channels); };
    const LumiDataType type = filter::dataType<T>();
    int specBytes = 0, bufferBytes = 0;
    if (filter::getSize(t.kernel, type, channels, t.roi, &specBytes, &bufferBytes) != lumStatusOk)
      return fail("sizes");
    const Block spec = place(spec_, static_cast<size_t>(specBytes), t.atEnd, t.specPhase);
    const Block buffer = place(buffer_, static_cast<size_t>(bufferBytes), t.atEnd, t.bufferPhase);
    random.fill(spec_.begin(), static_cast<size_t>(spec_.end() - spec_.begin()));
    spec_.copyToTwin(spec_.begin(), spec_.end());
    if (filter::init(t.kernel, type, channels, spec.first) != lumStatusOk) return fail("initialiser");
    if (!keptAround(spec_, spec)) return fail("written outside the object");
    spec_.copyToTwin(spec_.begin(), spec_.end());

    std::memset(buffer_.begin(), 0, static_cast<size_t>(buffer_.end() - buffer_.begin()));
    buffer_.copyToTwin(buffer_.begin(), buffer_.end());
    const FilterImage image{placeSource<T>(random, channels, t), t.roi, channels, t.border};
    const int rowBytes = t.roi.width * channels * static_cast<int>(sizeof(T)), dstStep = rowBytes + t.dstGap;
    const size_t dstBytes =
        static_cast<size_t>(dstStep) * static_cast<size_t>(t.roi.height - 1) + static_cast<size_t>(rowBytes);
    const Block dst = place(dst_, dstBytes, t.atEnd, 0);
    random.fill(dst.first, dst.bytes);
    dst_.copyToTwin(dst_.begin(), dst_.end());
    alignas(8) Byte valueBytes[16];
    fillSamples<T>(random, valueBytes, 4);
    T value[4];
    std::memcpy(value, valueBytes, sizeof value);

    const NamedCall call = filter::apply<T>(channels, image.src, {dst.first, dstStep}, t.roi, t.border, value,
                                            spec.first, buffer.first);
    if (call.run() != lumStatusOk) return fail("status");
    model::filterBorder<T>(t.kernel, image, value, {dst_.twin(dst.first), dstStep});
    if (const Byte* at = dst_.firstDifference(dst_.begin(), dst_.end())) {
      std::ostringstream where;
      where << "differs at row " << (at - dst.first) / dstStep << " byte " << (at - dst.first) % dstStep;
      return fail(where.str().c_str());
    }
    if (spec_.firstDifference(spec_.begin(), spec_.end())) return fail("object changed");
    if (src_.firstDifference(src_.begin(), src_.end())) return fail("source changed");
    if (!keptAround(buffer_, buffer)) return fail("written outside the buffer");
    return {};
  }

 private:
  // The ROI and, on sides that are in memory, as many pixels as the kernel reaches: no more is mapped.
  template <typename T>
  model::Image placeSource(Random& random, int channels, const Trial& t) {
    const bool all = (t.border & 15) == 6;
    const int left = t.kernel.size.width / 2, top = t.kernel.size.height / 2;
    const int l = all || t.border & 64 ? left : 0, u = all || t.border & 16 ? top : 0;
    const int r = all || t.border & 128 ? t.kernel.size.width - left - 1 : 0;
    const int d = all || t.border & 32 ? t.kernel.size.height - top - 1 : 0;
    const int pixel = channels * static_cast<int>(sizeof(T)), row = (t.roi.width + l + r) * pixel;
    const int step = row + t.srcGap, rows = t.roi.height + u + d;
    const Block block =
        place(src_, static_cast<size_t>(step) * static_cast<size_t>(rows - 1) + static_cast<size_t>(row),
              t.atEnd, 0);
    for (int y = 0; y < rows; ++y)
      fillSamples<T>(random, block.first + y * step, static_cast<size_t>(row) / sizeof(T));
    src_.copyToTwin(src_.begin(), src_.end());
    return {block.first + u * step + l * pixel, step};
  }

  Arena spec_{1 << 15}, buffer_{1 << 18}, src_{1 << 17}, dst_{1 << 17};
};

// Few: magnitudes that add up to 127, 128 or 129, for which 8-bit images may be summed in 16 bits.
enum class Taps { Small, Any, Unpacked, Weights, Few };

FilterKernel integerKernel(Random& random, LumiSize size, Taps taps, int divisor) {
  FilterKernel k{size, {}, {}, divisor, random.below(3)};
  k.integers.resize(static_cast<size_t>(size.width * size.height));
  for (Lum16s& tap : k.integers) {
    if (taps == Taps::Small) tap = static_cast<Lum16s>(random.between(-9, 9));
    if (taps == Taps::Weights) tap = static_cast<Lum16s>(random.between(0, 20));
    if (taps == Taps::Any || taps == Taps::Unpacked) tap = static_cast<Lum16s>(random.between(-32767, 32766));
  }
  if (taps == Taps::Few) {
    const int sign = random.pick(std::vector<int>{-1, 1, 0});
    const int sum = random.between(126, 129), most = random.pick(std::vector<int>{1, 40, 129});
    for (int left = sum; left > 0;) {
      const int more = std::min(left, random.between(1, most)),
                at = random.below(static_cast<int>(k.integers.size()));
      Lum16s& tap = k.integers[static_cast<size_t>(at)];
      const int direction = tap != 0 ? tap : sign != 0 ? sign : random.between(0, 1) * 2 - 1;
      tap = static_cast<Lum16s>(direction < 0 ? tap - more : tap + more);
      left -= more;
    }
  }
  if (taps == Taps::Unpacked) {
    const int at = random.below(static_cast<int>(k.integers.size()));
    k.integers[static_cast<size_t>(at)] = random.oneIn(2) ? Lum16s{-32768} : Lum16s{32767};
  }
  return k;
}

// Multiples of an eighth, whose sums have ties, or any floats.
FilterKernel floatKernel(Random& random, LumiSize size) {
  FilterKernel k{size, {}, {}, 1, random.below(3)};
  k.floats.resize(static_cast<size_t>(size.width * size.height));
  const bool eighths = random.oneIn(2);
  const float scale = random.pick(std::vector<float>{0.02F, 0.2F, 1, 30, 1e8F});
  for (Lum32f& tap : k.floats)
    tap = eighths ? static_cast<float>(random.between(-4, 6)) / 8
                  : static_cast<float>(random.between(-60000, 100000)) / 100000 * scale;
  return k;
}

const std::vector<LumiSize> kKernels = {{1, 1},  {2, 2}, {3, 3}, {3, 5}, {5, 5}, {7, 7},  {8, 1}, {9, 9},
                                        {13, 4}, {1, 6}, {6, 1}, {3, 1}, {4, 3}, {16, 2}, {17, 3}};
const std::vector<int> kDivisors = {1, 1, 2,   4,   16, 256, 1 << 14, 1 << 20, 1 << 30, 3,
                                    7, 9, 100, 255, -1, -2,  -5,      INT_MAX, INT_MIN};

LumiBorderType anyBorder(Random& random) {
  switch (random.below(6)) {
    case 0:
      return 6 | random.below(16) << 4;
    case 1:
      return 5 + random.below(16 - 5);
    case 2:
      return random.below(16) | (1 + random.below(15)) << 4;
    default:
      return random.below(2) | (random.oneIn(2) ? random.below(16) << 4 : 0);
  }
}

// Sizes about every threshold of the rectangles and of their forms.
LumiSize anyRoi(Random& random, LumiSize k) {
  const int w = k.width, h = k.height;
  const int widths[] = {1,      2,      w - 2, w - 1, w, w + 1, w + 3, w + 4, w + 6, w + 7, w + 8, w + 14,
                        w + 15, w + 16, 4,     5,     7, 8,     9,     15,    16,    17,    w + 37};
  const int heights[] = {1, h - 2, h - 1, h, h + 1, h + 4};
  return {std::max(1, random.pick(widths)), std::max(1, random.pick(heights))};
}

Trial anyTrial(Random& random, FilterKernel kernel) {
  Trial t{std::move(kernel), {}, anyBorder(random)};
  t.roi = anyRoi(random, t.kernel.size);
  t.srcGap = random.pick(std::vector<int>{0, 0, 1, 2, 7, 16});
  t.dstGap = random.pick(std::vector<int>{0, 0, 1, 2, 7, 16});
  t.atEnd = random.oneIn(2);
  if (random.oneIn(2)) t.specPhase = random.below(64), t.bufferPhase = random.below(64);
  return t;
}

template <typename T>
class FilterBorder : public testing::Test {
 protected:
  void expectModel(int channels, const Trial& t) {
    const std::string failure = bench_.run<T>(random_, channels, t);
    EXPECT_EQ(failure, "");
  }

  const CoreGuard guard_;
  Bench bench_;
  Random random_{mixSeed(settings().seed, "filter border", sizeof(T))};
};
using SampleTypes = testing::Types<Lum8u, Lum16s, Lum16u, Lum32f>;
TYPED_TEST_SUITE(FilterBorder, SampleTypes, testing::internal::DefaultNameGenerator);

TYPED_TEST(FilterBorder, FloatKernels) {
  for (const LumiSize size : kKernels)
    for (const int channels : filter::kChannels)
      for (int i = 0; i < settings().scaled(40) && !this->HasFailure(); ++i)
        this->expectModel(channels, anyTrial(this->random_, floatKernel(this->random_, size)));
}

TYPED_TEST(FilterBorder, IntegerKernels) {
  if constexpr (std::is_integral_v<TypeParam>) {
    for (const LumiSize size : kKernels)
      for (const int channels : filter::kChannels)
        for (int i = 0; i < settings().scaled(80) && !this->HasFailure(); ++i) {
          const auto taps = this->random_.pick(std::vector<Taps>{Taps::Small, Taps::Small, Taps::Any,
                                                                 Taps::Unpacked, Taps::Weights, Taps::Few});
          this->expectModel(channels, anyTrial(this->random_, integerKernel(this->random_, size, taps,
                                                                            this->random_.pick(kDivisors))));
        }
  } else {
    LumiFilterBorderSpec* const never = reinterpret_cast<LumiFilterBorderSpec*>(this);
    const Lum16s tap = 1;
    EXPECT_EQ(lumiFilterBorderInit_16s(&tap, {1, 1}, 1, lumiData32f, 1, 0, never), lumStatusBadDataType);
  }
}

// Long rows: several pieces of a row, with every remainder about their ends.
TYPED_TEST(FilterBorder, LongRows) {
  for (const int width : {255, 256, 257, 263, 264, 511, 512, 513, 521})
    for (const int channels : filter::kChannels) {
      Trial t{floatKernel(this->random_, {9, 2}), {width, 3}, lumiBorderReplicate};
      this->expectModel(channels, t);
      if (std::is_floating_point_v<TypeParam>) continue;
      t.kernel = integerKernel(this->random_, {5, 2}, Taps::Small, 16);
      this->expectModel(channels, t);
    }
}

// Each object and buffer is exactly as large as told, wherever it starts.
TYPED_TEST(FilterBorder, ObjectAndBufferAtEveryPhase) {
  for (int phase = 0; phase < 64; ++phase)
    for (const bool atEnd : {false, true})
      for (const LumiSize size : {LumiSize{3, 3}, LumiSize{9, 4}}) {
        Trial t{floatKernel(this->random_, size), {21, 8}, lumiBorderReplicate};
        if (std::is_integral_v<TypeParam> && phase % 2)
          t.kernel = integerKernel(this->random_, size, Taps::Small, 9);
        t.atEnd = atEnd;
        t.specPhase = phase, t.bufferPhase = 63 - phase;
        this->expectModel(1, t);
      }
}

TYPED_TEST(FilterBorder, EveryBorderTypeWithEveryFlag) {
  for (int border = 0; border < 256; ++border) {
    if (border >= 2 && border <= 4) continue;
    for (const LumiSize roi : {LumiSize{30, 9}, LumiSize{4, 7}, LumiSize{9, 2}})
      this->expectModel(3, {floatKernel(this->random_, {5, 4}), roi, border});
  }
}

TYPED_TEST(FilterBorder, RunsAllocateNothing) {
  for (const int channels : filter::kChannels)
    this->expectModel(channels, {floatKernel(this->random_, {5, 5}), {40, 12}, lumiBorderConst});
  EXPECT_EQ(testcore::counts().allocations, 0);
  EXPECT_EQ(testcore::counts().cacheQueries, 0);
}

// One object, and a buffer for each thread.
TYPED_TEST(FilterBorder, ThreadsShareAnObject) {
  using T = TypeParam;
  constexpr LumiSize roi{67, 23}, size{5, 5};
  constexpr int kThreads = 4, kStep = roi.width * static_cast<int>(sizeof(T)), kRuns = 50;
  const FilterKernel kernel = floatKernel(this->random_, size);
  const filter::Work work(kernel, filter::dataType<T>(), 1, roi);
  std::vector<T> src(static_cast<size_t>(roi.width * roi.height)), expected(src);
  fillSamples<T>(this->random_, reinterpret_cast<Byte*>(src.data()), src.size());
  const T value = 7;
  const FilterImage image{filter::imageOf(src, kStep), roi, 1, lumiBorderConst};
  model::filterBorder<T>(kernel, image, &value, filter::imageOf(expected, kStep));
  int differing[kThreads] = {};
  std::vector<std::thread> threads;
  for (int& differs : differing)
    threads.emplace_back([&] {
      std::vector<T> dst(src.size());
      std::vector<Byte> buffer(work.buffer.size());
      const NamedCall call = filter::apply<T>(1, image.src, filter::imageOf(dst, kStep), roi, lumiBorderConst,
                                              &value, work.spec.data(), buffer.data());
      for (int i = 0; i < kRuns; ++i) {
        std::fill(dst.begin(), dst.end(), T{1});
        differs += call.run() != lumStatusOk || dst != expected;
      }
    });
  for (std::thread& thread : threads) thread.join();
  for (const int differs : differing) EXPECT_EQ(differs, 0);
}

class FilterBorderIntegers : public testing::Test {
 protected:
  template <typename T>
  std::vector<T> filter(const FilterKernel& k, LumiSize roi, std::vector<T> src) {
    filter::Work work(k, filter::dataType<T>(), 1, roi);
    std::vector<T> dst(src.size());
    const int step = roi.width * static_cast<int>(sizeof(T));
    const T value = 0;
    const NamedCall call =
        filter::apply<T>(1, filter::imageOf(src, step), filter::imageOf(dst, step), roi, lumiBorderReplicate,
                         &value, work.spec.data(), work.buffer.data());
    EXPECT_EQ(call.run(), lumStatusOk);
    return dst;
  }
};

TEST_F(FilterBorderIntegers, EdgesFollowTheRoundModeAndTheCentreDoesNot) {
  const FilterKernel k{{3, 1}, {0, 5, 0}, {}, 3, lumRoundTowardZero};
  const auto dst = filter<Lum8u>(k, {64, 1}, std::vector<Lum8u>(64, 1));  // 5 / 3
  EXPECT_EQ(dst.front(), 1);
  EXPECT_EQ(dst.back(), 1);
  EXPECT_EQ(std::count(dst.begin() + 1, dst.end() - 1, 2), 62);
}

TEST_F(FilterBorderIntegers, TheKernelIsTurned) {
  const FilterKernel k{{2, 2}, {1, 2, 3, 4}, {}, 1, 0};
  const auto dst = filter<Lum8u>(k, {4, 4}, {0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0});
  EXPECT_EQ(dst, (std::vector<Lum8u>{0, 0, 0, 0, 0, 1, 2, 0, 0, 3, 4, 0, 0, 0, 0, 0}));
}

TEST_F(FilterBorderIntegers, TapsAtTheLimitsTakeTheNarrowForm) {
  for (const Lum16s tap : {Lum16s{-32768}, Lum16s{32767}, Lum16s{-32767}, Lum16s{32766}}) {
    const bool packs = tap == -32767 || tap == 32766;
    const FilterKernel k{{3, 1}, {0, tap, 0}, {}, tap > 0 ? 20000 : -20000, lumRoundTowardZero};
    const auto dst = filter<Lum8u>(k, {32, 1}, std::vector<Lum8u>(32, 1));  // 1.6
    EXPECT_EQ(dst[16], packs ? 2 : 1) << tap;
    EXPECT_EQ(dst[0], 1) << tap;
  }
}

TEST_F(FilterBorderIntegers, SumsOf16sAreWideUpToTheLimitOfTheirMagnitudes) {
  for (const int last : {4, 5}) {  // 65534 and 65535
    const auto tail = static_cast<Lum16s>(-last);
    const FilterKernel k{{3, 1}, {-32765, -32765, tail}, {}, -131000, lumRoundTowardZero};
    const auto dst = filter<Lum16s>(k, {32, 1}, std::vector<Lum16s>(32, -32768));
    const double exact = -32768.0 * (65530 + last) / 131000;  // -16392.54 and -16392.79
    EXPECT_EQ(dst[16], last == 4 ? std::lrint(exact) : static_cast<int>(exact)) << last;
    EXPECT_EQ(dst[0], static_cast<int>(exact));
  }
}

TEST_F(FilterBorderIntegers, ANegativeDivisorTurnsTheSign) {
  const FilterKernel k{{3, 3}, std::vector<Lum16s>(9, 1), {}, -1, lumRoundNearestEven};
  EXPECT_EQ(filter<Lum8u>(k, {40, 5}, std::vector<Lum8u>(200, 9)), std::vector<Lum8u>(200, 0));
  EXPECT_EQ(filter<Lum16s>(k, {40, 5}, std::vector<Lum16s>(200, 9)), std::vector<Lum16s>(200, -81));
}

// A bias on top of the largest sum would not fit into 32 bits.
TEST_F(FilterBorderIntegers, LargestSumsAreRoundedExactly) {
  const FilterKernel k{{4, 1}, {-32767, -32767, 0, 0}, {}, 1 << 17, lumRoundNearestEven};
  const auto dst = filter<Lum16s>(k, {32, 1}, std::vector<Lum16s>(32, -32768));
  EXPECT_EQ(dst, std::vector<Lum16s>(32, 16384));  // 16383.5
}

}  // namespace
}  // namespace test
