// SPDX-License-Identifier: MIT
#include "kernels/data/lut.hpp"

#include <cstring>

#include "kernels/simd/bytes.hpp"

namespace lumi {
namespace {

using simd::Byte;
using simd::move;

template <int bytes>
uint32_t sampleAt(const Byte* p) {
  if constexpr (bytes == 1) {
    return *p;
  } else {
    uint16_t sample;
    std::memcpy(&sample, p, sizeof sample);
    return sample;
  }
}

// The place of channel c in the destination's pixel.
template <Placed placed>
constexpr int placeOf(int c) {
  return placed == Placed::AsTheyAre ? c : placed == Placed::BehindAlpha ? c + 1 : 2 - c;
}

template <int sampleBytes, int entryBytes, int tables, int srcSamples, int dstSamples, Placed placed>
struct PixelLookUp {
  const Byte* table[tables];
  uint32_t mask;

  [[gnu::always_inline]] void one(const Byte* s, Byte* d) const {
    for (int c = 0; c < tables; ++c)
      move<entryBytes>(
          d + placeOf<placed>(c) * entryBytes,
          table[c] + entryBytes * static_cast<size_t>(sampleAt<sampleBytes>(s + c * sampleBytes) & mask));
  }
  [[gnu::always_inline]] void row(const Byte* s, Byte* d, size_t pixels) const {
    constexpr size_t round = 8 / tables, from = srcSamples * sampleBytes, to = dstSamples * entryBytes;
    for (; pixels >= round; pixels -= round, s += round * from, d += round * to)
      for (size_t i = 0; i < round; ++i) one(s + i * from, d + i * to);
    for (; pixels > 0; --pixels, s += from, d += to) one(s, d);
  }
};

}  // namespace

template <int sampleBytes, int entryBytes, int tables, int srcSamples, int dstSamples, Placed placed>
void lookUpRows(SourceRows src, TargetRows dst, Extent pixels, const LookUp& lookUp) {
  PixelLookUp<sampleBytes, entryBytes, tables, srcSamples, dstSamples, placed> pixel{{}, lookUp.mask};
  for (size_t c = 0; c < tables; ++c) pixel.table[c] = lookUp.table[c];
  walkPixels([=](const Byte* s, Byte* d, size_t length) { pixel.row(s, d, length); }, src, dst, pixels);
}

template <int sampleBytes>
void setAlphaRows(TargetRows dst, Extent pixels, uint32_t alpha) {
  walkRows(
      pixels.rows,
      [=](Byte* d) {
        for (size_t x = 0; x < pixels.length; ++x) std::memcpy(d + 4 * sampleBytes * x, &alpha, sampleBytes);
      },
      dst);
}

template void lookUpRows<2, 2, 1, 1, 1, Placed::AsTheyAre>(SourceRows, TargetRows, Extent, const LookUp&);
template void lookUpRows<2, 1, 1, 1, 1, Placed::AsTheyAre>(SourceRows, TargetRows, Extent, const LookUp&);
template void lookUpRows<1, 3, 1, 1, 1, Placed::AsTheyAre>(SourceRows, TargetRows, Extent, const LookUp&);
template void lookUpRows<2, 3, 1, 1, 1, Placed::AsTheyAre>(SourceRows, TargetRows, Extent, const LookUp&);
template void lookUpRows<1, 4, 1, 1, 1, Placed::AsTheyAre>(SourceRows, TargetRows, Extent, const LookUp&);
template void lookUpRows<2, 4, 1, 1, 1, Placed::AsTheyAre>(SourceRows, TargetRows, Extent, const LookUp&);

template void lookUpRows<1, 1, 3, 3, 3, Placed::AsTheyAre>(SourceRows, TargetRows, Extent, const LookUp&);
template void lookUpRows<2, 2, 3, 3, 3, Placed::AsTheyAre>(SourceRows, TargetRows, Extent, const LookUp&);
template void lookUpRows<1, 1, 4, 4, 4, Placed::AsTheyAre>(SourceRows, TargetRows, Extent, const LookUp&);
template void lookUpRows<2, 2, 4, 4, 4, Placed::AsTheyAre>(SourceRows, TargetRows, Extent, const LookUp&);
template void lookUpRows<1, 1, 3, 4, 4, Placed::AsTheyAre>(SourceRows, TargetRows, Extent, const LookUp&);
template void lookUpRows<2, 2, 3, 4, 4, Placed::AsTheyAre>(SourceRows, TargetRows, Extent, const LookUp&);

template void lookUpRows<1, 1, 3, 3, 4, Placed::BehindAlpha>(SourceRows, TargetRows, Extent, const LookUp&);
template void lookUpRows<2, 2, 3, 3, 4, Placed::BehindAlpha>(SourceRows, TargetRows, Extent, const LookUp&);
template void lookUpRows<1, 1, 3, 3, 4, Placed::BeforeAlphaTurned>(SourceRows, TargetRows, Extent,
                                                                   const LookUp&);
template void lookUpRows<2, 2, 3, 3, 4, Placed::BeforeAlphaTurned>(SourceRows, TargetRows, Extent,
                                                                   const LookUp&);
template void setAlphaRows<1>(TargetRows, Extent, uint32_t);
template void setAlphaRows<2>(TargetRows, Extent, uint32_t);

}  // namespace lumi
