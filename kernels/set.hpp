// SPDX-License-Identifier: MIT
// Row kernels that store a value: whole rows, one chosen channel, three samples of four.
#pragma once

#include <cstddef>
#include <cstdint>

namespace lumi {

// A pixel repeated. 96 bytes are a period common to every pixel size (1 to 16 bytes) and to a 32-byte
// vector; 32 more let a vector be loaded from any phase of the period.
struct FillPattern {
  static constexpr size_t kPeriod = 96;
  uint8_t bytes[kPeriod + 32];
  int pixelBytes;

  FillPattern(const void* pixel, int pixelSize);
};

// Fills `bytes` bytes, a multiple of the pixel. With `streaming` the stores bypass the cache, and the
// caller fences.
void fillRow(const FillPattern& pattern, uint8_t* dst, size_t bytes, bool streaming);

// Stores one sample of each pixel. The pixel is `stride` samples; dst is at the chosen one.
template <int sampleBytes, int stride>
void fillChannelRow(const void* sample, uint8_t* dst, size_t pixels);

// Stores three samples of each pixel of four.
template <int sampleBytes>
void fillColourRow(const void* threeSamples, uint8_t* dst, size_t pixels);

}  // namespace lumi
