// SPDX-License-Identifier: MIT
// What the processor's identification registers say. The functions take the instructions as
// parameters, so that they can be asked about processors other than the one they run on.
#pragma once

#include <algorithm>
#include <cstdint>

#include "lumcore.h"

namespace lumcore {

struct Registers {
  uint32_t eax, ebx, ecx, edx;
};

constexpr bool hasBit(uint64_t word, int bit) { return (word >> bit & 1) != 0; }

// One entry of a cache enumeration, both makers' leaves having the same form: the size in bytes of a data or
// unified cache, 0 for an instruction cache.
constexpr uint64_t cacheBytes(const Registers& entry) {
  const auto field = [](uint32_t word, int low, int bits) {
    return (word >> low & ((1U << bits) - 1)) + uint64_t{1};
  };
  constexpr uint32_t instructions = 2;
  if ((entry.eax & 31) == instructions) return 0;
  const uint64_t line = field(entry.ebx, 0, 12), partitions = field(entry.ebx, 12, 10);
  const uint64_t ways = field(entry.ebx, 22, 10), sets = entry.ecx + uint64_t{1};
  return ways * partitions * line * sets;
}

// The largest entry of the enumeration that a leaf holds, which ends with an entry of type 0.
template <class Cpuid>
uint64_t largestCacheOfLeaf(const Cpuid& cpuid, uint32_t leaf) {
  constexpr uint32_t endless = 16;  // no processor has as many; a broken hypervisor may never end the list
  uint64_t largest = 0;
  for (uint32_t index = 0; index < endless; ++index) {
    const Registers entry = cpuid(leaf, index);
    if ((entry.eax & 31) == 0) break;
    largest = std::max(largest, cacheBytes(entry));
  }
  return largest;
}

// The largest data or unified cache in bytes, 0 where the processor enumerates none. Processors with
// topology extensions use an extended leaf, and may fill the basic one with zeros or with figures that a
// hypervisor made up; all others have the basic leaf only.
template <class Cpuid>
uint64_t enumeratedCache(const Cpuid& cpuid) {
  constexpr uint32_t basic = 4, extended = 0x8000001D, extendedFeatures = 0x80000001;
  constexpr int topologyExtensions = 22;
  if (cpuid(0x80000000, 0).eax >= extended && hasBit(cpuid(extendedFeatures, 0).ecx, topologyExtensions)) {
    const uint64_t bytes = largestCacheOfLeaf(cpuid, extended);
    if (bytes > 0) return bytes;
  }
  return cpuid(0, 0).eax >= basic ? largestCacheOfLeaf(cpuid, basic) : 0;
}

// Features that the processor has and whose registers the operating system saves at a task switch;
// `xcr0` reads the register that tells which it saves.
template <class Cpuid, class Xcr0>
uint64_t enabledFeatures(const Cpuid& cpuid, const Xcr0& xcr0) {
  const uint32_t lastLeaf = cpuid(0, 0).eax;
  const Registers basic = lastLeaf >= 1 ? cpuid(1, 0) : Registers{};
  const Registers further = lastLeaf >= 7 ? cpuid(7, 0) : Registers{};
  constexpr int xcr0Readable = 27;
  const uint64_t saved = hasBit(basic.ecx, xcr0Readable) ? xcr0() : 0;
  constexpr uint64_t halves = 0x06, wide = 0xE6;  // 256-bit state; with masks and 512-bit state
  const bool ymm = (saved & halves) == halves, zmm = (saved & wide) == wide;

  const struct {
    bool has;
    uint64_t feature;
  } rows[] = {
      {hasBit(basic.edx, 26), lumCpuSse2},
      {hasBit(basic.ecx, 0), lumCpuSse3},
      {hasBit(basic.ecx, 9), lumCpuSsse3},
      {hasBit(basic.ecx, 19), lumCpuSse41},
      {hasBit(basic.ecx, 20), lumCpuSse42},
      {ymm && hasBit(basic.ecx, 28), lumCpuAvx},
      {ymm && hasBit(further.ebx, 5), lumCpuAvx2},
      {ymm && hasBit(basic.ecx, 12), lumCpuFma},
      {zmm && hasBit(further.ebx, 16), lumCpuAvx512f},
  };
  uint64_t mask = 0;
  for (const auto& row : rows) mask |= row.has ? row.feature : 0;
  return mask;
}

}  // namespace lumcore
