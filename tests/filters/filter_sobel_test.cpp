// SPDX-License-Identifier: MIT
#include "lumi/filter_sobel.h"

#include <gtest/gtest.h>

#include "lumi/gradient_vector.h"
#include "model/filters/gradient_vector.hpp"
#include "support/member.hpp"
#include "support/named_faults.hpp"

namespace test {
namespace {

std::vector<Value> numbers(std::initializer_list<int> list) {
  std::vector<Value> values;
  for (const int n : list) values.push_back({{static_cast<double>(n), 0, 0, 0}});
  return values;
}

const bool added = addModelTests(membersOf("FilterSobel", [](Member& m, auto src, auto dst) {
  using T = decltype(src);
  using D = decltype(dst);
  const LumiDataType type = sizeof(T) == 1        ? lumiData8u
                            : sizeof(T) == 4      ? lumiData32f
                            : std::is_signed_v<T> ? lumiData16s
                                                  : lumiData16u;
  m.choose("mask", numbers({33, 55}));
  m.choose("norm", numbers({2, 4}));
  m.choose("border", numbers({0, 1, 6, 0x10, 0x21, 0x40, 0x81, 0xF0, 0xC1}));
  m.choose("borderValue", numbers({0, 7, 100}));
  m.scratch("buffer", [=](const Call& c) {
    int bytes = 0;
    lumiGradientVectorGetBufferSize(c.roi, static_cast<int>(c.number("mask")), type, 1, &bytes);
    return bytes;
  });
  m.surroundings = [](const Call& c) -> Member::Surroundings {
    const int reach = c.number("mask") == 33 ? 1 : 2, border = static_cast<int>(c.number("border"));
    const auto side = [&](int flag) { return (border & 15) == 6 || (border & flag) != 0 ? reach : 0; };
    return {side(64), side(16), side(128), side(32)};
  };
  m.mayStream = false;
  m.floatResults = std::is_floating_point_v<D>;
  m.rounds = 4;
  m.checksSteps = true;
  m.wholeSteps = true;
  m.separateRows = true;
  m.model = [=](const Call& c) {
    const model::GradientImage image{c.srcImage(), c.roi, 1, static_cast<int>(c.number("border"))};
    const T value = static_cast<T>(c.number("borderValue"));
    const int side = static_cast<int>(c.number("mask")) % 10, norm = static_cast<int>(c.number("norm"));
    for (int y = 0; y < c.roi.height; ++y)
      for (int x = 0; x < c.roi.width; ++x) {
        const auto g = model::gradientOf<T>(model::Gradient::Sobel, side, image, &value, x, y, 0);
        model::store(c.dstImage().row(y), x, model::gradientMagnitude<D>(g, norm));
      }
  };
}));
const bool covered = addCovered({"lumiFilterSobelGetBufferSize"});

void expectRunInOrder(const std::string& type, int srcBytes, int dstBytes) {
  const std::vector<unsigned char> src(256);
  std::vector<unsigned char> dst(256, 0x5a), buffer(4096, 0x5a);
  NamedCall right("lumiFilterSobel_" + type + "_C1R");
  right.image("src", src.data(), 32).image("dst", dst.data(), 32).size("roi", {8, 4}).number("mask", 55);
  right.number("norm", 4).number("border", lumiBorderReplicate).pointer("buffer", buffer.data());
  std::vector<NamedFault> faults;
  const auto add = [&](const char* argument, std::initializer_list<int> bad, LumStatus status,
                       int exclusive) {
    for (const int n : bad)
      faults.push_back({[=](NamedCall& c) { c.number(argument, n); }, status, exclusive});
  };
  for (const char* name : {"src", "dst", "buffer"}) faults.push_back(nullFault(name));
  for (const LumiSize roi : {LumiSize{0, 4}, {8, -1}})
    faults.push_back({[=](NamedCall& c) { c.size("roi", roi); }, lumStatusBadSize, 1});
  if (srcBytes > 1) add("srcStep", {33, -1}, lumStatusOddStep, 2);
  if (srcBytes > 2) add("srcStep", {34, -2}, lumStatusOddStep, 2);
  add("dstStep", {33, -1}, lumStatusOddStep, 3);
  if (dstBytes > 2) add("dstStep", {34, -2}, lumStatusOddStep, 3);
  add("mask", {0, 13, 51, 34}, lumStatusBadMaskSize, 4);
  add("norm", {0, 1, 3}, lumStatusBadArgument, 5);
  add("border", {2, 3, 4, 5, 7, 0x100, 0x101, 0x106, 0x13}, lumStatusBadArgument, 6);
  add("srcStep", {0, -4}, lumStatusBadStep, 2);
  add("dstStep", {0, -4}, lumStatusBadStep, 3);
  expectInOrder(right, faults, [&](LumStatus) {
    ASSERT_EQ(dst, std::vector<unsigned char>(256, 0x5a));
    ASSERT_EQ(buffer, std::vector<unsigned char>(4096, 0x5a));
  });
  EXPECT_EQ(right.run(), lumStatusOk);
}

TEST(FilterSobelStatus, OfRuns) {
  for (const auto& [type, src, dst] :
       {std::tuple{"8u16s", 1, 2}, {"16u32f", 2, 4}, {"16s32f", 2, 4}, {"32f", 4, 4}})
    ASSERT_NO_FATAL_FAILURE(expectRunInOrder(type, src, dst)) << type;
}

TEST(FilterSobelStatus, OfGetBufferSize) {
  int size = -7;
  NamedCall right("lumiFilterSobelGetBufferSize");
  right.size("roi", {40, 30}).number("mask", 33).number("norm", 2).number("channels", 1);
  right.number("srcType", lumiData8u).number("dstType", lumiData16s).pointer("size", &size);
  std::vector<NamedFault> faults;
  const auto add = [&](const char* argument, std::initializer_list<int> bad, LumStatus status,
                       int exclusive) {
    for (const int n : bad)
      faults.push_back({[=](NamedCall& c) { c.number(argument, n); }, status, exclusive});
  };
  add("mask", {0, 13, 51, 34}, lumStatusBadMaskSize, 1);
  add("norm", {0, 1, 3, 5}, lumStatusBadArgument, 2);
  add("srcType", {0, 5, 7, 13, 11}, lumStatusBadDataType, 3);
  add("dstType", {0, 1, 5, 13}, lumStatusBadDataType, 3);
  add("channels", {0, 3, 4}, lumStatusBadChannelCount, 4);
  faults.push_back(nullFault("size"));
  for (const LumiSize roi : {LumiSize{0, 4}, {8, -1}})
    faults.push_back({[=](NamedCall& c) { c.size("roi", roi); }, lumStatusBadSize, 5});
  expectInOrder(right, faults, [&](LumStatus) { ASSERT_EQ(size, -7); });
  EXPECT_EQ(right.run(), lumStatusOk);
  EXPECT_EQ(size, 42 * 3 + 80 * 2);
  right.number("dstType", lumiData32f).number("mask", 55);
  for (const auto& [type, bytes] : {std::pair{lumiData16u, 2}, {lumiData16s, 2}, {lumiData32f, 4}}) {
    EXPECT_EQ(right.number("srcType", type).run(), lumStatusOk);
    EXPECT_EQ(size, 44 * 6 * bytes + 80 * 4);
  }
}

}  // namespace
}  // namespace test
