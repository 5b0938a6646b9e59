// SPDX-License-Identifier: MIT
// Row kernels that store a value: whole rows.
#pragma once

#include <cstddef>
#include <cstdint>

namespace lumi {

// A pixel repeated, as vectors at any phase need it. Pixels that divide a vector need that vector and less
// than a pixel more; those of three samples 96 bytes, a period common to pixel and vector, and a vector more.
struct FillPattern {
  static constexpr size_t kPeriod = 96;
  alignas(32) uint8_t bytes[kPeriod + 32];
};

template <int pixelBytes>
FillPattern makePattern(const void* pixel);

// Fills `bytes` bytes, a multiple of the pixel. With `streaming` vector stores bypass the cache, and the
// caller fences; the string store of long rows finds its own way.
template <int pixelBytes>
void fillRow(const FillPattern& pattern, uint8_t* dst, size_t bytes, bool streaming);

}  // namespace lumi
