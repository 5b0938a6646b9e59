// SPDX-License-Identifier: MIT
// Row kernels between channel layouts.
#pragma once

#include <cstddef>
#include <cstdint>

namespace lumi {

// Three samples of each pixel, to and from pixels of four whose last sample stays or is dropped.
template <int sampleBytes>
void copyColourToAlphaRow(const uint8_t* src, uint8_t* dst, size_t pixels);
template <int sampleBytes>
void copyColourFromAlphaRow(const uint8_t* src, uint8_t* dst, size_t pixels);

// A plane to and from one channel of pixels of `channels` samples; the pixel pointer is at its sample.
template <int sampleBytes, int channels>
void planeToChannelRow(const uint8_t* src, uint8_t* dst, size_t pixels);
template <int sampleBytes, int channels>
void channelToPlaneRow(const uint8_t* src, uint8_t* dst, size_t pixels);

// Pixels into planes and back. With `streaming` every destination is on a 16-byte boundary, stores
// bypass the cache, and the caller fences.
template <int sampleBytes, int channels>
void splitRow(const uint8_t* src, uint8_t* const* planes, size_t pixels, bool streaming);
template <int sampleBytes, int channels>
void mergeRow(const uint8_t* const* planes, uint8_t* dst, size_t pixels, bool streaming);

// One sample into every channel of a pixel.
template <int channels>
void duplicateRow(const uint8_t* src, uint8_t* dst, size_t pixels);

}  // namespace lumi
