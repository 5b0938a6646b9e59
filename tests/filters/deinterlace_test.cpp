// SPDX-License-Identifier: MIT
// Deinterlacing against the model, also in place; statuses.
#include "lumi/deinterlace.h"

#include <gtest/gtest.h>

#include <vector>

#include "model/filters/deinterlace.hpp"
#include "support/member.hpp"
#include "support/named_faults.hpp"

namespace test {
namespace {

const bool added = addModelTests(membersOfOneType("DeinterlaceFilterCAVT", [](Member& m, auto) {
  m.contents = kAnyContents;
  m.aliasing = Aliasing::SameImage;
  m.separateRows = true;
  m.mayStream = false;
  m.heights = {8, 10, 12, 22};
  m.rounds = 3;
  m.choose("threshold", {{{0}}, {{1}}, {{40}}, {{600}}, {{2040}}, {{2041}}, {{32768}}, {{65535}}});
  m.model = [](const Call& c) -> LumStatus {
    if (c.roi.height < 8 || c.roi.height % 2 != 0) return lumStatusBadSize;  // which the driver tries too
    model::deinterlace(c.srcImage(), c.dstImage(), c.roi, static_cast<int>(c.number("threshold")));
    return lumStatusOk;
  };
}));

// A dark row among bright ones: without a limit it stays darker than they are.
TEST(Deinterlace, ThresholdsLimit) {
  std::vector<Lum8u> image(8, 100), result(8);
  image[3] = 90;
  const auto row = [&](Lum16u threshold, int y) {
    EXPECT_EQ(lumiDeinterlaceFilterCAVT_8u_C1R(image.data(), 1, result.data(), 1, threshold, {1, 8}),
              lumStatusOk);
    return int{result[static_cast<size_t>(y)]};
  };
  EXPECT_EQ(row(0, 3), 95);
  EXPECT_EQ(row(80, 3), 95);  // |D| is 80
  EXPECT_EQ(row(81, 3), 100);
  EXPECT_EQ(row(0, 2), 100);
}

TEST(Deinterlace, Faults) {
  unsigned char image[160] = {}, result[160] = {};
  image[40] = 200;
  NamedCall right("lumiDeinterlaceFilterCAVT_8u_C1R");
  right.image("src", image, 16).image("dst", result, 16).number("threshold", 9).size("roi", {9, 8});
  std::vector<NamedFault> faults = {nullFault("src"), nullFault("dst")};
  for (const LumiSize roi : {LumiSize{0, 8}, LumiSize{9, 7}, LumiSize{9, 9}, LumiSize{9, 6}, LumiSize{9, -8}})
    faults.push_back({[=](NamedCall& c) { c.size("roi", roi); }, lumStatusBadSize});
  expectInOrder(right, faults, [&](LumStatus) {
    for (const unsigned char byte : result) ASSERT_EQ(byte, 0);
  });
  EXPECT_EQ(right.run(), lumStatusOk);
}

}  // namespace
}  // namespace test
