// SPDX-License-Identifier: MIT
// A program in C++17 that uses both libraries. Its result counts what went wrong.
#include <lumcore.h>
#include <lumi.h>

#include <cstdint>
#include <cstdio>
#include <vector>

namespace {

int failures = 0;

void expect(bool holds, const char* what) {
  if (holds) return;
  std::printf("failed: %s\n", what);
  ++failures;
}

}  // namespace

int main() {
  const std::vector<Lum8u> grey = {1, 2, 3, 4, 5, 6}, mask = {1, 0, 255, 0, 1, 0};
  std::vector<Lum8u> colour(18), chosen(6, 9);
  const LumiSize size{3, 2};
  expect(lumiDup_8u_C1C3R(grey.data(), 3, colour.data(), 9, size) == lumStatusOk, "grey to colour");
  expect(colour[0] == 1 && colour[2] == 1 && colour[17] == 6, "three equal channels");
  expect(lumiCopy_8u_C1MR(grey.data(), 3, chosen.data(), 3, size, mask.data(), 3) == lumStatusOk,
         "masked copy");
  expect(chosen == std::vector<Lum8u>{1, 9, 3, 9, 5, 9}, "only chosen pixels");

  void* block = lumMalloc(100);
  expect(block != nullptr && reinterpret_cast<std::uintptr_t>(block) % 64 == 0, "aligned memory");
  lumFree(block);
  expect((lumGetEnabledCpuFeatures() & lumCpuAvx) != 0, "the processor's level");
  return failures;
}
