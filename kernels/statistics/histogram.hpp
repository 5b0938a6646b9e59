// SPDX-License-Identifier: MIT
// Counts of the samples of one channel in bins between levels.
#pragma once

#include "kernels/byte_counts.hpp"
#include "kernels/rows.hpp"
#include "kernels/unaligned.hpp"

namespace lumi {

// Bin k of count - 1 has the samples from levels[k] on and below levels[k + 1]. Levels and bins lie at any
// address; counts go around at 2^32. Fewer than two levels have no bin.
template <typename L>
struct BinList {
  Unaligned<L> levels;
  int count;
  void* bins;

  int size() const { return count - 1; }
};

// A channel of an image: its first sample in each row, pixels, and bytes from one to the next.
struct Channel {
  SourceRows rows;
  Extent pixels;
  size_t pixelBytes;
};

// Bins of the counts of bytes.
void binBytes(const ByteCounts& counts, const BinList<int32_t>& list);

// The same of 16-bit samples, by a table of all of them, which lies at any address.
constexpr int64_t kWordTableBytes = 65536 * 4;
template <typename T>
void binWordsByTable(const Channel& channel, const BinList<int32_t>& list, uint8_t* table);

// Bins by comparisons, for uint16_t, int16_t and float: of any list, by as many steps as it has levels, and
// of one that ascends strictly, by a look for each sample. NaN is in no bin, and no level. A list that does
// not ascend gives the second some counts.
template <typename T, typename L>
void binByLevels(const Channel& channel, const BinList<L>& list);
template <typename T, typename L>
void binBySearch(const Channel& channel, const BinList<L>& list);

// Samples between the first level and the last, by (x - first) / width in floats, whatever the other levels.
// That may round up to the next bin where levels are beyond 2^24.
template <typename T>
void binByDivision(const Channel& channel, const BinList<int32_t>& list);

}  // namespace lumi
