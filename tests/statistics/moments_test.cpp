// SPDX-License-Identifier: MIT
// Moments: scans against the model, what follows from a state by hand and by other ways to it, every status
// in its order, states at any address and of the core library.
#include "lumi/moments.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <vector>

#include "model/statistics/moments.hpp"
#include "support/arena.hpp"
#include "support/core_guard.hpp"
#include "support/member.hpp"
#include "support/named_call.hpp"
#include "support/object_memory.hpp"

namespace test {
namespace {

constexpr int kBytes = 400;

const bool covered = [] {
  for (const char* type : {"64f", "64s"})
    for (const char* name :
         {"lumiMomentGetStateSize_", "lumiMomentInit_", "lumiMomentInitAlloc_", "lumiMomentFree_",
          "lumiGetSpatialMoment_", "lumiGetCentralMoment_", "lumiGetNormalizedSpatialMoment_",
          "lumiGetNormalizedCentralMoment_", "lumiGetHuMoments_"})
      addCovered({std::string(name) + type});
  return true;
}();

// A state as its bytes are: four 32-bit numbers and the tables of three channels.
void storeState(Byte* state, Lum32s identifier, Lum32s hint, Lum32s channels) {
  std::memset(state, 0, kBytes);
  const Lum32s head[] = {identifier, hint, channels, 0};
  std::memcpy(state, head, sizeof head);
}
template <typename T>
T tableAt(const Byte* state, int channel, int i) {
  return model::load<T>(state + 16, 16 * channel + i);
}

// What a scan may be off, where it is not exact: there and in sums of magnitudes.
double toleranceOf(double magnitude, LumiSize roi, bool isFloat) {
  if (!isFloat && magnitude < 0x1p53) return 0;
  return (5.0 * (roi.width + roi.height) + 200) * 0x1p-53 * magnitude;
}

// Integers are exact: every byte of the state.
template <typename T>
void describeScan(Member& m) {
  const model::Channels channels = m.channels;
  m.contents = kAnyContents;
  m.mayStream = false;
  m.checksSteps = m.checksRows = true;
  m.rounds = 6;
  m.array("state", "8u", {kBytes}, [](Random& random, Byte* state, int) {
    storeState(state, 34, static_cast<Lum32s>(random.next()), -1);
    random.fill(state + 16, kBytes - 16);
  });
  m.model = [=](const Call& c) {
    Byte* const state = c.block("state").data;
    model::store<Lum32s>(state, 2, channels.moved);
    std::memset(state + 16, 0, kBytes - 16);
    for (int channel = 0; channel < channels.moved; ++channel) {
      const auto all = model::rawMoments<T, uint64_t>(c.srcImage(), c.roi, channels.src, channel);
      for (int i = 0; i < 16; ++i) model::store<uint64_t>(state + 16, 16 * channel + i, all.of[i]);
    }
  };
}
const bool integersAdded = addModelTests(membersOfOneType(
    "Moments64s", [](Member& m, auto sample) { describeScan<decltype(sample)>(m); }, Types<Lum8u, Lum16u>()));

// States of floats of any samples: tables as near as is told.
template <typename T>
void expectScan(const std::string& name, int stored, int used, LumiSize roi, int gap, Random& random) {
  const int rowBytes = roi.width * stored * static_cast<int>(sizeof(T)), step = rowBytes + gap;
  const Arena image(static_cast<size_t>(step) * roi.height);
  Byte* const first = image.end() - (static_cast<size_t>(step) * (roi.height - 1) + rowBytes);
  const model::Image src{first, step};
  random.fill(image.begin(), static_cast<size_t>(image.end() - image.begin()));
  if (std::is_same_v<T, Lum32f>)
    for (int y = 0; y < roi.height; ++y)
      for (int i = 0; i < roi.width * stored; ++i)
        model::store<Lum32f>(
            src.row(y), i,
            std::ldexp(static_cast<float>(random.between(-9999, 9999)), random.between(-9, 9)));
  Byte memory[kBytes + 3], *const state = memory + random.below(4);
  storeState(state, 33, 5, -1);
  NamedCall call(name);
  call.image("src", first, step).size("roi", roi).pointer("state", state);
  ASSERT_EQ(call.run(), lumStatusOk) << name;
  ASSERT_EQ(model::load<Lum32s>(state, 2), used);
  for (int c = 0; c < 3; ++c) {
    const auto all =
        c < used ? model::rawMoments<T, long double>(src, roi, stored, c) : model::RawMoments<long double>();
    for (int i = 0; i < 16; ++i) {
      const auto right = static_cast<double>(all.of[i]);
      ASSERT_LE(std::abs(tableAt<Lum64f>(state, c, i) - right),
                toleranceOf(static_cast<double>(all.magnitude[i]), roi, std::is_same_v<T, Lum32f>))
          << name << " " << roi.width << "x" << roi.height << " channel " << c << " moment " << i;
    }
  }
}

template <typename T>
void expectScans(const std::string& type) {
  Random random(3);
  const std::string name = "lumiMoments64f_" + type + "_";
  for (int width = 1; width <= 40; ++width)
    for (const int height : {1, 2, 9, 10, 11, 21, 32, 33, 65}) {
      if (random.oneIn(2)) continue;
      ASSERT_NO_FATAL_FAILURE(expectScan<T>(name + "C1R", 1, 1, {width, height}, random.below(20), random));
      ASSERT_NO_FATAL_FAILURE(expectScan<T>(name + "C3R", 3, 3, {width, height}, random.below(20), random));
      ASSERT_NO_FATAL_FAILURE(expectScan<T>(name + "AC4R", 4, 3, {width, height}, random.below(20), random));
    }
  // Beyond the columns of a part.
  for (const int width : {639, 640, 641, 647, 1285, 8191, 8192, 8197})
    ASSERT_NO_FATAL_FAILURE(expectScan<T>(name + "C1R", 1, 1, {width, 12}, 0, random));
  ASSERT_NO_FATAL_FAILURE(expectScan<T>(name + "C3R", 3, 3, {1290, 11}, 1, random));
}
TEST(Moments64f, OfBytes) { expectScans<Lum8u>("8u"); }
TEST(Moments64f, OfWords) { expectScans<Lum16u>("16u"); }
TEST(Moments64f, OfFloats) { expectScans<Lum32f>("32f"); }
const bool scansCovered = [] {
  for (const char* type : {"8u", "16u", "32f"})
    for (const char* layout : {"C1R", "C3R", "AC4R"})
      addCovered({"lumiMoments64f_" + std::string(type) + "_" + layout});
  return true;
}();

// The largest samples, as far as their moments reach: no lane goes around.
template <typename T>
void expectLargest(LumStatus (*scan)(const T*, int, LumiSize, LumiMomentState*), LumiSize roi) {
  const std::vector<T> image(static_cast<size_t>(roi.width) * roi.height, std::numeric_limits<T>::max());
  Byte state[kBytes];
  storeState(state, 34, 0, -1);
  const int step = roi.width * static_cast<int>(sizeof(T));
  ASSERT_EQ(scan(image.data(), step, roi, reinterpret_cast<LumiMomentState*>(state)), lumStatusOk);
  for (int q = 0; q < 4; ++q)
    for (int p = 0; p + q < 4; ++p) {
      uint64_t across = 0, down = 0;
      const auto power = [](uint64_t x, int n) {
        uint64_t all = 1;
        for (; n > 0; --n) all *= x;
        return all;
      };
      for (int x = 0; x < roi.width; ++x) across += power(static_cast<uint64_t>(x), p);
      for (int y = 0; y < roi.height; ++y) down += power(static_cast<uint64_t>(y), q);
      ASSERT_EQ(tableAt<uint64_t>(state, 0, 4 * q + p), across * down * std::numeric_limits<T>::max())
          << p << q;
    }
}
TEST(Moments64s, OfTheLargestSamples) {
  expectLargest<Lum8u>(lumiMoments64s_8u_C1R, {2000, 70});
  expectLargest<Lum16u>(lumiMoments64s_16u_C1R, {8300, 70});
}

// A state of one type, with a call for each of its forms.
template <typename T>
struct Api;
template <>
struct Api<Lum64f> {
  static constexpr auto init = lumiMomentInit_64f;
  static constexpr auto scan = lumiMoments64f_8u_C1R;
  static LumStatus spatial(const LumiMomentState* s, int m, int n, int c, LumiPoint o, Lum64f* v, int) {
    return lumiGetSpatialMoment_64f(s, m, n, c, o, v);
  }
  static LumStatus central(const LumiMomentState* s, int m, int n, int c, Lum64f* v, int) {
    return lumiGetCentralMoment_64f(s, m, n, c, v);
  }
  static LumStatus normalSpatial(const LumiMomentState* s, int m, int n, int c, LumiPoint o, Lum64f* v, int) {
    return lumiGetNormalizedSpatialMoment_64f(s, m, n, c, o, v);
  }
  static LumStatus normalCentral(const LumiMomentState* s, int m, int n, int c, Lum64f* v, int) {
    return lumiGetNormalizedCentralMoment_64f(s, m, n, c, v);
  }
  static LumStatus hu(const LumiMomentState* s, int c, Lum64f* v, int) {
    return lumiGetHuMoments_64f(s, c, v);
  }
};
template <>
struct Api<Lum64s> {
  static constexpr auto init = lumiMomentInit_64s;
  static constexpr auto scan = lumiMoments64s_8u_C1R;
  [[maybe_unused]] static constexpr auto spatial = lumiGetSpatialMoment_64s;
  [[maybe_unused]] static constexpr auto central = lumiGetCentralMoment_64s;
  [[maybe_unused]] static constexpr auto normalSpatial = lumiGetNormalizedSpatialMoment_64s;
  [[maybe_unused]] static constexpr auto normalCentral = lumiGetNormalizedCentralMoment_64s;
  [[maybe_unused]] static constexpr auto hu = lumiGetHuMoments_64s;
};

// An image and its state.
template <typename T>
class Scanned {
 public:
  Scanned(std::vector<Lum8u> image, int width) : width_(width), image_(std::move(image)) {
    EXPECT_EQ(Api<T>::init(state(), 7), lumStatusOk);
    const int height = static_cast<int>(image_.size()) / width;
    EXPECT_EQ(Api<T>::scan(image_.data(), width, {width, height}, state()), lumStatusOk);
    const auto exact = model::rawMoments<Lum8u, long double>({image_.data(), width}, {width, height}, 1, 0);
    for (int i = 0; i < 16; ++i) raw[i] = static_cast<double>(exact.of[i]);
  }
  LumiMomentState* state() { return reinterpret_cast<LumiMomentState*>(memory_ + 1); }
  // By its definition.
  double aboutPoint(int m, int n, double x0, double y0) const {
    long double sum = 0;
    for (size_t i = 0; i < image_.size(); ++i)
      sum += image_[i] * std::pow(static_cast<long double>(static_cast<int>(i) % width_) - x0, m) *
             std::pow(static_cast<long double>(static_cast<int>(i) / width_) - y0, n);
    return static_cast<double>(sum);
  }

