// SPDX-License-Identifier: MIT
// Objects of histograms: sizes, levels, statuses in their order, and runs at any address.
#include <gtest/gtest.h>

#include <limits>

#include "lumi/histogram.h"
#include "model/statistics/histogram.hpp"
#include "support/arena.hpp"
#include "support/core_guard.hpp"
#include "support/fault.hpp"
#include "support/member.hpp"
#include "support/named_faults.hpp"
#include "support/object_memory.hpp"
#include "support/settings.hpp"

namespace test {
namespace {

std::string runName(LumiDataType type, int channels) {
  const char* const name = type == lumiData8u    ? "8u"
                           : type == lumiData16u ? "16u"
                           : type == lumiData16s ? "16s"
                                                 : "32f";
  return "lumiHistogram_" + std::string(name) + "_C" + std::to_string(channels) + "R";
}

const std::vector<LumiDataType> kTypes = {lumiData8u, lumiData16u, lumiData16s, lumiData32f};

const bool covered = [] {
  for (const LumiDataType type : kTypes)
    for (const int channels : {1, 3, 4}) addCovered({runName(type, channels)});
  return addCovered({"lumiHistogramGetBufferSize", "lumiHistogramInit", "lumiHistogramUniformInit",
                     "lumiHistogramGetLevels"});
}();

// Levels as the application gives them, and what becomes of them.
struct Levels {
  bool isUniform;
  std::vector<float> given[4];
  float lower[4], upper[4];
  int counts[4];
  std::vector<double> kept[4];

  // More than a table pays for, few, or any.
  Levels(Random& random, bool uniform, bool areFloats, bool many) : isUniform(uniform) {
    for (int c = 0; c < 4; ++c) {
      counts[c] = many ? random.between(90, 140) : random.between(2, 40);
      lower[c] = static_cast<float>(random.between(-400, 40)) + 0.25f * static_cast<float>(random.below(4));
      // Steps of 1 at least; half of them have equal integers between them.
      const float bin = random.oneIn(2) ? static_cast<float>(random.between(1, 4))
                                        : 1 + 0.01f * static_cast<float>(random.between(0, 400));
      upper[c] = lower[c] + bin * static_cast<float>(counts[c] - 1);
      given[c] = {lower[c]};
      while (given[c].size() < static_cast<size_t>(counts[c]))
        given[c].push_back(given[c].back() + 0.5f * static_cast<float>(random.between(1, 9)));
      if (!uniform && random.oneIn(8)) given[c].back() = std::numeric_limits<float>::infinity();
      kept[c] = uniform ? model::uniformLevels(lower[c], upper[c], counts[c], areFloats)
                        : model::objectLevels(given[c], areFloats);
    }
  }
  NamedCall init(LumiDataType type, int channels) const {
    NamedCall call(isUniform ? "lumiHistogramUniformInit" : "lumiHistogramInit");
    call.number("dataType", type).number("channels", channels).pointer("count", counts);
    if (isUniform) return call.pointer("lower", lower).pointer("upper", upper);
    for (int c = 0; c < 4; ++c) pointers_[c] = given[c].data();
    return call.pointer("levels", pointers_);
  }
  NamedCall query(LumiDataType type, int channels, LumiSize roi, int* other, const char* otherName) const {
    NamedCall call("lumiHistogramGetBufferSize");
    call.number("dataType", type).size("roi", roi).pointer("count", counts).number("channels", channels);
    return call.number("uniform", isUniform).pointer(otherName, other);
  }

