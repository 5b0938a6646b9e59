// SPDX-License-Identifier: MIT
// Extremes of rectangles: along the rows first, then down the rows of these.
#include "filters/window_extremes.hpp"

#include "filters/extreme_memory.hpp"

namespace lumi {
namespace {

// Extremes along rows, of as many pixels as the window is wide. Those of 4, 16, 64 are made one from the
// other until a few of them, which may overlap, make up the width.
class Along {
 public:
  Along(const ExtremeKernels& kernels, const ExtremeRows& rows, int width)
      : kernels_(kernels), rows_(rows), width_(width) {}

  // Rows of scratch: of those that are made in turn, and of copies of short rows.
  int64_t scratchRows() const {
    return together() *
           ((width_ > kMostTaps ? 1 : 0) + (width_ > 4 * kMostTaps ? 1 : 0) + (rows_.isShort() ? 1 : 0));
  }
  void takeMemory(Byte* memory) { memory_ = memory; }

  // Rows of the source from y on, stored where at(y) says. A row that is made from another one waits for its
  // stores where they are few, hence several rows at a time.
  template <typename At>
  void operator()(int64_t y, int64_t end, const At& at) const {
    for (; y < end; y += together()) {
      const auto count = static_cast<int>(std::min<int64_t>(together(), end - y));
      run(y, count, at);
    }
  }

 private:
  static constexpr int kMostTaps = 5;

  int64_t together() const {
    constexpr int64_t kLongRow = 512;
    return width_ > kMostTaps && rows_.covered() < kLongRow ? 8 : 1;
  }

  template <typename At>
  void run(int64_t y, int count, const At& at) const {
    const auto stride = static_cast<size_t>(rows_.stride()), all = stride * static_cast<size_t>(together());
    Byte *next = memory_, *other = memory_ + all;
    TargetRows made{nullptr, static_cast<ptrdiff_t>(stride)};
    const auto source = [&](int i) { return made.first ? made.row(i) : rows_.source(y + i); };
    if (rows_.isShort()) {
      made.first = memory_ + static_cast<size_t>(scratchRows()) * stride - all;
      for (int i = 0; i < count; ++i)
        std::memcpy(made.row(i), rows_.source(y + i), static_cast<size_t>(rows_.covered()));
    }
    int64_t width = 1, bytes = rows_.covered();
    for (; width_ > kMostTaps * width; width *= 4, std::swap(next, other)) {
      bytes -= 3 * width * rows_.pixel();
      for (int i = 0; i < count; ++i)
        join(source(i), 4, width, 4 * width, next + static_cast<size_t>(i) * stride, bytes);
      made.first = next;
    }
    const auto taps = static_cast<int>((width_ + width - 1) / width);
    for (int i = 0; i < count; ++i) join(source(i), taps, width, width_, at(y + i), rows_.bytes());
  }

  // The last one ends where the window does.
  void join(const Byte* row, int count, int64_t each, int64_t width, Byte* dst, int64_t bytes) const {
    const Byte* taps[kMostTaps];
    for (int k = 0; k < count; ++k)
      taps[k] = row + static_cast<ptrdiff_t>(std::min(k * each, width - each)) * rows_.pixel();
    kernels_.ofTaps(taps, count, dst, rows_.atLeastVector(bytes));
  }

  const ExtremeKernels& kernels_;
  const ExtremeRows& rows_;
  int width_;
  Byte* memory_ = nullptr;
};

class Rectangles {
 public:
  Rectangles(const ExtremeKernels& kernels, const ExtremeImage& image)
      : kernels_(kernels),
        image_(image),
        rows_(kernels, image),
        along_(kernels, rows_, image.window.width),
        together_(
            std::min({ofOneRow() ? kExtremeRows : image.window.height, image.roi.height, kExtremeRows})),
        // What takes rows takes no NaN.
        readsSource_(image.window.width == 1 && !kernels.isFloat && !image.inPlace() && !rows_.isShort()),
        makesApart_(rows_.makesApart() || (image.window.height == 1 && image.inPlace())) {}

  LumStatus run() {
    const int64_t pointers = (covered() * static_cast<int64_t>(sizeof(const Byte*)) + 63) & ~int64_t{63},
                  ringRows = ofOneRow() || readsSource_ ? 0 : covered(),
                  others = along_.scratchRows() + (makesApart_ ? together_ : 0);
    LineMemory memory(pointers + memoryOf(ringRows + others, rows_.stride()));
    if (!memory) return lumStatusNoMemory;
    at_ = reinterpret_cast<const Byte**>(memory.data());
    const auto stride = static_cast<size_t>(rows_.stride());
    Byte* const apart = memory.data() + pointers;
    along_.takeMemory(apart + (makesApart_ ? static_cast<size_t>(together_) * stride : 0));
    ring_ = {apart + static_cast<size_t>(others) * stride, rows_.stride(), ringRows};
    for (int y = 0; y < image_.roi.height; y += std::min(together_, image_.roi.height - y)) {
      const int count = std::min(together_, image_.roi.height - y);
      const TargetRows there{image_.dst.row(y), image_.dst.step};
      const TargetRows made = makesApart_ ? TargetRows{apart, static_cast<ptrdiff_t>(stride)} : there;
      make(y, count, made);
      if (makesApart_) rows_.bring(made, y, count);
    }
    return lumStatusOk;
  }

