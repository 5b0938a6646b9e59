// SPDX-License-Identifier: MIT
#include "filters/filter_border_object.hpp"

#include <algorithm>
#include <cstring>

#include "filters/filter_rounding.hpp"
#include "frame/check.hpp"

namespace lumi {
namespace {

using namespace check;

// Sizes are modulo 2^32 at the end; before, modulo 2^64.
uint64_t padded(uint64_t bytes) { return (bytes + 63) & ~uint64_t{63}; }

uint64_t unsignedOf(int n) { return static_cast<uint64_t>(n); }

uint64_t tapsOf(LumiSize kernel) { return unsignedOf(kernel.width) * unsignedOf(kernel.height); }

int sampleBytes(LumiDataType type) {
  if (type == lumiData8u) return 1;
  return type == lumiData16u || type == lumiData16s ? 2 : 4;
}

bool isImageType(LumiDataType type) {
  return type == lumiData8u || type == lumiData16u || type == lumiData16s || type == lumiData32f;
}

LumStatus channelCount(int channels) {
  return channels < 1 || channels > 4 ? lumStatusBadChannel : lumStatusOk;
}

LumStatus roundingMode(LumRoundMode mode) {
  return mode < lumRoundTowardZero || mode > lumRoundHalfAway ? lumStatusBadRoundMode : lumStatusOk;
}

uint64_t scratchOfIntegerTaps(LumiDataType dataType, int channels, uint64_t taps, uint64_t width) {
  if (dataType == lumiData8u) {
    if (channels == 1) return padded(32 * ((8 * taps + width + 7) / 8));
    if (channels == 3) return padded(16 * ((4 * taps + 3 * width + 3) / 4));
    if (channels == 4) return padded(16 * (taps + width));
  }
  if (dataType == lumiData16s && channels == 1) return padded(16 * ((4 * taps + width + 3) / 4));
  return 0;
}

uint64_t scratchOfFloats(LumiDataType dataType, int channels, uint64_t taps, uint64_t width) {
  if (channels == 2) return 0;
  if (dataType == lumiData32f) return padded((channels == 1 ? 32 : 16) * taps);
  if (channels == 3) return padded(16 * ((4 * taps + 6 * width + 10) / 4));
  if (channels == 4) return padded(4 * (4 * taps + 8 * width));
  if (dataType == lumiData16u) return padded(16 * ((width + 10) / 4));
  return padded(16 * ((4 * taps + 2 * width + 10) / 4));
}

FilterBorderObject& makeObject(LumiFilterBorderSpec* spec, LumiSize kernel, LumRoundMode roundMode) {
  auto* const object = objectAt<FilterBorderObject>(spec);
  auto* const tables = reinterpret_cast<Lum8u*>(object) + kFilterHeader;
  *object = {};
  object->kernelWidth = kernel.width;
  object->kernelHeight = kernel.height;
  object->roundMode = roundMode;
  object->kernelI = reinterpret_cast<int16_t*>(tables);
  object->kernelF = reinterpret_cast<float*>(tables);
  object->kernelPacked = reinterpret_cast<int16_t*>(tables + padded(2 * tapsOf(kernel)));
  object->kernelEnd = tables + padded(4 * tapsOf(kernel));
  return *object;
}

bool fitsPair(int16_t tap) { return tap >= -32767 && tap <= 32766; }

// Turns the kernel, and makes pairs of the neighbours in a row: (a, b) four times, or (a, 0) at an odd end.
// Stops at the first tap that does not fit.
bool packKernel(const int16_t* kernel, LumiSize size, int16_t* packed) {
  const int16_t* last = kernel + tapsOf(size);
  for (int y = 0; y < size.height; ++y)
    for (int x = 0; x < size.width; x += 2) {
      const int16_t a = *--last;
      const int16_t b = x + 1 < size.width ? *--last : int16_t{0};
      if (!fitsPair(a) || !fitsPair(b)) return false;
      for (int i = 0; i < 4; ++i) {
        *packed++ = a;
        *packed++ = b;
      }
    }
  return true;
}

int64_t sumOfMagnitudes(const int16_t* kernel, uint64_t taps) {
  int64_t sum = 0;
  for (uint64_t i = 0; i < taps; ++i) sum += std::abs(static_cast<int>(kernel[i]));
  return sum;
}

// The scale of a power of two is exact, and stands for its divisor too.
void setDivisor(FilterBorderObject& o, int divisor) {
  const FilterRounding r = roundingBy(divisor, o.roundMode);
  o.divisorClass = r.divisorClass;
  o.divisor = divisor;
  o.shift = r.shift;
  o.half = r.half;
  o.mask = r.mask;
  o.scale = r.scale;
  o.divisorF = static_cast<float>(r.divisorD);
  o.divisorD = r.divisorD;
}

void setFloatPath(FilterBorderObject& o, LumiDataType dataType) {
  if (dataType == lumiData8u) o.path = kBytesFloat;
  if (dataType == lumiData16u) o.path = kUnsignedWordsFloat;
  if (dataType == lumiData16s) o.path = kWordsFloat;
  if (dataType == lumiData32f) o.path = kFloats;
}

}  // namespace

uint64_t filterScratchBytes(LumiDataType dataType, LumiDataType kernelType, int channels, LumiSize kernel,
                            int width) {
  return kernelType == lumiData16s
             ? scratchOfIntegerTaps(dataType, channels, tapsOf(kernel), unsignedOf(width))
             : scratchOfFloats(dataType, channels, tapsOf(kernel), unsignedOf(width));
}

LumStatus filterBorderSizes(LumiSize kernelSize, LumiSize area, LumiDataType dataType,
                            LumiDataType kernelType, int channels, int* specSize, int* bufferSize) {
  const bool types = isImageType(dataType) && (kernelType == lumiData16s || kernelType == lumiData32f);
  if (LumStatus fault = firstFault(size(kernelSize), size(area), types ? lumStatusOk : lumStatusBadDataType,
                                   channelCount(channels), pointers(specSize, bufferSize)))
    return fault;
  const LumiDataType taps = takesIntegerTaps(dataType, channels) ? kernelType : LumiDataType{lumiData32f};
  const uint64_t columns = unsignedOf(kernelSize.width), lines = unsignedOf(kernelSize.height);
  const uint64_t pixelBytes = unsignedOf(channels * sampleBytes(dataType));
  *specSize = static_cast<int>(padded((columns + 1) / 2 * 16 * lines) +
                               padded(tapsOf(kernelSize) * (taps == lumiData16s ? 2 : 4)) + kFilterHeader +
                               kObjectAlignment - 1);
  // Either the strips above or below the ROI, or those at its sides; one image at a time.
  const uint64_t strip = (2 * lines - 2) * padded((unsignedOf(area.width) + columns - 1) * pixelBytes);
  const uint64_t side = padded((3 * columns - 2) * pixelBytes) * unsignedOf(area.height);
  *bufferSize = static_cast<int>(kObjectAlignment - 1 +
                                 filterScratchBytes(dataType, taps, channels, kernelSize, area.width) +
                                 std::max(strip, side));
  return lumStatusOk;
}

template <>
LumStatus initFilterBorder(const Lum16s* kernel, LumiSize kernelSize, int divisor, LumiDataType dataType,
                           int channels, LumRoundMode roundMode, LumiFilterBorderSpec* spec) {
  const bool type = isImageType(dataType) && dataType != lumiData32f;
  if (LumStatus fault = firstFault(pointers(kernel, spec), size(kernelSize),
                                   type ? lumStatusOk : lumStatusBadDataType, channelCount(channels),
                                   roundingMode(roundMode), divisor ? lumStatusOk : lumStatusZeroDivisor))
    return fault;
  FilterBorderObject& o = makeObject(spec, kernelSize, roundMode);
  const uint64_t taps = tapsOf(kernelSize);
  if (!takesIntegerTaps(dataType, channels)) {
    for (uint64_t i = 0; i < taps; ++i) o.kernelF[i] = static_cast<float>((1.0 / divisor) * kernel[i]);
    setFloatPath(o, dataType);
    return lumStatusOk;
  }
  std::memcpy(o.kernelI, kernel, static_cast<size_t>(taps) * sizeof *kernel);
  o.fitsPacked = packKernel(o.kernelI, kernelSize, o.kernelPacked);
  const int64_t magnitudes = sumOfMagnitudes(o.kernelI, taps);
  o.fitsWords = magnitudes <= 65534;
  o.fitsBytes =
      magnitudes <= 128 && *std::max_element(o.kernelI, o.kernelI + taps) < 128;  // 128 * 255 < 2^15
  setDivisor(o, divisor);
  o.path = dataType == lumiData8u ? kBytesInteger : kWordsInteger;
  return lumStatusOk;
}

template <>
LumStatus initFilterBorder(const Lum32f* kernel, LumiSize kernelSize, LumiDataType dataType, int channels,
                           LumRoundMode roundMode, LumiFilterBorderSpec* spec) {
  if (LumStatus fault = firstFault(pointers(kernel, spec), size(kernelSize),
                                   isImageType(dataType) ? lumStatusOk : lumStatusBadDataType,
                                   channelCount(channels), roundingMode(roundMode)))
    return fault;
  FilterBorderObject& o = makeObject(spec, kernelSize, roundMode);
  std::memcpy(o.kernelF, kernel, static_cast<size_t>(tapsOf(kernelSize)) * sizeof *kernel);
  setFloatPath(o, dataType);
  return lumStatusOk;
}

}  // namespace lumi
