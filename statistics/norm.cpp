// SPDX-License-Identifier: MIT
// Norms of images, of the differences of two, and of the differences beside those of the second.
#include "lumi/norm.h"

#include <algorithm>
#include <cfloat>
#include <type_traits>

#include "dispatch/sum.hpp"
#include "frame/check.hpp"
#include "frame/results.hpp"
#include "frame/rows.hpp"
#include "kernels/statistics/norm.hpp"

namespace lumi {
namespace {

using namespace check;

// Calls totalOf with a number of the type in which totals are made. Without a hint, floats are compared and
// not added up.
template <typename T, typename TotalOf, typename... Hint>
auto inTotals(TotalOf totalOf, [[maybe_unused]] Hint... hint) {
  if constexpr (!std::is_same_v<T, Lum32f>)
    return totalOf(uint64_t());
  else
    return ((hint == 2) || ...) ? totalOf(double()) : totalOf(float());
}

template <Norm norm, typename Layout>
void storeNorms(const NormTotals& totals, Lum64f* at) {
  NormTotals norms = totals;
  if constexpr (norm == Norm::L2)
    for (int c = 0; c < Layout::kUsed; ++c) norms.of[c] = squareRootOf(totals.of[c]);
  storeChannels<Layout>(at, norms);
}

template <Norm norm, typename T, typename Layout, typename... Hint>
NormTotals totalsOf(const T* src, int srcStep, LumiSize roi, Hint... hint) {
  return inTotals<T>(
      [=](auto total) {
        const auto image = pixelRows<Layout>(src, srcStep);
        return normOfImage<norm, T, decltype(total), Layout::kStored>(image, fusedExtent(roi, image));
      },
      hint...);
}

// Bytes of one channel that are wider are done in strips, each of which has a root that is rounded.
constexpr int kStripWidth = 32768;

Lum64f normOfStrips(const Lum8u* src, int srcStep, LumiSize roi) {
  Lum64f squares = 0;
  for (int64_t x = 0; x < roi.width; x += kStripWidth) {
    const LumiSize strip{std::min(kStripWidth, static_cast<int>(roi.width - x)), roi.height};
    const Lum64f norm = squareRootOf(totalsOf<Norm::L2, Lum8u, C1>(src + x, srcStep, strip).of[0]);
    squares += norm * norm;
  }
  return squareRootOf(squares);
}

template <Norm norm, typename T>
LumStatus faultOf(const T* src, int srcStep, LumiSize roi, const Lum64f* result) {
  if constexpr (std::is_same_v<T, Lum16u> && norm == Norm::L2)
    return firstFault(pointers(src, result), steps(srcStep), size(roi));
  else if constexpr (std::is_same_v<T, Lum16u> && norm == Norm::L1)
    return firstFault(steps(srcStep), pointers(src, result), size(roi));
  else
    return firstFault(pointers(src, result), size(roi), steps(srcStep));
}

template <Norm norm, typename T, typename Layout, typename... Hint>
LumStatus normOf(const T* src, int srcStep, LumiSize roi, Lum64f* result, Hint... hint) {
  if (LumStatus fault = faultOf<norm>(src, srcStep, roi, result)) return fault;
  if constexpr (norm == Norm::L1 && std::is_unsigned_v<T>) {
    return call::SumR<T, Layout>(src, srcStep, roi, result);
  } else {
    if constexpr (norm == Norm::L2 && std::is_same_v<T, Lum8u> && Layout::kStored == 1)
      if (roi.width > kStripWidth) {
        storeChannels<Layout>(result, NormTotals{{normOfStrips(src, srcStep, roi)}});
        return lumStatusOk;
      }
    storeNorms<norm, Layout>(totalsOf<norm, T, Layout>(src, srcStep, roi, hint...), result);
    return lumStatusOk;
  }
}

template <typename T>
LumStatus faultOf(const T* src1, int src1Step, const T* src2, int src2Step, LumiSize roi,
                  const Lum64f* result) {
  return firstFault(pointers(src1, src2, result), size(roi), steps(src1Step, src2Step));
}

template <Norm norm, typename T, typename Layout, typename... Hint>
LumStatus normOfDifference(const T* src1, int src1Step, const T* src2, int src2Step, LumiSize roi,
                           Lum64f* result, Hint... hint) {
  if (LumStatus fault = faultOf(src1, src1Step, src2, src2Step, roi, result)) return fault;
  const NormTotals totals = inTotals<T>(
      [=](auto total) {
        const auto a = pixelRows<Layout>(src1, src1Step), b = pixelRows<Layout>(src2, src2Step);
        return normOfDifferences<norm, T, decltype(total), Layout::kStored>(a, b, fusedExtent(roi, a, b));
      },
      hint...);
  storeNorms<norm, Layout>(totals, result);
  return lumStatusOk;
}

// Divides where every channel may be divided. Sums of squares are tested in place of their roots: those of
// floats are 0 or not below 2^-298, so that both are 0 or neither is below the limit.
template <int channels>
LumStatus divide(NormTotals& totals, const NormTotals& by) {
  const auto isBelowLimit = [](Lum64f x) { return x < DBL_MIN; };
  if (std::any_of(by.of, by.of + channels, isBelowLimit)) return lumStatusDivideByZeroWarning;
  for (int c = 0; c < channels; ++c) totals.of[c] /= by.of[c];
  return lumStatusOk;
}

template <Norm norm, typename T, typename Layout, typename... Hint>
LumStatus relativeNormOf(const T* src1, int src1Step, const T* src2, int src2Step, LumiSize roi,
                         Lum64f* result, Hint... hint) {
  if (LumStatus fault = faultOf(src1, src1Step, src2, src2Step, roi, result)) return fault;
  RelativeTotals totals = inTotals<T>(
      [=](auto total) {
        const auto a = pixelRows<Layout>(src1, src1Step), b = pixelRows<Layout>(src2, src2Step);
        return relativeNorm<norm, T, decltype(total), Layout::kStored>(a, b, fusedExtent(roi, a, b));
      },
      hint...);
  const LumStatus status = divide<Layout::kUsed>(totals.differences, totals.ofSecond);
  storeNorms<norm, Layout>(totals.differences, result);
  return status;
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/norm.inc"
