// SPDX-License-Identifier: MIT
#include "kernels/filters/median_filters.hpp"

#include "kernels/filters/median_networks.hpp"

namespace lumi {
namespace simd {
namespace {

template <typename T>
struct VectorOf {
  using Type = Samples<T>;
};
template <>
struct VectorOf<float> {
  using Type = Floats8;
};
template <typename T>
using Vector = typename VectorOf<T>::Type;

// Each sample is both in a minimum and in a maximum, for which compilers would load it twice; loads are what
// there is least of.
template <typename T>
Vector<T> loadOnce(const Byte* p) {
  if constexpr (std::is_floating_point_v<T>)
    return {asFloats(load32Once(p))};
  else if constexpr (kVectorBytes == 32)
    return {load32Once(p)};
  else
    return {load16Once(p)};
}

template <typename V>
[[gnu::always_inline]] inline void store(Byte* p, V x) {
  if constexpr (std::is_same_v<V, Floats8>)
    storeFloats(p, x);
  else
    storeVector(p, x.v);
}

// Samples about the block, by row (0 is the one that was taken last) and pixel.
template <typename T>
struct Window {
  WindowRows rows;

  [[gnu::always_inline]] Vector<T> operator()(int row, int pixel) const {
    return loadOnce<T>(rows(row, pixel));
  }
  [[gnu::always_inline]] Sorted<Vector<T>, 3> three(int row) const {
    const Window& at = *this;
    return sorted(at(row, -1), at(row, 0), at(row, 1));
  }
  [[gnu::always_inline]] Sorted<Vector<T>, 5> five(int row) const {
    const Window& at = *this;
    return sorted(at(row, -2), at(row, -1), at(row, 0), at(row, 1), at(row, 2));
  }
};

// Filters that keep nothing of the rows above.
template <typename T, int rows>
struct Alone {
  using Source = T;
  using Result = T;
  static constexpr int kRows = rows, kVectors = 1;
  void take(WindowRows) {}
};

template <typename T>
struct Row3 : Alone<T, 1> {
  Vector<T> result(WindowRows rows) const {
    const Window<T> at{rows};
    return median(at(0, -1), at(0, 0), at(0, 1));
  }
};

template <typename T>
struct Row5 : Alone<T, 1> {
  Vector<T> result(WindowRows rows) const {
    const Window<T> at{rows};
    return median(at(0, -2), at(0, -1), at(0, 0), at(0, 1), at(0, 2));
  }
};

template <typename T>
struct Cross3 : Alone<T, 3> {
  Vector<T> result(WindowRows rows) const {
    const Window<T> at{rows};
    return median(at(-2, 0), at(0, 0), at(-1, -1), at(-1, 1), at(-1, 0));
  }
};

template <typename T>
struct Cross5 : Alone<T, 5> {
  Vector<T> result(WindowRows rows) const {
    const Window<T> at{rows};
    const auto column = sorted(at(-4, 0), at(-3, 0), at(-1, 0)),
               outer = sorted(at(0, 0), at(-2, -2), at(-2, 2));
    return TwoOfThreeTriples(column, outer).medianWith(at.three(-2));
  }
};

// Centres that are counted w times are the median of all as long as they lie between those of the eight
// others that would be the median if centres were above, or below, all of them: the (9 + w) / 2-th and, w
// places before it, the (9 - w) / 2-th.
template <typename T, int weight>
struct WeightedCentre : Alone<T, 3> {
  Vector<T> result(WindowRows rows) const {
    const Window<T> at{rows};
    const auto limits =
        placesOf<(9 - weight) / 2>(merged(at.three(-2), at.three(0)), sorted(at(-1, -1), at(-1, 1)));
    return clamped(at(-1, 0), limits.at[0], limits.at[1]);
  }
};

// The filters below make two rows of results at a time, which have all but one of their rows in common. They
// are objects that keep what they need of the rows above: take(x) takes a row before the first pair, and
// pair(x, y, results) two more.

template <typename T>
struct Column3 {
  using V = Vector<T>;
  static constexpr int kRows = 3;
  V before, last;

