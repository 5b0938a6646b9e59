// SPDX-License-Identifier: MIT
// Large images, about the sizes from which on stores may bypass the cache, and what may be asked below them.
#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <iterator>
#include <string>
#include <vector>

#include "support/core_guard.hpp"
#include "support/member.hpp"
#include "support/settings.hpp"
#include "support/stage.hpp"

namespace test {
namespace {

constexpr int64_t kFloor = 1 << 20;  // no call that moves less asks for the cache's size
constexpr size_t kLargestImage = 8 << 20;

// Bytes read and written for each pixel; a fill only writes.
int bytesMoved(const Member& m) {
  const int bytes = m.src.planes * m.src.pixelBytes + m.src2.pixelBytes + m.dst.planes * m.dst.pixelBytes;
  return std::max(1, bytes);
}

Stage& largeStage() {
  static Stage stage(kLargestImage);
  return stage;
}

struct CacheReport {
  const char* about;
  void (*apply)();
};

const CacheReport kReports[] = {
    {"0 bytes", [] { testcore::setCacheSize(0); }},
    {"-1 byte", [] { testcore::setCacheSize(-1); }},
    {"INT_MIN bytes", [] { testcore::setCacheSize(INT_MIN); }},
    {"INT_MAX bytes", [] { testcore::setCacheSize(INT_MAX); }},
    {"1 MiB", [] { testcore::setCacheSize(1 << 20); }},
    {"2 MiB", [] { testcore::setCacheSize(2 << 20); }},
    {"failure that stores nothing", [] { testcore::failCacheQuery(-1); }},
    {"failure that stores 1", [] { testcore::failCacheQuery(-9999, 1); }},
    {"warning that stores 1", [] { testcore::failCacheQuery(1, 1); }},
};

// How the rows of a large image lie.
struct Rows {
  bool tight;    // they touch one another
  bool aligned;  // they start on 64-byte boundaries
};
constexpr Rows kRows[] = {{true, true}, {true, false}, {false, true}, {false, false}};

// A ROI of that many moved bytes or a little less: many rows, or few long ones.
Case largeCase(const Member& m, int64_t moved, Rows rows, int index) {
  Random random(mixSeed(settings().seed, m.name, index));
  Case c;
  c.index = index;
  c.contents = random.next();
  constexpr int heights[] = {1, 2, 8, 61, 512};
  c.roi.height = random.pick(heights);
  c.roi.width = static_cast<int>(moved / bytesMoved(m) / c.roi.height);
  if (rows.aligned && c.roi.width >= 64) c.roi.width = c.roi.width / 64 * 64;
  for (size_t i = 0; i < m.numbers.size(); ++i) c.numbers[i] = random.pick(m.numbers[i]);
  if (!m.bounds.empty()) c.bounds = random.pick(m.bounds);
  c.inputs = random.pick(m.contents);
  const auto step = [&](const Operand& operand) {
    const int row = operand.tightStep(c.roi.width, c.numbers[0]);
    if (rows.tight) return row;
    return rows.aligned ? row + 64 : row + random.between(1, 99);
  };
  c.srcStep = step(m.src);
  c.dstStep = step(m.dst);
  c.src2Step = step(m.src2);
  c.maskStep = step(Operand::pixels(1, 1));
  for (int p = 0; p < kMaxPlanes; ++p) {
    c.src[p] = {Placement::Phase, rows.aligned ? 0 : random.below(64), random.below(64)};
    c.dst[p] = {Placement::Phase, rows.aligned ? 0 : random.below(64), random.below(64)};
    if (!rows.aligned && random.oneIn(4)) c.src[p].kind = Placement::End;
    if (!rows.aligned && random.oneIn(4)) c.dst[p].kind = Placement::End;
  }
  c.src2 = {Placement::Phase, rows.aligned ? 0 : random.below(64), random.below(64)};
  c.maskKind = random.pick(kMaskKinds);
  return c;
}

void expectEqualToModel(const Member& m, const Case& c, const char* report) {
  const auto failure = largeStage().run(m, c);
  ASSERT_FALSE(failure) << *failure << "\n"
                        << describe(m, c) << "\ncache query: " << report
                        << "\nLUMI_TEST_SEED=" << settings().seed;
}

// One test for each kind of member keeps shards even.
class Streaming : public testing::TestWithParam<std::string> {
 protected:
  bool chosen(const Member& m) const { return m.mayStream && m.name.rfind(GetParam(), 0) == 0; }
  const CoreGuard guard_;
};

TEST_P(Streaming, AsksNothingUpToTheFloor) {
  for (const Member& m : members()) {
    if (!chosen(m)) continue;
    for (const Rows& rows : kRows) {
      testcore::setCacheSize(1);
      const Case c = largeCase(m, kFloor, rows, 0);
      ASSERT_LE(int64_t{c.roi.width} * c.roi.height * bytesMoved(m), kFloor);
      ASSERT_NO_FATAL_FAILURE(expectEqualToModel(m, c, "none expected"));
      EXPECT_EQ(testcore::counts().cacheQueries, 0) << describe(m, c);
    }
  }
}

TEST_P(Streaming, BypassedCacheStoresTheSame) {
  testcore::setCacheSize(1);
  for (const Member& m : members()) {
    if (!chosen(m)) continue;
    int index = 0;
    // The second is above every size from which on stores may bypass the cache.
    for (int64_t moved : {2 * kFloor + 65536, 6 * kFloor + 65536})
      for (const Rows& rows : kRows)
        ASSERT_NO_FATAL_FAILURE(expectEqualToModel(m, largeCase(m, moved, rows, ++index), "1 byte"));
  }
}

TEST_P(Streaming, AnyReportOfTheCacheIsTaken) {
  constexpr int64_t sizes[] = {kFloor + 64, 2 * kFloor - 1, 2 * kFloor, 2 * kFloor + 4096, 4 * kFloor};
  for (const Member& m : members()) {
    if (!chosen(m)) continue;
    Random random(mixSeed(settings().seed, m.name, -1));
    for (int i = 0; i < settings().scaled(4); ++i) {
      const CacheReport report = random.pick(kReports);
      report.apply();
      const Case c = largeCase(m, random.pick(sizes), random.pick(kRows), 100 + i);
      ASSERT_NO_FATAL_FAILURE(expectEqualToModel(m, c, report.about));
    }
    EXPECT_EQ(testcore::counts().allocations, 0) << m.name;
  }
}

// Members by the beginnings of their names, so that they run in parallel.
const std::vector<std::string> kGroups = {
    "lumiSet_8u",      "lumiSet_16s",     "lumiSet_16u",     "lumiSet_32s",     "lumiSet_32f",
    "lumiCopy_8u",     "lumiCopy_16s",    "lumiCopy_16u",    "lumiCopy_32s",    "lumiCopy_32f",
    "lumiCopyManaged", "lumiDup",         "lumiAddC_",       "lumiSubC_",       "lumiConvert_8u",
    "lumiConvert_8s",  "lumiConvert_16s", "lumiConvert_16u", "lumiConvert_32s", "lumiConvert_32u",
    "lumiConvert_32f", "lumiScale_8u",    "lumiScale_16",    "lumiScale_32",    "lumiBinToGray",
    "lumiGrayToBin",   "lumiConvert_1u"};

TEST(StreamingGroups, HoldEveryMember) {
  for (const Member& m : members()) {
    const auto begins = [&](const std::string& group) { return m.name.rfind(group, 0) == 0; };
    EXPECT_TRUE(!m.mayStream || std::any_of(kGroups.begin(), kGroups.end(), begins)) << m.name;
  }
}

INSTANTIATE_TEST_SUITE_P(Each, Streaming, testing::ValuesIn(kGroups),
                         [](const auto& each) { return each.param; });

}  // namespace
}  // namespace test
