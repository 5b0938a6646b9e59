// SPDX-License-Identifier: MIT
#include "filters/window_walk.hpp"

#include "lumi/copy.h"

namespace lumi {
namespace {

constexpr int kMostRows = kBandRows + 2 * kMostReach;  // of source
constexpr int kPiecePixels = 64;                       // that are made at a time where alpha stays
constexpr int kMostBlock = 32;

// Rows that are done together: as many as the nearest cache holds with what is made of them. Those of larger
// images come from farther away, which processors foresee for a few rows at a time. Where rows lie whole
// pages apart they fall into one set of the cache.
int bandRows(const WindowFilter& filter, ptrdiff_t step, size_t samples) {
  if (step % 2048 == 0) return 4;
  const size_t bytes = samples * static_cast<size_t>(filter.srcBytes + filter.dstBytes);
  // The rows that two bands share are made twice, which costs most where five of them make one.
  const bool isDear = filter.above + filter.below == 4 && filter.srcBytes == 1;
  return isDear || bytes <= 1536 ? kBandRows : kBandRows / 2;
}

// So many rows on the stack, one behind the other.
template <int bytes, int rows>
struct StackRows {
  alignas(32) Byte row[rows][bytes];

  TargetRows all() { return {row[0], bytes}; }
};

// Copies of source rows, as many as the window of a band has.
template <int bytes>
struct CopiedRows : StackRows<bytes, kMostRows> {
  const Byte* at[kMostRows];

  // Those samples of them that are `before` bytes from the start are under the first result.
  const Byte* const* from(ptrdiff_t before) {
    for (int y = 0; y < kMostRows; ++y) at[y] = this->row[y] + before;
    return at;
  }
};

// Rows that are shorter than a block are made in a copy of a whole one.
void runShort(const WindowFilter& filter, const Band& band, size_t samples, ptrdiff_t column) {
  constexpr int kBytes = kMostBlock * 4 + 2 * kMostReach * 4 * 4;
  CopiedRows<kBytes> src;
  StackRows<kMostBlock * 4, kBandRows> dst;
  const ptrdiff_t left = filter.left * column, right = filter.right * column;
  const size_t bytes = samples * static_cast<size_t>(filter.srcBytes);
  for (int y = 0; y < band.rows + filter.above + filter.below; ++y) {
    const bool isBeside = filter.readsCorners || (y >= filter.above && y < filter.above + band.rows);
    const ptrdiff_t before = isBeside ? left : 0, after = isBeside ? right : 0;
    const size_t covered = static_cast<size_t>(before + after) + bytes;
    Byte* const row = src.row[y] + left - before;
    std::memcpy(row, band.src[y] - before, covered);
    std::memset(row + covered, 0, static_cast<size_t>(src.row[y] + kBytes - row) - covered);
  }
  filter.run({src.from(left), dst.all(), band.rows}, static_cast<size_t>(filter.block), column);
  for (int y = 0; y < band.rows; ++y)
    std::memcpy(band.dst.row(y), dst.row[y], samples * static_cast<size_t>(filter.dstBytes));
}

}  // namespace

void filterRows(const WindowFilter& filter, const Band& band, size_t samples, ptrdiff_t column) {
  if (samples < static_cast<size_t>(filter.block))
    runShort(filter, band, samples, column);
  else
    filter.run(band, samples, column);
}

namespace {

// Colours without alpha, from one place to another.
void copyColours(SourceRows src, TargetRows dst, LumiSize size, int sampleBytes) {
  const int srcStep = static_cast<int>(src.step), dstStep = static_cast<int>(dst.step);
  const auto copy = [&](auto sample, auto operation) {
    using T = decltype(sample);
    operation(reinterpret_cast<const T*>(src.first), srcStep, reinterpret_cast<T*>(dst.first), dstStep, size);
  };
  if (sampleBytes == 1) return copy(Lum8u(), lumiCopy_8u_AC4R);
  if (sampleBytes == 2) return copy(Lum16u(), lumiCopy_16u_AC4R);
  copy(Lum32f(), lumiCopy_32f_AC4R);
}

// Pixels whose alpha stays are made elsewhere, and brought without it.
void runColours(const WindowFilter& filter, const Band& band, int width, ptrdiff_t column) {
  StackRows<kPiecePixels * 4 * 4, kBandRows> results;
  const Byte* src[kMostRows];
  for (int x = 0; x < width; x += kPiecePixels) {
    const int pixels = std::min(kPiecePixels, width - x);
    for (int y = 0; y < band.rows + filter.above + filter.below; ++y) src[y] = band.src[y] + x * column;
    filterRows(filter, {src, results.all(), band.rows}, static_cast<size_t>(pixels) * 4, column);
    Byte* const dst = band.dst.first + static_cast<ptrdiff_t>(x) * 4 * filter.dstBytes;
    const TargetRows made = results.all();
    copyColours({made.first, made.step}, {dst, band.dst.step}, {pixels, band.rows}, filter.dstBytes);
  }
}

// Calls band(first row, rows) for the bands of an image.
template <typename Run>
void inBands(int height, int most, const Run& band) {
  for (int y = 0; y < height; y += most) band(y, std::min(most, height - y));
}

}  // namespace

void filterWindows(const WindowFilter& filter, SourceRows src, TargetRows dst, LumiSize roi,
                   PixelShape pixel) {
  const ptrdiff_t column = static_cast<ptrdiff_t>(pixel.stored) * filter.srcBytes;
  const size_t samples = static_cast<size_t>(roi.width) * static_cast<size_t>(pixel.stored);
  inBands(roi.height, bandRows(filter, src.step, samples), [&](int y, int rows) {
    const Byte* window[kMostRows];
    for (int i = 0; i < rows + filter.above + filter.below; ++i) window[i] = src.row(y - filter.above + i);
    const Band band{window, {dst.row(y), dst.step}, rows};
    if (pixel.used < pixel.stored)
      runColours(filter, band, roi.width, column);
    else
      filterRows(filter, band, samples, column);
  });
}

namespace {

// A band with its border: the columns whose windows are in memory from where they lie, a block at each side
// from copies. Both make some of the same results.
template <int sampleBytes>
class BorderedBands {
 public:
  using Image = BorderedImage<sampleBytes>;

