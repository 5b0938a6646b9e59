// SPDX-License-Identifier: MIT
#include "kernels/data/lut.hpp"

#include <cstring>

#include "kernels/simd/pixels.hpp"

namespace lumi {
namespace {

using simd::Byte;
using simd::move;

template <int bytes>
size_t sampleAt(const Byte* p) {
  if constexpr (bytes == 1) {
    return *p;
  } else {
    uint16_t sample;
    std::memcpy(&sample, p, sizeof sample);
    return sample;
  }
}

// The entries of channel c: of tables that lie one behind the other, or anywhere.
template <int sampleBytes, int entryBytes>
struct Contiguous {
  const Byte* tables;
  const Byte* entry(int c, size_t sample) const {
    return tables + entryBytes * (sample + (static_cast<size_t>(c) << (8 * sampleBytes)));
  }
};
template <int entryBytes, int count>
struct Masked {
  const Byte* table[count];
  size_t mask;
  explicit Masked(const MaskedTables& tables) : mask(tables.mask) {
    for (size_t c = 0; c < count; ++c) table[c] = tables.table[c];
  }
  const Byte* entry(int c, size_t sample) const { return table[c] + entryBytes * (sample & mask); }
};

constexpr int placeOf(Placed placed, int c) {
  return placed == Placed::AsTheyAre ? c : placed == Placed::BehindAlpha ? c + 1 : 2 - c;
}

// Loads bound this, so that as many samples come by one as can, and their entries are put together for one
// store.
template <int sampleBytes, int entryBytes, typename Layout, bool storesAlpha, typename Tables>
struct PixelLookUp {
  Tables tables;
  uint32_t alpha;

  static constexpr int kTables = Layout::kTables;
  static constexpr size_t kFrom = Layout::kSrc * sampleBytes, kTo = Layout::kDst * entryBytes;
  static constexpr bool kInWords =
      kTables == Layout::kDst && Layout::kPlaced == Placed::AsTheyAre && entryBytes <= 2;
  static constexpr bool kIsBehind = Layout::kPlaced == Placed::BehindAlpha;
  // Pixels at a time; words end with one of them.
  static constexpr int kRound = kTables == 1 ? 8 : 4;

  // Samples whose entries take as many bytes are loaded four bytes at a time, where so many belong to them.
  static constexpr bool kLoadsWords = kInWords && sampleBytes == entryBytes;

