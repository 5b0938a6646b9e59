// SPDX-License-Identifier: MIT
#include "kernels/copy_channels.hpp"

#include "kernels/simd/bytes.hpp"

namespace lumi {
namespace {

using namespace simd;

}  // namespace

template <int sampleBytes>
void copyColourToAlphaRow(const uint8_t* src, uint8_t* dst, size_t pixels) {
  constexpr auto n = static_cast<size_t>(sampleBytes);
  for (size_t i = 0; i < pixels; ++i) move<3 * n>(dst + i * n * 4, src + i * n * 3);
}

template <int sampleBytes>
void copyColourFromAlphaRow(const uint8_t* src, uint8_t* dst, size_t pixels) {
  constexpr auto n = static_cast<size_t>(sampleBytes);
  for (size_t i = 0; i < pixels; ++i) move<3 * n>(dst + i * n * 3, src + i * n * 4);
}

template <int sampleBytes, int channels>
void planeToChannelRow(const uint8_t* src, uint8_t* dst, size_t pixels) {
  constexpr auto n = static_cast<size_t>(sampleBytes);
  for (size_t i = 0; i < pixels; ++i) move<n>(dst + i * n * channels, src + i * n);
}

template <int sampleBytes, int channels>
void channelToPlaneRow(const uint8_t* src, uint8_t* dst, size_t pixels) {
  constexpr auto n = static_cast<size_t>(sampleBytes);
  for (size_t i = 0; i < pixels; ++i) move<n>(dst + i * n, src + i * n * channels);
}

template <int sampleBytes, int channels>
void splitRow(const uint8_t* src, uint8_t* const* planes, size_t pixels, bool) {
  constexpr auto n = static_cast<size_t>(sampleBytes);
  for (size_t i = 0; i < pixels; ++i)
    for (size_t c = 0; c < channels; ++c) move<n>(planes[c] + i * n, src + (i * channels + c) * n);
}

template <int sampleBytes, int channels>
void mergeRow(const uint8_t* const* planes, uint8_t* dst, size_t pixels, bool) {
  constexpr auto n = static_cast<size_t>(sampleBytes);
  for (size_t i = 0; i < pixels; ++i)
    for (size_t c = 0; c < channels; ++c) move<n>(dst + (i * channels + c) * n, planes[c] + i * n);
}

template <int channels>
void duplicateRow(const uint8_t* src, uint8_t* dst, size_t pixels) {
  for (size_t i = 0; i < pixels; ++i)
    for (size_t c = 0; c < channels; ++c) dst[i * channels + c] = src[i];
}

#define LUMI_CHANNELS(sample, channels)                                                    \
  template void planeToChannelRow<sample, channels>(const uint8_t*, uint8_t*, size_t);     \
  template void channelToPlaneRow<sample, channels>(const uint8_t*, uint8_t*, size_t);     \
  template void splitRow<sample, channels>(const uint8_t*, uint8_t* const*, size_t, bool); \
  template void mergeRow<sample, channels>(const uint8_t* const*, uint8_t*, size_t, bool);
LUMI_CHANNELS(1, 3)
LUMI_CHANNELS(1, 4)
LUMI_CHANNELS(2, 3)
LUMI_CHANNELS(2, 4)
LUMI_CHANNELS(4, 3)
LUMI_CHANNELS(4, 4)
#undef LUMI_CHANNELS
template void copyColourToAlphaRow<1>(const uint8_t*, uint8_t*, size_t);
template void copyColourToAlphaRow<2>(const uint8_t*, uint8_t*, size_t);
template void copyColourToAlphaRow<4>(const uint8_t*, uint8_t*, size_t);
template void copyColourFromAlphaRow<1>(const uint8_t*, uint8_t*, size_t);
template void copyColourFromAlphaRow<2>(const uint8_t*, uint8_t*, size_t);
template void copyColourFromAlphaRow<4>(const uint8_t*, uint8_t*, size_t);
template void duplicateRow<3>(const uint8_t*, uint8_t*, size_t);
template void duplicateRow<4>(const uint8_t*, uint8_t*, size_t);

}  // namespace lumi
