// SPDX-License-Identifier: MIT
// Medians of lines, crosses and weighted squares, of colours, and of three planes.
#include "lumi/median_shapes.h"

#include <algorithm>

#include "filters/window_walk.hpp"
#include "frame/check.hpp"
#include "frame/rows.hpp"
#include "kernels/filters/median_colour.hpp"
#include "kernels/filters/median_filters.hpp"
#include "kernels/filters/median_planes.hpp"
#include "lumi/copy.h"

namespace lumi {
namespace {

using namespace check;

template <LumiMaskSize three, LumiMaskSize five>
constexpr LumStatus maskOf(LumiMaskSize mask) {
  return mask == three || mask == five ? lumStatusOk : lumStatusBadMaskSize;
}

template <MedianShape ofThree, LumiMaskSize three, MedianShape ofFive, LumiMaskSize five, typename T,
          typename Layout>
LumStatus filterMedian(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, LumiMaskSize mask) {
  if (LumStatus fault =
          firstFault(pointers(src, dst), size(roi), steps(srcStep, dstStep), maskOf<three, five>(mask)))
    return fault;
  filterWindows(medianFilter<T>(mask == three ? ofThree : ofFive), rows(src, srcStep), rows(dst, dstStep),
                roi, kShape<Layout>);
  return lumStatusOk;
}

template <typename T, typename Layout, int side>
void filterColours(SourceRows src, TargetRows dst, LumiSize roi) {
  using Median = ColourMedian<T, side>;
  constexpr int reach = side / 2, strip = static_cast<int>(Median::kMostPixels);
  constexpr ptrdiff_t pixel = kPixelBytes<T, Layout>;
  for (int x = 0; x < roi.width; x += strip) {
    const auto pixels = static_cast<size_t>(std::min(strip, roi.width - x));
    Median median;
    const auto covered = [&](int y) { return src.row(y) + (x - reach) * pixel; };
    const auto take = [&](int y) { median.take(covered(y), pixel, pixels); };
    for (int y = -reach; y < reach; ++y) take(y);
    for (int y = 0; y < roi.height; ++y) {
      take(y + reach);
      alignas(32) typename Median::Sum places[Median::kMostPixels];
      median.results(places, pixels);
      const Byte* first[side * side];  // the window of the strip's first pixel
      for (int i = 0; i < side * side; ++i) first[i] = covered(y - reach + i / side) + i % side * pixel;
      Byte* to = dst.row(y) + x * pixel;
      for (size_t i = 0; i < pixels; ++i, to += pixel)
        std::memcpy(to, first[static_cast<size_t>(places[i])] + static_cast<ptrdiff_t>(i) * pixel,
                    3 * sizeof(T));
    }
  }
}

template <typename T, typename Layout>
LumStatus filterMedianColor(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, LumiMaskSize mask) {
  if (LumStatus fault = firstFault(pointers(src, dst), size(roi), steps(srcStep, dstStep),
                                   maskOf<lumiMask3x3, lumiMask5x5>(mask)))
    return fault;
  if (mask == lumiMask3x3)
    filterColours<T, Layout, 3>(rows(src, srcStep), rows(dst, dstStep), roi);
  else
    filterColours<T, Layout, 5>(rows(src, srcStep), rows(dst, dstStep), roi);
  return lumStatusOk;
}

// From nine on, centres are more than half of all samples.
template <typename T, typename Layout>
LumStatus filterMedianWeighted(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, int weight) {
  if (LumStatus fault = firstFault(pointers(src, dst), size(roi), steps(srcStep, dstStep),
                                   weight < 1 ? lumStatusBadCenterWeight : lumStatusOk))
    return fault;
  const bool isEven = weight % 2 == 0;
  const int odd = isEven ? weight - 1 : weight;
  if (odd >= 9) {
    lumiCopy_8u_C1R(src, srcStep, dst, dstStep, roi);
  } else {
    constexpr MedianShape shapes[] = {MedianShape::Square3, MedianShape::Centre3, MedianShape::Centre5,
                                      MedianShape::Centre7};
    filterWindows(medianFilter<T>(shapes[odd / 2]), rows(src, srcStep), rows(dst, dstStep), roi,
                  kShape<Layout>);
  }
  return isEven ? lumStatusEvenMedianWeight : lumStatusOk;
}

LumStatus planesAreThere(const Lum8u* const* planes) { return planePointers<3>(planes); }

template <typename T, typename From, typename To>
LumStatus medianPlanes(const T* const* src, int srcStep, T* dst, int dstStep, LumiSize roi) {
  if (LumStatus fault = firstFault(pointers(src, dst), size(roi), [=] { return planesAreThere(src); }))
    return fault;
  runFused(
      roi, [](const auto& planes, TargetRows d, Extent samples) { medianOfPlanes(planes, d, samples); },
      planeRows<3>(src, srcStep), pixelRows<To>(dst, dstStep));
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/median_shapes.inc"
