// SPDX-License-Identifier: MIT
// Runs of kernel filtering: the image in rectangles, each with a source in which all that the kernel covers
// is there.
#include "lumi/filter_border.h"

#include <type_traits>

#include "filters/border_image.hpp"
#include "filters/filter_border_object.hpp"
#include "frame/border.hpp"
#include "frame/check.hpp"
#include "frame/layout.hpp"
#include "frame/rows.hpp"
#include "kernels/filters/filter_border.hpp"

namespace lumi {
namespace {

using namespace check;

constexpr int kLeastStrip = 4;  // rows of a strip that is worth the turn

template <typename T>
LumStatus stepsOfRows(int srcStep, int dstStep, LumiSize roi) {
  const int64_t samples = int64_t{roi.width} * static_cast<int>(sizeof(T));  // channels do not count
  return srcStep < 1 || dstStep < samples ? lumStatusBadStep : lumStatusOk;
}

constexpr LumStatus borderType(LumiBorderType border) {
  return border >= 2 && border <= 4 ? lumStatusBadBorder : lumStatusOk;
}

template <typename T>
constexpr LumiDataType kDataType = lumiData32f;
template <>
constexpr LumiDataType kDataType<Lum8u> = lumiData8u;
template <>
constexpr LumiDataType kDataType<Lum16u> = lumiData16u;
template <>
constexpr LumiDataType kDataType<Lum16s> = lumiData16s;

template <typename T>
bool usesIntegerTaps(const FilterBorderObject& object) {
  if (sizeof(T) == 1) return object.path == kBytesInteger;
  return std::is_same_v<T, Lum16s> && object.path == kWordsInteger;
}

// The least width, in pixels, of a rectangle that is computed in the wide form.
template <typename T, typename Layout>
int leastWideWidth(const FilterBorderObject& object) {
  constexpr int kNever = INT32_MAX, channels = Layout::kStored;
  if (usesIntegerTaps<T>(object)) {
    const bool fits = object.kernelWidth >= 3 && object.fitsPacked;
    if (sizeof(T) == 1) return !fits ? kNever : channels == 1 ? 16 : 5;
    return fits && object.fitsWords && channels == 1 ? 16 : kNever;
  }
  if (channels == 4) return sizeof(T) == 4 ? 1 : sizeof(T) == 1 ? 9 : 8;
  return 8;
}

FilterTaps tapsOf(const FilterBorderObject& o) {
  return {o.kernelWidth, o.kernelHeight, o.kernelI, o.kernelPacked, o.kernelF};
}

FilterRounding roundingOf(const FilterBorderObject& o) {
  return {o.divisorClass, o.divisor, o.shift, o.half, o.mask, o.scale, o.divisorD, o.roundMode};
}

// One run over the pixels of type T.
template <typename T, typename Layout>
class FilterRun {
 public:
  FilterRun(const FilterBorderObject& object, Rows<const Byte> src, Rows<Byte> dst, LumiSize roi,
            LumiBorderType border, const T* borderValue, Lum8u* scratch)
      : object_(object),
        taps_(tapsOf(object)),
        rounding_(roundingOf(object)),
        leastWide_(leastWideWidth<T, Layout>(object)),
        src_(src),
        dst_(dst),
        roi_(roi),
        border_(border),
        borderValue_(borderValue) {
    const LumiSize kernel{object.kernelWidth, object.kernelHeight};
    const LumiDataType taps = usesIntegerTaps<T>(object) ? lumiData16s : lumiData32f;
    left_ = kernel.width / 2;
    right_ = kernel.width - left_ - 1;
    top_ = kernel.height / 2;
    bottom_ = kernel.height - top_ - 1;
    image_ = alignedUp(scratch, kObjectAlignment) +
             filterScratchBytes(kDataType<T>, taps, Layout::kStored, kernel, roi.width);
  }

