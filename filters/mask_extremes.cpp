// SPDX-License-Identifier: MIT
// Extremes of what a mask selects: its rows are runs, and a run is two runs of 2^k pixels, which may overlap.
// Extremes of these are made of every source row once, and joined for each row of results.
#include "filters/extreme_memory.hpp"
#include "filters/window_extremes.hpp"

namespace lumi {
namespace {

constexpr int kLevels = 31;  // of runs of 2^level pixels

// A run that results are made of: its row in the mask, and the bytes to its first column.
struct Tap {
  int row, level;
  ptrdiff_t before;
};

// A mask, or a rectangle of it.
class Mask {
 public:
  Mask(const Lum8u* selected, LumiSize size, int step) : selected_(selected), size_(size), step_(step) {}

  // Calls run(row, first column, columns) for all of them, row after row.
  template <typename Run>
  void forEachRun(const Run& run) const {
    const Lum8u* row = selected_;
    for (int y = 0; y < size_.height; ++y, row += step_)
      for (int x = 0; x < size_.width;) {
        const int first = x;
        while (x < size_.width && row[x] != 0) ++x;
        if (x > first)
          run(y, first, x - first);
        else
          ++x;
      }
  }

  // Whether nothing is left out.
  bool isWhole() const {
    int64_t selected = 0;
    forEachRun([&](int, int, int columns) { selected += columns; });
    return selected == int64_t{size_.width} * size_.height;
  }
  // The least rectangle that has all of what is selected.
  LumiRect bounds() const {
    int left = size_.width, right = 0, top = size_.height, bottom = 0;
    forEachRun([&](int row, int first, int columns) {
      left = std::min(left, first);
      right = std::max(right, first + columns);
      top = std::min(top, row);
      bottom = row + 1;
    });
    return {left, top, right - left, bottom - top};
  }
  Mask part(LumiRect part) const {
    return {selected_ + static_cast<ptrdiff_t>(part.y) * step_ + part.x, {part.width, part.height}, step_};
  }

 private:
  const Lum8u* selected_;
  LumiSize size_;
  int step_;
};

int levelOf(int columns) {
  int level = 0;
  while (columns >> level > 1) ++level;
  return level;
}

class SelectedPixels {
 public:
  SelectedPixels(const ExtremeKernels& kernels, const ExtremeImage& image, const Mask& mask)
      : kernels_(kernels),
        image_(image),
        rows_(kernels, image),
        mask_(mask),
        copiesSource_(image.inPlace() || rows_.isShort()) {
    std::fill(ring_, ring_ + kLevels, -1);
    chooseLevels();
  }

  LumStatus run() {
    if (taps_ > INT32_MAX) return lumStatusNoMemory;
    const int64_t stride = rows_.stride(), taps = memoryOf(taps_, sizeof(Tap)),
                  pointers = memoryOf(taps_, sizeof(const Byte*));
    const int64_t rings = memoryOf(levels_, memoryOf(image_.window.height, stride));
    LineMemory memory(std::min(rings + taps + pointers, kNoMemoryHolds) + (rows_.makesApart() ? stride : 0));
    if (!memory) return lumStatusNoMemory;
    Byte* const apart = memory.data() + static_cast<size_t>(rings);
    for (int k = 0; k < kLevels; ++k)
      if (ring_[k] >= 0)
        levelRings_[k] = {memory.data() + static_cast<size_t>(ring_[k]) *
                                              static_cast<size_t>(image_.window.height) *
                                              static_cast<size_t>(stride),
                          stride, image_.window.height};
    auto* const list = apart + (rows_.makesApart() ? static_cast<size_t>(stride) : 0);
    list_ = reinterpret_cast<Tap*>(list);
    at_ = reinterpret_cast<const Byte**>(list + static_cast<size_t>(taps));
    listTaps();
    for (int y = 0; y < image_.roi.height; ++y) {
      makeLevels(int64_t{y} + image_.window.height);
      const TargetRows dst = rows_.makesApart() ? TargetRows{apart, 0} : TargetRows{image_.dst.row(y), 0};
      gatherTaps(rows_.source(y));
      kernels_.ofTaps(at_, static_cast<int>(taps_), dst.first, rows_.atLeastVector(rows_.bytes()));
      if (rows_.makesApart()) rows_.bring(dst, y, 1);
      first_ = place(1);
    }
    return lumStatusOk;
  }

