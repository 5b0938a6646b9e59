// SPDX-License-Identifier: MIT
// Box filtering with a border. What is outside is made up in the sums of columns, where a pixel that is
// repeated is a sum that is repeated: no pixel of a border image is ever made, but for a row of constants.
#include "lumi/filter_box_border.h"

#include <cstring>

#include "dispatch/copy.hpp"
#include "filters/box_mean.hpp"
#include "filters/window_walk.hpp"
#include "frame/check.hpp"
#include "frame/layout.hpp"
#include "kernels/filters/filter_box.hpp"

namespace lumi {
namespace {

using namespace check;

LumStatus windowSize(LumiSize mask) {
  return mask.width < 1 || mask.height < 1 ? lumStatusBadMaskSize : lumStatusOk;
}

LumStatus borderType(LumiBorderType border, const void* value) {
  if (border == lumiBorderConst && !value) return lumStatusNullPointer;
  const BorderMode mode(border);
  const bool isKnown = mode.isOneOf(lumiBorderConst, lumiBorderReplicate) || mode.isAllInMemory();
  return isKnown ? lumStatusOk : lumStatusBadBorder;
}

LumStatus filterBoxBorderBufferSize(LumiSize area, LumiSize mask, LumiDataType dataType, int channels,
                                    int* bufferSize) {
  const bool isType =
      dataType == lumiData8u || dataType == lumiData16u || dataType == lumiData16s || dataType == lumiData32f;
  const bool isCount = channels == 1 || channels == 3 || channels == 4;
  if (LumStatus fault = firstFault(pointers(bufferSize), size(area), windowSize(mask),
                                   isType ? lumStatusOk : lumStatusBadDataType,
                                   isCount ? lumStatusOk : lumStatusBadChannelCount))
    return fault;
  using U = uint32_t;
  const U width = static_cast<U>(area.width), height = static_cast<U>(area.height),
          c = static_cast<U>(channels);
  const U maskWidth = static_cast<U>(mask.width), maskHeight = static_cast<U>(mask.height);
  const U left = (maskWidth - 1) / 2, top = (maskHeight - 1) / 2;
  const U columns = width + maskWidth - 1, coveredRows = height + maskHeight - 1;
  const bool isLarge = 2 * int64_t{mask.width} < int64_t{area.width} + 1 &&
                       2 * int64_t{mask.height} < int64_t{area.height} + 1;
  const U edges = isLarge ? (top + 1) * width : columns * coveredRows;
  const U bytes = (columns + 2) * 4 * c +
                  8 * c * (columns * (2 * maskHeight - top - 2) + coveredRows * (2 * maskWidth - left - 2)) +
                  4 * c * edges + 4 * (top + 1);
  *bufferSize = static_cast<int>(bytes);
  return lumStatusOk;
}

bool isSquare(LumiSize mask, int side) { return mask.width == side && mask.height == side; }

// The factors are those of the formulas by a power of two that all of them have, so that they fit 16 bits.
// Inlined by force: GCC 12 fails over the record that it returns where the stack is aligned to four bytes.
template <typename Sum>
[[gnu::always_inline]] inline WindowMean byteMean(LumiSize mask) {
  if constexpr (std::is_same_v<Sum, uint16_t>) {
    if (isSquare(mask, 3)) return wordMean(29128, false, 18, 0);
    if (isSquare(mask, 5)) return wordMean(671088 >> 4, true, 24 - 4, 0);
    if (isSquare(mask, 7)) return wordMean(342392 >> 3, true, 24 - 3, 0);
  }
  return nearestMean<Lum8u, Sum>(reciprocalOf(mask));
}

// A run with checked arguments.
template <typename T, typename Layout>
class BorderRun {
 public:
  BorderRun(const WindowImage& image, BorderMode border, const T* value, Rows<Byte> dst, Byte* buffer)
      : image_(image), border_(border), value_(value), dst_(dst), buffer_(buffer) {}

