// SPDX-License-Identifier: MIT
#include "kernels/filters/window_extremes.hpp"

#include <limits>

namespace lumi {
namespace simd {
namespace {

template <typename T>
using VectorOf =
    decltype(samplesOf<T>(typename Register < std::is_floating_point_v<T> ? 32 : kVectorBytes > ::Type()));

template <typename T>
VectorOf<T> vectorAt(const Byte* p) {
  if constexpr (std::is_floating_point_v<T>)
    return samplesOf<T>(load32(p));
  else
    return {loadVector(p)};
}
template <typename V>
void storeAt(Byte* p, V v) {
  storeVector(p, bytesOf(v));
}

template <typename T>
VectorOf<T> everywhere(T x) {
  if constexpr (std::is_same_v<T, float>)
    return {_mm256_set1_ps(x)};
  else
    return {_mm256_set1_pd(x)};
}

// How samples are joined, from the first one on. A tie, and a later sample that is no number, leave the
// earlier one: both are what the instructions do with the operands in this order.
template <typename T, Extreme extreme, bool limited>
struct Joining {
  using Sample = T;
  using V = VectorOf<T>;

  static V join(V later, V earlier) {
    return extreme == Extreme::Max ? max(later, earlier) : min(later, earlier);
  }
  static V begin(V first) {
    if constexpr (std::is_floating_point_v<T>)
      return join(first, everywhere<T>(extreme == Extreme::Max ? -kLargest : kLargest));
    else
      return first;
  }
  static V finish(V result) {
    if constexpr (limited)
      return extreme == Extreme::Max ? min(result, everywhere<T>(kLargest))
                                     : max(result, everywhere<T>(-kLargest));
    else
      return result;
  }

 private:
  using Limits = std::numeric_limits<T>;
  static constexpr T kLargest = limited ? Limits::max() : Limits::infinity();
};

// Along a row, of the samples about a place. The neighbours' addresses are taken from the pixel's own: as
// sums of their own they would want more registers than there are.
template <typename J, int side>
[[gnu::always_inline]] inline typename J::V alongRow(const Byte* p, ptrdiff_t column) {
  using T = typename J::Sample;
  constexpr int reach = side / 2;
  asm("" : "+r"(p));
  auto best = J::begin(vectorAt<T>(p - reach * column));
  for (int x = 1 - reach; x <= reach; ++x) best = J::join(vectorAt<T>(p + x * column), best);
  return best;
}

template <typename J, int vectors>
struct Square3 {
  using Source = typename J::Sample;
  using Result = Source;
  using V = typename J::V;
  static constexpr int kRows = 3, kVectors = vectors;

  V before, pair, found;

  void take(WindowRows rows) {
    const V row = alongRow<J, 3>(rows(0, 0), rows.column);
    found = J::join(row, pair);
    pair = J::join(row, before);
    before = row;
  }
  V result(WindowRows) const { return J::finish(found); }
};

// Five rows, of two results at a time: what both windows have in common is joined once.
template <typename J>
struct TwoRowsOfFive {
  using V = typename J::V;
  V first, third, fourth, secondAndThird;

  TwoRowsOfFive(V row0, V row1, V row2, V row3)
      : first(row0), third(row2), fourth(row3), secondAndThird(J::join(row2, row1)) {}

