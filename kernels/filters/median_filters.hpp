// SPDX-License-Identifier: MIT
// Medians of small windows of one shape.
#pragma once

#include "kernels/filters/window.hpp"

namespace lumi {

// Squares and lines of 3 or 5; crosses of the middle row and column of those squares; 3 x 3 with its centre
// counted so often.
enum class MedianShape {
  Square3,
  Square5,
  Row3,
  Row5,
  Column3,
  Column5,
  Cross3,
  Cross5,
  Centre3,
  Centre5,
  Centre7,
};

// Of uint8_t, uint16_t, int16_t and float. There are no crosses of floats, and weights are for uint8_t alone:
// their `run` is null. A window's margins are those of its shape: a row reads no rows above or below.
template <typename T>
WindowFilter medianFilter(MedianShape shape);

}  // namespace lumi
