// SPDX-License-Identifier: MIT
#include "kernels/statistics/differences.hpp"
#include "kernels/statistics/extremes.hpp"
#include "kernels/statistics/norm.hpp"

namespace lumi {
namespace {

using namespace simd;

template <typename T, int channels, typename F>
using Largest = Extremes<T, MagnitudeOf<T>, channels, F, Greatest>;

template <typename T, int channels, typename F>
Largest<T, channels, F> fromZero(const F& f) {
  return Largest<T, channels, F>(f, ExtremeLanes<MagnitudeOf<T>, channels>::at(MagnitudeOf<T>{0}));
}

}  // namespace

template <Norm norm, typename T, typename Total, int channels>
NormTotals normOfImage(SourceRows src, Extent pixels) {
  return inDoubles(
      extremesOf<Greatest, T, MagnitudeOf<T>, channels>(Magnitude(), MagnitudeOf<T>{0}, pixels, src));
}

template <Norm norm, typename T, typename Total, int channels>
NormTotals normOfDifferences(SourceRows a, SourceRows b, Extent pixels) {
  return inDoubles(
      extremesOf<Greatest, T, MagnitudeOf<T>, channels>(Distance(), MagnitudeOf<T>{0}, pixels, a, b));
}

// In parts of rows that stay in the nearest cache, so that the second image is fetched once.
template <Norm norm, typename T, typename Total, int channels>
RelativeTotals relativeNorm(SourceRows a, SourceRows b, Extent pixels) {
  constexpr size_t kPart = 1024 * channels;
  auto differences = fromZero<T, channels>(Distance());
  auto ofSecond = fromZero<T, channels>(Magnitude());
  walkRows(
      pixels.rows,
      [&](const Byte* x, const Byte* y) {
        for (size_t left = pixels.length * channels; left > 0;) {
          const size_t part = std::min(left, kPart);
          differences.addRow(part, x, y);
          ofSecond.addRow(part, y);
          x += part * sizeof(T);
          y += part * sizeof(T);
          left -= part;
        }
      },
      a, b);
  return {inDoubles(differences.template of<Greatest>()), inDoubles(ofSecond.template of<Greatest>())};
}

#define LUMI_NORMS(T, Total, channels)                                                                  \
  template NormTotals normOfImage<Norm::Inf, T, Total, channels>(SourceRows, Extent);                   \
  template NormTotals normOfDifferences<Norm::Inf, T, Total, channels>(SourceRows, SourceRows, Extent); \
  template RelativeTotals relativeNorm<Norm::Inf, T, Total, channels>(SourceRows, SourceRows, Extent);
#define LUMI_NORMS_OF(T, Total) LUMI_NORMS(T, Total, 1) LUMI_NORMS(T, Total, 3) LUMI_NORMS(T, Total, 4)
LUMI_NORMS_OF(uint8_t, uint64_t)
LUMI_NORMS_OF(uint16_t, uint64_t)
LUMI_NORMS_OF(int16_t, uint64_t)
LUMI_NORMS_OF(float, float)
template NormTotals normOfImage<Norm::Inf, int32_t, uint64_t, 1>(SourceRows, Extent);

}  // namespace lumi
