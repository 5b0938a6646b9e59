// SPDX-License-Identifier: MIT
// Row kernels between interleaved pixels and planes.
#pragma once

#include "kernels/rows.hpp"

namespace lumi {

// Pixels into planes and back. With `streaming` every destination is on a 32-byte boundary, stores
// bypass the cache, and the caller fences.
template <int sampleBytes, int channels>
void splitRows(SourceRows src, const PlaneRows<uint8_t, channels>& planes, Extent pixels, bool streaming);
template <int sampleBytes, int channels>
void mergeRows(const PlaneRows<const uint8_t, channels>& planes, TargetRows dst, Extent pixels,
               bool streaming);

// One channel of pixels of `channels` samples into a plane; src is at that channel's sample.
template <int sampleBytes, int channels>
void channelToPlaneRows(SourceRows src, TargetRows dst, Extent pixels);

}  // namespace lumi
