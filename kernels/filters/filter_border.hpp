// SPDX-License-Identifier: MIT
// Row kernels of filtering with a kernel of taps.
#pragma once

#include <cstddef>
#include <cstdint>

namespace lumi {

// Taps row after row, as the caller gave them; results take them from the last to the first. Packed taps are
// turned and in pairs: (a, b) four times, and (a, 0) at the odd end of a row.
struct FilterTaps {
  int columns, rows;
  const int16_t* integers;
  const int16_t* packed;
  const float* floats;
};

enum class DivisorClass : int32_t { One, PowerOfTwo, Other };

// How the sum of an integer kernel becomes a sample.
struct FilterRounding {
  DivisorClass divisorClass;
  int divisor, shift, half, mask;
  float scale;
  double divisorD;
  int mode;  // of the narrow form: 0 to zero, 1 to nearest, ties to even, 2 ties away from zero
};

// The sample under the kernel's first column and row, for the first sample of the result. All that the kernel
// covers is there.
struct FilterSource {
  const uint8_t* first;
  ptrdiff_t step;
  int channels;

  FilterSource at(size_t bytes) const { return {first + bytes, step, channels}; }
};

// The wide form of integer taps, for at least eight samples of type T: uint8_t or int16_t. The sums have to
// fit into 32 bits for int16_t, and wrap for uint8_t.
template <typename T>
void filterWide(const FilterTaps& taps, const FilterRounding& rounding, FilterSource src, uint8_t* dst,
                size_t samples);

// The same for 8-bit samples and taps of -128..127, whose magnitudes add up to at most 128.
void filterWideSmall(const FilterTaps& taps, const FilterRounding& rounding, FilterSource src, uint8_t* dst,
                     size_t samples);

// A rectangle of the result, of less than eight samples in a row.
struct FilterStrip {
  uint8_t* first;
  ptrdiff_t step;
  int samples, rows;
};
// What strips are done together for: columns of samples under the kernel, and rows of taps.
inline constexpr int kMostStripColumns = 48, kMostStripRows = 32;
inline bool fitsStrip(const FilterTaps& taps, int samples, int channels) {
  return samples < 8 && taps.columns <= 16 && samples + (taps.columns - 1) * channels <= kMostStripColumns &&
         taps.rows <= kMostStripRows;
}

// The narrow form, for any number of samples. Where packed taps and sums of 32 bits are enough, sums are made
// in vectors.
template <typename T>
void filterNarrow(const FilterTaps& taps, const FilterRounding& rounding, FilterSource src, uint8_t* dst,
                  size_t samples, bool packed);
// The same for a strip, for sums of 32 bits.
template <typename T>
void filterNarrowStrip(const FilterTaps& taps, const FilterRounding& rounding, FilterSource src,
                       FilterStrip dst);

// The wide form of float taps, for at least eight samples of type T, or four if T is float. Sums are made in
// this order: row after row, in each the columns from the left, starting from 0; where the kernel has eight
// columns or more, one sum of the first columns, as many times eight as there are, and one of the others,
// which is added to it.
template <typename T>
void filterWideFloats(const FilterTaps& taps, FilterSource src, uint8_t* dst, size_t samples);

// The narrow form: one sum, row after row, rounded by the mode.
template <typename T>
void filterNarrowFloats(const FilterTaps& taps, int roundMode, FilterSource src, uint8_t* dst,
                        size_t samples);

template <typename T>
void filterNarrowFloatStrip(const FilterTaps& taps, int roundMode, FilterSource src, FilterStrip dst);

}  // namespace lumi
