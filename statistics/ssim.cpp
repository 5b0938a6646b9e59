// SPDX-License-Identifier: MIT
// Structural similarity.
#include "lumi/ssim.h"

#include "frame/check.hpp"
#include "frame/layout.hpp"
#include "frame/rows.hpp"
#include "kernels/statistics/ssim.hpp"

namespace lumi {
namespace {

using namespace check;

constexpr int kInDoubles = 2;

constexpr LumStatus stabilisers(Lum32f c1, Lum32f c2) {
  constexpr Lum32f least = 0x1p-23f;
  return c1 <= least || c2 <= least ? lumStatusBadArgument : lumStatusOk;
}

constexpr LumStatus hintIsKnown(int hint) {
  return hint < 0 || hint > 2 ? lumStatusBadArgument : lumStatusOk;
}

template <typename T, typename Layout>
LumStatus similarity(const T* mean1, int mean1Step, const T* mean2, int mean2Step, const T* meanSquare1,
                     int meanSquare1Step, const T* meanSquare2, int meanSquare2Step, const T* meanProduct,
                     int meanProductStep, T* dst, int dstStep, LumiSize roi, Lum32f c1, Lum32f c2, int hint) {
  if (LumStatus fault =
          firstFault(pointers(mean1, mean2, meanSquare1, meanSquare2, meanProduct, dst), size(roi),
                     steps(mean1Step, mean2Step, meanSquare1Step, meanSquare2Step, meanProductStep, dstStep),
                     stabilisers(c1, c2), hintIsKnown(hint)))
    return fault;
  runFused(
      roi,
      [&](SourceRows a, SourceRows b, SourceRows aa, SourceRows bb, SourceRows ab, TargetRows d,
          Extent pixels) {
        const LocalStatistics statistics{a, b, aa, bb, ab};
        if (hint == kInDoubles)
          similarityRows<double>(statistics, d, pixels, c1, c2);
        else
          similarityRows<float>(statistics, d, pixels, c1, c2);
      },
      pixelRows<Layout>(mean1, mean1Step), pixelRows<Layout>(mean2, mean2Step),
      pixelRows<Layout>(meanSquare1, meanSquare1Step), pixelRows<Layout>(meanSquare2, meanSquare2Step),
      pixelRows<Layout>(meanProduct, meanProductStep), pixelRows<Layout>(dst, dstStep));
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/ssim.inc"
