// SPDX-License-Identifier: MIT
// Filters of a small window: a band of rows of results from the rows of samples about them.
#pragma once

#include <algorithm>
#include <cstddef>
#include <utility>

#include "kernels/rows.hpp"
#include "kernels/simd/window.hpp"

namespace lumi {

// The most rows of a band, and how far a window reaches in any direction, in pixels.
inline constexpr int kBandRows = 16, kMostReach = 2;

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
  bool readsCorners = true;       // whether it reads beside the rows above and below
};

namespace simd {

// A row of the band at a block of samples: row 0 is the one that was taken last, row -1 the one above it.
struct WindowRows {
  const Byte* const* newest;
  size_t at;
  ptrdiff_t column;

  const Byte* operator()(int row, int pixel) const { return newest[row] + at + pixel * column; }
};

// A filter goes down a column of vectors. It is an object that keeps what it needs of the rows above:
//   Source, Result   sample types
//   kRows, kVectors  rows of the window, and columns that are done side by side
//   take(rows)       takes the next row
//   result(rows)     the window that ends with the row taken last: a sum that is finished but not limited, or
//                    a vector of Results
template <typename Filter>
using WindowResults = decltype(std::declval<Filter&>().result(std::declval<const WindowRows&>()));

template <typename Filter>
void filterBand(const Band& band, size_t samples, ptrdiff_t column) {
  using Source = typename Filter::Source;
  using Result = typename Filter::Result;
  constexpr int n = Filter::kVectors;
  constexpr size_t each = kWindowSamples<WindowResults<Filter>>, block = n * each;
  for (size_t i = 0;; i = std::min(i + block, samples - block)) {
    Filter filters[n]{};
    const Byte* const* row = band.src;
    const auto rowsOf = [&](int v) {
      return WindowRows{row, (i + each * static_cast<size_t>(v)) * sizeof(Source), column};
    };
    const auto take = [&] {
      for (int v = 0; v < n; ++v) filters[v].take(rowsOf(v));
    };
    for (const Byte* const* const first = row + Filter::kRows - 1; row != first; ++row) take();
    Byte* dst = band.dst.first + i * sizeof(Result);
    for (const Byte* const* const end = row + band.rows; row != end; ++row, dst += band.dst.step) {
      take();
      WindowResults<Filter> results[n];
      for (int v = 0; v < n; ++v) results[v] = filters[v].result(rowsOf(v));
      storeResults<Result>(dst, results);
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
          static_cast<int>(kWindowSamples<WindowResults<Filter>>) * Filter::kVectors,
          sizeof(typename Filter::Source),
          sizeof(typename Filter::Result)};
}

}  // namespace simd
}  // namespace lumi
