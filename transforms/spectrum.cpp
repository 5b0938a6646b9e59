// SPDX-License-Identifier: MIT
#include "transforms/spectrum.hpp"

#include <algorithm>
#include <cstring>

#include "frame/object.hpp"
#include "kernels/planes.hpp"
#include "kernels/transforms/colours.hpp"

namespace lumi {
namespace {

using namespace transforms;

// Points of short rows, and what they are made of, are on the stack: the scratch of short transforms of
// power-of-two lengths has no room for eight rows.
constexpr size_t kShortRow = 64;

constexpr size_t kMostRows = 2 * kLanes;

class RowRunner {
 public:
  RowRunner(const SpectrumPlan& plan, bool areReal, float* scratch)
      : plan_(plan), areReal_(areReal), scratch_(scratch) {}

  // Rows that are transformed at once.
  size_t atOnce() const {
    return plan_.method == RowMethod::single ? 1 : plan_.method == RowMethod::odd ? kMostRows : kLanes;
  }

  // At most as many rows, of any image.
  void run(const Byte* const* src, Byte* const* dst, size_t count) {
    if (plan_.width == 1) {
      const size_t bytes = (areReal_ ? 1 : 2) * sizeof(float);
      for (size_t i = 0; i < count; ++i)
        if (src[i] != dst[i]) std::memcpy(dst[i], src[i], bytes);
    } else if (plan_.method == RowMethod::single) {
      runSingle(*src, *dst);
    } else {
      runSideBySide(src, dst, count);
    }
  }

 private:
  void runSingle(const Byte* src, Byte* dst) {
    if (areReal_)
      transformRealRow(plan_.rows, plan_.inverse, plan_.rowScale, src, dst, scratch_);
    else
      transformRow(plan_.rows.half, plan_.inverse, plan_.rowScale, src, dst, scratch_);
  }
  void runSideBySide(const Byte* const* src, Byte* const* dst, size_t count) {
    const Transform& transform = plan_.rows.half;
    const bool isShort = transform.length <= kShortRow && transform.localFloats() == 0;
    float* const points = isShort ? short_ : scratch_;
    float* const local = points + 2 * transform.length * kPointFloats;
    if (plan_.method == RowMethod::odd)
      transformOddRealRows(transform, plan_.inverse, plan_.rowScale, every(2, 0, src, dst, count),
                           every(2, 1, src, dst, count), points, local);
    else if (areReal_)
      transformEightRealRows(plan_.rows, plan_.inverse, plan_.rowScale, every(1, 0, src, dst, count), points,
                             local);
    else
      transformEightRows(transform, plan_.inverse, plan_.rowScale, every(1, 0, src, dst, count), points,
                         local);
  }
  // Lanes without a row take the first one, and leave it nowhere.
  static EightRows every(size_t nth, size_t from, const Byte* const* src, Byte* const* dst, size_t count) {
    EightRows rows = {};
    for (size_t i = from; i < count; i += nth, ++rows.count) {
      rows.src[rows.count] = src[i];
      rows.dst[rows.count] = dst[i];
    }
    for (size_t i = static_cast<size_t>(rows.count); i < kLanes; ++i) rows.src[i] = src[0];
    return rows;
  }

