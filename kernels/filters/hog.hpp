// SPDX-License-Identifier: MIT
// Histograms of oriented gradients: what each pixel counts, and descriptors of windows.
#pragma once

#include "kernels/rows.hpp"

namespace lumi {

// Rows of floats of a strip of an image, at its first pixel; channels lie so many floats apart. The middle
// row has a pixel before the strip and one behind it. Up to 8 floats behind a row may be read.
struct HogStrip {
  const float *above, *centre, *below;
  ptrdiff_t channel;
};

// What pixels count: twelve bytes each, of any alignment. Two bins of 16 bits, times the bytes of a bin's
// four cells, and the votes for the first of them and for the second.
struct HogVotes {
  uint8_t* first;
  ptrdiff_t row;  // bytes to the next

  uint8_t* at(ptrdiff_t x, ptrdiff_t y) const { return first + y * row + 12 * x; }
};

// One row of a strip. Bins are in range, whatever the samples are.
template <int channels>
void hogVotes(const HogStrip& strip, int binCount, uint8_t* votes, size_t pixels);

// How windows are divided. Weights are four floats for each pixel of a block, of any alignment.
struct HogGrid {
  int blockSize, stride, across, down;
  bool byColumns;
  int binCount;
  float clipping;
  const uint8_t* weights;

  size_t blocks() const { return static_cast<size_t>(across) * static_cast<size_t>(down); }
  size_t bytes() const { return blocks() * 16 * static_cast<size_t>(binCount); }
};

// The descriptor of the window whose first pixel is that of the votes.
void hogDescriptor(const HogGrid& grid, const HogVotes& votes, uint8_t* dst);

}  // namespace lumi
