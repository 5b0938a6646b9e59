// SPDX-License-Identifier: MIT
// Where the numbers of a packed spectrum lie, which is as large as the image that it is of.
#pragma once

#include "model/access.hpp"

namespace model {

struct Place {
  int row, column;
};

// Numbers of a column that is packed downwards: real(place) or pair(place of the real part, place of the
// imaginary part).
template <typename Real, typename Pair>
void forEachNumberDown(int column, int height, const Real& real, const Pair& pair) {
  real(Place{0, column});
  for (int j = 1; 2 * j < height; ++j) pair(Place{2 * j - 1, column}, Place{2 * j, column});
  if (height % 2 == 0) real(Place{height - 1, column});
}

template <typename Real, typename Pair>
void forEachNumber(LumiSize roi, const Real& real, const Pair& pair) {
  forEachNumberDown(0, roi.height, real, pair);
  if (roi.width % 2 == 0) forEachNumberDown(roi.width - 1, roi.height, real, pair);
  for (int row = 0; row < roi.height; ++row)
    for (int k = 1; 2 * k < roi.width; ++k) pair(Place{row, 2 * k - 1}, Place{row, 2 * k});
}

// Samples of one channel by their places.
template <typename T>
struct PackedChannel {
  Image image;
  int channels, channel;

  T at(Place p) const { return load<T>(image.row(p.row), p.column * channels + channel); }
  void set(Place p, T value) const { store<T>(image.row(p.row), p.column * channels + channel, value); }
};

}  // namespace model
