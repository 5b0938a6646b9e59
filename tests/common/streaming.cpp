// SPDX-License-Identifier: MIT
// Large images, about the sizes from which on stores may bypass the cache, and what may be asked below them.
#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <iterator>
#include <string>
#include <vector>

#include "common/member_checks.hpp"
#include "support/core_guard.hpp"
#include "support/settings.hpp"
#include "support/stage.hpp"

namespace test {
namespace {

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
// Two that follow one another differ in both.
constexpr Rows kRows[] = {{true, true}, {false, false}, {true, false}, {false, true}};

// The case of this index is one row, since there are limits for rows too.
constexpr int kOneRow = 1;

// A ROI of that many moved bytes or a little less: many rows, or few long ones.
Case largeCase(const Member& m, int64_t moved, Rows rows, int index) {
  Random random(mixSeed(settings().seed, m.name, index));
  Case c;
  c.index = index;
  c.contents = random.next();
  constexpr int heights[] = {1, 2, 8, 61, 512};
  c.roi.height = index == kOneRow ? 1 : random.pick(heights);
  c.roi.width = static_cast<int>(moved / bytesMoved(m) / c.roi.height);
  if (rows.aligned && c.roi.width >= 64) c.roi.width = c.roi.width / 64 * 64;
  for (size_t i = 0; i < m.numbers.size(); ++i)
    if (!m.numbers[i].empty()) c.numbers[i] = random.pick(m.numbers[i]);
  chooseNamed(m, random, c);
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

}  // namespace

bool isTriedWithLargeImages(const Member& m) { return m.mayStream; }

void expectModelOfLargeImages(const Member& m) {
  const CoreGuard guard;
  Random random(mixSeed(settings().seed, m.name, -1));
  const auto rows = [&, first = random.below(4)](int i) { return kRows[(first + i) % 4]; };

  testcore::setCacheSize(1);
  const Case small = largeCase(m, m.asksFrom, rows(0), 0);
  ASSERT_LE(int64_t{small.roi.width} * small.roi.height * bytesMoved(m), m.asksFrom);
  ASSERT_NO_FATAL_FAILURE(expectEqualToModel(m, small, "none expected"));
  EXPECT_EQ(testcore::counts().cacheQueries, 0) << describe(m, small);

  // Above every size from which on stores may bypass the cache, which is too small: aligned rows and others.
  for (int i = 0; i < settings().scaled(2); ++i)
    ASSERT_NO_FATAL_FAILURE(
        expectEqualToModel(m, largeCase(m, m.streamsFrom + 65536, rows(i), kOneRow + i), "1 byte"));

  const int64_t sizes[] = {m.asksFrom + 64, m.asksFrom + 4096, 2 * m.asksFrom - 1, 2 * m.asksFrom};
  for (int i = 0; i < settings().scaled(2); ++i) {
    const CacheReport report = random.pick(kReports);
    report.apply();
    ASSERT_NO_FATAL_FAILURE(
        expectEqualToModel(m, largeCase(m, random.pick(sizes), rows(2 + i), 100 + i), report.about));
  }
  EXPECT_EQ(testcore::counts().allocations, 0) << m.name;
}

}  // namespace test
