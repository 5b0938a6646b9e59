// SPDX-License-Identifier: MIT
// Runs of lumiHOG: what every pixel counts goes into the buffer, strip by strip; then the windows are
// described from there.
#include "lumi/hog.h"

#include <algorithm>
#include <cstring>
#include <type_traits>

#include "filters/hog_object.hpp"
#include "filters/strip_source.hpp"
#include "frame/check.hpp"
#include "frame/rows.hpp"
#include "kernels/filters/hog.hpp"

namespace lumi {
namespace {

using namespace check;

using HogStrips = Strip<256>;

// Every row is converted once for each strip, and three of them are kept. No corner is read: rows above and
// below the image have no pixels at their sides.
template <typename T, typename Layout>
void countVotes(const StripSource<T, Lum32f, Layout, HogStrips>& image, int binCount, const HogVotes& votes) {
  const LumiSize size = image.size();
  RowRing<Lum32f, Layout, HogStrips, 3> ring;
  for (int x = 0; x < size.width; x += HogStrips::kPixels) {
    const int width = std::min(HogStrips::kPixels, size.width - x);
    const auto read = [&](int y) {
      const int beside = y < 0 || y == size.height ? 0 : 1;
      image.read(y, x - beside, x + width + beside, ring.row(y) - beside);
    };
    read(-1);
    read(0);
    for (int y = 0; y < size.height; ++y) {
      read(y + 1);
      hogVotes<Layout::kStored>({ring.row(y - 1), ring.row(y), ring.row(y + 1), HogStrips::kRow}, binCount,
                                votes.at(x, y), static_cast<size_t>(width));
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
  const void* value = &borderValue;
  if constexpr (std::is_pointer_v<Value>) value = borderValue;
  const BorderedImage<kPixelBytes<T, Layout>> image(rows(src, srcStep), size, border, value);
  const HogVotes votes{buffer, 12 * static_cast<ptrdiff_t>(size.width)};
  countVotes(StripSource<T, Lum32f, Layout, HogStrips>(image), grid.binCount, votes);
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
