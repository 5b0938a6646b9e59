// SPDX-License-Identifier: MIT
// The extremes of windows of any size, of all their samples or of those that a mask selects.
#pragma once

#include "filters/window_walk.hpp"
#include "frame/layout.hpp"
#include "frame/rows.hpp"
#include "kernels/filters/window_extremes.hpp"

namespace lumi {

// An image whose surroundings are in memory, as far as the windows of its pixels reach.
struct ExtremeImage {
  SourceRows src;
  TargetRows dst;  // may be the source, where its rows and what is read beside them lie apart
  LumiSize roi;
  PixelShape pixel;
  LumiSize window;
  LumiPoint anchor;  // the pixel's place in its window

  bool inPlace() const { return src.first == dst.first; }
};

template <typename Layout, typename T>
ExtremeImage extremeImage(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, LumiSize window,
                          LumiPoint anchor) {
  return {rows(src, srcStep), rows(dst, dstStep), roi, kShape<Layout>, window, anchor};
}

// Fails where there is no memory, with nothing written.
LumStatus storeExtremes(const ExtremeKernels& kernels, const ExtremeImage& image);

// Of the pixels under what is not zero in a mask of the window's size, row after row: one at least.
LumStatus storeExtremes(const ExtremeKernels& kernels, const ExtremeImage& image, const Lum8u* mask);

}  // namespace lumi
