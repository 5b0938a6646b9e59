// SPDX-License-Identifier: MIT
// Resize: runs of a plan over tiles of the destination.
#include "lumi/resize.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "frame/border.hpp"
#include "frame/check.hpp"
#include "frame/layout.hpp"
#include "frame/rows.hpp"
#include "geometry/resize_spec.hpp"
#include "kernels/data/copy.hpp"
#include "kernels/geometry/resize_by_two.hpp"
#include "kernels/geometry/resize_linear.hpp"
#include "kernels/geometry/resize_nearest.hpp"
#include "kernels/path_count.hpp"

namespace lumi {
namespace {

using namespace check;

template <typename T>
LumStatus stepsOfSamples(int srcStep, int dstStep) {
  constexpr int kMask = sizeof(T) - 1;
  return ((srcStep | dstStep) & kMask) != 0 ? lumStatusBadStep : lumStatusOk;
}

// A linear plan also has to hold weights of the kind that samples of type T are weighed with.
template <typename T, typename Plan>
LumStatus madeFor(const Plan& plan, LumiInterpolationType interpolation) {
  const bool weighs =
      interpolation != lumInterpLinear || plan.horizontal.template weights<BlendWeight<T>>() != nullptr;
  return plan.antialiasing == 0 && plan.interpolation == interpolation && weighs ? lumStatusOk
                                                                                 : lumStatusUnsupportedMode;
}

LumStatus borderTaken(BorderMode border) {
  constexpr LumiBorderType types = 7;
  if ((border.value() & ~(types | BorderMode::kAllSides)) != 0) return lumStatusBadBorder;
  return border.isOneOf(lumiBorderReplicate, lumiBorderInMemory) ? lumStatusOk : lumStatusUnsupportedMode;
}

// The checks that all runs begin with, the plan's interpolation included.
template <typename T, typename Opaque, typename Plan>
LumStatus runFault(const T* src, int srcStep, const T* dst, int dstStep, LumiPoint offset, LumiSize tile,
                   const Opaque* object, const Lum8u* buffer, const Plan* plan,
                   LumiInterpolationType interpolation) {
  return firstFault(
      pointers(src, dst, object, buffer), notZero(tile), [=] { return identity(*plan); }, size(tile),
      stepsOfSamples<T>(srcStep, dstStep), [=] { return offsetInside(*plan, offset); },
      [=] { return madeFor<T>(*plan, interpolation); });
}

// Builds that count paths also watch that no run takes more of its scratch than the query tells for its tile.
template <typename Plan>
void checkScratch([[maybe_unused]] const Plan& plan, [[maybe_unused]] LumiSize tile,
                  [[maybe_unused]] int channels, [[maybe_unused]] const Lum8u* buffer,
                  [[maybe_unused]] const Lum8u* end) {
#ifdef LUMI_COUNT_PATHS
  if (end - buffer > scratchBytes(plan, tile, channels)) std::abort();
#endif
}

// A part of one axis of the destination.
struct Span {
  int first, end;

  int count() const { return end - first; }
};

template <typename T, typename Layout>
LumStatus resizeNearest(const T* src, int srcStep, T* dst, int dstStep, LumiPoint dstOffset, LumiSize dstSize,
                        const LumiResizeSpec* object, Lum8u* buffer) {
  const ResizePlan* const plan = planAt(object);
  if (LumStatus fault =
          runFault(src, srcStep, dst, dstStep, dstOffset, dstSize, object, buffer, plan, lumInterpNearest))
    return fault;
  constexpr size_t pixelBytes = kPixelBytes<T, Layout>;
  const LumiSize tile = clipped(*plan, dstOffset, dstSize);
  const auto rowBytes = static_cast<size_t>(tile.width) * pixelBytes;
  const PickedColumns columns(plan->horizontal.index + dstOffset.x,
                              sourceStart(plan->horizontal, dstOffset.x), static_cast<size_t>(tile.width),
                              pixelBytes, buffer);
  checkScratch(*plan, tile, Layout::kStored, buffer,
               buffer + PickedColumns::scratchBytes(static_cast<size_t>(tile.width), pixelBytes));
  const auto from = rows(src, srcStep);
  const auto to = rows(dst, dstStep);
  const int32_t* const index = plan->vertical.index + dstOffset.y;
  const int32_t origin = sourceStart(plan->vertical, dstOffset.y);
  // Rows that overlap one another are not copied, for the later one has changed the earlier; nor long ones
  // that are picked as fast, for their stores are still under way.
  constexpr size_t kStoresUnderWay = 4096;
  const bool apart = static_cast<size_t>(std::abs(int64_t{dstStep})) >= rowBytes;
  const bool copies = apart && !(columns.isDoubled() && rowBytes > kStoresUnderWay);
  for (int y = 0; y < tile.height; ++y) {
    if (copies && y > 0 && index[y] == index[y - 1]) {
      countPath(Path::NearestRowCopied);
      copyRow(to.row(y - 1), to.row(y), rowBytes);
    } else {
      columns.pick(from.row(index[y] - origin), to.row(y));
    }
  }
  return aboveWhole(*plan, dstSize);
}

// A tile of a linear resize. Its middle is blended in two stages; rows and columns around it, whose taps
// would fall outside the source, in one from the nearest source row or column.
template <typename T, int channels, typename Plan>
class LinearTile {
 public:
  LinearTile(const Plan& plan, const T* src, int srcStep, T* dst, int dstStep, LumiPoint offset,
             LumiSize size)
      : plan_(plan),
        src_(rows(src, srcStep)),
        dst_(rows(dst, dstStep)),
        offset_(offset),
        originY_(sourceStart(plan.vertical, offset.y)),
        middleX_{0, size.width},
        middleY_{0, size.height},
        size_(size) {
    columns_ = {plan.horizontal.index, sourceStart(plan.horizontal, offset.x),
                plan.horizontal.template weights<BlendWeight<T>>(), 0};
    columns_ = columns_.from(static_cast<size_t>(offset.x), static_cast<size_t>(size.width));
  }