  const SpectrumPlan& plan_;
  const bool areReal_;
  float* const scratch_;
  alignas(64) float short_[2 * kShortRow * kPointFloats];
};

void transformRows(const SpectrumPlan& plan, bool areReal, SourceRows src, TargetRows dst, float* scratch) {
  RowRunner runner(plan, areReal, scratch);
  const Byte* from[kMostRows];
  Byte* to[kMostRows];
  for (size_t y = 0; y < plan.height; y += runner.atOnce()) {
    const size_t count = std::min(runner.atOnce(), plan.height - y);
    for (size_t i = 0; i < count; ++i) {
      from[i] = src.row(static_cast<int>(y + i));
      to[i] = dst.row(static_cast<int>(y + i));
    }
    runner.run(from, to, count);
  }
}

template <typename Layout>
void splitRow(const Byte* row, Byte* const* planes, size_t width) {
  PlaneRows<Byte, Layout::kStored> to{};
  for (size_t c = 0; c < Layout::kStored; ++c) to.first[c] = planes[c];
  splitRows<sizeof(float), Layout::kStored>({row, 0}, to, {width, 1}, false);
}

template <typename Layout>
void mergeRow(Byte* const* planes, Byte* row, size_t width) {
  if constexpr (Layout::kUsed == Layout::kStored) {
    PlaneRows<const Byte, Layout::kStored> from{};
    for (size_t c = 0; c < Layout::kStored; ++c) from.first[c] = planes[c];
    mergeRows<sizeof(float), Layout::kStored>(from, {row, 0}, {width, 1}, false);
  } else {
    mergeColours(planes[0], planes[1], planes[2], row, width);
  }
}

// Channels as planes of rows: of as many rows as fill the lanes.
template <typename Layout>
void transformChannelRows(const SpectrumPlan& plan, SourceRows src, TargetRows dst, float* scratch) {
  constexpr size_t kStored = Layout::kStored, kUsed = Layout::kUsed;
  alignas(64) float shortPlanes[kMostRows * 2 * kShortRow];
  const bool isSingle = plan.method == RowMethod::single, isShort = !isSingle && plan.width <= 2 * kShortRow;
  // Planes are before the scratch of the rows, on a boundary.
  const size_t room = roundedUp(static_cast<int64_t>((isSingle ? kStored : kMostRows) * plan.width), 16);
  RowRunner runner(plan, true, scratch + (isShort ? 0 : room));
  float* const planes = isShort ? shortPlanes : scratch;
  const size_t atOnce = isSingle ? 1 : runner.atOnce() / kStored;
  for (size_t y = 0; y < plan.height; y += atOnce) {
    const size_t count = std::min(atOnce, plan.height - y);
    Byte* plane[kMostRows];
    Byte* used[kMostRows];
    size_t lanes = 0;
    for (size_t i = 0; i < count; ++i) {
      for (size_t c = 0; c < kStored; ++c)
        plane[i * kStored + c] = reinterpret_cast<Byte*>(planes + (i * kStored + c) * plan.width);
      splitRow<Layout>(src.row(static_cast<int>(y + i)), plane + i * kStored, plan.width);
      for (size_t c = 0; c < kUsed; ++c) used[lanes++] = plane[i * kStored + c];
    }
    for (size_t i = 0; i < lanes; i += runner.atOnce())
      runner.run(used + i, used + i, std::min(runner.atOnce(), lanes - i));
    for (size_t i = 0; i < count; ++i)
      mergeRow<Layout>(plane + i * kStored, dst.row(static_cast<int>(y + i)), plan.width);
  }
}

template <typename Layout>
void transformRealRows(const SpectrumPlan& plan, SourceRows src, TargetRows dst, float* scratch) {
  if constexpr (Layout::kStored == 1)
    transformRows(plan, true, src, dst, scratch);
  else
    transformChannelRows<Layout>(plan, src, dst, scratch);
}

}  // namespace

void transformComplex(const SpectrumPlan& plan, SourceRows src, TargetRows dst, float* scratch) {
  const auto columns = [&](SourceRows from) {
    lumi::transforms::transformColumns<1, 1>(plan.columns, plan.inverse, plan.columnScale, from, dst,
                                             Columns::ofComplex(plan.width), scratch);
  };
  const SourceRows done{dst.first, dst.step};
  if (plan.height == 1) return transformRows(plan, false, src, dst, scratch);
  if (plan.inverse) {
    columns(src);
    transformRows(plan, false, done, dst, scratch);
  } else {
    transformRows(plan, false, src, dst, scratch);
    columns(done);
  }
}

template <typename Layout>
void transformPacked(const SpectrumPlan& plan, SourceRows src, TargetRows dst, float* scratch) {
  const auto columns = [&](SourceRows from) {
    transformColumns<Layout::kStored, Layout::kUsed>(plan.columns, plan.inverse, plan.columnScale, from, dst,
                                                     Columns::ofPacked(plan.width), scratch);
  };
  const SourceRows done{dst.first, dst.step};
  if (plan.height == 1) return transformRealRows<Layout>(plan, src, dst, scratch);
  if (plan.inverse) {
    columns(src);
    transformRealRows<Layout>(plan, done, dst, scratch);
  } else {
    transformRealRows<Layout>(plan, src, dst, scratch);
    columns(done);
  }
}

template void transformPacked<C1>(const SpectrumPlan&, SourceRows, TargetRows, float*);
template void transformPacked<C3>(const SpectrumPlan&, SourceRows, TargetRows, float*);
template void transformPacked<C4>(const SpectrumPlan&, SourceRows, TargetRows, float*);
template void transformPacked<AC4>(const SpectrumPlan&, SourceRows, TargetRows, float*);

}  // namespace lumi
