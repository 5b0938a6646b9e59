// SPDX-License-Identifier: MIT
// Histograms of oriented gradients: sizes, and statuses in the order of the checks.
#include <gtest/gtest.h>

#include <limits>

#include "lumi/hog.h"
#include "support/named_faults.hpp"

namespace test {
namespace {

using Byte = unsigned char;

constexpr LumiHOGConfig kPedestrians = {0, 8, 16, 8, 9, 4, 0.2F, 64, 128};
constexpr int kObjectBytes = 72 + 16 * 256;

template <typename Change>
NamedFault configFault(Change change, LumStatus status) {
  static std::vector<std::unique_ptr<LumiHOGConfig>> kept;
  kept.push_back(std::make_unique<LumiHOGConfig>(kPedestrians));
  LumiHOGConfig* const config = kept.back().get();
  change(*config);
  return {[=](NamedCall& c) { c.pointer("config", config); }, status, 1};
}

std::vector<NamedFault> configFaults() {
  std::vector<NamedFault> faults;
  const auto add = [&](auto change, LumStatus status = lumStatusUnsupportedMode) {
    faults.push_back(configFault(change, status));
  };
  using C = LumiHOGConfig;
  for (const int cell : {1, 0, -8, 17, INT32_MIN, INT32_MAX}) {
    add([=](C& c) { c.cellSize = cell, c.blockSize = static_cast<int>(2U * static_cast<unsigned>(cell)); });
    add([=](C& c) { c.binCount = cell; });
  }
  for (const int block : {15, 17, 8, 24, 0, -16, 65, INT32_MIN}) add([=](C& c) { c.blockSize = block; });
  for (const int stride : {4, 12, 0, -8, 1, INT32_MIN}) add([=](C& c) { c.blockStride = stride; });
  for (const float bad : {0.0F, -1.0F, std::numeric_limits<float>::quiet_NaN()}) {
    add([=](C& c) { c.sigma = bad; });
    add([=](C& c) { c.clipping = bad; });
  }
  // Both at once: the configuration's mode decides.
  add([](C& c) { c.windowWidth = 0, c.blockStride = 0; });
  for (const int side : {15, 17, 23, 0, -16, INT32_MIN}) {
    add([=](C& c) { c.windowWidth = side; }, lumStatusBadSize);
    add([=](C& c) { c.windowHeight = side; }, lumStatusBadSize);
  }
  return faults;
}

TEST(HogStatus, OfGetSize) {
  int size = -7;
  NamedCall right("lumiHOGGetSize");
  right.pointer("config", &kPedestrians).pointer("size", &size);
  std::vector<NamedFault> faults = {nullFault("config"), nullFault("size")};
  faults[0].exclusive = 1;
  for (NamedFault& fault : configFaults()) faults.push_back(fault);
  expectInOrder(right, faults, [&](LumStatus) { ASSERT_EQ(size, -7); });
  EXPECT_EQ(right.run(), lumStatusOk);
  EXPECT_EQ(size, kObjectBytes);
}

TEST(HogStatus, OfInit) {
  std::vector<Byte> object(kObjectBytes, 0x5a);
  NamedCall right("lumiHOGInit");
  right.pointer("config", &kPedestrians).pointer("spec", object.data());
  std::vector<NamedFault> faults = {nullFault("config"), nullFault("spec")};
  faults[0].exclusive = 1;
  for (NamedFault& fault : configFaults()) faults.push_back(fault);
  expectInOrder(right, faults, [&](LumStatus) { ASSERT_EQ(object, std::vector<Byte>(kObjectBytes, 0x5a)); });
  EXPECT_EQ(right.run(), lumStatusOk);
}

// Limits of what is taken.
TEST(HogStatus, TakesEveryOtherConfiguration) {
  for (const int cell : {2, 3, 16})
    for (const int bins : {2, 16})
      for (const int stride : {cell, 5 * cell}) {
        const LumiHOGConfig c = {7, cell, 2 * cell, stride, bins, 1e-30F, 1e30F, 2 * cell, 2 * cell + stride};
        int size = 0;
        EXPECT_EQ(lumiHOGGetSize(&c, &size), lumStatusOk);
        EXPECT_EQ(size, 72 + 64 * cell * cell);
      }
}

struct Object {
  std::vector<Byte> memory = std::vector<Byte>(kObjectBytes), none = memory;