  void run(BorderMode border, Lum8u* buffer) {
    if (!border.isAllInMemory()) runEdges(border);
    if (middleX_.count() <= 0 || middleY_.count() <= 0) return;
    if constexpr (kHalvesRows<T, channels>) {
      if (hasRatio(2, 1)) return runHalved();
    }
    if constexpr (kDoublesRows<T, channels>) {
      if (hasRatio(1, 2)) return runDoubled(buffer);
    }
    runMiddle(buffer);
  }

 private:
  using Element = BlendElement<T>;
  using Blender = ColumnBlender<T, channels>;
  static constexpr int kPixel = channels * static_cast<int>(sizeof(T));

  // On both axes.
  bool hasRatio(int src, int dst) const {
    const auto has = [=](const auto& axis) { return axis.reducedSrc == src && axis.reducedDst == dst; };
    return has(plan_.horizontal) && has(plan_.vertical);
  }

  // What is left of a tile's axis between the positions that lie before the first source position and those
  // at or beyond the last one.
  template <typename Axis>
  static Span middleOf(const Axis& axis, int offset, int size, bool lowInMemory, bool highInMemory) {
    const int behind = axis.dstSize - offset - size;
    const int low = lowInMemory ? 0 : std::min(std::max(axis.low - offset, 0), size);
    const int high = highInMemory ? 0 : std::min(std::max(axis.high - behind, 0), size);
    return {low, size - high};
  }

  const Byte* sourceRow(int row) const { return src_.row(row - originY_); }
  const Byte* sourcePixel(int row, int column) const {
    return sourceRow(row) + static_cast<ptrdiff_t>(column - columns_.origin) * kPixel;
  }
  Byte* pixel(int y, int x) const { return dst_.row(y) + static_cast<ptrdiff_t>(x) * kPixel; }
  int rowIndex(int y) const { return plan_.vertical.index[offset_.y + y]; }
  BlendWeight<T> rowWeight(int y) const {
    return plan_.vertical.template weights<BlendWeight<T>>()[offset_.y + y];
  }

  void runEdges(BorderMode border) {
    middleX_ = middleOf(plan_.horizontal, offset_.x, size_.width, border.isInMemory(lumiBorderInMemoryLeft),
                        border.isInMemory(lumiBorderInMemoryRight));
    middleY_ = middleOf(plan_.vertical, offset_.y, size_.height, border.isInMemory(lumiBorderInMemoryTop),
                        border.isInMemory(lumiBorderInMemoryBottom));
    for (int y = 0; y < middleY_.first; ++y) edgeRow(y, 0);
    for (int y = middleY_.end; y < size_.height; ++y) edgeRow(y, plan_.vertical.srcSize - 1);
    if (middleX_.count() == size_.width) return;
    for (int y = middleY_.first; y < middleY_.end; ++y)
      edgeColumns(y, rowIndex(y), rowIndex(y) + 1, rowWeight(y));
  }

  void edgeRow(int y, int row) {
    edgeColumns(y, row, row, 0);
    if (middleX_.count() > 0) Blender::blendOnce(sourceRow(row), middleColumns(), pixel(y, middleX_.first));
  }

