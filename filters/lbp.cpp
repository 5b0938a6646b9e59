// SPDX-License-Identifier: MIT
// Local binary patterns, and distances between images of them.
#include "lumi/lbp.h"

#include <algorithm>

#include "filters/window_walk.hpp"
#include "frame/check.hpp"
#include "kernels/filters/lbp.hpp"

namespace lumi {
namespace {

using namespace check;

// Pixels that are not in memory are the nearest ones, whatever the type.
BorderMode nearestOutside(LumiBorderType border) {
  if (BorderMode(border).isAllInMemory()) return BorderMode(lumiBorderInMemory);
  return BorderMode(lumiBorderReplicate | (border & BorderMode::kAllSides));
}

template <int side, typename S, typename D, typename Layout>
LumStatus patternByMode(const S* src, int srcStep, D* dst, int dstStep, LumiSize roi, Lum8u mode,
                        LumiBorderType border, S) {
  if (LumStatus fault = firstFault(pointers(src, dst), size(roi))) return fault;
  const BorderedImage<sizeof(S)> image(rows(src, srcStep), roi, nearestOutside(border), nullptr);
  filterWindows(binaryPattern<S, D>(side, mode & 3), image, rows(dst, dstStep), nullptr);
  return lumStatusOk;
}
template <int side, typename T, typename Layout>
LumStatus patternByMode(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, Lum8u mode,
                        LumiBorderType border, T value) {
  return patternByMode<side, T, T, Layout>(src, srcStep, dst, dstStep, roi, mode, border, value);
}

template <int side, typename S, typename D, typename Layout>
LumStatus patternInOrder(const S* src, int srcStep, D* dst, int dstStep, LumiSize roi, LumiBorderType border,
                         S value) {
  return patternByMode<side, S, D, Layout>(src, srcStep, dst, dstStep, roi, 1, border, value);
}
template <int side, typename T, typename Layout>
LumStatus patternInOrder(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, LumiBorderType border,
                         T value) {
  return patternByMode<side, T, T, Layout>(src, srcStep, dst, dstStep, roi, 1, border, value);
}

constexpr int kReach = 2;          // of the window of a distance
constexpr int kStripBytes = 1024;  // of results that are made together
constexpr int kRoom = kStripBytes + 64;

// An image of patterns: columns of a row, wherever they begin.
template <typename T>
class PatternColumns {
 public:
  PatternColumns(Rows<const Byte> image, LumiSize size, BorderMode border)
      : image_(image),
        size_(size),
        border_(border),
        least_(border.isInMemory(lumiBorderInMemoryLeft) ? INT64_MIN : 0),
        end_(border.isInMemory(lumiBorderInMemoryRight) ? INT64_MAX : size.width) {}

  // Where they are in memory they stay there; `copy` has room for them.
  const Byte* get(int64_t y, int64_t from, int64_t count, Byte* copy) const {
    const Byte* const row = image_.row(placeOf(y));
    const auto at = [&](int64_t x) { return row + static_cast<ptrdiff_t>(x) * bytes(1); };
    if (from >= least_ && from + count <= end_) return at(from);
    const int64_t low = std::clamp(least_, from, from + count), high = std::clamp(end_, low, from + count);
    repeat(at(0), copy, low - from);
    if (low < high) std::memcpy(copy + bytes(low - from), at(low), static_cast<size_t>(bytes(high - low)));
    repeat(at(int64_t{size_.width} - 1), copy + bytes(high - from), from + count - high);
    return copy;
  }

 private:
  static ptrdiff_t bytes(int64_t samples) {
    return static_cast<ptrdiff_t>(samples) * static_cast<ptrdiff_t>(sizeof(T));
  }
  static void repeat(const Byte* sample, Byte* to, int64_t count) {
    for (; count > 0; --count, to += sizeof(T)) std::memcpy(to, sample, sizeof(T));
  }
  int placeOf(int64_t y) const {
    const bool isAbove = y < 0 && !border_.isInMemory(lumiBorderInMemoryTop);
    const bool isBelow = y >= size_.height && !border_.isInMemory(lumiBorderInMemoryBottom);
    return isAbove ? 0 : isBelow ? size_.height - 1 : static_cast<int>(y);
  }

  Rows<const Byte> image_;
  LumiSize size_;
  BorderMode border_;
  int64_t least_, end_;  // of the columns that are in memory
};

// The bits that differ are counted in the last five rows, and added up in columns.
template <typename T>
void distancesOfStrip(const PatternColumns<T>& first, const PatternColumns<T>& second, int64_t shift, int x,
                      LumiSize strip, TargetRows dst) {
  constexpr int kRows = 2 * kReach + 1;
  alignas(32) Byte counts[kRows][kRoom] = {}, columns[kRoom] = {}, copies[2][kRoom];
  const int64_t from = int64_t{x} - kReach, count = int64_t{strip.width} + 2 * kReach;
  int oldest = 0;
  for (int64_t y = -kReach; y < int64_t{strip.height} + kReach; ++y) {
    const Byte* const a = first.get(y, from, count, copies[0]);
    const Byte* const b = second.get(y, from + shift, count, copies[1]);
    replaceBits<T>(a, b, counts[oldest], columns, static_cast<size_t>(count));
    oldest = oldest + 1 == kRows ? 0 : oldest + 1;
    if (y < kReach) continue;
    sumFiveColumns<T>(columns, dst.row(static_cast<int>(y - kReach)), static_cast<size_t>(strip.width));
  }
}

template <typename T, typename Layout>
LumStatus patternDistance(const T* src1, int src1Step, const T* src2, int src2Step, T* dst, int dstStep,
                          LumiSize roi, Lum32s shift, LumiBorderType border, T) {
  if (LumStatus fault = firstFault(pointers(src1, src2, dst), size(roi))) return fault;
  const BorderMode outside = nearestOutside(border);
  const PatternColumns<T> first(rows(src1, src1Step), roi, outside),
      second(rows(src2, src2Step), roi, outside);
  const int64_t limited = std::clamp<int64_t>(shift, -int64_t{roi.width}, roi.width);
  constexpr int kMost = kStripBytes / static_cast<int>(sizeof(T)) - 2 * kReach;
  for (int64_t x = 0; x < roi.width; x += kMost) {
    const int at = static_cast<int>(x), width = std::min(kMost, roi.width - at);
    distancesOfStrip<T>(first, second, limited, at, {width, roi.height}, rows(dst + x, dstStep));
  }
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/lbp.inc"
