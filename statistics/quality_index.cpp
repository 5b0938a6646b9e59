// SPDX-License-Identifier: MIT
// The universal image quality index.
#include "lumi/quality_index.h"

#include <cstring>
#include <type_traits>

#include "dispatch/sum.hpp"
#include "frame/check.hpp"
#include "frame/layout.hpp"
#include "frame/rows.hpp"
#include "frame/scratch.hpp"
#include "kernels/statistics/quality_index.hpp"

namespace lumi {
namespace {

using namespace check;

constexpr double kLeastDenominator = 0x1p-23;
constexpr Lum32u kNoIndex = 0xFFC00000;

template <typename T, typename Layout>
void meansOf(const T* src, int srcStep, LumiSize roi, Lum64f* means) {
  constexpr int fast = 1;
  if constexpr (std::is_same_v<T, Lum32f>)
    call::MeanR<T, Layout>(src, srcStep, roi, means, fast);
  else
    call::MeanR<T, Layout>(src, srcStep, roi, means);
}

// Sums of products and squares of differences from the means, over an image.
struct Similarity {
  Lum32f covariance = 0, variance1 = 0, variance2 = 0;

  void addRow(const RowProducts& row) {
    covariance += row.product;
    variance1 += row.norm1 * row.norm1;
    variance2 += row.norm2 * row.norm2;
  }
  // Whether there is an index.
  bool index(Lum64f mean1, Lum64f mean2, Lum32f* result) const {
    const Lum64f denominator = Lum64f{variance1 + variance2} * (mean1 * mean1 + mean2 * mean2);
    if (denominator >= kLeastDenominator) {
      const auto value = static_cast<Lum32f>(mean1 * mean2 * (Lum64f{covariance} * 4) / denominator);
      std::memcpy(result, &value, sizeof value);
      return true;
    }
    std::memcpy(result, &kNoIndex, sizeof kNoIndex);
    return false;
  }
};

template <typename T, int channels>
Similarity similarityOf(SourceRows src1, SourceRows src2, LumiSize roi, const Lum64f* means1,
                        const Lum64f* means2, float* scratch) {
  const auto width = static_cast<size_t>(roi.width),
             room = static_cast<size_t>(roundedUp(roi.width, kCentredBlock));
  float *const row1 = scratch, *const row2 = scratch + room;
  Similarity sums;
  for (int y = 0; y < roi.height; ++y) {
    centredRow<T, channels>(src1.row(y), width, static_cast<float>(*means1), row1, room);
    centredRow<T, channels>(src2.row(y), width, static_cast<float>(*means2), row2, room);
    sums.addRow(rowProducts(row1, row2, room));
  }
  return sums;
}

template <typename T, typename D, typename Layout>
LumStatus qualityIndex(const T* src1, int src1Step, const T* src2, int src2Step, LumiSize roi, D* quality) {
  if (LumStatus fault = firstFault(pointers(src1, src2, quality), size(roi), steps(src1Step, src2Step)))
    return fault;
  Lum64f means1[Layout::kUsed], means2[Layout::kUsed];
  meansOf<T, Layout>(src1, src1Step, roi, means1);
  meansOf<T, Layout>(src2, src2Step, roi, means2);
  const Scratch scratch(2 * roundedUp(roi.width, kCentredBlock) * static_cast<int>(sizeof(float)));
  if (!scratch) return lumStatusNoMemory;
  bool all = true;
  for (int c = 0; c < Layout::kUsed; ++c) {
    const Similarity similarity =
        similarityOf<T, Layout::kStored>(rows(src1 + c, src1Step), rows(src2 + c, src2Step), roi, means1 + c,
                                         means2 + c, static_cast<float*>(scratch.data()));
    all &= similarity.index(means1[c], means2[c], quality + c);
  }
  return all ? lumStatusOk : lumStatusZeroQualityDenominator;
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/quality_index.inc"