  void run() const {
    if (border_.type() == lumiBorderInMemory) return filter(pixelAt(src_, -left_, -top_), {0, 0}, roi_);
    if (roi_.height < top_ + bottom_) return filterSmall();
    filterTopAndBottom();
    const LumiSize middle{roi_.width, roi_.height - top_ - bottom_};
    if (middle.height == 0) return;
    if (roi_.width > left_ + right_ + 1)
      filterMiddle(middle.height);
    else
      filterNarrowMiddle(middle.height);
  }

 private:
  int added(int side, LumiBorderType flag) const { return border_.isInMemory(flag) ? side : 0; }

  template <typename B>
  static Rows<B> pixelAt(Rows<B> image, int x, int y) {
    return {image.row(y) + static_cast<ptrdiff_t>(x) * kPixelBytes<T, Layout>, image.step};
  }

  // Columns of the ROI from `x` on, and rows from `y` on, with the pixels beyond the given sides that are in
  // memory, as a border image of that size. Without a type there is none, and the buffer stays as it is.
  Rows<const Byte> border(LumiPoint from, LumiSize size, LumiPoint before, LumiPoint after, LumiSize image,
                          ptrdiff_t step) const {
    const Rows<Byte> rows{image_, step};
    const Rows<const Byte> result{image_, step};
    if (!border_.isOneOf(lumiBorderConst, lumiBorderReplicate)) return result;
    const int left = added(before.x, lumiBorderInMemoryLeft), top = added(before.y, lumiBorderInMemoryTop);
    const int right = added(after.x, lumiBorderInMemoryRight);
    const int bottom = added(after.y, lumiBorderInMemoryBottom);
    const BorderPart part{pixelAt(src_, from.x - left, from.y - top),
                          {size.width + left + right, size.height + top + bottom},
                          before.y - top,
                          before.x - left};
    if (border_.type() == lumiBorderConst)
      constantBorder<T, Layout>(part, borderValue_, rows, image);
    else
      replicateBorder<T, Layout>(part, rows, image);
    return result;
  }

  // Rows with a border on both sides start on 64-byte boundaries; those of the middle follow one another.
  ptrdiff_t paddedStep() const {
    return static_cast<ptrdiff_t>(
        roundedUp((int64_t{roi_.width} + left_ + right_) * kPixelBytes<T, Layout>, kObjectAlignment));
  }
  static ptrdiff_t tightStep(int width) { return static_cast<ptrdiff_t>(width) * kPixelBytes<T, Layout>; }

  void filterSmall() const {
    const LumiSize image{roi_.width + left_ + right_, roi_.height + top_ + bottom_};
    filter(border({0, 0}, roi_, {left_, top_}, {right_, bottom_}, image, paddedStep()), {0, 0}, roi_);
  }

  void filterTopAndBottom() const {
    const int rows = top_ + bottom_;
    if (rows == 0) return;
    const int width = roi_.width + left_ + right_;  // fits: a border image of that width is in the buffer
    if (top_ > 0)
      filter(
          border({0, 0}, {roi_.width, rows}, {left_, top_}, {right_, 0}, {width, rows + top_}, paddedStep()),
          {0, 0}, {roi_.width, top_});
    if (bottom_ > 0)
      filter(border({0, roi_.height - rows}, {roi_.width, rows}, {left_, 0}, {right_, bottom_},
                    {width, rows + bottom_}, paddedStep()),
             {0, roi_.height - bottom_}, {roi_.width, bottom_});
  }

  void filterMiddle(int height) const {
    const int columns = left_ + right_;
    if (left_ > 0)
      filter(border({0, 0}, {columns, roi_.height}, {left_, 0}, {0, 0}, {columns + left_, roi_.height},
                    tightStep(columns + left_)),
             {0, top_}, {left_, height});
    if (right_ > 0)
      filter(border({roi_.width - columns, 0}, {columns, roi_.height}, {0, 0}, {right_, 0},
                    {columns + right_, roi_.height}, tightStep(columns + right_)),
             {roi_.width - right_, top_}, {right_, height});
    filter(src_, {left_, top_}, {roi_.width - columns, height});
  }

