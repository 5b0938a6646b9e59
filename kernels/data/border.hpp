// SPDX-License-Identifier: MIT
// Row pieces of images that grow a frame: runs moved, runs of one pixel, runs that repeat a row.
#pragma once

#include <cstddef>
#include <cstdint>

namespace lumi {

// Copies the first `used` of `stored` samples of each pixel. Runs that overlap are moved in order, by
// samples, or by pixels where a part of them stays; a run onto itself is left alone. `far` tells that the
// images are larger than a cache near the processor.
template <int sampleBytes, int stored, int used>
void moveRun(const uint8_t* src, uint8_t* dst, size_t pixels, bool far);

// Stores the first usedBytes of one pixel in each; the pixel's bytes behind them are not read.
template <int pixelBytes, int usedBytes>
void repeatPixel(const uint8_t* pixel, uint8_t* dst, size_t pixels);

// A row with both its sides: `left` times the pixel `first`, the row, `right` times the pixel `last`. `dst`
// is the row's place, between the sides.
struct RowShape {
  size_t left, width, right;  // in pixels
  bool far;
};
template <int sampleBytes, int stored, int used>
void extendRow(const uint8_t* first, const uint8_t* last, const uint8_t* src, uint8_t* dst,
               const RowShape& shape);

// Continues a row on both sides with its own period. `image` is the row, `row` its place between the two
// borders: the same, or filled with it already.
void wrapRow(const uint8_t* image, uint8_t* row, size_t bytes, size_t leftBytes, size_t rightBytes);

}  // namespace lumi
