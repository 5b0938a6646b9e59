// SPDX-License-Identifier: MIT
#include "kernels/filters/median_filters.hpp"

#include "kernels/filters/median_networks.hpp"
#include "kernels/filters/sample_vectors.hpp"

namespace lumi {
namespace simd {
namespace {

// Samples about a block, by row (from the window's first one on) and pixel. Each is in a minimum and in a
// maximum, but loaded once: loads are what there is least of.
template <typename T>
struct Window {
  WindowRows rows;

  Vector<T> operator()(int row, int pixel) const { return loadOnce<T>(rows(row, pixel)); }
  [[gnu::always_inline]] Sorted<Vector<T>, 3> three(int row) const {
    const Window& at = *this;
    return sorted(at(row, -1), at(row, 0), at(row, 1));
  }
  [[gnu::always_inline]] Sorted<Vector<T>, 5> five(int row) const {
    const Window& at = *this;
    return sorted(at(row, -2), at(row, -1), at(row, 0), at(row, 1), at(row, 2));
  }
};

// Shapes whose windows share all but one row of two with those below: common(at) is of rows 1 and on,
// with(common, x) the median of those and of row 0, or the row behind the last.

struct Square3 {
  static constexpr int kRows = 3;

  template <typename T>
  [[gnu::always_inline]] static auto common(const Window<T>& at) {
    return TwoOfThreeTriples<Vector<T>>(at.three(1), at.three(2));
  }
  template <typename T, typename Common>
  [[gnu::always_inline]] static Vector<T> with(const Common& common, const Window<T>& at, int row) {
    return common.medianWith(at.three(row));
  }
};

struct ColumnWith {
  template <typename T>
  [[gnu::always_inline]] static Vector<T> with(const Sorted<Vector<T>, 2>& common, const Window<T>& at,
                                               int row) {
    return clamped(at(row, 0), common.at[0], common.at[1]);
  }
};
struct Column3 : ColumnWith {
  static constexpr int kRows = 3;

  template <typename T>
  [[gnu::always_inline]] static auto common(const Window<T>& at) {
    return sorted(at(1, 0), at(2, 0));
  }
};
struct Column5 : ColumnWith {
  static constexpr int kRows = 5;

  template <typename T>
  [[gnu::always_inline]] static auto common(const Window<T>& at) {
    return middleOf(sorted(at(1, 0), at(2, 0)), sorted(at(3, 0), at(4, 0)));
  }
};

// Shapes that share too little.

struct Row3 {
  static constexpr int kRows = 1;

  template <typename T>
  [[gnu::always_inline]] static Vector<T> median(const Window<T>& at) {
    return lumi::median(at(0, -1), at(0, 0), at(0, 1));
  }
};

struct Row5 {
  static constexpr int kRows = 1;

  template <typename T>
  [[gnu::always_inline]] static Vector<T> median(const Window<T>& at) {
    return lumi::median(at(0, -2), at(0, -1), at(0, 0), at(0, 1), at(0, 2));
  }
};

struct Cross3 {
  static constexpr int kRows = 3;

  template <typename T>
  [[gnu::always_inline]] static Vector<T> median(const Window<T>& at) {
    return lumi::median(at(0, 0), at(2, 0), at(1, -1), at(1, 1), at(1, 0));
  }
};

struct Cross5 {
  static constexpr int kRows = 5;

  template <typename T>
  [[gnu::always_inline]] static Vector<T> median(const Window<T>& at) {
    const auto column = sorted(at(0, 0), at(1, 0), at(3, 0)), outer = sorted(at(4, 0), at(2, -2), at(2, 2));
    return TwoOfThreeTriples(column, outer).medianWith(at.three(2));
  }
};

// Centres that are counted w times are the median of all as long as they lie between those of the eight
// others that would be the median if centres were above, or below, all of them: the (9 + w) / 2-th and, w
// places before it, the (9 - w) / 2-th.
template <int weight>
struct WeightedCentre {
  static constexpr int kRows = 3;

