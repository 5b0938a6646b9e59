// SPDX-License-Identifier: MIT
// Bytes by whole tables, one for each channel and one behind the other.
#pragma once

#include <cstring>

#include "frame/layout.hpp"
#include "kernels/data/lut.hpp"
#include "kernels/path_count.hpp"

namespace lumi {

inline constexpr size_t kByteTable = 256;

// Whether there is one channel, or all have the same table.
template <typename Layout>
bool isOneTable(const Lum8u* tables) {
  return std::memcmp(tables, tables + kByteTable, kByteTable * static_cast<size_t>(Layout::kUsed - 1)) == 0;
}

template <typename Layout>
void lookUpBytesOf(SourceRows src, TargetRows dst, Extent pixels, const Lum8u* tables) {
  if (isOneTable<Layout>(tables)) {
    countPath(Path::LookUpOneTable);
    lookUpBytesRows<256, kAlpha<Lum8u, Layout>>(src, dst, pixels.times(Layout::kStored), tables);
  } else if constexpr (Layout::kStored > 1) {
    lookUpRows<1, 1, PixelLayout<Layout::kUsed, Layout::kStored, Layout::kStored>>(src, dst, pixels, tables);
  }
}

}  // namespace lumi
