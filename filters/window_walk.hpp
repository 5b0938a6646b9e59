// SPDX-License-Identifier: MIT
// Images under filters of a small window: rows in bands, with the pixels around them in memory or as a border
// makes them.
#pragma once

#include "filters/bordered_image.hpp"
#include "frame/layout.hpp"
#include "kernels/filters/window.hpp"

namespace lumi {

// The samples of a pixel; where not all are used, the last one of the destination stays.
struct PixelShape {
  int stored, used;
};
template <typename Layout>
inline constexpr PixelShape kShape{Layout::kStored, Layout::kUsed};

// An image whose surroundings are in memory.
void filterWindows(const WindowFilter& filter, SourceRows src, TargetRows dst, LumiSize roi,
                   PixelShape pixel);

// An image of one channel of samples of so many bytes. `constants` is a row as wide as the ROI and what the
// window covers beside it, for constant borders.
template <int sampleBytes>
void filterWindows(const WindowFilter& filter, const BorderedImage<sampleBytes>& src, TargetRows dst,
                   Byte* constants);

// A band whose rows lie where one likes, of any width. Pixels are `column` bytes apart.
void filterRows(const WindowFilter& filter, const Band& band, size_t samples, ptrdiff_t column);

}  // namespace lumi