 private:
  bool ofOneRow() const { return image_.window.height == 1; }
  // Rows under the windows of those that are made together.
  int64_t covered() const { return int64_t{image_.window.height} - 1 + together_; }

  void make(int y, int count, TargetRows dst) {
    if (ofOneRow())
      return along_(y, int64_t{y} + count, [&](int64_t i) { return dst.row(static_cast<int>(i - y)); });
    const ptrdiff_t under = static_cast<ptrdiff_t>(image_.window.height) - 1 + count;
    if (readsSource_) {
      for (ptrdiff_t i = 0; i < under; ++i) at_[i] = rows_.source(int64_t{y} + i);
    } else {
      along_(int64_t{y} + made_, int64_t{y} + under,
             [&](int64_t i) { return ring_.at(ring_.behind(first_, static_cast<ptrdiff_t>(i - y))); });
      for (ptrdiff_t i = 0; i < under; ++i) at_[i] = ring_.at(ring_.behind(first_, i));
      first_ = ring_.behind(first_, count);
      made_ = under - count;
    }
    kernels_.ofRows(at_, image_.window.height, dst, {rows_.atLeastVector(rows_.bytes()), count});
  }

  const ExtremeKernels& kernels_;
  const ExtremeImage& image_;
  ExtremeRows rows_;
  Along along_;
  int together_;
  bool readsSource_, makesApart_;
  const Byte** at_ = nullptr;
  RowRing ring_;
  ptrdiff_t first_ = 0, made_ = 0;  // place of the next windows' first row, and how many of theirs are there
};

// Windows with results in registers.
const WindowFilter* smallWindow(const ExtremeKernels& kernels, const ExtremeImage& image) {
  const LumiSize window = image.window;
  if (window.width != window.height) return nullptr;
  const bool isNarrow = int64_t{image.roi.width} * image.pixel.stored < kernels.three.block;
  if (window.width == 3) return isNarrow ? &kernels.narrowThree : &kernels.three;
  return window.width == 5 && kernels.five.run != nullptr ? &kernels.five : nullptr;
}

// The image by its pixels in the middle of windows, wherever the anchor is.
void filterSquares(const WindowFilter& filter, const ExtremeKernels& kernels, const ExtremeImage& image,
                   int y, int height, TargetRows dst) {
  ExtremeImage atCentre = image;
  atCentre.anchor = {image.anchor.x - filter.left, image.anchor.y - filter.above};
  filterWindows(filter, {ExtremeRows(kernels, atCentre).source(y), image.src.step}, dst,
                {image.roi.width, height}, image.pixel);
}

// In place, the results of a band wait until those of the next one have been made, whose windows cover its
// last rows. No window reaches further.
LumStatus filterSquaresInPlace(const WindowFilter& filter, const ExtremeKernels& kernels,
                               const ExtremeImage& image) {
  constexpr int kBand = 8;
  static_assert(kBand >= 2 * kMostReach);
  const ExtremeRows rows(kernels, image);
  const int64_t stride = rows.stride();
  LineMemory memory(memoryOf(2 * kBand, stride));
  if (!memory) return lumStatusNoMemory;
  const auto step = static_cast<ptrdiff_t>(stride);
  TargetRows made{memory.data(), step}, waiting{memory.data() + kBand * step, step};
  int waitingRows = 0;
  for (int y = 0; y < image.roi.height; y += waitingRows) {
    const int count = std::min(kBand, image.roi.height - y);
    filterSquares(filter, kernels, image, y, count, made);
    if (waitingRows > 0) rows.bring(waiting, y - waitingRows, waitingRows);
    std::swap(made, waiting);
    waitingRows = count;
  }
  rows.bring(waiting, image.roi.height - waitingRows, waitingRows);
  return lumStatusOk;
}

}  // namespace

LumStatus storeExtremes(const ExtremeKernels& kernels, const ExtremeImage& image) {
  const WindowFilter* const filter = smallWindow(kernels, image);
  if (!filter) return Rectangles(kernels, image).run();
  if (image.inPlace()) return filterSquaresInPlace(*filter, kernels, image);
  filterSquares(*filter, kernels, image, 0, image.roi.height, image.dst);
  return lumStatusOk;
}

}  // namespace lumi
