// SPDX-License-Identifier: MIT
#include "kernels/statistics/sum.hpp"

#include "kernels/statistics/itself.hpp"
#include "kernels/statistics/sums.hpp"

namespace lumi {

template <typename T, int channels>
ChannelSums sumsOfIntegers(SourceRows src, Extent pixels) {
  return simd::integerSums<T, T, channels>(simd::Itself(), pixels, src);
}

template <int channels>
ChannelSums sumsInDoubles(SourceRows src, Extent pixels) {
  return simd::floatSums<simd::Doubles4, channels>(simd::Itself(), pixels, src);
}

template <int channels>
ChannelSums sumsInFloats(SourceRows src, Extent pixels) {
  return simd::floatSums<simd::Floats4, channels>(simd::Itself(), pixels, src);
}

ChannelSums sumsOfRowsInFloats(SourceRows src, Extent pixels) {
  return simd::floatSumsByRow<simd::Floats4, 4>(simd::Itself(), pixels, src);
}

#define LUMI_SUMS(channels)                                                    \
  template ChannelSums sumsOfIntegers<uint8_t, channels>(SourceRows, Extent);  \
  template ChannelSums sumsOfIntegers<uint16_t, channels>(SourceRows, Extent); \
  template ChannelSums sumsOfIntegers<int16_t, channels>(SourceRows, Extent);  \
  template ChannelSums sumsInDoubles<channels>(SourceRows, Extent);            \
  template ChannelSums sumsInFloats<channels>(SourceRows, Extent);
LUMI_SUMS(1)
LUMI_SUMS(3)
LUMI_SUMS(4)

}  // namespace lumi
