// SPDX-License-Identifier: MIT
#include "lumi/morphology.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cfloat>
#include <limits>
#include <vector>

#include "model/filters/extremes.hpp"
#include "support/arena.hpp"
#include "support/core_guard.hpp"
#include "support/member.hpp"
#include "support/named_faults.hpp"
#include "support/random.hpp"
#include "support/settings.hpp"

namespace test {
namespace {

using model::Window;
using MorphologyTypes = Types<Lum8u, Lum16u, Lum32f>;

constexpr int kElements = 119;  // of the largest mask

Window windowOf(const Call& c) { return {c.size("maskSize"), c.point("anchor")}; }
bool isInside(const Window& w) { return w.anchor.x < w.size.width && w.anchor.y < w.size.height; }

Member::Surroundings surroundings(const Call& c) {
  const Window w = windowOf(c);
  if (!isInside(w)) return {};
  return {w.anchor.x, w.anchor.y, w.size.width - 1 - w.anchor.x, w.size.height - 1 - w.anchor.y};
}

// Whole masks, such as select each element with some probability, single elements and runs.
void fillMask(Random& random, Byte* mask, int elements) {
  const int kind = random.below(6), few = random.between(2, 12);
  int run = 0;
  for (int i = 0; i < elements; ++i) {
    if (run-- == 0) run = random.between(1, 9);
    const bool selected = kind == 0 || (kind == 1 && random.oneIn(2)) || (kind == 2 && random.oneIn(few)) ||
                          (kind == 3 && i == few) || (kind == 4 && run > 1) ||
                          (kind == 5 && !random.oneIn(few));
    mask[i] = static_cast<Byte>(selected ? random.between(1, 255) : 0);
  }
}

template <bool largest>
bool addMembers(const char* operation) {
  return addModelTests(membersOfOneType(
      operation,
      [](Member& m, auto sample) {
        using T = decltype(sample);
        m.array("mask", "8u", {kElements}, fillMask);
        std::vector<Value> sizes = {{{3, 3}}, {{5, 5}}, {{4, 3}}, {{3, 5}},
                                    {{9, 2}}, {{1, 1}}, {{5, 1}}, {{1, 6}}};
        if (m.dst.pixelBytes <= 4) sizes.insert(sizes.end(), {{{7, 7}}, {{17, 7}}, {{7, 17}}});
        m.choose("maskSize", sizes);
        m.choose("anchor", {{{0, 0}}, {{0, 0}}, {{1, 0}}, {{0, 1}}, {{1, 1}}, {{2, 2}}, {{3, 1}}});
        m.surroundings = surroundings;
        m.surroundingsApart = true;
        m.contents = kAnyContents;
        m.aliasing = m.inPlace ? Aliasing::None : Aliasing::SameImage;
        m.separateRows = true;
        m.allocates = true;
        m.mayStream = false;
        m.checksSteps = m.refusesZeroSteps = m.checksRows = true;
        m.rounds = 12;
        m.model = [channels = m.channels](const Call& c) -> LumStatus {
          const Window w = windowOf(c);
          const Byte* const mask = c.block("mask").data;
          if (std::all_of(mask, mask + w.area(), [](Byte element) { return element == 0; }))
            return lumStatusZeroMask;
          if (!isInside(w)) return lumStatusBadAnchor;
          if (c.srcStep < (c.roi.width + w.size.width - 1) * channels.src * int{sizeof(T)})
            return lumStatusStepTooSmall;
          model::extremes<T>(c.srcImage(), c.dstImage(), c.roi, channels, w, {largest, true},
                             [&](int column, int row) { return mask[row * w.size.width + column] != 0; });
          return lumStatusOk;
        };
      },
      MorphologyTypes()));
}

const bool dilation = addMembers<true>("Dilate"), erosion = addMembers<false>("Erode");

class Morphology : public testing::Test {
 protected:
  const CoreGuard guard;
  Random random{settings().seed};
};

// Of a mask that nothing lies behind, nor before. The image has margins as wide as the mask on all sides.
struct Masked {
  LumiSize roi, size;
  LumiPoint anchor;

