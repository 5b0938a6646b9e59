// SPDX-License-Identifier: MIT
// Patterns as filters of small windows: a comparison with each neighbour, and what makes bits of them.
#pragma once

#include "kernels/filters/lbp.hpp"
#include "kernels/simd/patterns.hpp"

namespace lumi::simd {

struct Neighbour {
  int dx, dy;
};

// Clockwise.
template <int side, typename D>
inline constexpr Neighbour kNeighbours[8] = {{-1, -1}, {0, -1}, {1, -1}, {1, 0},
                                             {1, 1},   {0, 1},  {-1, 1}, {-1, 0}};
template <>
inline constexpr Neighbour kNeighbours<5, uint8_t>[8] = {{-1, -1}, {0, -2}, {1, -1}, {2, 0},
                                                         {1, 1},   {0, 2},  {-1, 1}, {-2, 0}};
template <>
inline constexpr Neighbour kNeighbours<5, uint16_t>[16] = {
    {-2, -1}, {-1, -1}, {-1, -2}, {0, -2}, {1, -2}, {1, -1}, {2, -1}, {2, 0},
    {2, 1},   {1, 1},   {1, 2},   {0, 2},  {-1, 2}, {-1, 1}, {-2, 1}, {-2, 0}};

// The number of the neighbour whose comparison a bit tells.
constexpr int neighbourOf(int bit, int mode, int count) {
  switch (mode) {
    case 0:
      return (count - bit) % count;
    case 1:
      return bit;
    case 2:
      return count - 1 - bit;
    default:
      return (bit + count - 1) % count;
  }
}

template <typename S, typename D, int side, int mode>
struct Pattern {
  using Source = S;
  using Result = D;
  static constexpr int kRows = side, kBits = 8 * sizeof(D);

  void take(WindowRows) {}

 protected:
  static const Byte* at(WindowRows rows, Neighbour n) {
    return rows(n.dy - side / 2, 0) + n.dx * static_cast<ptrdiff_t>(sizeof(S));
  }
  template <size_t bit>
  static const Byte* neighbour(WindowRows rows) {
    return at(rows, kNeighbours<side, D>[neighbourOf(static_cast<int>(bit), mode, kBits)]);
  }
};

// Words of which both bytes are in vectors of their own.
struct BytesOfWords {
  Samples<uint8_t> low, high;
};
template <>
inline constexpr size_t kWindowSamples<BytesOfWords> = kVectorBytes;
template <typename D, int count>
[[gnu::always_inline]] inline void storeResults(Byte* dst, const BytesOfWords (&results)[count]) {
  for (const BytesOfWords& x : results) {
    storeInTurn(dst, x.low, x.high);
    dst += 2 * kVectorBytes;
  }
}

template <typename D, int side, int mode>
struct PatternOfBytes : Pattern<uint8_t, D, side, mode> {
  using Base = Pattern<uint8_t, D, side, mode>;
  using Bytes = Samples<uint8_t>;
  static constexpr int kVectors = 1;

  auto result(WindowRows rows) const {
    const Bytes complement = Bytes{loadVector(Base::at(rows, {0, 0}))} ^ broadcast<uint8_t>(255);
    constexpr auto kSeven = std::make_index_sequence<7>();
    if constexpr (sizeof(D) == 1)
      return eightBits<0>(rows, complement, kSeven);
    else
      return BytesOfWords{eightBits<0>(rows, complement, kSeven), eightBits<8>(rows, complement, kSeven)};
  }

 private:
  // The average of a neighbour n and 255 - c, rounded up, is (n - c + 256) / 2: its top bit is set unless n
  // is below the centre c. Averages with such bits move the bits before downward: 64, 32 and so on are even
  // up to the seventh.
  template <size_t first, size_t... bit>
  static Bytes eightBits(WindowRows rows, Bytes complement, std::index_sequence<bit...>) {
    const Bytes top = broadcast<uint8_t>(128);
    const auto comparison = [&](const Byte* neighbour) {
      return averageUp(Bytes{loadVector(neighbour)}, complement) & top;
    };
    Bytes bits = broadcast<uint8_t>(0);
    ((bits = averageUp(bits, comparison(Base::template neighbour<first + bit>(rows)))), ...);
    return bits | comparison(Base::template neighbour<first + 7>(rows));
  }
};

// Patterns of eight pixels as words.
struct EightPatterns {
  U16 words;
};
template <>
inline constexpr size_t kWindowSamples<EightPatterns> = 8;
template <typename D, int count>
[[gnu::always_inline]] inline void storeResults(Byte* dst, const EightPatterns (&results)[count]) {
  if constexpr (sizeof(D) == 2) {
    for (int i = 0; i < count; ++i) store16(dst + 16 * i, results[i].words.v);
  } else {
    for (int i = 0; i < count; i += 2)
      store16(dst + 8 * i,
              narrowSigned<D>(as<int16_t>(results[i].words), as<int16_t>(results[i + 1].words)).v);
  }
}

// Where either sample is not a number, the neighbour is not below the pixel.
template <typename D, int side, int mode>
struct PatternOfFloats : Pattern<float, D, side, mode> {
  using Base = Pattern<float, D, side, mode>;
  static constexpr int kVectors = 2 / sizeof(D);

  EightPatterns result(WindowRows rows) const {
    return {wordsOf(rows, std::make_index_sequence<Base::kBits>())};
  }

 private:
  template <size_t... bit>
  static U16 wordsOf(WindowRows rows, std::index_sequence<bit...>) {
    const Floats8 centre = loadFloats8(Base::at(rows, {0, 0}));
    const auto bitOf = [&](const Byte* p, uint32_t value) {
      return andNot(isBelow(loadFloats8(p), centre), broadcastBits<Floats8>(value));
    };
    const Ints8 bits = intsOf((bitOf(Base::template neighbour<bit>(rows), 1U << bit) | ...));
    return narrowSigned<uint16_t>(lowHalf(bits), highHalf(bits));
  }
};

template <template <typename, int, int> typename PatternOf, typename D, int side>
WindowFilter patternByMode(int mode) {
  switch (mode) {
    case 0:
      return windowFilter<PatternOf<D, side, 0>>();
    case 1:
      return windowFilter<PatternOf<D, side, 1>>();
    case 2:
      return windowFilter<PatternOf<D, side, 2>>();
    default:
      return windowFilter<PatternOf<D, side, 3>>();
  }
}

}  // namespace lumi::simd
