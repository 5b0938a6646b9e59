// SPDX-License-Identifier: MIT
// Rows of a bordered image as planes of words or floats, for filters that compute in those.
#pragma once

#include <algorithm>
#include <type_traits>

#include "dispatch/convert.hpp"
#include "dispatch/copy_channels.hpp"
#include "filters/bordered_image.hpp"
#include "frame/layout.hpp"

namespace lumi {

// Strips of an image are so many pixels wide. A row of a plane has room for what lies before a strip, and
// behind it for that and a vector that begins there.
template <int pixels>
struct Strip {
  static constexpr int kPixels = pixels, kBefore = 16, kRow = kBefore + pixels + 48;
};

// Rows of an image in samples W that are computed with, a plane for each channel.
template <typename T, typename W, typename Layout, typename Strip>
class StripSource {
 public:
  explicit StripSource(const BorderedImage<kPixelBytes<T, Layout>>& image) : image_(image) {}

  LumiSize size() const { return image_.size(); }

  // Columns `from` to `end` - 1 of a row, inside the image and outside: at most a strip and its surroundings.
  // Planes lie Strip::kRow samples apart.
  void read(int y, int from, int end, W* to) const {
    if constexpr (std::is_same_v<T, W> && Layout::kStored == 1) {
      image_.copy(y, from, end, reinterpret_cast<Byte*>(to));
    } else {
      Byte copied[Strip::kRow * kPixelBytes<T, Layout>];
      const Byte* pixels = copied;
      if (isInMemory(y, from, end))
        pixels = image_.row(y) + static_cast<ptrdiff_t>(from) * kPixelBytes<T, Layout>;
      else
        image_.copy(y, from, end, copied);
      convert(reinterpret_cast<const T*>(pixels), end - from, to);
    }
    // Vectors go beyond the end: what they find there is the same in every run.
    for (int c = 0; c < Layout::kStored; ++c) std::fill_n(to + c * Strip::kRow + (end - from), 16, W{});
  }

 private:
  static constexpr int kStep = Strip::kRow * static_cast<int>(sizeof(T));
  static constexpr int kWideStep = Strip::kRow * static_cast<int>(sizeof(W));

  bool isInMemory(int y, int from, int end) const {
    const BorderMode border = image_.border();
    return image_.row(y) && (from >= 0 || border.isInMemory(lumiBorderInMemoryLeft)) &&
           (end <= image_.size().width || border.isInMemory(lumiBorderInMemoryRight));
  }

  static void convert(const T* pixels, int width, W* to) {
    if constexpr (Layout::kStored == 1) {
      call::ConvertR<T, W, C1>(pixels, kStep, to, kWideStep, {width, 1});
    } else if constexpr (std::is_same_v<T, W>) {
      W* const planes[] = {to, to + Strip::kRow, to + 2 * Strip::kRow};
      call::CopyR<T, C3, P3>(pixels, kStep, planes, kWideStep, {width, 1});
    } else {
      T narrow[3][Strip::kRow];
      T* const planes[] = {narrow[0], narrow[1], narrow[2]};
      call::CopyR<T, C3, P3>(pixels, kStep, planes, kStep, {width, 1});
      call::ConvertR<T, W, C1>(narrow[0], kStep, to, kWideStep, {width, 3});
    }
  }

  const BorderedImage<kPixelBytes<T, Layout>>& image_;
};

// So many rows of planes, of which each takes the place of the one that many before it.
template <typename W, typename Layout, typename Strip, int rows>
struct RowRing {
  alignas(32) W samples[rows][Layout::kStored][Strip::kRow];

  // The strip's first pixel. Rows are numbered from -rows on.
  W* row(int y) { return samples[(y + rows) % rows][0] + Strip::kBefore; }
};

}  // namespace lumi