  int width() const { return roi.width + 2 * size.width; }
  std::vector<Lum8u> image() const {
    return std::vector<Lum8u>(static_cast<size_t>(width() * (roi.height + 2 * size.height)));
  }
  std::vector<Lum8u> dilated(const std::vector<Lum8u>& image, const std::vector<Lum8u>& mask) const {
    const Arena arena(1);
    Byte* const at = random(2) ? arena.begin() : arena.end() - mask.size();
    std::copy(mask.begin(), mask.end(), at);
    std::vector<Lum8u> dst(static_cast<size_t>(roi.width * roi.height));
    EXPECT_EQ(lumiDilate_8u_C1R(&image[static_cast<size_t>(size.height * width() + size.width)], width(),
                                dst.data(), roi.width, roi, at, size, anchor),
              lumStatusOk);
    return dst;
  }
  static bool random(int n) { return Random(settings().seed).oneIn(n); }
};

// Masks and sides that the driver's own do not reach: wide runs, and images that are smaller than the mask.
TEST_F(Morphology, MasksMayBeOfAnySize) {
  for (const LumiSize size : {LumiSize{70, 3}, LumiSize{300, 2}, LumiSize{2, 90}, LumiSize{33, 33}}) {
    const Masked masked{{45, 19}, size, {size.width - 1, size.height / 2}};
    std::vector<Lum8u> image = masked.image();
    random.fill(image.data(), image.size());
    for (Lum8u& sample : image) sample = static_cast<Lum8u>(random.oneIn(9) ? sample : sample / 8);
    std::vector<Lum8u> mask(static_cast<size_t>(size.width * size.height));
    for (size_t i = 0; i < mask.size(); ++i) mask[i] = i % 64 > 2 && !random.oneIn(40) ? 1 : 0;
    const std::vector<Lum8u> dst = masked.dilated(image, mask);
    for (int y = 0; y < masked.roi.height; ++y)
      for (int x = 0; x < masked.roi.width; ++x) {
        Lum8u best = 0;
        for (int row = 0; row < size.height; ++row)
          for (int column = 0; column < size.width; ++column)
            if (mask[static_cast<size_t>(row * size.width + column)] != 0)
              best = std::max(
                  best, image[static_cast<size_t>((size.height + y + row - masked.anchor.y) * masked.width() +
                                                  size.width + x + column - masked.anchor.x)]);
        ASSERT_EQ(dst[static_cast<size_t>(y * masked.roi.width + x)], best)
            << size.width << " " << x << " " << y;
      }
  }
}

// The mask is not turned.
TEST_F(Morphology, OneElementMovesTheImage) {
  const Lum8u image[16] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16};
  const Lum8u mask[9] = {7, 0, 0, 0, 0, 0, 0, 0, 0};
  Lum8u dst[4] = {};
  ASSERT_EQ(lumiDilate_8u_C1R(image + 5, 4, dst, 2, {2, 2}, mask, {3, 3}, {1, 1}), lumStatusOk);
  EXPECT_EQ(std::vector<Lum8u>(dst, dst + 4), (std::vector<Lum8u>{1, 2, 5, 6}));
}

TEST_F(Morphology, ResultsOfFloatsAreFinite) {
  const float infinity = std::numeric_limits<float>::infinity(),
              nan = std::numeric_limits<float>::quiet_NaN();
  const auto both = [](std::vector<Lum32f> src, const std::vector<Lum8u>& mask) {
    const LumiSize size{static_cast<int>(mask.size()), 1};
    std::vector<Lum32f> dst(2);
    EXPECT_EQ(lumiDilate_32f_C1R(src.data(), size.width * 4, &dst[0], 4, {1, 1}, mask.data(), size, {0, 0}),
              lumStatusOk);
    EXPECT_EQ(lumiErode_32f_C1R(src.data(), size.width * 4, &dst[1], 4, {1, 1}, mask.data(), size, {0, 0}),
              lumStatusOk);
    return dst;
  };
  using Both = std::vector<Lum32f>;
  EXPECT_EQ(both({infinity}, {1}), (Both{FLT_MAX, FLT_MAX}));
  EXPECT_EQ(both({-infinity}, {1}), (Both{-FLT_MAX, -FLT_MAX}));
  EXPECT_EQ(both({infinity, 1, -infinity}, {1, 1, 1}), (Both{FLT_MAX, -FLT_MAX}));
  EXPECT_EQ(both({infinity, -2, -3}, {0, 1, 1}), (Both{-2, -3}));
  EXPECT_EQ(both({-1, nan, -3}, {1, 1, 1}), (Both{-1, -3}));
  EXPECT_EQ(both({nan, nan}, {1, 0}), (Both{-FLT_MAX, FLT_MAX}));
}

// Each fault alone and every two, for a member of each form.
TEST_F(Morphology, StatusesComeInTheirOrder) {
  std::vector<Lum32f> src(1024, 1.0F), dst(1024, 2.0F);
  const std::vector<Lum8u> mask(9, 1), zeros(9, 0);
  struct Form {
    const char* name;
    int pixelBytes;
  };
  for (const Form form :
       {Form{"lumiDilate_8u_C1R", 1}, Form{"lumiErode_16u_C3R", 6}, Form{"lumiDilate_32f_AC4R", 16}}) {
    const char* const name = form.name;
    const int srcStep = 7 * form.pixelBytes, dstStep = 5 * form.pixelBytes;
    NamedCall right(name);
    right.pointer("src", &src[256]).number("srcStep", srcStep);
    right.pointer("dst", dst.data()).number("dstStep", dstStep).size("roi", {5, 2});
    right.pointer("mask", mask.data()).size("maskSize", {3, 3}).point("anchor", {1, 1});
    ASSERT_EQ(right.run(), lumStatusOk) << name;
    std::vector<NamedFault> faults = {nullFault("src"), nullFault("dst"), nullFault("mask")};
    const auto number = [&](const char* argument, int value, LumStatus status, int exclusive) {
      faults.push_back({[=](NamedCall& c) { c.number(argument, value); }, status, exclusive});
    };
    const auto size = [&](const char* argument, LumiSize value, LumStatus status, int exclusive) {
      faults.push_back({[=](NamedCall& c) { c.size(argument, value); }, status, exclusive});
    };
    for (const int step : {0, -1, INT32_MIN}) {
      number("srcStep", step, lumStatusBadStep, 1);
      number("dstStep", step, lumStatusBadStep, 2);
    }
    for (const LumiSize bad : {LumiSize{0, 2}, LumiSize{5, 0}, LumiSize{-1, 2}, LumiSize{5, INT32_MIN}})
      size("roi", bad, lumStatusBadSize, 3);
    for (const LumiSize bad : {LumiSize{0, 3}, LumiSize{3, 0}, LumiSize{-3, 3}, LumiSize{3, INT32_MIN}})
      size("maskSize", bad, lumStatusBadMaskSize, 4);
    faults.push_back({[&](NamedCall& c) { c.pointer("mask", zeros.data()); }, lumStatusZeroMask, 0});
    for (const LumiPoint bad : {LumiPoint{-1, 1}, LumiPoint{1, -1}, LumiPoint{3, 1}, LumiPoint{1, 3}})
      faults.push_back({[=](NamedCall& c) { c.point("anchor", bad); }, lumStatusBadAnchor, 5});
    number("srcStep", srcStep - 1, lumStatusStepTooSmall, 1);
    number("dstStep", dstStep - 1, lumStatusStepTooSmall, 2);
    size("roi", {INT32_MAX, 2}, lumStatusStepTooSmall, 3);
    dst.assign(dst.size(), 2.0F);
    expectInOrder(right, faults, [&](LumStatus) {
      ASSERT_EQ(std::count(dst.begin(), dst.end(), 2.0F), static_cast<ptrdiff_t>(dst.size())) << name;
    });
  }
}

TEST_F(Morphology, StatusesInPlaceComeInTheirOrder) {
  Lum8u image[64] = {};
  const Lum8u mask[9] = {0, 1}, zeros[9] = {};
  const auto status = [&](Lum8u* at, int step, LumiSize roi, const Lum8u* selected, LumiSize size,
                          LumiPoint anchor) {
    return lumiErode_8u_C1IR(at, step, roi, selected, size, anchor);
  };
  EXPECT_EQ(status(nullptr, 0, {0, 0}, nullptr, {0, 0}, {-1, 0}), lumStatusNullPointer);
  EXPECT_EQ(status(image, 8, {4, 2}, nullptr, {3, 3}, {1, 1}), lumStatusNullPointer);
  EXPECT_EQ(status(image, 0, {0, 0}, zeros, {0, 0}, {-1, 0}), lumStatusBadStep);
  EXPECT_EQ(status(image, 5, {0, 0}, zeros, {0, 0}, {-1, 0}), lumStatusBadSize);
  EXPECT_EQ(status(image, 5, {4, 2}, zeros, {0, 0}, {-1, 0}), lumStatusBadMaskSize);
  EXPECT_EQ(status(image, 5, {4, 2}, zeros, {3, 3}, {-1, 0}), lumStatusZeroMask);
  EXPECT_EQ(status(image, 5, {4, 2}, mask, {3, 3}, {-1, 0}), lumStatusBadAnchor);
  EXPECT_EQ(status(image, 5, {4, 2}, mask, {3, 3}, {0, 0}), lumStatusStepTooSmall);
  EXPECT_EQ(status(image + 16, 6, {4, 2}, mask, {3, 3}, {0, 0}), lumStatusOk);
}

}  // namespace
}  // namespace test