  void run() {
    if constexpr (sizeof(T) == 1)
      if (filteredByWindows()) return;
    if constexpr (std::is_floating_point_v<T>) {
      makeConstants(buffer_ + BlockSums<T>::bytes(image_));
      storeBlockMeans<T>(image_, buffer_, nullptr,
                         store(floatMean<T>(reciprocalOf(image_.window)), sizeof(T)), dst_);
    } else {
      const BoxPlan plan = planOf(image_.window);
      makeConstants(buffer_ + MovingSums::bytes(image_, plan.sums->sumBytes));
      CoveredRows rows(image_, nullptr);
      storeMeans(image_, rows, MovingSums(*plan.sums, image_, rows, buffer_),
                 store(plan.mean, plan.sums->sumBytes), dst_);
    }
  }

 private:
  static BoxPlan planOf(LumiSize mask) {
    return planOfSums<T>(mask, Layout::kStored, [=](auto sum) {
      using Sum = decltype(sum);
      if constexpr (sizeof(T) == 1)
        return byteMean<Sum>(mask);
      else if constexpr (std::is_same_v<Sum, uint16_t>)
        return WindowMean{};
      else
        return nearestMean<T, Sum>(reciprocalOf(mask));
    });
  }

  MeanStore store(const WindowMean& mean, size_t sumBytes) const {
    return {mean, sumBytes, sizeof(T), Layout::kStored, Layout::kUsed};
  }

  // Small windows, where their rows are in memory or of one channel.
  bool filteredByWindows() {
    const bool isThree = isSquare(image_.window, 3), one = Layout::kStored == 1;
    if (!(isThree || isSquare(image_.window, 5)) || !(one || border_.isAllInMemory())) return false;
    if (isThree) countPath(Path::BoxOfThree);
    const WindowFilter& filter = !isThree ? kBoxBorder5x5 : one ? kBox3x3 : kBox3x3Colours;
    if (border_.isAllInMemory()) {
      filterWindows(filter, image_.rows, dst_, image_.roi, kShape<Layout>);
    } else if constexpr (one) {
      filterWindows(filter, BorderedImage<1>(image_.rows, image_.roi, border_, value_), dst_, buffer_);
    }
    return true;
  }

  // The buffer has room behind the sums for a row of source wherever more than one row is summed; a single
  // row needs but a pixel.
  void makeConstants(Byte* row) {
    if (border_.isAllInMemory() || border_.type() != lumiBorderConst) return;
    constexpr size_t pixel = kPixelBytes<T, Layout>;
    Byte value[pixel] = {};
    if (value_) std::memcpy(value, value_, kUsedBytes<T, Layout>);  // black where a caller has none
    const auto pixels = image_.window.height > 1 ? image_.samplesInMemory() / image_.channels : 1;
    for (int64_t x = 0; x < pixels; ++x) std::memcpy(row + static_cast<size_t>(x) * pixel, value, pixel);
    image_.constants = row;
  }

  WindowImage image_;
  BorderMode border_;
  const T* value_;
  Rows<Byte> dst_;
  Byte* buffer_;
};

template <typename T, typename Layout>
LumStatus filterBoxBorder(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, LumiSize mask,
                          LumiBorderType border, const T* borderValue, Lum8u* buffer) {
  if (LumStatus fault = firstFault(pointers(src, dst, buffer), steps(srcStep, dstStep), size(roi),
                                   windowSize(mask), borderType(border, borderValue)))
    return fault;
  if (areaOf(mask) == 1) return call::CopyR<T, Layout>(src, srcStep, dst, dstStep, roi);
  const LumiPoint centre{(mask.width - 1) / 2, (mask.height - 1) / 2};
  WindowImage image{rows(src, srcStep), roi, Layout::kStored, sizeof(T), mask, centre};
  image.takeBorder(BorderMode(border));
  BorderRun<T, Layout>(image, BorderMode(border), borderValue, rows(dst, dstStep), buffer).run();
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/filter_box_border.inc"
