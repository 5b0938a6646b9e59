// SPDX-License-Identifier: MIT
#include "model/filters/separable.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <string>
#include <vector>

#include "common/member_checks.hpp"
#include "lumi/separable.h"
#include "support/arena.hpp"
#include "support/core_guard.hpp"
#include "support/fault.hpp"
#include "support/member.hpp"
#include "support/named_call.hpp"

namespace test {
namespace {

// Taps of bytes whose sums fit into words, or nearly so; of words; and, now and then, beyond.
void fillIntegers(Random& random, Byte* first, int count) {
  const int kind = random.below(5);
  for (int i = 0; i < count; ++i) {
    int tap = random.between(-9, 20);
    if (kind == 0) tap = random.between(-128, 127) / count;
    if (kind == 1) tap = i == 0 ? random.pick(std::vector<int>{-129, -128, 127, 128}) : 0;
    if (kind == 2) tap = random.pick(std::vector<int>{-32768, 32767, 255, -3, 0});
    if (kind == 3) tap = random.pick(std::vector<int>{-32769, 32768, 40000, INT_MIN, INT_MAX, 7});
    model::store<Lum32s>(first, i, tap);
  }
}

// Multiples of an eighth, whose sums have ties, or any floats.
template <typename Tap>
void fillFloats(Random& random, Byte* first, int count) {
  const bool eighths = random.oneIn(2);
  const Tap scale = random.pick(std::vector<Tap>{Tap(0.02), Tap(0.2), 1, 30, Tap(1e8)});
  for (int i = 0; i < count; ++i)
    model::store<Tap>(first, i,
                      eighths ? static_cast<Tap>(random.between(-4, 6)) / 8
                              : static_cast<Tap>(random.between(-60000, 100000)) / 100000 * scale);
}

template <typename Tap>
model::LineKernel<Tap> kernelOf(const Call& c, bool isColumn) {
  model::LineKernel<Tap> kernel{{}, static_cast<int>(c.number("anchor")), 1, isColumn};
  const Call::Block& taps = c.block("kernel");
  for (int i = 0; i < taps.count; ++i) kernel.taps.push_back(model::load<Tap>(taps.data, i));
  return kernel;
}

const std::vector<int> kLengths = {1, 2, 3, 3, 4, 5, 7, 8, 11};
const std::vector<Value> kAnchors = {{{0}}, {{1}}, {{2}}, {{3}}, {{7}}, {{-2}}, {{70}}};
const std::vector<Value> kDivisors = {{{1}},  {{1}},  {{2}},       {{4}},   {{64}},     {{256}},
                                      {{3}},  {{7}},  {{9}},       {{-1}},  {{-5}},     {{1 << 15}},
                                      {{-2}}, {{10}}, {{1 << 30}}, {{100}}, {{INT_MIN}}};

template <typename T>
void describe(Member& m, bool isColumn, bool isInteger) {
  m.contents = kAnyContents;
  m.mayStream = false;
  m.floatResults = std::is_floating_point_v<T>;
  m.separateRows = true;
  m.rounds = 2;
  if (isColumn) m.heights = {1, 2, 3, 5, 18};  // the last one has rows beyond those of a piece
  m.choose("anchor", kAnchors);
  m.surroundings = [=](const Call& c) -> Member::Surroundings {
    const int anchor = static_cast<int>(c.number("anchor")), before = c.block("kernel").count - 1 - anchor;
    return isColumn ? Member::Surroundings{0, before, 0, anchor} : Member::Surroundings{before, 0, anchor, 0};
  };
  const int channels = m.channels.src, used = m.channels.moved;
  const auto run = [=](const Call& c, const auto& kernel) {
    model::filterLines<T>(kernel, {c.srcImage(), c.roi, channels}, c.dstImage(), used);
  };
  using Float = std::conditional_t<std::is_same_v<T, Lum64f>, Lum64f, Lum32f>;
  if (!isInteger) {
    m.array("kernel", std::is_same_v<Float, Lum64f> ? "64f" : "32f", kLengths, fillFloats<Float>);
    m.model = [=](const Call& c) { run(c, kernelOf<Float>(c, isColumn)); };
    return;
  }
  m.allocates = true;
  m.array("kernel", "32s", kLengths, fillIntegers);
  m.choose("divisor", kDivisors);
  m.model = [=](const Call& c) {
    auto kernel = kernelOf<Lum32s>(c, isColumn);
    kernel.divisor = static_cast<int>(c.number("divisor"));
    if constexpr (std::is_same_v<T, Lum8u>)
      run(c, kernel);
    else
      run(c, model::asFloats(kernel));
  };
}

const bool added = [] {
  for (const std::string name : {"FilterRow", "FilterColumn", "FilterRow32f", "FilterColumn32f"})
    addModelTests(membersOfOneType(
        name,
        [&](Member& m, auto sample) {
          using T = decltype(sample);
          describe<T>(m, name.find("Column") != std::string::npos,
                      name.find("32f") == std::string::npos && std::is_integral_v<T>);
        },
        Types<Lum8u, Lum16u, Lum16s, Lum32f, Lum64f>()));
  return true;
}();

// Kernels beyond what a call has memory for, and beyond what rows are made floats for at once.
TEST(Separable, LongKernels) {
  const CoreGuard guard;
  Stage stage(1 << 18);
  for (const Member& m : members())
    for (const int count : {64, 65, 66, 131})
      for (const int width : {3, 23, 61}) {
        Case c = makeCase(m, settings().seed, count + width);
        c.roi = {width, 5};
        c.srcStep = m.src.tightStep(width, 0), c.dstStep = m.dst.tightStep(width, 0);
        c.blocks[0].count = count;
        const auto failure = failureWithoutMemory(m, stage, c);
        ASSERT_FALSE(failure) << *failure << "\n" << describe(m, c);
      }
}

// A call of a member with an image and taps of its own; the ROI begins at `at` of the source.
class LineCall {
 public:
  LineCall(const Member& m, int kernelSize, int anchor)
      : call_(m.name),
        isColumn_(m.name.find("Column") != std::string::npos),
        taps_(8 * static_cast<size_t>(kernelSize)) {
    call_.pointer("kernel", taps_.data()).number("kernelSize", kernelSize).number("anchor", anchor);
    for (const Argument& argument : m.row->arguments)
      if (argument.name == std::string("divisor")) call_.number("divisor", 1);
  }
  NamedCall& call() { return call_; }
  bool isColumn() const { return isColumn_; }

