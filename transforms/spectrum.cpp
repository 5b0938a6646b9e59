// SPDX-License-Identifier: MIT
#include "transforms/spectrum.hpp"

#include <cstring>

#include "frame/object.hpp"
#include "transforms/image_rows.hpp"

namespace lumi {
namespace {

using namespace transforms;

// Points of short rows, and what they are made of, are on the stack: the scratch of short transforms of
// power-of-two lengths has no room for eight rows.
constexpr size_t kShortRow = 64;

class RowRunner {
 public:
  RowRunner(const SpectrumPlan& plan, bool areReal, float* scratch)
      : plan_(plan), areReal_(areReal), scratch_(scratch) {}

  // Rows that are transformed at once.
  size_t atOnce() const {
    return plan_.method == RowMethod::single ? 1 : plan_.method == RowMethod::odd ? kMostRowsAtOnce : kLanes;
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

// Planes of channels are on the stack where rows are short, and before the scratch of the rows otherwise.
template <typename Layout>
void transformChannelRows(const SpectrumPlan& plan, SourceRows src, TargetRows dst, float* scratch) {
  alignas(64) float shortPlanes[kMostRowsAtOnce * 2 * kShortRow];
  const bool isSingle = plan.method == RowMethod::single, isShort = !isSingle && plan.width <= 2 * kShortRow;
  const size_t planes = isSingle ? Layout::kStored : kMostRowsAtOnce;
  const auto room = static_cast<size_t>(roundedUp(static_cast<int64_t>(planes * plan.width), 16));
  RowRunner runner(plan, true, scratch + (isShort ? 0 : room));
  runChannelRows<Layout>(runner, plan.width, plan.height, src, dst, isShort ? shortPlanes : scratch);
}

void transformRows(const SpectrumPlan& plan, bool areReal, SourceRows src, TargetRows dst, float* scratch) {
  RowRunner runner(plan, areReal, scratch);
  runImageRows(runner, plan.height, src, dst);
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
