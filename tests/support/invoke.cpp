// SPDX-License-Identifier: MIT
#include "support/invoke.hpp"

#include <cstddef>
#include <cstdio>
#include <cstdlib>

#include "support/sample_type.hpp"

extern "C" int32_t lumiInvoke(test::PackedCall* call);

namespace test {
namespace {

// How many bytes an argument has, and whether it goes into vector registers where there are such.
struct Class {
  size_t bytes;
  bool isVector;
};

Class classOf(Passing passing) {
  switch (passing) {
    case Passing::Pointer:
      return {sizeof(void*), false};
    case Passing::Int32:
    case Passing::Halves:
      return {4, false};
    case Passing::Int64:
    case Passing::Pair:
      return {8, false};
    case Passing::Rect:
      return {16, false};
    case Passing::Float:
      return {4, true};
    case Passing::Double:
    case Passing::Floats:
      return {8, true};
    case Passing::Doubles:
      return {16, true};
  }
  std::abort();
}

// Words in memory as an argument fills them; what it leaves of the last one is any bits.
struct ArgumentWords {
  uintptr_t words[4];
  size_t count;

  ArgumentWords(const Slot& slot, size_t bytes) : count((bytes + sizeof(uintptr_t) - 1) / sizeof(uintptr_t)) {
    std::memset(words, 0xA5, sizeof words);
    std::memcpy(words, slot.bytes, bytes);
    const void* const planes = slot.planes;
    if (slot.isPlanes) std::memcpy(words, &planes, sizeof planes);
  }
};

uint32_t vectorControl() {
  uint32_t word = 0;
  asm volatile("stmxcsr %0" : "=m"(word));
  return word & ~0x3Fu;  // without the sticky exception flags
}

uint16_t x87Control() {
  uint16_t word = 0;
  asm volatile("fnstcw %0" : "=m"(word));
  return word;
}

// Empty x87 registers are tagged so; a library that leaves one behind breaks the caller's next float.
uint16_t x87Tags() {
  struct {
    uint32_t control, status, tags, rest[4];
  } environment;
  asm volatile("fnstenv %0\n\tfldenv %0" : "=m"(environment));
  return static_cast<uint16_t>(environment.tags);
}

static_assert(offsetof(PackedCall, integers) == 5 * sizeof(uintptr_t));
static_assert(offsetof(PackedCall, vectors) == 12 * sizeof(uintptr_t));
static_assert(offsetof(PackedCall, stack) == 12 * sizeof(uintptr_t) + 64);

}  // namespace

void Slot::setValue(Passing passing, const Value& value) {
  const double* const n = value.numbers;
  const auto whole = [](double number) { return static_cast<int32_t>(static_cast<int64_t>(number)); };
  switch (passing) {
    case Passing::Pointer:
      std::fprintf(stderr, "a number for a pointer\n");
      std::abort();
    case Passing::Int32:
      return set(whole(n[0]));
    case Passing::Int64:
      return set(static_cast<int64_t>(n[0]));
    case Passing::Float:
      return set(static_cast<float>(n[0]));
    case Passing::Double:
      return set(n[0]);
    case Passing::Pair:
      return set(LumiSize{whole(n[0]), whole(n[1])});
    case Passing::Rect:
      return set(LumiRect{whole(n[0]), whole(n[1]), whole(n[2]), whole(n[3])});
    case Passing::Halves:
      return set(Lum16sc{static_cast<Lum16s>(whole(n[0])), static_cast<Lum16s>(whole(n[1]))});
    case Passing::Floats:
      return set(Lum32fc{static_cast<float>(n[0]), static_cast<float>(n[1])});
    case Passing::Doubles:
      return set(Lum64fc{n[0], n[1]});
  }
}

void Slot::setSample(Passing passing, const std::string& type, const void* sample) {
  // Bytes and shorts are extended to a word of 32 bits, with or without their sign.
  if (passing != Passing::Int32) {
    std::memcpy(bytes, sample, classOf(passing).bytes);
    return;
  }
  withType(
      type,
      [&](auto value) {
        std::memcpy(&value, sample, sizeof value);
        set(static_cast<int32_t>(value));
      },
      Types<Lum8u, Lum8s, Lum16u, Lum16s, Lum32u, Lum32s>());
}

PackedCall::PackedCall(const ExportRow& row, const Slot* slots) : function(row.function) {
  constexpr bool hasRegisters = sizeof(uintptr_t) == 8;
  size_t integersUsed = 0, vectorsUsed = 0;
  for (size_t i = 0; i < row.arguments.size(); ++i) {
    const auto [bytes, isVector] = classOf(row.arguments[i].passing);
    const ArgumentWords argument(slots[i], bytes);
    // Both words go into registers or none; smaller arguments behind may still find one.
    size_t& used = isVector ? vectorsUsed : integersUsed;
    const size_t registers = isVector ? std::size(vectors) : std::size(integers);
    if (hasRegisters && used + argument.count <= registers) {
      for (size_t w = 0; w < argument.count; ++w, ++used)
        isVector ? vectors[used] = argument.words[w] : integers[used] = argument.words[w];
      continue;
    }
    if (stackWords + argument.count > std::size(stack)) {
      std::fprintf(stderr, "too many arguments: %s\n", row.name);
      std::abort();
    }
    for (size_t w = 0; w < argument.count; ++w) stack[stackWords++] = argument.words[w];
  }
}

std::vector<Slot> baseSlots(const ExportRow& row) {
  constexpr Value one{{1}};  // a constant may have to divide
  std::vector<Slot> slots(row.arguments.size());
  for (size_t i = 0; i < slots.size(); ++i) {
    const Argument& argument = row.arguments[i];
    if (argument.passing != Passing::Pointer)
      slots[i].setValue(argument.passing, argument.kind == Kind::Value ? one : argument.base);
  }
  return slots;
}

Outcome invoke(const ExportRow& row, const Slot* slots, int misalignment) {
  PackedCall call(row, slots);
  call.misalignment = static_cast<uintptr_t>(misalignment);
  const uint32_t control = vectorControl();
  const uint16_t x87 = x87Control(), tags = x87Tags();
  Outcome outcome{lumiInvoke(&call), {}};
  if (call.broken != 0)
    outcome.broken = "registers, stack pointer or direction flag " + std::to_string(call.broken);
  if (call.upperHalves != 0) outcome.broken += " upper vector halves in use";
  if (x87Control() != x87) outcome.broken += " x87 control word";
  if (x87Tags() != tags) outcome.broken += " x87 registers";
  // A call that is refused may leave the rounding as it set it.
  if (outcome.status >= lumStatusOk && vectorControl() != control) outcome.broken += " vector control word";
  return outcome;
}

}  // namespace test
