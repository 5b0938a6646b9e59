// SPDX-License-Identifier: MIT
// What filters with taps of the library's own are made of. Sums are made in words of bytes, in dwords of
// words and in floats; words may wrap on the way, since no result leaves them.
#pragma once

#include <type_traits>

#include "kernels/filters/fixed_filters.hpp"
#include "kernels/simd/window.hpp"

namespace lumi::simd {

// Across a row: vectors of sums of the samples about a place.
template <typename S>
struct RowWindow {
  WindowRows rows;
  int row = 0;

  Sums<S> at(int pixel) const { return loadSums<S>(rows(row, pixel)); }
  Sums<S> outer() const { return at(-2) + at(2); }
  Sums<S> inner() const { return at(-1) + at(1); }
};

// Weights of a row, from the left to the right.
struct LeftMinusRight {  // 1 0 -1
  template <typename S>
  static Sums<S> of(RowWindow<S> x) {
    return x.at(-1) - x.at(1);
  }
};
struct RightMinusLeft {  // -1 0 1
  template <typename S>
  static Sums<S> of(RowWindow<S> x) {
    return x.at(1) - x.at(-1);
  }
};
struct Smooth3 {  // 1 2 1
  template <typename S>
  static Sums<S> of(RowWindow<S> x) {
    return x.inner() + twice(x.at(0));
  }
};
struct Second3 {  // 1 -2 1
  template <typename S>
  static Sums<S> of(RowWindow<S> x) {
    return x.inner() - twice(x.at(0));
  }
};
struct Box3 {  // 1 1 1
  template <typename S>
  static Sums<S> of(RowWindow<S> x) {
    return x.inner() + x.at(0);
  }
};
struct Scharr3 {  // 3 10 3
  template <typename S>
  static Sums<S> of(RowWindow<S> x) {
    return scharr(x.inner(), x.at(0));
  }
};
struct Smooth5 {  // 1 4 6 4 1
  template <typename S>
  static Sums<S> of(RowWindow<S> x) {
    const auto centre = x.at(0);
    return twice(twice(x.inner() + centre)) + (x.outer() + twice(centre));
  }
};
struct LeftMinusRight5 {  // 1 2 0 -2 -1
  template <typename S>
  static Sums<S> of(RowWindow<S> x) {
    return (x.at(-2) - x.at(2)) + twice(x.at(-1) - x.at(1));
  }
};
struct Second5 {  // 1 0 -2 0 1
  template <typename S>
  static Sums<S> of(RowWindow<S> x) {
    return x.outer() - twice(x.at(0));
  }
};
struct Box5 {  // 1 1 1 1 1
  template <typename S>
  static Sums<S> of(RowWindow<S> x) {
    return (x.outer() + x.inner()) + x.at(0);
  }
};

// Down the rows: each takes what a row comes to, and gives what the rows up to it come to.
template <typename V>
struct Joined {  // 1 1
  V before;
  V operator()(V x) {
    const V sum = before + x;
    before = x;
    return sum;
  }
};
template <typename V>
struct BelowMinusAbove {  // -1 0 1
  V before, first;
  V operator()(V x) {
    const V difference = x - first;
    first = before;
    before = x;
    return difference;
  }
};
template <typename V>
struct JoinedTwice {  // 1 2 1
  Joined<V> rows, pairs;
  V operator()(V x) { return pairs(rows(x)); }
};
template <typename V>
struct SecondDown3 {  // 1 -2 1
  V before, difference;
  V operator()(V x) {
    const V here = x - before, second = here - difference;
    before = x;
    difference = here;
    return second;
  }
};
template <typename V>
struct BoxDown3 {  // 1 1 1
  V before, pair;
  V operator()(V x) {
    const V sum = pair + x;
    pair = before + x;
    before = x;
    return sum;
  }
};
template <typename V>
struct ScharrDown {  // 3 10 3
  V before, first;
  V operator()(V x) {
    const V sum = scharr(first + x, before);
    first = before;
    before = x;
    return sum;
  }
};
template <typename V>
struct SmoothDown5 {  // 1 4 6 4 1
  JoinedTwice<V> first, second;
  V operator()(V x) { return second(first(x)); }
};
template <typename V>
struct DifferenceDown5 {  // -1 -2 0 2 1
  JoinedTwice<V> smooth;
  BelowMinusAbove<V> difference;
  V operator()(V x) { return difference(smooth(x)); }
};
template <typename V>
struct SecondDown5 {  // 1 0 -2 0 1
  BelowMinusAbove<V> first, second;
  V operator()(V x) { return second(first(x)); }
};
// The sums of windows that are under way; every row is the last of one.
template <typename V>
struct BoxDown5 {  // 1 1 1 1 1
  V sums[4];
  V operator()(V x) {
    const V sum = sums[3] + x;
    for (int i = 3; i > 0; --i) sums[i] = sums[i - 1] + x;
    sums[0] = x;
    return sum;
  }
};

// Each vector of sums finished.
template <typename Finish, typename V>
V finished(V sums) {
  return ofEach(sums, [](auto v) { return Finish::of(v); });
}
struct AsItIs {
  template <typename V>
  static V of(V sum) {
    return sum;
  }
};

// Weights that are a product of those across and those down.
template <typename S, typename D, int rows, typename Across, template <typename> class Down,
          typename Finish = AsItIs>
struct Separable {
  using Source = S;
  using Result = D;
  static constexpr int kRows = rows, kVectors = rows == 3 && sizeof(S) > 1 ? 2 : 1;

