// SPDX-License-Identifier: MIT
// Roots by the processor's instruction. Those of sums of squares of 16-bit integers are exact as doubles tell
// them: a sum is below 2^33, and what is no tie, times 4^(1 - s) or 4^-s, differs by 1 at least from the odd
// square of twice a tie: by 2^-35 of it.
#include "kernels/transforms/magnitude.hpp"

#include <algorithm>

#include "kernels/transforms/complex_rows.hpp"

namespace lumi {
namespace {

using namespace simd;

struct MagnitudeOfFloats {
  template <typename V>
  V operator()(V real, V imaginary) const {
    return squareRoot(real * real + imaginary * imaginary);
  }
};

struct MagnitudeOfIntegers {
  Doubles4 factor;
  explicit MagnitudeOfIntegers(int s) : factor(broadcastDouble(powerOfTwo(-s))) {}

  Doubles4 operator()(Doubles4 real, Doubles4 imaginary) const {
    return squareRoot(real * real + imaginary * imaginary) * factor;
  }
};

}  // namespace

template <typename T>
[[gnu::flatten]] void magnitudeRows(SourceRows src, TargetRows dst, Extent samples,
                                    [[maybe_unused]] int scaleFactor) {
  if constexpr (std::is_same_v<T, float>) {
    runComplex<T>(src, dst, samples, OfComplexFloats<MagnitudeOfFloats>());
  } else {
    // Beyond these factors all results are zero, or limited.
    const int s = std::clamp(scaleFactor, -40, 40);
    runComplex<T>(src, dst, samples, OfComplexIntegers<T, MagnitudeOfIntegers>(s));
  }
}

template void magnitudeRows<uint16_t>(SourceRows, TargetRows, Extent, int);
template void magnitudeRows<int16_t>(SourceRows, TargetRows, Extent, int);
template void magnitudeRows<int32_t>(SourceRows, TargetRows, Extent, int);
template void magnitudeRows<float>(SourceRows, TargetRows, Extent, int);

}  // namespace lumi
