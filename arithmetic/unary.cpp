// SPDX-License-Identifier: MIT
// Functions of one sample: absolute value, square, root, logarithm, exponential; sign and magnitude.
#include "lumi/unary.h"

#include <climits>

#include "arithmetic/scaling.hpp"
#include "frame/check.hpp"
#include "frame/layout.hpp"
#include "frame/rows.hpp"
#include "frame/zero.hpp"
#include "kernels/arithmetic/abs.hpp"
#include "kernels/arithmetic/complement.hpp"
#include "kernels/arithmetic/exp.hpp"
#include "kernels/arithmetic/ln.hpp"
#include "kernels/arithmetic/sqr.hpp"
#include "kernels/arithmetic/sqrt.hpp"

namespace lumi {
namespace {

using namespace check;

// Each operation says for samples T and a layout:
//   kWholeSteps   whether it rounds the steps of rows of one or three channels down to whole samples
//   kLargestScale the factor above which every result is zero; INT_MAX if it takes none
//   run           its rows
struct Abs {
  template <typename T>
  static constexpr bool kWholeSteps = true;
  template <typename T>
  static constexpr int kLargestScale = INT_MAX;

  template <typename T, typename Layout>
  static LumStatus run(SourceRows src, TargetRows dst, Extent samples, int) {
    absRows<T, kAlpha<T, Layout>>(src, dst, samples);
    return lumStatusOk;
  }
};

struct Sqr {
  template <typename T>
  static constexpr bool kWholeSteps = sizeof(T) == 2;
  // The largest square is just below 2^16 or 2^32, or it is 2^30 and half of 2^31.
  template <typename T>
  static constexpr int kLargestScale = std::is_integral_v<T> ? 2 * std::numeric_limits<T>::digits : INT_MAX;

  template <typename T, typename Layout>
  static LumStatus run(SourceRows src, TargetRows dst, Extent samples, int scaleFactor) {
    squareRows<T, kAlpha<T, Layout>>(src, dst, samples, *scalingOf<T>(scaleFactor, INT_MAX));
    return lumStatusOk;
  }
};

struct Sqrt {
  template <typename T>
  static constexpr bool kWholeSteps = sizeof(T) > 1;
  template <typename T>
  static constexpr int kLargestScale = INT_MAX;

  template <typename T, typename Layout>
  static LumStatus run(SourceRows src, TargetRows dst, Extent samples, int scaleFactor) {
    return rootRows<T, kAlpha<T, Layout>>(src, dst, samples, scaleFactor) ? lumStatusSqrtOfNegative
                                                                          : lumStatusOk;
  }
};

struct Ln {
  template <typename T>
  static constexpr bool kWholeSteps = false;
  template <typename T>
  static constexpr int kLargestScale = INT_MAX;

  template <typename T, typename Layout>
  static LumStatus run(SourceRows src, TargetRows dst, Extent samples, int scaleFactor) {
    const int bad = lnRows<T>(src, dst, samples, scaleFactor);
    if (bad == 0) return lumStatusOk;
    if constexpr (std::is_integral_v<T>) return lumStatusLogOfZero;
    return bad & kLnOfZero ? lumStatusLogSingularity : lumStatusLogDomain;
  }
};

struct Exp {
  template <typename T>
  static constexpr bool kWholeSteps = false;
  template <typename T>
  static constexpr int kLargestScale = std::is_integral_v<T> ? kLargestScaleOfExp<T> : INT_MAX;

  template <typename T, typename Layout>
  static LumStatus run(SourceRows src, TargetRows dst, Extent samples, int scaleFactor) {
    expRows<T>(src, dst, samples, scaleFactor);
    return lumStatusOk;
  }
};

// Where rows may give two warnings, the first row that gives one decides: they stay apart.
template <typename Op, typename T>
constexpr bool kOneWarning = !(std::is_same_v<Op, Ln> && std::is_same_v<T, Lum32f>);

template <typename Op, typename T, typename Layout>
int stepOf(int step) {
  constexpr bool whole = Op::template kWholeSteps<T> && (Layout::kStored == 1 || Layout::kStored == 3);
  return whole ? step & -static_cast<int>(sizeof(T)) : step;
}

template <typename Op, typename T, typename Layout>
LumStatus apply(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, int scaleFactor = 0) {
  if (LumStatus fault = firstFault(pointers(src, dst), size(roi), steps(srcStep, dstStep))) return fault;
  const int from = stepOf<Op, T, Layout>(srcStep), to = stepOf<Op, T, Layout>(dstStep);
  if (scaleFactor > Op::template kLargestScale<T>) return fillZero<T, Layout>(dst, to, roi);
  LumStatus status = lumStatusOk;
  const auto run = [&](SourceRows s, TargetRows d, Extent pixels) {
    status = Op::template run<T, Layout>(s, d, pixels.times(Layout::kStored), scaleFactor);
  };
  const auto srcRows = pixelRows<Layout>(src, from);
  const auto dstRows = pixelRows<Layout>(dst, to);
  if constexpr (kOneWarning<Op, T>)
    runFused(roi, run, srcRows, dstRows);
  else
    run(srcRows, dstRows, {static_cast<size_t>(roi.width), roi.height});
  return status;
}

// In place.
template <typename Op, typename T, typename Layout>
LumStatus apply(T* srcDst, int srcDstStep, LumiSize roi, int scaleFactor = 0) {
  return apply<Op, T, Layout>(srcDst, srcDstStep, srcDst, srcDstStep, roi, scaleFactor);
}

template <typename T, typename Layout>
LumStatus complement(T* srcDst, int srcDstStep, LumiSize roi) {
  if (LumStatus fault = firstFault(pointers(srcDst), steps(srcDstStep), size(roi))) return fault;
  runFused(
      roi, [](TargetRows rows, Extent samples) { complementRows(rows, samples); },
      pixelRows<Layout>(srcDst, srcDstStep));
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/unary.inc"
