// SPDX-License-Identifier: MIT
// Row kernels that move bytes: whole rows, one chosen channel, three samples of four.
#pragma once

#include <cstddef>
#include <cstdint>

namespace lumi {

// Copies a row of bytes, in the direction that keeps a store from aliasing a later load.
void copyRow(const uint8_t* src, uint8_t* dst, size_t bytes);

// The same past the cache: blocks are read in first, then stored by streaming stores. The caller fences.
void copyRowStreaming(const uint8_t* src, uint8_t* dst, size_t bytes);

// What a caller of the managed copy decides.
struct CacheUse {
  bool streamingStores, streamingLoads;
};
void copyRowManaged(const uint8_t* src, uint8_t* dst, size_t bytes, CacheUse use);

// Copies one sample of each pixel of `stride` samples. Rows that overlap by whole pixels give what a
// copy in order gives.
template <int sampleBytes, int stride>
void copyChannelRow(const uint8_t* src, uint8_t* dst, size_t pixels);

// Copies three samples of each pixel of four.
template <int sampleBytes>
void copyColourRow(const uint8_t* src, uint8_t* dst, size_t pixels);

}  // namespace lumi
