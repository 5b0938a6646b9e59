// SPDX-License-Identifier: MIT
// Change of sample type, against the model: any image, every 16-bit sample, and what is special in others.
#include "model/data/convert.hpp"

#include <gtest/gtest.h>
#include <xmmintrin.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <limits>
#include <type_traits>

#include "support/arena.hpp"
#include "support/core_guard.hpp"
#include "support/fault.hpp"
#include "support/member.hpp"
#include "support/random.hpp"
#include "support/settings.hpp"

namespace test {
namespace {

constexpr int kModes[] = {INT_MIN, -1, 0, 1, 2, 3, INT_MAX};

model::ScaleLimits limitsOf(const Member& m) {
  for (const model::ScaleLimits& limits : model::kScaleLimits)
    if (m.types[0] + m.types[1] == limits.types) return limits;
  return {"", INT_MAX, INT_MIN};
}

// One sample; numbers are the arguments behind the ROI.
template <typename S, typename D>
D expected(S x, const int* numbers, int numberCount, model::ScaleLimits limits) {
  if constexpr (std::is_floating_point_v<S> && !std::is_floating_point_v<D>)
    return model::convertedFloat<D>(x, numbers[0], numberCount > 1 ? numbers[1] : 0);
  else if constexpr (std::is_floating_point_v<S> || std::is_floating_point_v<D>)
    return model::converted<S, D>(x);
  else
    return numberCount > 1 ? model::convertedScaled<S, D>(x, numbers[0], numbers[1], limits)
                           : model::converted<S, D>(x);
}

std::vector<Member> conversions() {
  std::vector<Member> all = membersOf("Convert", [](Member& m, auto src, auto dst) {
    using S = decltype(src);
    using D = decltype(dst);
    m.contents = kAnyContents;
    if (sizeof src == sizeof dst && !m.inPlace) m.aliasing = Aliasing::SameImage;
    const model::Channels channels = m.channels;
    const int numberCount = static_cast<int>(m.numbers.size());
    const model::ScaleLimits limits = limitsOf(m);
    m.model = [=](const Call& c) {
      model::convertImage<S, D>(c.srcImage(), c.dstImage(), c.roi, channels,
                                [&](S x) { return expected<S, D>(x, c.numbers, numberCount, limits); });
    };
  });
  const auto ofBits = [](const Member& m) { return m.types.front() == "1u"; };
  all.erase(std::remove_if(all.begin(), all.end(), ofBits), all.end());
  return all;
}

const bool added = addModelTests(conversions());

bool isFloat(const std::string& type) { return type == "32f"; }
bool isScaled(const Member& m) { return m.numbers.size() == 2; }

// The samples as one row, converted by a member of one channel.
template <typename S, typename D>
std::vector<D> converted(const Member& m, std::vector<S> samples, int mode, int scaleFactor) {
  std::vector<D> results(samples.size(), D{77});
  if (m.inPlace) std::memcpy(results.data(), samples.data(), samples.size() * sizeof(S));
  Call call;
  call.roi = {static_cast<int>(samples.size()), 1};
  call.src[0] = reinterpret_cast<Byte*>(samples.data());
  call.dst[0] = reinterpret_cast<Byte*>(results.data());
  call.srcStep = call.roi.width * static_cast<int>(sizeof(S));
  call.dstStep = call.roi.width * static_cast<int>(sizeof(D));
  call.numbers[0] = mode;
  call.numbers[1] = scaleFactor;
  EXPECT_EQ(m.run(call), lumStatusOk);
  return results;
}

template <typename D, typename S>
void expectModel(const Member& m, const std::vector<S>& samples, int mode, int scaleFactor) {
  const std::vector<D> results = converted<S, D>(m, samples, mode, scaleFactor);
  const int numbers[] = {mode, scaleFactor}, numberCount = static_cast<int>(m.numbers.size());
  const model::ScaleLimits limits = limitsOf(m);
  for (size_t i = 0; i < samples.size(); ++i) {
    const D right = expected<S, D>(samples[i], numbers, numberCount, limits);
    ASSERT_EQ(std::memcmp(&results[i], &right, sizeof(D)), 0)
        << m.name << " of " << std::hexfloat << +samples[i] << " is " << +results[i] << ", not " << +right
        << "; mode " << mode << ", scale factor " << scaleFactor;
  }
}

// Every mode and scale factor that the member has.
template <typename D, typename S>
void expectModelEverywhere(const Member& m, const std::vector<S>& samples) {
  if (m.numbers.empty()) return expectModel<D>(m, samples, 0, 0);
  for (int mode : kModes) {
    std::vector<int> factors = {0};
    if (isScaled(m)) factors = {INT_MIN, INT_MIN + 1, -1000, 1000, INT_MAX};
    if (isScaled(m))
      for (int s = -40; s <= 40; ++s) factors.push_back(s);
    if (isScaled(m) && std::is_floating_point_v<S>)
      for (int s = 100; s <= 160; ++s) factors.insert(factors.end(), {s, -s});
    for (int s : factors) ASSERT_NO_FATAL_FAILURE(expectModel<D>(m, samples, mode, s));
  }
}

// Members whose samples lie side by side, each with its sample types.
template <typename F>
void forEachRowMember(F f) {
  int found = 0;
  for (const Member& m : members()) {
    if (m.name.rfind("lumiConvert_", 0) != 0 || m.layouts.front() != "C1" || m.types.front() == "1u")
      continue;
    ++found;
    withType(m.types.front(), [&](auto src) { withType(m.types.back(), [&](auto dst) { f(m, src, dst); }); });
  }
  EXPECT_EQ(found, 46);
}

template <typename T>
std::vector<T> everySample() {
  std::vector<T> all;
  for (int64_t x = std::numeric_limits<T>::min(); x <= std::numeric_limits<T>::max(); ++x)
    all.push_back(static_cast<T>(x));
  return all;
}

// About powers of two, their halves and multiples, the limits of all types, and ties at every scale factor.
template <typename T>
std::vector<T> specialIntegers() {
  std::vector<T> all;
  const auto add = [&](int64_t x) {
    for (int64_t each : {x, -x})
      if (each >= std::numeric_limits<T>::min() && each <= std::numeric_limits<T>::max())
        all.push_back(static_cast<T>(each));
  };
  for (int64_t near = -2; near <= 2; ++near)
    for (int bit = 0; bit <= 32; ++bit)
      for (int64_t times : {1, 3, 5, 7, 127, 128, 129, 255, 257, 32767, 32769, 65535, 65537})
        add(times * (int64_t{1} << bit) + near);
  Random random(settings().seed);
  for (int i = 0; i < 1000; ++i) add(static_cast<int64_t>(random.next() >> (31 + random.below(32))));
  return all;
}

// Numbers about ties and limits, with their neighbours; the ends of the format; what is no number.
std::vector<float> specialFloats() {
  using Limits = std::numeric_limits<float>;
  std::vector<float> all;
  const auto add = [&](double x) {
    const auto nearest = static_cast<float>(x);
    for (float each : {nearest, std::nextafter(nearest, 0.0F), std::nextafter(nearest, 2 * nearest)})
      all.insert(all.end(), {each, -each});
  };
  for (int x = 0; x <= 600; ++x) add(x * 0.25);
  for (double limit : {32767.0, 65535.0, 8388608.0, 16777216.0, 2147483648.0, 4294967296.0})
    for (int quarters = -40; quarters <= 40; ++quarters) add(limit + quarters * 0.25);
  for (int exponent = -149; exponent <= 127; ++exponent) add(std::ldexp(1.0, exponent));
  for (float each : {0.0F, Limits::max(), Limits::infinity(), Limits::quiet_NaN(), Limits::denorm_min()})
    all.insert(all.end(), {each, -each});
  return all;
}

TEST(Convert, EverySampleOfUpTo16Bits) {
  const CoreGuard guard;
  forEachRowMember([](const Member& m, auto src, auto dst) {
    if constexpr (sizeof src <= 2) expectModelEverywhere<decltype(dst)>(m, everySample<decltype(src)>());
  });
}

TEST(Convert, SpecialSamplesOf32Bits) {
  const CoreGuard guard;
  forEachRowMember([](const Member& m, auto src, auto dst) {
    using S = decltype(src);
    if constexpr (std::is_floating_point_v<S>)
      expectModelEverywhere<decltype(dst)>(m, specialFloats());
    else if constexpr (sizeof(S) == 4)
      expectModelEverywhere<decltype(dst)>(m, specialIntegers<S>());
  });
}

template <typename D, typename S>
D one(const char* name, S sample, int mode = 1, int scaleFactor = 0) {
  return converted<S, D>(memberNamed(name), {sample}, mode, scaleFactor)[0];
}

TEST(Convert, StatedResults) {
  const CoreGuard guard;
  struct {
    float x;
    int zero, even, away;
  } rows[] = {{2.5F, 2, 2, 3}, {3.5F, 3, 4, 4},           {-0.5F, 0, 0, 0},          {300, 255, 255, 255},
              {NAN, 0, 0, 0},  {INFINITY, 255, 255, 255}, {0x1.fffffep-2F, 0, 0, 0}, {-1e30F, 0, 0, 0}};
  for (const auto& row : rows) {
    EXPECT_EQ(one<Lum8u>("lumiConvert_32f8u_C1R", row.x, 0), row.zero) << row.x;
    EXPECT_EQ(one<Lum8u>("lumiConvert_32f8u_C1R", row.x, 1), row.even) << row.x;
    EXPECT_EQ(one<Lum8u>("lumiConvert_32f8u_C1R", row.x, 2), row.away) << row.x;
  }
  EXPECT_EQ(one<Lum16s>("lumiConvert_32f16s_C1R", 2.5F, 7), 3);
  EXPECT_EQ(one<Lum16s>("lumiConvert_32f16s_C1R", NAN), -32768);
  EXPECT_EQ(one<Lum8s>("lumiConvert_16s8s_C1RSfs", Lum16s{-3}, 0, 1), -1);
  EXPECT_EQ(one<Lum8s>("lumiConvert_16s8s_C1RSfs", Lum16s{-3}, 1, 1), -2);
  EXPECT_EQ(one<Lum8s>("lumiConvert_16s8s_C1RSfs", Lum16s{-3}, 2, 1), -2);
  EXPECT_EQ(one<Lum8u>("lumiConvert_8s8u_C1Rs", Lum8s{-1}), 0);
  EXPECT_EQ(one<Lum32s>("lumiConvert_32f32s_C1RSfs", 3e9F), INT_MAX);
  EXPECT_EQ(one<Lum32s>("lumiConvert_32f32s_C1RSfs", NAN), INT_MIN);
  EXPECT_EQ(one<Lum32u>("lumiConvert_32f32u_C1RSfs", 3e9F), 3000000000U);
  EXPECT_EQ(one<Lum32u>("lumiConvert_32f32u_C1RSfs", 5e9F), UINT32_MAX);
  EXPECT_EQ(one<Lum32u>("lumiConvert_32f32u_C1RSfs", NAN), 0U);
  // An odd integer that has no room for a half stays one.
  EXPECT_EQ(one<Lum32s>("lumiConvert_32f32s_C1RSfs", 8388609.0F, 2), 8388609);
}

// The limits of the scale factor win over the quotient and the product.
TEST(Convert, LimitsOfTheScaleFactor) {
  const CoreGuard guard;
  EXPECT_EQ(one<Lum8u>("lumiConvert_32u8u_C1RSfs", Lum32u{1000000}, 1, 15), 31);
  EXPECT_EQ(one<Lum8u>("lumiConvert_32u8u_C1RSfs", Lum32u{1000000}, 1, 16), 0);
  EXPECT_EQ(one<Lum8u>("lumiConvert_32u8u_C1RSfs", Lum32u{1}, 1, -6), 64);
  EXPECT_EQ(one<Lum8u>("lumiConvert_32u8u_C1RSfs", Lum32u{1}, 1, -7), 255);
  EXPECT_EQ(one<Lum16u>("lumiConvert_32s16u_C1RSfs", Lum32s{1}, 1, -14), 16384);
  EXPECT_EQ(one<Lum16u>("lumiConvert_32s16u_C1RSfs", Lum32s{1}, 1, -15), 65535);
  EXPECT_EQ(one<Lum16s>("lumiConvert_32u16s_C1RSfs", Lum32u{UINT32_MAX}, 1, 31), 2);
  EXPECT_EQ(one<Lum16s>("lumiConvert_32u16s_C1RSfs", Lum32u{UINT32_MAX}, 1, 32), 0);
}

TEST(Convert, AboveTheScaleFactorsNoSourceIsRead) {
  const CoreGuard guard;
  Arena src(4096), dst(4096);
  src.setAccessible(src.begin(), src.end(), false);
  int tested = 0;
  for (const Member& m : members()) {
    if (m.name.rfind("lumiConvert_", 0) != 0 || !isScaled(m) || isFloat(m.types.front())) continue;
    ++tested;
    const int first = limitsOf(m).zeroAbove + 1;
    for (int scaleFactor : {first, first + 1, 64, INT_MAX}) {
      std::fill(dst.begin(), dst.end(), Byte{77});
      dst.copyToTwin(dst.begin(), dst.end());
      Call call;
      call.roi = {21, 3};
      call.src[0] = src.begin();
      call.dst[0] = dst.begin() + 5;
      call.dstStep = call.srcStep = 21 * m.dst.pixelBytes + 3;
      call.numbers[1] = scaleFactor;
      LumStatus status = lumStatusNoMemory;
      ASSERT_FALSE(faultOf([&] { status = m.run(call); })) << m.name << ", scale factor " << scaleFactor;
      ASSERT_EQ(status, lumStatusOk);
      for (int y = 0; y < 3; ++y)
        std::fill_n(dst.twin(call.dst[0]) + y * call.dstStep, 21 * m.dst.pixelBytes, Byte{0});
      EXPECT_EQ(dst.firstDifference(dst.begin(), dst.end()), nullptr) << m.name;
    }
  }
  EXPECT_EQ(tested, 11);
}

constexpr unsigned kRoundingField = 0x6000;
constexpr unsigned kRoundings[] = {0x0000, 0x2000, 0x4000, 0x6000};  // nearest, down, up, truncate

// The rounding control for as long as it lives.
class CallerRounding {
 public:
  explicit CallerRounding(unsigned rounding) : before_(_mm_getcsr()) {
    _mm_setcsr((before_ & ~kRoundingField) | rounding);
  }
  ~CallerRounding() { _mm_setcsr(before_); }
  static unsigned now() { return _mm_getcsr() & kRoundingField; }

