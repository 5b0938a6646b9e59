// SPDX-License-Identifier: MIT
// Medians with a border.
#include "lumi/filter_median_border.h"

#include <algorithm>
#include <type_traits>

#include "dispatch/copy.hpp"
#include "filters/large_median.hpp"
#include "filters/median_mask.hpp"
#include "filters/window_walk.hpp"
#include "frame/check.hpp"
#include "frame/layout.hpp"
#include "frame/scratch.hpp"

namespace lumi {
namespace {

using namespace check;

uint64_t padded(uint64_t bytes) { return (bytes + 31) & ~uint64_t{31}; }

// What this library does needs less, but for the border image or the rows of it that are counted last.
uint64_t bufferBytes(LumiSize roi, LumiSize mask, int sampleBytes, bool isFloat) {
  const auto width = static_cast<uint64_t>(roi.width), height = static_cast<uint64_t>(roi.height),
             e = static_cast<uint64_t>(sampleBytes), mw = static_cast<uint64_t>(mask.width),
             mh = static_cast<uint64_t>(mask.height);
  const uint64_t area = mw * mh, longer = std::max(mw, mh), columns = width + mw - 1;
  const bool isLine = mw == 1 || mh == 1;
  uint64_t sorted = 0;
  if (longer >= 6 || (!isLine && mw != mh)) {
    if (!isFloat)
      sorted = padded(e * 4 * area);
    else if (isLine)
      sorted = padded(4 * area);
    else if (area >= 625)
      sorted = padded((area + 15) / 16 * 128 + 12288);
    else
      sorted = padded(((area + 15) & ~uint64_t{15}) * 12 + (longer + 15) / 16 * 64);
  }
  if (mw >= width || mh >= height) return sorted + padded(columns * (height + mh - 1) * e);
  const uint64_t above = mh / 2, before = mw / 2;
  const uint64_t edges = ((width * above * e + 31) >> 5) + ((height * before * e + 31) >> 5);
  const uint64_t strips = std::max(columns * (above + mh) * e, (height + mh - 1) * (before + mw) * e);
  return sorted + mh * 2 * padded(width * e) + 64 * edges + padded(strips);
}

LumStatus filterMedianBorderBufferSize(LumiSize area, LumiSize mask, LumiDataType dataType, int channels,
                                       int* bufferSize) {
  const bool isWord = dataType == lumiData16u || dataType == lumiData16s, isFloat = dataType == lumiData32f;
  const bool isType = isWord || isFloat || dataType == lumiData8u;
  if (LumStatus fault = firstFault(pointers(bufferSize), size(area), medianMask(mask),
                                   isType ? lumStatusOk : lumStatusBadDataType,
                                   channels == 1 ? lumStatusOk : lumStatusBadChannelCount))
    return fault;
  *bufferSize = static_cast<int>(bufferBytes(area, mask, isFloat ? 4 : isWord ? 2 : 1, isFloat));
  return lumStatusOk;
}

template <typename T>
LumStatus sampleSteps(int srcStep, int dstStep) {
  constexpr int bytes = sizeof(T);
  return srcStep % bytes != 0 || dstStep % bytes != 0 ? lumStatusOddStep : lumStatusOk;
}

LumStatus borderType(LumiBorderType border) {
  const bool offered = BorderMode(border).isOneOf(lumiBorderConst, lumiBorderReplicate, lumiBorderInMemory);
  return offered ? lumStatusOk : lumStatusBadArgument;
}

// A run with checked arguments.
template <typename T>
class MedianRun {
 public:
  MedianRun(const BorderedImage<sizeof(T)>& image, Rows<Byte> dst, LumiSize mask, Byte* buffer)
      : image_(image),
        dst_(dst),
        mask_(mask),
        buffer_(buffer),
        roi_(image.size()),
        columns_(int64_t{roi_.width} + mask.width - 1),
        rowBytes_(static_cast<ptrdiff_t>(columns_) * kSample),
        above_(mask.height / 2),
        before_(mask.width / 2),
        isInPlace_(image.row(0) == dst.first) {}