  double raw[16];

 private:
  int width_;
  std::vector<Lum8u> image_;
  Byte memory_[kBytes + 1] = {};
};

template <typename T>
Scanned<T> ofNoise() {
  std::vector<Lum8u> image(23 * 17);
  Random(11).fill(image.data(), image.size());
  for (size_t i = 0; i < image.size(); ++i) image[i] = static_cast<Lum8u>(image[i] >> (i % 23 / 4));
  return {image, 23};
}

template <typename Told>
void forOrders(const Told& told) {
  for (int m = 0; m <= 3; ++m)
    for (int n = 0; m + n <= 3; ++n) told(m, n);
}

TEST(MomentsTold, SpatialOfFloats) {
  Scanned<Lum64f> s = ofNoise<Lum64f>();
  for (const LumiPoint offset : {LumiPoint{0, 0}, {10, 20}, {-9, 3}, {-30000, 40000}})
    forOrders([&](int m, int n) {
      double told = -1;
      ASSERT_EQ(lumiGetSpatialMoment_64f(s.state(), m, n, 0, offset, &told), lumStatusOk);
      // Integers below 2^53: exact in any order.
      EXPECT_EQ(told, model::shiftedMoment(s.raw, m, n, offset.x, offset.y)) << m << n;
    });
}

TEST(MomentsTold, CentralOfFloats) {
  Scanned<Lum64f> s = ofNoise<Lum64f>();
  const double xc = s.raw[1] / s.raw[0], yc = s.raw[4] / s.raw[0];
  forOrders([&](int m, int n) {
    double told = -1, normal = -1;
    ASSERT_EQ(lumiGetCentralMoment_64f(s.state(), m, n, 0, &told), lumStatusOk);
    const double bound = 0x1p-48 * s.raw[4 * n + m];  // a few dozen roundings of terms no larger
    EXPECT_NEAR(told, m + n == 1 ? 0 : s.aboutPoint(m, n, xc, yc), bound) << m << n;
    ASSERT_EQ(lumiGetNormalizedCentralMoment_64f(s.state(), m, n, 0, &normal), lumStatusOk);
    const double norm = std::pow(s.raw[0], -(m + n + 2) / 2.0);
    EXPECT_NEAR(normal, told * norm, std::abs(told * norm) * 0x1p-50) << m << n;
    double spatial = -1, normalSpatial = -1;
    ASSERT_EQ(lumiGetSpatialMoment_64f(s.state(), m, n, 0, {3, -8}, &spatial), lumStatusOk);
    ASSERT_EQ(lumiGetNormalizedSpatialMoment_64f(s.state(), m, n, 0, {3, -8}, &normalSpatial), lumStatusOk);
    EXPECT_NEAR(normalSpatial, spatial * norm, std::abs(spatial * norm) * 0x1p-50) << m << n;
  });
}

// Integers are those floats, scaled and cut off; products of the norm are cut off before and after.
TEST(MomentsTold, Integers) {
  Scanned<Lum64s> s = ofNoise<Lum64s>();
  Scanned<Lum64f> f = ofNoise<Lum64f>();
  forOrders([&](int m, int n) {
    double spatial = 0, central = 0;
    ASSERT_EQ(lumiGetSpatialMoment_64f(f.state(), m, n, 0, {-7, 5}, &spatial), lumStatusOk);
    ASSERT_EQ(lumiGetCentralMoment_64f(f.state(), m, n, 0, &central), lumStatusOk);
    for (const int scale : {0, 1, 3, -2, -20, 40, 5000, INT_MAX}) {
      Lum64s told = -1;
      ASSERT_EQ(lumiGetSpatialMoment_64s(s.state(), m, n, 0, {-7, 5}, &told, scale), lumStatusOk);
      EXPECT_EQ(told, static_cast<Lum64s>(std::ldexp(spatial, -std::min(scale, 5000))))
          << m << n << " " << scale;
      ASSERT_EQ(lumiGetCentralMoment_64s(s.state(), m, n, 0, &told, scale), lumStatusOk);
      EXPECT_EQ(told, static_cast<Lum64s>(std::ldexp(central, -std::min(scale, 5000))))
          << m << n << " " << scale;
    }
    // Half an integer apart from the ends of what is cut off, so that the last bit of a power does not show.
    const double norm = std::pow(f.raw[0], -(m + n + 2) / 2.0);
    const auto near = [&](double moment, Lum64s told, const char* which) {
      const double right = std::ldexp(std::trunc(moment) * norm, 30);
      EXPECT_LE(std::abs(static_cast<double>(told) - std::trunc(right)),
                std::abs(right - std::round(right)) < 1e-3)
          << which << m << n;
    };
    Lum64s told = -1;
    ASSERT_EQ(lumiGetNormalizedSpatialMoment_64s(s.state(), m, n, 0, {-7, 5}, &told, -30), lumStatusOk);
    near(spatial, told, "spatial ");
    ASSERT_EQ(lumiGetNormalizedCentralMoment_64s(s.state(), m, n, 0, &told, -30), lumStatusOk);
    near(central, told, "central ");
  });
  Lum64s told = -1;
  ASSERT_EQ(lumiGetSpatialMoment_64s(s.state(), 3, 0, 0, {0, 0}, &told, -60), lumStatusOk);
  EXPECT_EQ(told, INT64_MAX);
  ASSERT_EQ(lumiGetSpatialMoment_64s(s.state(), 3, 0, 0, {-1000, 0}, &told, INT_MIN), lumStatusOk);
  EXPECT_EQ(told, INT64_MIN);
}

// A single pixel.
TEST(MomentsTold, OfOnePixel) {
  std::vector<Lum8u> image(20);
  image[2 * 5 + 3] = 1;
  Scanned<Lum64f> f(image, 5);
  Scanned<Lum64s> s(image, 5);
  double told = -1;
  Lum64s integer = -1;
  ASSERT_EQ(lumiGetSpatialMoment_64f(f.state(), 1, 0, 0, {10, 20}, &told), lumStatusOk);
  EXPECT_EQ(told, 13);
  ASSERT_EQ(lumiGetCentralMoment_64f(f.state(), 2, 0, 0, &told), lumStatusOk);
  EXPECT_EQ(told, 0);
  ASSERT_EQ(lumiGetSpatialMoment_64s(s.state(), 0, 1, 0, {0, 0}, &integer, 0), lumStatusOk);
  EXPECT_EQ(integer, 2);
  ASSERT_EQ(lumiGetSpatialMoment_64s(s.state(), 1, 0, 0, {0, 0}, &integer, 1), lumStatusOk);
  EXPECT_EQ(integer, 1);  // 3 / 2
}

TEST(MomentsTold, HuByTheirFormulas) {
  Scanned<Lum64f> f = ofNoise<Lum64f>();
  Scanned<Lum64s> s = ofNoise<Lum64s>();
  double h[7], n[4][4];
  Lum64s scaled[7];
  ASSERT_EQ(lumiGetHuMoments_64f(f.state(), 0, h), lumStatusOk);
  ASSERT_EQ(lumiGetHuMoments_64s(s.state(), 0, scaled, -60), lumStatusOk);
  forOrders([&](int p, int q) {
    ASSERT_EQ(lumiGetNormalizedCentralMoment_64f(f.state(), p, q, 0, &n[p][q]), lumStatusOk);
  });
  const auto square = [](double x) { return x * x; };
  const double a = n[3][0] - 3 * n[1][2], b = 3 * n[2][1] - n[0][3], c = n[3][0] + n[1][2],
               d = n[2][1] + n[0][3], difference = n[2][0] - n[0][2];
  const double wanted[] = {
      n[2][0] + n[0][2],
      square(difference) + 4 * square(n[1][1]),
      square(a) + square(b),
      square(c) + square(d),
      a * c * (square(n[1][2] + n[0][3]) - 3 * square(d)) + b * d * (3 * square(c) - square(d)),
      difference * (square(c) - square(d)) + 4 * n[1][1] * c * d,
      b * c * (square(c) - 3 * square(d)) - a * d * (3 * square(c) - square(d))};
  // Their terms are no larger than these.
  const double second = n[2][0] + n[0][2],
               third = std::abs(n[3][0]) + 3 * std::abs(n[1][2]) + 3 * std::abs(n[2][1]) + std::abs(n[0][3]);
  const double size[] = {second,
                         square(second),
                         square(third),
                         square(third),
                         16 * square(square(third)),
                         8 * second * square(third),
                         16 * square(square(third))};
  for (int i = 0; i < 7; ++i) {
    EXPECT_NEAR(h[i], wanted[i], size[i] * 0x1p-48) << i;
    EXPECT_NE(h[i], 0) << i;
    EXPECT_NEAR(static_cast<double>(scaled[i]), std::ldexp(h[i], 60), 1 + std::ldexp(size[i], 60 - 48)) << i;
  }
}

TEST(MomentsTold, OfAnEmptyImage) {
  Scanned<Lum64f> f(std::vector<Lum8u>(20), 5);
  Scanned<Lum64s> s(std::vector<Lum8u>(20), 5);
  double told[7] = {-1};
  Lum64s integers[7] = {-1};
  EXPECT_EQ(lumiGetSpatialMoment_64f(f.state(), 2, 1, 0, {3, 4}, told), lumStatusOk);
  EXPECT_EQ(told[0], 0);
  EXPECT_EQ(lumiGetSpatialMoment_64s(s.state(), 2, 1, 0, {3, 4}, integers, 0), lumStatusOk);
  EXPECT_EQ(integers[0], 0);
  told[0] = -7;
  integers[0] = -7;
  EXPECT_EQ(lumiGetCentralMoment_64f(f.state(), 0, 0, 0, told), lumStatusZeroMoment);
  EXPECT_EQ(lumiGetNormalizedSpatialMoment_64s(s.state(), 0, 0, 0, {0, 0}, integers, 0), lumStatusZeroMoment);
  EXPECT_EQ(lumiGetHuMoments_64f(f.state(), 0, told), lumStatusZeroMoment);
  EXPECT_EQ(lumiGetHuMoments_64s(s.state(), 0, integers, 0), lumStatusZeroMoment);
  EXPECT_EQ(told[0], -7);
  EXPECT_EQ(integers[0], -7);
}

// Floats may be as small as what is next to 1, and not be it.
TEST(MomentsTold, OfTheSmallestTotal) {
  for (const float sample : {0x1p-52f, 0x1.000002p-52f, -0x1p-51f}) {
    Byte state[kBytes];
    storeState(state, 33, 0, -1);
    auto* const at = reinterpret_cast<LumiMomentState*>(state);
    ASSERT_EQ(lumiMoments64f_32f_C1R(&sample, 4, {1, 1}, at), lumStatusOk);
    double told = -7;
    EXPECT_EQ(lumiGetCentralMoment_64f(at, 0, 0, 0, &told),
              sample == 0x1p-52f ? lumStatusZeroMoment : lumStatusOk);
    EXPECT_EQ(told, sample == 0x1p-52f ? -7 : double{sample});
  }
}

// What is wrong with a call, and its status: the first in the list decides.
struct Fault {
  std::function<void(NamedCall&)> cause;
  LumStatus status;
  int exclusive;
};

void expectInOrder(const NamedCall& right, const std::vector<Fault>& faults) {
  for (size_t i = 0; i < faults.size(); ++i)
    for (size_t k = i; k < faults.size(); ++k) {
      if (k > i && faults[i].exclusive == faults[k].exclusive) continue;
      NamedCall call = right;
      faults[k].cause(call);
      faults[i].cause(call);
      ASSERT_EQ(call.run(), faults[i].status) << i << " and " << k;
    }
}

Fault badPointer(const char* name, int exclusive) {
  return {[=](NamedCall& c) { c.pointer(name, nullptr); }, lumStatusNullPointer, exclusive};
}
Fault badNumber(const char* name, int n, LumStatus status, int exclusive) {
  return {[=](NamedCall& c) { c.number(name, n); }, status, exclusive};
}

TEST(MomentsStatus, OfScans) {
  const std::vector<Byte> image(1024);
  for (const ExportRow& row : exportRows()) {
    const std::string operation = row.operation;
    if (operation != "Moments64f" && operation != "Moments64s") continue;
    const bool isFloat = operation == "Moments64f";
    Byte state[kBytes], other[kBytes], before[kBytes];
    storeState(state, isFloat ? 33 : 34, 9, -1);
    storeState(other, isFloat ? 34 : 33, 9, -1);
    std::memcpy(before, state, kBytes);
    const int rowBytes = 7 * operandOf(row.types[0], row.layouts[0]).pixelBytes;
    NamedCall right(row);
    right.image("src", image.data(), rowBytes).size("roi", {7, 3}).pointer("state", state);
    std::vector<Fault> faults = {badPointer("src", 1), badPointer("state", 2)};
    faults.push_back({[&](NamedCall& c) { c.pointer("state", other); }, lumStatusBadContext, 2});
    for (const int step : {0, -1, INT_MIN}) faults.push_back(badNumber("srcStep", step, lumStatusBadStep, 3));
    for (const LumiSize size : {LumiSize{0, 3}, {-1, 3}, {7, 0}, {7, INT_MIN}})
      faults.push_back({[=](NamedCall& c) { c.size("roi", size); }, lumStatusBadSize, 4});
    faults.push_back(badNumber("srcStep", rowBytes - 1, lumStatusStepTooSmall, 3));
    ASSERT_NO_FATAL_FAILURE(expectInOrder(right, faults)) << row.name;
    ASSERT_EQ(std::memcmp(state, before, kBytes), 0) << row.name;
    ASSERT_EQ(right.run(), lumStatusOk) << row.name;
  }
}

TEST(MomentsStatus, OfWhatIsTold) {
  for (const ExportRow& row : exportRows()) {
    const std::string operation = row.operation;
    if (operation.compare(0, 3, "Get") != 0) continue;
    const bool isHu = operation == "GetHuMoments", isFloat = row.types[0] == std::string("64f"),
               divides = operation != "GetSpatialMoment", hasScale = !isFloat;
    const char* const result = isHu ? "values" : "value";
    Byte state[kBytes], other[kBytes], unscanned[kBytes], empty[kBytes];
    const Lum32s identifier = isFloat ? 33 : 34;
    storeState(state, identifier, 9, 3);
    for (int i = 0; i < 3; ++i)
      isFloat ? model::store<Lum64f>(state + 16, 16 * i, 5) : model::store<Lum64s>(state + 16, 16 * i, 5);
    storeState(other, 67 - identifier, 9, 3);
    storeState(unscanned, identifier, 9, -1);
    storeState(empty, identifier, 9, 3);
    Lum64s values[7] = {-7, -7, -7, -7, -7, -7, -7};
    NamedCall right(row);
    right.pointer("state", state).number("channel", 2).pointer(result, values);
    if (!isHu) right.number("m", 1).number("n", 2);
    if (operation.find("Spatial") != std::string::npos) right.point("offset", {1, 2});
    if (hasScale) right.number("scaleFactor", 0);
    std::vector<Fault> faults = {badPointer("state", 1), badPointer(result, 2)};
    const auto addState = [&](const Byte* at, LumStatus status) {
      faults.push_back({[=](NamedCall& c) { c.pointer("state", at); }, status, 1});
    };
    addState(other, lumStatusBadContext);
    if (!isHu)
      for (const int order : {3, INT_MAX}) faults.push_back(badNumber("m", order, lumStatusBadSize, 3));
    for (const int channel : {-1, 3, INT_MAX, INT_MIN})
      faults.push_back(badNumber("channel", channel, lumStatusBadChannel, 4));
    addState(unscanned, lumStatusBadChannel);
    if (divides) addState(empty, lumStatusZeroMoment);
    ASSERT_NO_FATAL_FAILURE(expectInOrder(right, faults)) << row.name;
    if (!isHu) {
      ASSERT_EQ(right.number("m", -1).run(), lumStatusOk) << row.name;
      ASSERT_EQ(right.number("m", INT_MIN).run(), lumStatusOk) << row.name;
    }
    for (const Lum64s value : values) ASSERT_EQ(value, -7) << row.name;
    if (!isHu) right.number("m", 0);
    ASSERT_EQ(right.run(), lumStatusOk) << row.name;
    ASSERT_NE(values[0], -7) << row.name;
  }
}

TEST(MomentState, IsMadeInAnyMemory) {
  int size = -1;
  EXPECT_EQ(lumiMomentGetStateSize_64f(0, &size), lumStatusOk);
  EXPECT_EQ(size, kBytes);
  size = -1;
  EXPECT_EQ(lumiMomentGetStateSize_64s(3, &size), lumStatusOk);
  EXPECT_EQ(size, kBytes);
  Random random(5);
  for (int phase = 0; phase < 4; ++phase) {
    const GuardedBlock block(kBytes, phase, random);
    auto* const state = reinterpret_cast<LumiMomentState*>(block.at());
    Byte wanted[kBytes];
    storeState(wanted, 33, 12, -1);
    ASSERT_EQ(lumiMomentInit_64f(state, 12), lumStatusOk);
    EXPECT_EQ(std::memcmp(block.at(), wanted, kBytes), 0);
    storeState(wanted, 34, -2, -1);
    ASSERT_EQ(lumiMomentInit_64s(state, -2), lumStatusOk);
    EXPECT_EQ(std::memcmp(block.at(), wanted, kBytes), 0);
    EXPECT_TRUE(block.staysInside());
  }
}

// A scan of one channel after one of three leaves nothing of it.
TEST(MomentState, IsClearedByScans) {
  const std::vector<Lum8u> image(60, 200);
  Byte state[kBytes];
  auto* const at = reinterpret_cast<LumiMomentState*>(state);
  ASSERT_EQ(lumiMomentInit_64f(at, 1), lumStatusOk);
  ASSERT_EQ(lumiMoments64f_8u_C3R(image.data(), 15, {5, 4}, at), lumStatusOk);
  ASSERT_NE(tableAt<Lum64f>(state, 2, 0), 0);
  ASSERT_EQ(lumiMoments64f_8u_C1R(image.data(), 15, {5, 4}, at), lumStatusOk);
  for (int i = 0; i < 32; ++i) EXPECT_EQ(tableAt<Lum64f>(state, 1, i), 0);
  double told = 0;
  EXPECT_EQ(lumiGetSpatialMoment_64f(at, 0, 0, 1, {0, 0}, &told), lumStatusBadChannel);
}

TEST(MomentState, IsAllocatedAndFreed) {
  for (const char* type : {"_64f", "_64s"}) {
    const std::string name = type;
    EXPECT_EQ(expectAllocatedLife(NamedCall("lumiMomentInitAlloc" + name).number("hint", 3), "state",
                                  NamedCall("lumiMomentFree" + name), "state",
                                  [&](void* state) {
                                    const Byte* const bytes = static_cast<Byte*>(state);
                                    Byte wanted[kBytes];
                                    storeState(wanted, name == "_64f" ? 33 : 34, 3, -1);
                                    EXPECT_EQ(std::memcmp(bytes, wanted, kBytes), 0);
                                  }),
              "");
    Byte other[kBytes];
    storeState(other, name == "_64f" ? 34 : 33, 3, -1);
    EXPECT_EQ(NamedCall("lumiMomentFree" + name).pointer("state", other).run(), lumStatusBadContext);
    EXPECT_EQ(NamedCall("lumiMomentFree" + name).pointer("state", nullptr).run(), lumStatusNullPointer);
  }
  const CoreGuard guard;
  testcore::setBlockOffset(4);
  LumiMomentState* state = nullptr;
  ASSERT_EQ(lumiMomentInitAlloc_64f(&state, 0), lumStatusOk);
  EXPECT_EQ(lumiMomentFree_64f(state), lumStatusOk);
  EXPECT_EQ(testcore::counts().liveBlocks, 0);
  EXPECT_EQ(testcore::counts().strayFrees, 0);
}

}  // namespace
}  // namespace test