  Down<Sums<S>> down;
  Sums<S> sum;

  void take(WindowRows row) { sum = down(Across::of(RowWindow<S>{row})); }
  Sums<S> result(WindowRows) const { return finished<Finish>(sum); }
};

// A multiple of the centre less the sum of all.
template <typename S, typename D, int rows, int centre, typename Across, template <typename> class Down,
          typename Finish = AsItIs>
struct AgainstSum {
  using Source = S;
  using Result = D;
  static constexpr int kRows = rows, kVectors = 1;

  Down<Sums<S>> down;
  Sums<S> sum;

  void take(WindowRows row) { sum = down(Across::of(RowWindow<S>{row})); }
  Sums<S> result(WindowRows row) const {
    return finished<Finish>(times<centre>(RowWindow<S>{row, -(rows / 2)}.at(0)) - sum);
  }
};

// Five rows A B C B A of weights that are the same from left and right: (outer, inner, centre) of each.
template <typename S, typename D, typename Rows, typename Finish = AsItIs>
struct Symmetric5 {
  using Source = S;
  using Result = D;
  static constexpr int kRows = 5, kVectors = 1;

  Sums<S> sums[4], sum;

  void take(WindowRows row) {
    const RowWindow<S> x{row};
    const auto outer = x.outer(), inner = x.inner(), centre = x.at(0);
    const auto a = Rows::outer(outer, inner, centre), b = Rows::inner(outer, inner, centre),
               c = Rows::centre(outer, inner, centre);
    sum = sums[3] + a;
    sums[3] = sums[2] + b;
    sums[2] = sums[1] + c;
    sums[1] = sums[0] + b;
    sums[0] = a;
  }
  Sums<S> result(WindowRows) const { return finished<Finish>(sum); }
};

struct LaplaceRows {
  template <typename V>
  static V outer(V outer, V inner, V centre) {  // -1 -3 -4 -3 -1
    return V{} - (outer + times<3>(inner) + times<4>(centre));
  }
  template <typename V>
  static V inner(V outer, V, V centre) {  // -3 0 6 0 -3
    return times<3>(twice(centre) - outer);
  }
  template <typename V>
  static V centre(V outer, V inner, V centre) {  // -4 6 20 6 -4
    return times<6>(inner) + times<4>(times<5>(centre) - outer);
  }
};

// The filters of these, as one choice while the program runs.
template <FixedFilter filter, typename S, typename D>
struct FilterOf;

template <typename S, typename D, FixedFilter... filters>
WindowFilter oneOf(FixedFilter filter) {
  WindowFilter result{};
  static_cast<void>((
      (filters == filter && (result = windowFilter<typename FilterOf<filters, S, D>::Type>(), true)) || ...));
  return result;
}

template <typename S, typename D>
struct FilterOf<FixedFilter::SobelVert3, S, D> {
  using Type = Separable<S, D, 3, LeftMinusRight, JoinedTwice>;
};
template <typename S, typename D>
struct FilterOf<FixedFilter::SobelVert5, S, D> {
  using Type = Separable<S, D, 5, LeftMinusRight5, SmoothDown5>;
};
template <typename S, typename D>
struct FilterOf<FixedFilter::SobelHoriz3, S, D> {
  using Type = Separable<S, D, 3, Smooth3, BelowMinusAbove>;
};
template <typename S, typename D>
struct FilterOf<FixedFilter::SobelHoriz5, S, D> {
  using Type = Separable<S, D, 5, Smooth5, DifferenceDown5>;
};
template <typename S, typename D>
struct FilterOf<FixedFilter::SobelVertSecond3, S, D> {
  using Type = Separable<S, D, 3, Second3, JoinedTwice>;
};
template <typename S, typename D>
struct FilterOf<FixedFilter::SobelVertSecond5, S, D> {
  using Type = Separable<S, D, 5, Second5, SmoothDown5>;
};
template <typename S, typename D>
struct FilterOf<FixedFilter::SobelHorizSecond3, S, D> {
  using Type = Separable<S, D, 3, Smooth3, SecondDown3>;
};
template <typename S, typename D>
struct FilterOf<FixedFilter::SobelHorizSecond5, S, D> {
  using Type = Separable<S, D, 5, Smooth5, SecondDown5>;
};
template <typename S, typename D>
struct FilterOf<FixedFilter::SobelCross3, S, D> {
  using Type = Separable<S, D, 3, LeftMinusRight, BelowMinusAbove>;
};
template <typename S, typename D>
struct FilterOf<FixedFilter::SobelCross5, S, D> {
  using Type = Separable<S, D, 5, LeftMinusRight5, DifferenceDown5>;
};
template <typename S, typename D>
struct FilterOf<FixedFilter::ScharrVert, S, D> {
  using Type = Separable<S, D, 3, RightMinusLeft, ScharrDown>;
};
template <typename S, typename D>
struct FilterOf<FixedFilter::ScharrHoriz, S, D> {
  using Type = Separable<S, D, 3, Scharr3, BelowMinusAbove>;
};
template <typename S, typename D>
struct FilterOf<FixedFilter::PrewittVert, S, D> {
  using Type = Separable<S, D, 3, LeftMinusRight, BoxDown3>;
};
template <typename S, typename D>
struct FilterOf<FixedFilter::PrewittHoriz, S, D> {
  using Type = Separable<S, D, 3, Box3, BelowMinusAbove>;
};
template <typename S, typename D>
struct FilterOf<FixedFilter::Laplace3, S, D> {
  using Type = AgainstSum<S, D, 3, 9, Box3, BoxDown3>;
};
template <typename S, typename D>
struct FilterOf<FixedFilter::Laplace5, S, D> {
  using Type = Symmetric5<S, D, LaplaceRows>;
};
template <typename S, typename D>
struct FilterOf<FixedFilter::Hipass5, S, D> {
  using Type = AgainstSum<S, D, 5, 25, Box5, BoxDown5>;
};

// Differences of a sample and the one diagonally above it.
template <typename S, typename D, int side>
struct Roberts {
  using Source = S;
  using Result = D;
  static constexpr int kRows = 2, kVectors = 1;

