// SPDX-License-Identifier: MIT
// Float taps. No product is fused with a sum: the order of the sums, and so each bit, is part of the result.
#include <algorithm>
#include <limits>
#include <type_traits>

#include "kernels/filters/filter_blocks.hpp"
#include "kernels/filters/filter_border.hpp"
#include "kernels/filters/filter_columns.hpp"
#include "kernels/filters/filter_floats.hpp"

namespace lumi {
namespace {

using namespace simd;

// Columns of a kernel: those of the blocks of eight taps, or those behind them.
struct Columns {
  int first, end;
};
Columns blocksOf(const FilterTaps& taps) { return {0, taps.columns & ~7}; }
Columns tailOf(const FilterTaps& taps) { return {taps.columns & ~7, taps.columns}; }
bool isEmpty(Columns c) { return c.first == c.end; }

// The tap of the turned kernel.
const float* tapAt(const FilterTaps& taps, int row, int column) {
  return taps.floats + static_cast<ptrdiff_t>(taps.rows - row) * taps.columns - 1 - column;
}

// Adds `count` products to each of a few vectors of sums; taps run backwards.
template <typename Floats, int vectors, typename Count>
[[gnu::always_inline]] inline void addProducts(Floats (&sums)[vectors], const Byte* samples, ptrdiff_t column,
                                               const float* tap, Count count) {
  for (int left = count; left > 0; --left, --tap, samples += column) {
    const Floats factor = broadcastFloat<Floats>(*tap);
    for (int i = 0; i < vectors; ++i)
      sums[i] = sums[i] + loadFloats<Floats>(samples + i * static_cast<ptrdiff_t>(sizeof(Floats))) * factor;
  }
}

// The sums of `count` columns of every row, from column `first` on.
template <typename Floats, int vectors, typename Count>
[[gnu::always_inline]] inline void sumFloatColumns(Floats (&sums)[vectors], const FilterTaps& taps,
                                                   FilterSource src, int first, Count count) {
  const ptrdiff_t column = src.channels * static_cast<ptrdiff_t>(sizeof(float));
  const Byte* samples = src.first + first * column;
  const float* tap = tapAt(taps, 0, first);
  for (Floats& sum : sums) sum = broadcastFloat<Floats>(0);
  for (int y = taps.rows; y > 0; --y, samples += src.step, tap -= taps.columns)
    addProducts(sums, samples, column, tap, count);
}

// A row of a float image, with the sums of each block in registers. The kernel's columns are in one sum, or
// in two.
template <typename Floats, int large, typename Count>
void filterFloatRow(const FilterTaps& taps, FilterSource src, Byte* dst, size_t samples, Count count) {
  constexpr int small = static_cast<int>(sizeof(Floats) / sizeof(float));
  const int others = taps.columns - count;
  inBlocks<large, small>(samples, [&](auto size, size_t i) {
    constexpr int vectors = decltype(size)::value / small;
    const size_t at = i * sizeof(float);
    Floats sums[vectors];
    sumFloatColumns(sums, taps, src.at(at), 0, count);
    if constexpr (std::is_same_v<Count, int>)
      if (others > 0) {
        Floats tail[vectors];
        sumFloatColumns(tail, taps, src.at(at), count, others);
        for (int v = 0; v < vectors; ++v) sums[v] = sums[v] + tail[v];
      }
    for (int v = 0; v < vectors; ++v)
      storeFloats(dst + at + v * static_cast<ptrdiff_t>(sizeof(Floats)), sums[v]);
  });
}

// A piece of a row of integer samples, as floats, and its sums. A row is done in pieces that stay in the
// nearest cache.
constexpr int kPiece = 256, kMostChannels = 4;
struct Piece {
  alignas(32) float samples[kPiece + 8 * kMostChannels + 8];  // a vector behind the last one is written
  alignas(32) float sums[kPiece];
  alignas(32) float others[kPiece];
};

template <int vectors>
void addToSums(float* sums, const float* samples, int channels, const float* tap, int count) {
  Floats8 at[vectors];
  for (int i = 0; i < vectors; ++i) at[i] = loadFloats8(reinterpret_cast<const Byte*>(sums + 8 * i));
  addProducts(at, reinterpret_cast<const Byte*>(samples), channels * static_cast<ptrdiff_t>(sizeof(float)),
              tap, count);
  for (int i = 0; i < vectors; ++i) storeFloats(reinterpret_cast<Byte*>(sums + 8 * i), at[i]);
}

// Sums of some columns: of eight at a time.
template <typename T>
void sumColumns(Piece& piece, float* sums, const FilterTaps& taps, FilterSource src, Columns columns,
                size_t samples) {
  std::fill_n(sums, (samples + 7) & ~size_t{7}, 0.0F);
  const ptrdiff_t column = src.channels * static_cast<ptrdiff_t>(sizeof(T));
  for (int y = 0; y < taps.rows; ++y)
    for (int x = columns.first; x < columns.end; x += 8) {
      const int count = std::min(8, columns.end - x);
      const size_t covered = samples + static_cast<size_t>((count - 1) * src.channels);
      toFloats<T>(src.first + y * src.step + x * column, piece.samples, covered);
      storeFloats(reinterpret_cast<Byte*>(piece.samples + covered), broadcastFloat<Floats8>(0));
      const float* const tap = tapAt(taps, y, x);
      size_t i = 0;
      for (; i + 32 <= samples; i += 32) addToSums<4>(sums + i, piece.samples + i, src.channels, tap, count);
      for (; i + 8 < samples; i += 16) addToSums<2>(sums + i, piece.samples + i, src.channels, tap, count);
      if (i < samples) addToSums<1>(sums + i, piece.samples + i, src.channels, tap, count);
    }
}

template <typename T>
void filterPiece(Piece& piece, const FilterTaps& taps, FilterSource src, Byte* dst, size_t samples) {
  const Columns blocks = blocksOf(taps), tail = tailOf(taps);
  const bool both = !isEmpty(blocks) && !isEmpty(tail);
  sumColumns<T>(piece, piece.sums, taps, src, isEmpty(blocks) ? tail : blocks, samples);
  if (both) sumColumns<T>(piece, piece.others, taps, src, tail, samples);
  inBlocks<8, 8>(samples, [&](auto, size_t i) {
    Floats8 sums = loadFloats8(reinterpret_cast<const Byte*>(piece.sums + i));
    if (both) sums = sums + loadFloats8(reinterpret_cast<const Byte*>(piece.others + i));
    storeAs<T>(dst + i * sizeof(T), sums);
  });
}

template <typename T>
float sumAt(const FilterTaps& taps, FilterSource src) {
  const ptrdiff_t column = src.channels * static_cast<ptrdiff_t>(sizeof(T));
  const float* tap = taps.floats + static_cast<ptrdiff_t>(taps.columns) * taps.rows;
  float sum = 0;
  for (int y = 0; y < taps.rows; ++y) {
    const Byte* p = src.first + y * src.step;
    for (int x = 0; x < taps.columns; ++x, p += column) {
      T sample;
      move<sizeof(T)>(reinterpret_cast<Byte*>(&sample), p);
      sum += static_cast<float>(sample) * *--tap;
    }
  }
  return sum;
}

// Ties to even. A float plus a half is exact here, but for some below a half.
int roundedMagnitude(float magnitude) {
  if (!(magnitude > 0.5F)) return 0;
  const int result = truncated(magnitude + 0.5F);
  return static_cast<float>(result) - magnitude == 0.5F ? result & ~1 : result;
}

template <typename T>
T sampleOf(float x, int mode) {
  if constexpr (std::is_same_v<T, float>) {
    static_cast<void>(mode);
    return x;
  } else {
    using Limits = std::numeric_limits<T>;
    if (x >= static_cast<float>(Limits::max())) return Limits::max();
    if (x <= static_cast<float>(Limits::min())) return Limits::min();
    if (mode == 0) return static_cast<T>(truncated(x));
    if (mode == 1) return static_cast<T>(x < 0 ? -roundedMagnitude(-x) : roundedMagnitude(x));
    return static_cast<T>(truncated(x < 0 ? x - 0.5F : x + 0.5F));
  }
}

}  // namespace

template <typename T>
void filterWideFloats(const FilterTaps& taps, FilterSource src, uint8_t* dst, size_t samples) {
  if constexpr (std::is_same_v<T, float>) {
    const Columns first = isEmpty(blocksOf(taps)) ? tailOf(taps) : blocksOf(taps);
    // The usual widths without a loop over them.
    if (samples < 8)
      filterFloatRow<Floats4, 4>(taps, src, dst, samples, first.end);
    else if (taps.columns == 3)
      filterFloatRow<Floats8, 32>(taps, src, dst, samples, std::integral_constant<int, 3>());
    else if (taps.columns == 5)
      filterFloatRow<Floats8, 32>(taps, src, dst, samples, std::integral_constant<int, 5>());
    else
      filterFloatRow<Floats8, 32>(taps, src, dst, samples, first.end);
  } else {
    Piece piece;
    for (size_t i = 0; i < samples; i += kPiece) {
      const size_t at = std::min(i, samples - std::min<size_t>(samples, kPiece)) * sizeof(T);
      filterPiece<T>(piece, taps, src.at(at), dst + at, std::min<size_t>(samples, kPiece));
    }
  }
}

template <typename T>
void filterNarrowFloats(const FilterTaps& taps, int roundMode, FilterSource src, uint8_t* dst,
                        size_t samples) {
  for (size_t i = 0; i < samples; ++i) {
    const T sample = sampleOf<T>(sumAt<T>(taps, src.at(i * sizeof(T))), roundMode);
    move<sizeof(T)>(dst + i * sizeof(T), reinterpret_cast<const Byte*>(&sample));
  }
}

template <typename T>
void filterNarrowFloatStrip(const FilterTaps& taps, int roundMode, FilterSource src, FilterStrip dst) {
  filterColumns<T, float>(taps, taps.floats, src, dst,
                          [=](float sum) { return sampleOf<T>(sum, roundMode); });
}

#define LUMI_FILTER_FLOATS(T)                                                                  \
  template void filterWideFloats<T>(const FilterTaps&, FilterSource, uint8_t*, size_t);        \
  template void filterNarrowFloats<T>(const FilterTaps&, int, FilterSource, uint8_t*, size_t); \
  template void filterNarrowFloatStrip<T>(const FilterTaps&, int, FilterSource, FilterStrip);
LUMI_FILTER_FLOATS(uint8_t)
LUMI_FILTER_FLOATS(uint16_t)
LUMI_FILTER_FLOATS(int16_t)
LUMI_FILTER_FLOATS(float)
#undef LUMI_FILTER_FLOATS

}  // namespace lumi
