// SPDX-License-Identifier: MIT
// Border extension, against the model: images beside, inside and in place; order of checks; border types.
#include "lumi/border.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <numeric>
#include <sstream>

#include "frame/border.hpp"
#include "model/data/border.hpp"
#include "support/arena.hpp"
#include "support/case.hpp"
#include "support/core_guard.hpp"
#include "support/fault.hpp"
#include "support/member.hpp"
#include "support/named_call.hpp"
#include "support/random.hpp"
#include "support/settings.hpp"

namespace test {
namespace {

constexpr int kMargin = 96;           // bytes around an image that are filled anew and watched
constexpr size_t kLargest = 1 << 20;  // bytes of the largest image with its frame
const std::vector<std::string> kOperations = {"CopyConstBorder", "CopyReplicateBorder", "CopyWrapBorder"};

std::vector<const ExportRow*> borderRows() {
  std::vector<const ExportRow*> result;
  for (const ExportRow& row : exportRows())
    if (std::count(kOperations.begin(), kOperations.end(), row.operation)) result.push_back(&row);
  return result;
}

bool addAll() {
  std::vector<std::string> names;
  for (const ExportRow* row : borderRows()) names.push_back(row->name);
  return addCovered(names);
}
const bool added = addAll();

// Where the source is.
enum class Source {
  Apart,
  AtItsPlace,  // inside the destination: in place, or to the value border a source that is there already
  Redirected   // the pointers are equal, which means in place
};

struct BorderCase {
  LumiSize image, whole;
  int top, left, srcStep, dstStep;
  Source source;
  Placement src, dst;
};

std::ostream& operator<<(std::ostream& out, const BorderCase& c) {
  out << c.image.width << " x " << c.image.height << " in " << c.whole.width << " x " << c.whole.height
      << " at " << c.left << ", " << c.top << "; steps " << c.srcStep << ", " << c.dstStep << "; source "
      << static_cast<int>(c.source);
  for (const Placement& p : {c.src, c.dst}) out << "; placed " << p.kind << " " << p.phase;
  return out;
}

// A member run in guarded memory.
class Guarded {
 public:
  explicit Guarded(const ExportRow& row) : row_(row) {
    member_ = memberOf(row);
    inPlace_ = member_.inPlace;
    isConst_ = row.operation == kOperations[0];
    pixelBytes_ = member_.dst.pixelBytes;
  }

  BorderCase anyCase(Random& random, int width) const {
    constexpr int sides[] = {0, 0, 1, 1, 2, 3, 4, 5, 6, 7, 8, 9, 12, 15, 16, 17, 21, 31, 32, 33, 47, 64, 100};
    constexpr int heights[] = {1, 1, 2, 3, 5}, ends[] = {0, 0, 1, 2, 3, 7, 13};
    BorderCase c{};
    c.image = {width, random.pick(heights)};
    const auto side = [&] { return width < 40 && random.oneIn(6) ? width * 5 / 2 : random.pick(sides); };
    c.left = side(), c.top = random.pick(ends);
    c.whole = {c.left + width + side(), c.top + c.image.height + random.pick(ends)};
    c.source = inPlace_ || (isConst_ && random.oneIn(4)) ? Source::AtItsPlace
               : !isConst_ && random.oneIn(4)            ? Source::Redirected
                                                         : Source::Apart;
    const auto step = [&](int rowBytes, int rows) {
      constexpr int any[] = {1, 3, INT_MAX};
      if (rows == 1 && random.oneIn(2)) return random.pick(any);
      return random.oneIn(3) ? rowBytes : rowBytes + random.between(1, 37);
    };
    c.dstStep = step(c.whole.width * pixelBytes_, c.whole.height);
    c.srcStep = c.source == Source::AtItsPlace ? c.dstStep : step(width * pixelBytes_, c.image.height);
    for (Placement* p : {&c.src, &c.dst})
      *p = {static_cast<Placement::Kind>(random.below(3)), random.below(64), 0};
    return c;
  }

