// SPDX-License-Identifier: MIT
// Calls by description against functions that the compiler made: each tells what arrived.
#include "support/invoke.hpp"

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

namespace test {
namespace {

std::vector<unsigned char> received;

template <typename T>
void note(const T& argument) {
  const auto* bytes = reinterpret_cast<const unsigned char*>(&argument);
  received.insert(received.end(), bytes, bytes + sizeof argument);
}

// Whether the functions here can be called on a badly aligned stack. Clang reads neighbouring arguments at
// once, from where an aligned stack would have them; the library is compiled otherwise.
#if defined(__i386__) && !defined(__clang__)
constexpr bool kAnyStack = true;
#else
constexpr bool kAnyStack = false;
#endif

template <typename... T>
LumStatus noteAll(const T&... arguments) {
  received.clear();
  (note(arguments), ...);
  return 77;
}

extern "C" {
using P = const void*;
[[gnu::force_align_arg_pointer]] LumStatus takeWords(P a, Lum32s b, Lum64s c, LumiSize d, Lum16sc e) {
  return noteAll(a, b, c, d, e);
}
[[gnu::force_align_arg_pointer]] LumStatus takeFloats(Lum32f a, Lum64f b, Lum32fc c, Lum64fc d) {
  return noteAll(a, b, c, d);
}
[[gnu::force_align_arg_pointer]] LumStatus takeBytes(Lum8u a, Lum8s b, Lum16u c, Lum16s d, Lum32u e) {
  return noteAll(a, b, c, d, e);
}
[[gnu::force_align_arg_pointer]] LumStatus takeWidened(Lum32s a, Lum32s b, Lum32s c, Lum32s d) {
  return noteAll(a, b, c, d);
}
// A rectangle that would need the last register and one more, and words that still find that one.
[[gnu::force_align_arg_pointer]] LumStatus takeStraddlingRect(P a, P b, P c, P d, P e, LumiRect f, P g,
                                                              LumiRect h, Lum32s i) {
  return noteAll(a, b, c, d, e, f, g, h, i);
}
[[gnu::force_align_arg_pointer]] LumStatus takeFittingRects(LumiRect a, P b, LumiRect c, P d, Lum64s e, P f) {
  return noteAll(a, b, c, d, e, f);
}
// The same with a pair of doubles.
[[gnu::force_align_arg_pointer]] LumStatus takeStraddlingDoubles(Lum64f a, Lum64f b, Lum64f c, Lum64fc d,
                                                                 Lum32fc e, Lum32f f, Lum64fc g, Lum32f h,
                                                                 Lum64f i, Lum32fc j) {
  return noteAll(a, b, c, d, e, f, g, h, i, j);
}
[[gnu::force_align_arg_pointer]] LumStatus takeMany(P a, Lum32f b, Lum64s c, Lum64f d, LumiSize e, Lum32fc f,
                                                    LumiRect g, Lum64f h, P i, Lum32f j, Lum32s k, Lum64f l,
                                                    Lum16sc m, Lum64f n, LumiPoint o, Lum64fc p, Lum64s q,
                                                    Lum32f r, Lum32s s, Lum32fc t) {
  return noteAll(a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q, r, s, t);
}
}

constexpr Passing p = Passing::Pointer, i32 = Passing::Int32, i64 = Passing::Int64, f32 = Passing::Float,
                  f64 = Passing::Double, pair = Passing::Pair, rect = Passing::Rect, halves = Passing::Halves,
                  floats = Passing::Floats, doubles = Passing::Doubles;

size_t bytesOf(Passing passing) {
  switch (passing) {
    case p:
      return sizeof(void*);
    case i32:
    case f32:
    case halves:
      return 4;
    case rect:
    case doubles:
      return 16;
    default:
      return 8;
  }
}

template <typename Function>
ExportRow rowOf(Function* function, const std::vector<Argument>& arguments) {
  ExportRow row{};
  row.name = "a function of this test";
  row.function = reinterpret_cast<AnyFunction>(function);
  row.arguments = {arguments.data(), arguments.size()};
  return row;
}

// Calls with arguments whose bytes are all different.
template <typename Function>
void expectReceived(Function* function, const std::vector<Passing>& classes) {
  std::vector<Argument> arguments(classes.size());
  std::vector<Slot> slots(classes.size());
  std::vector<unsigned char> sent;
  unsigned char next = 1;
  for (size_t i = 0; i < classes.size(); ++i) {
    arguments[i].passing = classes[i];
    for (size_t b = 0; b < bytesOf(classes[i]); ++b) sent.push_back(slots[i].bytes[b] = next++);
  }
  const ExportRow row = rowOf(function, arguments);
  for (const int misalignment : {0, 4, 8, 12}) {
    received.clear();
    const Outcome outcome = invoke(row, slots.data(), kAnyStack ? misalignment : 0);
    EXPECT_EQ(outcome.status, 77);
    EXPECT_EQ(outcome.broken, "");
    EXPECT_EQ(received, sent);
  }
}

TEST(Invoke, EachClass) {
  expectReceived(takeWords, {p, i32, i64, pair, halves});
  expectReceived(takeFloats, {f32, f64, floats, doubles});
}

TEST(Invoke, StructuresStraddleTheRegisters) {
  expectReceived(takeStraddlingRect, {p, p, p, p, p, rect, p, rect, i32});
  expectReceived(takeFittingRects, {rect, p, rect, p, i64, p});
  expectReceived(takeStraddlingDoubles, {f64, f64, f64, doubles, floats, f32, doubles, f32, f64, floats});
}

TEST(Invoke, ManyArgumentsInTheirOrder) {
  expectReceived(takeMany, {p,   f32, i64,    f64, pair, floats,  rect, f64, p,   f32,
                            i32, f64, halves, f64, pair, doubles, i64,  f32, i32, floats});
}

TEST(Invoke, SamplesAreExtended) {
  const Lum8u a = 200;
  const Lum8s b = -100;
  const Lum16u c = 60000;
  const Lum16s d = -30000;
  const Lum32u e = 4000000000;
  std::vector<Argument> arguments(5);
  for (Argument& argument : arguments) argument.passing = i32;
  std::vector<Slot> slots(5);
  slots[0].setSample(i32, "8u", &a);
  slots[1].setSample(i32, "8s", &b);
  slots[2].setSample(i32, "16u", &c);
  slots[3].setSample(i32, "16s", &d);
  slots[4].setSample(i32, "32u", &e);
  invoke(rowOf(takeBytes, arguments), slots.data());
  const auto bytes = received;
  takeBytes(a, b, c, d, e);
  EXPECT_EQ(bytes, received);
  invoke(rowOf(takeWidened, arguments), slots.data());
  const auto widened = received;
  takeWidened(200, -100, 60000, -30000);
  EXPECT_EQ(widened, received);
}

TEST(Invoke, ValuesByTheirClass) {
  const std::vector<Passing> classes = {i32, i64, f32, f64, pair, rect, halves, floats, doubles};
  std::vector<Slot> slots(classes.size());
  for (size_t i = 0; i < classes.size(); ++i) slots[i].setValue(classes[i], {{-3, 5, 7, 9}});
  const auto expect = [&](size_t i, auto value) {
    EXPECT_EQ(std::memcmp(slots[i].bytes, &value, sizeof value), 0) << i;
  };
  expect(0, Lum32s{-3});
  expect(1, Lum64s{-3});
  expect(2, Lum32f{-3});
  expect(3, Lum64f{-3});
  expect(4, LumiSize{-3, 5});
  expect(5, LumiRect{-3, 5, 7, 9});
  expect(6, Lum16sc{-3, 5});
  expect(7, Lum32fc{-3, 5});
  expect(8, Lum64fc{-3, 5});
}

TEST(Invoke, PlanePointersAreAnArray) {
  std::vector<Argument> arguments(1);
  arguments[0].passing = p;
  Slot slot;
  slot.isPlanes = true;
  static int plane;
  slot.planes[1] = &plane;
  static LumStatus (*const take)(void* const*) = [](void* const* planes) {
    return noteAll(planes[0], planes[1]);
  };
  invoke(rowOf(take, arguments), &slot);
  void* const expected[2] = {nullptr, &plane};
  ASSERT_EQ(received.size(), sizeof expected);
  EXPECT_EQ(std::memcmp(received.data(), expected, sizeof expected), 0);
}

// Breaches of the calling convention, each of them told.
[[gnu::force_align_arg_pointer]] LumStatus changeRounding() {
  unsigned control = 0;
  asm volatile("stmxcsr %0" : "=m"(control));
  control ^= 0x2000;
  asm volatile("ldmxcsr %0" ::"m"(control));
  return lumStatusOk;
}
[[gnu::force_align_arg_pointer]] LumStatus changeX87() {
  uint16_t control = 0;
  asm volatile("fnstcw %0" : "=m"(control));
  control ^= 0x0400;
  asm volatile("fldcw %0" ::"m"(control));
  return lumStatusOk;
}
[[gnu::force_align_arg_pointer]] LumStatus leaveX87Value() {
  asm volatile("fldz");
  return lumStatusOk;
}
[[gnu::force_align_arg_pointer]] LumStatus changeDirection() {
  asm volatile("std");
  return lumStatusOk;
}
// Functions that break a callee-saved register, the stack pointer, and leave upper vector halves in use.
extern "C" {
LumStatus lumiTestChangesBase();
LumStatus lumiTestChangesFrame();
LumStatus lumiTestUsesVectors();
}
asm(R"(
.text
lumiTestChangesBase:
  xorl %ebx, %ebx
  xorl %eax, %eax
  ret
lumiTestChangesFrame:
  xorl %ebp, %ebp
  xorl %eax, %eax
  ret
lumiTestUsesVectors:
  vcmpps $15, %ymm0, %ymm0, %ymm0
  xorl %eax, %eax
  ret
)");

std::string brokenBy(LumStatus (*function)()) { return invoke(rowOf(function, {}), nullptr).broken; }

TEST(Invoke, BreachesOfTheConventionAreTold) {
  EXPECT_EQ(brokenBy(changeRounding), " vector control word");
  EXPECT_EQ(brokenBy(changeRounding), " vector control word");  // and back
  EXPECT_EQ(brokenBy(changeX87), " x87 control word");
  EXPECT_EQ(brokenBy(changeX87), " x87 control word");
  EXPECT_EQ(brokenBy(leaveX87Value), " x87 registers");
  asm volatile("emms");
  EXPECT_NE(brokenBy(changeDirection), "");
  EXPECT_NE(brokenBy(lumiTestChangesBase), "");
  EXPECT_NE(brokenBy(lumiTestChangesFrame), "");
  EXPECT_EQ(brokenBy(lumiTestUsesVectors), " upper vector halves in use");
}

}  // namespace
}  // namespace test
