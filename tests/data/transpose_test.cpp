// SPDX-License-Identifier: MIT
#include "lumi/transpose.h"

#include <gtest/gtest.h>

#include "model/data/transpose.hpp"
#include "support/core_guard.hpp"
#include "support/member.hpp"
#include "support/random.hpp"

namespace test {
namespace {

using Moved = Types<Lum8u, Lum16u, Lum16s, Lum32s, Lum32f>;

bool isSquare(LumiSize roi) { return roi.width == roi.height; }

// Blocks and their edges in both directions; squares for what is in place.
const std::vector<int> kHeights = {1, 2, 3, 5, 7, 8, 9, 12, 15, 16, 17, 24, 31, 33, 64, 65, 70};

const bool added = addModelTests(membersOfOneType(
    "Transpose",
    [](Member& m, auto sample) {
      m.transposes = m.separateRows = true;
      m.mayStream = false;  // only by shapes that have tests of their own
      m.heights = m.inPlace ? std::vector<int>{Member::kAsWide, Member::kAsWide, 5} : kHeights;
      if (!m.inPlace) m.aliasing = Aliasing::SameImage;
      const int channels = m.channels.dst;
      m.model = [=](const Call& c) {
        const bool inPlace = c.src[0] == c.dst[0] && c.srcStep == c.dstStep;
        if (inPlace && !isSquare(c.roi)) return LumStatus{lumStatusBadSize};
        model::transpose<decltype(sample)>(c.srcImage(), c.dstImage(), c.roi, channels);
        return LumStatus{lumStatusOk};
      };
    },
    Moved()));

TEST(TransposeCalls, KnownImage) {
  const Lum8u src[] = {1, 2, 3, 4, 5, 6};
  Lum8u dst[6] = {};
  ASSERT_EQ(lumiTranspose_8u_C1R(src, 3, dst, 2, {3, 2}), lumStatusOk);
  EXPECT_EQ(std::vector<Lum8u>(dst, dst + 6), (std::vector<Lum8u>{1, 4, 2, 5, 3, 6}));
}

// In place by name, and by equal pointers and steps; other steps would make it two images.
TEST(TransposeCalls, OnlySquaresInPlace) {
  Lum8u image[12] = {};
  EXPECT_EQ(lumiTranspose_8u_C1IR(image, 3, {3, 4}), lumStatusBadSize);
  EXPECT_EQ(lumiTranspose_8u_C1R(image, 3, image, 3, {3, 4}), lumStatusBadSize);
  EXPECT_EQ(lumiTranspose_8u_C1R(image, 3, image, 3, {4, 3}), lumStatusBadSize);
  EXPECT_EQ(lumiTranspose_8u_C1R(image, 3, image, 3, {3, 3}), lumStatusOk);
}

// The sizes that may go past the cache, and how much of it they need.
struct Shape {
  const char* name;
  int width, widthStep, heightStep, sourceAlignment;
};
const Shape kShapes[] = {
    {"lumiTranspose_8u_C1R", 1024, 64, 64, 16}, {"lumiTranspose_16u_C1R", 768, 32, 32, 16},
    {"lumiTranspose_8u_C4R", 512, 16, 16, 16},  {"lumiTranspose_32s_C1R", 512, 4, 16, 16},
    {"lumiTranspose_16u_C4R", 384, 8, 8, 16},   {"lumiTranspose_32s_C3R", 256, 4, 16, 8},
    {"lumiTranspose_32s_C4R", 256, 4, 4, 16},
};

// A call in 64-byte aligned rows; the bytes are compared with the model's, and queries of the cache counted.
int64_t queriesOf(const Member& m, LumiSize roi, int srcPhase, int dstPhase) {
  const int pixel = m.dst.pixelBytes;
  const auto lines = [](int bytes) { return (bytes + 63) / 64 * 64; };
  const int srcStep = lines(roi.width * pixel), dstStep = lines(roi.height * pixel);
  const auto srcBytes = static_cast<size_t>(srcStep) * roi.height,
             dstBytes = static_cast<size_t>(dstStep) * roi.width;
  std::vector<Byte> src(srcBytes + 128), dst(dstBytes + 128, 7), wanted;
  Random(roi.width).fill(src.data(), src.size());
  wanted = dst;
  const auto aligned = [](std::vector<Byte>& v, int phase) {
    return v.data() + (64 - reinterpret_cast<uintptr_t>(v.data()) % 64) % 64 + phase;
  };
  Call call;
  call.roi = roi;
  call.srcStep = srcStep;
  call.dstStep = dstStep;
  call.src[0] = aligned(src, srcPhase);
  call.dst[0] = aligned(dst, dstPhase);
  Call ofModel = call;
  ofModel.dst[0] = wanted.data() + (call.dst[0] - dst.data());
  m.model(ofModel);
  testcore::reset();
  testcore::setCacheSize(0);
  EXPECT_EQ(m.run(call), lumStatusOk);
  EXPECT_EQ(dst, wanted) << m.name << " " << roi.width << " x " << roi.height;
  return testcore::counts().cacheQueries;
}

TEST(TransposeCalls, OnlySomeShapesAskForTheCache) {
  const CoreGuard guard;
  for (const Shape& s : kShapes) {
    const Member& m = memberNamed(s.name);
    const LumiSize smallest = {s.width + s.widthStep, s.heightStep};
    EXPECT_EQ(queriesOf(m, smallest, 0, 0), 1) << s.name;
    EXPECT_EQ(queriesOf(m, {smallest.width, 3 * s.heightStep}, 0, 0), 1) << s.name;
    EXPECT_EQ(queriesOf(m, smallest, s.sourceAlignment, 0), 1) << s.name;
    EXPECT_EQ(queriesOf(m, {s.width, s.heightStep}, 0, 0), 0) << s.name;
    EXPECT_EQ(queriesOf(m, {smallest.width + 1, s.heightStep}, 0, 0), 0) << s.name;
    EXPECT_EQ(queriesOf(m, {smallest.width, s.heightStep + 1}, 0, 0), 0) << s.name;
    EXPECT_EQ(queriesOf(m, smallest, s.sourceAlignment / 2, 0), 0) << s.name;
    EXPECT_EQ(queriesOf(m, smallest, 0, 32), 0) << s.name;
  }
  for (const char* never : {"lumiTranspose_8u_C3R", "lumiTranspose_16u_C3R"})
    EXPECT_EQ(queriesOf(memberNamed(never), {1088, 64}, 0, 0), 0) << never;
}

// Wide pixels in images of more than a mebibyte go down more rows at a time: past the end of that many, too.
TEST(TransposeCalls, LargeImagesEqualTheModel) {
  const CoreGuard guard;
  for (const char* name : {"lumiTranspose_8u_C4R", "lumiTranspose_16u_C3R", "lumiTranspose_16u_C4R",
                           "lumiTranspose_32s_C3R", "lumiTranspose_32s_C4R"})
    for (const LumiSize roi : {LumiSize{331, 601}, LumiSize{70, 2500}})
      EXPECT_EQ(queriesOf(memberNamed(name), roi, 0, 0), 0) << name;
}

}  // namespace
}  // namespace test
