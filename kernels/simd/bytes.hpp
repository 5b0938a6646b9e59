// SPDX-License-Identifier: MIT
// Vectors of raw bytes: loads, stores and shuffles, named by meaning. AVX level, no alignment assumed
// unless the name says so.
#pragma once

#include <immintrin.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace lumi::simd {

using Byte = uint8_t;
using Bytes16 = __m128i;
using Bytes32 = __m256i;

// The bytes of the build's integer vectors: sixteen in the products. Wider builds give the same bits.
#ifdef __AVX2__
inline constexpr size_t kVectorBytes = 32;
using VectorBytes = Bytes32;
#else
inline constexpr size_t kVectorBytes = 16;
using VectorBytes = Bytes16;
#endif

// The register of so many bytes.
template <size_t bytes>
struct Register;
template <>
struct Register<16> {
  using Type = Bytes16;
};
template <>
struct Register<32> {
  using Type = Bytes32;
};

inline Bytes16 load16(const Byte* p) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(p)); }
inline void store16(Byte* p, Bytes16 v) { _mm_storeu_si128(reinterpret_cast<__m128i*>(p), v); }
// Past the cache; p on a 16-byte boundary.
inline void stream16(Byte* p, Bytes16 v) { _mm_stream_si128(reinterpret_cast<__m128i*>(p), v); }

// A load that need not stay in the cache; p on a 16-byte boundary.
inline Bytes16 streamingLoad16(const Byte* p) {
  return _mm_stream_load_si128(reinterpret_cast<__m128i*>(const_cast<Byte*>(p)));
}

inline Bytes16 dwordsOf(uint32_t a, uint32_t b, uint32_t c) {
  return _mm_setr_epi32(static_cast<int>(a), static_cast<int>(b), static_cast<int>(c), 0);
}

inline Bytes32 load32(const Byte* p) { return _mm256_loadu_si256(reinterpret_cast<const __m256i*>(p)); }
// The same for values whose halves are used apart, which compilers would load apart: twice the loads.
inline Bytes32 load32Once(const Byte* p) {
  Bytes32 v = load32(p);
  asm("" : "+x"(v));
  return v;
}
inline void store32(Byte* p, Bytes32 v) { _mm256_storeu_si256(reinterpret_cast<__m256i*>(p), v); }
// Past the cache; p on a 32-byte boundary.
inline void stream32(Byte* p, Bytes32 v) { _mm256_stream_si256(reinterpret_cast<__m256i*>(p), v); }

// Moves a scalar of n bytes without caring for its type or alignment.
template <size_t n>
inline void move(Byte* to, const Byte* from) {
  std::memcpy(to, from, n);
}

// The first bytes of a vector, with no byte behind them read.
template <size_t bytes>
Bytes16 loadFew(const Byte* p) {
  static_assert(bytes == 4 || bytes == 8 || bytes == 16);
  if constexpr (bytes == 16) {
    return load16(p);
  } else if constexpr (bytes == 8) {
    return _mm_loadl_epi64(reinterpret_cast<const __m128i*>(p));
  } else {
    int dword = 0;
    move<4>(reinterpret_cast<Byte*>(&dword), p);
    return _mm_cvtsi32_si128(dword);
  }
}

// A load for values that are used twice, which compilers would load twice.
inline Bytes16 load16Once(const Byte* p) {
  Bytes16 v = load16(p);
  asm("" : "+x"(v));
  return v;
}

// The bytes from byte n on, then zeros.
template <int n>
inline Bytes16 bytesFrom(Bytes16 v) {
  return _mm_srli_si128(v, n);
}

// The first or the last bytes of a vector.
inline void storeFirst8(Byte* p, Bytes16 v) { _mm_storel_epi64(reinterpret_cast<__m128i*>(p), v); }
inline void storeLast8(Byte* p, Bytes16 v) {
  _mm_storeh_pi(reinterpret_cast<__m64*>(p),
                _mm_castsi128_ps(v));  // _pd would be a store of an aligned double
}
inline uint32_t firstDword(Bytes16 v) { return static_cast<uint32_t>(_mm_cvtsi128_si32(v)); }
inline uint32_t lastDword(Bytes16 v) { return static_cast<uint32_t>(_mm_extract_epi32(v, 3)); }

