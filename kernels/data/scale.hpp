// SPDX-License-Identifier: MIT
// Row kernels that map the range of one sample type onto that of another. `samples` counts all samples of a
// row; with `alpha` every fourth one keeps what dst has. A streaming kernel's stores bypass the cache. src
// and dst do not overlap.
#pragma once

#include "kernels/rows.hpp"

namespace lumi {

// 8-bit samples to D, integers of more bits: 0 to the smallest, 255 to the largest, each step as wide.
template <typename D, bool alpha>
void widenRows(SourceRows src, TargetRows dst, Extent samples, bool streaming);

// S, integers of more bits, to 8-bit samples. Accurate results are those of the nearest of the 256 values
// that widening gives; fast ones differ from them at the last value before the step to the next result, for
// the lower half of S.
template <typename S, bool alpha>
void narrowRows(SourceRows src, TargetRows dst, Extent samples, bool accurate, bool streaming);

// What floats are made of bytes by, and bytes of floats.
struct LinearMap {
  float factor, offset;
};

// byte * factor + offset, for 0 and 255 to become the bounds.
LinearMap bytesToFloats(float lower, float upper);
template <bool alpha>
void widenToFloatsRows(SourceRows src, TargetRows dst, Extent samples, LinearMap map, bool streaming);

// float * factor - offset, by the unit's rounding, limited to 0 to 255; NaN gives 0.
LinearMap floatsToBytes(float lower, float upper);
template <bool alpha>
void narrowFloatsRows(SourceRows src, TargetRows dst, Extent samples, LinearMap map);

}  // namespace lumi
