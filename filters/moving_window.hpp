// SPDX-License-Identifier: MIT
// Images under windows of any size: the sum of every window, row after row.
#pragma once

#include <algorithm>

#include "frame/border.hpp"
#include "frame/rows.hpp"
#include "frame/scratch.hpp"
#include "kernels/filters/window_means.hpp"
#include "kernels/filters/window_sums.hpp"

namespace lumi {

// A ROI, the windows of its pixels, and what there is of the pixels that they cover.
struct WindowImage {
  SourceRows rows;  // the first one at the ROI's first pixel
  LumiSize roi;
  int channels, sampleBytes;
  LumiSize window;
  LumiPoint anchor;                 // the pixel's place in its window
  Margins inMemory{};               // of the pixels around the ROI that windows cover; the others are made up
  const Byte* constants = nullptr;  // a row of what is made up; null: the nearest pixels
  bool overwritten = false;         // rows of results are stored over those of the source

  // All that windows cover is there.
  void takeSurroundings() {
    inMemory = {anchor.x, anchor.y, window.width - 1 - anchor.x, window.height - 1 - anchor.y};
  }
  // What a border's flags name is there.
  void takeBorder(BorderMode border);

  // So many columns from x on; what is beside them is there.
  WindowImage strip(int x, int width) const;

  int64_t covered() const { return (int64_t{roi.width} + window.width - 1) * channels; }
  int64_t samples() const { return int64_t{roi.width} * channels; }
  int64_t samplesInMemory() const { return (int64_t{inMemory.left} + roi.width + inMemory.right) * channels; }
  // Rows that are kept when they are overwritten.
  int64_t keptBytes() const;
};

// Rows of the source from the first column that is in memory on, by their numbers in the ROI: those above and
// below it too, and those that results have been stored over.
class CoveredRows {
 public:
  CoveredRows(const WindowImage& image, Byte* kept);

  const Byte* row(int64_t y) const;
  // The ROI's part of a row.
  const Byte* inner(int64_t y) const { return row(y) + image_.inMemory.left * pixel_; }
  // Before the row of that number is overwritten, after those above it.
  void keep(int y);

 private:
  Byte* keptRow(int64_t y) const { return kept_ + y % slots_ * rowBytes_; }

  const WindowImage& image_;
  ptrdiff_t pixel_, rowBytes_;
  int64_t above_, below_;  // rows that are there begin and end with these
  Byte* kept_;
  int64_t slots_;
  int next_ = 0;  // rows before this one are overwritten
};

// Scratch of a call: what small images need is at hand.
class WindowMemory {
 public:
  explicit WindowMemory(int64_t bytes)
      : block_(bytes <= kFew ? nullptr : allocate(bytes)), isFew_(bytes <= kFew) {}
  ~WindowMemory() { release(block_); }
  WindowMemory(const WindowMemory&) = delete;
  WindowMemory& operator=(const WindowMemory&) = delete;

  explicit operator bool() const { return isFew_ || block_; }
  Byte* data() { return isFew_ ? few_ : static_cast<Byte*>(block_); }

 private:
  static constexpr int64_t kFew = 2048;
  void* const block_;
  bool isFew_;
  Byte few_[kFew];
};

// Sums of windows of integers.
class MovingSums {
 public:
  static int64_t bytes(const WindowImage& image, size_t sumBytes);

  MovingSums(const SumKernels& kernels, const WindowImage& image, const CoveredRows& rows, Byte* memory);

  // Of the next row of results.
  const Byte* next();

 private:
  void advance();
  template <typename RowOf>
  void sumRows(const RowOf& rowOf, Byte* sums, size_t count) const;

  const SumKernels& kernels_;
  const WindowImage& image_;
  const CoveredRows& rows_;
  Byte *columns_, *sums_;
  Byte constant_[16];  // a column's sum of a pixel that is made up
  int64_t y_ = 0;
};

// Sums of windows of floats. The rows are cut into blocks as high as the window. A window's columns are the
// end of one block, summed from its last row upward, and the beginning of the next one, summed downward;
// along a row the sums of 1, 2, 4 columns and so on make up any width.
template <typename F>
class BlockSums {
 public:
  static int64_t bytes(const WindowImage& image);

  BlockSums(const WindowImage& image, const CoveredRows& rows, Byte* memory);

  const Byte* next();

 private:
  void makeEnds();
  void addColumns();

  const WindowImage& image_;
  const CoveredRows& rows_;
  size_t inMemory_, rowBytes_;  // samples and bytes of a source row
  Byte *columns_, *sums_, *beginning_, *ends_;
  int64_t y_ = 0;
};

// Columns that are summed together.
int stripWidth(const WindowImage& image, size_t sampleBytes);

// Fills what is beside the columns that are in memory: with the nearest one, or a constant.
void completeColumns(const WindowImage& image, size_t sampleBytes, Byte* columns, const Byte* constant);

// Stores a row of results, of pixels whose alpha stays too.
struct MeanStore {
  WindowMean mean;
  size_t sumBytes, sampleBytes;
  int stored, used;

  void operator()(const Byte* sums, Byte* dst, size_t samples) const;
};

// Calls store(sums, y) for every row of results; rows that it overwrites are kept before.
template <typename Sums, typename Store>
void forEachRow(const WindowImage& image, CoveredRows& rows, Sums sums, const Store& store) {
  for (int y = 0; y < image.roi.height; ++y) {
    const Byte* const row = sums.next();
    if (image.overwritten) rows.keep(y);
    store(row, y);
  }
}

template <typename Sums>
void storeMeans(const WindowImage& image, CoveredRows& rows, const Sums& sums, const MeanStore& store,
                Rows<Byte> dst) {
  const auto samples = static_cast<size_t>(image.samples());
  forEachRow(image, rows, sums, [&](const Byte* row, int y) { store(row, dst.row(y), samples); });
}

// Means of floats. Where the ends of blocks would not stay in the cache, the image is done in strips, but not
// where rows are overwritten: later strips need them.
template <typename F>
void storeBlockMeans(const WindowImage& image, Byte* memory, Byte* kept, const MeanStore& store,
                     Rows<Byte> dst) {
  const int width = stripWidth(image, sizeof(F));
  for (int x = 0; x < image.roi.width; x += width) {
    const WindowImage strip = image.strip(x, std::min(width, image.roi.width - x));
    CoveredRows rows(strip, kept);
    const ptrdiff_t before = static_cast<ptrdiff_t>(x) * image.channels * image.sampleBytes;
    storeMeans(strip, rows, BlockSums<F>(strip, rows, memory), store, {dst.first + before, dst.step});
    if (width >= image.roi.width - x) return;
  }
}

}  // namespace lumi