inline bool isAligned(const void* p, size_t boundary) {
  return (reinterpret_cast<uintptr_t>(p) & (boundary - 1)) == 0;
}

// Bytes from p up to the next boundary: 0 to boundary - 1.
inline size_t bytesToBoundary(const void* p, size_t boundary) {
  return (0 - reinterpret_cast<uintptr_t>(p)) & (boundary - 1);
}

// How far a block of that size at p reaches past the boundary inside it: 1 to `boundary` bytes.
inline size_t reachPastBoundary(const void* p, size_t boundary) {
  return boundary - (reinterpret_cast<uintptr_t>(p) & (boundary - 1));
}

// A shuffle control, in memory as the instruction takes it: byte j of the result is byte control[j] of
// the source, or zero for kZero.
using Control = std::array<Byte, 16>;
inline constexpr Byte kZero = 0x80;

inline Bytes16 vectorOf(const Control& c) { return load16(c.data()); }
inline Bytes16 shuffleBytes(Bytes16 v, Bytes16 control) { return _mm_shuffle_epi8(v, control); }
#ifdef __AVX2__
inline Bytes32 shuffleBytes(Bytes32 v, Bytes32 control) { return _mm256_shuffle_epi8(v, control); }
#endif

inline Bytes16 bitOr(Bytes16 a, Bytes16 b) { return _mm_or_si128(a, b); }
inline Bytes16 bitAnd(Bytes16 a, Bytes16 b) { return _mm_and_si128(a, b); }
// By bytes: yes where the mask's top bit is set, else no.
inline Bytes16 ifThenElse(Bytes16 mask, Bytes16 yes, Bytes16 no) { return _mm_blendv_epi8(no, yes, mask); }
// 0xFF where the byte is zero, else 0.
inline Bytes16 isZero(Bytes16 v) { return _mm_cmpeq_epi8(v, _mm_setzero_si128()); }
// Whether the top bit of every byte is set.
inline bool allSet(Bytes16 v) { return _mm_movemask_epi8(v) == 0xFFFF; }
// Whether the top bit of any byte, or of any dword, is set.
inline bool anySet(Bytes16 v) { return _mm_movemask_epi8(v) != 0; }
inline bool anySet(Bytes32 v) { return _mm256_movemask_ps(_mm256_castsi256_ps(v)) != 0; }

// The bytes of pixels over and over: `used` in the first bytes of each, `kept` in the others.
template <size_t size>
struct ByteMask {
  alignas(32) Byte bytes[size];
};
template <size_t pixelBytes, size_t usedBytes, size_t size>
constexpr ByteMask<size> pixelMask(Byte used = 0xFF, Byte kept = 0) {
  ByteMask<size> mask{};
  for (size_t i = 0; i < size; ++i) mask.bytes[i] = i % pixelBytes < usedBytes ? used : kept;
  return mask;
}

// 32-byte vectors have no integer operations at this level; the float ones move and combine bits just
// as well, and look at no value.
inline Bytes32 asBytes(__m256 v) { return _mm256_castps_si256(v); }
inline __m256 asFloats(Bytes32 v) { return _mm256_castsi256_ps(v); }

// By bytes: yes where the mask is 0xFF, no where it is 0.
inline Bytes32 ifThenElse(Bytes32 mask, Bytes32 yes, Bytes32 no) {
  return asBytes(_mm256_or_ps(_mm256_andnot_ps(asFloats(mask), asFloats(no)),
                              _mm256_and_ps(asFloats(mask), asFloats(yes))));
}

