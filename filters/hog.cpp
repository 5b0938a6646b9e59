// SPDX-License-Identifier: MIT
// Runs of lumiHOG: what every pixel counts goes into the buffer, strip by strip; then the windows are
// described from there.
#include "lumi/hog.h"

#include <algorithm>
#include <cstring>
#include <type_traits>

#include "dispatch/convert.hpp"
#include "dispatch/copy_channels.hpp"
#include "filters/hog_object.hpp"
#include "frame/border.hpp"
#include "frame/check.hpp"
#include "frame/rows.hpp"
#include "kernels/filters/hog.hpp"

namespace lumi {
namespace {

using namespace check;

constexpr int kStrip = 256;        // pixels
constexpr int kRow = kStrip + 16;  // floats, with room before the first pixel and behind the last one
constexpr int kBefore = 8;

// An image whose pixels around it follow from a border type; the corners are not there.
template <typename T, typename Layout>
class HogImage {
 public:
  HogImage(SourceRows src, LumiSize size, BorderMode border, const T* value)
      : src_(src), size_(size), border_(border), value_(value) {}

  // `width` pixels of a row, which may be the one above the first or below the last, as planes of floats.
  // Rows within the image have a pixel before and behind.
  void read(int x, int y, int width, float* to) const {
    const bool isAbove = y < 0, isBelow = y == size_.height;
    if (isAbove || isBelow) {
      if (!isInMemory(isAbove ? lumiBorderInMemoryTop : lumiBorderInMemoryBottom)) {
        if (border_.type() == lumiBorderConst) return fill(width, to);
        const int inside = border_.type() == lumiBorderMirror ? 1 : 0;
        y = isAbove ? inside : size_.height - 1 - inside;
      }
      return convert(x, y, width, to);
    }
    const int left = x > 0 || isInMemory(lumiBorderInMemoryLeft) ? 1 : 0;
    const int right = x + width < size_.width || isInMemory(lumiBorderInMemoryRight) ? 1 : 0;
    convert(x - left, y, left + width + right, to - left);
    for (int c = 0; c < Layout::kStored; ++c) {
      float* const row = to + c * kRow;
      const int inside = border_.type() == lumiBorderMirror ? 1 : 0;
      if (!left) row[-1] = border_.type() == lumiBorderConst ? constant(c) : row[inside];
      if (!right) row[width] = border_.type() == lumiBorderConst ? constant(c) : row[width - 1 - inside];
    }
  }

 private:
  bool isInMemory(LumiBorderType side) const { return border_.isInMemory(side); }
  float constant(int c) const { return static_cast<float>(value_[c]); }

  void fill(int width, float* to) const {
    for (int c = 0; c < Layout::kStored; ++c) std::fill_n(to + c * kRow, width, constant(c));
  }

  void convert(int x, int y, int width, float* to) const {
    const Byte* const row = src_.row(y) + static_cast<ptrdiff_t>(x) * kPixelBytes<T, Layout>;
    const auto* const pixels = reinterpret_cast<const T*>(row);
    constexpr int floatStep = kRow * static_cast<int>(sizeof(float));
    constexpr int step = kRow * static_cast<int>(sizeof(T));
    if constexpr (Layout::kStored == 3) {
      T planes[3][kRow];
      T* const to3[] = {planes[0], planes[1], planes[2]};
      float* const floats[] = {to, to + kRow, to + 2 * kRow};
      if constexpr (std::is_same_v<T, Lum32f>) {
        call::CopyR<T, C3, P3>(pixels, floatStep, floats, floatStep, {width, 1});
      } else {
        call::CopyR<T, C3, P3>(pixels, step, to3, step, {width, 1});
        call::ConvertR<T, Lum32f, C1>(planes[0], step, to, floatStep, {width, 3});
      }
    } else if constexpr (std::is_same_v<T, Lum32f>) {
      std::memcpy(to, row, static_cast<size_t>(width) * sizeof(float));
    } else {
      call::ConvertR<T, Lum32f, C1>(pixels, step, to, floatStep, {width, 1});
    }
  }

