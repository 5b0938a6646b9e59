// SPDX-License-Identifier: MIT
// Row kernels of the conversions between sample types. Where alpha is not 0
// the last sample of every four is alpha, which stays in the destination. Rows of samples of equal size may
// be one row, and where they overlap otherwise the samples are made one by one in order; other rows do not
// overlap.
#pragma once

#include "kernels/rows.hpp"

namespace lumi {

// From integers S, limited to D; to floats by the rounding control. A streaming kernel's stores bypass the
// cache.
template <typename S, typename D, int alpha, bool streaming = false>
void convertRows(SourceRows src, TargetRows dst, Extent samples);

// How floats become integers. The rounding control has to be set: to truncate where ties go away from zero.
struct FloatConversion {
  bool away;  // to nearest, ties away from zero; otherwise as the rounding control says
  bool isScaled;
  float factor;  // of the samples, where they are scaled
};

// From floats, limited to D; NaN gives the lowest value of D.
template <typename D, int alpha>
void convertFloatRows(SourceRows src, TargetRows dst, Extent samples, FloatConversion how);

// How an integer x of the source becomes one of the destination.
struct Rescaling {
  enum Path {
    Saturate,   // x
    Multiply,   // x * 2^bits; at most as many bits as the destination's highest value has
    Truncate,   // x / 2^bits to zero; here and below at least 1 bit, and at most as many as the source has
    RoundEven,  // x / 2^bits to nearest, ties to even
    RoundAway   // x / 2^bits to nearest, ties away from zero
  };
  Path path;
  int bits;
};

// From integers S, scaled and then limited to D.
template <typename S, typename D>
void convertScaledRows(SourceRows src, TargetRows dst, Extent samples, Rescaling how);

}  // namespace lumi
