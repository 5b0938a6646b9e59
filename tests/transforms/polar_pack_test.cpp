// SPDX-License-Identifier: MIT
// Magnitudes and phases of packed spectra: against the model; known ones; images that are higher than what is
// done at once of their first and last columns.
#include "lumi/polar_pack.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <limits>
#include <string>
#include <vector>

#include "model/transforms/polar_pack.hpp"
#include "support/core_guard.hpp"
#include "support/member.hpp"

namespace test {
namespace {

template <typename T>
void magnitudes(const Call& c, int channels, int s) {
  model::mapPack<T>(c.srcImage(), c.dstImage(), c.roi, channels,
                    [=](T re, T im, bool) { return model::magnitude(re, im, s); });
}
template <typename T>
void phases(const Call& c, int channels, int s) {
  model::mapPack<T>(c.srcImage(), c.dstImage(), c.roi, channels, [=](T re, T im, bool isConjugate) {
    return model::phaseOfEither(re, im, isConjugate, s);
  });
}

bool addAll() {
  for (const char* operation : {"MagnitudePack", "PhasePack"})
    addModelTests(membersOfOneType(
        operation,
        [=](Member& m, auto sample) {
          using T = decltype(sample);
          const int channels = m.channels.dst;
          const bool scales = !m.numbers.empty(), ofMagnitudes = operation[0] == 'M';
          m.contents = kAnyContents;
          m.heights = {1, 2, 3, 4, 5, 6};
          m.rounds = 8;
          m.mayStream = false;
          m.allocates = true;
          m.withoutMemory = lumStatusNullPointer;
          m.floatResults = std::is_floating_point_v<T>;
          m.separateRows = true;
          m.model = [=](const Call& c) {
            (ofMagnitudes ? magnitudes<T> : phases<T>)(c, channels, scales ? c.numbers[0] : 0);
          };
        },
        Types<Lum16s, Lum32s, Lum32f>()));
  return true;
}
const bool added = addAll();

TEST(PolarPack, HighImages) {
  const CoreGuard guard;
  for (const char* name : {"lumiMagnitudePack_32f_C1R", "lumiPhasePack_16s_C3RSfs"}) {
    const Member& m = memberNamed(name);
    for (LumiSize roi : {LumiSize{1, 63}, LumiSize{1, 130}, LumiSize{2, 63}, LumiSize{2, 64}, LumiSize{2, 65},
                         LumiSize{6, 131}, LumiSize{7, 300}}) {
      const auto bytes = static_cast<size_t>(roi.width * roi.height * m.src.pixelBytes);
      std::vector<Byte> src(bytes), dst(bytes), expected(bytes);
      Random random(7);
      fillSamples(m.types[0], src.data(), static_cast<int>(bytes), Contents::Small, random);
      Call call;
      call.roi = roi;
      call.srcStep = call.dstStep = roi.width * m.src.pixelBytes;
      call.src[0] = src.data();
      call.dst[0] = dst.data();
      call.numbers[0] = -10;
      ASSERT_EQ(m.run(call), lumStatusOk);
      call.dst[0] = expected.data();
      m.model(call);
      EXPECT_EQ(std::memcmp(dst.data(), expected.data(), bytes), 0)
          << name << " " << roi.width << " x " << roi.height;
    }
  }
}

// A row of five: F(0), F(1), F(2) and the conjugates of F(2) and F(1).
TEST(PolarPack, KnownResults) {
  const Lum16s row[] = {-7, 3, 4, -5, -32768};
  const auto resultsOf = [&](auto* function, int s) {
    std::vector<Lum16s> dst(5);
    EXPECT_EQ(function(row, sizeof row, dst.data(), sizeof row, {5, 1}, s), lumStatusOk);
    return dst;
  };
  using Words = std::vector<Lum16s>;
  EXPECT_EQ(resultsOf(lumiMagnitudePack_16s_C1RSfs, 0), (Words{7, 5, 32767, 32767, 5}));
  EXPECT_EQ(resultsOf(lumiMagnitudePack_16s_C1RSfs, 1), (Words{4, 2, 16384, 16384, 2})) << "ties go to even";
  // The angles of -7, 3 + 4 i and -5 - 32768 i, times 2^12.
  EXPECT_EQ(resultsOf(lumiPhasePack_16s_C1RSfs, -12), (Words{12868, 3798, -6435, 6435, -3798}));
  EXPECT_EQ(resultsOf(lumiPhasePack_16s_C1RSfs, -20), (Words{32767, 32767, -32768, 32767, -32768}));

  // Numbers on the negative real axis: conjugates of integers have the same angle, zeros of floats have a
  // sign.
  const Lum16s onAxis[] = {1, -7, 0};
  Lum16s angles[3];
  EXPECT_EQ(lumiPhasePack_16s_C1RSfs(onAxis, 6, angles, 6, {3, 1}, -12), lumStatusOk);
  EXPECT_EQ(angles[1], 12868);
  EXPECT_EQ(angles[2], 12868);
  const Lum32f floats[] = {1, -7, 0};
  Lum32f radians[3];
  EXPECT_EQ(lumiPhasePack_32f_C1R(floats, 12, radians, 12, {3, 1}), lumStatusOk);
  EXPECT_FLOAT_EQ(radians[1], 3.14159265F);
  EXPECT_EQ(radians[2], -radians[1]);
}

TEST(PolarPack, RefusesWhatNoMemoryHolds) {
  const CoreGuard guard;
  testcore::failAllocation(1);
  const Lum32f src[4] = {};
  Lum32f dst[4] = {7, 7, 7, 7};
  EXPECT_EQ(lumiMagnitudePack_32f_C1R(src, 8, dst, 8, {2, 2}), lumStatusNullPointer);
  EXPECT_EQ(dst[0], 7);
}

}  // namespace
}  // namespace test
