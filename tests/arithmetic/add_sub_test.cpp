// SPDX-License-Identifier: MIT
// Addition and subtraction, against the model; all pairs of bytes; overlap; sources that are not read.
#include "lumi/add_sub.h"

#include <gtest/gtest.h>

#include "model/arithmetic/add_sub.hpp"
#include "support/arena.hpp"
#include "support/core_guard.hpp"
#include "support/fault.hpp"
#include "support/member.hpp"
#include "support/settings.hpp"

namespace test {
namespace {

template <typename T, T (*formula)(T, T, int)>
void describe(Member& m) {
  const model::Channels channels = m.channels;
  const int components = m.components;
  const auto at = [](const Call& c) { return [s = c.numbers[0]](T a, T b) { return formula(a, b, s); }; };
  m.contents = kAnyContents;
  m.mayStream = m.types[0] == "16sc" && m.layouts[0] == "C3" && m.values > 0;
  m.floatResults = std::is_floating_point_v<T>;
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

bool addAll() {
  for (const char* operation : {"Add", "AddC"})
    addModelTests(membersOfOneType(operation, [](Member& m, auto sample) {
      describe<decltype(sample), model::add<decltype(sample)>>(m);
    }));
  for (const char* operation : {"Sub", "SubC"})
    addModelTests(membersOfOneType(operation, [](Member& m, auto sample) {
      describe<decltype(sample), model::subtract<decltype(sample)>>(m);
    }));
  return true;
}
const bool added = addAll();

// Scale factors beyond every limit, and those next to the largest integers.
std::vector<int> scaleFactors() {
  std::vector<int> all = {INT32_MIN, INT32_MIN + 1, -1000, 1000, INT32_MAX};
  for (int s = -40; s <= 40; ++s) all.push_back(s);
  return all;
}

TEST(AddSub, AllPairsOfBytesAtAllScaleFactors) {
  constexpr int count = 256;
  std::vector<Lum8u> a(count * count), b(count * count), dst(count * count);
  for (int i = 0; i < count * count; ++i) {
    a[static_cast<size_t>(i)] = static_cast<Lum8u>(i / count);
    b[static_cast<size_t>(i)] = static_cast<Lum8u>(i % count);
  }
  const LumiSize roi{count, count};
  for (int s : scaleFactors()) {
    ASSERT_EQ(lumiAdd_8u_C1RSfs(a.data(), count, b.data(), count, dst.data(), count, roi, s), lumStatusOk);
    for (size_t i = 0; i < dst.size(); ++i)
      ASSERT_EQ(dst[i], model::add<Lum8u>(a[i], b[i], s)) << +a[i] << " + " << +b[i] << " at " << s;
    ASSERT_EQ(lumiSub_8u_C1RSfs(a.data(), count, b.data(), count, dst.data(), count, roi, s), lumStatusOk);
    for (size_t i = 0; i < dst.size(); ++i)
      ASSERT_EQ(dst[i], model::subtract<Lum8u>(a[i], b[i], s)) << +b[i] << " - " << +a[i] << " at " << s;
  }
}

TEST(AddSub, AllConstantsAndBytesAtAllScaleFactors) {
  constexpr int count = 256;
  Lum8u src[count], dst[count];
  for (int i = 0; i < count; ++i) src[i] = static_cast<Lum8u>(i);
  for (int s : scaleFactors())
    for (int c = 0; c < count; ++c) {
      const auto value = static_cast<Lum8u>(c);
      ASSERT_EQ(lumiAddC_8u_C1RSfs(src, count, value, dst, count, {count, 1}, s), lumStatusOk);
      for (int i = 0; i < count; ++i)
        ASSERT_EQ(dst[i], model::add<Lum8u>(value, src[i], s)) << i << " + " << c;
      ASSERT_EQ(lumiSubC_8u_C1RSfs(src, count, value, dst, count, {count, 1}, s), lumStatusOk);
      for (int i = 0; i < count; ++i)
        ASSERT_EQ(dst[i], model::subtract<Lum8u>(value, src[i], s)) << i << " - " << c << " at " << s;
    }
}

// Pairs about every limit, power of two and tie of a type.
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

template <typename T, typename Function>
void expectEdges(Function* function, T (*formula)(T, T, int), int components) {
  const std::vector<T> all = edges<T>();
  const auto count = static_cast<int>(all.size());
  std::vector<T> a(all.size()), dst(all.size());
  for (int s : scaleFactors())
    for (T first : all) {
      std::fill(a.begin(), a.end(), first);
      const auto call = [&](auto* sample) {
        using Sample = std::remove_const_t<std::remove_pointer_t<decltype(sample)>>;
        const int step = count * static_cast<int>(sizeof(T));
        return function(reinterpret_cast<const Sample*>(a.data()), step,
                        reinterpret_cast<const Sample*>(all.data()), step,
                        reinterpret_cast<Sample*>(dst.data()), step, LumiSize{count / components, 1}, s);
      };
      using Sample = std::conditional_t<std::is_same_v<T, Lum32s>, Lum32sc, T>;
      ASSERT_EQ(call(static_cast<Sample*>(nullptr)), lumStatusOk);
      for (size_t i = 0; i < all.size() / components * components; ++i)
        ASSERT_EQ(dst[i], formula(first, all[i], s))
            << int64_t{first} << " and " << int64_t{all[i]} << " at scale factor " << s;
    }
}

TEST(AddSub, EdgesOfWiderTypesAtAllScaleFactors) {
  expectEdges<Lum16u>(lumiAdd_16u_C1RSfs, model::add<Lum16u>, 1);
  expectEdges<Lum16u>(lumiSub_16u_C1RSfs, model::subtract<Lum16u>, 1);
  expectEdges<Lum16s>(lumiAdd_16s_C1RSfs, model::add<Lum16s>, 1);
  expectEdges<Lum16s>(lumiSub_16s_C1RSfs, model::subtract<Lum16s>, 1);
  expectEdges<Lum32s>(lumiAdd_32sc_C1RSfs, model::add<Lum32s>, 2);
  expectEdges<Lum32s>(lumiSub_32sc_C1RSfs, model::subtract<Lum32s>, 2);
}

// Ties to even, saturation and limits, by hand.
TEST(AddSub, KnownResults) {
  const auto add = [](Lum8u a, Lum8u b, int s) {
    Lum8u d = 77;
    EXPECT_EQ(lumiAdd_8u_C1RSfs(&a, 1, &b, 1, &d, 1, {1, 1}, s), lumStatusOk);
    return int{d};
  };
  EXPECT_EQ(add(255, 255, 0), 255);
  EXPECT_EQ(add(255, 255, 1), 255);
  EXPECT_EQ(add(255, 255, 9), 1);
  EXPECT_EQ(add(255, 255, 10), 0);
  EXPECT_EQ(add(1, 2, 1), 2);
  EXPECT_EQ(add(2, 3, 1), 2);
  EXPECT_EQ(add(3, 4, 1), 4);
  EXPECT_EQ(add(0, 1, -8), 255);
  EXPECT_EQ(add(0, 0, -8), 0);
  const auto sub = [](Lum16s a, Lum16s b, int s) {
    Lum16s d = 77;
    EXPECT_EQ(lumiSub_16s_C1RSfs(&a, 2, &b, 2, &d, 2, {1, 1}, s), lumStatusOk);
    return int{d};
  };
  EXPECT_EQ(sub(-32768, 32767, 0), 32767);
  EXPECT_EQ(sub(-32768, 32767, 1), 32767);
  EXPECT_EQ(sub(3, 10, 1), 4);
  EXPECT_EQ(sub(32767, -32768, 16), -1);
  EXPECT_EQ(sub(32767, -32768, 17), 0);
}

// A destination that lies a few samples before or behind a source: each result as if the ones before it were
// stored already.
template <typename T, typename Function>
void expectInOrder(Function* function, T (*formula)(T, T, int)) {
  constexpr int room = 160;
  for (int width = 1; width <= 70; ++width)
    for (int offset = -70; offset <= 70; ++offset)
      for (int s : {0, 1, 2, -1}) {
        Random random(static_cast<uint64_t>(width * 1000 + offset));
        std::vector<T> image(room + 2 * 70), other(static_cast<size_t>(width));
        random.fill(reinterpret_cast<Byte*>(image.data()), image.size() * sizeof(T));
        random.fill(reinterpret_cast<Byte*>(other.data()), other.size() * sizeof(T));
        std::vector<T> expected = image;
        const bool overlapsSecond = random.oneIn(2);
        T* const src = image.data() + 80;
        T* const dst = src + offset;
        for (int i = 0; i < width; ++i) {
          const T mine = expected[static_cast<size_t>(80 + i)], its = other[static_cast<size_t>(i)];
          expected[static_cast<size_t>(80 + offset + i)] =
              overlapsSecond ? formula(its, mine, s) : formula(mine, its, s);
        }
        const T* a = overlapsSecond ? other.data() : src;
        const T* b = overlapsSecond ? src : other.data();
        ASSERT_EQ(function(a, 1, b, 1, dst, 1, LumiSize{width, 1}, s), lumStatusOk);
        ASSERT_EQ(image, expected) << "width " << width << ", destination " << offset << " samples on, scale "
                                   << s;
      }
}

TEST(AddSub, OverlappingRowsAreDoneInOrder) {
  expectInOrder<Lum8u>(lumiAdd_8u_C1RSfs, model::add<Lum8u>);
  expectInOrder<Lum8u>(lumiSub_8u_C1RSfs, model::subtract<Lum8u>);
  expectInOrder<Lum16u>(lumiAdd_16u_C1RSfs, model::add<Lum16u>);
  expectInOrder<Lum16s>(lumiSub_16s_C1RSfs, model::subtract<Lum16s>);
}

// Beyond the limits no source is read: they are closed.
TEST(AddSub, ResultsThatAreAllZeroReadNoSource) {
  const CoreGuard guard;
  Arena closed(1 << 16), open(1 << 16);
  closed.setAccessible(closed.begin(), closed.end(), false);
  int tested = 0;
  for (const Member& m : members()) {
    const bool ofFamily = m.name.rfind("lumiAdd", 0) == 0 || m.name.rfind("lumiSub", 0) == 0;
    if (!ofFamily || m.numbers.empty() || (m.inPlace && m.values)) continue;
    const int largest = m.types[0] == "8u"                            ? 9
                        : m.types[0] == "16u"                         ? 17
                        : m.types[0] == "16s" || m.types[0] == "16sc" ? 16
                                                                      : 32;
    for (int s : {largest + 1, 100, INT32_MAX}) {
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
  EXPECT_GT(tested, 3 * 100);
}

// Nothing to add: a copy, or nothing at all; wrong arguments are still wrong.
// A factor that shifts every bit out of a constant that is not zero makes every sum the maximum.
template <typename T, typename Function>
void expectMaximum(Function* function, int firstScale) {
  const Arena closed(1 << 12);
  closed.setAccessible(closed.begin(), closed.end(), false);
  const T* const src = reinterpret_cast<const T*>(closed.begin());
  const LumiSize roi{37, 2};
  for (int s : {firstScale, firstScale - 1, -1000, INT32_MIN})
    for (T value : {T{1}, std::numeric_limits<T>::max()}) {
      std::vector<T> dst(40 * 2, 7);
      LumStatus status = 0;
      ASSERT_FALSE(faultOf([&] {
        status = function(src, 64, value, dst.data(), 40 * static_cast<int>(sizeof(T)), roi, s);
      })) << "reads the source at "
          << s;
      ASSERT_EQ(status, lumStatusOk);
      for (size_t i = 0; i < dst.size(); ++i)
        ASSERT_EQ(dst[i], i % 40 < 37 ? std::numeric_limits<T>::max() : T{7}) << i << " at " << s;
    }
}

TEST(AddSub, SumsThatAreAllMaximumReadNoSource) {
  expectMaximum<Lum8u>(lumiAddC_8u_C1RSfs, -8);
  expectMaximum<Lum16u>(lumiAddC_16u_C1RSfs, -16);
}

TEST(AddSub, ZeroConstantInPlaceTouchesNothing) {
  Arena closed(4096);
  closed.setAccessible(closed.begin(), closed.end(), false);
  auto* const bytes = closed.begin();
  EXPECT_EQ(lumiAddC_8u_C1IRSfs(0, bytes, 64, {64, 2}, 0), lumStatusOk);
  EXPECT_EQ(lumiSubC_16s_C1IRSfs(0, reinterpret_cast<Lum16s*>(bytes), 64, {32, 2}, 0), lumStatusOk);
  EXPECT_EQ(lumiAddC_8u_C1IRSfs(0, nullptr, 64, {64, 2}, 0), lumStatusNullPointer);
  EXPECT_EQ(lumiAddC_8u_C1IRSfs(0, bytes, 64, {0, 2}, 0), lumStatusBadSize);
}

// A row of samples is checked after its width is multiplied, and the product wraps.
TEST(AddSub, WidthsThatWrapAreBadSizes) {
  Lum8u sample = 0;
  EXPECT_EQ(lumiAdd_8u_C4RSfs(&sample, 1, &sample, 1, &sample, 1, {1 << 30, 1}, 0), lumStatusBadSize);
  EXPECT_EQ(lumiAdd_8u_C3RSfs(nullptr, 1, &sample, 1, &sample, 1, {0, 1}, 0), lumStatusBadSize);
  EXPECT_EQ(lumiAdd_8u_C3RSfs(nullptr, 1, &sample, 1, &sample, 1, {1, 0}, 0), lumStatusNullPointer);
  EXPECT_EQ(lumiAdd_8u_AC4RSfs(nullptr, 1, &sample, 1, &sample, 1, {0, 1}, 0), lumStatusNullPointer);
}

}  // namespace
}  // namespace test
