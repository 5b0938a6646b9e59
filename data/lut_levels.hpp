// SPDX-License-Identifier: MIT
// The lists of levels and values by which functions are given, one for each channel.
#pragma once

#include <algorithm>
#include <array>
#include <type_traits>

#include "frame/check.hpp"
#include "frame/layout.hpp"
#include "kernels/unaligned.hpp"

namespace lumi {

template <typename L>
struct LevelList {
  Unaligned<L> values, levels;
  int count;

  int pieces() const { return count - 1; }
};
// Of every channel that an operation works on.
template <typename L, typename Layout>
using LevelLists = std::array<LevelList<L>, static_cast<size_t>(Layout::kUsed)>;

namespace check {

constexpr LumStatus levelCount(int count) { return count < 2 ? lumStatusTooFewLutLevels : lumStatusOk; }

template <typename S, typename D, typename L>
LumStatus levelCall(const S* src, int srcStep, const D* dst, int dstStep, LumiSize roi, const L* values,
                    const L* levels, int count) {
  return firstFault(pointers(src, dst, values, levels), size(roi), steps(srcStep, dstStep),
                    levelCount(count));
}

// Members of more channels look at the lists first.
template <typename Layout, typename S, typename D, typename L>
LumStatus levelCall(const S* src, int srcStep, const D* dst, int dstStep, LumiSize roi,
                    const L* const* values, const L* const* levels, const int* counts) {
  const auto lists = [=] {
    for (int c = 0; c < Layout::kUsed; ++c)
      if (const LumStatus fault =
              firstFault(pointers(Unaligned<const L*>{values}[c], Unaligned<const L*>{levels}[c]),
                         levelCount(Unaligned<int>{counts}[c])))
        return fault;
    return LumStatus{lumStatusOk};
  };
  return firstFault(pointers(src, dst, values, levels, counts), lists, size(roi), steps(srcStep, dstStep));
}

}  // namespace check

template <typename Layout, typename L>
LevelLists<L, Layout> levelLists(const L* values, const L* levels, int count) {
  return {{{{values}, {levels}, count}}};
}
template <typename Layout, typename L>
LevelLists<L, Layout> levelLists(const L* const* values, const L* const* levels, const int* counts) {
  LevelLists<L, Layout> lists;
  for (size_t c = 0; c < lists.size(); ++c)
    lists[c] = {
        {Unaligned<const L*>{values}[c]}, {Unaligned<const L*>{levels}[c]}, Unaligned<int>{counts}[c]};
  return lists;
}

// The curve A t^3 + B t^2 + C t through the origin and three more points.
struct CubicCoefficients {
  double a, b, c;
};
struct Knot {
  double t, d;
};

// By Cramer's rule: the order of operations is part of the result.
inline CubicCoefficients cubicThrough(Knot p, Knot q, Knot r) {
  const double p2 = p.t * p.t, q2 = q.t * q.t, r2 = r.t * r.t;
  const double p3 = p2 * p.t, q3 = q2 * q.t, r3 = r2 * r.t;
  const double squares = q2 * r.t - r2 * q.t, cubes = q3 * r.t - r3 * q.t, both = q3 * r2 - r3 * q2;
  const double values = q.d * r.t - r.d * q.t, valuesOfSquares = q.d * r2 - r.d * q2,
               valuesOfCubes = q3 * r.d - r3 * q.d;
  const double inverse = 1.0 / (p3 * squares - p2 * cubes + p.t * both);
  return {(p.d * squares - p2 * values + p.t * valuesOfSquares) * inverse,
          (p3 * values - p.d * cubes + p.t * valuesOfCubes) * inverse,
          (p3 * (q2 * r.d - r2 * q.d) - p2 * valuesOfCubes + p.d * both) * inverse};
}

// The curve of a piece. Differences are exact in integers, and those of floats in floats.
template <typename L>
CubicCoefficients cubicOf(const LevelList<L>& list, int piece) {
  const int first = std::min(std::max(piece - 1, 0), list.count - 4), origin = first + 1;
  const auto difference = [&](Unaligned<L> of, int k) -> double {
    if constexpr (std::is_integral_v<L>)
      return static_cast<double>(of[k]) - static_cast<double>(of[origin]);
    else
      return of[k] - of[origin];
  };
  const auto knot = [&](int k) { return Knot{difference(list.levels, k), difference(list.values, k)}; };
  return cubicThrough(knot(first), knot(first + 2), knot(first + 3));
}

}  // namespace lumi
