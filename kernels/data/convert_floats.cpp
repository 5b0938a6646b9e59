// SPDX-License-Identifier: MIT
#include "kernels/conversion.hpp"
#include "kernels/data/convert.hpp"
#include "kernels/simd/convert.hpp"
#include "kernels/simd/rounding.hpp"

namespace lumi {
namespace {

using namespace simd;

struct AsControlled {
  template <typename Floats>
  static auto round(Floats x) {
    return rounded(x);
  }
};
struct AwayFromZero {
  template <typename Floats>
  static auto round(Floats x) {
    return roundedAway(x);
  }
};

template <bool isScaled>
struct Factor {
  float factor;

  template <typename Floats>
  Floats operator()(Floats x) const {
    if constexpr (isScaled)
      return x * broadcastFloat<Floats>(factor);
    else
      return x;
  }
};

// To D as dwords, limited from above. The rest of the limits comes with narrower samples.
template <typename D>
struct Limited {
  template <typename Rounding, typename Floats>
  static auto round(Floats x) {
    constexpr float highest = std::numeric_limits<D>::max();
    return Rounding::round(limitedFromAbove(x, broadcastFloat<Floats>(highest)));
  }
};
// From 2^31 on the conversion gives INT32_MIN, the complement of the limit.
template <>
struct Limited<int32_t> {
  template <typename Rounding, typename Floats>
  static auto round(Floats x) {
    return Rounding::round(x) ^ intsOf(isAtLeast(x, broadcastFloat<Floats>(0x1p31F)));
  }
};
// From 2^31 on every float is an integer: what is above is converted, and the top bit added. From 2^32 on
// the conversion gives the top bit alone, and the limit takes its place.
template <>
struct Limited<uint32_t> {
  template <typename Rounding, typename Floats>
  static auto round(Floats x) {
    const Floats middle = broadcastFloat<Floats>(0x1p31F), positive = positivePart(x);
    const Floats isHigh = isAtLeast(positive, middle), topBit = isHigh & broadcastFloat<Floats>(-0.0F);
    const auto low = Rounding::round(positive - (isHigh & middle));
    return (low ^ intsOf(topBit)) | intsOf(isAtLeast(positive, broadcastFloat<Floats>(0x1p32F)));
  }
};

template <typename D, typename Rounding, bool isScaled>
struct FromFloats {
  Factor<isScaled> scaled;

  template <typename Floats>
  auto rounded(Floats x) const {
    return Limited<D>::template round<Rounding>(scaled(x));
  }
  Ints8 at(const Byte* p, size_t vector) const { return rounded(loadFloats8(p + vector * kBlock)); }

  Bytes16 half(const Byte* p) const {
    if constexpr (sizeof(D) == 4) {
      return rounded(loadFloats4(p)).v;
    } else if constexpr (sizeof(D) == 2) {
      const Ints8 x = at(p, 0);
      return narrowSaturated<D>(lowHalf(x), highHalf(x)).v;
    } else {
      const Ints8 x = at(p, 0), y = at(p, 1);
      return narrowSaturated<D>(lowHalf(x), highHalf(x), lowHalf(y), highHalf(y)).v;
    }
  }
  auto block(const Byte* p) const {
    if constexpr (sizeof(D) == 4)
      return at(p, 0).v;
    else
      return Halves32{half(p), half(p + kSourceOfHalf<float, D>)};
  }
};

template <typename D, int alpha, typename Rounding, bool isScaled>
void run(const Byte* src, Byte* dst, size_t samples, float factor) {
  runConversion<float, D, alpha>(src, dst, samples, FromFloats<D, Rounding, isScaled>{{factor}});
}

}  // namespace

template <typename D, int alpha>
void convertFloatRow(const uint8_t* src, uint8_t* dst, size_t samples, FloatConversion how) {
  // Members with alpha have no factor.
  if constexpr (alpha == 0) {
    if (how.isScaled)
      return how.away ? run<D, 0, AwayFromZero, true>(src, dst, samples, how.factor)
                      : run<D, 0, AsControlled, true>(src, dst, samples, how.factor);
  }
  if (how.away)
    run<D, alpha, AwayFromZero, false>(src, dst, samples, 1);
  else
    run<D, alpha, AsControlled, false>(src, dst, samples, 1);
}

#define LUMI_PLAIN(D) template void convertFloatRow<D, 0>(const Byte*, Byte*, size_t, FloatConversion);
#define LUMI_ALPHA(D) \
  LUMI_PLAIN(D) template void convertFloatRow<D, 1>(const Byte*, Byte*, size_t, FloatConversion);
LUMI_ALPHA(uint8_t)
LUMI_ALPHA(int8_t)
LUMI_ALPHA(uint16_t)
LUMI_ALPHA(int16_t)
LUMI_PLAIN(int32_t)
LUMI_PLAIN(uint32_t)

}  // namespace lumi