 private:
  const unsigned before_;
};

TEST(Convert, RoundModeAndNotTheCallersRoundingDecides) {
  const CoreGuard guard;
  const std::vector<float> samples = specialFloats();
  forEachRowMember([&](const Member& m, auto src, auto dst) {
    using D = decltype(dst);
    if constexpr (std::is_floating_point_v<decltype(src)> && !std::is_floating_point_v<D>)
      for (int mode : {0, 1, 2})
        for (int scaleFactor : {0, 1, -128, 149, 150}) {
          if (scaleFactor != 0 && !isScaled(m)) continue;
          const auto right = converted<float, D>(m, samples, mode, scaleFactor);
          for (unsigned rounding : kRoundings) {
            const CallerRounding caller(rounding);
            const auto results = converted<float, D>(m, samples, mode, scaleFactor);
            ASSERT_EQ(CallerRounding::now(), rounding) << m.name;
            ASSERT_EQ(results, right) << m.name << ", mode " << mode << ", caller's rounding " << rounding;
          }
        }
  });
}

TEST(Convert, FailureLeavesTheRoundingAlone) {
  const CoreGuard guard;
  std::vector<Byte> memory(64);
  for (const Member& m : members()) {
    if (m.name.rfind("lumiConvert_", 0) != 0 || !isFloat(m.types.front())) continue;
    for (unsigned rounding : kRoundings)
      for (int mode : kModes) {
        Call good;
        good.roi = {1, 1};
        good.src[0] = good.dst[0] = memory.data();
        good.srcStep = good.dstStep = 16;
        good.numbers[0] = mode;
        Call withoutPointer = good, withoutSize = good, withoutStep = good;
        withoutPointer.dst[0] = nullptr;
        withoutSize.roi.height = 0;
        withoutStep.dstStep = 0;
        const CallerRounding caller(rounding);
        const LumStatus statuses[] = {m.run(withoutPointer), m.run(withoutSize), m.run(withoutStep)};
        const unsigned after = CallerRounding::now();
        EXPECT_EQ(after, rounding) << m.name;
        EXPECT_EQ(statuses[0], lumStatusNullPointer) << m.name;
        EXPECT_EQ(statuses[1], lumStatusBadSize) << m.name;
        EXPECT_EQ(statuses[2], m.checksSteps ? lumStatusBadStep : lumStatusOk) << m.name;
      }
  }
}

template <typename S>
void expectCallersRounding(const char* name) {
  const std::vector<S> samples = specialIntegers<S>();
  const std::vector<double> exact(samples.begin(), samples.end());
  for (unsigned rounding : kRoundings) {
    const CallerRounding caller(rounding);
    const auto results = converted<S, float>(memberNamed(name), samples, 0, 0);
    for (size_t i = 0; i < samples.size(); ++i) {
      volatile double x = exact[i];  // rounds here and now, not when compiled
      const auto right = static_cast<float>(x);
      ASSERT_EQ(results[i], right) << name << " of " << samples[i] << ", caller's rounding " << rounding;
      ASSERT_EQ(std::signbit(results[i]), std::signbit(right)) << name << " of " << samples[i];
    }
  }
}

TEST(Convert, IntegersBecomeFloatsByTheCallersRounding) {
  const CoreGuard guard;
  expectCallersRounding<Lum32s>("lumiConvert_32s32f_C1R");
  expectCallersRounding<Lum32u>("lumiConvert_32u32f_C1R");
}

// Large images ask for the cache's size once where stores may bypass it, and never otherwise.
TEST(Convert, OnlySomeMayBypassTheCache) {
  const CoreGuard guard;
  const std::vector<std::string> streaming = {"8u16s", "8u16u",  "8u32s",  "8u32f", "8s32s",
                                              "8s32f", "16s32f", "16u32f", "16s8u", "16u8u"};
  constexpr int width = 1024, height = 352;
  std::vector<Byte> src(width * height * 4 * 4), dst(src.size());
  for (const Member& m : members()) {
    if (m.name.rfind("lumiConvert_", 0) != 0 || m.types.front() == "1u") continue;
    const bool listed = std::count(streaming.begin(), streaming.end(), m.types.front() + m.types.back()) > 0;
    const bool plain = m.numbers.empty() && m.layouts.front() != "AC4" && m.name.back() == 'R';
    Call call;
    call.roi = {width, height};
    call.src[0] = src.data();
    call.dst[0] = dst.data();
    call.srcStep = width * (m.src.planes ? m.src.pixelBytes : m.dst.pixelBytes);
    call.dstStep = width * m.dst.pixelBytes;
    const auto before = testcore::counts().cacheQueries;
    ASSERT_EQ(m.run(call), lumStatusOk);
    EXPECT_EQ(testcore::counts().cacheQueries - before, listed && plain ? 1 : 0) << m.name;
  }
}

}  // namespace
}  // namespace test
