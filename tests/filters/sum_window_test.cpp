// SPDX-License-Identifier: MIT
#include "lumi/sum_window.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "model/filters/box.hpp"
#include "support/core_guard.hpp"
#include "support/member.hpp"
#include "support/named_call.hpp"
#include "support/named_faults.hpp"
#include "support/random.hpp"
#include "support/settings.hpp"

namespace test {
namespace {

using model::Window;

using SumTypes = Types<Lum8u, Lum16u, Lum16s, Lum32f>;

Window windowOf(const Call& c, bool along) {
  const int size = static_cast<int>(c.number("maskSize")), anchor = static_cast<int>(c.number("anchor"));
  return along ? Window{{size, 1}, {anchor, 0}} : Window{{1, size}, {0, anchor}};
}
bool isInside(const Window& w) { return w.anchor.x < w.size.width && w.anchor.y < w.size.height; }

void addMembers(const std::string& operation, bool along) {
  addModelTests(membersOf(
      operation,
      [=](Member& m, auto src, auto) {
        using T = decltype(src);
        // From 258 samples on a sum of bytes has more than 16 bits; high windows of wide pixels find no room.
        std::vector<Value> sizes = {{{1}}, {{2}}, {{3}}, {{7}}, {{8}}, {{16}}};
        if (along || m.src.pixelBytes == 1) sizes.insert(sizes.end(), {{{33}}, {{257}}, {{258}}});
        if (!along && m.src.pixelBytes == 1) sizes.resize(7);
        m.choose("maskSize", sizes);
        m.choose("anchor", {{{0}}, {{0}}, {{1}}, {{2}}, {{7}}});
        m.surroundings = [=](const Call& c) -> Member::Surroundings {
          const Window w = windowOf(c, along);
          if (!isInside(w)) return {};
          return {w.anchor.x, w.anchor.y, w.size.width - 1 - w.anchor.x, w.size.height - 1 - w.anchor.y};
        };
        m.contents = kAnyContents;
        m.separateRows = true;
        m.allocates = true;
        m.mayStream = false;
        m.rounds = 12;
        m.model = [=, channels = m.channels](const Call& c) -> LumStatus {
          const Window w = windowOf(c, along);
          if (!isInside(w)) return lumStatusBadAnchor;
          const auto image = c.srcImage();
          const auto sample = [&](int x, int y, int ch) {
            return model::load<T>(image.row(y), x * channels.src + ch);
          };
          model::storeResults(model::imageOfResults<Lum32f>(c.roi, channels.moved,
                                                            [&](int x, int y, int ch) {
                                                              return static_cast<Lum32f>(
                                                                  model::windowSum(sample, w, x, y, ch));
                                                            }),
                              c.dstImage(), c.roi, channels);
          return lumStatusOk;
        };
      },
      SumTypes()));
}

const bool added = (addMembers("SumWindowRow", true), addMembers("SumWindowColumn", false), true);

const std::vector<std::string> kTypes = {"8u32f", "16u32f", "16s32f"};

// Every member with its faults, in pairs.
void forEachMember(const std::function<void(const std::string& name, bool tellsOfSize)>& test) {
  for (const char* direction : {"Row", "Column"})
    for (const std::string& type : kTypes)
      for (const char* layout : {"_C1R", "_C3R", "_C4R"})
        test("lumiSumWindow" + std::string(direction) + "_" + type + layout,
             std::string(direction) == "Row" && type == "16u32f");
}

// Twelve bytes a pixel of memory, in the middle of which calls have their images.
struct Memory {
  std::vector<Lum8u> src = std::vector<Lum8u>(4096, 3);
  std::vector<Lum32f> dst = std::vector<Lum32f>(256, 5.0F);

  NamedCall call(const std::string& name, LumiSize roi) {
    NamedCall call(name);
    call.image("src", &src[2048], 128).image("dst", dst.data(), 96).size("roi", roi);
    return call.number("maskSize", 3).number("anchor", 1);
  }
  void expectUntouched() const { ASSERT_EQ(dst, std::vector<Lum32f>(256, 5.0F)); }
};

TEST(SumWindow, RefusesInOrder) {
  forEachMember([](const std::string& name, bool tellsOfSize) {
    SCOPED_TRACE(name);
    Memory memory;
    std::vector<NamedFault> faults = {nullFault("src"), nullFault("dst")};
    if (tellsOfSize)
      for (const LumiSize empty : {LumiSize{0, 3}, LumiSize{4, 0}, LumiSize{-7, 3}, LumiSize{4, INT32_MIN}})
        faults.push_back({[=](NamedCall& c) { c.size("roi", empty); }, lumStatusBadSize, 1});
    for (const int bad : {0, -1, INT32_MIN})
      faults.push_back({[=](NamedCall& c) { c.number("maskSize", bad); }, lumStatusBadMaskSize, 2});
    for (const int bad : {-1, 3, INT32_MAX, INT32_MIN})
      faults.push_back({[=](NamedCall& c) { c.number("anchor", bad); }, lumStatusBadAnchor, 3});
    expectInOrder(memory.call(name, {4, 3}), faults, [&](LumStatus) { memory.expectUntouched(); });
  });
}

TEST(SumWindow, OthersMakeNothingOfAnEmptyImage) {
  const CoreGuard guard;
  forEachMember([](const std::string& name, bool tellsOfSize) {
    if (tellsOfSize) return;
    SCOPED_TRACE(name);
    Memory memory;
    for (const LumiSize empty : {LumiSize{4, 0}, LumiSize{4, INT32_MIN}, LumiSize{0, 3}, LumiSize{-2, -2}})
      EXPECT_EQ(memory.call(name, empty).run(), lumStatusOk);
    memory.expectUntouched();
  });
  EXPECT_EQ(testcore::counts().allocations, 0);
}

// Up to 2^32 - 1 they are rounded once; beyond that each step is a rounding.
TEST(SumWindow, LargeSumsOfWords) {
  std::vector<Lum16u> src(80005, 65535);
  src[70001] = 12345;
  Lum32f sums[4];
  ASSERT_EQ(lumiSumWindowRow_16u32f_C1R(src.data(), 1, sums, 1, {4, 1}, 65537, 0), lumStatusOk);
  for (const Lum32f sum : sums) EXPECT_EQ(sum, 4294967296.0F);
  ASSERT_EQ(lumiSumWindowRow_16u32f_C1R(src.data(), 1, sums, 1, {4, 1}, 80000, 0), lumStatusOk);
  for (const Lum32f sum : sums) EXPECT_NEAR(sum, 80000 * 65535.0 - 53190, 80000 * 256.0);
}

}  // namespace
}  // namespace test
