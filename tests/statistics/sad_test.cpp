// SPDX-License-Identifier: MIT
// Sums of absolute differences of windows: against the model over sizes of image and template, flush against
// unmapped pages; scale factors; what overlaps.
#include "lumi/sad.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <limits>
#include <string>
#include <vector>

#include "model/statistics/sad.hpp"
#include "statistics/placed_image.hpp"
#include "support/named_call.hpp"
#include "support/settings.hpp"

namespace test {
namespace {

const bool covered = addCovered({"lumiSAD_8u32s_C1RSfs", "lumiSAD_16u32s_C1RSfs", "lumiSAD_16s32s_C1RSfs",
                                 "lumiSAD_32f_C1R", "lumiSADGetBufferSize"});

constexpr size_t kArena = 1 << 18;

template <typename T>
class Windows {
 public:
  Windows() : src_(kArena), tpl_(kArena), dst_(kArena), random_(settings().seed) {}

  // Expects what the model stores, in the destination and around it.
  void expect(LumiSize srcSize, LumiSize tplSize, int scale, Contents contents) {
    const LumiSize windows{std::max(1, srcSize.width - tplSize.width + 1),
                           std::max(1, srcSize.height - tplSize.height + 1)};
    constexpr int sample = sizeof(T), unit = kFloat ? 4 : 1;
    const PlacedImage src(src_, srcSize, sample, unit, random_), tpl(tpl_, tplSize, sample, unit, random_),
        dst(dst_, windows, 4, 4, random_);
    for (const PlacedImage* each : {&src, &tpl, &dst}) each->fill(kType, contents, random_);
    model::sad<T>(src.twin(), srcSize, tpl.twin(), tplSize, dst.twin(), scale);
    NamedCall call(kFloat ? std::string("lumiSAD_32f_C1R") : "lumiSAD_" + kType + "32s_C1RSfs");
    call.image("src", src.image().first, src.image().step).size("srcSize", srcSize);
    call.pointer("tpl", tpl.image().first).number("tplStep", tpl.image().step).size("tplSize", tplSize);
    call.image("dst", dst.image().first, dst.image().step).number("mode", 0x10000).pointer("buffer", nullptr);
    if (!kFloat) call.number("scaleFactor", scale);
    ASSERT_EQ(call.run(), lumStatusOk);
    for (const PlacedImage* each : {&src, &tpl, &dst})
      ASSERT_TRUE(each->agrees()) << srcSize.width << " x " << srcSize.height << ", template "
                                  << tplSize.width << " x " << tplSize.height << ", scale " << scale;
  }
  Random& random() { return random_; }

 private:
  static constexpr bool kFloat = std::is_same_v<T, Lum32f>;
  static inline const std::string kType =
      kFloat ? "32f" : std::to_string(8 * sizeof(T)) + (std::is_signed_v<T> ? "s" : "u");

