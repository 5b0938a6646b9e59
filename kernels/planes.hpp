// SPDX-License-Identifier: MIT
// Row kernels between interleaved pixels and planes.
#pragma once

#include <cstddef>
#include <cstdint>

namespace lumi {

// Pixels into planes and back. With `streaming` every destination is on a 32-byte boundary, stores
// bypass the cache, and the caller fences.
template <int sampleBytes, int channels>
void splitRow(const uint8_t* src, uint8_t* const* planes, size_t pixels, bool streaming);
template <int sampleBytes, int channels>
void mergeRow(const uint8_t* const* planes, uint8_t* dst, size_t pixels, bool streaming);

// One channel of pixels of `channels` samples into a plane; src is at that channel's sample.
template <int sampleBytes, int channels>
void channelToPlaneRow(const uint8_t* src, uint8_t* dst, size_t pixels);

}  // namespace lumi