  const Byte* entry(const Byte* s, int c) const {
    return tables.entry(c, sampleAt<sampleBytes>(s + c * sampleBytes));
  }
  static size_t sampleOf(uint32_t word, int i) {
    const uint32_t shifted = word >> (8 * sampleBytes * i);
    return sampleBytes == 1 ? uint8_t(shifted) : uint16_t(shifted);
  }
  // Four bytes of results, the bytes from 4 * w on.
  [[gnu::always_inline]] void word(const Byte* s, Byte* d, int w) const {
    constexpr int each = 4 / entryBytes;
    const uint32_t samples = kLoadsWords ? simd::loadDword<4>(s + 4 * w) : 0;
    uint32_t results = 0;
    for (int i = 0; i < each; ++i) {
      const int at = w * each + i;
      const Byte* const pixel = s + at / kTables * static_cast<int>(kFrom);
      const Byte* const found =
          kLoadsWords ? tables.entry(at % kTables, sampleOf(samples, i)) : entry(pixel, at % kTables);
      results |= simd::loadDword<entryBytes>(found) << (8 * entryBytes * i);
    }
    std::memcpy(d + 4 * w, &results, 4);
  }
  // Three samples of four, in the order of the destination, or all.
  [[gnu::always_inline]] void colour(const Byte* s, Byte* d) const {
    constexpr bool isWord = Layout::kSrc * sampleBytes == 4;
    const uint32_t samples = isWord ? simd::loadDword<4>(s) : 0;
    uint32_t sample[4] = {alpha, alpha, alpha, alpha};
    for (int c = 0; c < kTables; ++c)
      sample[placeOf(Layout::kPlaced, c)] =
          simd::loadDword<entryBytes>(isWord ? tables.entry(c, sampleOf(samples, c)) : entry(s, c));
    const uint32_t low = sample[0] | sample[1] << (8 * entryBytes),
                   high = sample[2] | sample[3] << (8 * entryBytes);
    constexpr size_t half = 2 * entryBytes;
    if constexpr (entryBytes == 1 && storesAlpha) {
      const uint32_t all = low | high << 16;
      std::memcpy(d, &all, sizeof all);
      return;
    }
    if (kIsBehind && !storesAlpha)
      std::memcpy(d + entryBytes, &sample[1], entryBytes);
    else
      std::memcpy(d, &low, half);
    std::memcpy(d + half, &high, kIsBehind || storesAlpha ? half : entryBytes);
  }
  [[gnu::always_inline]] void one(const Byte* s, Byte* d) const {
    if constexpr (Layout::kDst == 4 && kTables == 3)
      colour(s, d);
    else
      for (int c = 0; c < kTables; ++c) move<entryBytes>(d + c * entryBytes, entry(s, c));
  }
  [[gnu::always_inline]] void round(const Byte* s, Byte* d) const {
    if constexpr (kInWords)
      for (int w = 0; w < kRound * static_cast<int>(kTo) / 4; ++w) word(s, d, w);
    else
      for (size_t i = 0; i < kRound; ++i) one(s + i * kFrom, d + i * kTo);
  }
};

template <int sampleBytes, int entryBytes, typename Layout, bool storesAlpha, typename Tables>
void lookUpAll(SourceRows src, TargetRows dst, Extent pixels, const Tables& tables, uint16_t alpha) {
  using Pixel = PixelLookUp<sampleBytes, entryBytes, Layout, storesAlpha, Tables>;
  const Pixel pixel{tables, alpha};  // no store changes a copy
  walkPixels(
      [=](const Byte* s, Byte* d, size_t length) {
        for (; length >= Pixel::kRound;
             length -= Pixel::kRound, s += Pixel::kRound * Pixel::kFrom, d += Pixel::kRound * Pixel::kTo)
          pixel.round(s, d);
        for (; length > 0; --length, s += Pixel::kFrom, d += Pixel::kTo) pixel.one(s, d);
      },
      src, dst, pixels);
}

}  // namespace

template <int sampleBytes, int entryBytes, typename Layout>
void lookUpRows(SourceRows src, TargetRows dst, Extent pixels, const uint8_t* tables) {
  lookUpAll<sampleBytes, entryBytes, Layout, false>(src, dst, pixels,
                                                    Contiguous<sampleBytes, entryBytes>{tables}, 0);
}

template <Placed placed>
void lookUpWithAlphaRows(SourceRows src, TargetRows dst, Extent pixels, const uint8_t* tables,
                         uint8_t alpha) {
  lookUpAll<1, 1, PixelLayout<3, 3, 4, placed>, true>(src, dst, pixels, Contiguous<1, 1>{tables}, alpha);
}

template <int entryBytes, typename Layout, bool storesAlpha>
void lookUpMaskedRows(SourceRows src, TargetRows dst, Extent pixels, const MaskedTables& tables) {
  lookUpAll<2, entryBytes, Layout, storesAlpha>(src, dst, pixels, Masked<entryBytes, Layout::kTables>(tables),
                                                tables.alpha);
}

using One = PixelLayout<1, 1, 1>;
using Three = PixelLayout<3, 3, 3>;
using Four = PixelLayout<4, 4, 4>;
using Colour = PixelLayout<3, 4, 4>;
using Behind = PixelLayout<3, 3, 4, Placed::BehindAlpha>;
using Turned = PixelLayout<3, 3, 4, Placed::BeforeAlphaTurned>;

#define LUMI_WHOLE(sample, entry, Layout) \
  template void lookUpRows<sample, entry, Layout>(SourceRows, TargetRows, Extent, const uint8_t*);
LUMI_WHOLE(1, 1, One)
LUMI_WHOLE(1, 3, One)
LUMI_WHOLE(1, 4, One)
LUMI_WHOLE(1, 1, Three)
LUMI_WHOLE(1, 1, Four)
LUMI_WHOLE(1, 1, Colour)
LUMI_WHOLE(1, 1, Behind)
LUMI_WHOLE(1, 1, Turned)
LUMI_WHOLE(2, 2, One)
LUMI_WHOLE(2, 2, Three)
LUMI_WHOLE(2, 2, Four)
LUMI_WHOLE(2, 2, Colour)
#undef LUMI_WHOLE

template void lookUpWithAlphaRows<Placed::BehindAlpha>(SourceRows, TargetRows, Extent, const uint8_t*,
                                                       uint8_t);
template void lookUpWithAlphaRows<Placed::BeforeAlphaTurned>(SourceRows, TargetRows, Extent, const uint8_t*,
                                                             uint8_t);

#define LUMI_MASKED(entry, Layout, storesAlpha)                                              \
  template void lookUpMaskedRows<entry, Layout, storesAlpha>(SourceRows, TargetRows, Extent, \
                                                             const MaskedTables&);
LUMI_MASKED(1, One, false)
LUMI_MASKED(2, One, false)
LUMI_MASKED(3, One, false)
LUMI_MASKED(4, One, false)
LUMI_MASKED(2, Three, false)
LUMI_MASKED(2, Four, false)
LUMI_MASKED(2, Colour, false)
LUMI_MASKED(2, Behind, false)
LUMI_MASKED(2, Turned, false)
LUMI_MASKED(2, Behind, true)
LUMI_MASKED(2, Turned, true)
#undef LUMI_MASKED

}  // namespace lumi