  SourceRows src_;
  LumiSize size_;
  BorderMode border_;
  const T* value_;
};

// Every row is converted once for each strip, and three of them are kept.
template <typename T, typename Layout>
void countVotes(const HogImage<T, Layout>& image, LumiSize size, int binCount, const HogVotes& votes) {
  constexpr int channels = Layout::kStored;
  alignas(32) float kept[3][channels][kRow] = {};
  const auto row = [&](int y) { return kept[(y + 1) % 3][0] + kBefore; };
  for (int x = 0; x < size.width; x += kStrip) {
    const int width = std::min(kStrip, size.width - x);
    image.read(x, -1, width, row(-1));
    image.read(x, 0, width, row(0));
    for (int y = 0; y < size.height; ++y) {
      image.read(x, y + 1, width, row(y + 1));
      hogVotes<channels>({row(y - 1), row(y), row(y + 1), kRow}, binCount, votes.at(x, y),
                         static_cast<size_t>(width));
    }
  }
}

int cutToGrid(int side, const HogGrid& grid) {
  return (side - grid.blockSize) / grid.stride * grid.stride + grid.blockSize;
}

void describe(const HogGrid& grid, const HogVotes& votes, LumiSize size, const LumiPoint* locations,
              int count, Byte* to) {
  const int lastX = size.width - ((grid.across - 1) * grid.stride + grid.blockSize);
  const int lastY = size.height - ((grid.down - 1) * grid.stride + grid.blockSize);
  for (int i = 0; i < count; ++i) {
    LumiPoint at{0, 0};
    if (locations) std::memcpy(&at, static_cast<const void*>(locations + i), sizeof at);
    if (at.x < 0 || at.y < 0 || at.x > lastX || at.y > lastY) continue;
    hogDescriptor(grid, {votes.at(at.x, at.y), votes.row}, to);
    to += grid.bytes();
  }
}

LumStatus locationList(const LumiPoint* locations, int count) {
  if (count < 1) return lumStatusBadArgument;
  return count > 1 && !locations ? lumStatusNullPointer : lumStatusOk;
}

template <typename T>
LumStatus stepOfSamples(int step) {
  if (step < 1) return lumStatusBadStep;
  return step % static_cast<int>(sizeof(T)) != 0 ? lumStatusOddStep : lumStatusOk;
}

LumStatus isTaken(BorderMode border) {
  return border.isOneOf(lumiBorderConst, lumiBorderReplicate, lumiBorderMirror, lumiBorderInMemory)
             ? lumStatusOk
             : lumStatusBadBorder;
}

template <typename T, typename Layout, typename Value>
LumStatus hog(const T* src, int srcStep, LumiSize roi, const LumiPoint* locations, int locationCount,
              Lum32f* descriptors, const LumiHOGSpec* spec, LumiBorderType borderType, Value borderValue,
              Lum8u* buffer) {
  const BorderMode border(borderType);
  if (LumStatus fault = firstFault(
          pointers(src, descriptors, spec, borderValue, buffer), [=] { return hogIdentity(spec); },
          stepOfSamples<T>(srcStep), [=] { return hogRoi(spec, roi); },
          locationList(locations, locationCount), isTaken(border)))
    return fault;
  const HogGrid grid = hogGridAt(spec);
  const LumiSize size{cutToGrid(roi.width, grid), cutToGrid(roi.height, grid)};
  T value[Layout::kStored];
  if constexpr (std::is_pointer_v<Value>)
    std::memcpy(value, static_cast<const void*>(borderValue), sizeof value);
  else
    value[0] = borderValue;
  const HogVotes votes{buffer, 12 * static_cast<ptrdiff_t>(size.width)};
  const HogImage<T, Layout> image(rows(src, srcStep), size, border, value);
  countVotes(image, size, grid.binCount, votes);
  describe(grid, votes, size, locations, locationCount, reinterpret_cast<Byte*>(descriptors));
  return lumStatusOk;
}

// By the types of a name that has two.
template <typename T, typename Floats, typename Layout, typename Value>
LumStatus hog(const T* src, int srcStep, LumiSize roi, const LumiPoint* locations, int locationCount,
              Lum32f* descriptors, const LumiHOGSpec* spec, LumiBorderType border, Value borderValue,
              Lum8u* buffer) {
  return hog<T, Layout>(src, srcStep, roi, locations, locationCount, descriptors, spec, border, borderValue,
                        buffer);
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/hog.inc"
