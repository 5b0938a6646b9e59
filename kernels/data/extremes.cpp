// SPDX-License-Identifier: MIT
#include "kernels/data/extremes.hpp"

#include "kernels/pointwise.hpp"

namespace lumi {

// The order of operands tells what a NaN becomes.
struct Larger {
  static constexpr bool kStoresBind = true;
  template <typename V>
  V operator()(V src, V srcDst) const {
    return max(src, srcDst);
  }
};
struct Smaller {
  static constexpr bool kStoresBind = true;
  template <typename V>
  V operator()(V src, V srcDst) const {
    return min(src, srcDst);
  }
};

template <typename Op, typename T, bool alpha>
[[gnu::flatten]] void extremeRows(SourceRows src, TargetRows srcDst, Extent samples) {
  using namespace simd;
  using Image = ImageRow<T, T>;
  constexpr size_t pixel = alpha ? 4 * sizeof(T) : sizeof(T), used = alpha ? 3 * sizeof(T) : sizeof(T);
  const SourceRows old{srcDst.first, srcDst.step};
  runPixels<pixel, used>(srcDst, samples, Binary<T, Op, Image, Image>{Image(src), Image(old), Op()});
}

#define LUMI_EXTREMES(T)                                                        \
  template void extremeRows<Larger, T, false>(SourceRows, TargetRows, Extent);  \
  template void extremeRows<Larger, T, true>(SourceRows, TargetRows, Extent);   \
  template void extremeRows<Smaller, T, false>(SourceRows, TargetRows, Extent); \
  template void extremeRows<Smaller, T, true>(SourceRows, TargetRows, Extent);
LUMI_EXTREMES(uint8_t)
LUMI_EXTREMES(uint16_t)
LUMI_EXTREMES(int16_t)
LUMI_EXTREMES(float)

}  // namespace lumi
