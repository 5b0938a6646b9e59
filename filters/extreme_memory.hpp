// SPDX-License-Identifier: MIT
// What extremes of rectangles and of masks have in common: sizes, rows of source and rows of results.
#pragma once

#include <algorithm>
#include <cstring>

#include "filters/moving_window.hpp"
#include "filters/window_extremes.hpp"
#include "kernels/chosen.hpp"

namespace lumi {

inline constexpr int64_t kNoMemoryHolds = int64_t{1} << 60;

// Of sizes of memory: what no memory holds stays too much. Neither factor is above 2^40.
inline int64_t memoryOf(int64_t rows, int64_t rowBytes) {
  int64_t bytes = 0;
  return __builtin_mul_overflow(rows, rowBytes, &bytes) ? kNoMemoryHolds : std::min(bytes, kNoMemoryHolds);
}

// Scratch of so many bytes that begins on a line of the cache.
class LineMemory {
 public:
  explicit LineMemory(int64_t bytes) : memory_(std::min(bytes, kNoMemoryHolds) + kLine - 1) {}

  explicit operator bool() const { return static_cast<bool>(memory_); }
  Byte* data() { return memory_.data() + (0 - reinterpret_cast<uintptr_t>(memory_.data())) % kLine; }

 private:
  static constexpr int kLine = 64;
  WindowMemory memory_;
};

// An image in bytes.
class ExtremeRows {
 public:
  ExtremeRows(const ExtremeKernels& kernels, const ExtremeImage& image)
      : kernels_(kernels),
        image_(image),
        pixel_(static_cast<ptrdiff_t>(image.pixel.stored) * kernels.sampleBytes),
        bytes_(int64_t{image.roi.width} * pixel_),
        covered_(bytes_ + (int64_t{image.window.width} - 1) * pixel_),
        stride_((covered_ + static_cast<int64_t>(kernels.vectorBytes) + 63) | 64) {
    stride_ &= ~int64_t{63};
  }

  ptrdiff_t pixel() const { return pixel_; }
  // Of a row of results, and of what their windows cover.
  int64_t bytes() const { return bytes_; }
  int64_t covered() const { return covered_; }
  // Rows that are shorter than a vector are done in copies, in memory that holds one.
  bool isShort() const { return bytes_ < static_cast<int64_t>(kernels_.vectorBytes); }
  size_t atLeastVector(int64_t bytes) const {
    return std::max(static_cast<size_t>(bytes), kernels_.vectorBytes);
  }
  // From one row of scratch to the next: a vector more, and an odd number of lines of the cache, so that rows
  // fall into all of its sets.
  int64_t stride() const { return stride_; }

  // From the leftmost column on that windows cover; row 0 is the first that they cover.
  const Byte* source(int64_t y) const {
    const auto rows = static_cast<uintptr_t>(y - image_.anchor.y),
               columns = static_cast<uintptr_t>(-static_cast<int64_t>(image_.anchor.x));
    return reinterpret_cast<const Byte*>(reinterpret_cast<uintptr_t>(image_.src.first) +
                                         rows * static_cast<uintptr_t>(image_.src.step) +
                                         columns * static_cast<uintptr_t>(pixel_));
  }

  // Results that are not made where they belong: alpha must not be touched, nor what is behind short rows.
  bool makesApart() const { return isShort() || image_.pixel.used < image_.pixel.stored; }
  // Brings results from there.
  void bring(TargetRows made, int y, int count) const {
    const TargetRows dst{image_.dst.row(y), image_.dst.step};
    if (image_.pixel.used == image_.pixel.stored) {
      for (int i = 0; i < count; ++i) std::memcpy(dst.row(i), made.row(i), static_cast<size_t>(bytes()));
      return;
    }
    const auto copy = kernels_.sampleBytes == 1   ? copyChosenRows<1, 4, 3>
                      : kernels_.sampleBytes == 2 ? copyChosenRows<2, 4, 3>
                                                  : copyChosenRows<4, 4, 3>;
    copy({made.first, made.step}, dst, {static_cast<size_t>(image_.roi.width), count});
  }

 private:
  const ExtremeKernels& kernels_;
  const ExtremeImage& image_;
  ptrdiff_t pixel_;
  int64_t bytes_, covered_, stride_;
};

// Rows of scratch that are used over and over: a row's number is told from where another one's place is.
class RowRing {
 public:
  RowRing() = default;
  RowRing(Byte* first, int64_t stride, int64_t rows)
      : first_(first), stride_(static_cast<ptrdiff_t>(stride)), rows_(static_cast<ptrdiff_t>(rows)) {}

  // The place of the row so many behind the one at that place; no more than there are.
  ptrdiff_t behind(ptrdiff_t place, ptrdiff_t rows) const {
    const ptrdiff_t next = place + rows;
    return next < rows_ ? next : next - rows_;
  }
  Byte* at(ptrdiff_t place) const { return first_ + place * stride_; }

 private:
  Byte* first_ = nullptr;
  ptrdiff_t stride_ = 0, rows_ = 0;
};

}  // namespace lumi
