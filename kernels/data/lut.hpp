// SPDX-License-Identifier: MIT
// Look-up: samples become the entries of tables, of which the sample's bits are the index.
#pragma once

#include <cstdint>

#include "kernels/rows.hpp"

namespace lumi {

// A table for each channel, and the bits of a sample that count.
struct LookUp {
  const uint8_t* table[4];
  uint32_t mask;
};

// Where the results of a pixel's channels go: to the same place, behind an alpha, or turned round before it.
enum class Placed { AsTheyAre, BehindAlpha, BeforeAlphaTurned };

// Pixels of as many samples as source and destination have of them; those that no table makes stay.
template <int sampleBytes, int entryBytes, int tables, int srcSamples, int dstSamples, Placed placed>
void lookUpRows(SourceRows src, TargetRows dst, Extent pixels, const LookUp& lookUp);

// Bytes of one table. As many of its entries are given as count: 16, 64 or 256. src and dst may be the same
// image; of every four samples the last `alpha` stay.
template <int entries, int alpha>
void lookUpBytesRows(SourceRows src, TargetRows dst, Extent samples, const uint8_t* table);

// Stores a value in one sample of each pixel; dst is at that sample of the first one.
template <int sampleBytes>
void setAlphaRows(TargetRows dst, Extent pixels, uint32_t alpha);

}  // namespace lumi
