// SPDX-License-Identifier: MIT
// What the tests of operations on two images, or on an image and a constant, have in common. A formula makes
// a result of two samples and the scale factor.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <string>
#include <type_traits>
#include <vector>

#include "model/arithmetic/combine.hpp"
#include "support/arena.hpp"
#include "support/core_guard.hpp"
#include "support/fault.hpp"
#include "support/member.hpp"
#include "support/random.hpp"
#include "support/settings.hpp"

namespace test {

// T is the member's sample type, or that of its components where they are combined apart.
template <typename T, typename Formula>
void describeCombination(Member& m, Formula formula) {
  const model::Channels channels = m.channels;
  const int components = m.sampleBytes / static_cast<int>(sizeof(T));
  const auto at = [=](const Call& c) { return [=, s = c.numbers[0]](T a, T b) { return formula(a, b, s); }; };
  m.contents = kAnyContents;
  m.mayStream = m.types[0] == "16sc" && m.layouts[0] == "C3" && m.values > 0;
  m.floatResults = isFloating(m.types[0]);
  m.aliasing = m.inPlace ? Aliasing::None : Aliasing::SameImage;
  if (m.values)
    m.model = [=](const Call& c) {
      model::combineConstant<T>(c.values, c.srcImage(), c.dstImage(), c.roi, channels, components, at(c));
    };
  else
    m.model = [=](const Call& c) {
      model::combine<T>(c.srcImage(), c.src2Image(), c.dstImage(), c.roi, channels, components, at(c));
    };
}

// Scale factors beyond every limit, and those next to the largest integers.
inline std::vector<int> scaleFactors() {
  std::vector<int> all = {INT32_MIN, INT32_MIN + 1, -1000, 1000, INT32_MAX};
  for (int s = -40; s <= 40; ++s) all.push_back(s);
  return all;
}

// All bytes, `count` to a row: each as often as there are columns, and all of them in each row.
struct PairsOfBytes {
  static constexpr int count = 256;
  std::vector<Lum8u> a, b, dst;
  LumiSize roi{count, count};