  [[gnu::always_inline]] void take(Window<T> x) {
    before = last;
    last = x(0, 0);
  }
  [[gnu::always_inline]] void pair(Window<T> x, Window<T> y, V (&results)[2]) {
    const V first = x(0, 0), second = y(0, 0);
    const auto common = sorted(last, first);
    results[0] = clamped(before, common.at[0], common.at[1]);
    results[1] = clamped(second, common.at[0], common.at[1]);
    before = first;
    last = second;
  }
};

template <typename T>
struct Column5 {
  using V = Vector<T>;
  static constexpr int kRows = 5;
  Sorted<V, 2> pairAbove;  // of the third and second of the rows above
  V fourth, third, second, last;

  [[gnu::always_inline]] void take(Window<T> x) {
    fourth = third;
    third = second;
    second = last;
    last = x(0, 0);
    pairAbove = sorted(third, second);
  }
  [[gnu::always_inline]] void pair(Window<T> x, Window<T> y, V (&results)[2]) {
    const V first = x(0, 0), next = y(0, 0);
    const auto below = sorted(last, first), middle = middleOf(pairAbove, below);
    results[0] = clamped(fourth, middle.at[0], middle.at[1]);
    results[1] = clamped(next, middle.at[0], middle.at[1]);
    fourth = second;
    second = first;
    last = next;
    pairAbove = below;
  }
};

// What a band says is read once: a store of bytes might otherwise be one to it.
template <typename Filter, typename T>
void filterPairs(const Band& band, size_t samples, ptrdiff_t column) {
  constexpr size_t block = sizeof(Vector<T>) / sizeof(T);
  const int rows = band.rows;
  const ptrdiff_t step = band.dst.step;
  for (size_t i = 0;; i = std::min(i + block, samples - block)) {
    const auto at = [&](const Byte* const* row) { return Window<T>{{row, i * sizeof(T), column}}; };
    Filter filter{};
    const Byte* const* row = band.src;
    for (const Byte* const* const first = row + Filter::kRows - 1; row != first; ++row) filter.take(at(row));
    Byte* dst = band.dst.first + i * sizeof(T);
    for (int left = rows; left > 0; left -= 2, row += 2, dst += 2 * step) {
      Vector<T> results[2];
      filter.pair(at(row), at(row + (left > 1)), results);
      store(dst, results[0]);
      if (left > 1) store(dst + step, results[1]);
    }
    if (i + block == samples) return;
  }
}

// Two rows of results, or one. What they share fits in registers, and is made anew for each pair: to keep a
// sorted row for the next one, down a column, would take longer than to sort it twice.
template <typename T, int results>
void medianRows3(const Byte* const* src, Byte* dst, ptrdiff_t step, size_t samples, ptrdiff_t column) {
  constexpr size_t block = sizeof(Vector<T>) / sizeof(T);
  const Byte* row[results + 2];  // which no store can be thought to change
  for (int y = 0; y < results + 2; ++y) row[y] = src[y];
  for (size_t i = 0;; i = std::min(i + block, samples - block)) {
    const Window<T> at{{row, i * sizeof(T), column}};
    const TwoOfThreeTriples<Vector<T>> common(at.three(1), at.three(2));
    store(dst + i * sizeof(T), common.medianWith(at.three(0)));
    if constexpr (results == 2) store(dst + step + i * sizeof(T), common.medianWith(at.three(3)));
    if (i + block == samples) return;
  }
}

template <typename T>
void filterSquare3(const Band& band, size_t samples, ptrdiff_t column) {
  int y = 0;
  for (; y + 1 < band.rows; y += 2)
    medianRows3<T, 2>(band.src + y, band.dst.row(y), band.dst.step, samples, column);
  if (y < band.rows) medianRows3<T, 1>(band.src + y, band.dst.row(y), band.dst.step, samples, column);
}

// Each second row is merged with the one below it. Two of these merges hold the four rows that two results
// share; of those twenty only six can be a median of twenty-five, since each of the others has thirteen of
// the twenty above it or below.
template <typename T>
void filterSquare5(const Band& band, size_t samples, ptrdiff_t column) {
  using V = Vector<T>;
  constexpr size_t block = sizeof(V) / sizeof(T);
  const int rows = band.rows;
  const ptrdiff_t step = band.dst.step;
  Sorted<V, 5> sortedRows[kBandRows + 4];
  Sorted<V, 10> merges[kBandRows / 2 + 1];  // of rows 1 and 2, 3 and 4, and so on
  for (size_t i = 0;; i = std::min(i + block, samples - block)) {
    for (int y = 0; y < rows + 4; ++y)
      sortedRows[y] = Window<T>{{band.src + y, i * sizeof(T), column}}.five(0);
    const Sorted<V, 5>* row = sortedRows;
    Sorted<V, 10>* const end = merges + (rows + 1) / 2 + 1;
    for (Sorted<V, 10>* pair = merges; pair != end; ++pair, row += 2) merge(row[1], row[2], *pair);
    Byte* dst = band.dst.first + i * sizeof(T);
    row = sortedRows;
    const Sorted<V, 10>* pair = merges;
    int left = rows;
    for (; left > 1; left -= 2, row += 2, ++pair, dst += 2 * step) {
      const Sorted<V, 6> middle = middleOf(pair[0], pair[1]);
      store(dst, medianOf(middle, row[0]));
      store(dst + step, medianOf(middle, row[5]));
    }
    if (left > 0) store(dst, medianOf(middleOf(pair[0], pair[1]), row[0]));
    if (i + block == samples) return;
  }
}

template <typename T>
WindowFilter record(BandKernel run, int across, int down) {
  return {run,       across,   down, across, down, static_cast<int>(sizeof(Vector<T>) / sizeof(T)),
          sizeof(T), sizeof(T)};
}

}  // namespace
}  // namespace simd

template <typename T>
WindowFilter medianFilter(MedianShape shape) {
  using namespace simd;
  switch (shape) {
    case MedianShape::Square3:
      return record<T>(filterSquare3<T>, 1, 1);
    case MedianShape::Square5:
      return record<T>(filterSquare5<T>, 2, 2);
    case MedianShape::Row3:
      return record<T>(filterBand<Row3<T>>, 1, 0);
    case MedianShape::Row5:
      return record<T>(filterBand<Row5<T>>, 2, 0);
    case MedianShape::Column3:
      return record<T>(filterPairs<Column3<T>, T>, 0, 1);
    case MedianShape::Column5:
      return record<T>(filterPairs<Column5<T>, T>, 0, 2);
    default:
      break;
  }
  if constexpr (std::is_integral_v<T>) {
    if (shape == MedianShape::Cross3) return record<T>(filterBand<Cross3<T>>, 1, 1);
    if (shape == MedianShape::Cross5) return record<T>(filterBand<Cross5<T>>, 2, 2);
  }
  if constexpr (sizeof(T) == 1) {
    if (shape == MedianShape::Centre3) return record<T>(filterBand<WeightedCentre<T, 3>>, 1, 1);
    if (shape == MedianShape::Centre5) return record<T>(filterBand<WeightedCentre<T, 5>>, 1, 1);
    if (shape == MedianShape::Centre7) return record<T>(filterBand<WeightedCentre<T, 7>>, 1, 1);
  }
  return record<T>(nullptr, 0, 0);
}

template WindowFilter medianFilter<uint8_t>(MedianShape);
template WindowFilter medianFilter<uint16_t>(MedianShape);
template WindowFilter medianFilter<int16_t>(MedianShape);
template WindowFilter medianFilter<float>(MedianShape);

}  // namespace lumi