  BorderedBands(const WindowFilter& filter, const Image& src, TargetRows dst, const Byte* constants)
      : filter_(filter),
        src_(src),
        dst_(dst),
        constants_(constants),
        inMemoryLeft_(src.border().isInMemory(lumiBorderInMemoryLeft)),
        inMemoryRight_(src.border().isInMemory(lumiBorderInMemoryRight)) {}

  void run(int y, int rows) const {
    const int width = src_.size().width;
    if (width <= kMostBlock) return runCopied(0, width, y, rows);
    const int first = inMemoryLeft_ ? 0 : filter_.left;
    const int end = width - (inMemoryRight_ ? 0 : filter_.right);
    runInPlace(first, end, y, rows);
    if (first > 0) runCopied(0, filter_.block, y, rows);
    if (end < width) runCopied(width - filter_.block, width, y, rows);
  }

 private:
  static constexpr int kBytes = (kMostBlock + 2 * kMostReach) * sampleBytes;

  int windowRows(int rows) const { return rows + filter_.above + filter_.below; }
  TargetRows results(int x, int y) const {
    return {dst_.row(y) + static_cast<ptrdiff_t>(x) * filter_.dstBytes, dst_.step};
  }

  void runInPlace(int first, int end, int y, int rows) const {
    const Byte* window[kMostRows];
    for (int i = 0; i < windowRows(rows); ++i) {
      const Byte* const row = src_.row(y - filter_.above + i);
      window[i] =
          row ? row + static_cast<ptrdiff_t>(first) * sampleBytes : constants_ + filter_.left * sampleBytes;
    }
    filterRows(filter_, {window, results(first, y), rows}, static_cast<size_t>(end - first), sampleBytes);
  }

  void runCopied(int first, int end, int y, int rows) const {
    CopiedRows<kBytes> copied;
    for (int i = 0; i < windowRows(rows); ++i)
      src_.copy(y - filter_.above + i, first - filter_.left, end + filter_.right, copied.row[i]);
    filterRows(filter_, {copied.from(filter_.left * sampleBytes), results(first, y), rows},
               static_cast<size_t>(end - first), sampleBytes);
  }

  const WindowFilter& filter_;
  const Image& src_;
  TargetRows dst_;
  const Byte* constants_;
  bool inMemoryLeft_, inMemoryRight_;
};

}  // namespace

template <int sampleBytes>
void filterWindows(const WindowFilter& filter, const BorderedImage<sampleBytes>& src, TargetRows dst,
                   Byte* constants) {
  const bool needsConstants = src.border().type() == lumiBorderConst && !src.border().isAllInMemory() &&
                              src.size().width > kMostBlock;
  if (needsConstants) src.fill(constants, filter.left + src.size().width + filter.right);
  const BorderedBands<sampleBytes> bands(filter, src, dst, constants);
  const auto samples = static_cast<size_t>(src.size().width);
  inBands(src.size().height, bandRows(filter, src.step(), samples),
          [&](int y, int rows) { bands.run(y, rows); });
}

template void filterWindows(const WindowFilter&, const BorderedImage<1>&, TargetRows, Byte*);
template void filterWindows(const WindowFilter&, const BorderedImage<2>&, TargetRows, Byte*);
template void filterWindows(const WindowFilter&, const BorderedImage<4>&, TargetRows, Byte*);

}  // namespace lumi
