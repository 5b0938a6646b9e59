// SPDX-License-Identifier: MIT
// Scale, sample by sample.
#pragma once

#include <cstdint>

#include "model/access.hpp"

namespace model {

// Whether the call takes the accurate way.
constexpr bool isAccurate(LumAlgorithmHint hint) { return hint == 2; }

// Limited to 0 to 255, NaN to 0, and to the nearest integer there, ties to even.
inline Lum8u nearest8u(double x) {
  if (!(x > 0)) return 0;
  if (x > 255) return 255;
  const int below = static_cast<int>(x);
  const double rest = x - below;
  return static_cast<Lum8u>(rest > 0.5 || (rest == 0.5 && below % 2 != 0) ? below + 1 : below);
}

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

// To 8u. Products and sums are rounded as the unit is set, which is to nearest within accurate calls.
inline Lum8u narrowed(Lum16u v, LumAlgorithmHint hint) {
  const int w = v - 32768;
  if (!isAccurate(hint)) return static_cast<Lum8u>(((w - (w >> 8)) >> 8) + 128);
  const Lum32f product = static_cast<Lum32f>(v) * 0.0038910506f;
  return nearest8u(product);
}
inline Lum8u narrowed(Lum16s v, LumAlgorithmHint hint) {
  if (!isAccurate(hint)) return static_cast<Lum8u>(((v - (v >> 8)) >> 8) + 128);
  const Lum32f product = static_cast<Lum32f>(v + 32768) * 0.0038910506f;
  return nearest8u(product);
}
inline Lum8u narrowed(Lum32s v, LumAlgorithmHint hint) {
  if (!isAccurate(hint)) return static_cast<Lum8u>(((v - (v >> 8)) >> 24) + 128);
  const double product = v * 5.937181414556033e-08;
  return nearest8u(product + 127.5000000296859);
}
inline Lum8u narrowed(Lum32f v, Lum32f lower, Lum32f upper) {
  const Lum32f range = upper - lower, f = 255 / range, offset = f * lower, product = v * f;
  const Lum32f x = product - offset;
  return nearest8u(x);
}

template <typename S, typename... More>
void scaleSample(S v, Lum8u& result, More... more) {
  result = narrowed(v, more...);
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
