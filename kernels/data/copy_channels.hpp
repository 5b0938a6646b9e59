// SPDX-License-Identifier: MIT
// Row kernels between channel layouts.
#pragma once

#include "kernels/rows.hpp"

namespace lumi {

// Three samples of each pixel, to and from pixels of four whose last sample stays or is dropped.
template <int sampleBytes>
void copyColourToAlphaRows(SourceRows src, TargetRows dst, Extent pixels);
template <int sampleBytes>
void copyColourFromAlphaRows(SourceRows src, TargetRows dst, Extent pixels);

// A plane into one channel of pixels of `channels` samples; dst is at that channel's sample.
template <int sampleBytes, int channels>
void planeToChannelRows(SourceRows src, TargetRows dst, Extent pixels);

// One sample into every channel of a pixel.
template <int channels>
void duplicateRows(SourceRows src, TargetRows dst, Extent pixels);

}  // namespace lumi