  void run(const BorderCase& c, Random& random) {
    const Placed whole = place(dst_, c.dst, c.dstStep, c.whole, random);
    Placed image = place(src_, c.src, c.srcStep, c.image, random);
    Byte* const inWhole = whole.first + static_cast<ptrdiff_t>(c.top) * (c.whole.height > 1 ? c.dstStep : 0) +
                          c.left * pixelBytes_;
    if (c.source != Source::Apart) image = {inWhole, whole.low, whole.high};
    const int valueBytes = std::max(1, member_.values) * member_.sampleBytes;
    Byte* const values = values_.end() - valueBytes;
    random.fill(values_.begin(), static_cast<size_t>(values_.end() - values_.begin()));
    values_.copyToTwin(values_.begin(), values_.end());

    model::Bordered b{{twin(image.first), c.source == Source::Apart ? c.srcStep : c.dstStep},
                      {dst_.twin(whole.first), c.dstStep},
                      c.image,
                      c.whole,
                      c.top,
                      c.left};
    withType(row_.types[0], [&](auto sample) { runModel<decltype(sample)>(values_.twin(values), b); });

    Byte* const dst = inPlace_ || c.source == Source::Redirected ? inWhole : whole.first;
    const NamedCall call = callOf(c, image.first, dst, values);
    LumStatus status = 1;
    const auto fault = faultOf([&] { status = call.run(); });
    ASSERT_FALSE(fault) << row_.name << " touches what it must not: " << c;
    ASSERT_EQ(status, lumStatusOk) << row_.name << ": " << c;
    for (const Arena* arena : {&src_, &dst_, &values_}) {
      const Placed& p = arena == &dst_ ? whole : image;
      const Byte* low = arena->holds(p.low) ? p.low : arena->begin();
      const Byte* high = arena->holds(p.low) ? p.high : arena->end();
      const Byte* at = arena->firstDifference(low, high);
      ASSERT_EQ(at, nullptr) << row_.name << ": byte " << at - p.first << " of "
                             << (arena == &dst_ ? "the destination" : "what is only read") << " is " << +*at
                             << ", not " << +*arena->twin(at) << ": " << c;
    }
  }

  // Every byte of the arenas, far from the images too.
  void expectNothingElseChanged() const {
    for (const Arena* arena : {&src_, &dst_, &values_})
      EXPECT_EQ(arena->firstDifference(arena->begin(), arena->end()), nullptr) << row_.name;
  }

 private:
  struct Placed {
    Byte *first, *low, *high;
  };

  Placed place(const Arena& arena, const Placement& where, int step, LumiSize roi, Random& random) const {
    const ptrdiff_t bytes = (roi.height > 1 ? static_cast<ptrdiff_t>(step) * (roi.height - 1) : 0) +
                            static_cast<ptrdiff_t>(roi.width) * pixelBytes_;
    Byte* first = where.kind == Placement::End     ? arena.end() - bytes
                  : where.kind == Placement::Start ? arena.begin()
                                                   : arena.begin() + 2 * 64 + where.phase;
    Byte* const low = std::max(first - kMargin, arena.begin());
    Byte* const high = std::min(first + bytes + kMargin, arena.end());
    EXPECT_TRUE(first >= arena.begin() && first + bytes <= arena.end());
    random.fill(low, static_cast<size_t>(high - low));
    arena.copyToTwin(low, high);
    return {first, low, high};
  }

  Byte* twin(const Byte* at) const { return dst_.holds(at) ? dst_.twin(at) : src_.twin(at); }

  template <typename T>
  void runModel(const Byte* values, const model::Bordered& b) const {
    if (isConst_) return model::constBorder<T>(values, b, member_.channels);
    const bool wraps = row_.operation == kOperations[2];
    model::extendBorder<T>(b, member_.channels, wraps ? model::periodic : model::nearestInside);
  }

  NamedCall callOf(const BorderCase& c, Byte* src, Byte* dst, Byte* values) const {
    NamedCall call(row_);
    if (inPlace_)
      call.image("srcDst", dst, c.dstStep);
    else
      call.image("src", src, c.srcStep).image("dst", dst, c.dstStep);
    if (isConst_) call.values("value", values);
    return call.size("srcRoi", c.image).size("dstRoi", c.whole).number("top", c.top).number("left", c.left);
  }