  Arena src_, tpl_, dst_;
  Random random_;
};

template <typename T>
void expectAgreement() {
  Windows<T> windows;
  const auto contents = [&] { return kAnyContents[static_cast<size_t>(windows.random().below(3))]; };
  for (int i = 0; i < settings().scaled(60); ++i) {
    const LumiSize tpl{1 + windows.random().below(20), 1 + windows.random().below(5)};
    const LumiSize src{tpl.width + windows.random().below(70), tpl.height + windows.random().below(5)};
    windows.expect(src, tpl, windows.random().below(8), contents());
  }
  for (const int width : {240, 243, 244, 245, 260, 500})  // parts of a template's row, and what words hold
    windows.expect({width + 15 + windows.random().below(3), 3}, {width, 3}, 0, Contents::Edges);
  // A template that is larger than the image, and one that is as large.
  windows.expect({5, 4}, {6, 2}, 0, Contents::Bytes);
  windows.expect({5, 4}, {2, 5}, 40, Contents::Bytes);
  windows.expect({5, 4}, {5, 4}, 0, Contents::Bytes);
}

TEST(Sad, AgreesWithTheModelOn8u) { expectAgreement<Lum8u>(); }
TEST(Sad, AgreesWithTheModelOn16u) { expectAgreement<Lum16u>(); }
TEST(Sad, AgreesWithTheModelOn16s) { expectAgreement<Lum16s>(); }
TEST(Sad, AgreesWithTheModelOn32f) { expectAgreement<Lum32f>(); }

// Of an image of one value and a template of another; rows of one sample are enough for any sum.
Lum32s sumOf(Lum16u sample, LumiSize size, int scale) {
  // A step of 2 makes rows of an image lie over one another.
  Lum32s sum = -1;
  const std::vector<Lum16u> src(static_cast<size_t>(size.width + size.height), sample),
      zero(static_cast<size_t>(size.width + size.height), 0);
  EXPECT_EQ(
      lumiSAD_16u32s_C1RSfs(src.data(), 2, size, zero.data(), 2, size, &sum, 4, 0x10000, scale, nullptr),
      lumStatusOk);
  return sum;
}

TEST(SadScale, TiesGoToEven) {
  EXPECT_EQ(sumOf(3, {1, 1}, 1), 2);
  EXPECT_EQ(sumOf(5, {1, 1}, 1), 2);
  EXPECT_EQ(sumOf(7, {1, 1}, 1), 4);
  EXPECT_EQ(sumOf(6, {1, 1}, 2), 2);
  EXPECT_EQ(sumOf(10, {1, 1}, 2), 2);
}

TEST(SadScale, LargeSumsAndFactors) {
  const LumiSize most{65537, 1};  // of 65535: 2^32 - 1
  EXPECT_EQ(sumOf(65535, most, 0), INT_MAX);
  EXPECT_EQ(sumOf(65535, most, 1), INT_MAX);
  EXPECT_EQ(sumOf(65535, most, 2), 1 << 30);
  EXPECT_EQ(sumOf(65535, most, 31), 2);
  EXPECT_EQ(sumOf(65535, most, 32), 1);
  EXPECT_EQ(sumOf(65535, most, 33), 0);
  EXPECT_EQ(sumOf(65535, most, INT_MAX), 0);
  EXPECT_EQ(sumOf(32768, {65536, 1}, 31), 1);
  EXPECT_EQ(sumOf(32768, {65536, 1}, 32), 0);  // a tie
  EXPECT_EQ(sumOf(49152, {65536, 1}, 31), 2);  // 1.5
  EXPECT_EQ(sumOf(32769, {65536, 1}, 32), 1);
  EXPECT_EQ(sumOf(65535, {65538, 1}, 0), 65534);  // modulo 2^32
  EXPECT_EQ(sumOf(65535, {1000, 65}, 0), INT_MAX);
}

TEST(SadScale, WholeRowsOfSums) {
  Windows<Lum16u> words;
  Windows<Lum8u> bytes;
  for (const int scale : {1, 2, 15, 16, 17, 24, 31, 32, 33, 100}) {
    words.expect({50, 40}, {9, 30}, scale, Contents::Edges);
    bytes.expect({50, 40}, {9, 30}, scale, Contents::Edges);
  }
}

// A destination of 3 x 2 sums with a corner's first byte in a row of the image or the template.
TEST(SadOverlap, CornersDecide) {
  std::vector<Lum8u> memory(4096), tpl(2, 1);
  const auto sad = [&](Lum8u* src, int srcStep, Lum8u* t, Lum8u* dst, int dstStep, int scale = 0) {
    return lumiSAD_8u32s_C1RSfs(src, srcStep, {4, 3}, t, 8, {2, 2}, reinterpret_cast<Lum32s*>(dst), dstStep,
                                0x10000, scale, nullptr);
  };
  std::vector<Lum8u> two(16, 1);
  Lum8u* const dst = memory.data() + 1024;
  const std::ptrdiff_t corners[] = {0, 8, 64, 72};
  for (const std::ptrdiff_t corner : corners) {
    EXPECT_EQ(sad(dst + corner, 200, two.data(), dst, 64), lumStatusUnsupportedMode);
    EXPECT_EQ(sad(dst + corner - 3, 200, two.data(), dst, 64, -1), lumStatusUnsupportedMode)
        << "before the scale";
    EXPECT_EQ(sad(dst + corner - 400, 200, two.data(), dst, 64), lumStatusUnsupportedMode) << "the last row";
    EXPECT_EQ(sad(dst + corner - 4, 200, two.data(), dst, 64, -1), lumStatusBadArgument);
    EXPECT_EQ(sad(dst + corner + 1, 200, two.data(), dst, 64, -1), lumStatusBadArgument);
    EXPECT_EQ(sad(memory.data(), 8, dst + corner - 1, dst, 64), lumStatusUnsupportedMode);
    EXPECT_EQ(sad(memory.data(), 8, dst + corner - 9, dst, 64), lumStatusUnsupportedMode);
    EXPECT_EQ(sad(memory.data(), 8, dst + corner + 1, dst, 64, -1), lumStatusBadArgument);
  }
}

TEST(SadSteps, AreOfWholeSums) {
  Lum8u image[64] = {};
  Lum32s sum[16];
  EXPECT_EQ(lumiSAD_8u32s_C1RSfs(image, 5, {3, 3}, image + 32, 3, {2, 2}, sum, 6, 0x10000, 0, nullptr),
            lumStatusBadStep);
  EXPECT_EQ(lumiSAD_8u32s_C1RSfs(image, 5, {3, 3}, image + 32, 3, {2, 2}, sum, 6, 0, 0, nullptr),
            lumStatusBadStep);
  EXPECT_EQ(lumiSAD_8u32s_C1RSfs(image, 5, {3, 3}, image + 32, 3, {2, 2}, sum, 8, 0x10000, 0, nullptr),
            lumStatusOk);
  Lum32f floats[64] = {}, sums[16];
  for (const int bad : {0, 1, 2}) {
    const int steps[] = {bad == 0 ? 18 : 16, bad == 1 ? 18 : 16, bad == 2 ? 18 : 16};
    EXPECT_EQ(
        lumiSAD_32f_C1R(floats, steps[0], {3, 3}, floats + 32, steps[1], {2, 2}, sums, steps[2], 0, nullptr),
        lumStatusBadStep);
  }
}

TEST(SadBuffer, IsEmpty) {
  for (const LumiDataType type : {lumiData8u, lumiData16u, lumiData16s, lumiData32f}) {
    Lum32s bytes = -1;
    EXPECT_EQ(lumiSADGetBufferSize({7, 3}, {9, 9}, type, 1, 0x10000, &bytes), lumStatusOk);
    EXPECT_EQ(bytes, 0);
  }
  Lum32s bytes = -1;
  EXPECT_EQ(lumiSADGetBufferSize({7, 3}, {9, 9}, lumiData32s, 2, 0, &bytes), lumStatusBadDataType);
  EXPECT_EQ(bytes, -1);
}

}  // namespace
}  // namespace test
