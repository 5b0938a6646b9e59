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

}  // namespace
}  // namespace test
