// SPDX-License-Identifier: MIT
// The steps of objects on an object of this test's own.
#include <gtest/gtest.h>

#include <cstring>

#include "lumcore.h"
#include "selftest/invented.hpp"
#include "support/object_memory.hpp"

namespace test {
namespace {

enum class Mistake {
  None,
  LargerObject,
  LargerScratch,
  WritesObject,
  OtherStatus,
  LeavesBlock,
  FreesNothing,
  NoStatus
};
Mistake mistake = Mistake::None;

constexpr int kBytes = 24, kScratch = 40;

extern "C" {
[[gnu::force_align_arg_pointer]] LumStatus inventedGetSize(int, int* size) {
  *size = kBytes;
  return lumStatusOk;
}
[[gnu::force_align_arg_pointer]] LumStatus inventedInit(int gain, void* object) {
  std::memset(object, gain, kBytes + (mistake == Mistake::LargerObject));
  return lumStatusOk;
}
[[gnu::force_align_arg_pointer]] LumStatus inventedGetBufferSize(const void*, int* size) {
  *size = kScratch;
  return lumStatusOk;
}
[[gnu::force_align_arg_pointer]] LumStatus inventedRun(const Lum8u* src, Lum8u* dst, void* object,
                                                       void* buffer) {
  auto* const spec = static_cast<unsigned char*>(object);
  auto* const scratch = static_cast<unsigned char*>(buffer);
  std::memset(scratch, 1, kScratch);
  if (mistake == Mistake::LargerScratch) scratch[kScratch] ^= 1;
  if (mistake == Mistake::WritesObject) *const_cast<volatile unsigned char*>(spec) = spec[0];
  *dst = static_cast<Lum8u>(*src * spec[0]);
  return mistake == Mistake::OtherStatus ? lumStatusBadArgument : lumStatusOk;
}
[[gnu::force_align_arg_pointer]] LumStatus inventedInitAlloc(void** object) {
  void* const first = lumMalloc(8);
  void* const second = first ? lumMalloc(8) : nullptr;
  if (!second) {
    if (mistake != Mistake::LeavesBlock) lumFree(first);
    return mistake == Mistake::NoStatus ? lumStatusOk : lumStatusNoMemory;
  }
  std::memcpy(first, &second, sizeof second);
  *object = first;
  return lumStatusOk;
}
[[gnu::force_align_arg_pointer]] LumStatus inventedFree(void* object) {
  void* second = nullptr;
  std::memcpy(&second, object, sizeof second);
  if (mistake != Mistake::FreesNothing) lumFree(second);
  lumFree(object);
  return lumStatusOk;
}
}

const Argument kGain = passed(Kind::Number, Passing::Int32, "gain"), kSize = pointerOf(Kind::Pointer, "size"),
               kObject = pointerOf(Kind::Pointer, "object"), kBuffer = pointerOf(Kind::Pointer, "buffer");
const ExportRow kGetSize = invented(inventedGetSize, {}, {}, {kGain, kSize}),
                kInit = invented(inventedInit, {}, {}, {kGain, kObject}),
                kGetBufferSize = invented(inventedGetBufferSize, {}, {}, {kObject, kSize}),
                kRun = invented(
                    inventedRun, {}, {},
                    {pointerOf(Kind::Image, "src"), pointerOf(Kind::Image, "dst"), kObject, kBuffer}),
                kInitAlloc = invented(inventedInitAlloc, {}, {}, {kObject}),
                kFree = invented(inventedFree, {}, {}, {kObject});

// The first failure of many lives, or nothing.
std::string failureOf(Mistake made) {
  mistake = made;
  Random random(7);
  std::string failure;
  for (int i = 0; i < 20 && failure.empty(); ++i) {
    ObjectSteps steps(random);
    const Lum8u src = 5;
    Lum8u dst = 0;
    failure = steps.init(NamedCall(kGetSize).number("gain", 3), "size", NamedCall(kInit).number("gain", 3),
                         "object");
    if (failure.empty())
      failure = steps.makeScratch(NamedCall(kGetBufferSize).pointer("object", steps.object().at()), "size");
    if (failure.empty())
      failure = steps.run(NamedCall(kRun).pointer("src", &src).pointer("dst", &dst), "object", "buffer");
    if (failure.empty() && dst != 15) failure = "a result of " + std::to_string(dst);
  }
  mistake = Mistake::None;
  return failure;
}

TEST(ObjectSteps, FindEachMistake) {
  EXPECT_EQ(failureOf(Mistake::None), "");
  for (const Mistake each :
       {Mistake::LargerObject, Mistake::LargerScratch, Mistake::WritesObject, Mistake::OtherStatus})
    EXPECT_NE(failureOf(each), "") << static_cast<int>(each);
}

TEST(ObjectSteps, AllocatedLives) {
  const auto failure = [](Mistake made) {
    mistake = made;
    int uses = 0;
    std::string result = expectAllocatedLife(NamedCall(kInitAlloc), "object", NamedCall(kFree), "object",
                                             [&](void* object) { uses += object != nullptr; });
    mistake = Mistake::None;
    return uses == 1 ? result : "not used once";
  };
  EXPECT_EQ(failure(Mistake::None), "");
  EXPECT_NE(failure(Mistake::LeavesBlock), "");
  EXPECT_NE(failure(Mistake::FreesNothing), "");
  EXPECT_NE(failure(Mistake::NoStatus), "");
}

}  // namespace
}  // namespace test
