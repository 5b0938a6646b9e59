// SPDX-License-Identifier: MIT
// Border extension: a frame around an image, of a value, of its edge pixels, or of the image continued.
#include "lumi/border.h"

#include "frame/border.hpp"
#include "frame/check.hpp"
#include "frame/constant.hpp"
#include "frame/layout.hpp"
#include "frame/rows.hpp"
#include "frame/streaming.hpp"
#include "kernels/data/border.hpp"
#include "kernels/data/set.hpp"
#include "kernels/fence.hpp"

namespace lumi {
namespace {

using namespace check;

// Images of more bytes do not stay near the processor, whose second cache holds as many or less.
constexpr int64_t kFar = 0x100000;

// Runs of pixels of one sample type and layout, in an image of that size.
template <typename T, typename Layout>
struct Runs {
  static constexpr int kBytes = kPixelBytes<T, Layout>, kUsed = kUsedBytes<T, Layout>;

  // Whether a run is filled by unaligned stores: always where a part of each pixel stays.
  static bool isShort(int pixels) { return kUsed < kBytes || bytes(pixels) <= 128; }

  static size_t bytes(int pixels) { return static_cast<size_t>(pixels) * kBytes; }

  const bool far;

  explicit Runs(LumiSize all) : far(bytesMoved(all, kBytes) > kFar) {}

  RowShape shapeOf(Margins margins, int width) const {
    return {static_cast<size_t>(margins.left), static_cast<size_t>(width), static_cast<size_t>(margins.right),
            far};
  }
  static void extend(const Byte* first, const Byte* last, const Byte* src, Byte* dst, const RowShape& shape) {
    extendRow<sizeof(T), Layout::kStored, Layout::kUsed>(first, last, src, dst, shape);
  }
  void move(const Byte* src, Byte* dst, int pixels) const {
    moveRun<sizeof(T), Layout::kStored, Layout::kUsed>(src, dst, static_cast<size_t>(pixels), far);
  }
  static void repeat(const Byte* pixel, Byte* dst, int pixels) {
    if (pixels) repeatPixel<kBytes, kUsed>(pixel, dst, static_cast<size_t>(pixels));
  }
  static void fill(const PixelPattern& value, Byte* dst, int pixels) {
    if (isShort(pixels)) {
      repeat(value.bytes, dst, pixels);
    } else {
      const size_t count = bytes(pixels);
      fillRows<kBytes>(value, {dst, 0}, {count, 1},
                       mayStream(pixels) && streamsFill(static_cast<int64_t>(count)));
    }
  }
  // Whether a run is so long that fills of it may bypass the cache.
  static bool mayStream(int pixels) { return bytes(pixels) > static_cast<size_t>(kFillStreamingFloor); }
};

template <typename B>
Rows<B> startingAt(Rows<B> image, int y) {
  return {image.row(y), image.step};
}

// An image in a larger one: rows of the first from its own first pixel on, of the second from the left edge;
// both count from the image's first row.
struct Extended {
  LumiSize roi;
  Margins margins;
  Rows<Byte> image, all;

