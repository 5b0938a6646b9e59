// SPDX-License-Identifier: MIT
// Statuses of bilateral filters in their order.
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <limits>
#include <string>
#include <vector>

#include "lumi/filter_bilateral.h"
#include "support/named_faults.hpp"

namespace test {
namespace {

NamedFault wrong(const char* name, double number, LumStatus status, int exclusive = 0) {
  return {[=](NamedCall& c) { c.number(name, number); }, status, exclusive};
}
NamedFault wrong(const char* name, LumiSize size, LumStatus status) {
  return {[=](NamedCall& c) { c.size(name, size); }, status};
}

void addCommon(std::vector<NamedFault>& faults) {
  for (const LumiSize roi : {LumiSize{0, 1}, LumiSize{1, -1}})
    faults.push_back(wrong("roi", roi, lumStatusBadSize));
  for (const int radius : {0, -1}) faults.push_back(wrong("radius", radius, lumStatusBadMaskSize));
  for (const int type : {99, 101}) faults.push_back(wrong("filterType", type, lumStatusUnsupportedMode));
  for (const int method : {1, 3}) faults.push_back(wrong("distanceMethod", method, lumStatusUnsupportedMode));
  for (const int type : {0, 5, 7, 19}) faults.push_back(wrong("dataType", type, lumStatusBadDataType));
  for (const int channels : {0, 2, 4})
    faults.push_back(wrong("channels", channels, lumStatusBadChannelCount));
}

TEST(BilateralBorder, FaultsOfSizesAndObjects) {
  int sizes[2] = {-21, -21};
  NamedCall query("lumiFilterBilateralBorderGetBufferSize");
  query.number("filterType", 100).size("roi", {9, 9}).number("radius", 2).number("dataType", lumiData8u);
  query.number("channels", 1).number("distanceMethod", 2).pointer("specSize", &sizes[0]);
  query.pointer("bufferSize", &sizes[1]);
  std::vector<NamedFault> faults = {nullFault("specSize"), nullFault("bufferSize")};
  addCommon(faults);
  expectInOrder(query, faults, [&](LumStatus) { ASSERT_TRUE(sizes[0] == -21 && sizes[1] == -21); });
  ASSERT_EQ(query.run(), lumStatusOk);
  std::vector<unsigned char> object(static_cast<size_t>(sizes[0]), 99), before = object;
  NamedCall init("lumiFilterBilateralBorderInit");
  init.number("filterType", 100).size("roi", {9, 9}).number("radius", 2).number("dataType", lumiData8u);
  init.number("channels", 1).number("distanceMethod", 2).number("valueVariance", 1);
  init.number("positionVariance", 1).pointer("spec", object.data());
  faults = {nullFault("spec")};
  addCommon(faults);
  expectInOrder(init, faults, [&](LumStatus) { ASSERT_EQ(object, before); });
  EXPECT_EQ(init.run(), lumStatusOk);
}

struct Type {
  const char* name;
  LumiDataType type;
  int channels;
};
constexpr Type kTypes[] = {{"8u_C1R", 1, 1}, {"8u_C3R", 1, 3}, {"32f_C1R", 13, 1}, {"32f_C3R", 13, 3}};

TEST(BilateralBorder, FaultsOfRuns) {
  alignas(8) unsigned char image[512] = {}, result[512] = {}, buffer[4096], objects[4][8192] = {},
                           none[8192] = {};
  int i = 0;
  for (const Type& t : kTypes)
    ASSERT_EQ(lumiFilterBilateralBorderInit(100, {5, 5}, 3, t.type, t.channels, 2, 9, 9,
                                            reinterpret_cast<LumiFilterBilateralBorderSpec*>(objects[i++])),
              lumStatusOk);
  for (int own = 0; own < 4; ++own) {
    std::vector<NamedFault> faults = {nullFault("src"),
                                      nullFault("dst"),
                                      nullFault("spec"),
                                      nullFault("buffer"),
                                      wrong("roi", {0, 3}, lumStatusBadSize),
                                      wrong("roi", {3, 0}, lumStatusBadSize)};
    for (const int border : {2, 3, 4, 5, 7, 0x12, 0xFF, -1})
      faults.push_back(wrong("border", border, lumStatusBadBorder));
    for (unsigned char* other :
         {none, objects[(own + 1) % 4], objects[(own + 2) % 4], objects[(own + 3) % 4]})
      faults.push_back({[=](NamedCall& c) { c.pointer("spec", other); }, lumStatusBadContext, 1});
    faults[2].exclusive = 1;
    // Every field that tells what the object is, and its place. The memory's own is a multiple of 8.
    alignas(8) unsigned char changed[6][8192];
    const int fields[] = {0, 8, 12, 16, 20, 24};
    for (int f = 0; f < 6; ++f) {
      std::copy(std::begin(objects[own]), std::end(objects[own]), changed[f]);
      changed[f][fields[f]] ^= 16;
      faults.push_back(
          {[spec = changed[f]](NamedCall& c) { c.pointer("spec", spec); }, lumStatusBadContext, 1});
    }
    NamedCall right("lumiFilterBilateralBorder_" + std::string(kTypes[own].name));
    right.image("src", image, 64)
        .image("dst", result, 64)
        .size("roi", {5, 5})
        .number("border", lumiBorderReplicate);
    right.pointer("borderValue", nullptr).pointer("spec", objects[own]).pointer("buffer", buffer);
    expectInOrder(right, faults, [&](LumStatus) {
      ASSERT_TRUE(std::all_of(std::begin(result), std::end(result), [](int byte) { return byte == 0; }));
    });
    EXPECT_EQ(right.run(), lumStatusOk);
  }
}

TEST(GridBilateral, Faults) {
  int size = -21;
  NamedCall query("lumiFilterBilateralGetBufSize_8u_C1R");
  query.number("filterType", 101).size("roi", {3, 3}).size("maskSize", {3, 3}).pointer("size", &size);
  const std::vector<NamedFault> ofMask = {wrong("maskSize", {0, 3}, lumStatusBadMaskSize),
                                          wrong("maskSize", {3, -1}, lumStatusBadMaskSize)};
  std::vector<NamedFault> faults = {nullFault("size"), wrong("roi", {0, 3}, lumStatusBadSize),
                                    wrong("roi", {3, 0}, lumStatusBadSize)};
  faults.insert(faults.end(), ofMask.begin(), ofMask.end());
  for (const int type : {99, 102}) faults.push_back(wrong("filterType", type, lumStatusUnsupportedMode));
  expectInOrder(query, faults, [&](LumStatus) { ASSERT_EQ(size, -21); });
  EXPECT_EQ(query.run(), lumStatusOk);
  EXPECT_EQ(size, 16 + 4 * (256 + 2));

  std::vector<unsigned char> object(16 + 4 * 512, 99), before = object;
  NamedCall init("lumiFilterBilateralInit_8u_C1R");
  init.number("filterType", 100).size("maskSize", {3, 3}).number("valueSigma", 5).number("positionSigma", 5);
  init.number("step", 1).pointer("spec", object.data());
  faults = {nullFault("spec")};
  faults.insert(faults.end(), ofMask.begin(), ofMask.end());
  const double nan = std::numeric_limits<double>::quiet_NaN();
  for (const char* sigma : {"valueSigma", "positionSigma"})
    for (const double bad : {0.0, -1.0, nan}) faults.push_back(wrong(sigma, bad, lumStatusBadArgument));
  for (const int step : {0, -1}) faults.push_back(wrong("step", step, lumStatusBadArgument));
  for (const int type : {99, 102}) faults.push_back(wrong("filterType", type, lumStatusUnsupportedMode));
  expectInOrder(init, faults, [&](LumStatus) { ASSERT_EQ(object, before); });
  for (const LumiSize mask : {LumiSize{513, 3}, LumiSize{3, 514}, LumiSize{2147483647, 2147483647}})
    EXPECT_EQ(init.size("maskSize", mask).run(), lumStatusBadMaskSize);
  EXPECT_EQ(init.size("maskSize", {512, 512}).run(), lumStatusOk);
  EXPECT_EQ(init.size("maskSize", {600, 600}).number("step", 260).run(), lumStatusBadMaskSize);
  EXPECT_EQ(init.size("maskSize", {514, 514}).number("step", 255).run(), lumStatusOk);
}

TEST(GridBilateral, FaultsOfRuns) {
  alignas(4) unsigned char object[2048] = {}, none[2048] = {}, image[25] = {}, result[25] = {};
  ASSERT_EQ(lumiFilterBilateralInit_8u_C1R(101, {3, 3}, 5, 5, 1,
                                           reinterpret_cast<LumiFilterBilateralSpec*>(object)),
            lumStatusOk);
  NamedCall right("lumiFilterBilateral_8u_C1R");
  right.image("src", image + 6, 5).image("dst", result + 6, 5).size("roi", {3, 3}).size("maskSize", {3, 3});
  right.pointer("spec", object);
  const std::vector<NamedFault> faults = {
      nullFault("src"),
      nullFault("dst"),
      nullFault("spec"),
      wrong("roi", {0, 3}, lumStatusBadSize),
      wrong("maskSize", {3, 0}, lumStatusBadSize),
      wrong("srcStep", 0, lumStatusBadStep),
      wrong("dstStep", -5, lumStatusBadStep),
      {[&](NamedCall& c) { c.pointer("spec", none); }, lumStatusBadContext, 1},
  };
  std::vector<NamedFault> apart = faults;
  apart[2].exclusive = 1;
  expectInOrder(right, apart, [&](LumStatus) { ASSERT_EQ(result[6], 0); });
  EXPECT_EQ(right.run(), lumStatusOk);
}

}  // namespace
}  // namespace test
