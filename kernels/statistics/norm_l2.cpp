// SPDX-License-Identifier: MIT
#include "kernels/statistics/norm.hpp"
#include "kernels/statistics/products.hpp"
#include "kernels/statistics/relative.hpp"

namespace lumi {

template <Norm norm, typename T, typename Total, int channels>
NormTotals normOfImage(SourceRows src, Extent pixels) {
  simd::ProductSums<simd::Squares, T, channels, Total> sums;
  reduceRows(sums, pixels.times(channels), src);
  return simd::inDoubles<channels>(sums.totals());
}

template <Norm norm, typename T, typename Total, int channels>
NormTotals normOfDifferences(SourceRows a, SourceRows b, Extent pixels) {
  simd::ProductSums<simd::DifferenceSquares, T, channels, Total> sums;
  reduceRows(sums, pixels.times(channels), a, b);
  return simd::inDoubles<channels>(sums.totals());
}

template <Norm norm, typename T, typename Total, int channels>
RelativeTotals relativeNorm(SourceRows a, SourceRows b, Extent pixels) {
  Relative<simd::ProductSums<simd::DifferenceSquares, T, channels, Total>,
           simd::ProductSums<simd::Squares, T, channels, Total>>
      sums;
  reduceRows(sums, pixels.times(channels), a, b);
  return {simd::inDoubles<channels>(sums.differences.totals()),
          simd::inDoubles<channels>(sums.ofSecond.totals())};
}

NormTotals squareRoots(const NormTotals& totals) {
  NormTotals roots;
  simd::store32(reinterpret_cast<uint8_t*>(roots.of),
                simd::bytesOf(squareRoot(simd::loadDoubles4(totals.of))));
  return roots;
}

#define LUMI_NORMS(T, Total, channels)                                                                 \
  template NormTotals normOfImage<Norm::L2, T, Total, channels>(SourceRows, Extent);                   \
  template NormTotals normOfDifferences<Norm::L2, T, Total, channels>(SourceRows, SourceRows, Extent); \
  template RelativeTotals relativeNorm<Norm::L2, T, Total, channels>(SourceRows, SourceRows, Extent);
#define LUMI_NORMS_OF(T, Total) LUMI_NORMS(T, Total, 1) LUMI_NORMS(T, Total, 3) LUMI_NORMS(T, Total, 4)
LUMI_NORMS_OF(uint8_t, uint64_t)
LUMI_NORMS_OF(uint16_t, uint64_t)
LUMI_NORMS_OF(int16_t, uint64_t)
LUMI_NORMS_OF(float, float)
LUMI_NORMS_OF(float, double)

}  // namespace lumi
