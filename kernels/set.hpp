// SPDX-License-Identifier: MIT
// Row kernels that store a value: whole rows.
#pragma once

#include <cstddef>
#include <cstdint>

namespace lumi {

// A pixel repeated. 96 bytes are a period common to every pixel size (1 to 16 bytes) and to a 32-byte
// vector; 32 more let a vector be loaded from any phase of the period.
struct FillPattern {
  static constexpr size_t kPeriod = 96;
  alignas(16) uint8_t bytes[kPeriod + 32];
  bool dwords;  // a dword is a whole number of pixels
};

template <int pixelBytes>
FillPattern makePattern(const void* pixel);

// Fills `bytes` bytes, a multiple of the pixel. With `streaming` the stores bypass the cache, and the
// caller fences.
void fillRow(const FillPattern& pattern, uint8_t* dst, size_t bytes, bool streaming);

}  // namespace lumi