  PairsOfBytes() : a(count * count), b(a.size()), dst(a.size()) {
    for (size_t i = 0; i < a.size(); ++i) {
      a[i] = static_cast<Lum8u>(i / count);
      b[i] = static_cast<Lum8u>(i % count);
    }
  }
  template <typename Function, typename Formula, typename... Scale>
  void expect(Function* function, Formula formula, Scale... s) {
    ASSERT_EQ(function(a.data(), count, b.data(), count, dst.data(), count, roi, s...), lumStatusOk);
    for (size_t i = 0; i < dst.size(); ++i)
      ASSERT_EQ(dst[i], formula(a[i], b[i], s...)) << +a[i] << " and " << +b[i];
  }
};

// Of every byte with every constant.
template <typename Function, typename Formula, typename... Scale>
void expectBytesWithConstants(Function* function, Formula formula, Scale... s) {
  constexpr int count = 256;
  Lum8u src[count], dst[count];
  for (int i = 0; i < count; ++i) src[i] = static_cast<Lum8u>(i);
  for (int c = 0; c < count; ++c) {
    const auto value = static_cast<Lum8u>(c);
    ASSERT_EQ(function(src, count, value, dst, count, {count, 1}, s...), lumStatusOk);
    for (int i = 0; i < count; ++i) ASSERT_EQ(dst[i], formula(value, src[i], s...)) << i << " and " << c;
  }
}

// Numbers about every limit, power of two and tie of a type.
template <typename T>
std::vector<T> edges() {
  using Limits = std::numeric_limits<T>;
  std::vector<T> all;
  for (int bit = 0; bit <= Limits::digits; ++bit)
    for (int64_t near = -2; near <= 2; ++near)
      for (int64_t sign : {1, -1}) {
        const int64_t x = sign * (int64_t{1} << bit) + near;
        if (x >= Limits::min() && x <= Limits::max()) all.push_back(static_cast<T>(x));
      }
  all.insert(all.end(), {Limits::min(), Limits::max(), 0, static_cast<T>(Limits::max() / 3)});
  return all;
}

// Sample is what the function takes, of one or two T.
template <typename Sample, typename T, typename Function>
void expectEdges(Function* function, T (*formula)(T, T, int)) {
  const std::vector<T> all = edges<T>();
  constexpr size_t components = sizeof(Sample) / sizeof(T);
  const LumiSize roi{static_cast<int>(all.size() / components), 1};
  const int step = roi.width * static_cast<int>(sizeof(Sample));
  std::vector<T> a(all.size()), dst(all.size());
  const auto samples = [](auto* of) { return reinterpret_cast<Sample*>(of); };
  auto* const second = const_cast<T*>(all.data());
  for (int s : scaleFactors())
    for (T first : all) {
      std::fill(a.begin(), a.end(), first);
      ASSERT_EQ(function(samples(a.data()), step, samples(second), step, samples(dst.data()), step, roi, s),
                lumStatusOk);
      for (size_t i = 0; i < all.size() / components * components; ++i)
        ASSERT_EQ(dst[i], formula(first, all[i], s))
            << int64_t{first} << " and " << int64_t{all[i]} << " at scale factor " << s;
    }
}

// A destination that lies a few samples before or behind a source: each result as if the ones before it were
// stored already. Sample is what the function takes, T the same for the formula.
template <typename Sample, typename T, typename Function, typename Formula, typename... Scale>
void expectInOrder(Function* function, Formula formula, Scale... s) {
  static_assert(sizeof(Sample) == sizeof(T));
  constexpr int most = 70, begin = 80, room = 2 * begin + most;
  for (int width = 1; width <= most; ++width)
    for (int offset = -most; offset <= most; ++offset) {
      Random random(static_cast<uint64_t>(width * 1000 + offset));
      T image[room], other[most];
      random.fill(reinterpret_cast<Byte*>(image), sizeof image);
      random.fill(reinterpret_cast<Byte*>(other), sizeof other);
      T expected[room];
      std::copy(image, image + room, expected);
      const bool overlapsSecond = random.oneIn(2);
      for (int i = 0; i < width; ++i) {
        const T mine = expected[begin + i], its = other[i];
        expected[begin + offset + i] = overlapsSecond ? formula(its, mine, s...) : formula(mine, its, s...);
      }
      const auto samples = [](T* of) { return reinterpret_cast<Sample*>(of); };
      Sample* const src = samples(image + begin);
      const auto* a = overlapsSecond ? samples(other) : src;
      const auto* b = overlapsSecond ? src : samples(other);
      ASSERT_GE(function(a, 1, b, 1, src + offset, 1, LumiSize{width, 1}, s...),
                lumStatusOk);  // or a warning
      ASSERT_EQ(std::memcmp(image, expected, sizeof image), 0)
          << "width " << width << ", destination " << offset << " samples on" << (0 + ... + s);
    }
}

// Beyond largest(member) no source is read: they are closed. Of all members with a scale factor whose names
// begin so, and that have a source besides the destination: so many.
inline void expectAllZeroFrom(const std::vector<std::string>& prefixes, int count,
                              int (*largest)(const Member&)) {
  const CoreGuard guard;
  Arena closed(1 << 16), open(1 << 16);
  closed.setAccessible(closed.begin(), closed.end(), false);
  int tested = 0;
  for (const Member& m : members()) {
    const bool named = std::any_of(prefixes.begin(), prefixes.end(),
                                   [&](const std::string& p) { return m.name.rfind(p, 0) == 0; });
    if (!named || m.numbers.empty() || (m.inPlace && m.values)) continue;
    for (int s : {largest(m) + 1, 100, INT32_MAX}) {
      std::fill(open.begin(), open.end(), Byte{0xA5});
      open.copyToTwin(open.begin(), open.end());
      const Byte values[32] = {1, 2, 3, 4};
      Call call;
      call.roi = {37, 3};
      call.src[0] = call.src2 = closed.begin();
      call.dst[0] = open.begin() + 64;
      call.srcStep = call.src2Step = call.dstStep = 37 * m.dst.pixelBytes + 5;
      call.values = values;
      call.numbers[0] = s;
      LumStatus status = 0;
      ASSERT_FALSE(faultOf([&] { status = m.run(call); })) << m.name << " at " << s;
      ASSERT_EQ(status, lumStatusOk);
      const int used = m.dst.pixelBytes / m.channels.dst * m.channels.moved;
      for (int y = 0; y < call.roi.height; ++y)
        for (int x = 0; x < call.roi.width; ++x)
          std::fill_n(open.twin(call.dst[0]) + y * call.dstStep + x * m.dst.pixelBytes, used, Byte{0});
      ASSERT_EQ(open.firstDifference(open.begin(), open.end()), nullptr) << m.name << " at " << s;
      ++tested;
    }
  }
  EXPECT_EQ(tested, 3 * count);
}

// A constant that makes all samples the same, whatever the source: it is closed. The destination is 37 x 2.
template <typename T, typename Function>
void expectFilledUnread(Function* function, T value, int scaleFactor, T expected) {
  const Arena closed(1 << 12);
  closed.setAccessible(closed.begin(), closed.end(), false);
  const T* const src = reinterpret_cast<const T*>(closed.begin());
  std::vector<T> dst(40 * 2, 7);
  LumStatus status = 0;
  ASSERT_FALSE(faultOf([&] {
    status = function(src, 64, value, dst.data(), 40 * static_cast<int>(sizeof(T)), {37, 2}, scaleFactor);
  })) << "reads the source at "
      << scaleFactor;
  ASSERT_EQ(status, lumStatusOk);
  for (size_t i = 0; i < dst.size(); ++i)
    ASSERT_EQ(dst[i], i % 40 < 37 ? expected : T{7}) << i << " at " << scaleFactor;
}

// Every choice of four parts of complex samples, at all scale factors and those about the widest quotients.
template <typename Sample, typename T, typename Function, typename Formula>
void expectEdgesOfParts(Function* function, Formula formula, LumStatus status, const std::vector<T>& parts) {
  using Complex = model::Complex<T>;
  std::vector<Complex> a, b;
  for (T ar : parts)
    for (T ai : parts)
      for (T br : parts)
        for (T bi : parts) a.push_back({ar, ai}), b.push_back({br, bi});
  std::vector<Complex> dst(a.size());
  const auto samples = [](std::vector<Complex>& all) { return reinterpret_cast<Sample*>(all.data()); };
  std::vector<int> scales = scaleFactors();
  scales.insert(scales.end(), {-101, -100, -64, -63, 63, 64, 100, 101});
  for (int s : scales) {
    const LumiSize roi{static_cast<int>(a.size()), 1};
    ASSERT_EQ(function(samples(a), 1, samples(b), 1, samples(dst), 1, roi, s), status);
    for (size_t i = 0; i < a.size(); ++i) {
      const Complex expected = formula(a[i], b[i], s);
      ASSERT_TRUE(dst[i].re == expected.re && dst[i].im == expected.im)
          << "(" << a[i].re << ", " << a[i].im << ") and (" << b[i].re << ", " << b[i].im << ") at " << s
          << ": (" << dst[i].re << ", " << dst[i].im << ") for (" << expected.re << ", " << expected.im
          << ")";
    }
  }
}

}  // namespace test
