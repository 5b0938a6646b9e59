// SPDX-License-Identifier: MIT
// The specification object of lumiFilterBorder, and how much memory the family takes.
#pragma once

#include "frame/object.hpp"
#include "kernels/filters/filter_border.hpp"
#include "lumi/types.h"

namespace lumi {

// Which kernel an object holds, and for which images.
enum FilterPath : int32_t {
  kBytesInteger = 0,
  kWordsInteger = 1,
  kBytesFloat = 3,
  kWordsFloat = 4,
  kUnsignedWordsFloat = 5,
  kFloats = 6
};

struct FilterBorderObject {
  int32_t path;
  int32_t kernelWidth, kernelHeight;
  DivisorClass divisorClass;
  int32_t shift;  // log2 of a divisor that is a power of two
  int32_t half;
  float scale;     // 1 / divisor
  float divisorF;  // the divisor; a power of two has its scale here and in divisorD
  int32_t divisor;
  double divisorD;
  int32_t mask;
  int32_t roundMode;
  int16_t* kernelI;       // as given, right behind the header
  float* kernelF;         // likewise: an object holds one or the other
  int16_t* kernelPacked;  // turned, in pairs of taps, each pair four times
  void* kernelEnd;
  int32_t fitsPacked;
  int32_t fitsWords;  // whether sums of products with 16-bit samples stay in 32 bits
  int32_t fitsBytes;  // whether taps are bytes, and sums of products with 8-bit samples stay in 16 bits
};

inline constexpr int kFilterHeader = 128;
static_assert(sizeof(FilterBorderObject) <= kFilterHeader);

// Whether an integer kernel is applied as it is; 16u images and 16s pixels of more than two samples have no
// such form, and take float taps.
constexpr bool takesIntegerTaps(LumiDataType dataType, int channels) {
  return dataType != lumiData16u && !(dataType == lumiData16s && channels > 2);
}

// Bytes at the start of a run's buffer that are not part of the border image.
uint64_t filterScratchBytes(LumiDataType dataType, LumiDataType kernelType, int channels, LumiSize kernel,
                            int width);

LumStatus filterBorderSizes(LumiSize kernelSize, LumiSize area, LumiDataType dataType,
                            LumiDataType kernelType, int channels, int* specSize, int* bufferSize);

// Of integer taps, then of floats.
template <typename T>
LumStatus initFilterBorder(const T* kernel, LumiSize kernelSize, int divisor, LumiDataType dataType,
                           int channels, LumRoundMode roundMode, LumiFilterBorderSpec* spec);
template <typename T>
LumStatus initFilterBorder(const T* kernel, LumiSize kernelSize, LumiDataType dataType, int channels,
                           LumRoundMode roundMode, LumiFilterBorderSpec* spec);

}  // namespace lumi
