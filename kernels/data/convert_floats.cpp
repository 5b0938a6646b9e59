// SPDX-License-Identifier: MIT
#include "kernels/conversion.hpp"
#include "kernels/data/convert.hpp"
#include "kernels/simd/convert.hpp"
#include "kernels/simd/rounding.hpp"

namespace lumi {
namespace {

using namespace simd;

struct AsControlled {
  template <typename V>
  static auto round(V x) {
    return rounded(x);
  }
};
struct AwayFromZero {
  template <typename V>
  static auto round(V x) {
    return roundedAway(x);
  }
};

template <bool isScaled>
struct Factor {
  float factor;

  template <typename V>
  V operator()(V x) const {
    if constexpr (isScaled)
      return x * broadcastFloat<V>(factor);
    else
      return x;
  }
};

// To D as dwords, limited from above. The rest of the limits comes with narrower samples.
template <typename D>
struct Limited {
  template <typename Rounding, typename V>
  static auto round(V x) {
    constexpr float highest = std::numeric_limits<D>::max();
    return Rounding::round(min(broadcastFloat<V>(highest), x));
  }
};
// From 2^31 on the conversion gives INT32_MIN, the complement of the limit.
template <>
struct Limited<int32_t> {
  template <typename Rounding, typename V>
  static auto round(V x) {
    return Rounding::round(x) ^ intsOf(isAtLeast(x, broadcastFloat<V>(0x1p31F)));
  }
};
// From 2^31 on every float is an integer: what is above is converted, and the top bit added. From 2^32 on
// the conversion gives the top bit alone, and the limit takes its place.
template <>
struct Limited<uint32_t> {
  template <typename Rounding, typename V>
  static auto round(V x) {
    const V middle = broadcastFloat<V>(0x1p31F), positive = max(x, broadcastFloat<V>(0));
    const V isHigh = isAtLeast(positive, middle), topBit = isHigh & broadcastFloat<V>(-0.0F);
    const auto low = Rounding::round(positive - (isHigh & middle));
    return (low ^ intsOf(topBit)) | intsOf(isAtLeast(positive, broadcastFloat<V>(0x1p32F)));
  }
};

template <typename D, typename Rounding, bool isScaled>
struct AsInts {
  Factor<isScaled> scaled;

  template <typename V>
  auto operator()(V x) const {
    return Limited<D>::template round<Rounding>(scaled(x));
  }
};

template <typename Ints>
struct ToDwords {
  Ints ints;

  Bytes16 half(const Byte* p) const { return ints(loadFloats4(p)).v; }
  Bytes32 block(const Byte* p) const { return ints(loadFloats8(p)).v; }
};

template <typename D, typename Ints>
struct ToNarrow {
  Ints ints;

  Ints8 at(const Byte* p, size_t i) const { return ints(loadFloats8(p + i * kBlock)); }
  template <typename T>
  Samples16<T> words(const Byte* p, size_t i) const {
    const Ints8 x = at(p, i);
    return narrowSaturated<T>(lowHalf(x), highHalf(x));
  }
  VectorBytes vector(const Byte* p) const {
    if constexpr (kVectorBytes == kBlock && sizeof(D) == 2)
      return narrowSaturated<D>(at(p, 0), at(p, 1)).v;
    else if constexpr (kVectorBytes == kBlock)
      return narrowSaturated<D>(at(p, 0), at(p, 1), at(p, 2), at(p, 3)).v;
    else if constexpr (sizeof(D) == 2)
      return words<D>(p, 0).v;
    else
      return narrowSaturated<D>(words<int16_t>(p, 0), words<int16_t>(p, 1)).v;
  }
};

template <typename D, int alpha, typename Rounding, bool isScaled>
void run(SourceRows src, TargetRows dst, Extent samples, float factor) {
  using Ints = AsInts<D, Rounding, isScaled>;
  using Conversion = std::conditional_t<sizeof(D) == 4, ToDwords<Ints>, ToNarrow<D, Ints>>;
  runConversion<float, D, alpha>(src, dst, samples, Conversion{{{factor}}});
}

}  // namespace

template <typename D, int alpha>
void convertFloatRows(SourceRows src, TargetRows dst, Extent samples, FloatConversion how) {
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

#define LUMI_PLAIN(D) template void convertFloatRows<D, 0>(SourceRows, TargetRows, Extent, FloatConversion);
#define LUMI_ALPHA(D) \
  LUMI_PLAIN(D) template void convertFloatRows<D, 1>(SourceRows, TargetRows, Extent, FloatConversion);
LUMI_ALPHA(uint8_t)
LUMI_ALPHA(int8_t)
LUMI_ALPHA(uint16_t)
LUMI_ALPHA(int16_t)
LUMI_PLAIN(int32_t)
LUMI_PLAIN(uint32_t)

}  // namespace lumi
