// SPDX-License-Identifier: MIT
// Fast Fourier transforms: results, sizes, statuses in their order, and lives of objects.
#include <gtest/gtest.h>

#include <algorithm>

#include "support/named_faults.hpp"
#include "support/settings.hpp"
#include "transforms/spectrum_runs.hpp"

namespace test {
namespace {

using namespace spectra;

const Family kFft = {"FFT", "orderX", "orderY", true};

const bool covered = [] {
  addCoveredMembers(kFft);
  return true;
}();

LumiSize sizeOf(int orderX, int orderY) { return {1 << orderX, 1 << orderY}; }

class FftOrders : public testing::TestWithParam<int> {};

// Every order of a row with every order of a column, up to where both are split.
TEST_P(FftOrders, RunAsTheDefinition) {
  const CoreGuard guard;
  Random random(mixSeed(settings().seed, "fft", GetParam()));
  double worst = 0;
  for (const TransformRun& member : floatRuns())
    for (int orderY = 0; orderY <= 7; ++orderY)
      if (member.layout == "C1" || random.oneIn(3)) {
        ASSERT_NO_FATAL_FAILURE(expectRun(kFft, member, sizeOf(GetParam(), orderY), random, &worst));
      }
  // The bound of one run is 1. Nearly all stay below a half of it: more would be a table of a lower
  // precision.
  EXPECT_LT(worst, 0.7);
}
INSTANTIATE_TEST_SUITE_P(Rows, FftOrders, testing::Range(0, 9), testing::PrintToStringParamName());

struct LongCase {
  int orderX, orderY;
};
class FftLong : public testing::TestWithParam<LongCase> {};

// Split rows and columns, with tables of their length and, from 2^19 points on, without; factors beyond the
// tables that all transforms share from 2^21 on.
TEST_P(FftLong, RunsAsTheDefinition) {
  Random random(mixSeed(settings().seed, "fft", GetParam().orderX));
  double worst = 0;
  const auto [orderX, orderY] = GetParam();
  for (const bool inverse : {false, true}) {
    for (const TransformRun& member :
         {TransformRun{true, inverse, "C1", true, false}, TransformRun{false, inverse, "C1", false, false}}) {
      // Of the longest ones each is tried in one direction.
      if (orderX + orderY > 18 && member.isComplex == inverse) continue;
      ASSERT_NO_FATAL_FAILURE(expectRun(kFft, member, sizeOf(orderX, orderY), random, &worst));
    }
    if (orderX + orderY < 14) {
      ASSERT_NO_FATAL_FAILURE(
          expectRun(kFft, {false, inverse, "C3", true, false}, sizeOf(orderX, orderY), random, &worst));
    }
  }
}
INSTANTIATE_TEST_SUITE_P(Rows, FftLong,
                         testing::Values(LongCase{1, 11}, LongCase{4, 11}, LongCase{1, 12}, LongCase{9, 9},
                                         LongCase{11, 2}, LongCase{13, 0}, LongCase{0, 13}, LongCase{18, 0},
                                         LongCase{0, 19}, LongCase{20, 0}),
                         [](const auto& param) {
                           return std::to_string(param.param.orderX) + "_" +
                                  std::to_string(param.param.orderY);
                         });

TEST(Fft, RunsFactorsBeyondTheSharedTables) {
  // A single wave has a single value, for which the model is not needed.
  constexpr int kOrder = 21;
  const LumiSize size = sizeOf(kOrder, 0);
  const auto n = static_cast<size_t>(size.width);
  void* object = nullptr;
  ASSERT_EQ(kFft.initAlloc("C_32fc", size, 8).pointer("object", &object).run(), lumStatusOk);
  constexpr size_t kWave = 1234567;
  std::vector<float> image(2 * n);
  for (size_t i = 0; i < n; ++i) {
    const std::complex<double> w = model::unitRoot(i * kWave, n, true);
    image[2 * i] = static_cast<float>(w.real());
    image[2 * i + 1] = static_cast<float>(w.imag());
  }
  NamedCall call("lumiFFTFwd_CToC_32fc_C1IR");
  call.image("srcDst", image.data(), 8 << kOrder).pointer("object", object).pointer("buffer", nullptr);
  ASSERT_EQ(call.run(), lumStatusOk);
  // A fifth of the bound for the whole image, 2.5e-7 times 21.
  EXPECT_NEAR(image[2 * kWave], static_cast<double>(n), 1e-6 * static_cast<double>(n));
  double rest = 0;
  for (size_t i = 0; i < 2 * n; ++i)
    if (i != 2 * kWave) rest += static_cast<double>(image[i]) * image[i];
  EXPECT_LT(std::sqrt(rest), 2.5e-7 * kOrder * static_cast<double>(n));
  EXPECT_EQ(NamedCall("lumiFFTFree_C_32fc").pointer("object", object).run(), lumStatusOk);
}

TEST(Fft, RoundsIntegers) {
  Random random(settings().seed);
  for (const TransformRun& member : integerRuns())
    for (int i = 0; i < 12; ++i)
      ASSERT_NO_FATAL_FAILURE(expectIntegers(kFft, member, sizeOf(random.below(8), random.below(6)), random));
}

// A real image at flag 8 forward, and back at flag 8, is the image times its size.
TEST(Fft, TakesTwoFlagsApart) {
  const LumiSize size = sizeOf(3, 3);
  for (int flag = 1; flag <= 8; flag *= 2) {
    void* object = nullptr;
    ASSERT_EQ(kFft.initAlloc("R_32f", size, flag).pointer("object", &object).run(), lumStatusOk);
    std::vector<float> image(64);
    // Two transforms of 64 values up to 37, whose errors are below 3e-6 of them, times 64 where nothing
    // scales.
    for (size_t i = 0; i < 64; ++i) image[i] = static_cast<float>(i * i % 37);
    const std::vector<float> before = image;
    for (const char* name : {"lumiFFTFwd_RToPack_32f_C1IR", "lumiFFTInv_PackToR_32f_C1IR"}) {
      NamedCall call(name);
      call.image("srcDst", image.data(), 32).pointer("object", object).pointer("buffer", nullptr);
      ASSERT_EQ(call.run(), lumStatusOk);
    }
    for (size_t i = 0; i < 64; ++i)
      EXPECT_NEAR(image[i], before[i] * (flag == 8 ? 64 : 1), flag == 8 ? 2e-3 : 3e-5);
    EXPECT_EQ(NamedCall("lumiFFTFree_R_32f").pointer("object", object).run(), lumStatusOk);
  }
}

// The formulas of the sizes, written out.
struct Bytes {
  int64_t object, init, work;
};
int64_t downTo64(int64_t n) { return n / 64 * 64; }
int64_t upTo64(int64_t n) { return downTo64(n + 63); }
Bytes complexBytes(int order) {
  const int64_t n = int64_t{1} << order;
  if (order <= 6) return {152, 0, 0};
  return {downTo64(8 * n + 71) + downTo64(n + 67) + 192, order >= 11 ? downTo64(n + 67) + 64 : 0,
          upTo64(8 * n) + 64};
}
Bytes realBytes(int order) {
  const int64_t n = int64_t{1} << order, tables = (4 * n + 126) / 128 * 128 + 192;
  if (order <= 4) return {152, 0, 0};
  if (order <= 7) return {tables, 0, 0};
  return {downTo64(4 * n + 71) + downTo64(n / 2 + 67) + tables, order >= 11 ? downTo64(n + 67) + 64 : 0,
          upTo64(4 * n) + 64};
}
int64_t andRoom(int64_t n) { return n > 0 ? n + 64 : 0; }

TEST(Fft, TellsSizes) {
  for (int x = 0; x <= 17; ++x) {
    for (int y = 0; y <= 17; ++y) {
      const int64_t width = int64_t{1} << x, height = int64_t{1} << y;
      const Bytes rx = realBytes(x), ry = realBytes(y), cx = complexBytes(x), cy = complexBytes(y);
      const int other = x == y ? 0 : 1;
      int told[3];
      ASSERT_EQ(kFft.getSize("R_32f", sizeOf(x, y), 8, told).run(), lumStatusOk);
      EXPECT_EQ(told[0], upTo64(rx.object) + other * upTo64(ry.object) + upTo64(cy.object) + 128)
          << x << " " << y;
      EXPECT_EQ(told[1], andRoom(upTo64(rx.init) + other * upTo64(ry.init) + upTo64(cy.init)))
          << x << " " << y;
      EXPECT_EQ(told[2],
                upTo64(std::max({16 * width + rx.work, 16 * height + ry.work, 64 * height + cy.work})) + 64)
          << x << " " << y;
      ASSERT_EQ(kFft.getSize("C_32fc", sizeOf(x, y), 8, told).run(), lumStatusOk);
      EXPECT_EQ(told[0], upTo64(cx.object) + other * upTo64(cy.object) + 128) << x << " " << y;
      EXPECT_EQ(told[1], andRoom(upTo64(cx.init) + other * upTo64(cy.init))) << x << " " << y;
      EXPECT_EQ(told[2], upTo64(std::max(cx.work, cy.work + 64 * height)) + 64) << x << " " << y;
    }
  }
  void* object = nullptr;
  int bytes = 0, inner[3];
  ASSERT_EQ(kFft.initAlloc("R_32s", sizeOf(5, 6), 1).pointer("object", &object).run(), lumStatusOk);
  NamedCall query("lumiFFTGetBufSize_R_32s");
  ASSERT_EQ(query.pointer("object", object).pointer("bufferSize", &bytes).run(), lumStatusOk);
  ASSERT_EQ(kFft.getSize("R_32f", sizeOf(5, 6), 1, inner).run(), lumStatusOk);
  EXPECT_EQ(bytes, (16 * 64 + 4) * 32 + inner[2] + 64);
  EXPECT_EQ(NamedCall("lumiFFTFree_R_32s").pointer("object", object).run(), lumStatusOk);
}

void addOrders(std::vector<NamedFault>& faults, const char* name, const std::vector<int>& orders) {
  for (const int n : orders)
    faults.push_back({[=](NamedCall& c) { c.number(name, n); }, lumStatusBadFftOrder, name[5]});
}
void addFlags(std::vector<NamedFault>& faults) {
  for (const int flag : {0, 3, -1, 16, 5})
    faults.push_back({[=](NamedCall& c) { c.number("flag", flag); }, lumStatusBadTransformFlag, 1});
}
// Of both axes: the first one is tested whole before the second.
void addAxes(std::vector<NamedFault>& faults, bool isReal) {
  addOrders(faults, "orderX", {-1, INT32_MIN});
  addFlags(faults);
  addOrders(faults, "orderX", isReal ? std::vector<int>{30} : std::vector<int>{29, 30});
  addOrders(faults, "orderY", {29, 30, -5});
}

TEST(FftStatus, OfSizes) {
  for (const bool isReal : {false, true}) {
    int told[3] = {-7, -7, -7};
    const NamedCall right = kFft.getSize(isReal ? "R_32f" : "C_32fc", sizeOf(3, 2), 4, told);
    std::vector<NamedFault> faults = {nullFault("objectSize"), nullFault("initSize"),
                                      nullFault("bufferSize")};
    addOrders(faults, "orderX", {31, INT32_MAX});
    addAxes(faults, isReal);
    addOrders(faults, "orderY", {31, 99});
    expectInOrder(right, faults, [&](LumStatus) { ASSERT_EQ(told[0] + told[1] + told[2], -21); });
    EXPECT_EQ(right.run(), lumStatusOk);
    EXPECT_EQ(NamedCall(right).number("orderX", 28).number("orderY", 28).run(), lumStatusOk);
    EXPECT_GT(told[0], 0);
    EXPECT_EQ(NamedCall(right).number("orderX", 29).run(), isReal ? lumStatusOk : lumStatusBadFftOrder);
  }
}

TEST(FftStatus, OfInit) {
  for (const std::string kind : {"C_32fc", "R_32f"}) {
    const std::vector<Byte> before(120000, 0x5a);
    std::vector<Byte> object = before, scratch(10000);
    const bool isReal = kind[0] == 'R';
    for (const int order : {3, 11}) {
      NamedCall right = kFft.init(kind, sizeOf(order, 2), 2, order > 10 ? scratch.data() : nullptr);
      right.pointer("object", object.data());
      std::vector<NamedFault> faults;
      addOrders(faults, "orderX", {31, INT32_MAX});
      addOrders(faults, "orderY", {31, 99});
      faults.push_back(nullFault("object"));
      addAxes(faults, isReal);
      if (order > 10) {
        faults.push_back(nullFault("scratch"));
        faults.back().exclusive = 'X';  // no scratch is needed without the order
      }
      expectInOrder(right, faults, [&](LumStatus) { ASSERT_EQ(object, before); });
      EXPECT_EQ(right.run(), lumStatusOk);
      object = before;
    }
  }
}

TEST(FftStatus, OfAllocatedObjects) {
  for (const std::string kind : {"C_32fc", "R_32f", "R_32s"}) {
    int any = 0;
    void* const nowhere = &any;
    void* object = nowhere;
    NamedCall right = kFft.initAlloc(kind, sizeOf(7, 12), 2);
    right.pointer("object", &object);
    std::vector<NamedFault> faults = {nullFault("object")};
    addOrders(faults, "orderX", {31, INT32_MAX});
    addAxes(faults, kind[0] == 'R');
    addOrders(faults, "orderY", {31, 99});
    expectInOrder(right, faults, [&](LumStatus) { ASSERT_EQ(object, nowhere); });
    expectAllocatedObjects(kFft, right, kind);
  }
}

// Four planes of floats alone are 2^32 bytes: no image is touched, and nothing is allocated.
TEST(FftStatus, OfScratchThatNoSizeTells) {
  void* object = nullptr;
  ASSERT_EQ(kFft.initAlloc("R_32s", sizeOf(14, 14), 8).pointer("object", &object).run(), lumStatusOk);
  int bytes = 0;
  NamedCall query("lumiFFTGetBufSize_R_32s");
  EXPECT_EQ(query.pointer("object", object).pointer("bufferSize", &bytes).run(), lumStatusOk);
  EXPECT_EQ(bytes, INT32_MAX);
  Byte any[64] = {};
  for (void* const buffer : {static_cast<void*>(nullptr), static_cast<void*>(any)}) {
    NamedCall call("lumiFFTFwd_RToPack_8u32s_C1RSfs");
    call.image("src", any, 64).image("dst", any, 64).pointer("object", object).pointer("buffer", buffer);
    EXPECT_EQ(call.run(), lumStatusNoMemory);
  }
  EXPECT_EQ(NamedCall("lumiFFTFree_R_32s").pointer("object", object).run(), lumStatusOk);
}

TEST(FftStatus, OfRuns) { expectRunStatuses(kFft); }

}  // namespace
}  // namespace test
