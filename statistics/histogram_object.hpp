// SPDX-License-Identifier: MIT
// The object of lumiHistogram: levels for each channel. It lies at the caller's pointer itself, wherever that
// is.
#pragma once

#include <cstring>

#include "frame/check.hpp"
#include "lumi/types.h"

namespace lumi {

struct HistogramObject {
  Lum32s dataType, channels, uniform, identifier;
  Lum32s counts[4];
  const void* levels[4];  // integers, or floats of lumiData32f: in the object, one list behind the other
};
static_assert(sizeof(HistogramObject) == 32 + 4 * sizeof(void*));

inline constexpr Lum32s kHistogramIdentifier = 0x74736968;  // "hist"

inline HistogramObject histogramObjectAt(const LumiHistogramSpec* spec) {
  HistogramObject object;
  std::memcpy(&object, spec, sizeof object);
  return object;
}

namespace check {

inline LumStatus identity(const LumiHistogramSpec* spec) {
  return histogramObjectAt(spec).identifier == kHistogramIdentifier ? lumStatusOk : lumStatusBadArgument;
}

constexpr LumStatus histogramLevelCount(int count) {
  return count < 2 ? lumStatusTooFewHistogramLevels : lumStatusOk;
}

}  // namespace check

LumStatus histogramSizes(LumiDataType dataType, LumiSize roi, const int* count, int channels, int uniform,
                         int* specSize, int* bufferSize);
LumStatus initHistogram(LumiDataType dataType, const Lum32f* const* levels, const int* count, int channels,
                        LumiHistogramSpec* spec);
LumStatus initUniformHistogram(LumiDataType dataType, const Lum32f* lower, const Lum32f* upper,
                               const int* count, int channels, LumiHistogramSpec* spec);
LumStatus histogramLevels(const LumiHistogramSpec* spec, Lum32f* const* levels);

}  // namespace lumi
