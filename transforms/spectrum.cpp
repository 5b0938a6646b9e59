// SPDX-License-Identifier: MIT
#include "transforms/spectrum.hpp"

#include <cstring>

#include "kernels/planes.hpp"
#include "kernels/transforms/colours.hpp"

namespace lumi {
namespace {

using namespace transforms;

// Points of short rows, and their packed spectra beside them, are on the stack: the scratch of short transforms has no
// room for eight rows.
constexpr size_t kShortRow = 64;

class RowRunner {
 public:
  RowRunner(const SpectrumPlan& plan, bool areReal, float* scratch)
      : plan_(plan), areReal_(areReal), scratch_(scratch) {}

  // Rows that are transformed at once.
  int atOnce() const { return plan_.rowsAreLong ? 1 : static_cast<int>(kLanes); }

  // So many rows of samples, of any image.
  void run(const EightRows& rows) {
    if (plan_.width == 1) {
      const size_t bytes = (areReal_ ? 1 : 2) * sizeof(float);
      for (int i = 0; i < rows.count; ++i)
        if (rows.src[i] != rows.dst[i]) std::memcpy(rows.dst[i], rows.src[i], bytes);
    } else if (plan_.rowsAreLong) {
      for (int i = 0; i < rows.count; ++i) runLong(rows.src[i], rows.dst[i]);
    } else {
      runEight(rows);
    }
  }

 private:
  void runLong(const Byte* src, Byte* dst) {
    if (areReal_)
      transformRealRow(plan_.rows, plan_.inverse, plan_.rowScale, src, dst, scratch_);
    else
      transformRow(plan_.rows.half, plan_.inverse, plan_.rowScale, src, dst, scratch_);
  }
  void runEight(EightRows rows) {
    // Lanes without a row take the first one, and leave it nowhere.
    for (size_t i = static_cast<size_t>(rows.count); i < kLanes; ++i) rows.src[i] = rows.src[0];
    if (areReal_)
      transformEightRealRows(plan_.rows, plan_.inverse, plan_.rowScale, rows, short_, nullptr);
    else
      transformEightRows(plan_.rows.half, plan_.inverse, plan_.rowScale, rows, short_, nullptr);
  }

  const SpectrumPlan& plan_;
  const bool areReal_;
  float* const scratch_;
  alignas(64) float short_[2 * kShortRow * kPointFloats];
};

void transformRows(const SpectrumPlan& plan, bool areReal, SourceRows src, TargetRows dst, float* scratch) {
  RowRunner runner(plan, areReal, scratch);
  const int height = static_cast<int>(plan.height);
  for (int y = 0; y < height; y += runner.atOnce()) {
    EightRows rows;
    rows.count = height - y < runner.atOnce() ? height - y : runner.atOnce();
    for (int i = 0; i < rows.count; ++i) {
      rows.src[i] = src.row(y + i);
      rows.dst[i] = dst.row(y + i);
    }
    runner.run(rows);
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
  constexpr int kStored = Layout::kStored, kUsed = Layout::kUsed;
  alignas(64) float shortPlanes[kLanes * 2 * kShortRow];
  float* const planes = plan.rowsAreLong ? scratch : shortPlanes;
  RowRunner runner(plan, true, scratch + (plan.rowsAreLong ? kStored * plan.width : 0));
  const int height = static_cast<int>(plan.height), atOnce = runner.atOnce() / kStored > 1 ? 2 : 1;
  for (int y = 0; y < height; y += atOnce) {
    const int count = height - y < atOnce ? height - y : atOnce;
    EightRows rows;
    rows.count = 0;
    Byte* plane[2][kStored];
    for (int i = 0; i < count; ++i) {
      for (int c = 0; c < kStored; ++c)
        plane[i][c] = reinterpret_cast<Byte*>(planes + static_cast<size_t>(i * kStored + c) * plan.width);
      splitRow<Layout>(src.row(y + i), plane[i], plan.width);
      for (int c = 0; c < kUsed; ++c) {
        rows.src[rows.count] = rows.dst[rows.count] = plane[i][c];
        ++rows.count;
      }
    }
    runner.run(rows);
    for (int i = 0; i < count; ++i) mergeRow<Layout>(plane[i], dst.row(y + i), plan.width);
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
