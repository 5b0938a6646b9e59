// SPDX-License-Identifier: MIT
// Transforms down the columns of images whose columns are pairs of a real and an imaginary pixel, and of the
// first and last columns of packed spectra, which hold a real sequence's spectrum each.
#pragma once

#include "kernels/rows.hpp"
#include "kernels/transforms/transform.hpp"

namespace lumi::transforms {

// What the columns of an image are, in pixels of the layout.
struct Columns {
  size_t firstPair;  // pixels before the first pair
  size_t pairs;
  int realColumns;    // 0; 1, the first one of the image; or 2, the first and the last one
  size_t lastColumn;  // the pixel of the last one

  // Of a packed spectrum, and of a complex image of that width.
  static Columns ofPacked(size_t width) {
    return {1, width > 2 ? (width - 1) / 2 : 0, width % 2 == 0 ? 2 : 1, width - 1};
  }
  static Columns ofComplex(size_t width) { return {0, width, 0, 0}; }
};

// Scratch in floats.
inline size_t columnScratch(const Transform& transform) {
  return transform.length * kPointFloats + transform.localFloats();
}

// Forward or inverse, times scale; src may be dst. Of `stored` samples of a pixel the first `used` ones are
// transformed, the others stay as they are.
template <int stored, int used>
void transformColumns(const Transform& transform, bool inverse, float scale, SourceRows src, TargetRows dst,
                      const Columns& columns, float* scratch);

}  // namespace lumi::transforms
