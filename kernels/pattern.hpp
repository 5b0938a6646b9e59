// SPDX-License-Identifier: MIT
// A constant pixel as an endless row, for fills and for operations with a constant.
#pragma once

#include <cstddef>
#include <cstdint>

namespace lumi {

// A pixel repeated, as vectors at any phase need it. Pixels that divide a vector need that vector and less
// than a pixel more; those of three samples 96 bytes, a period common to pixel and vector, and a vector more.
struct PixelPattern {
  static constexpr size_t kPeriod = 96;
  alignas(32) uint8_t bytes[kPeriod + 32];
};

template <int pixelBytes>
PixelPattern makePattern(const void* pixel);

}  // namespace lumi