 private:
  mutable const float* pointers_[4];
};

template <typename T>
T anySample(Random& random) {
  if constexpr (std::is_floating_point_v<T>) {
    constexpr float special[] = {std::numeric_limits<float>::quiet_NaN(),
                                 std::numeric_limits<float>::infinity(),
                                 -std::numeric_limits<float>::infinity(), -0.0f};
    return random.oneIn(16) ? random.pick(special) : 0.25f * static_cast<float>(random.between(-900, 900));
  } else {
    return static_cast<T>(random.oneIn(4) ? static_cast<int>(random.next() & 0xFFFF)
                                          : random.between(-300, 300));
  }
}

// The counts of a channel that an object with such levels makes.
template <typename T>
std::vector<Lum32s> counted(const std::vector<T>& samples, const Levels& levels, int channel) {
  const std::vector<double>& kept = levels.kept[channel];
  if constexpr (sizeof(T) == 2) {
    const auto first = static_cast<int64_t>(kept.front()), last = static_cast<int64_t>(kept.back());
    const int count = levels.counts[channel];
    if (levels.isUniform && samples.size() < 65536 && (last - first) % (count - 1) == 0)
      return model::dividedCounts(samples, first, last, count);
  }
  return model::binCounts(samples, kept);
}

// An image that ends where memory does, or begins there, and histograms at odd addresses.
template <typename T>
class Trial {
 public:
  Trial(Random& random, int channels, LumiSize roi)
      : channels_(channels),
        roi_(roi),
        step_(roi.width * channels * kBytes + random.pick(kGaps)),
        arena_(static_cast<size_t>(step_) * roi.height) {
    const auto bytes = static_cast<size_t>(step_) * (roi.height - 1) + roi.width * channels * kBytes;
    first_ = random.oneIn(2) ? arena_.begin() : arena_.end() - bytes;
    for (int y = 0; y < roi.height; ++y)
      for (int i = 0; i < roi.width * channels; ++i) model::store<T>(image().row(y), i, anySample<T>(random));
    random.fill(bins_, sizeof bins_);
    std::memcpy(before_, bins_, sizeof bins_);
    for (int c = 0; c < 4; ++c) pointers_[c] = bins_ + at(c);
  }

  NamedCall run(LumiDataType type) const {
    NamedCall call(runName(type, channels_));
    call.image("src", first_, step_).size("roi", roi_);
    call.pointer("buffer", nullptr);
    return call.pointer("histogram", channels_ == 1 ? pointers_[0] : static_cast<const void*>(pointers_));
  }
  // Every byte of the histograms and of what lies between them.
  bool isAsWanted(const Levels& levels) {
    for (int c = 0; c < channels_; ++c) {
      const auto wanted = counted(model::channelOf<T>(image(), roi_, channels_, c), levels, c);
      std::memcpy(before_ + at(c), wanted.data(), wanted.size() * sizeof wanted[0]);
    }
    return std::memcmp(bins_, before_, sizeof bins_) == 0;
  }

 private:
  static constexpr int kBytes = static_cast<int>(sizeof(T)), kBinBytes = 4 * 140 + 1;
  static constexpr int kGaps[] = {0, 0, 1, kBytes, 17};
  static constexpr int at(int channel) { return 8 + channel * kBinBytes; }
  model::Image image() const { return {first_, step_}; }

