// SPDX-License-Identifier: MIT
// Kernels of one dimension, along the rows of an image or down its columns. Results take taps from the last
// to the first. The first sample under a result's last tap lies in the source's row of the same number; those
// under the taps before it are `tapStep` bytes apart. Where that is the step of the rows, as down columns,
// rows of the result share their samples.
#pragma once

#include "kernels/filters/filter_border.hpp"
#include "kernels/rows.hpp"

namespace lumi {

// Integer taps over 8-bit samples. Sums wrap at 32 bits, and are rounded to nearest, ties to even. What is
// made of the taps for sums of pairs lies in the caller's memory; taps that do not fit into 16 bits need
// none.
class IntegerTaps {
 public:
  static bool fitPairs(const int32_t* taps, int count);
  // Bytes for so many taps, of any alignment.
  static constexpr int64_t pairBytes(int64_t count) { return (count + 2) / 2 * 32; }

  IntegerTaps(const int32_t* taps, int count, const FilterRounding& rounding)
      : taps_(taps), count_(count), rounding_(rounding) {}
  // For taps that fit.
  IntegerTaps(const int32_t* taps, int count, const FilterRounding& rounding, uint8_t* memory);

  void filterRows(SourceRows src, ptrdiff_t tapStep, TargetRows dst, Extent samples) const;

 private:
  const int32_t* taps_;
  int count_;
  FilterRounding rounding_;
  // Whether taps are bytes, and sums stay in words: signed ones, or unsigned ones that are to be shifted.
  enum class Form { Dwords, Words, UnsignedWords } form_ = Form::Dwords;
  const uint8_t *first_ = nullptr, *second_ = nullptr;

  Form formOf() const;
};

// Taps of floats or doubles, which sums are made in too: one product after the other, starting from 0. Sums
// of integer samples are rounded to nearest, ties to even, and limited to the type.
template <typename T, typename Tap>
void filterFloatTaps(const Tap* taps, int count, SourceRows src, ptrdiff_t tapStep, TargetRows dst,
                     Extent samples);

}  // namespace lumi
