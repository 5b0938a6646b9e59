// SPDX-License-Identifier: MIT
// Between complex and packed spectra: against the model; there and back; what is not read.
#include "lumi/cplx_pack.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <string>
#include <vector>

#include "model/transforms/cplx_pack.hpp"
#include "statistics/placed_image.hpp"
#include "support/member.hpp"
#include "support/named_call.hpp"
#include "support/settings.hpp"

namespace test {
namespace {

const bool added = addModelTests(membersOf(
    "CplxExtendToPack",
    [](Member& m, auto, auto sample) {
      using T = decltype(sample);
      const int channels = m.channels.dst;
      m.contents = {Contents::Bytes};
      m.heights = {1, 2, 3, 4, 5, 6};
      m.separateRows = true;
      m.mayStream = false;
      m.model = [=](const Call& c) { model::packSpectrum<T>(c.srcImage(), c.dstImage(), c.roi, channels); };
    },
    Types<Lum16s, Lum32s, Lum32f>()));

const bool covered = addCovered({"lumiPackToCplxExtend_32f32fc_C1R", "lumiPackToCplxExtend_32s32sc_C1R"});

template <typename T>
void expectExtension(const std::string& type) {
  const Arena src(1 << 16), dst(1 << 17);
  Random random(settings().seed);
  for (int width = 1; width <= 70; ++width)
    for (int height : {1, 2, 3, 4, 5, 6, 9, 16}) {
      const LumiSize roi{width, height};
      const int unit = random.oneIn(2) ? 4 : 1;
      const PlacedImage packed(src, roi, 4, unit, random), complex(dst, roi, 8, unit, random);
      for (const PlacedImage* each : {&packed, &complex}) each->fill(type, random.pick(kAnyContents), random);
      model::extendPack<T>(packed.twin(), complex.twin(), roi);
      NamedCall call("lumiPackToCplxExtend_" + type + type + "c_C1R");
      call.pointer("src", packed.image().first).number("srcStep", packed.image().step).size("roi", roi);
      call.image("dst", complex.image().first, complex.image().step);
      ASSERT_EQ(call.run(), lumStatusOk);
      for (const PlacedImage* each : {&packed, &complex})
        ASSERT_TRUE(each->agrees()) << width << " x " << height;
    }
}

TEST(PackToCplxExtend, AgreesWithTheModelOn32f) { expectExtension<Lum32f>("32f"); }
TEST(PackToCplxExtend, AgreesWithTheModelOn32s) { expectExtension<Lum32s>("32s"); }

TEST(PackToCplxExtend, KnownNumbers) {
  // A row of four: F(0), F(1), F(2), and F(3) is the conjugate of F(1).
  const Lum32s row[] = {1, 2, INT_MIN, 4};
  Lum32sc numbers[4];
  ASSERT_EQ(lumiPackToCplxExtend_32s32sc_C1R(row, {4, 1}, 16, numbers, 32), lumStatusOk);
  const int expected[][2] = {{1, 0}, {2, INT_MIN}, {4, 0}, {2, INT_MAX}};
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(numbers[i].re, expected[i][0]) << i;
    EXPECT_EQ(numbers[i].im, expected[i][1]) << i;
  }
  // Zeros of conjugates have the other sign, those of real numbers none.
  const Lum32f column[] = {1, 2, 0};
  Lum32fc below[3];
  ASSERT_EQ(lumiPackToCplxExtend_32f32fc_C1R(column, {1, 3}, 4, below, 8), lumStatusOk);
  EXPECT_FALSE(std::signbit(below[0].im));
  EXPECT_FALSE(std::signbit(below[1].im));
  EXPECT_TRUE(below[2].im == 0 && std::signbit(below[2].im));
}

// A complex spectrum that is packed and extended again is as it was where it was that of a real image.
TEST(CplxExtendToPack, ComesBackFromExtension) {
  for (LumiSize roi : {LumiSize{8, 6}, LumiSize{7, 5}, LumiSize{2, 2}, LumiSize{33, 4}, LumiSize{1, 7}}) {
    const auto count = static_cast<size_t>(roi.width * roi.height);
    std::vector<Lum32f> packed(count), again(count, -1);
    for (size_t i = 0; i < count; ++i) packed[i] = static_cast<Lum32f>(i + 1);
    std::vector<Lum32fc> complex(count);
    const int step = roi.width * 4;
    ASSERT_EQ(lumiPackToCplxExtend_32f32fc_C1R(packed.data(), roi, step, complex.data(), 2 * step),
              lumStatusOk);
    // F(H - y, W - x) is the conjugate of F(y, x) all over.
    for (int y = 0; y < roi.height; ++y)
      for (int x = 0; x < roi.width; ++x) {
        const int oppositeRow = (roi.height - y) % roi.height, oppositeColumn = (roi.width - x) % roi.width;
        const Lum32fc here = complex[static_cast<size_t>(y * roi.width + x)],
                      there = complex[static_cast<size_t>(oppositeRow * roi.width + oppositeColumn)];
        ASSERT_TRUE(here.re == there.re && here.im == -there.im) << x << ", " << y;
      }
    ASSERT_EQ(lumiCplxExtendToPack_32fc32f_C1R(complex.data(), 2 * step, roi, again.data(), step),
              lumStatusOk);
    EXPECT_EQ(again, packed);
  }
}

// The conjugate half of the source is not read: it is not there.
TEST(CplxExtendToPack, ReadsNoConjugateHalf) {
  const Arena end(1 << 12);
  for (int width = 1; width <= 40; ++width) {
    const int read = width / 2 + 1;  // complex numbers from the first one on
    auto* const src = reinterpret_cast<Lum16sc*>(end.end()) - read;
    auto* const three = reinterpret_cast<Lum16sc*>(end.end()) - 3 * read;
    std::vector<Lum16s> dst(static_cast<size_t>(3 * width));
    EXPECT_EQ(lumiCplxExtendToPack_16sc16s_C1R(src, 4 * width, {width, 1}, dst.data(), 2 * width),
              lumStatusOk);
    EXPECT_EQ(lumiCplxExtendToPack_16sc16s_C3R(three, 12 * width, {width, 1}, dst.data(), 6 * width),
              lumStatusOk);
    EXPECT_EQ(dst.front(), three->re);
  }
}

}  // namespace
}  // namespace test
