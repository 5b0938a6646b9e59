// SPDX-License-Identifier: MIT
// The larger or the smaller of two images' samples.
#include "lumi/extremes.h"

#include "frame/check.hpp"
#include "frame/rows.hpp"
#include "kernels/data/extremes.hpp"

namespace lumi {
namespace {

using namespace check;

template <typename Op, typename T, typename Layout>
LumStatus keepExtreme(const T* src, int srcStep, T* srcDst, int srcDstStep, LumiSize roi) {
  if (LumStatus fault = firstFault(pointers(src, srcDst), size(roi), steps(srcStep, srcDstStep)))
    return fault;
  runFused(
      roi,
      [](SourceRows s, TargetRows d, Extent pixels) {
        extremeRows<Op, T, kAlpha<T, Layout> != 0>(s, d, pixels.times(Layout::kStored));
      },
      pixelRows<Layout>(src, srcStep), pixelRows<Layout>(srcDst, srcDstStep));
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/extremes.inc"