 private:
  NamedCall call_;
  bool isColumn_;
  std::vector<Byte> taps_;
};

// Source rows are pixels, those under the kernel too, and destination rows samples; down columns both are
// samples.
TEST(Separable, LeastSteps) {
  constexpr LumiSize kRoi{20, 1};
  constexpr int kTaps = 5;
  std::vector<Byte> src(4096), dst(4096);
  for (const Member& m : members()) {
    LineCall line(m, kTaps, kTaps - 1);
    const int sample = m.sampleBytes,
              srcRow = line.isColumn() ? kRoi.width * sample : (kRoi.width + kTaps - 1) * m.src.pixelBytes;
    const int dstRow = kRoi.width * sample;
    const auto status = [&](int srcStep, int dstStep) {
      return line.call()
          .size("roi", kRoi)
          .image("src", src.data(), srcStep)
          .image("dst", dst.data(), dstStep)
          .run();
    };
    EXPECT_EQ(status(srcRow, dstRow), lumStatusOk) << m.name;
    EXPECT_EQ(status(srcRow - 1, dstRow), lumStatusBadStep) << m.name;
    EXPECT_EQ(status(srcRow, dstRow - 1), lumStatusBadStep) << m.name;
    EXPECT_EQ(status(-srcRow, dstRow), lumStatusBadStep) << m.name;
  }
}

// The products of sizes do not fit into 32 bits.
TEST(Separable, HugeRowsAreRefused) {
  Byte none[64];
  for (const Member& m : members()) {
    LineCall line(m, 1, 0);
    const auto status = [&](int width, int kernelSize) {
      return line.call()
          .size("roi", {width, 1})
          .number("kernelSize", kernelSize)
          .image("src", none, INT_MAX)
          .image("dst", none, INT_MAX)
          .run();
    };
    const bool isByteColumn = line.isColumn() && m.sampleBytes == 1;
    if (isByteColumn) continue;  // its rows fit any step
    EXPECT_EQ(status(INT_MAX, line.isColumn() ? 1 : INT_MAX), lumStatusBadStep) << m.name;
    EXPECT_EQ(status(line.isColumn() ? INT_MAX : 2, INT_MAX), lumStatusBadStep) << m.name;
  }
}

// A single tap of 1 moves the image by the anchor, however far.
TEST(Separable, OneTapMovesTheImage) {
  constexpr LumiSize kRoi{21, 2};
  constexpr int kStep = 32;
  std::vector<Lum8u> src(kStep * 2), dst(kStep * 2);
  for (size_t i = 0; i < src.size(); ++i) src[i] = static_cast<Lum8u>(i * 7);
  const Lum32s tap = 1;
  for (const bool isColumn : {false, true})
    for (const int anchor : {0, 3, -9, INT_MAX, INT_MIN}) {
      const auto moved = static_cast<uintptr_t>(int64_t{anchor} * (isColumn ? kStep : 1));
      const auto* const from =
          reinterpret_cast<const Lum8u*>(reinterpret_cast<uintptr_t>(src.data()) - moved);
      std::fill(dst.begin(), dst.end(), Lum8u{0});
      ASSERT_EQ((isColumn ? lumiFilterColumn_8u_C1R : lumiFilterRow_8u_C1R)(from, kStep, dst.data(), kStep,
                                                                            kRoi, &tap, 1, anchor, 1),
                lumStatusOk);
      for (int y = 0; y < kRoi.height; ++y)
        EXPECT_TRUE(std::equal(dst.begin() + y * kStep, dst.begin() + y * kStep + kRoi.width,
                               src.begin() + y * kStep))
            << anchor;
    }
}

// A tap beyond 16 bits makes no difference but that of its sums.
TEST(Separable, LargeTapsAreSummedWhole) {
  std::vector<Lum8u> src(64, 200), dst(64);
  for (const int divisor : {40000, 1 << 15}) {
    const Lum32s taps[] = {0, 40000, 0};
    ASSERT_EQ(lumiFilterRow_8u_C1R(src.data() + 1, 64, dst.data(), 64, {40, 1}, taps, 3, 1, divisor),
              lumStatusOk);
    EXPECT_EQ(dst[0], divisor == 40000 ? 200 : 244);  // 200 * 40000 / 2^15 = 244.1
    EXPECT_EQ(std::count(dst.begin(), dst.begin() + 40, dst[0]), 40);
  }
}

// Alpha of the destination is not touched: that of the last pixel need not even be there.
TEST(Separable, AlphaIsNotTouched) {
  const Arena dst(1 << 12);
  for (const Member& m : members()) {
    if (m.layouts[0] != "AC4") continue;
    for (const int width : {1, 2, 20, 65, 70}) {
      LineCall line(m, 3, 1);
      const int pixel = m.dst.pixelBytes, row = width * pixel;
      std::vector<Byte> src(static_cast<size_t>((row + 2 * pixel) * 3));
      line.call().size("roi", {width, 1}).image("src", src.data() + row + 3 * pixel, row + 2 * pixel);
      line.call().image("dst", dst.end() - row + m.sampleBytes, row);
      LumStatus status = lumStatusNullPointer;
      EXPECT_FALSE(faultOf([&] { status = line.call().run(); })) << m.name << " " << width;
      EXPECT_EQ(status, lumStatusOk);
    }
  }
}

}  // namespace
}  // namespace test
