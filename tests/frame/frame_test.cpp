// SPDX-License-Identifier: MIT
// Pieces of the frame on invented operations: checks in turn, walks that keep or add up results, scratch and
// objects from the core library.
#include <gtest/gtest.h>

#include <vector>

#include "frame/check.hpp"
#include "frame/rows.hpp"
#include "frame/scratch.hpp"
#include "support/core_guard.hpp"

namespace test {
namespace {

struct Plan {
  Lum32s identifier;
  int value;
};
constexpr Lum32s kPlan = 0x1234;

LumStatus identityOf(const Plan* plan) {
  return plan->identifier == kPlan ? lumStatusOk : lumStatusBadContext;
}

TEST(Frame, ChecksAreEvaluatedInTurn) {
  using namespace lumi::check;
  const auto check = [](const Plan* plan, LumiSize roi) {
    return firstFault(
        pointers(plan), [=] { return identityOf(plan); }, size(roi));
  };
  const Plan good{kPlan, 0}, bad{0, 0};
  EXPECT_EQ(check(nullptr, {0, 0}), lumStatusNullPointer);
  EXPECT_EQ(check(&bad, {0, 0}), lumStatusBadContext);
  EXPECT_EQ(check(&good, {1, 0}), lumStatusBadSize);
  EXPECT_EQ(check(&good, {1, 1}), lumStatusOk);
}

// A quotient of bytes: a zero divisor gives 255 and a warning, a zero dividend another one.
LumStatus divideRow(const Lum8u* a, const Lum8u* b, Lum8u* dst, size_t length) {
  LumStatus status = lumStatusOk;
  for (size_t i = 0; i < length; ++i) {
    dst[i] = static_cast<Lum8u>(b[i] ? a[i] / b[i] : 255);
    const LumStatus here = !b[i] ? lumStatusDivideByZeroWarning : !a[i] ? lumStatusLogOfZero : lumStatusOk;
    if (status == lumStatusOk) status = here;
  }
  return status;
}

TEST(Frame, TheFirstStatusIsKeptAndEveryRowIsDone) {
  const Lum8u a[] = {8, 6, 0, 9, 5, 4}, b[] = {2, 3, 1, 0, 5, 0};
  Lum8u dst[6] = {};
  const auto walk = [&](int rows) {
    return lumi::walkKeepingFirst(
        rows, [](auto x, auto y, auto d) { return divideRow(x, y, d, 2); }, lumi::rows(a, 2),
        lumi::rows(b, 2), lumi::rows(dst, 2));
  };
  EXPECT_EQ(walk(1), lumStatusOk);
  EXPECT_EQ(walk(3), lumStatusLogOfZero) << "of row 1, not that of row 2";
  EXPECT_EQ(std::vector<Lum8u>(dst, dst + 6), (std::vector<Lum8u>{4, 2, 0, 255, 1, 255}));
}

TEST(Frame, RowsAreAddedUpInOrder) {
  const Lum8u image[] = {1, 2, 99, 3, 4, 99, 5, 6};
  const auto sum = lumi::walkAccumulating(
      3, std::vector<int>(),
      [](std::vector<int> all, const Lum8u* row) {
        all.push_back(row[0] + row[1]);
        return all;
      },
      lumi::rows(image, 3));
  EXPECT_EQ(sum, (std::vector<int>{3, 7, 11}));
}

LumStatus needsScratch(int64_t bytes, LumStatus result, bool* worked) {
  const lumi::Scratch scratch(bytes);
  if (!scratch) return lumStatusNoMemory;
  *static_cast<Lum8u*>(scratch.data()) = 1;
  *worked = true;
  return result;
}

TEST(Frame, ScratchIsGivenBackOnEveryWayOut) {
  const CoreGuard guard;
  bool worked = false;
  EXPECT_EQ(needsScratch(100, lumStatusOk, &worked), lumStatusOk);
  EXPECT_EQ(needsScratch(100, lumStatusBadRange, &worked), lumStatusBadRange);
  EXPECT_TRUE(worked);
  EXPECT_EQ(testcore::counts().allocations, 2);
  EXPECT_EQ(testcore::counts().liveBlocks, 0);
  worked = false;
  testcore::failAllocation(1);
  EXPECT_EQ(needsScratch(100, lumStatusOk, &worked), lumStatusNoMemory);
  EXPECT_EQ(needsScratch(int64_t{1} << 31, lumStatusOk, &worked), lumStatusNoMemory);
  EXPECT_FALSE(worked);
  EXPECT_EQ(testcore::counts().allocations, 3) << "nobody is asked for 2 GiB";
  EXPECT_EQ(testcore::counts().liveBlocks, 0);
  EXPECT_EQ(testcore::counts().nullFrees, 0);
}

TEST(Frame, ObjectsLiveUntilTheyAreFreed) {
  const CoreGuard guard;
  struct Opaque;
  Opaque* object = nullptr;
  const auto init = [](LumStatus status) {
    return [=](Opaque* there) {
      *lumi::objectAt<Plan>(there) = {kPlan, 5};
      return status;
    };
  };
  constexpr int64_t kBytes = sizeof(Plan) + 63;
  EXPECT_EQ(lumi::allocateObject(&object, kBytes, init(lumStatusBadSize)), lumStatusBadSize);
  testcore::failAllocation(1);
  EXPECT_EQ(lumi::allocateObject(&object, kBytes, init(lumStatusOk)), lumStatusNoMemory);
  EXPECT_EQ(object, nullptr);
  EXPECT_EQ(testcore::counts().liveBlocks, 0);

  testcore::setBlockOffset(17);
  ASSERT_EQ(lumi::allocateObject(&object, kBytes, init(lumStatusOk)), lumStatusOk);
  ASSERT_NE(object, nullptr);
  EXPECT_EQ(lumi::objectAt<Plan>(object)->value, 5);
  EXPECT_EQ(testcore::counts().liveBlocks, 1);
  EXPECT_EQ((lumi::freeObject<Plan, Opaque>(nullptr, kPlan)), lumStatusNullPointer);
  EXPECT_EQ(lumi::freeObject<Plan>(object, kPlan + 1), lumStatusBadContext);
  EXPECT_EQ(testcore::counts().liveBlocks, 1);
  EXPECT_EQ(lumi::freeObject<Plan>(object, kPlan), lumStatusOk);
  EXPECT_EQ(testcore::counts().liveBlocks, 0);
  EXPECT_EQ(testcore::counts().strayFrees, 0);
}

}  // namespace
}  // namespace test
