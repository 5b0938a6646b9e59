// SPDX-License-Identifier: MIT
// Angles of 16-bit integers are right after rounding: continued fractions of the tangents of all ties, at all
// scale factors, tell that no angle comes closer to one than 2^-49, but for a few below 0.1, whose error is
// smaller by as much, and for that of 19517 + 17433i and its multiples, 2^-53.2 from one. A test has these.
#include "kernels/transforms/phase.hpp"

#include <algorithm>

#include "kernels/transforms/complex_rows.hpp"

namespace lumi {
namespace {

using namespace simd;

struct PhaseOfFloats {
  AngleOfFloats angle;

  template <typename V>
  V operator()(V real, V imaginary) const {
    return angle(imaginary, real);
  }
};

struct PhaseOfIntegers {
  Doubles4 factor;
  AngleOfWholes angle;
  explicit PhaseOfIntegers(int s) : factor(broadcastDouble(powerOfTwo(-s))) {}

  Doubles4 operator()(Doubles4 real, Doubles4 imaginary) const { return angle(imaginary, real) * factor; }
};

}  // namespace

template <typename T>
[[gnu::flatten]] void phaseRows(SourceRows src, TargetRows dst, Extent samples,
                                [[maybe_unused]] int scaleFactor) {
  if constexpr (std::is_same_v<T, float>) {
    runComplex<T>(src, dst, samples, OfComplexFloats<PhaseOfFloats>());
  } else {
    // From 3 on all results are zero. The smallest angle is above 2^-32: at -64 all but zeros are limited.
    const int s = std::clamp(scaleFactor, -64, 3);
    runComplex<T>(src, dst, samples, OfComplexIntegers<T, PhaseOfIntegers>(s));
  }
}

template void phaseRows<uint16_t>(SourceRows, TargetRows, Extent, int);
template void phaseRows<int16_t>(SourceRows, TargetRows, Extent, int);
template void phaseRows<int32_t>(SourceRows, TargetRows, Extent, int);
template void phaseRows<float>(SourceRows, TargetRows, Extent, int);

}  // namespace lumi
