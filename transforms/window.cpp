// SPDX-License-Identifier: MIT
// Window functions, by which images are multiplied before a transform.
#include "lumi/window.h"

#include "frame/check.hpp"
#include "frame/layout.hpp"
#include "frame/rows.hpp"
#include "frame/scratch.hpp"
#include "transforms/window_tables.hpp"

namespace lumi {
namespace {

using namespace check;

LumStatus atLeastThree(LumiSize roi) {
  return roi.width < 3 || roi.height < 3 ? lumStatusBadSize : lumStatusOk;
}

template <typename T>
LumStatus faultOf(const T* src, int srcStep, const T* dst, int dstStep, LumiSize roi) {
  return firstFault(pointers(src, dst), atLeastThree(roi), steps(srcStep, dstStep));
}

// Room for so many floats, and for what is read or written behind the last ones.
Scratch floatsFor(int64_t count) {
  return Scratch((count + kWindowPadding) * static_cast<int64_t>(sizeof(float)));
}

template <typename Window, typename T, typename Layout>
LumStatus separable(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi) {
  if (LumStatus fault = faultOf(src, srcStep, dst, dstStep, roi)) return fault;
  const Scratch scratch = floatsFor(int64_t{roi.width} + roi.height);
  if (!scratch) return lumStatusNoMemory;
  auto* const ofRows = static_cast<float*>(scratch.data());
  float* const ofColumns = ofRows + roi.height;
  Window::fill(ofRows, roi.height);  // writes behind them, so that those of columns come second
  Window::fill(ofColumns, roi.width);
  windowRows<T>(rows(src, srcStep), rows(dst, dstStep), {static_cast<size_t>(roi.width), roi.height},
                ofColumns, ofRows);
  return lumStatusOk;
}

template <typename Window, typename T, typename Layout>
LumStatus separable(T* srcDst, int srcDstStep, LumiSize roi) {
  return separable<Window, T, Layout>(srcDst, srcDstStep, srcDst, srcDstStep, roi);
}

// From both ends towards the middle: rows equally far from their end have the same factors.
template <typename Window, typename T, typename Layout>
LumStatus radial(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi) {
  if (LumStatus fault = faultOf(src, srcStep, dst, dstStep, roi)) return fault;
  const Scratch scratch = floatsFor(roi.width);
  if (!scratch) return lumStatusNoMemory;
  auto* const factors = static_cast<float*>(scratch.data());
  const auto columns = static_cast<size_t>(roi.width);
  const SourceRows from = rows(src, srcStep);
  const TargetRows to = rows(dst, dstStep);
  const auto apply = [&](int y, float ofRow) {
    windowRows<T>({from.row(y), srcStep}, {to.row(y), dstStep}, {columns, 1}, factors, &ofRow);
  };
  const float half = static_cast<float>(roi.width) / 2, halfHeight = static_cast<float>(roi.height) / 2;
  const float ratio = half / halfHeight, scale = 2 * Window::kFull / static_cast<float>(roi.width);
  for (int y = 0, last = roi.height - 1; y <= last; ++y, --last) {
    float ofRow = 1;
    if (y == 0) {
      Window::fill(factors, roi.width);
      ofRow = Window::kEdge;
    } else {
      const float dy = halfHeight - static_cast<float>(y);
      Window::radialFactors(factors, columns, {half, ratio * ratio * dy * dy, scale});
    }
    apply(y, ofRow);
    if (last > y) apply(last, ofRow);
  }
  return lumStatusOk;
}

template <typename Window, typename T, typename Layout>
LumStatus radial(T* srcDst, int srcDstStep, LumiSize roi) {
  return radial<Window, T, Layout>(srcDst, srcDstStep, srcDst, srcDstStep, roi);
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/window.inc"
