// SPDX-License-Identifier: MIT
// Complex numbers as pairs of pixels: a pixel with the real parts of all channels, then one with the
// imaginary parts. A form loads a group of pairs into vectors, and stores one.
#pragma once

#include "kernels/simd/floats.hpp"
#include "kernels/simd/pixels.hpp"

namespace lumi::simd {

template <size_t bytes>
struct Parts {
  typename Register<bytes>::Type real, imaginary;
};

inline constexpr Control kLowHighWordsInTurn = {0, 1, 8, 9, 2, 3, 10, 11, 4, 5, 12, 13, 6, 7, 14, 15};

// Pixels of so many dwords, of which the first `used` are stored: sixteen bytes of each part.
template <int stored, int used, size_t bytes>
struct DwordPairs;

template <>
struct DwordPairs<1, 1, 16> {
  using Group = Parts<16>;
  static constexpr size_t kBytes = 32;

  static Group load(const Byte* p) {
    const Bytes16 x = load16(p), y = load16(p + 16);
    return {evenPixels<4>(x, y), oddDwords(x, y)};
  }
  static void store(Byte* p, Group x) {
    store16(p, interleaveLowDwords(x.real, x.imaginary));
    store16(p + 16, interleaveHighDwords(x.real, x.imaginary));
  }
};

// Pairs of 24 bytes: the imaginary parts end with the last dword of a load.
template <>
struct DwordPairs<3, 3, 16> {
  using Group = Parts<16>;
  static constexpr size_t kBytes = 24;

  static Group load(const Byte* p) { return {load16(p), permuteDwords<1, 2, 3, 3>(load16(p + 8))}; }
  static void store(Byte* p, Group x) {
    const Bytes16 turned = permuteDwords<1, 2, 2, 0>(x.imaginary);
    store16(p, blendDwords<0b1000>(x.real, turned));
    storeFirst8(p + 16, turned);
  }
};

template <int used>
struct DwordPairs<4, used, 16> {
  using Group = Parts<16>;
  static constexpr size_t kBytes = 32;

  static Group load(const Byte* p) { return {load16(p), load16(p + 16)}; }
  static void store(Byte* p, Group x) {
    store16(p, kept(p, x.real));
    store16(p + 16, kept(p + 16, x.imaginary));
  }

 private:
  static Bytes16 kept(const Byte* p, Bytes16 x) { return used == 4 ? x : blendDwords<0b1000>(x, load16(p)); }
};

// Thirty-two bytes of each part. Where a pixel has one dword, pairs are in the order in which stores take
// them.
template <>
struct DwordPairs<1, 1, 32> {
  using Group = Parts<32>;
  static constexpr size_t kBytes = 64;

  static Group load(const Byte* p) {
    const __m256 x = asFloats(load32(p)), y = asFloats(load32(p + 32));
    return {asBytes(_mm256_shuffle_ps(x, y, 0x88)), asBytes(_mm256_shuffle_ps(x, y, 0xDD))};
  }
  static void store(Byte* p, Group x) {
    const __m256 real = asFloats(x.real), imaginary = asFloats(x.imaginary);
    store32(p, asBytes(_mm256_unpacklo_ps(real, imaginary)));
    store32(p + 32, asBytes(_mm256_unpackhi_ps(real, imaginary)));
  }
};

template <>
struct DwordPairs<3, 3, 32> {
  using Group = Parts<32>;
  static constexpr size_t kBytes = 48;

  static Group load(const Byte* p) {
    return {joined(load16(p), load16(p + 24)),
            permuteDwords<1, 2, 3, 3>(joined(load16(p + 8), load16(p + 32)))};
  }
  static void store(Byte* p, Group x) {
    const Bytes32 turned = permuteDwords<1, 2, 2, 0>(x.imaginary),
                  first = blendDwords<0b10001000>(x.real, turned);
    store16(p, lowHalf(first));
    storeFirst8(p + 16, lowHalf(turned));
    store16(p + 24, highHalf(first));
    storeFirst8(p + 40, highHalf(turned));
  }
};

template <int used>
struct DwordPairs<4, used, 32> {
  using Group = Parts<32>;
  static constexpr size_t kBytes = 64;

  static Group load(const Byte* p) {
    const Bytes32 x = load32(p), y = load32(p + 32);
    return {permuteHalves<0, 0>(x, y), permuteHalves<1, 1>(x, y)};
  }
  static void store(Byte* p, Group x) {
    store32(p, kept(p, permuteHalves<0, 0>(x.real, x.imaginary)));
    store32(p + 32, kept(p + 32, permuteHalves<1, 1>(x.real, x.imaginary)));
  }

 private:
  static Bytes32 kept(const Byte* p, Bytes32 x) {
    return used == 4 ? x : blendDwords<0b10001000>(x, load32(p));
  }
};

// Pixels of so many words. They are loaded with real and imaginary parts in turn, as products of pairs take
// them, and stored from four real parts followed by four imaginary ones, as narrowed sums are.
template <int stored, int used>
struct WordPairs {
  static_assert(stored == 1 || stored == 3 || stored == 4);
  static constexpr size_t kBytes = stored == 3 ? 12 : 16;

  static Bytes16 load(const Byte* p) {
    if constexpr (stored == 1) return load16(p);
    if constexpr (stored == 3) return shuffleBytes(loadPixel<12>(p), vectorOf(kThirdsInTurn));
    if constexpr (stored == 4) return shuffleBytes(load16(p), vectorOf(kLowHighWordsInTurn));
  }
  static void store(Byte* p, Bytes16 x) {
    if constexpr (stored == 1) store16(p, shuffleBytes(x, vectorOf(kLowHighWordsInTurn)));
    if constexpr (stored == 3) storePixel<12>(p, shuffleBytes(x, vectorOf(kWithoutFourths)));
    if constexpr (stored == 4) store16(p, used == 4 ? x : ifThenElse(load16(kColour.bytes), x, load16(p)));
  }

 private:
  static constexpr Control kThirdsInTurn = {0, 1, 6, 7, 2, 3, 8, 9, 4, 5, 10, 11, kZero, kZero, kZero, kZero};
  static constexpr Control kWithoutFourths = {0,  1,  2,  3,  4,     5,     8,     9,
                                              10, 11, 12, 13, kZero, kZero, kZero, kZero};
  static constexpr auto kColour = pixelMask<8, 6, 16>();
};

}  // namespace lumi::simd
