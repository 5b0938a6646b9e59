// SPDX-License-Identifier: MIT
// Functions of which each sample finds its piece: those of floats, and of small images of 16-bit integers.
#pragma once

#include <algorithm>
#include <limits>

#include "data/lut_levels.hpp"
#include "frame/object.hpp"
#include "frame/scratch.hpp"
#include "kernels/data/lut_pieces.hpp"
#include "kernels/data/lut_search.hpp"
#include "kernels/path_count.hpp"

namespace lumi {

// What a function is between levels.
struct Constant {
  static constexpr int kDegree = 0;
};
struct Linear {
  static constexpr int kDegree = 1;
};
struct Cubic {
  static constexpr int kDegree = 3;
};

// NaN is in no order.
template <typename L>
bool isAscending(const LevelList<L>& list) {
  for (int k = 0; k < list.pieces(); ++k)
    if (!(list.levels[k] <= list.levels[k + 1])) return false;
  return list.levels[0] == list.levels[0];
}

// Whether vectors of steps are the fastest way.
template <typename Lists>
bool haveFewSteps(const Lists& lists, int most = kMostSteps) {
  const bool few = std::all_of(lists.begin(), lists.end(),
                               [=](const auto& list) { return list.pieces() <= most && isAscending(list); });
  if (few) countPath(Path::LookUpSteps);
  return few;
}
template <typename Lists>
int mostPieces(const Lists& lists) {
  int most = 0;
  for (const auto& list : lists) most = std::max(most, list.pieces());
  return most;
}

// Sets a pattern to of(list, piece) of each channel; what alpha gets does not matter. A channel without so
// many pieces repeats its last one.
template <typename Layout, typename T, typename Lists, typename Of>
void setPattern(Pattern<T>& pattern, const Lists& lists, int step, const Of& of) {
  T values[4] = {};
  for (size_t c = 0; c < lists.size(); ++c) values[c] = of(lists[c], std::min(step, lists[c].pieces() - 1));
  pattern.set(values, Layout::kStored);
}

inline Lum32f slopeOf(const LevelList<Lum32f>& list, int piece) {
  return (list.values[piece + 1] - list.values[piece]) / (list.levels[piece + 1] - list.levels[piece]);
}

template <typename Layout, typename Lists>
void setStep(ConstantStep<Lum32f>& step, const Lists& lists, int k) {
  setPattern<Layout>(step.level, lists, k, [](const auto& list, int piece) { return list.levels[piece]; });
  setPattern<Layout>(step.value, lists, k, [](const auto& list, int piece) { return list.values[piece]; });
}
template <typename Layout, typename Lists>
void setStep(LinearStep& step, const Lists& lists, int k) {
  setPattern<Layout>(step.level, lists, k, [](const auto& list, int piece) { return list.levels[piece]; });
  setPattern<Layout>(step.value, lists, k, [](const auto& list, int piece) { return list.values[piece]; });
  setPattern<Layout>(step.slope, lists, k, slopeOf);
}
template <typename Layout, typename Lists>
void setStep(CubicStep& step, const Lists& lists, int k) {
  CubicCoefficients curves[4] = {};
  for (size_t c = 0; c < lists.size(); ++c) curves[c] = cubicOf(lists[c], std::min(k, lists[c].pieces() - 1));
  const auto origin = [](const auto& list, int piece) { return originOf(piece, list.count); };
  setPattern<Layout>(step.level, lists, k, [](const auto& list, int piece) { return list.levels[piece]; });
  setPattern<Layout>(step.value, lists, k,
                     [=](const auto& list, int piece) { return list.values[origin(list, piece)]; });
  setPattern<Layout>(step.origin, lists, k,
                     [=](const auto& list, int piece) { return list.levels[origin(list, piece)]; });
  const auto set = [&](Pattern<double>& pattern, double CubicCoefficients::*which) {
    const double values[] = {curves[0].*which, curves[1].*which, curves[2].*which, curves[3].*which};
    pattern.set(values, Layout::kStored);
  };
  set(step.a, &CubicCoefficients::a);
  set(step.b, &CubicCoefficients::b);
  set(step.c, &CubicCoefficients::c);
}

template <typename Layout, typename Step>
void runSteps(SourceRows src, TargetRows dst, Extent pixels, const LevelLists<Lum32f, Layout>& lists,
              Step* steps) {
  Stepped<Step> pieces{{}, steps, mostPieces(lists), Layout::kStored};
  for (int k = 0; k < pieces.count; ++k) setStep<Layout>(steps[k], lists, k);
  setPattern<Layout>(pieces.last, lists, 0, [](const auto& list, int) { return list.levels[list.pieces()]; });
  piecewiseRows<Step, kAlpha<Lum32f, Layout>>(src, dst, pixels.times(Layout::kStored), pieces);
}

// Functions as each sample searches them; coefficients are there already.
template <int degree, typename Layout>
void runSearch(SourceRows src, TargetRows dst, Extent pixels, const LevelLists<Lum32f, Layout>& lists,
               const double* coefficients) {
  PiecewiseFunction functions[4] = {};
  for (size_t c = 0; c < lists.size(); ++c) {
    functions[c] = {lists[c].levels, lists[c].values, coefficients, lists[c].count, isAscending(lists[c])};
    coefficients += static_cast<size_t>(degree) * static_cast<size_t>(lists[c].pieces());
  }
  searchRows<degree>(src, dst, pixels, functions, Layout::kUsed, Layout::kStored);
}

template <typename Layout>
LumStatus runConstantFloats(SourceRows src, TargetRows dst, Extent pixels,
                            const LevelLists<Lum32f, Layout>& lists) {
  if (haveFewSteps(lists)) {
    ConstantStep<Lum32f> steps[kMostSteps];
    runSteps<Layout>(src, dst, pixels, lists, steps);
  } else {
    runSearch<0, Layout>(src, dst, pixels, lists, nullptr);
  }
  return lumStatusOk;
}

inline void putCoefficients(Linear, const LevelList<Lum32f>& list, int piece, double* to) {
  *to = slopeOf(list, piece);
}
inline void putCoefficients(Cubic, const LevelList<Lum32f>& list, int piece, double* to) {
  const CubicCoefficients curve = cubicOf(list, piece);
  to[0] = curve.a;
  to[1] = curve.b;
  to[2] = curve.c;
}

template <typename Form, typename Layout>
LumStatus runCurvedFloats(SourceRows src, TargetRows dst, Extent pixels,
                          const LevelLists<Lum32f, Layout>& lists) {
  using Step = std::conditional_t<std::is_same_v<Form, Linear>, LinearStep, CubicStep>;
  const bool few = haveFewSteps(lists);
  int64_t doubles = 0;
  for (const auto& list : lists) doubles += int64_t{Form::kDegree} * list.pieces();
  // Steps lie on lines of the cache.
  const int64_t bytes = few ? int64_t{mostPieces(lists)} * int64_t{sizeof(Step)} + int64_t{alignof(Step)}
                            : doubles * int64_t{sizeof(double)};
  const Scratch scratch(bytes);
  if (!scratch) return lumStatusNoMemory;
  if (few) {
    runSteps<Layout>(src, dst, pixels, lists, objectAt<Step>(scratch.data()));
    return lumStatusOk;
  }
  auto* const coefficients = static_cast<double*>(scratch.data());
  double* next = coefficients;
  for (const auto& list : lists)
    for (int k = 0; k < list.pieces(); ++k, next += Form::kDegree) putCoefficients(Form(), list, k, next);
  runSearch<Form::kDegree, Layout>(src, dst, pixels, lists, coefficients);
  return lumStatusOk;
}

template <typename Form, typename Layout>
LumStatus runFloats(SourceRows src, TargetRows dst, Extent pixels, const LevelLists<Lum32f, Layout>& lists) {
  if constexpr (std::is_same_v<Form, Constant>)
    return runConstantFloats<Layout>(src, dst, pixels, lists);
  else
    return runCurvedFloats<Form, Layout>(src, dst, pixels, lists);
}

// Constant pieces of 16-bit integers. Levels that no sample reaches are left out: a channel repeats its last
// step that some sample does.
template <typename T, typename Layout>
void runIntegerSteps(SourceRows src, TargetRows dst, Extent pixels, const LevelLists<Lum32s, Layout>& lists) {
  constexpr int low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max();
  const auto limited = [=](Lum32s x) { return static_cast<T>(std::clamp<Lum32s>(x, low, high)); };
  const auto reached = [](const LevelList<Lum32s>& list, int piece) {
    while (piece > 0 && list.levels[piece] > high) --piece;
    return piece;
  };
  ConstantStep<T> steps[kMostSteps];
  Stepped<ConstantStep<T>> pieces{{}, steps, mostPieces(lists), Layout::kStored};
  for (int k = 0; k < pieces.count; ++k) {
    setPattern<Layout>(steps[k].level, lists, k, [&](const auto& list, int piece) {
      return limited(list.levels[reached(list, piece)]);
    });
    setPattern<Layout>(steps[k].value, lists, k, [&](const auto& list, int piece) {
      return limited(list.values[reached(list, piece)]);
    });
  }
  // Where no sample is inside, the last one lies below the first.
  const auto isEmpty = [](const LevelList<Lum32s>& list) {
    return list.levels[0] > high || list.levels[list.pieces()] <= low;
  };
  setPattern<Layout>(steps[0].level, lists, 0, [&](const auto& list, int) {
    return isEmpty(list) ? T{high} : limited(list.levels[0]);
  });
  setPattern<Layout>(pieces.last, lists, 0, [&](const auto& list, int) {
    return isEmpty(list) ? T{low} : limited(list.levels[list.pieces()] - 1);
  });
  piecewiseRows<ConstantStep<T>, kAlpha<T, Layout>>(src, dst, pixels.times(Layout::kStored), pieces);
}

// The same without a table, whatever the lists.
template <typename T, typename Layout>
void runDirectly(SourceRows src, TargetRows dst, Extent pixels, const LevelLists<Lum32s, Layout>& lists) {
  if (haveFewSteps(lists)) return runIntegerSteps<T, Layout>(src, dst, pixels, lists);
  StepFunction functions[4] = {};
  for (size_t c = 0; c < lists.size(); ++c) functions[c] = {lists[c].levels, lists[c].values, lists[c].count};
  bisectRows<T>(src, dst, pixels, functions, Layout::kStored);
}

}  // namespace lumi