  void take(WindowRows) {}
  Sums<S> result(WindowRows row) const { return RowWindow<S>{row}.at(0) - RowWindow<S>{row, -1}.at(side); }
};

template <typename S, typename D, int side>
constexpr WindowFilter robertsFilter() {
  WindowFilter filter = windowFilter<Roberts<S, D, side>>();
  filter.left = side < 0;
  filter.right = side > 0;
  filter.above = 1;
  filter.below = 0;
  return filter;
}

// Gradients of bytes of either sign.
template <typename S>
WindowFilter bytesToWords(FixedFilter filter) {
  using F = FixedFilter;
  if (filter == F::RobertsDown) return robertsFilter<S, int16_t, -1>();
  if (filter == F::RobertsUp) return robertsFilter<S, int16_t, 1>();
  return oneOf<S, int16_t, F::SobelVert3, F::SobelVert5, F::SobelHoriz3, F::SobelHoriz5, F::SobelVertSecond3,
               F::SobelVertSecond5, F::SobelHorizSecond3, F::SobelHorizSecond5, F::SobelCross3,
               F::SobelCross5, F::ScharrVert, F::ScharrHoriz, F::PrewittVert, F::PrewittHoriz, F::Laplace3,
               F::Laplace5>(filter);
}

}  // namespace lumi::simd
