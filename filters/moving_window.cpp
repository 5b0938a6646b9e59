// SPDX-License-Identifier: MIT
#include "filters/moving_window.hpp"

#include <algorithm>
#include <cstring>

#include "kernels/chosen.hpp"
#include "kernels/filters/window_floats.hpp"

namespace lumi {
namespace {

constexpr int64_t kSumsBehind = 14;  // bytes that may be written behind the last sum
constexpr int64_t kTooMuch = int64_t{1} << 60;

// Of sizes of memory: what no memory holds stays too much. Neither factor is above 2^36.
int64_t product(int64_t a, int64_t b) {
  int64_t result = 0;
  return __builtin_mul_overflow(a, b, &result) ? kTooMuch : std::min(result, kTooMuch);
}

}  // namespace

void WindowImage::takeBorder(BorderMode border) {
  takeSurroundings();
  const auto left = [&](int& margin, LumiBorderType side) {
    if (!border.isInMemory(side)) margin = 0;
  };
  left(inMemory.left, lumiBorderInMemoryLeft);
  left(inMemory.top, lumiBorderInMemoryTop);
  left(inMemory.right, lumiBorderInMemoryRight);
  left(inMemory.bottom, lumiBorderInMemoryBottom);
}

WindowImage WindowImage::strip(int x, int width) const {
  WindowImage part = *this;
  part.rows.first += static_cast<ptrdiff_t>(x) * channels * sampleBytes;
  part.roi.width = width;
  const auto reach = [](int covered, int64_t there) {
    return static_cast<int>(std::min<int64_t>(covered, there));
  };
  part.inMemory.left = reach(anchor.x, int64_t{inMemory.left} + x);
  part.inMemory.right = reach(window.width - 1 - anchor.x, int64_t{inMemory.right} + roi.width - x - width);
  return part;
}

int stripWidth(const WindowImage& image, size_t sampleBytes) {
  constexpr int64_t kCached = 1 << 18;
  const auto pixel = image.channels * static_cast<int64_t>(sampleBytes) * (int64_t{image.window.height} + 3);
  // Windows that are wide beside their strip would be summed again and again.
  const int64_t width =
      std::max<int64_t>(kCached / pixel - image.window.width, 4 * int64_t{image.window.width});
  if (image.overwritten || width >= image.roi.width) return image.roi.width;
  countPath(Path::WindowStrips);
  return static_cast<int>(width);
}

int64_t WindowImage::keptBytes() const {
  if (!overwritten) return 0;
  return product(std::min<int64_t>(int64_t{anchor.y} + 1, roi.height), samplesInMemory() * sampleBytes);
}

CoveredRows::CoveredRows(const WindowImage& image, Byte* kept)
    : image_(image),
      pixel_(static_cast<ptrdiff_t>(image.channels) * image.sampleBytes),
      rowBytes_(static_cast<ptrdiff_t>(image.samplesInMemory() * image.sampleBytes)),
      above_(-int64_t{image.inMemory.top}),
      below_(int64_t{image.roi.height} - 1 + image.inMemory.bottom),
      kept_(kept),
      slots_(std::min<int64_t>(int64_t{image.anchor.y} + 1, image.roi.height)) {}

const Byte* CoveredRows::row(int64_t y) const {
  if (y < above_ || y > below_) {
    if (image_.constants) return image_.constants;
    y = std::clamp(y, above_, below_);
  }
  if (image_.overwritten && y >= 0 && y < next_) return keptRow(y);
  return image_.rows.row(static_cast<int>(y)) - image_.inMemory.left * pixel_;
}

void CoveredRows::keep(int y) {
  std::memcpy(keptRow(y), row(y), static_cast<size_t>(rowBytes_));
  next_ = y + 1;
}

void completeColumns(const WindowImage& image, size_t sampleBytes, Byte* columns, const Byte* constant) {
  const auto pixel = sampleBytes * static_cast<size_t>(image.channels);
  const auto left = static_cast<size_t>(image.anchor.x - image.inMemory.left);
  const auto right = static_cast<size_t>(image.window.width - 1 - image.anchor.x - image.inMemory.right);
  const Byte* const first = columns + left * pixel;
  Byte* const behind = columns + static_cast<size_t>(image.covered()) * sampleBytes - right * pixel;
  const auto fill = [=](Byte* to, size_t pixels, const Byte* from) {
    for (size_t x = 0; x < pixels; ++x) std::memcpy(to + x * pixel, from, pixel);
  };
  fill(columns, left, constant ? constant : first);
  fill(behind, right, constant ? constant : behind - pixel);
}

int64_t MovingSums::bytes(const WindowImage& image, size_t sumBytes) {
  const auto each = static_cast<int64_t>(sumBytes);
  return (image.covered() + (image.window.width > 1 ? image.samples() : 0)) * each + kSumsBehind;
}

MovingSums::MovingSums(const SumKernels& kernels, const WindowImage& image, const CoveredRows& rows,
                       Byte* memory)
    : kernels_(kernels),
      image_(image),
      rows_(rows),
      columns_(memory),
      sums_(memory + static_cast<size_t>(image.covered()) * kernels.sumBytes) {
  if (!image.constants) return;
  sumRows([&](int) { return image.constants; }, constant_, static_cast<size_t>(image.channels));
}

// All of a window's rows.
template <typename RowOf>
void MovingSums::sumRows(const RowOf& rowOf, Byte* sums, size_t count) const {
  for (int i = 0; i < image_.window.height; i += kSummedRows) {
    const Byte* rows[kSummedRows];
    const int taken = std::min(kSummedRows, image_.window.height - i);
    for (int k = 0; k < taken; ++k) rows[k] = rowOf(i + k);
    (i == 0 ? kernels_.set : kernels_.add)(rows, taken, sums, count);
  }
}

void MovingSums::advance() {
  const auto count = static_cast<size_t>(image_.samplesInMemory());
  const int64_t first = y_ - image_.anchor.y, last = first + image_.window.height - 1;
  Byte* const columns = columns_ + static_cast<size_t>(image_.anchor.x - image_.inMemory.left) *
                                       static_cast<size_t>(image_.channels) * kernels_.sumBytes;
  if (y_ == 0 || image_.window.height == 1)
    sumRows([&](int i) { return rows_.row(first + i); }, columns, count);
  else
    kernels_.replace(rows_.row(last), rows_.row(first - 1), columns, count);
  completeColumns(image_, kernels_.sumBytes, columns_, image_.constants ? constant_ : nullptr);
}

const Byte* MovingSums::next() {
  advance();
  ++y_;
  if (image_.window.width == 1) return columns_;
  kernels_.along(columns_, static_cast<size_t>(image_.window.width), sums_,
                 static_cast<size_t>(image_.samples()));
  return sums_;
}

template <typename F>
int64_t BlockSums<F>::bytes(const WindowImage& image) {
  // One more for the beginning of a block, but that a row's own sums have neither beginning nor end.
  const int64_t rows = image.window.height > 1 ? image.window.height : 0;
  constexpr auto each = static_cast<int64_t>(sizeof(F));
  return (image.covered() + image.samples()) * each + product(rows, image.samplesInMemory() * each);
}

template <typename F>
BlockSums<F>::BlockSums(const WindowImage& image, const CoveredRows& rows, Byte* memory)
    : image_(image),
      rows_(rows),
      inMemory_(static_cast<size_t>(image.samplesInMemory())),
      rowBytes_(inMemory_ * sizeof(F)),
      columns_(memory),
      sums_(columns_ + static_cast<size_t>(image.covered()) * sizeof(F)),
      beginning_(sums_ + static_cast<size_t>(image.samples()) * sizeof(F)),
      ends_(beginning_ + rowBytes_) {}

// Row i of the ends is the sum of the block's rows from i + 1 on.
template <typename F>
void BlockSums<F>::makeEnds() {
  const int64_t first = y_ - image_.anchor.y;
  const int height = image_.window.height;
  const auto end = [&](int i) { return ends_ + static_cast<size_t>(i - 1) * rowBytes_; };
  std::memcpy(end(height - 1), rows_.row(first + height - 1), rowBytes_);
  for (int i = height - 2; i > 0; --i) addFloats<F>(rows_.row(first + i), end(i + 1), end(i), inMemory_);
}

template <typename F>
const Byte* BlockSums<F>::next() {
  const int height = image_.window.height;
  const auto inBlock = static_cast<size_t>(y_ % height);
  const int64_t first = y_ - image_.anchor.y;
  Byte* const columns = columns_ + static_cast<size_t>(image_.anchor.x - image_.inMemory.left) *
                                       static_cast<size_t>(image_.channels) * sizeof(F);
  if (height == 1) {
    std::memcpy(columns, rows_.row(first), rowBytes_);
  } else if (inBlock == 0) {
    makeEnds();
    addFloats<F>(rows_.row(first), ends_, columns, inMemory_);
  } else {
    const Byte* const entering = rows_.row(first + height - 1);
    if (inBlock == 1)
      std::memcpy(beginning_, entering, rowBytes_);
    else
      addFloats<F>(beginning_, entering, beginning_, inMemory_);
    addFloats<F>(ends_ + (inBlock - 1) * rowBytes_, beginning_, columns, inMemory_);
  }
  ++y_;
  F constant[4] = {};
  if (image_.constants) {
    const auto pixel = sizeof(F) * static_cast<size_t>(image_.channels);
    std::memcpy(constant, image_.constants, pixel);
    for (F& sum : constant) sum *= static_cast<F>(height);
  }
  completeColumns(image_, sizeof(F), columns_,
                  image_.constants ? reinterpret_cast<Byte*>(constant) : nullptr);
  addColumns();
  return image_.window.width == 1 ? columns_ : sums_;
}

// Sums of 2^k columns become those of 2^(k+1) in place; each digit of the width takes its part of them.
template <typename F>
void BlockSums<F>::addColumns() {
  const auto channels = static_cast<size_t>(image_.channels), count = static_cast<size_t>(image_.samples());
  const auto width = static_cast<size_t>(image_.window.width);
  auto there = static_cast<size_t>(image_.covered());
  if (width == 1) return;
  size_t taken = 0;  // columns that the sums have
  for (size_t n = 1; n <= width; n *= 2) {
    if (width & n) {
      const Byte* const part = columns_ + taken * channels * sizeof(F);
      if (taken == 0)
        std::memcpy(sums_, part, count * sizeof(F));
      else
        addFloats<F>(sums_, part, sums_, count);
      taken += n;
    }
    if (2 * n > width) return;
    there -= n * channels;
    addFloats<F>(columns_, columns_ + n * channels * sizeof(F), columns_, there);
  }
}

template class BlockSums<float>;
template class BlockSums<double>;

void MeanStore::operator()(const Byte* sums, Byte* dst, size_t samples) const {
  if (stored == used) return mean.row(mean, sums, dst, samples);
  constexpr size_t kPieces = 256;
  Byte piece[kPieces * 4];
  const auto copy = sampleBytes == 1   ? copyChosenRows<1, 4, 3>
                    : sampleBytes == 2 ? copyChosenRows<2, 4, 3>
                                       : copyChosenRows<4, 4, 3>;
  for (size_t i = 0; i < samples; i += kPieces) {
    const size_t count = std::min(kPieces, samples - i);
    mean.row(mean, sums + i * sumBytes, piece, count);
    copy({piece, 0}, {dst + i * sampleBytes, 0}, {count / 4, 1});
  }
}

}  // namespace lumi
