// SPDX-License-Identifier: MIT
// Rows of a bordered image as planes of words or floats, for filters that compute in those.
#pragma once

#include <cstring>
#include <type_traits>

#include "dispatch/convert.hpp"
#include "dispatch/copy_channels.hpp"
#include "filters/bordered_image.hpp"
#include "frame/layout.hpp"

namespace lumi {

// A row of a plane holds a strip of an image, and room at both sides.
inline constexpr int kStripPixels = 256, kBeforeStrip = 16, kPlaneRow = kBeforeStrip + kStripPixels + 48;

// Samples as they are computed in: floats, or words of bytes.
template <typename T, typename W, typename Layout>
class StripSource {
 public:
  explicit StripSource(const BorderedImage<kPixelBytes<T, Layout>>& image) : image_(image) {}

  LumiSize size() const { return image_.size(); }

  // Columns `from` to `end` - 1 of a row, inside the image and outside: at most a strip and its surroundings.
  // Planes lie kPlaneRow samples apart.
  void read(int y, int from, int end, W* to) const {
    Byte copied[kPlaneRow * kPixelBytes<T, Layout>];
    const Byte* pixels = copied;
    if (isInMemory(y, from, end))
      pixels = image_.row(y) + static_cast<ptrdiff_t>(from) * kPixelBytes<T, Layout>;
    else
      image_.copy(y, from, end, copied);
    convert(reinterpret_cast<const T*>(pixels), end - from, to);
  }

 private:
  static constexpr int kStep = kPlaneRow * static_cast<int>(sizeof(T));
  static constexpr int kWideStep = kPlaneRow * static_cast<int>(sizeof(W));

  bool isInMemory(int y, int from, int end) const {
    const BorderMode border = image_.border();
    return image_.row(y) && (from >= 0 || border.isInMemory(lumiBorderInMemoryLeft)) &&
           (end <= image_.size().width || border.isInMemory(lumiBorderInMemoryRight));
  }

  static void convert(const T* pixels, int width, W* to) {
    if constexpr (Layout::kStored == 3) {
      W* const wide[] = {to, to + kPlaneRow, to + 2 * kPlaneRow};
      if constexpr (std::is_same_v<T, W>) {
        call::CopyR<T, C3, P3>(pixels, kStep, wide, kWideStep, {width, 1});
      } else {
        T planes[3][kPlaneRow];
        T* const narrow[] = {planes[0], planes[1], planes[2]};
        call::CopyR<T, C3, P3>(pixels, kStep, narrow, kStep, {width, 1});
        call::ConvertR<T, W, C1>(planes[0], kStep, to, kWideStep, {width, 3});
      }
    } else if constexpr (std::is_same_v<T, W>) {
      std::memcpy(to, static_cast<const void*>(pixels), static_cast<size_t>(width) * sizeof(W));
    } else {
      call::ConvertR<T, W, C1>(pixels, kStep, to, kWideStep, {width, 1});
    }
  }

  const BorderedImage<kPixelBytes<T, Layout>>& image_;
};

// So many rows of planes, of which each takes the place of the one that many before it. Samples are zeros
// where nothing was read.
template <typename T, typename W, typename Layout, int rows>
struct RowRing {
  alignas(32) W samples[rows][Layout::kStored][kPlaneRow] = {};

  // The strip's first pixel. Rows are numbered from -rows on.
  W* row(int y) { return samples[(y + rows) % rows][0] + kBeforeStrip; }
};

}  // namespace lumi
