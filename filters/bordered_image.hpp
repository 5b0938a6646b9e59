// SPDX-License-Identifier: MIT
// The pixels around a ROI, for filters that cover more than there is.
#pragma once

#include <algorithm>
#include <climits>
#include <cstring>

#include "frame/border.hpp"
#include "frame/rows.hpp"

namespace lumi {

// Where a row or a column outside the ROI comes from: its own place, if it is in memory; one inside; or none,
// which stands for the constant.
inline constexpr int kConstantPlace = INT_MIN;

// Any n, and any count above 0: reflections go to and fro in an image that is smaller than the window's
// reach.
inline int borderPlace(int n, int count, BorderMode border) {
  // Every place, and every place but the ends, stands there once on the way back.
  const int64_t period = 2 * int64_t{count} - (border.type() == lumiBorderMirror ? 2 : 0);
  const auto reflected = [&](int64_t lastOfPeriod) {
    const int64_t at = (n % period + period) % period;
    return static_cast<int>(at < count ? at : lastOfPeriod - at);
  };
  switch (border.type()) {
    case lumiBorderConst:
      return kConstantPlace;
    case lumiBorderMirror:
      return count == 1 ? 0 : reflected(period);
    case lumiBorderMirrorEdge:
      return reflected(period - 1);
    default:
      return n < 0 ? 0 : count - 1;
  }
}

// A ROI of pixels of so many bytes with what its border says of the pixels around it. Rows and columns are
// each taken by themselves: beyond a corner a pixel is the constant if either of them is.
template <int pixelBytes>
class BorderedImage {
 public:
  // The value of a constant border is one pixel, black where there is none; of others it is not looked at.
  BorderedImage(Rows<const Byte> roi, LumiSize size, BorderMode border, const void* value)
      : rows_(roi), size_(size), border_(border) {
    if (border.type() == lumiBorderConst && value) std::memcpy(value_, value, pixelBytes);
  }

  LumiSize size() const { return size_; }
  ptrdiff_t step() const { return rows_.step; }
  BorderMode border() const { return border_; }

  // The row's pixel in column 0, if those of the ROI's columns are in memory; null if they are constants.
  const Byte* row(int y) const {
    const int place = placeOf(y, size_.height, lumiBorderInMemoryTop, lumiBorderInMemoryBottom);
    return place == kConstantPlace ? nullptr : rows_.row(place);
  }

  // Pixels of a row, inside and outside: columns `from` to `end` - 1.
  void copy(int y, int from, int end, Byte* to) const {
    const Byte* const src = row(y);
    if (!src) return fill(to, end - from);
    const int low = border_.isInMemory(lumiBorderInMemoryLeft) ? from : std::clamp(0, from, end);
    const int high = border_.isInMemory(lumiBorderInMemoryRight) ? end : std::clamp(size_.width, low, end);
    const auto at = [&](int x) { return to + static_cast<ptrdiff_t>(x - from) * pixelBytes; };
    for (int x = from; x < low; ++x) copyOutside(src, x, at(x));
    if (low < high)
      std::memcpy(at(low), src + static_cast<ptrdiff_t>(low) * pixelBytes,
                  static_cast<size_t>(high - low) * pixelBytes);
    for (int x = high; x < end; ++x) copyOutside(src, x, at(x));
  }

  void fill(Byte* to, int pixels) const {
    for (int x = 0; x < pixels; ++x)
      std::memcpy(to + static_cast<ptrdiff_t>(x) * pixelBytes, value_, pixelBytes);
  }

 private:
  int placeOf(int n, int count, LumiBorderType before, LumiBorderType behind) const {
    if (n >= 0 && n < count) return n;
    return border_.isInMemory(n < 0 ? before : behind) ? n : borderPlace(n, count, border_);
  }
  void copyOutside(const Byte* src, int x, Byte* to) const {
    const int place = placeOf(x, size_.width, lumiBorderInMemoryLeft, lumiBorderInMemoryRight);
    const Byte* const from =
        place == kConstantPlace ? value_ : src + static_cast<ptrdiff_t>(place) * pixelBytes;
    std::memcpy(to, from, pixelBytes);
  }

  Rows<const Byte> rows_;
  LumiSize size_;
  BorderMode border_;
  Byte value_[pixelBytes]{};
};

}  // namespace lumi