  const ExportRow& row_;
  Member member_;
  bool inPlace_, isConst_;
  int pixelBytes_;
  Arena src_{kLargest}, dst_{kLargest}, values_{1};
};

class Border : public testing::TestWithParam<const ExportRow*> {};

TEST_P(Border, EqualsTheModel) {
  const CoreGuard guard;
  Guarded member(*GetParam());
  std::vector<int> widths(70);
  std::iota(widths.begin(), widths.end(), 1);
  widths.insert(widths.end(), {95, 96, 97, 127, 128, 129, 130, 255, 256, 257, 258, 511, 513, 1000});
  for (int round = 0; round < settings().scaled(6); ++round)
    for (int width : widths) {
      Random random(mixSeed(settings().seed, GetParam()->name, round * 10000 + width));
      const BorderCase c = member.anyCase(random, width);
      ASSERT_NO_FATAL_FAILURE(member.run(c, random)) << "seed " << settings().seed << ", round " << round;
    }
  member.expectNothingElseChanged();
  EXPECT_EQ(testcore::counts().cacheQueries, 0) << "short rows do not depend on the cache";
  EXPECT_EQ(testcore::counts().allocations, 0);
}

INSTANTIATE_TEST_SUITE_P(Each, Border, testing::ValuesIn(borderRows()),
                         [](const auto& each) { return std::string(each.param->name); });

TEST(BorderRows, AreAllOfTheFamily) { EXPECT_EQ(borderRows().size(), 20u + 40u + 4u); }

using Row = std::vector<Lum32s>;

TEST(BorderCalls, KnownRows) {
  const Row src = {1, 2, 3, 4};
  const auto run = [&](auto function, int width, int left, auto... value) {
    Row dst(static_cast<size_t>(width), -1);
    EXPECT_EQ(function(src.data(), 1, {4, 1}, dst.data(), 1, {width, 1}, 0, left, value...), lumStatusOk);
    return dst;
  };
  EXPECT_EQ(run(lumiCopyConstBorder_32s_C1R, 8, 1, 9), (Row{9, 1, 2, 3, 4, 9, 9, 9}));
  EXPECT_EQ(run(lumiCopyReplicateBorder_32s_C1R, 8, 3), (Row{1, 1, 1, 1, 2, 3, 4, 4}));
  EXPECT_EQ(run(lumiCopyWrapBorder_32s_C1R, 18, 10),
            (Row{3, 4, 1, 2, 3, 4, 1, 2, 3, 4, 1, 2, 3, 4, 1, 2, 3, 4}));
  EXPECT_EQ(run(lumiCopyWrapBorder_32s_C1R, 14, 1), (Row{4, 1, 2, 3, 4, 1, 2, 3, 4, 1, 2, 3, 4, 1}));
  EXPECT_EQ(run(lumiCopyReplicateBorder_32s_C1R, 4, 0), src);
}

TEST(BorderCalls, RowsAboveAPeriodicImageAreItsLastOnes) {
  const Row src = {1, 2};
  Row dst(6, -1);
  ASSERT_EQ(lumiCopyWrapBorder_32s_C1R(src.data(), 4, {1, 2}, dst.data(), 4, {1, 5}, 3, 0), lumStatusOk);
  EXPECT_EQ(dst, (Row{2, 1, 2, 1, 2, -1}));
}

// The edges' replication goes in place before anything is checked, the periodic one after everything is.
TEST(BorderCalls, EqualPointersAndChecks) {
  Row image = {0, 0, 5, 6, 0, 0};
  Lum32s* const at = image.data() + 2;
  Lum32s* const none = nullptr;
  EXPECT_EQ(lumiCopyReplicateBorder_32s_C1R(none, 0, {0, 0}, none, 0, {0, 0}, 0, 0), lumStatusNullPointer);
  EXPECT_EQ(lumiCopyReplicateBorder_32s_C1R(at, 4, {2, 1}, at, 0, {6, 1}, 0, 2), lumStatusBadStep);
  EXPECT_EQ(lumiCopyReplicateBorder_32s_C1R(at, 0, {2, 1}, at, 4, {6, 1}, 0, 2), lumStatusOk);
  EXPECT_EQ(image, (Row{5, 5, 5, 6, 6, 6}));
  EXPECT_EQ(lumiCopyWrapBorder_32s_C1R(none, 0, {0, 0}, none, 0, {0, 0}, 0, 0), lumStatusNullPointer);
  EXPECT_EQ(lumiCopyWrapBorder_32s_C1R(at, 0, {2, 1}, at, 4, {6, 1}, 0, 2), lumStatusBadStep);
  EXPECT_EQ(lumiCopyWrapBorder_32s_C1R(at, 9, {2, 1}, at, 4, {6, 1}, 0, 2), lumStatusOk);
  EXPECT_EQ(image, (Row{5, 6, 5, 6, 5, 6}));
}

// Sums of sizes do not wrap.
TEST(BorderCalls, SizesAreAddedExactly) {
  Lum8u a = 1, b = 2;
  for (int large : {INT_MAX, INT_MAX - 1})
    for (int offset : {INT_MAX, 2, 3}) {
      EXPECT_EQ(lumiCopyReplicateBorder_8u_C1R(&a, 1, {large, 1}, &b, 1, {5, 1}, 0, offset),
                lumStatusBadSize);
      EXPECT_EQ(lumiCopyReplicateBorder_8u_C1R(&a, 1, {1, large}, &b, 1, {1, 5}, offset, 0),
                lumStatusBadSize);
      EXPECT_EQ(lumiCopyConstBorder_8u_C1R(&a, 1, {large, 1}, &b, 1, {INT_MAX, 1}, 0, offset, 0),
                lumStatusBadSize);
    }
  EXPECT_EQ(b, 2);
}

// Fills of more than 2 MiB may bypass the cache; the core library is asked for no shorter run.
TEST(BorderCalls, LongRunsOfAValueAskForTheCache) {
  const CoreGuard guard;
  constexpr int floor = 0x200000;
  const Lum8u value[3] = {1, 2, 3}, src[3] = {7, 8, 9};
  for (int cache : {1, INT_MAX})
    for (int pixels : {floor / 3, floor / 3 + 1}) {
      testcore::reset();
      testcore::setCacheSize(cache);
      const auto width = static_cast<size_t>(pixels) * 3;
      std::vector<Lum8u> dst(2 * width + 1, 77);
      const auto step = static_cast<int>(width);
      ASSERT_EQ(lumiCopyConstBorder_8u_C3R(src, 1, {1, 1}, dst.data(), step, {pixels, 2}, 1, 0, value),
                lumStatusOk);
      for (size_t i = 0; i < 2 * width; ++i)
        ASSERT_EQ(dst[i], i >= width && i < width + 3 ? src[i - width] : value[i % 3]) << i;
      EXPECT_EQ(dst.back(), 77);
      EXPECT_EQ(testcore::counts().cacheQueries > 0, width > floor) << pixels;
    }
}

TEST(BorderMode, TypeAndSides) {
  const lumi::BorderMode plain(lumiBorderReplicate);
  EXPECT_EQ(plain.type(), lumiBorderReplicate);
  EXPECT_FALSE(plain.isAllInMemory());
  const lumi::BorderMode mixed(lumiBorderMirror | lumiBorderInMemoryTop | lumiBorderInMemoryRight);
  EXPECT_EQ(mixed.type(), lumiBorderMirror);
  EXPECT_EQ(mixed.value(), 0x93);
  EXPECT_TRUE(mixed.isInMemory(lumiBorderInMemoryTop));
  EXPECT_TRUE(mixed.isInMemory(lumiBorderInMemoryRight));
  EXPECT_FALSE(mixed.isInMemory(lumiBorderInMemoryLeft));
  EXPECT_FALSE(mixed.isInMemory(lumiBorderInMemoryBottom));
  EXPECT_FALSE(mixed.isAllInMemory());
  EXPECT_TRUE(mixed.isOneOf(lumiBorderConst, lumiBorderMirror));
  EXPECT_FALSE(mixed.isOneOf(lumiBorderConst, lumiBorderMirrorEdge));
  for (const LumiBorderType all :
       {LumiBorderType{lumiBorderInMemory}, LumiBorderType{0xF0}, LumiBorderType{0xF1}}) {
    EXPECT_TRUE(lumi::BorderMode(all).isAllInMemory()) << all;
    EXPECT_TRUE(lumi::BorderMode(all).isInMemory(lumiBorderInMemoryLeft)) << all;
  }
  EXPECT_EQ(lumi::BorderMode(8 | lumiBorderReplicate).type(), 9);
  const lumi::Margins sides = lumi::Margins::around({3, 2}, {10, 9}, 4, 1);
  EXPECT_EQ(sides.left, 1);
  EXPECT_EQ(sides.top, 4);
  EXPECT_EQ(sides.right, 6);
  EXPECT_EQ(sides.bottom, 3);
}

}  // namespace
}  // namespace test
