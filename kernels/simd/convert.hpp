// SPDX-License-Identifier: MIT
// Samples of one type as samples of another: wider loads, and vectors put together into narrower samples.
#pragma once

#include "kernels/simd/samples.hpp"

namespace lumi::simd {

template <typename T>
using TwiceAsWide =
    std::conditional_t<sizeof(T) == 1, uint16_t, std::conditional_t<sizeof(T) == 2, uint32_t, uint64_t>>;

// The first samples of a vector in a wider type W, one that holds them all: sixteen bytes of them.
template <typename W, typename T>
Samples16<W> widen(Samples16<T> x) {
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

// The first or the last half of each sixteen bytes, as unsigned samples of twice the size.
template <typename T, size_t bytes>
auto widenLow(SamplesOf<T, bytes> x) {
  static_assert(std::is_unsigned_v<T>);
  return as<TwiceAsWide<T>>(interleaveLow(x, broadcastLike(x, T{0})));
}
template <typename T, size_t bytes>
auto widenHigh(SamplesOf<T, bytes> x) {
  static_assert(std::is_unsigned_v<T>);
  return as<TwiceAsWide<T>>(interleaveHigh(x, broadcastLike(x, T{0})));
}

// Limited to a type D of half the size. The instructions take their operands as signed.
template <typename D>
Samples16<D> narrowSigned(S32 a, S32 b) {
  static_assert(sizeof(D) == 2);
  return {std::is_signed_v<D> ? _mm_packs_epi32(a.v, b.v) : _mm_packus_epi32(a.v, b.v)};
}
template <typename D>
Samples16<D> narrowSigned(S16 a, S16 b) {
  static_assert(sizeof(D) == 1);
  return {std::is_signed_v<D> ? _mm_packs_epi16(a.v, b.v) : _mm_packus_epi16(a.v, b.v)};
}

// The same where sixteen bytes of each are followed by sixteen of the other: what was interleaved low and
// high is in its old order again.
template <typename D, typename T>
Samples16<D> narrowInterleaved(Samples16<T> a, Samples16<T> b) {
  return narrowSigned<D>(a, b);
}

#ifdef __AVX2__
template <typename D>
Samples32<D> narrowInterleaved(Samples32<int32_t> a, Samples32<int32_t> b) {
  return {std::is_signed_v<D> ? _mm256_packs_epi32(a.v, b.v) : _mm256_packus_epi32(a.v, b.v)};
}
template <typename D>
Samples32<D> narrowInterleaved(Samples32<int16_t> a, Samples32<int16_t> b) {
  return {std::is_signed_v<D> ? _mm256_packs_epi16(a.v, b.v) : _mm256_packus_epi16(a.v, b.v)};
}
// All of the first vector, then all of the second.
template <typename D, typename T>
Samples32<D> narrowSigned(Samples32<T> a, Samples32<T> b) {
  return {_mm256_permute4x64_epi64(narrowInterleaved<D>(a, b).v, 0xD8)};
}

template <typename W, typename T>
Samples32<W> widenTo32(Bytes16 x) {
  if constexpr (std::is_signed_v<T>) {
    if constexpr (sizeof(W) == 2) return {_mm256_cvtepi8_epi16(x)};
    if constexpr (sizeof(T) == 1 && sizeof(W) == 4) return {_mm256_cvtepi8_epi32(x)};
    if constexpr (sizeof(T) == 2) return {_mm256_cvtepi16_epi32(x)};
  } else {
    if constexpr (sizeof(W) == 2) return {_mm256_cvtepu8_epi16(x)};
    if constexpr (sizeof(T) == 1 && sizeof(W) == 4) return {_mm256_cvtepu8_epi32(x)};
    if constexpr (sizeof(T) == 2) return {_mm256_cvtepu16_epi32(x)};
  }
}
#endif

// As many T samples as a vector of W has, with every negative one made 0 if W is unsigned.
template <typename T, typename W>
Samples<W> loadAs(const Byte* p) {
  constexpr bool limited = std::is_signed_v<T> && std::is_unsigned_v<W>;
  if constexpr (sizeof(T) == sizeof(W)) {
    const Samples<T> x{loadVector(p)};
    return as<W>(limited ? max(x, broadcastLike(x, T{0})) : x);
  } else {
    Samples16<T> x{loadFew<kVectorBytes / sizeof(W) * sizeof(T)>(p)};
    if constexpr (limited) x = max(x, broadcastLike(x, T{0}));
#ifdef __AVX2__
    return widenTo32<W, T>(x.v);
#else
    return widen<W>(x);
#endif
  }
}

template <typename D, typename T, size_t bytes>
SamplesOf<D, bytes> narrowSaturated(SamplesOf<T, bytes> a, SamplesOf<T, bytes> b) {
  if constexpr (std::is_signed_v<T>) {
    return narrowSigned<D>(a, b);
  } else {  // what may have the top bit set is limited before
    const auto limited = [](SamplesOf<T, bytes> x) {
      return as<std::make_signed_t<T>>(min(x, broadcastLike(x, T{std::numeric_limits<D>::max()})));
    };
    return narrowSigned<D>(limited(a), limited(b));
  }
}

// As many vectors of type W as make one of D, limited to D.
template <typename D, typename W, size_t bytes>
SamplesOf<D, bytes> narrowSaturated(SamplesOf<W, bytes> x) {
  static_assert(sizeof(D) == sizeof(W));
  if constexpr (std::is_same_v<D, W>)
    return x;
  else if constexpr (std::is_unsigned_v<W>)
    return as<D>(min(x, broadcastLike(x, W{std::numeric_limits<D>::max()})));
  else
    return as<D>(max(x, broadcastLike(x, W{0})));
}
template <typename D, typename W, size_t bytes>
SamplesOf<D, bytes> narrowSaturated(SamplesOf<W, bytes> a, SamplesOf<W, bytes> b, SamplesOf<W, bytes> c,
                                    SamplesOf<W, bytes> d) {
  return narrowSaturated<D>(narrowSaturated<int16_t>(a, b), narrowSaturated<int16_t>(c, d));
}

// As many vectors of S, one behind the other, as make one of a narrower D, limited to D.
template <typename S, typename D>
Samples<D> loadNarrow(const Byte* p) {
  // Two vectors by one load.
  const auto two = [](const Byte* q) {
    struct {
      Samples<S> first, second;
    } both;
    if constexpr (kVectorBytes == 16) {
      const Bytes32 v = load32Once(q);
      both = {{lowHalf(v)}, {highHalf(v)}};
    } else {
      both = {{loadVector(q)}, {loadVector(q + kVectorBytes)}};
    }
    return both;
  };
  const auto a = two(p);
  if constexpr (2 * sizeof(D) == sizeof(S)) {
    return narrowSaturated<D>(a.first, a.second);
  } else {
    const auto b = two(p + 2 * kVectorBytes);
    return narrowSaturated<D>(a.first, a.second, b.first, b.second);
  }
}

}  // namespace lumi::simd
