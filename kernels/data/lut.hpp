// SPDX-License-Identifier: MIT
// Look-up: samples become the entries of tables, of which the sample's bits are the index.
#pragma once

#include <cstdint>

#include "kernels/rows.hpp"

namespace lumi {

// Where the results of a pixel's channels go: to the same place, behind an alpha, or turned round before it.
enum class Placed { AsTheyAre, BehindAlpha, BeforeAlphaTurned };

// A pixel's samples, those that have tables, and where their entries go; samples of the destination that no
// table makes stay.
template <int tableCount, int srcSamples, int dstSamples, Placed where = Placed::AsTheyAre>
struct PixelLayout {
  static constexpr int kTables = tableCount, kSrc = srcSamples, kDst = dstSamples;
  static constexpr Placed kPlaced = where;
};

// Tables that have an entry for every sample, one behind the other.
template <int sampleBytes, int entryBytes, typename Layout>
void lookUpRows(SourceRows src, TargetRows dst, Extent pixels, const uint8_t* tables);

// Three tables of bytes, one behind the other, and an alpha that is stored in every pixel.
template <Placed placed>
void lookUpWithAlphaRows(SourceRows src, TargetRows dst, Extent pixels, const uint8_t* tables, uint8_t alpha);

// Tables that lie anywhere, and the bits of a sample that count.
struct MaskedTables {
  const uint8_t* table[4];
  uint32_t mask;
  uint16_t alpha;  // where it is stored
};

// Of 16-bit samples.
template <int entryBytes, typename Layout, bool storesAlpha = false>
void lookUpMaskedRows(SourceRows src, TargetRows dst, Extent pixels, const MaskedTables& tables);

// Bytes of one table. As many of its entries are given as count: 16, 64 or 256. src and dst may be the same
// image; of every four samples the last `alpha` stay.
template <int entries, int alpha>
void lookUpBytesRows(SourceRows src, TargetRows dst, Extent samples, const uint8_t* table);

}  // namespace lumi