inline Bytes32 joined(Bytes16 low, Bytes16 high) {
  return _mm256_insertf128_si256(_mm256_castsi128_si256(low), high, 1);
}
inline Bytes16 lowHalf(Bytes32 v) { return _mm256_castsi256_si128(v); }
inline Bytes16 highHalf(Bytes32 v) { return _mm256_extractf128_si256(v, 1); }

// Thirty-two bytes in two registers.
struct Halves32 {
  Bytes16 low, high;
};
inline Bytes32 joined(Halves32 v) { return joined(v.low, v.high); }
inline Bytes32 joined(Bytes32 v) { return v; }
inline Halves32 ifThenElse(Bytes32 mask, Halves32 yes, Bytes32 no) {
  return {ifThenElse(lowHalf(mask), yes.low, lowHalf(no)),
          ifThenElse(highHalf(mask), yes.high, highHalf(no))};
}

// A half of the first vector (0 low, 1 high), then a half of the second.
template <int a, int b>
inline Bytes32 permuteHalves(Bytes32 first, Bytes32 second) {
  return _mm256_permute2f128_si256(first, second, a | (b + 2) << 4);
}

// In each half: dwords a, b, c, d of the half.
template <int a, int b, int c, int d>
inline Bytes32 permuteDwords(Bytes32 v) {
  return asBytes(_mm256_permute_ps(asFloats(v), a | b << 2 | c << 4 | d << 6));
}

template <int a, int b, int c, int d>
inline Bytes16 permuteDwords(Bytes16 v) {
  return _mm_shuffle_epi32(v, a | b << 2 | c << 4 | d << 6);
}

// Dwords of a where the immediate's bit is 0, of b where it is 1.
template <int which>
inline Bytes32 blendDwords(Bytes32 a, Bytes32 b) {
  return asBytes(_mm256_blend_ps(asFloats(a), asFloats(b), which));
}
template <int which>
inline Bytes16 blendDwords(Bytes16 a, Bytes16 b) {
  return _mm_castps_si128(_mm_blend_ps(_mm_castsi128_ps(a), _mm_castsi128_ps(b), which));
}

// The low or the high dwords of two vectors in turn.
inline Bytes16 interleaveLowDwords(Bytes16 a, Bytes16 b) { return _mm_unpacklo_epi32(a, b); }
inline Bytes16 interleaveHighDwords(Bytes16 a, Bytes16 b) { return _mm_unpackhi_epi32(a, b); }

// In each half: the low or the high quads of two vectors.
inline Bytes32 interleaveLowQuads(Bytes32 a, Bytes32 b) {
  return _mm256_castpd_si256(_mm256_unpacklo_pd(_mm256_castsi256_pd(a), _mm256_castsi256_pd(b)));
}
inline Bytes32 interleaveHighQuads(Bytes32 a, Bytes32 b) {
  return _mm256_castpd_si256(_mm256_unpackhi_pd(_mm256_castsi256_pd(a), _mm256_castsi256_pd(b)));
}

// The first, third and so on of the pixels of two vectors.
template <size_t bytes>
Bytes16 evenPixels(Bytes16 a, Bytes16 b) {
  static_assert(bytes == 1 || bytes == 2 || bytes == 4);
  if constexpr (bytes == 1) {
    const Bytes16 low = _mm_set1_epi16(0xFF);
    return _mm_packus_epi16(bitAnd(a, low), bitAnd(b, low));
  } else if constexpr (bytes == 2) {
    const Bytes16 low = _mm_set1_epi32(0xFFFF);
    return _mm_packus_epi32(bitAnd(a, low), bitAnd(b, low));
  } else {
    return _mm_castps_si128(_mm_shuffle_ps(_mm_castsi128_ps(a), _mm_castsi128_ps(b), 0x88));
  }
}
// The second, fourth and so on.
inline Bytes16 oddDwords(Bytes16 a, Bytes16 b) {
  return _mm_castps_si128(_mm_shuffle_ps(_mm_castsi128_ps(a), _mm_castsi128_ps(b), 0xDD));
}