  void filterNarrowMiddle(int height) const {
    const int width = roi_.width + left_ + right_;
    filter(border({0, 0}, {roi_.width, roi_.height}, {left_, 0}, {right_, 0}, {width, roi_.height},
                  tightStep(width)),
           {0, top_}, {roi_.width, height});
  }

  // A rectangle of the destination at `to`, from the source under the kernel's first tap.
  void filter(Rows<const Byte> from, LumiPoint to, LumiSize size) const {
    const bool wide = size.width >= leastWide_;
    const size_t samples = static_cast<size_t>(size.width) * Layout::kStored;
    const Rows<Byte> rows = pixelAt(dst_, to.x, to.y);
    if (!wide && size.height >= kLeastStrip && filterByColumns(from, rows, samples, size.height)) return;
    walkRows(
        size.height,
        [&](const Byte* s, Byte* d) {
          filterRow(wide, {s, from.step, Layout::kStored}, d, samples);
        },
        from, rows);
  }

  // Strips at the sides are done by columns, if their sums fit into 32 bits.
  bool filterByColumns(Rows<const Byte> from, Rows<Byte> to, size_t samples, int height) const {
    if (samples >= 8 || !fitsStrip(taps_, static_cast<int>(samples), Layout::kStored)) return false;
    const FilterSource src{from.first, from.step, Layout::kStored};
    const FilterStrip strip{to.first, to.step, static_cast<int>(samples), height};
    if constexpr (std::is_same_v<T, Lum8u> || std::is_same_v<T, Lum16s>)
      if (usesIntegerTaps<T>(object_)) {
        if (sizeof(T) == 2 && !object_.fitsWords) return false;
        filterNarrowStrip<T>(taps_, rounding_, src, strip);
        return true;
      }
    filterNarrowFloatStrip<T>(taps_, rounding_.mode, src, strip);
    return true;
  }

  void filterRow(bool wide, FilterSource src, Byte* dst, size_t samples) const {
    if constexpr (std::is_same_v<T, Lum8u> || std::is_same_v<T, Lum16s>)
      if (usesIntegerTaps<T>(object_)) {
        if constexpr (sizeof(T) == 1)
          if (wide && object_.fitsBytes) return filterWideSmall(taps_, rounding_, src, dst, samples);
        if (wide) return filterWide<T>(taps_, rounding_, src, dst, samples);
        const bool packed = object_.fitsPacked && (sizeof(T) == 1 || object_.fitsWords);
        return filterNarrow<T>(taps_, rounding_, src, dst, samples, packed);
      }
    if (wide)
      filterWideFloats<T>(taps_, src, dst, samples);
    else
      filterNarrowFloats<T>(taps_, rounding_.mode, src, dst, samples);
  }

  const FilterBorderObject& object_;
  FilterTaps taps_;
  FilterRounding rounding_;
  int leastWide_;  // width of a rectangle in the wide form
  Rows<const Byte> src_;
  Rows<Byte> dst_;
  LumiSize roi_;
  BorderMode border_;
  const T* borderValue_;
  int left_, right_, top_, bottom_;
  Lum8u* image_;
};

template <typename T, typename Layout>
LumStatus filterBorder(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, LumiBorderType border,
                       const T* borderValue, const LumiFilterBorderSpec* spec, Lum8u* buffer) {
  if (LumStatus fault = firstFault(pointers(src, dst, borderValue, spec, buffer), size(roi),
                                   stepsOfRows<T>(srcStep, dstStep, roi), borderType(border)))
    return fault;
  FilterRun<T, Layout>(*objectAt<FilterBorderObject>(spec), rows(src, srcStep), rows(dst, dstStep), roi,
                       border, borderValue, buffer)
      .run();
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/filter_border.inc"
