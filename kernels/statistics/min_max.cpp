// SPDX-License-Identifier: MIT
#include "kernels/statistics/min_max.hpp"

#include "kernels/statistics/extremes.hpp"
#include "kernels/statistics/itself.hpp"

namespace lumi {
namespace {

using namespace simd;

template <typename Kind>
uint8_t extremeByteOf(SourceRows src, Extent pixels) {
  using Lanes = ExtremeLanes<uint8_t, 1>;
  Extremes<uint8_t, uint8_t, 1, Itself, Kind> extremes(Itself(), Lanes::at(Kind::template worst<uint8_t>()));
  const Lanes last = Lanes::at(Kind::template best<uint8_t>());
  for (int y = 0; y < pixels.rows; ++y) {
    extremes.addRow(pixels.length, src.row(y));
    if (extremes.template lanes<Kind>().meets(last)) break;
  }
  return extremes.template of<Kind>().of[0];
}

}  // namespace

uint8_t leastByteOf(SourceRows src, Extent pixels) { return extremeByteOf<Least>(src, pixels); }
uint8_t greatestByteOf(SourceRows src, Extent pixels) { return extremeByteOf<Greatest>(src, pixels); }

template <typename T, int channels>
ChannelTotals<T> leastOf(SourceRows src, Extent pixels) {
  return extremesOf<Least, T, T, channels>(Itself(), Least::worstFinite<T>(), pixels, src);
}

template <typename T, int channels>
ChannelTotals<T> greatestOf(SourceRows src, Extent pixels) {
  return extremesOf<Greatest, T, T, channels>(Itself(), Greatest::worstFinite<T>(), pixels, src);
}

template <typename T, int channels>
ChannelRanges<T> rangesOf(SourceRows src, Extent pixels, bool tellsInfinities) {
  using Lanes = ExtremeLanes<T, channels>;
  const auto start = [=](auto kind) {
    return Lanes::at(tellsInfinities ? kind.template worst<T>() : kind.template worstFinite<T>());
  };
  Extremes<T, T, channels, Itself, Least, Greatest> extremes(Itself(), start(Least()), start(Greatest()));
  walkRows(
      pixels.rows, [&](const Byte* row) { extremes.addRow(pixels.length * channels, row); }, src);
  return {extremes.template of<Least>(), extremes.template of<Greatest>()};
}

#define LUMI_EXTREMES(T, channels)                                       \
  template ChannelTotals<T> leastOf<T, channels>(SourceRows, Extent);    \
  template ChannelTotals<T> greatestOf<T, channels>(SourceRows, Extent); \
  template ChannelRanges<T> rangesOf<T, channels>(SourceRows, Extent, bool);
#define LUMI_EXTREMES_OF(T) LUMI_EXTREMES(T, 1) LUMI_EXTREMES(T, 3) LUMI_EXTREMES(T, 4)
LUMI_EXTREMES_OF(uint8_t)
LUMI_EXTREMES_OF(uint16_t)
LUMI_EXTREMES_OF(int16_t)
LUMI_EXTREMES_OF(float)

}  // namespace lumi