  void run() const {
    if (const auto shape = sortedShape(mask_)) return sort(medianFilter<T>(*shape));
    if (image_.border().isAllInMemory() && !isInPlace_) {
      const Byte* const first =
          image_.row(0) - ptrdiff_t{above_} * image_.step() - ptrdiff_t{before_} * kSample;
      return store({first, image_.step()});
    }
    const int64_t rows = int64_t{roi_.height} + mask_.height - 1;
    const bool isWhole =
        mask_.width >= roi_.width || mask_.height >= roi_.height;  // then the buffer holds it
    const int64_t bytes = rowBytes_ > INT64_MAX / rows ? INT64_MAX : rowBytes_ * rows;
    const Scratch scratch(isWhole ? 1 : bytes);
    Byte* const copy = isWhole ? buffer_ : static_cast<Byte*>(scratch.data());
    if (!copy) return select();
    for (int64_t y = 0; y < rows; ++y)
      copyRow(static_cast<int>(y) - above_, copy + static_cast<ptrdiff_t>(y) * rowBytes_);
    store({copy, rowBytes_});
  }

 private:
  static constexpr int kSample = sizeof(T);

  void copyRow(int y, Byte* to) const { image_.copy(y, -before_, roi_.width + before_, to); }

  void sort(const WindowFilter& filter) const {
    if (!isInPlace_) return filterWindows(filter, image_, dst_, buffer_);
    // Rows are overwritten when all that read them have been brought into the ring.
    const auto held =
        static_cast<int64_t>(bufferBytes(roi_, mask_, kSample, std::is_floating_point_v<T>)) / rowBytes_;
    const int slots = static_cast<int>(std::min<int64_t>(held, kBandRows + mask_.height - 1));
    const int most = slots - mask_.height + 1;
    const auto ringRow = [&](int y) { return buffer_ + (y + above_) % slots * rowBytes_; };
    int next = -above_;
    for (int y = 0; y < roi_.height; y += most) {
      const int rows = std::min(most, roi_.height - y);
      for (; next < y + rows + above_; ++next) copyRow(next, ringRow(next));
      const Byte* window[kBandRows + 2 * kMostReach];
      for (int i = 0; i < rows + 2 * above_; ++i) window[i] = ringRow(y - above_ + i) + before_ * kSample;
      filterRows(filter, {window, {dst_.row(y), dst_.step}, rows}, static_cast<size_t>(roi_.width), kSample);
    }
  }

  void store(SourceRows windows) const {
    const LargeMedian filter{windows, dst_, roi_, mask_, kSample, 1};
    if (!storeMedians<T>(filter)) storeSelectedMedians<T>(filter);
  }

  // With the rows of one row of windows in the buffer.
  void select() const {
    const auto take = [&](int y) { copyRow(y, buffer_ + (y + above_) % mask_.height * rowBytes_); };
    for (int y = -above_; y < above_; ++y) take(y);
    for (int y = 0; y < roi_.height; ++y) {
      take(y + above_);
      selectMedians<T>({buffer_, rowBytes_, kSample, mask_.height, mask_.width}, dst_.row(y), roi_.width);
    }
  }

  const BorderedImage<sizeof(T)>& image_;
  Rows<Byte> dst_;
  LumiSize mask_;
  Byte* buffer_;
  LumiSize roi_;
  int64_t columns_;
  ptrdiff_t rowBytes_;
  int above_, before_;
  bool isInPlace_;
};

template <typename T, typename Layout>
LumStatus filterMedianBorder(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, LumiSize mask,
                             LumiBorderType border, T borderValue, Lum8u* buffer) {
  if (LumStatus fault = firstFault(pointers(src, dst, buffer), size(roi), sampleSteps<T>(srcStep, dstStep),
                                   medianMask(mask), borderType(border)))
    return fault;
  if (isPixel(mask)) return src == dst ? lumStatusOk : call::CopyR<T, C1>(src, srcStep, dst, dstStep, roi);
  const BorderedImage<sizeof(T)> image(rows(src, srcStep), roi, BorderMode(border), &borderValue);
  MedianRun<T>(image, rows(dst, dstStep), mask, buffer).run();
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/filter_median_border.inc"
