// SPDX-License-Identifier: MIT
// Strips of a few columns, too narrow for vectors along their rows: the samples of each column are laid side
// by side, and sixteen rows are summed at once.
#pragma once

#include <algorithm>

#include "kernels/filters/filter_border.hpp"
#include "kernels/path_count.hpp"
#include "kernels/simd/bytes.hpp"

namespace lumi {

// Adds up in Sum, which may wrap; tap by tap, from the kernel's last tap to its first. finish(sum) is the
// sample.
template <typename T, typename Sum, typename Tap, typename Finish>
void filterColumns(const FilterTaps& taps, const Tap* kernel, FilterSource src, FilterStrip dst,
                   const Finish& finish) {
  countPath(Path::FilterStrip);
  constexpr int kLine = 16;
  alignas(32) Sum columns[kMostStripColumns][kLine + kMostStripRows];
  const int across = dst.samples + (taps.columns - 1) * src.channels, below = taps.rows - 1;
  for (int y = 0; y < dst.rows; y += kLine) {
    const int count = std::min(kLine, dst.rows - y);
    for (int row = 0; row < kLine + below; ++row)
      for (int x = 0; x < across; ++x) {
        T sample{};  // 0 below the strip
        if (row < count + below)
          simd::move<sizeof(T)>(reinterpret_cast<uint8_t*>(&sample),
                                src.first + (y + row) * src.step + x * static_cast<ptrdiff_t>(sizeof(T)));
        columns[x][row] = static_cast<Sum>(sample);
      }
    for (int s = 0; s < dst.samples; ++s) {
      Sum sums[kLine] = {};
      const Tap* tap = kernel + static_cast<ptrdiff_t>(taps.columns) * taps.rows;
      for (int row = 0; row < taps.rows; ++row)
        for (int x = 0; x < taps.columns; ++x) {
          const Sum factor = static_cast<Sum>(*--tap);
          const Sum* const line = columns[s + x * src.channels] + row;
          for (int i = 0; i < kLine; ++i) sums[i] += line[i] * factor;
        }
      for (int i = 0; i < count; ++i) {
        const T sample = finish(sums[i]);
        simd::move<sizeof(T)>(dst.first + (y + i) * dst.step + s * static_cast<ptrdiff_t>(sizeof(T)),
                              reinterpret_cast<const uint8_t*>(&sample));
      }
    }
  }
}

}  // namespace lumi