  explicit Object(const LumiHOGConfig& config = kPedestrians) {
    EXPECT_EQ(lumiHOGInit(&config, spec()), lumStatusOk);
  }
  LumiHOGSpec* spec() { return reinterpret_cast<LumiHOGSpec*>(memory.data()); }
  // Memory that is no object.
  NamedFault fault() const {
    return {[this](NamedCall& c) { c.pointer("spec", none.data()); }, lumStatusBadContext, 1};
  }
};

NamedFault nullObject() {
  NamedFault fault = nullFault("spec");
  fault.exclusive = 1;
  return fault;
}

void addSizes(std::vector<NamedFault>& faults) {
  for (const LumiSize roi : {LumiSize{63, 200}, {200, 127}, {0, 0}, {-64, -128}})
    faults.push_back({[=](NamedCall& c) { c.size("roi", roi); }, lumStatusBadSize, 2});
}

TEST(HogStatus, OfGetBufferSize) {
  Object object;
  int size = -7;
  NamedCall right("lumiHOGGetBufferSize");
  right.pointer("spec", object.spec()).size("roi", {64, 200}).pointer("size", &size);
  std::vector<NamedFault> faults = {nullObject(), nullFault("size"), object.fault()};
  addSizes(faults);
  expectInOrder(right, faults, [&](LumStatus) { ASSERT_EQ(size, -7); });
  EXPECT_EQ(right.run(), lumStatusOk);
  EXPECT_EQ(size, 12 * 64 * 200);
}

TEST(HogStatus, OfGetDescriptorSize) {
  Object object;
  int size = -7;
  NamedCall right("lumiHOGGetDescriptorSize");
  right.pointer("spec", object.spec()).pointer("size", &size);
  expectInOrder(right, {nullObject(), nullFault("size"), object.fault()},
                [&](LumStatus) { ASSERT_EQ(size, -7); });
  EXPECT_EQ(right.run(), lumStatusOk);
  EXPECT_EQ(size, 15120);
  LumiHOGConfig large = kPedestrians;  // 2^27 - 1 blocks in either direction
  large.windowWidth = large.windowHeight = 1 << 30;
  Object other(large);
  EXPECT_EQ(right.pointer("spec", other.spec()).run(), lumStatusOk);
  const unsigned across = (1U << 27) - 1;
  EXPECT_EQ(static_cast<unsigned>(size), across * across * 144U);
}

void expectRunInOrder(const std::string& name, int sampleBytes, int channels) {
  Object object;
  const int row = 64 * channels * sampleBytes;
  const std::vector<Byte> image(static_cast<size_t>(row * 128)), value(16);
  std::vector<Byte> buffer(12 * 64 * 128, 0x5a), descriptors(2 * 15120, 0x5a);
  const LumiPoint locations[] = {{0, 0}, {1, 0}};
  NamedCall right(name);
  right.image("src", image.data(), row).size("roi", {64, 128}).pointer("locations", locations);
  right.number("locationCount", 2).pointer("descriptors", descriptors.data()).pointer("spec", object.spec());
  right.number("border", lumiBorderMirror).values("borderValue", value.data());
  right.pointer("buffer", buffer.data());
  const auto step = [&](int n, LumStatus status) {
    return NamedFault{[=](NamedCall& c) { c.image("src", image.data(), n); }, status, 3};
  };
  NamedFault noImage{[=](NamedCall& c) { c.image("src", nullptr, row); }, lumStatusNullPointer, 3};
  std::vector<NamedFault> faults = {noImage, nullFault("descriptors"), nullObject(), nullFault("buffer")};
  if (channels == 3) faults.push_back(nullFault("borderValue"));
  faults.push_back(object.fault());
  for (const int bad : {0, -1, -row}) faults.push_back(step(bad, lumStatusBadStep));
  if (sampleBytes > 1) faults.push_back(step(row + 1, lumStatusOddStep));
  if (sampleBytes > 2) faults.push_back(step(row + 2, lumStatusOddStep));
  addSizes(faults);
  for (const int bad : {0, -1, INT32_MIN})
    faults.push_back({[=](NamedCall& c) { c.number("locationCount", bad); }, lumStatusBadArgument, 4});
  faults.push_back(nullFault("locations"));
  for (const int bad : {2, 4, 5, 7, 0xF4, 0x108, -1})
    faults.push_back({[=](NamedCall& c) { c.number("border", bad); }, lumStatusBadBorder, 5});
  expectInOrder(right, faults, [&](LumStatus) {
    ASSERT_EQ(buffer, std::vector<Byte>(buffer.size(), 0x5a));
    ASSERT_EQ(descriptors, std::vector<Byte>(descriptors.size(), 0x5a));
  });
  EXPECT_EQ(right.run(), lumStatusOk);
  // The second window lies outside: its descriptor is not stored.
  const std::vector<Byte> second(descriptors.begin() + 15120, descriptors.end());
  EXPECT_EQ(second, std::vector<Byte>(15120, 0x5a));
  EXPECT_EQ(right.number("locationCount", 1).pointer("locations", nullptr).run(), lumStatusOk);
}

TEST(HogStatus, OfRuns) {
  for (const int channels : {1, 3})
    for (const auto& [type, bytes] : {std::pair{"8u32f", 1}, {"16u32f", 2}, {"16s32f", 2}, {"32f", 4}}) {
      const std::string name = "lumiHOG_" + std::string(type) + "_C" + std::to_string(channels) + "R";
      ASSERT_NO_FATAL_FAILURE(expectRunInOrder(name, bytes, channels)) << name;
    }
}

}  // namespace
}  // namespace test