// Half `a` of the first vector (0 low, 1 high), then half `b` of the second.
template <int a, int b>
inline Bytes16 shuffleHalves(Bytes16 first, Bytes16 second) {
  return _mm_castpd_si128(_mm_shuffle_pd(_mm_castsi128_pd(first), _mm_castsi128_pd(second), a | b << 1));
}

// Four vectors as the rows of a matrix of dwords; of 32-byte vectors each half is a matrix of its own.
struct Dwords4x4 {
  Bytes16 row[4];
};
struct TwoDwords4x4 {
  Bytes32 row[4];
};

inline Dwords4x4 transpose(const Dwords4x4& m) {
  const Bytes16 low01 = _mm_unpacklo_epi32(m.row[0], m.row[1]),
                low23 = _mm_unpacklo_epi32(m.row[2], m.row[3]),
                high01 = _mm_unpackhi_epi32(m.row[0], m.row[1]),
                high23 = _mm_unpackhi_epi32(m.row[2], m.row[3]);
  return {{_mm_unpacklo_epi64(low01, low23), _mm_unpackhi_epi64(low01, low23),
           _mm_unpacklo_epi64(high01, high23), _mm_unpackhi_epi64(high01, high23)}};
}

inline TwoDwords4x4 transpose(const TwoDwords4x4& m) {
  const auto low = [](Bytes32 a, Bytes32 b) {
    return _mm256_castps_pd(_mm256_unpacklo_ps(asFloats(a), asFloats(b)));
  };
  const auto high = [](Bytes32 a, Bytes32 b) {
    return _mm256_castps_pd(_mm256_unpackhi_ps(asFloats(a), asFloats(b)));
  };
  const auto bytes = [](__m256d v) { return _mm256_castpd_si256(v); };
  const __m256d low01 = low(m.row[0], m.row[1]), low23 = low(m.row[2], m.row[3]);
  const __m256d high01 = high(m.row[0], m.row[1]), high23 = high(m.row[2], m.row[3]);
  return {{bytes(_mm256_unpacklo_pd(low01, low23)), bytes(_mm256_unpackhi_pd(low01, low23)),
           bytes(_mm256_unpacklo_pd(high01, high23)), bytes(_mm256_unpackhi_pd(high01, high23))}};
}

// A vector of the build.
#ifdef __AVX2__
inline Bytes32 loadVector(const Byte* p) { return load32(p); }
#else
inline Bytes16 loadVector(const Byte* p) { return load16(p); }
#endif
inline void storeVector(Byte* p, Bytes16 v) { store16(p, v); }
inline void storeVector(Byte* p, Bytes32 v) { store32(p, v); }

// Between stores that compilers would otherwise move about: where lines of the cache come and go, the
// processor takes up to half as long again for those that do not ascend. What is in memory is read again
// behind it.
inline void keepStoresInOrder() { asm("" ::: "memory"); }

// How a kernel stores. Streaming destinations are on vector boundaries.
struct Cached {
  static void store(Byte* p, Bytes16 v) { store16(p, v); }
  static void store(Byte* p, Bytes32 v) { store32(p, v); }
  static void store(Byte* p, Halves32 v) {
    store16(p, v.low);
    store16(p + 16, v.high);
  }
};
struct Streaming {
  static void store(Byte* p, Bytes16 v) { stream16(p, v); }
  static void store(Byte* p, Bytes32 v) { stream32(p, v); }
  static void store(Byte* p, Halves32 v) {
    stream16(p, v.low);
    stream16(p + 16, v.high);
  }
};

// Eight pixels of three dwords. In each half, the vectors hold the first, second and third dwords-of-four
// of four pixels.
template <typename Store>
inline void storeThirds(Byte* dst, Bytes32 first, Bytes32 second, Bytes32 third) {
  Store::store(dst, permuteHalves<0, 0>(first, second));
  Store::store(dst + 32, permuteHalves<0, 1>(third, first));
  Store::store(dst + 64, permuteHalves<1, 1>(second, third));
}

}  // namespace lumi::simd
