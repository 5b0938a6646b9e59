// SPDX-License-Identifier: MIT
// Samples of one type as samples of another: wider loads, and vectors put together into narrower samples.
#pragma once

#include "kernels/simd/samples.hpp"

namespace lumi::simd {

// The first samples of a vector in a wider type W, one that holds them all.
template <typename W, typename T>
Samples<W> widen(Samples<T> x) {
  static_assert(sizeof(W) >= sizeof(T));
  if constexpr (sizeof(W) == sizeof(T)) {
    return {x.v};
  } else if constexpr (std::is_signed_v<T>) {
    if constexpr (sizeof(W) == 2) return {_mm_cvtepi8_epi16(x.v)};
    if constexpr (sizeof(T) == 1 && sizeof(W) == 4) return {_mm_cvtepi8_epi32(x.v)};
    if constexpr (sizeof(T) == 2) return {_mm_cvtepi16_epi32(x.v)};
  } else {
    if constexpr (sizeof(W) == 2) return {_mm_cvtepu8_epi16(x.v)};
    if constexpr (sizeof(T) == 1 && sizeof(W) == 4) return {_mm_cvtepu8_epi32(x.v)};
    if constexpr (sizeof(T) == 2) return {_mm_cvtepu16_epi32(x.v)};
  }
}

// The first or the last eight bytes as words.
inline U16 widenLow(U8 x) { return {_mm_unpacklo_epi8(x.v, _mm_setzero_si128())}; }
inline U16 widenHigh(U8 x) { return {_mm_unpackhi_epi8(x.v, _mm_setzero_si128())}; }

// As many T samples as a vector of W has, with every negative one made 0 if W is unsigned.
template <typename T, typename W>
Samples<W> loadAs(const Byte* p) {
  Samples<T> x{loadFew<sizeof(T) * 16 / sizeof(W)>(p)};
  if constexpr (std::is_signed_v<T> && std::is_unsigned_v<W>) x = max(x, broadcast<T>(0));
  return widen<W>(x);
}

// Two vectors at once.
template <typename T>
struct TwoSamples {
  Samples<T> low, high;
};
template <typename T>
TwoSamples<T> loadTwo(const Byte* p) {
  const Bytes32 v = load32Once(p);
  return {{lowHalf(v)}, {highHalf(v)}};
}

// Limited to a type D of half the size.
template <typename D>
Samples<D> narrowSaturated(S32 a, S32 b) {
  static_assert(sizeof(D) == 2);
  return {std::is_signed_v<D> ? _mm_packs_epi32(a.v, b.v) : _mm_packus_epi32(a.v, b.v)};
}
template <typename D>
Samples<D> narrowSaturated(S16 a, S16 b) {
  static_assert(sizeof(D) == 1);
  return {std::is_signed_v<D> ? _mm_packs_epi16(a.v, b.v) : _mm_packus_epi16(a.v, b.v)};
}
// The instructions take their operands as signed: what may have the top bit set is limited before.
template <typename D, typename T>
std::enable_if_t<std::is_unsigned_v<T>, Samples<D>> narrowSaturated(Samples<T> a, Samples<T> b) {
  const auto limited = [](Samples<T> x) {
    return Samples<std::make_signed_t<T>>{min(x, broadcast<T>(std::numeric_limits<D>::max())).v};
  };
  return narrowSaturated<D>(limited(a), limited(b));
}

// As many vectors of type W as make one of D, limited to D.
template <typename D, typename W>
Samples<D> narrowSaturated(Samples<W> x) {
  static_assert(sizeof(D) == sizeof(W));
  if constexpr (std::is_same_v<D, W>)
    return x;
  else if constexpr (std::is_unsigned_v<W>)
    return {min(x, broadcast<W>(std::numeric_limits<D>::max())).v};
  else
    return {max(x, broadcast<W>(0)).v};
}
template <typename D, typename W>
Samples<D> narrowSaturated(TwoSamples<W> x) {
  return narrowSaturated<D>(x.low, x.high);
}
template <typename D>
Samples<D> narrowSaturated(S32 a, S32 b, S32 c, S32 d) {
  return narrowSaturated<D>(narrowSaturated<int16_t>(a, b), narrowSaturated<int16_t>(c, d));
}
template <typename D, typename W>
Samples<D> narrowSaturated(TwoSamples<W> a, TwoSamples<W> b) {
  return narrowSaturated<D>(a.low, a.high, b.low, b.high);
}
template <typename D>
Samples<D> narrowSaturated(U32 a, U32 b, U32 c, U32 d) {
  return narrowSaturated<D>(narrowSaturated<int16_t>(a, b), narrowSaturated<int16_t>(c, d));
}

// All ones where a is above b, both taken as signed.
template <typename T>
Samples<T> isAboveSigned(Samples<T> a, Samples<T> b) {
  static_assert(sizeof(T) == 2 || sizeof(T) == 4);
  return {sizeof(T) == 2 ? _mm_cmpgt_epi16(a.v, b.v) : _mm_cmpgt_epi32(a.v, b.v)};
}

// |x| as an unsigned number of the same size.
inline U16 magnitude(S16 x) { return {_mm_abs_epi16(x.v)}; }
inline U32 magnitude(S32 x) { return {_mm_abs_epi32(x.v)}; }
// x with its sign turned where s is negative, and 0 where s is 0.
inline S16 withSign(S16 x, S16 s) { return {_mm_sign_epi16(x.v, s.v)}; }
inline S32 withSign(S32 x, S32 s) { return {_mm_sign_epi32(x.v, s.v)}; }

}  // namespace lumi::simd