 private:
  // Those of the runs, and others between them, so that one is made of no more than four of another. Few
  // pixels are joined as they are.
  void chooseLevels() {
    int64_t pixels = 0;
    unsigned of = 1;
    mask_.forEachRun([&](int, int, int columns) {
      of |= 1U << levelOf(columns);
      pixels += columns;
      taps_ += tapsOf(columns);
    });
    int before = 0;
    for (int k = 1; k < kLevels; ++k) {
      if (of >> k == 0) break;
      if ((of >> k & 1) == 0 && k - before < 2) continue;
      before = k;
      ring_[k] = levels_++;
    }
    constexpr int kLoadsOfLevel = 4;
    if (pixels <= taps_ + kLoadsOfLevel * levels_) {
      singly_ = true;
      taps_ = pixels;
      levels_ = 0;
      std::fill(ring_, ring_ + kLevels, -1);
    }
    if (copiesSource_) ring_[0] = levels_++;
  }
  static int tapsOf(int columns) { return columns == 1 << levelOf(columns) ? 1 : 2; }

  void listTaps() {
    Tap* next = list_;
    const auto add = [&](int row, int column, int level) { *next++ = {row, level, column * rows_.pixel()}; };
    mask_.forEachRun([&](int row, int first, int columns) {
      if (singly_) {
        for (int x = 0; x < columns; ++x) add(row, first + x, 0);
        return;
      }
      const int level = levelOf(columns);
      add(row, first, level);
      if (tapsOf(columns) == 2) add(row, first + columns - (1 << level), level);
    });
  }
  void gatherTaps(const Byte* source) {
    const ptrdiff_t step = image_.src.step, count = static_cast<ptrdiff_t>(taps_);
    for (ptrdiff_t i = 0; i < count; ++i) {
      const Tap& tap = list_[i];
      const Byte* const row =
          ring_[tap.level] < 0 ? source + tap.row * step : levelRings_[tap.level].at(place(tap.row));
      at_[i] = row + tap.before;
    }
  }

  // Of the row so many below the first one under the window; all rings turn together.
  ptrdiff_t place(ptrdiff_t rows) const {
    const ptrdiff_t next = first_ + rows;
    return next < image_.window.height ? next : next - image_.window.height;
  }

  // Every level of the source's rows: the extremes of 2^k pixels from each one on.
  void makeLevels(int64_t end) {
    if (levels_ == 0) return;
    for (int64_t y = end - (made_ ? 1 : image_.window.height); y < end; ++y) {
      const ptrdiff_t there = place(static_cast<ptrdiff_t>(y - end) + image_.window.height);
      const Byte* row = rows_.source(y);
      if (copiesSource_) {
        std::memcpy(levelRings_[0].at(there), row, static_cast<size_t>(rows_.covered()));
        row = levelRings_[0].at(there);
      }
      int before = 0;
      for (int k = 1; k < kLevels; ++k) {
        if (ring_[k] < 0) continue;
        const Byte* taps[4];
        const int count = 1 << (k - before);
        for (int i = 0; i < count; ++i) taps[i] = row + i * (ptrdiff_t{1} << before) * rows_.pixel();
        const int64_t bytes = rows_.covered() - ((int64_t{1} << k) - 1) * rows_.pixel();
        Byte* const made = levelRings_[k].at(there);
        kernels_.ofTaps(taps, count, made, rows_.atLeastVector(bytes));
        row = made;
        before = k;
      }
    }
    made_ = true;
  }

  const ExtremeKernels& kernels_;
  const ExtremeImage& image_;
  ExtremeRows rows_;
  Mask mask_;
  bool copiesSource_, singly_ = false;
  int64_t taps_ = 0;
  int levels_ = 0;
  int ring_[kLevels];  // the number of a level's ring of rows; -1 where there is none
  RowRing levelRings_[kLevels];
  const Byte** at_ = nullptr;
  Tap* list_ = nullptr;
  ptrdiff_t first_ = 0;  // the place of the first row under the window
  bool made_ = false;    // whether all rows under the first window have been made
};

}  // namespace

LumStatus storeExtremes(const ExtremeKernels& kernels, const ExtremeImage& image, const Lum8u* mask) {
  const Mask whole(mask, image.window, image.window.width);
  // In place, rows are taken before they are overwritten as long as the window has the pixel's own row.
  const LumiRect bounds =
      image.inPlace() ? LumiRect{0, 0, image.window.width, image.window.height} : whole.bounds();
  const Mask part = whole.part(bounds);
  ExtremeImage covered = image;
  covered.window = {bounds.width, bounds.height};
  covered.anchor = {image.anchor.x - bounds.x, image.anchor.y - bounds.y};
  return part.isWhole() ? storeExtremes(kernels, covered) : SelectedPixels(kernels, covered, part).run();
}

}  // namespace lumi