  template <typename T>
  [[gnu::always_inline]] static Vector<T> median(const Window<T>& at) {
    const auto limits =
        placesOf<(9 - weight) / 2>(merged(at.three(0), at.three(2)), sorted(at(1, -1), at(1, 1)));
    return clamped(at(1, 0), limits.at[0], limits.at[1]);
  }
};

// Calls block(window, first byte of its result) along a row, under so many rows.
template <int rows, typename T, typename Block>
[[gnu::always_inline]] inline void alongRow(const Byte* const* src, size_t samples, ptrdiff_t column,
                                            const Block& block) {
  constexpr size_t each = kLanesOf<T>;
  const Byte* row[rows];  // which no store can be thought to change
  std::copy_n(src, rows, row);
  for (size_t i = 0;; i = std::min(i + each, samples - each)) {
    block(Window<T>{{row, i * sizeof(T), column}}, i * sizeof(T));
    if (i + each == samples) return;
  }
}

template <typename Shape, typename T>
void filterRow(const Band& band, size_t samples, ptrdiff_t column) {
  for (int y = 0; y < band.rows; ++y) {
    Byte* const dst = band.dst.row(y);
    alongRow<Shape::kRows, T>(
        band.src + y, samples, column, [=](const Window<T>& at, size_t place) __attribute__((always_inline)) {
          store(dst + place, Shape::median(at));
        });
  }
}

// What two rows share fits in registers, and is made anew for each pair: to keep it for the next one, down a
// column, would take longer.
template <typename Shape, typename T>
void filterPairs(const Band& band, size_t samples, ptrdiff_t column) {
  constexpr int rows = Shape::kRows;
  const ptrdiff_t step = band.dst.step;
  int y = 0;
  for (; y + 1 < band.rows; y += 2) {
    Byte* const dst = band.dst.row(y);
    alongRow<rows + 1, T>(
        band.src + y, samples, column, [=](const Window<T>& at, size_t place) __attribute__((always_inline)) {
          const auto common = Shape::common(at);
          store(dst + place, Shape::with(common, at, 0));
          store(dst + step + place, Shape::with(common, at, rows));
        });
  }
  if (y == band.rows) return;
  Byte* const dst = band.dst.row(y);
  alongRow<rows, T>(
      band.src + y, samples, column, [=](const Window<T>& at, size_t place) __attribute__((always_inline)) {
        store(dst + place, Shape::with(Shape::common(at), at, 0));
      });
}

// Each second row is merged with the one below it. Two of these merges hold the four rows that two results
// share; of those twenty only six can be a median of twenty-five, since each of the others has thirteen of
// the twenty above it or below.
template <typename T>
void filterSquare5(const Band& band, size_t samples, ptrdiff_t column) {
  using V = Vector<T>;
  constexpr size_t block = kLanesOf<T>;
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
  constexpr int bytes = sizeof(T), block = static_cast<int>(kLanesOf<T>);
  return {run, across, down, across, down, block, bytes, bytes};
}
template <typename T>
WindowFilter cross(BandKernel run, int reach) {
  WindowFilter filter = record<T>(run, reach, reach);
  filter.readsCorners = false;
  return filter;
}

}  // namespace
}  // namespace simd

template <typename T>
WindowFilter medianFilter(MedianShape shape) {
  using namespace simd;
  switch (shape) {
    case MedianShape::Square3:
      return record<T>(filterPairs<Square3, T>, 1, 1);
    case MedianShape::Square5:
      return record<T>(filterSquare5<T>, 2, 2);
    case MedianShape::Row3:
      return record<T>(filterRow<Row3, T>, 1, 0);
    case MedianShape::Row5:
      return record<T>(filterRow<Row5, T>, 2, 0);
    case MedianShape::Column3:
      return record<T>(filterPairs<Column3, T>, 0, 1);
    case MedianShape::Column5:
      return record<T>(filterPairs<Column5, T>, 0, 2);
    default:
      break;
  }
  if constexpr (std::is_integral_v<T>) {
    if (shape == MedianShape::Cross3) return cross<T>(filterRow<Cross3, T>, 1);
    if (shape == MedianShape::Cross5) return cross<T>(filterRow<Cross5, T>, 2);
  }
  if constexpr (sizeof(T) == 1) {
    if (shape == MedianShape::Centre3) return record<T>(filterRow<WeightedCentre<3>, T>, 1, 1);
    if (shape == MedianShape::Centre5) return record<T>(filterRow<WeightedCentre<5>, T>, 1, 1);
    if (shape == MedianShape::Centre7) return record<T>(filterRow<WeightedCentre<7>, T>, 1, 1);
  }
  return record<T>(nullptr, 0, 0);
}

template WindowFilter medianFilter<uint8_t>(MedianShape);
template WindowFilter medianFilter<uint16_t>(MedianShape);
template WindowFilter medianFilter<int16_t>(MedianShape);
template WindowFilter medianFilter<float>(MedianShape);

}  // namespace lumi