  LumiSize fullRoi() const {
    return {margins.left + roi.width + margins.right, margins.top + roi.height + margins.bottom};
  }
};

Extended extended(Rows<Byte> image, LumiSize roi, Margins margins, size_t leftBytes) {
  return {roi, margins, image, {image.first - leftBytes, image.step}};
}

Rows<Byte> placeOfImage(Rows<Byte> all, Margins margins, size_t leftBytes) {
  return {all.row(margins.top) + leftBytes, all.step};
}

template <typename T, typename Layout, typename Value>
LumStatus copyConstBorder(const T* src, int srcStep, LumiSize srcRoi, T* dst, int dstStep, LumiSize dstRoi,
                          int top, int left, Value value) {
  if (LumStatus fault = firstFault(pointers(src, dst), steps(srcStep, dstStep), size(srcRoi), size(dstRoi),
                                   inside(srcRoi, dstRoi, top, left), pointers(value)))
    return fault;
  using Run = Runs<T, Layout>;
  const Margins sides = Margins::around(srcRoi, dstRoi, top, left);
  const PixelPattern pattern = patternOf<T, Layout>(value);
  const auto fillRow = [&](Byte* d) { Run::fill(pattern, d, dstRoi.width); };
  const Run run(dstRoi);
  const RowShape shape = run.shapeOf(sides, srcRoi.width);
  const bool shortSides = Run::isShort(left) && Run::isShort(sides.right);
  const auto extend = [&](const Byte* s, Byte* d) {
    Byte* const image = d + Run::bytes(left);
    if (shortSides) return Run::extend(pattern.bytes, pattern.bytes, s, image, shape);
    Run::fill(pattern, d, left);
    run.move(s, image, srcRoi.width);
    Run::fill(pattern, image + Run::bytes(srcRoi.width), sides.right);
  };
  const Rows<Byte> all = rows(dst, dstStep);
  walkRows(top, fillRow, all);
  walkRows(srcRoi.height, extend, rows(src, srcStep), startingAt(all, top));
  walkRows(sides.bottom, fillRow, startingAt(all, top + srcRoi.height));
  if (Run::mayStream(dstRoi.width)) storeFence();
  return lumStatusOk;
}

// The first row is finished before the rows above are copied from it; `src` may be the image itself.
template <typename Run>
void replicate(Rows<const Byte> src, const Extended& dst) {
  const int width = dst.roi.width, height = dst.roi.height;
  const Run run(dst.fullRoi());
  const RowShape shape = run.shapeOf(dst.margins, width);
  const auto extend = [&](const Byte* s, Byte* d) { Run::extend(s, s + Run::bytes(width - 1), s, d, shape); };
  const auto copyOver = [&](int from, int to, int count) {
    const Byte* const finished = dst.all.row(from);
    walkRows(
        count, [&](Byte* d) { run.move(finished, d, dst.fullRoi().width); }, startingAt(dst.all, to));
  };
  extend(src.row(0), dst.image.row(0));
  copyOver(0, -dst.margins.top, dst.margins.top);
  walkRows(height - 1, extend, startingAt(src, 1), startingAt(dst.image, 1));
  copyOver(height - 1, height, dst.margins.bottom);
}

// Rows outside are copied from the image outwards, each from the row one period nearer.
template <typename Run>
void wrap(Rows<const Byte> src, const Extended& dst) {
  const int width = dst.roi.width, height = dst.roi.height;
  const Run run(dst.fullRoi());
  walkRows(
      height,
      [&](const Byte* s, Byte* d) {
        run.move(s, d, width);
        wrapRow(s, d, Run::bytes(width), Run::bytes(dst.margins.left), Run::bytes(dst.margins.right));
      },
      src, dst.image);
  const auto copyFullRow = [&](const Byte* s, Byte* d) { run.move(s, d, dst.fullRoi().width); };
  const auto upwardsFrom = [&](int y) { return Rows<Byte>{dst.all.row(y), -dst.all.step}; };
  walkRows(dst.margins.top, copyFullRow, upwardsFrom(height - 1), upwardsFrom(-1));
  walkRows(dst.margins.bottom, copyFullRow, dst.all, startingAt(dst.all, height));
}

template <typename Run, typename T, typename Extend>
void extendCopy(const T* src, int srcStep, LumiSize srcRoi, T* dst, int dstStep, Margins sides,
                Extend extend) {
  const size_t leftBytes = Run::bytes(sides.left);
  extend(rows(src, srcStep),
         extended(placeOfImage(rows(dst, dstStep), sides, leftBytes), srcRoi, sides, leftBytes));
}

template <typename Run, typename T, typename Extend>
LumStatus extendInPlace(T* image, int step, LumiSize srcRoi, LumiSize dstRoi, int top, int left,
                        Extend extend) {
  if (LumStatus fault = firstFault(pointers(image), steps(step), size(srcRoi), size(dstRoi),
                                   inside(srcRoi, dstRoi, top, left)))
    return fault;
  const Rows<Byte> place = rows(image, step);
  const Margins sides = Margins::around(srcRoi, dstRoi, top, left);
  extend(Rows<const Byte>{place.first, place.step}, extended(place, srcRoi, sides, Run::bytes(left)));
  return lumStatusOk;
}

template <typename T, typename Layout>
LumStatus replicateBorderInPlace(T* image, int step, LumiSize srcRoi, LumiSize dstRoi, int top, int left) {
  using Run = Runs<T, Layout>;
  return extendInPlace<Run>(image, step, srcRoi, dstRoi, top, left, replicate<Run>);
}

template <typename T, typename Layout>
LumStatus copyReplicateBorder(const T* src, int srcStep, LumiSize srcRoi, T* dst, int dstStep,
                              LumiSize dstRoi, int top, int left) {
  if (src == dst) return replicateBorderInPlace<T, Layout>(dst, dstStep, srcRoi, dstRoi, top, left);
  if (LumStatus fault = firstFault(pointers(src, dst), steps(srcStep, dstStep), size(srcRoi), size(dstRoi),
                                   inside(srcRoi, dstRoi, top, left)))
    return fault;
  using Run = Runs<T, Layout>;
  extendCopy<Run>(src, srcStep, srcRoi, dst, dstStep, Margins::around(srcRoi, dstRoi, top, left),
                  replicate<Run>);
  return lumStatusOk;
}

template <typename T, typename Layout>
LumStatus wrapBorderInPlace(T* image, int step, LumiSize srcRoi, LumiSize dstRoi, int top, int left) {
  using Run = Runs<T, Layout>;
  return extendInPlace<Run>(image, step, srcRoi, dstRoi, top, left, wrap<Run>);
}

// Equal pointers mean the image in place here too, but only once all arguments have passed.
template <typename T, typename Layout>
LumStatus copyWrapBorder(const T* src, int srcStep, LumiSize srcRoi, T* dst, int dstStep, LumiSize dstRoi,
                         int top, int left) {
  if (LumStatus fault = firstFault(pointers(src, dst), steps(srcStep, dstStep), size(srcRoi), size(dstRoi),
                                   inside(srcRoi, dstRoi, top, left)))
    return fault;
  if (src == dst) return wrapBorderInPlace<T, Layout>(dst, dstStep, srcRoi, dstRoi, top, left);
  using Run = Runs<T, Layout>;
  extendCopy<Run>(src, srcStep, srcRoi, dst, dstStep, Margins::around(srcRoi, dstRoi, top, left), wrap<Run>);
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/border.inc"
