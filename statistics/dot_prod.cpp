// SPDX-License-Identifier: MIT
// Dot products of images, for each channel, and of columns of rows.
#include "lumi/dot_prod.h"

#include <type_traits>

#include "frame/check.hpp"
#include "frame/results.hpp"
#include "frame/rows.hpp"
#include "kernels/statistics/dot_prod.hpp"

namespace lumi {
namespace {

using namespace check;

LumStatus zeroSteps(int a, int b) { return a == 0 || b == 0 ? lumStatusBadSize : lumStatusOk; }

template <typename T, typename D, typename Layout, typename... Hint>
LumStatus dotProduct(const T* src1, int src1Step, const T* src2, int src2Step, LumiSize roi, D* product,
                     Hint... hint) {
  if (LumStatus fault = firstFault(pointers(src1, src2, product), size(roi), zeroSteps(src1Step, src2Step)))
    return fault;
  constexpr bool mayBeFast = std::is_same_v<T, float> && (Layout::kStored == 3 || Layout::kStored == 1);
  auto kernel = dotProducts<T, double, Layout::kStored>;
  if constexpr (mayBeFast)
    if (((hint != 2) && ...)) kernel = dotProducts<T, float, Layout::kStored>;
  ChannelTotals<double> products;
  runFused(
      roi, [&](SourceRows a, SourceRows b, Extent pixels) { products = kernel(a, b, pixels); },
      pixelRows<Layout>(src1, src1Step), pixelRows<Layout>(src2, src2Step));
  storeChannels<Layout>(product, products);
  return lumStatusOk;
}

template <typename T>
LumStatus dotProductOfColumns(const T* const* rows, const T* weights, int count, T* dst, int width) {
  const auto nullRow = [=] {
    for (int k = 0; k < count; ++k)
      if (rows[k] == nullptr) return lumStatusNullPointer;
    return lumStatusOk;
  };
  if (LumStatus fault = firstFault(pointers(rows, weights, dst), size({width, count}), nullRow)) return fault;
  addWeightedRows(rows, weights, static_cast<size_t>(count), dst, static_cast<size_t>(width));
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/dot_prod.inc"
