// SPDX-License-Identifier: MIT
// Scale, sample by sample.
#pragma once

#include <cmath>
#include <cstdint>

#include "model/access.hpp"

namespace model {

// Whether the call takes the accurate way.
constexpr bool isAccurate(LumAlgorithmHint hint) { return hint == 2; }

inline Lum8u limitedTo8u(double x) { return static_cast<Lum8u>(x < 0 ? 0 : x > 255 ? 255 : x); }

// From 8u: 0 to the smallest, 255 to the largest.
inline void scaleSample(Lum8u v, Lum16u& result) { result = static_cast<Lum16u>(v * 257); }
inline void scaleSample(Lum8u v, Lum16s& result) { result = static_cast<Lum16s>(v * 257 - 32768); }
inline void scaleSample(Lum8u v, Lum32s& result) {
  result = static_cast<Lum32s>(int64_t{v} * 16843009 - 2147483648LL);
}
inline void scaleSample(Lum8u v, Lum32f& result, Lum32f lower, Lum32f upper) {
  const Lum32f range = upper - lower, step = range / 255, product = static_cast<Lum32f>(v) * step;
  result = lower + product;
}

// To 8u. What is rounded follows the unit's rounding, which is to nearest within accurate calls.
inline Lum8u nearest8u(Lum16u v, LumAlgorithmHint hint) {
  const Lum32f product = static_cast<Lum32f>(v) * 0.0038910506f;
  if (isAccurate(hint)) return limitedTo8u(std::nearbyint(product));
  const int w = v - 32768;
  return static_cast<Lum8u>(((w - (w >> 8)) >> 8) + 128);
}
inline Lum8u nearest8u(Lum16s v, LumAlgorithmHint hint) {
  const Lum32f product = static_cast<Lum32f>(v + 32768) * 0.0038910506f;
  if (isAccurate(hint)) return limitedTo8u(std::nearbyint(product));
  return static_cast<Lum8u>(((v - (v >> 8)) >> 8) + 128);
}
inline Lum8u nearest8u(Lum32s v, LumAlgorithmHint hint) {
  const double product = v * 5.937181414556033e-08, sum = product + 127.5000000296859;
  if (isAccurate(hint)) return limitedTo8u(std::nearbyint(sum));
  return static_cast<Lum8u>(((v - (v >> 8)) >> 24) + 128);
}
inline Lum8u nearest8u(Lum32f v, Lum32f lower, Lum32f upper) {
  const Lum32f range = upper - lower, f = 255 / range, offset = f * lower, product = v * f;
  const Lum32f x = product - offset;
  return std::isnan(x) ? Lum8u{0} : limitedTo8u(std::nearbyint(x));
}

template <typename S, typename... More>
void scaleSample(S v, Lum8u& result, More... more) {
  result = nearest8u(v, more...);
}

// `more` is what the call has besides images: nothing, a hint, or bounds.
template <typename S, typename D, typename... More>
void scale(Image src, Image dst, LumiSize roi, Channels channels, More... more) {
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x)
      for (int c = 0; c < channels.moved; ++c) {
        D result{};
        scaleSample(load<S>(src.row(y), x * channels.src + c), result, more...);
        store<D>(dst.row(y), x * channels.dst + c, result);
      }
}

}  // namespace model
