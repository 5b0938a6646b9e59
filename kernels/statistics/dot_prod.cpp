// SPDX-License-Identifier: MIT
#include "kernels/statistics/dot_prod.hpp"

#include "kernels/statistics/products.hpp"

namespace lumi {

template <typename T, typename Total, int channels>
ChannelTotals<double> dotProducts(SourceRows a, SourceRows b, Extent pixels) {
  simd::ProductSums<simd::Products, T, channels, Total> sums;
  reduceRows(sums, pixels.times(channels), a, b);
  return simd::channelsInDoubles<channels>(sums.totals());
}

#define LUMI_DOTS(T, Total, channels) \
  template ChannelTotals<double> dotProducts<T, Total, channels>(SourceRows, SourceRows, Extent);
#define LUMI_DOTS_OF(T, Total) LUMI_DOTS(T, Total, 1) LUMI_DOTS(T, Total, 3) LUMI_DOTS(T, Total, 4)
LUMI_DOTS_OF(uint8_t, double)
LUMI_DOTS_OF(int8_t, double)
LUMI_DOTS_OF(uint16_t, double)
LUMI_DOTS_OF(int16_t, double)
LUMI_DOTS_OF(uint32_t, double)
LUMI_DOTS_OF(int32_t, double)
LUMI_DOTS_OF(float, double)
LUMI_DOTS(float, float, 1)
LUMI_DOTS(float, float, 3)

}  // namespace lumi