  void take(V fifth, V sixth, V& upper, V& lower) {
    const V pair = J::join(fifth, fourth), common = J::join(pair, secondAndThird);
    upper = J::finish(J::join(common, first));
    lower = J::finish(J::join(sixth, common));
    first = third;
    third = fifth;
    fourth = sixth;
    secondAndThird = pair;
  }
};

template <typename J>
void bandOfSquares5(const Band& band, size_t samples, ptrdiff_t column) {
  using V = typename J::V;
  constexpr size_t block = sizeof(V) / sizeof(typename J::Sample);
  const ptrdiff_t step = band.dst.step;
  for (size_t i = 0;; i = std::min(i + block, samples - block)) {
    const size_t at = i * sizeof(typename J::Sample);
    const auto along = [=](const Byte* row) { return alongRow<J, 5>(row + at, column); };
    const Byte* const* row = band.src;
    TwoRowsOfFive<J> rows(along(row[0]), along(row[1]), along(row[2]), along(row[3]));
    row += 4;
    Byte* dst = band.dst.first + at;
    // A last row by itself is a pair with itself, of which the upper result is stored last.
    for (const Byte* const* const last = row + band.rows - 1; row <= last; row += 2, dst += 2 * step) {
      V upper, lower;
      rows.take(along(row[0]), along(row[row < last]), upper, lower);
      storeAt(row < last ? dst + step : dst, lower);
      storeAt(dst, upper);
      keepStoresInOrder();
    }
    if (i + block == samples) return;
  }
}

template <typename J>
constexpr WindowFilter squareFilter5() {
  constexpr int bytes = sizeof(typename J::Sample);
  return {bandOfSquares5<J>, 2, 2, 2, 2, int{sizeof(typename J::V)} / bytes, bytes, bytes};
}

// Of so many vectors at a place.
template <typename J, int vectors, typename Tap>
[[gnu::always_inline]] inline void joinTaps(const Tap& tap, int count, Byte* dst) {
  using V = typename J::V;
  const auto load = [&](int k, int v) {
    return vectorAt<typename J::Sample>(tap(k) + sizeof(V) * static_cast<size_t>(v));
  };
  V best[vectors];
  for (int v = 0; v < vectors; ++v) best[v] = J::begin(load(0, v));
  for (int k = 1; k < count; ++k)
    for (int v = 0; v < vectors; ++v) best[v] = J::join(load(k, v), best[v]);
  for (int v = 0; v < vectors; ++v) storeAt(dst + sizeof(V) * static_cast<size_t>(v), J::finish(best[v]));
}

// Calls block(vectors as a constant, place) for all bytes: of four vectors, then of single ones, the last of
// which lies over others.
template <size_t vectorBytes, typename Block>
[[gnu::always_inline]] inline void forEachBlock(size_t bytes, const Block& block) {
  size_t i = 0;
  for (; i + 4 * vectorBytes <= bytes; i += 4 * vectorBytes) block(std::integral_constant<int, 4>(), i);
  for (; i + vectorBytes <= bytes; i += vectorBytes) block(std::integral_constant<int, 1>(), i);
  if (i < bytes) block(std::integral_constant<int, 1>(), bytes - vectorBytes);
}

template <typename J, int fixed>
void runTaps(const Byte* const* taps, int count, Byte* dst, size_t bytes) {
  if constexpr (fixed > 0) {
    const Byte* at[fixed];
    for (int k = 0; k < fixed; ++k) at[k] = taps[k];
    forEachBlock<sizeof(typename J::V)>(bytes, [&](auto vectors, size_t i) {
      joinTaps<J, vectors>([&](int k) { return at[k] + i; }, fixed, dst + i);
    });
  } else {
    forEachBlock<sizeof(typename J::V)>(bytes, [&](auto vectors, size_t i) {
      joinTaps<J, vectors>([&](int k) { return taps[k] + i; }, count, dst + i);
    });
  }
}

template <typename J>
void ofTaps(const Byte* const* taps, int count, Byte* dst, size_t bytes) {
  if (count == 2) return runTaps<J, 2>(taps, count, dst, bytes);
  if (count == 3) return runTaps<J, 3>(taps, count, dst, bytes);
  if (count == 4) return runTaps<J, 4>(taps, count, dst, bytes);
  runTaps<J, 0>(taps, count, dst, bytes);
}

// Every window is rows above the last one of the block's first window, from any of them on, that row and
// those that are in all windows, and rows below, up to any of them.
template <typename J, int vectors>
[[gnu::always_inline]] inline void joinRows(const Byte* const* rows, int height, TargetRows dst, int count,
                                            size_t at) {
  using V = typename J::V;
  V above[kExtremeRows][vectors], best[vectors];
  const auto place = [&](int v) { return at + sizeof(V) * static_cast<size_t>(v); };
  const auto load = [&](int y, int v) { return vectorAt<typename J::Sample>(rows[y] + place(v)); };
  for (int v = 0; v < vectors; ++v) best[v] = load(count - 1, v);
  for (int y = count; y < height; ++y)
    for (int v = 0; v < vectors; ++v) best[v] = J::join(load(y, v), best[v]);
  for (int y = count - 1; y > 0; --y)
    for (int v = 0; v < vectors; ++v) {
      above[y][v] = best[v];
      best[v] = J::join(best[v], load(y - 1, v));
    }
  Byte* to = dst.first;
  for (int v = 0; v < vectors; ++v) storeAt(to + place(v), best[v]);
  if (count == 1) return;
  to += dst.step;
  for (int v = 0; v < vectors; ++v) best[v] = load(height, v);
  for (int v = 0; v < vectors; ++v) storeAt(to + place(v), J::join(best[v], above[1][v]));
  for (int y = 2; y < count; ++y) {
    to += dst.step;
    for (int v = 0; v < vectors; ++v) best[v] = J::join(load(height + y - 1, v), best[v]);
    for (int v = 0; v < vectors; ++v) storeAt(to + place(v), J::join(best[v], above[y][v]));
  }
}

template <typename J>
void ofRows(const Byte* const* rows, int height, TargetRows dst, Extent bytes) {
  forEachBlock<sizeof(typename J::V)>(
      bytes.length, [&](auto vectors, size_t i) { joinRows<J, vectors>(rows, height, dst, bytes.rows, i); });
}

template <typename T, Extreme extreme, bool limited>
constexpr ExtremeKernels kernelsOf() {
  using J = Joining<T, extreme, limited>;
  // Rows that are results have been limited.
  ExtremeKernels kernels{ofTaps<J>,
                         ofRows<Joining<T, extreme, false>>,
                         sizeof(T),
                         std::is_floating_point_v<T>,
                         sizeof(typename J::V),
                         windowFilter<Square3<J, 2>>(),
                         windowFilter<Square3<J, 1>>(),
                         {}};
  if constexpr (sizeof(T) < 8) kernels.five = squareFilter5<J>();
  return kernels;
}

}  // namespace
}  // namespace simd

template <typename T, Extreme extreme, bool limited>
const ExtremeKernels& extremeKernels() {
  static constexpr ExtremeKernels kKernels = simd::kernelsOf<T, extreme, limited>();
  return kKernels;
}

template const ExtremeKernels& extremeKernels<uint8_t, Extreme::Max>();
template const ExtremeKernels& extremeKernels<uint8_t, Extreme::Min>();
template const ExtremeKernels& extremeKernels<uint16_t, Extreme::Max>();
template const ExtremeKernels& extremeKernels<uint16_t, Extreme::Min>();
template const ExtremeKernels& extremeKernels<int16_t, Extreme::Max>();
template const ExtremeKernels& extremeKernels<int16_t, Extreme::Min>();
template const ExtremeKernels& extremeKernels<float, Extreme::Max>();
template const ExtremeKernels& extremeKernels<float, Extreme::Min>();
template const ExtremeKernels& extremeKernels<float, Extreme::Max, true>();
template const ExtremeKernels& extremeKernels<float, Extreme::Min, true>();
template const ExtremeKernels& extremeKernels<double, Extreme::Max>();
template const ExtremeKernels& extremeKernels<double, Extreme::Min>();

}  // namespace lumi