  int channels_;
  LumiSize roi_;
  int step_;
  Arena arena_;
  Byte* first_;
  Byte bins_[4 * kBinBytes + 16], before_[4 * kBinBytes + 16];
  const void* pointers_[4];
};

template <typename T>
void expectRun(Random& random, LumiDataType type, int channels, LumiSize roi, bool uniform) {
  const auto where = testing::Message() << runName(type, channels) << " " << roi.width << "x" << roi.height
                                        << (uniform ? " uniform" : "");
  const Levels levels(random, uniform, std::is_floating_point_v<T>, random.oneIn(2));
  Trial<T> trial(random, channels, roi);
  int other = 0;
  ObjectSteps steps(random);
  ASSERT_EQ(steps.init(levels.query(type, channels, roi, &other, "bufferSize"), "specSize",
                       levels.init(type, channels), "spec"),
            "")
      << where;
  // Floats need no buffer.
  const NamedCall query = levels.query(type, channels, roi, &other, "specSize");
  if (!std::is_floating_point_v<T>) {
    ASSERT_EQ(steps.makeScratch(query, "bufferSize"), "") << where;
  }
  ASSERT_EQ(steps.run(trial.run(type), "spec", "buffer"), "") << where;
  ASSERT_TRUE(steps.object().isUnchanged()) << where;
  ASSERT_TRUE(trial.isAsWanted(levels)) << where;
  ASSERT_EQ(steps.run(trial.run(type), "spec", "buffer"), "") << where;
  ASSERT_TRUE(trial.isAsWanted(levels)) << where << ", again";
}

template <typename T>
void expectRuns(LumiDataType type) {
  const CoreGuard guard;
  Random random(settings().seed);
  for (const int channels : {1, 3, 4}) {
    for (int i = 0; i < settings().scaled(60); ++i) {
      const LumiSize roi{random.between(1, 60), random.between(1, 5)};
      ASSERT_NO_FATAL_FAILURE(expectRun<T>(random, type, channels, roi, random.oneIn(2)));
    }
    for (const LumiSize roi : {LumiSize{113, 112}, {65535, 1}, {256, 256}})
      for (const bool uniform : {false, true})
        if (channels == 1 || roi.height == 112) {
          ASSERT_NO_FATAL_FAILURE(expectRun<T>(random, type, channels, roi, uniform));
        }
  }
  EXPECT_EQ(testcore::counts().allocations, 0);
}

TEST(HistogramObject, CountsBytes) { expectRuns<Lum8u>(lumiData8u); }
TEST(HistogramObject, CountsUnsignedWords) { expectRuns<Lum16u>(lumiData16u); }
TEST(HistogramObject, CountsSignedWords) { expectRuns<Lum16s>(lumiData16s); }
TEST(HistogramObject, CountsFloats) { expectRuns<Lum32f>(lumiData32f); }

using Fault = NamedFault;
Fault null(const char* name) { return nullFault(name); }
void addNumbers(std::vector<Fault>& faults, const char* name, const std::vector<int>& numbers,
                LumStatus status) {
  for (const int n : numbers) faults.push_back({[=](NamedCall& c) { c.number(name, n); }, status, name[0]});
}
const std::vector<int> kBadTypes = {-1, 0, 2, 3, 4, 6, 8, 11, 12, 14, 19}, kBadChannels = {-1, 0, 2, 5, 100};

TEST(HistogramStatus, OfSizes) {
  int spec = -7, buffer = -7;
  const int good[3] = {2, 3, 4}, bad[3] = {2, 3, 1};
  NamedCall right("lumiHistogramGetBufferSize");
  right.number("dataType", lumiData16s).size("roi", {7, 3}).pointer("count", good).number("channels", 3);
  right.number("uniform", 0).pointer("specSize", &spec).pointer("bufferSize", &buffer);
  std::vector<Fault> faults = {null("count"), null("specSize"), null("bufferSize")};
  for (const LumiSize size : {LumiSize{0, 3}, {7, -1}})
    faults.push_back({[=](NamedCall& c) { c.size("roi", size); }, lumStatusBadSize, 1});
  addNumbers(faults, "channels", kBadChannels, lumStatusBadChannelCount);
  faults.push_back({[&](NamedCall& c) { c.pointer("count", bad); }, lumStatusTooFewHistogramLevels});
  addNumbers(faults, "dataType", kBadTypes, lumStatusBadDataType);
  // A null count and a bad one cannot be there at once.
  faults[0].exclusive = faults[faults.size() - kBadTypes.size() - 1].exclusive = 2;
  constexpr int header = 32 + 4 * static_cast<int>(sizeof(void*));
  expectInOrder(right, faults, [&](LumStatus status) {
    const bool areStored = status == lumStatusBadDataType;
    ASSERT_EQ(spec, areStored ? header + 4 * 9 : -7);
    ASSERT_EQ(buffer, areStored ? 0 : -7);
    spec = buffer = -7;
  });
  for (const auto& [type, bytes] :
       {std::pair{lumiData8u, 1024}, {lumiData16u, 262144}, {lumiData16s, 262144}, {lumiData32f, 0}}) {
    EXPECT_EQ(right.number("dataType", type).run(), lumStatusOk);
    EXPECT_EQ(spec, header + 4 * 9);
    EXPECT_EQ(buffer, 3 * bytes);
  }
  EXPECT_EQ(right.number("channels", 1).run(), lumStatusOk);
  EXPECT_EQ(spec, header + 4 * 2);
}

// The object's memory stays as it was.
struct Untouched {
  std::vector<Byte> memory = std::vector<Byte>(256, 0x5a);

