// SPDX-License-Identifier: MIT
// Row kernels of comparisons: a mask of a byte for each pixel, 255 where all its samples pass and 0
// elsewhere.
#pragma once

#include <cstddef>

#include "kernels/rows.hpp"

namespace lumi {

// An image, or one pixel that stands for every pixel of one.
struct Comparand {
  SourceRows rows;
  bool isConstant;
};

// Of the first operand to the second. None holds where either is NaN.
enum class Relation { Below, NotAbove, Equal };

// Pixels of one, three or four samples; with alpha, the fourth is not looked at. The mask may be an image of
// single bytes, and where it overlaps one otherwise, each row is done byte by byte in order. It shares no
// memory with other images.
template <typename T, int channels>
void compareRows(Comparand a, Comparand b, TargetRows mask, Extent pixels, Relation relation, bool alpha);

// Whether samples differ by no more than the tolerance.
template <int channels>
void compareWithinRows(Comparand a, Comparand b, TargetRows mask, Extent pixels, float tolerance, bool alpha);

}  // namespace lumi
