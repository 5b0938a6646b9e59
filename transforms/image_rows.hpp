// SPDX-License-Identifier: MIT
// Rows of images for runners that take several at once, of any place: run(src, dst, count) of at most
// atOnce() rows.
#pragma once

#include <algorithm>

#include "frame/layout.hpp"
#include "kernels/planes.hpp"
#include "kernels/rows.hpp"
#include "kernels/transforms/colours.hpp"

namespace lumi {

inline constexpr size_t kMostRowsAtOnce = 16;

template <typename Runner>
void runImageRows(Runner& runner, size_t height, SourceRows src, TargetRows dst) {
  const uint8_t* from[kMostRowsAtOnce];
  uint8_t* to[kMostRowsAtOnce];
  for (size_t y = 0; y < height; y += runner.atOnce()) {
    const size_t count = std::min(runner.atOnce(), height - y);
    for (size_t i = 0; i < count; ++i) {
      from[i] = src.row(static_cast<int>(y + i));
      to[i] = dst.row(static_cast<int>(y + i));
    }
    runner.run(from, to, count);
  }
}

template <typename Layout>
void splitRow(const uint8_t* row, uint8_t* const* planes, size_t width) {
  PlaneRows<uint8_t, Layout::kStored> to{};
  for (size_t c = 0; c < Layout::kStored; ++c) to.first[c] = planes[c];
  splitRows<sizeof(float), Layout::kStored>({row, 0}, to, {width, 1}, false);
}

template <typename Layout>
void mergeRow(uint8_t* const* planes, uint8_t* row, size_t width) {
  if constexpr (Layout::kUsed == Layout::kStored) {
    PlaneRows<const uint8_t, Layout::kStored> from{};
    for (size_t c = 0; c < Layout::kStored; ++c) from.first[c] = planes[c];
    mergeRows<sizeof(float), Layout::kStored>(from, {row, 0}, {width, 1}, false);
  } else {
    transforms::mergeColours(planes[0], planes[1], planes[2], row, width);
  }
}

// Channels as planes of rows: of as many rows as runner takes, or of one. Planes has room for a row of each.
template <typename Layout, typename Runner>
void runChannelRows(Runner& runner, size_t width, size_t height, SourceRows src, TargetRows dst,
                    float* planes) {
  constexpr size_t kStored = Layout::kStored, kUsed = Layout::kUsed;
  const size_t atOnce = std::max<size_t>(runner.atOnce() / kStored, 1);
  for (size_t y = 0; y < height; y += atOnce) {
    const size_t count = std::min(atOnce, height - y);
    uint8_t* plane[kMostRowsAtOnce];
    uint8_t* used[kMostRowsAtOnce];
    size_t lanes = 0;
    for (size_t i = 0; i < count; ++i) {
      for (size_t c = 0; c < kStored; ++c)
        plane[i * kStored + c] = reinterpret_cast<uint8_t*>(planes + (i * kStored + c) * width);
      splitRow<Layout>(src.row(static_cast<int>(y + i)), plane + i * kStored, width);
      for (size_t c = 0; c < kUsed; ++c) used[lanes++] = plane[i * kStored + c];
    }
    for (size_t i = 0; i < lanes; i += runner.atOnce())
      runner.run(used + i, used + i, std::min(runner.atOnce(), lanes - i));
    for (size_t i = 0; i < count; ++i)
      mergeRow<Layout>(plane + i * kStored, dst.row(static_cast<int>(y + i)), width);
  }
}

}  // namespace lumi