  // The columns on both sides of the middle.
  void edgeColumns(int y, int row, int nextRow, BlendWeight<T> weight) {
    const auto repeat = [&](int column, int first, int end) {
      if (first < end)
        Blender::repeatBlend(sourcePixel(row, column), sourcePixel(nextRow, column), weight, pixel(y, first),
                             static_cast<size_t>(end - first));
    };
    repeat(0, 0, middleX_.first);
    repeat(plan_.horizontal.srcSize - 1, middleX_.end, size_.width);
  }

  TileColumns<T> middleColumns() const {
    return columns_.from(static_cast<size_t>(middleX_.first), static_cast<size_t>(middleX_.count()));
  }

  void runHalved() {
    const int column = middleColumns().index[0];
    for (int y = middleY_.first; y < middleY_.end; ++y)
      halveRows<T, channels>(sourcePixel(rowIndex(y), column), sourcePixel(rowIndex(y) + 1, column),
                             pixel(y, middleX_.first), static_cast<size_t>(middleX_.count()));
  }

  // Between two source rows lie two rows, an odd and an even one. A tile may begin or end between them: then
  // the other one goes to the scratch.
  void runDoubled(Lum8u* scratch) {
    const int column = middleColumns().index[0];
    checkScratch(plan_, size_, channels, scratch,
                 scratch + static_cast<ptrdiff_t>(middleX_.count()) * kPixel);
    const size_t phase = (offset_.x + middleX_.first) % 2 == 0 ? 1 : 0;
    for (int y = middleY_.first; y < middleY_.end; ++y) {
      const int row = rowIndex(y);
      Byte *upper = scratch, *lower = scratch;
      if ((offset_.y + y) % 2 == 1) {
        upper = pixel(y, middleX_.first);
        if (y + 1 < middleY_.end) lower = pixel(++y, middleX_.first);
      } else {
        lower = pixel(y, middleX_.first);
      }
      doubleRows<T, channels>(sourcePixel(row, column), sourcePixel(row + 1, column), upper, lower, phase,
                              static_cast<size_t>(middleX_.count()));
    }
  }

  // Two rows of blended columns are kept; each source row is blended once for all rows that need it.
  void runMiddle(Lum8u* buffer) {
    const auto samples = static_cast<size_t>(middleX_.count()) * channels;
    Tables tables(buffer);
    Element* upper = tables.take<Element>(static_cast<int64_t>(samples + kRowSlack<T>), 32);
    Element* lower = tables.take<Element>(static_cast<int64_t>(samples + kRowSlack<T>), 32);
    const TileColumns<T> columns = middleColumns();
    Lum8u* const blocks = tables.take<Lum8u>(static_cast<int64_t>(Blender::scratchBytes(columns.count)));
    checkScratch(plan_, size_, channels, buffer, tables.take<Lum8u>(0));
    const Blender blender(columns, blocks);
    int64_t held = INT64_MIN;  // the source row in `upper`; the next one is in `lower`
    for (int y = middleY_.first; y < middleY_.end; ++y) {
      const int row = rowIndex(y);
      if (row == held + 1) {
        std::swap(upper, lower);
        blender.blend(sourceRow(row + 1), lower);
      } else if (row != held) {
        blender.blendTwo(sourceRow(row), upper, sourceRow(row + 1), lower);
      }
      held = row;
      blendRows<T>(upper, lower, rowWeight(y), pixel(y, middleX_.first), samples);
    }
  }

  const Plan& plan_;
  Rows<const Byte> src_;
  Rows<Byte> dst_;
  LumiPoint offset_;
  int originY_;  // the source row of the first pixel given
  Span middleX_, middleY_;
  LumiSize size_;
  TileColumns<T> columns_;  // of the whole tile
};

template <typename T, typename Layout, typename Opaque>
LumStatus resizeLinear(const T* src, int srcStep, T* dst, int dstStep, LumiPoint dstOffset, LumiSize dstSize,
                       LumiBorderType border, const T*, const Opaque* object, Lum8u* buffer) {
  const auto* const plan = planAt(object);
  if (LumStatus fault =
          runFault(src, srcStep, dst, dstStep, dstOffset, dstSize, object, buffer, plan, lumInterpLinear))
    return fault;
  if (LumStatus fault = borderTaken(BorderMode(border))) return fault;
  LinearTile<T, Layout::kStored, std::decay_t<decltype(*plan)>>(*plan, src, srcStep, dst, dstStep, dstOffset,
                                                                clipped(*plan, dstOffset, dstSize))
      .run(BorderMode(border), buffer);
  return aboveWhole(*plan, dstSize);
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/resize.inc"