  void operator()(LumStatus) const { ASSERT_EQ(memory, std::vector<Byte>(256, 0x5a)); }
};

// What is wrong with the numbers of a channel is tried with arrays of their own.
TEST(HistogramStatus, OfInit) {
  constexpr float nan = std::numeric_limits<float>::quiet_NaN();
  const Untouched object;
  const float up[] = {1, 2, 3}, equal[] = {1, 2, 2}, down[] = {2, 1, 3}, broken[] = {1, nan, 3};
  const float* const good[3] = {up, up, up};
  const int counts[3] = {3, 3, 3};
  NamedCall right("lumiHistogramInit");
  right.number("dataType", lumiData32f).number("channels", 3).pointer("levels", good);
  right.pointer("count", counts).pointer("spec", object.memory.data());

  std::vector<std::array<const float*, 3>> lists;
  std::vector<std::array<int, 3>> numbers;
  std::vector<Fault> faults;
  addNumbers(faults, "dataType", kBadTypes, lumStatusBadDataType);
  for (const char* name : {"levels", "count", "spec"}) faults.push_back(null(name));
  addNumbers(faults, "channels", kBadChannels, lumStatusBadChannelCount);
  const auto add = [&](std::array<const float*, 3> list, std::array<int, 3> count, LumStatus status) {
    faults.push_back({[=](NamedCall& c) {
                        static thread_local std::array<const float*, 3> l;
                        static thread_local std::array<int, 3> n;
                        l = list, n = count;
                        c.pointer("levels", l.data()).pointer("count", n.data());
                      },
                      status, 9});
  };
  add({nullptr, up, up}, {1, 3, 3}, lumStatusNullPointer);
  add({down, nullptr, up}, {1, 3, 3}, lumStatusTooFewHistogramLevels);
  add({equal, nullptr, up}, {3, 1, 3}, lumStatusBadRange);
  add({up, nullptr, up}, {3, 1, 3}, lumStatusNullPointer);
  add({up, up, down}, {3, 3, 3}, lumStatusBadRange);
  add({up, broken, nullptr}, {3, 3, 3}, lumStatusBadRange);
  add({up, up, up}, {3, 3, INT32_MIN}, lumStatusTooFewHistogramLevels);
  // Nulls of the arrays would hide what is wrong in them.
  for (Fault& f : faults)
    if (f.status == lumStatusNullPointer) f.exclusive = 9;
  expectInOrder(right, faults, object);
  EXPECT_EQ(right.run(), lumStatusOk);
}

TEST(HistogramStatus, OfUniformInit) {
  const Untouched object;
  const float low[3] = {0, 0, 0}, high[3] = {9, 9, 9};
  const int counts[3] = {3, 3, 3};
  NamedCall right("lumiHistogramUniformInit");
  right.number("dataType", lumiData8u).number("channels", 3).pointer("lower", low).pointer("upper", high);
  right.pointer("count", counts).pointer("spec", object.memory.data());
  std::vector<Fault> faults;
  addNumbers(faults, "dataType", kBadTypes, lumStatusBadDataType);
  for (const char* name : {"lower", "upper", "count", "spec"}) {
    faults.push_back(null(name));
    faults.back().exclusive = 9;
  }
  addNumbers(faults, "channels", kBadChannels, lumStatusBadChannelCount);
  static const float nan = std::numeric_limits<float>::quiet_NaN();
  static const float lower[][3] = {{9, 0, 0}, {0, 10, 0}, {0, 0, nan}};
  static const int bad[][3] = {{1, 3, 3}, {3, 3, -5}};
  const auto add = [&](const float* l, const int* n, LumStatus status) {
    faults.push_back({[=](NamedCall& c) { c.pointer("lower", l).pointer("count", n); }, status, 9});
  };
  add(lower[0], bad[0], lumStatusTooFewHistogramLevels);
  add(lower[0], bad[1], lumStatusBadRange);
  for (const auto& l : lower) add(l, counts, lumStatusBadRange);
  add(low, bad[1], lumStatusTooFewHistogramLevels);
  expectInOrder(right, faults, object);
  EXPECT_EQ(right.run(), lumStatusOk);
}

// What GetLevels tells of an object in this memory.
std::vector<float> levelsOf(const std::vector<Byte>& object, int count) {
  std::vector<float> told(static_cast<size_t>(count) + 1, -77);
  float* const lists[] = {told.data()};
  EXPECT_EQ(lumiHistogramGetLevels(reinterpret_cast<const LumiHistogramSpec*>(object.data()), lists),
            lumStatusOk);
  EXPECT_EQ(told.back(), -77);
  told.pop_back();
  return told;
}

std::vector<float> uniform(LumiDataType type, float lower, float upper, int count, LumStatus status) {
  std::vector<Byte> object(256);
  EXPECT_EQ(lumiHistogramUniformInit(type, &lower, &upper, &count, 1,
                                     reinterpret_cast<LumiHistogramSpec*>(object.data())),
            status);
  return levelsOf(object, count);
}

TEST(HistogramObject, TellsItsLevels) {
  using List = std::vector<float>;
  EXPECT_EQ(uniform(lumiData16s, -0.9f, 10.1f, 6, lumStatusOk), (List{0, 1, 3, 5, 7, 10}));
  EXPECT_EQ(uniform(lumiData8u, 0, 1, 5, lumStatusSizeAboveSpec), (List{0, 0, 0, 0, 1}));
  EXPECT_EQ(uniform(lumiData8u, 0, 4, 5, lumStatusOk), (List{0, 1, 2, 3, 4}));
  EXPECT_EQ(uniform(lumiData32f, 0, 1, 5, lumStatusOk), (List{0, 0.25f, 0.5f, 0.75f, 1}));
  EXPECT_EQ(uniform(lumiData16u, -1e20f, 1e20f, 3, lumStatusOk), (List{-0x1p31f, 0, 0x1p31f}));
  const float step = (0.7f - 0.1f) / 3;
  EXPECT_EQ(uniform(lumiData32f, 0.1f, 0.7f, 4, lumStatusOk),
            (List{0.1f, static_cast<float>(double{0.1f} + double{step}),
                  static_cast<float>(double{0.1f} + double{step} * 2), 0.7f}));

  std::vector<Byte> object(256);
  const float given[] = {-2.9f, -0.5f, 0.5f, 2.9f};
  const float* const lists[] = {given};
  const int count = 4;
  auto* const spec = reinterpret_cast<LumiHistogramSpec*>(object.data());
  ASSERT_EQ(lumiHistogramInit(lumiData16s, lists, &count, 1, spec), lumStatusOk);
  EXPECT_EQ(levelsOf(object, 4), (List{-2, 0, 0, 2}));
  ASSERT_EQ(lumiHistogramInit(lumiData32f, lists, &count, 1, spec), lumStatusOk);
  EXPECT_EQ(levelsOf(object, 4), (List{-2.9f, -0.5f, 0.5f, 2.9f}));
}

TEST(HistogramStatus, OfLevels) {
  std::vector<Byte> object(256);
  auto* const spec = reinterpret_cast<LumiHistogramSpec*>(object.data());
  float told[2] = {-7, -7};
  float *lists[] = {told, nullptr, told}, **const none = nullptr;
  EXPECT_EQ(lumiHistogramGetLevels(nullptr, lists), lumStatusNullPointer);
  EXPECT_EQ(lumiHistogramGetLevels(spec, none), lumStatusNullPointer);
  EXPECT_EQ(lumiHistogramGetLevels(spec, lists), lumStatusBadArgument);
  const float lower[] = {0, 0, 0}, upper[] = {9, 9, 9};
  const int counts[] = {2, 2, 2};
  ASSERT_EQ(lumiHistogramUniformInit(lumiData8u, lower, upper, counts, 3, spec), lumStatusOk);
  EXPECT_EQ(lumiHistogramGetLevels(spec, lists), lumStatusNullPointer);
  EXPECT_EQ(told[0], -7);
}

// An object with empty bins is complete.
TEST(HistogramObject, WithEmptyBinsCounts) {
  std::vector<Byte> object(256), buffer(1024);
  auto* const spec = reinterpret_cast<LumiHistogramSpec*>(object.data());
  const float lower = 0, upper = 1;
  const int count = 5;
  ASSERT_EQ(lumiHistogramUniformInit(lumiData8u, &lower, &upper, &count, 1, spec), lumStatusSizeAboveSpec);
  const Lum8u image[] = {0, 0, 1, 2};
  Lum32s bins[4];
  ASSERT_EQ(lumiHistogram_8u_C1R(image, 4, {4, 1}, bins, spec, buffer.data()), lumStatusOk);
  EXPECT_EQ(std::vector<Lum32s>(bins, bins + 4), (std::vector<Lum32s>{0, 0, 0, 2}));
}

// The identity of the object is looked at last, whatever the member; a step may be as short as a row.
TEST(HistogramStatus, OfRunsWithoutAnObject) {
  const std::vector<Byte> image(512), object(256);
  std::vector<Byte> bins(64, 0x5a), buffer(262144 * 4);
  void* const histograms[] = {bins.data(), bins.data(), bins.data(), bins.data()};
  for (const LumiDataType type : kTypes)
    for (const int channels : {1, 3, 4}) {
      const int row = 5 * channels * (type == lumiData8u ? 1 : type == lumiData32f ? 4 : 2);
      const auto statusOf = [&](int step) {
        NamedCall call(runName(type, channels));
        call.image("src", image.data(), step).size("roi", {5, 2}).pointer("spec", object.data());
        call.pointer("histogram", channels == 1 ? bins.data() : static_cast<const void*>(histograms));
        return call.pointer("buffer", type == lumiData32f ? nullptr : buffer.data()).run();
      };
      EXPECT_EQ(statusOf(row), lumStatusBadArgument) << runName(type, channels);
      EXPECT_EQ(statusOf(row - 1), lumStatusBadStep) << runName(type, channels);
    }
  EXPECT_EQ(bins, std::vector<Byte>(64, 0x5a));
}

// The type of an object is not looked at: floats are taken for the integers that their bits are, channels
// that it has not have no bins, and nothing but bins is written.
TEST(HistogramObject, OfAnotherTypeIsTakenAsItIs) {
  std::vector<Byte> object(256), buffer(262144 * 4);
  auto* const spec = reinterpret_cast<LumiHistogramSpec*>(object.data());
  const float lower = -3, upper = 200;
  const int count = 30;
  const std::vector<Lum16u> words(300, 5);
  const std::vector<Lum8u> bytes(300, 5);
  const std::vector<Lum32f> floats(300, 5);
  Lum32s bins[4][29];
  Lum32s* const histograms[] = {bins[0], bins[1], bins[2], bins[3]};
  ASSERT_EQ(lumiHistogramUniformInit(lumiData16s, &lower, &upper, &count, 1, spec), lumStatusOk);
  ASSERT_EQ(lumiHistogram_8u_C1R(bytes.data(), 300, {300, 1}, bins[0], spec, buffer.data()), lumStatusOk);
  EXPECT_EQ(bins[0][1], 300);  // from 4 to 11
  ASSERT_EQ(lumiHistogram_32f_C1R(floats.data(), 1200, {300, 1}, bins[0], spec, nullptr), lumStatusOk);
  bins[1][0] = -7;
  ASSERT_EQ(lumiHistogram_16u_C4R(words.data(), 600, {75, 1}, histograms, spec, buffer.data()), lumStatusOk);
  EXPECT_EQ(bins[0][1], 75);
  EXPECT_EQ(bins[1][0], -7);
  ASSERT_EQ(lumiHistogramUniformInit(lumiData32f, &lower, &upper, &count, 1, spec), lumStatusOk);
  ASSERT_EQ(lumiHistogram_16u_C1R(words.data(), 600, {300, 1}, bins[0], spec, buffer.data()), lumStatusOk);
  for (int k = 0; k < count - 1; ++k)  // the bits of -3 are a negative integer
    EXPECT_EQ(bins[0][k], k == 0 ? 300 : 0);
}

}  // namespace
}  // namespace test
