// SPDX-License-Identifier: MIT
// Sums over windows: bytes are added in words, words in dwords, floats in floats.
#pragma once

#include "kernels/simd/convert.hpp"
#include "kernels/simd/filter.hpp"
#include "kernels/simd/ties_to_even.hpp"

namespace lumi::simd {

// Sums of bytes: words of every second sample, and of those between them. A row is taken apart without a
// shuffle, of which processors do one or two a cycle.
struct WordPairSums {
  Samples<int16_t> even, odd;
};
inline WordPairSums operator+(WordPairSums a, WordPairSums b) { return {a.even + b.even, a.odd + b.odd}; }
inline WordPairSums operator-(WordPairSums a, WordPairSums b) { return {a.even - b.even, a.odd - b.odd}; }

template <typename S>
struct SumsOf {
  using Type = Samples<int32_t>;
};
template <>
struct SumsOf<uint8_t> {
  using Type = WordPairSums;
};
template <>
struct SumsOf<int8_t> {
  using Type = WordPairSums;
};
template <>
struct SumsOf<float> {
  using Type = Floats8;
};
template <typename S>
using Sums = typename SumsOf<S>::Type;

// Samples of a vector of results.
template <typename V>
inline constexpr size_t kWindowSamples = sizeof(V) / sizeof(float);
template <typename T, size_t bytes>
inline constexpr size_t kWindowSamples<SamplesOf<T, bytes>> = bytes / sizeof(T);
template <>
inline constexpr size_t kWindowSamples<Doubles4> = sizeof(Doubles4) / sizeof(double);
template <>
inline constexpr size_t kWindowSamples<WordPairSums> = sizeof(WordPairSums) / sizeof(int16_t);

template <typename S>
Sums<S> loadSums(const Byte* p) {
  if constexpr (std::is_floating_point_v<S>) {
    return loadFloats8(p);
  } else if constexpr (sizeof(S) == 1) {
    const Samples<S> bytes{loadVector(p)};
    const auto words = as<std::conditional_t<std::is_signed_v<S>, int16_t, uint16_t>>(bytes);
    if constexpr (std::is_signed_v<S>)
      return {shiftRight<8>(shiftLeft<8>(words)), shiftRight<8>(words)};
    else
      return {as<int16_t>(words & broadcastLike(words, uint16_t{0xFF})), as<int16_t>(shiftRight<8>(words))};
  } else {
    return loadAs<S, int32_t>(p);
  }
}

// f(vector) of each vector of sums.
template <typename F>
WordPairSums ofEach(WordPairSums x, const F& f) {
  return {f(x.even), f(x.odd)};
}
template <typename V, typename F>
V ofEach(V x, const F& f) {
  return f(x);
}

template <typename T, size_t bytes>
SamplesOf<T, bytes> broadcastAs(SamplesOf<T, bytes> like, int x) {
  return broadcastLike(like, static_cast<T>(x));
}

template <typename V>
V twice(V x) {
  return x + x;
}

// A shift and a difference, or else one multiplication, as it is written: compilers make several shifts and
// sums of it. Both kinds of instructions have units of their own.
template <int n, size_t bytes>
SamplesOf<int16_t, bytes> wordsTimes(SamplesOf<int16_t, bytes> x) {
  if constexpr (n == 7 || n == 31 || n == 127) return shiftLeft < n == 7 ? 3 : n == 31 ? 5 : 7 > (x)-x;
  alignas(32) static constexpr auto kFactors = [] {
    std::array<int16_t, 16> factors{};
    for (int16_t& factor : factors) factor = n;
    return factors;
  }();
  using V = typename Register<bytes>::Type;
  V product;
  asm("vpmullw %2, %1, %0" : "=x"(product) : "x"(x.v), "m"(*reinterpret_cast<const V*>(kFactors.data())));
  return {product};
}
template <int n, size_t bytes>
SamplesOf<int32_t, bytes> wordsTimes(SamplesOf<int32_t, bytes> x) {
  return x * broadcastLike(x, int32_t{n});
}

// Products with small numbers; words may wrap.
template <int n, typename V>
V times(V x) {
  if constexpr (n == 1)
    return x;
  else if constexpr (n == 2)
    return x + x;
  else if constexpr (std::is_same_v<V, Floats8>)
    return x * broadcastFloat<V>(n);
  else
    return ofEach(x, [](auto v) { return wordsTimes<n>(v); });
}

// 3 times the sides and 10 times the middle.
template <typename V>
V scharr(V sides, V middle) {
  return times<3>(sides) + times<10>(middle);
}

// Products with a double, to the nearest integer, ties to even, whatever the rounding control says. They fit.
inline S32 productsToEven(S32 x, double factor) {
  const __m256d product = _mm256_mul_pd(_mm256_cvtepi32_pd(x.v), _mm256_set1_pd(factor));
  return {_mm256_cvttpd_epi32(_mm256_round_pd(product, kTiesToEven))};
}
#ifdef __AVX2__
inline Ints8 productsToEven(Ints8 x, double factor) {
  return joined(productsToEven(lowHalf(x), factor), productsToEven(highHalf(x), factor));
}
#endif

// The first half of each sixteen bytes, and the last, byte by byte in turn.
template <typename T, size_t bytes>
SamplesOf<T, bytes> bytesInTurn(SamplesOf<T, bytes> x) {
  static constexpr Control kInTurn = {0, 8, 1, 9, 2, 10, 3, 11, 4, 12, 5, 13, 6, 14, 7, 15};
  if constexpr (bytes == 16)
    return {shuffleBytes(x.v, vectorOf(kInTurn))};
  else
    return {shuffleBytes(x.v, joined(vectorOf(kInTurn), vectorOf(kInTurn)))};
}

inline void storeFirstHalf(Byte* p, Bytes16 v) { storeFirst8(p, v); }
inline void storeInTurn(Byte* p, S16 even, S16 odd) {
  store16(p, interleaveLow(even, odd).v);
  store16(p + 16, interleaveHigh(even, odd).v);
}
#ifdef __AVX2__
inline void storeInTurn(Byte* p, Samples32<int16_t> even, Samples32<int16_t> odd) {
  const Bytes32 low = interleaveLow(even, odd).v, high = interleaveHigh(even, odd).v;
  store32(p, permuteHalves<0, 0>(low, high));
  store32(p + 32, permuteHalves<1, 1>(low, high));
}
#endif
inline void storeFirstHalf(Byte* p, Bytes32 v) { store16(p, lowHalf(v)); }

// Results, limited to D where it is narrower: one vector or two.
template <typename D, int count>
[[gnu::always_inline]] inline void storeResults(Byte* dst, const Floats8 (&sums)[count]) {
  for (int i = 0; i < count; ++i) storeFloats(dst + 32 * i, sums[i]);
}
template <typename D, int count>
[[gnu::always_inline]] inline void storeResults(Byte* dst, const Doubles4 (&results)[count]) {
  for (int i = 0; i < count; ++i) store32(dst + 32 * i, bytesOf(results[i]));
}
template <typename D, int count>
[[gnu::always_inline]] inline void storeResults(Byte* dst, const Samples<D> (&results)[count]) {
  for (int i = 0; i < count; ++i) storeVector(dst + kVectorBytes * i, results[i].v);
}
template <typename D, int count>
[[gnu::always_inline]] inline void storeResults(Byte* dst, const Samples<int32_t> (&sums)[count]) {
  if constexpr (count == 1)
    storeFirstHalf(dst, narrowSigned<D>(sums[0], sums[0]).v);
  else
    storeVector(dst, narrowSigned<D>(sums[0], sums[1]).v);
}
template <typename D, int count>
[[gnu::always_inline]] inline void storeResults(Byte* dst, const WordPairSums (&sums)[count]) {
  for (int i = 0; i < count; ++i, dst += kVectorBytes * sizeof(D)) {
    if constexpr (sizeof(D) == 1)
      storeVector(dst, bytesInTurn(narrowInterleaved<D>(sums[i].even, sums[i].odd)).v);
    else
      storeInTurn(dst, sums[i].even, sums[i].odd);
  }
}

}  // namespace lumi::simd
