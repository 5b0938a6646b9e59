// SPDX-License-Identifier: MIT
// Call discipline of every export: callee-saved registers, stack pointer, direction flag, control words,
// clean upper vector halves, a badly aligned stack; and nothing of the library itself changed by calls.
#include <gtest/gtest.h>
#include <link.h>

#include <algorithm>
#include <array>
#include <string>

#include "support/invoke.hpp"

namespace test {
namespace {

// Columns may become rows, and filters read what is around an image.
constexpr int kRowBytes = 4096, kRows = 3, kMostColumns = 130, kAround = 16 * kRowBytes;
alignas(64) std::array<std::array<Lum8u, kRowBytes * kMostColumns + 2 * kAround>, 8> memory;

// Samples that may divide, whatever their type.
const std::array<Lum8u, 64> constants = [] {
  std::array<Lum8u, 64> all{};
  all.fill(0x41);
  return all;
}();

std::array<Lum32s, 4> firstChannels{};
std::array<void*, 1> firstRow = {memory[0].data() + kAround};

// Arguments of a call that runs, on memory of its own for each pointer.
std::vector<Slot> runningArguments(const ExportRow& row, int width) {
  std::vector<Slot> slots = baseSlots(row);
  size_t next = 0;
  const auto image = [&] { return memory[next++ % memory.size()].data() + kAround; };
  for (size_t i = 0; i < slots.size(); ++i) {
    const Argument& argument = row.arguments[i];
    if (argument.kind == Kind::Planes || argument.kind == Kind::Arrays) {
      slots[i].isPlanes = true;
      for (int p = 0; p < argument.count; ++p) slots[i].planes[p] = image();
    } else if (argument.kind == Kind::Values) {
      slots[i].setPointer(constants.data());
    } else if (std::string(argument.name) == "order") {
      slots[i].setPointer(firstChannels.data());
    } else if (std::string(argument.name) == "rows") {
      slots[i].setPointer(firstRow.data());
    } else if (argument.passing == Passing::Pointer) {
      slots[i].setPointer(image());
    } else if (argument.kind == Kind::Step) {
      slots[i].set(kRowBytes);
    } else if (argument.kind == Kind::Size && argument.base.numbers[0] == 7) {  // no size of a kernel
      const bool isSquare = argument.base.numbers[1] == 7;
      slots[i].set(LumiSize{isSquare ? kRows : width, kRows});
    }
  }
  return slots;
}

// Images may be flat or too narrow for a window, and there is no object.
bool isRefusedHere(const ExportRow& row, LumStatus status, int width) {
  if (std::string(row.family) == "window") return status == lumStatusBadSize && width < 3;
  const bool takesObject =
      std::any_of(row.arguments.begin(), row.arguments.end(),
                  [](const Argument& argument) { return std::string(argument.name) == "spec"; });
  if (takesObject) return status == lumStatusBadArgument || status == lumStatusBadContext;
  return status == lumStatusZeroQualityDenominator;
}

void callAll(int width, int misalignment) {
  for (const ExportRow* row : regularRows()) {
    // What these allocate would stay; the tests of objects call them.
    if (std::string(row->operation).find("InitAlloc") != std::string::npos) continue;
    const Outcome outcome = invoke(*row, runningArguments(*row, width).data(), misalignment);
    ASSERT_TRUE(outcome.status >= lumStatusOk || isRefusedHere(*row, outcome.status, width))
        << row->name << ": " << outcome.status;
    EXPECT_EQ(outcome.broken, "") << row->name << " at misalignment " << misalignment;
  }
}

TEST(CallDiscipline, RegistersAndControlWordsSurvive) {
  for (int width : {1, 5, 33, kMostColumns}) callAll(width, 0);
}

#ifdef __i386__
TEST(CallDiscipline, TheStackMayBeAlignedBadly) {
  for (int misalignment : {4, 8, 12, 16, 20, 28, 36, 60})
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
