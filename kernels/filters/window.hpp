// SPDX-License-Identifier: MIT
// Filters of a small window: a band of rows of results from the rows of samples about them.
#pragma once

#include <algorithm>
#include <cstddef>

#include "kernels/rows.hpp"
#include "kernels/simd/bytes.hpp"

namespace lumi {

// The most rows of a band, and how far a window reaches in any direction, in pixels.
inline constexpr int kBandRows = 8, kMostReach = 2;

// Rows of source are given one by one, since a border's lie elsewhere: `above` rows before the first row of
// results, those of the band, and `below` behind it. Each is given by its sample under the first result.
struct Band {
  const uint8_t* const* src;
  TargetRows dst;
  int rows;
};

// Makes so many samples of each row, at least a block; pixels lie `column` bytes apart. The rows of results
// must not be source rows, nor overlap one another.
using BandKernel = void (*)(const Band& band, size_t samples, ptrdiff_t column);

struct WindowFilter {
  BandKernel run;
  int left, above, right, below;  // how far the window reaches, in pixels
  int block;                      // the fewest samples of a run
  int srcBytes, dstBytes;         // of a sample
};

namespace simd {

// A row of the band at a block of samples: row 0 is the one that was taken last, row -1 the one above it.
struct WindowRows {
  const Byte* const* newest;
  size_t at;
  ptrdiff_t column;

  const Byte* operator()(int row, int pixel = 0) const { return newest[row] + at + pixel * column; }
};

// A filter goes down a column of blocks. It is an object that keeps what it needs of the rows above:
//   Source, Result  sample types
//   kRows, kBlock   rows of the window, and samples that are made at a time
//   take(rows)      takes the next row
//   store(dst)      stores the results of the window that ends with the row taken last
template <typename Filter>
void filterBand(const Band& band, size_t samples, ptrdiff_t column) {
  constexpr size_t block = Filter::kBlock;
  for (size_t i = 0;; i = std::min(i + block, samples - block)) {
    Filter filter;
    WindowRows rows{band.src, i * sizeof(typename Filter::Source), column};
    const Byte* const* const end = band.src + band.rows + Filter::kRows - 1;
    for (int y = 1; y < Filter::kRows; ++y, ++rows.newest) filter.take(rows);
    Byte* dst = band.dst.first + i * sizeof(typename Filter::Result);
    for (; rows.newest != end; ++rows.newest, dst += band.dst.step) {
      filter.take(rows);
      filter.store(dst, rows);
    }
    if (i + block == samples) return;
  }
}

// What the family has to know of a filter whose window is as large on all sides of its centre.
template <typename Filter>
constexpr WindowFilter windowFilter() {
  constexpr int reach = Filter::kRows / 2;
  return {filterBand<Filter>,
          reach,
          reach,
          reach,
          reach,
          Filter::kBlock,
          sizeof(typename Filter::Source),
          sizeof(typename Filter::Result)};
}

}  // namespace simd
}  // namespace lumi
