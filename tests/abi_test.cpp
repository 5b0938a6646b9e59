// SPDX-License-Identifier: MIT
// Call discipline of every export: callee-saved registers, stack pointer, direction flag, control words,
// clean upper vector halves, a badly aligned stack; and nothing of the library itself changed by calls.
#include <cpuid.h>
#include <gtest/gtest.h>
#include <link.h>

#include <array>
#include <string>

#include "support/call_checked.hpp"

namespace test {
namespace {

constexpr int kRowBytes = 4096, kRows = 3;
alignas(64) std::array<std::array<Lum8u, kRowBytes * kRows + 64>, 8> memory;

// Arguments of a call that runs, on memory of its own for each image.
std::vector<Slot> runningArguments(const ExportRow& row, int width) {
  std::vector<Slot> slots(row.arguments.size());
  size_t next = 0;
  const auto image = [&] { return memory[next++ % memory.size()].data(); };
  for (size_t i = 0; i < slots.size(); ++i) {
    slots[i].pointer = image();
    if (row.arguments[i].kind == Kind::Planes)
      for (int p = 0; p < row.arguments[i].extra; ++p) slots[i].planes[p] = image();
    slots[i].size = {width, kRows};
    slots[i].number = row.arguments[i].kind == Kind::Step ? kRowBytes : row.arguments[i].extra;
  }
  return slots;
}

// The SIMD control register without its sticky exception flags.
uint32_t vectorControl() {
  uint32_t word = 0;
  asm volatile("stmxcsr %0" : "=m"(word));
  return word & ~0x3Fu;
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

bool tellsStatesInUse() {
  unsigned a = 0, b = 0, c = 0, d = 0;
  return __get_cpuid_count(0xD, 1, &a, &b, &c, &d) && (a & 4);
}

void callAll(int width, uintptr_t misalignment) {
  const bool tells = tellsStatesInUse();
  for (const ExportRow* each : regularRows()) {
    const ExportRow& row = *each;
    const std::vector<Slot> slots = runningArguments(row, width);
    PackedCall packed = row.invoke.packed(slots.data());
    if (sizeof(uintptr_t) == 8) packed.words.resize(std::max<size_t>(packed.words.size(), 6));
    packed.floats.resize(4);
    CheckedCall call{row.invoke.function, packed.words.size(), packed.words.data(), misalignment, 0, 0,
                     packed.floats.data()};
    const uint32_t control = vectorControl();
    const uint16_t x87 = x87Control(), tags = x87Tags();
    ASSERT_EQ(lumiCallChecked(&call), lumStatusOk) << row.name;
    EXPECT_EQ(call.broken, 0u) << row.name << " at misalignment " << misalignment;
    if (tells) {
      EXPECT_EQ(call.statesInUse & 4, 0u) << row.name << " leaves the upper vector halves in use";
    }
    EXPECT_EQ(vectorControl(), control) << row.name;
    EXPECT_EQ(x87Control(), x87) << row.name;
    EXPECT_EQ(x87Tags(), tags) << row.name;
  }
}

TEST(CallDiscipline, RegistersAndControlWordsSurvive) {
  for (int width : {1, 5, 33, 130}) callAll(width, 0);
}

#ifdef __i386__
TEST(CallDiscipline, TheStackMayBeAlignedBadly) {
  for (uintptr_t misalignment : {4, 8, 12, 16, 20, 28, 36, 60})
    for (int width : {3, 70}) callAll(width, misalignment);
}
#endif

#ifndef LUMI_INSTRUMENTED  // sanitizers and coverage count in the library's data, or fence it
struct Segment {
  std::string bytes;
  const char* start;
};

// The library's segments as they are in memory.
std::vector<Segment> librarySegments() {
  std::vector<Segment> segments;
  dl_iterate_phdr(
      [](dl_phdr_info* info, size_t, void* out) {
        if (!std::strstr(info->dlpi_name, "liblumi.so")) return 0;
        for (int i = 0; i < info->dlpi_phnum; ++i) {
          const auto& header = info->dlpi_phdr[i];
          if (header.p_type != PT_LOAD) continue;
          const char* start = reinterpret_cast<const char*>(info->dlpi_addr + header.p_vaddr);
          static_cast<std::vector<Segment>*>(out)->push_back({std::string(start, header.p_memsz), start});
        }
        return 0;
      },
      &segments);
  return segments;
}

TEST(CallDiscipline, NoByteOfTheLibraryChanges) {
  const std::vector<Segment> before = librarySegments();
  ASSERT_FALSE(before.empty());
  callAll(33, 0);
  for (const Segment& segment : before)
    EXPECT_EQ(std::memcmp(segment.start, segment.bytes.data(), segment.bytes.size()), 0);
}
#endif

}  // namespace
}  // namespace test
