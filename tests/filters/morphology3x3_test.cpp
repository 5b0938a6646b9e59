// SPDX-License-Identifier: MIT
#include "lumi/morphology3x3.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "model/filters/extremes.hpp"
#include "support/core_guard.hpp"
#include "support/member.hpp"
#include "support/named_faults.hpp"

namespace test {
namespace {

using MorphologyTypes = Types<Lum8u, Lum16u, Lum32f, Lum64f>;

template <bool largest>
bool addMembers(const char* operation) {
  return addModelTests(membersOfOneType(
      operation,
      [](Member& m, auto sample) {
        using T = decltype(sample);
        m.surroundings = [](const Call&) { return Member::Surroundings{1, 1, 1, 1}; };
        m.surroundingsApart = true;
        m.contents = kAnyContents;
        m.aliasing = m.inPlace ? Aliasing::None : Aliasing::SameImage;
        m.separateRows = true;
        m.allocates = true;
        m.mayStream = false;
        m.model = [channels = m.channels](const Call& c) -> LumStatus {
          if (c.srcStep < (c.roi.width + 2) * channels.src * int{sizeof(T)}) return lumStatusStepTooSmall;
          model::extremes<T>(c.srcImage(), c.dstImage(), c.roi, channels, {{3, 3}, {1, 1}}, {largest},
                             [](int, int) { return true; });
          return lumStatusOk;
        };
      },
      MorphologyTypes()));
}

const bool dilation = addMembers<true>("Dilate3x3"), erosion = addMembers<false>("Erode3x3");

// The source's step holds two pixels more than the destination's, and widths are compared without overflow.
TEST(Morphology3x3, StepsHoldTheirRows) {
  struct Row {
    const char* name;
    int pixelBytes;
  };
  for (const Row row :
       {Row{"lumiDilate3x3_8u_C1R", 1}, Row{"lumiErode3x3_8u_C3R", 3}, Row{"lumiDilate3x3_8u_AC4R", 4},
        Row{"lumiErode3x3_16u_C1R", 2}, Row{"lumiDilate3x3_32f_C4R", 16}, Row{"lumiErode3x3_64f_C1R", 8}}) {
    std::vector<Lum64f> src(256, 1.0), dst(256);
    const int width = 5, source = (width + 2) * row.pixelBytes, destination = width * row.pixelBytes;
    const auto status = [&](int srcStep, int dstStep, int w) {
      NamedCall call(row.name);
      call.pointer("src", reinterpret_cast<Byte*>(src.data()) + source + row.pixelBytes);
      call.number("srcStep", srcStep);
      call.pointer("dst", dst.data());
      call.number("dstStep", dstStep);
      call.size("roi", {w, 1});
      return call.run();
    };
    EXPECT_EQ(status(source, destination, width), lumStatusOk) << row.name;
    EXPECT_EQ(status(source - 1, destination, width), lumStatusStepTooSmall) << row.name;
    EXPECT_EQ(status(source, destination - 1, width), lumStatusStepTooSmall) << row.name;
    EXPECT_EQ(status(INT32_MAX, INT32_MAX, INT32_MAX), lumStatusStepTooSmall) << row.name;
    EXPECT_EQ(status(source, destination, INT32_MAX), lumStatusStepTooSmall) << row.name;
  }
}

// A step in place holds the pixels beside the row too.
TEST(Morphology3x3, StepsInPlaceHoldWhatIsBesideTheirRows) {
  Lum8u image[3 * 7] = {};
  EXPECT_EQ(lumiDilate3x3_8u_C1IR(image + 8, 7, {5, 1}), lumStatusOk);
  EXPECT_EQ(lumiDilate3x3_8u_C1IR(image + 7, 6, {5, 1}), lumStatusStepTooSmall);
  EXPECT_EQ(lumiErode3x3_8u_C1IR(image + 8, INT32_MAX, {INT32_MAX, 1}), lumStatusStepTooSmall);
}

TEST(Morphology3x3, KeepsInfinitiesAndPassesOverWhatIsNoNumber) {
  const double infinity = std::numeric_limits<double>::infinity(),
               nan = std::numeric_limits<double>::quiet_NaN();
  const auto both = [](std::vector<Lum64f> covered) {
    std::vector<Lum64f> results(2);
    EXPECT_EQ(lumiDilate3x3_64f_C1R(&covered[4], 24, results.data(), 8, {1, 1}), lumStatusOk);
    EXPECT_EQ(lumiErode3x3_64f_C1R(&covered[4], 24, results.data() + 1, 8, {1, 1}), lumStatusOk);
    return results;
  };
  using Both = std::vector<Lum64f>;
  EXPECT_EQ(both({1, 2, 3, 4, infinity, 5, 6, -infinity, 7}), (Both{infinity, -infinity}));
  EXPECT_EQ(both({nan, 2, 3, nan, 1, nan, 6, 7, nan}), (Both{7, 1}));
  EXPECT_EQ(both(Both(9, nan)), (Both{-infinity, infinity}));
  const Both zeros = both({0.0, -0.0, -0.0, -0.0, -0.0, -0.0, -0.0, -0.0, -0.0});
  EXPECT_FALSE(std::signbit(zeros[0]));
  EXPECT_FALSE(std::signbit(zeros[1]));
}

}  // namespace
}  // namespace test
