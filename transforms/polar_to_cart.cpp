// SPDX-License-Identifier: MIT
// Complex samples of magnitudes and phases.
#include "lumi/polar_to_cart.h"

#include "frame/check.hpp"
#include "frame/layout.hpp"
#include "frame/rows.hpp"
#include "kernels/transforms/polar_to_cart.hpp"

namespace lumi {
namespace {

using namespace check;

template <typename C, typename Layout>
LumStatus polarToCart(const Lum32f* magnitude, const Lum32f* phase, int srcStep, int scaleFactor,
                      LumiSize roi, C* dst, int dstStep) {
  if (LumStatus fault = firstFault(pointers(magnitude, phase, dst), size(roi), steps(srcStep, dstStep)))
    return fault;
  runFused(
      roi,
      [=](SourceRows m, SourceRows p, TargetRows d, Extent pixels) {
        polarRows<Component<C>>(m, p, d, pixels.times(Layout::kStored), scaleFactor);
      },
      pixelRows<Layout>(magnitude, srcStep), pixelRows<Layout>(phase, srcStep),
      pixelRows<Layout>(dst, dstStep));
  return lumStatusOk;
}

// Of floats, with the ROI before the destination or behind it.
template <typename C, typename Layout>
LumStatus polarToCart(const Lum32f* magnitude, const Lum32f* phase, int srcStep, LumiSize roi, C* dst,
                      int dstStep) {
  return polarToCart<C, Layout>(magnitude, phase, srcStep, 0, roi, dst, dstStep);
}
template <typename C, typename Layout>
LumStatus polarToCart(const Lum32f* magnitude, const Lum32f* phase, int srcStep, C* dst, int dstStep,
                      LumiSize roi) {
  return polarToCart<C, Layout>(magnitude, phase, srcStep, 0, roi, dst, dstStep);
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/polar_to_cart.inc"
