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

// A plane into one channel of pixels of `channels` samples; dst is at that channel's sample.
template <int sampleBytes, int channels>
void planeToChannelRow(const uint8_t* src, uint8_t* dst, size_t pixels);

// One sample into every channel of a pixel.
template <int channels>
void duplicateRow(const uint8_t* src, uint8_t* dst, size_t pixels);

}  // namespace lumi
