// SPDX-License-Identifier: MIT
// Sums along rows and along columns.
#include "lumi/sum_window.h"

#include "filters/box_mean.hpp"
#include "frame/check.hpp"
#include "frame/layout.hpp"
#include "kernels/filters/column_sums.hpp"

namespace lumi {
namespace {

using namespace check;

constexpr LumStatus place(int maskSize, int anchor) {
  if (maskSize < 1) return lumStatusBadMaskSize;
  return anchor < 0 || anchor >= maskSize ? lumStatusBadAnchor : lumStatusOk;
}

// Unsigned sums have 32 bits.
template <typename T>
constexpr int64_t kExactSum = std::is_same_v<T, Lum16u> ? 65537 : kExactArea<T>;

template <typename T, typename D, typename Layout>
LumStatus sums(const T* src, int srcStep, D* dst, int dstStep, LumiSize roi, LumiSize window,
               LumiPoint anchor) {
  if (roi.width < 1 || roi.height < 1) return lumStatusOk;
  WindowImage image{rows(src, srcStep), roi, Layout::kStored, sizeof(T), window, anchor};
  image.takeSurroundings();
  const auto plan = planOfSums<T, kExactSum<T>>(window, Layout::kStored, [](auto sum) {
    if constexpr (sizeof(T) == 2 && std::is_same_v<decltype(sum), uint16_t>)
      return WindowMean{};
    else
      return floatSum<T, decltype(sum)>();
  });
  WindowMemory scratch(MovingSums::bytes(image, plan.sums->sumBytes));
  if (!scratch) return lumStatusNoMemory;
  CoveredRows covered(image, nullptr);
  const MeanStore store{plan.mean, plan.sums->sumBytes, sizeof(D), Layout::kStored, Layout::kUsed};
  storeMeans(image, covered, MovingSums(*plan.sums, image, covered, scratch.data()), store,
             rows(dst, dstStep));
  return lumStatusOk;
}

template <typename T, typename D, typename Layout>
LumStatus sumWindowRow(const T* src, int srcStep, D* dst, int dstStep, LumiSize roi, int maskSize,
                       int anchor) {
  constexpr bool tellsOfSize = std::is_same_v<T, Lum16u>;
  if (LumStatus fault =
          firstFault(pointers(src, dst), tellsOfSize ? size(roi) : lumStatusOk, place(maskSize, anchor)))
    return fault;
  return sums<T, D, Layout>(src, srcStep, dst, dstStep, roi, {maskSize, 1}, {anchor, 0});
}

template <typename T, typename D, typename Layout>
LumStatus sumWindowColumn(const T* src, int srcStep, D* dst, int dstStep, LumiSize roi, int maskSize,
                          int anchor) {
  if (LumStatus fault = firstFault(pointers(src, dst), place(maskSize, anchor))) return fault;
  if (maskSize > kExactArea<T> || int64_t{roi.width} * Layout::kStored < int64_t{kLeastColumnSums} ||
      roi.height < 1)
    return sums<T, D, Layout>(src, srcStep, dst, dstStep, roi, {1, maskSize}, {0, anchor});
  const SourceRows image = rows(src, srcStep);
  columnSumRows<T>({image.row(-anchor), image.step}, maskSize, rows(dst, dstStep),
                   {static_cast<size_t>(roi.width) * Layout::kStored, roi.height});
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/sum_window.inc"
