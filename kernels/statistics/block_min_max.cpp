// SPDX-License-Identifier: MIT
// The columns of all rows come to one row first, a piece at a time, then each block's part of that row.
#include "kernels/statistics/block_min_max.hpp"

#include <algorithm>
#include <utility>

#include "kernels/statistics/extremes.hpp"

namespace lumi {
namespace {

using namespace simd;

constexpr size_t kColumns = 512;

template <typename Kind, typename T>
class ColumnExtremes {
  using Vectors = ExtremeVectors<T>;
  using V = typename Vectors::V;
  static constexpr size_t kSamples = sizeof(V) / sizeof(T);

 public:
  ColumnExtremes(SourceRows src, int rows) : src_(src), rows_(rows) {}

  // Of up to kColumns columns from `from` on. A last vector may begin with columns before them.
  void take(size_t from, size_t count) {
    constexpr auto four = std::make_index_sequence<4>();
    constexpr auto one = std::make_index_sequence<1>();
    size_t done = 0;
    for (; done + 4 * kSamples <= count; done += 4 * kSamples) takeVectors(four, from, done);
    for (; done + kSamples <= count; done += kSamples) takeVectors(one, from, done);
    if (done == count) return;
    if (from + count >= kSamples) return takeVectors(one, from, count - kSamples);
    for (; done < count; ++done) takeColumn(from + done, done);
  }

  // Of so many of the columns taken, from `at` on.
  T of(size_t at, size_t count) const {
    const T* column = extremes_ + kSamples + at;
    T extreme = column[0];
    if (count < kSamples) {
      for (size_t i = 1; i < count; ++i) extreme = Kind::betterOf(column[i], extreme);
      return extreme;
    }
    const auto vector = [=](size_t i) { return Vectors::load(reinterpret_cast<const Byte*>(column + i)); };
    V best = vector(0);
    for (size_t i = kSamples; i + kSamples <= count; i += kSamples) best = Kind::better(vector(i), best);
    best = Kind::better(vector(count - kSamples), best);
    const Bytes16 folded = Vectors::template folded<sizeof(T), Kind>(best);
    std::memcpy(&extreme, &folded, sizeof extreme);
    return extreme;
  }

 private:
  // At `at` behind the first of the columns, or before it: the numbers wrap.
  template <size_t... i>
  [[gnu::always_inline]] void takeVectors(std::index_sequence<i...>, size_t from, size_t at) {
    const V start = ExtremeLanes<T, 1>::at(Kind::template worst<T>()).of[0];
    V best[] = {(static_cast<void>(i), start)...};
    for (int y = 0; y < rows_; ++y) {
      const Byte* row = src_.row(y) + (from + at) * sizeof(T);
      ((best[i] = Kind::better(Vectors::load(row + i * sizeof(V)), best[i])), ...);
    }
    Byte* const to = reinterpret_cast<Byte*>(extremes_ + (kSamples + at));
    (Vectors::store(to + i * sizeof(V), best[i]), ...);
  }
  void takeColumn(size_t from, size_t at) {
    T best = Kind::template worst<T>();
    for (int y = 0; y < rows_; ++y) {
      T sample;
      std::memcpy(&sample, src_.row(y) + from * sizeof(T), sizeof sample);
      best = Kind::betterOf(sample, best);
    }
    extremes_[kSamples + at] = best;
  }

  SourceRows src_;
  int rows_;
  T extremes_[kSamples + kColumns];
};

template <typename Kind, typename T>
void extremesOfBlocks(SourceRows src, Extent samples, size_t blockWidth, uint8_t* map, T& extreme) {
  ColumnExtremes<Kind, T> columns(src, samples.rows);
  T block = Kind::template worst<T>();
  size_t inBlock = 0;
  for (size_t x = 0; x < samples.length; x += kColumns) {
    const size_t count = std::min(kColumns, samples.length - x);
    columns.take(x, count);
    for (size_t i = 0, part = 0; i < count; i += part) {
      part = std::min(count - i, blockWidth - inBlock);
      block = Kind::betterOf(columns.of(i, part), block);
      inBlock += part;
      if (inBlock < blockWidth && x + i + part < samples.length) continue;
      std::memcpy(map, &block, sizeof block);
      extreme = Kind::betterOf(block, extreme);
      map += sizeof block;
      block = Kind::template worst<T>();
      inBlock = 0;
    }
  }
}

}  // namespace

template <typename T>
void leastOfBlocks(SourceRows src, Extent samples, size_t blockWidth, uint8_t* map, T& extreme) {
  extremesOfBlocks<Least>(src, samples, blockWidth, map, extreme);
}
template <typename T>
void greatestOfBlocks(SourceRows src, Extent samples, size_t blockWidth, uint8_t* map, T& extreme) {
  extremesOfBlocks<Greatest>(src, samples, blockWidth, map, extreme);
}

#define LUMI_BLOCKS(T)                                                \
  template void leastOfBlocks(SourceRows, Extent, size_t, Byte*, T&); \
  template void greatestOfBlocks(SourceRows, Extent, size_t, Byte*, T&);
LUMI_BLOCKS(uint8_t)
LUMI_BLOCKS(uint16_t)
LUMI_BLOCKS(int16_t)
LUMI_BLOCKS(float)

}  // namespace lumi
