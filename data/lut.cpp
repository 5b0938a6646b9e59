// SPDX-License-Identifier: MIT
// Look-up by levels and values: functions that are constant, linear or cubic between levels. Integers become
// tables, one for each channel; floats look for their piece.
#include "lumi/lut.h"

#include <algorithm>
#include <limits>

#include "data/lut_bytes.hpp"
#include "data/lut_levels.hpp"
#include "data/lut_pieces.hpp"
#include "frame/rows.hpp"
#include "frame/scratch.hpp"
#include "kernels/data/lut.hpp"
#include "kernels/data/lut_table.hpp"

namespace lumi {
namespace {

template <typename T>
constexpr int kLow = std::numeric_limits<T>::min();
template <typename T>
constexpr int kEnd = std::numeric_limits<T>::max() + 1;  // of the values that a table has entries for

template <typename T>
T saturated(Lum32s value) {
  return static_cast<T>(std::clamp<Lum32s>(value, kLow<T>, kEnd<T> - 1));
}

// The values below the first level, and those from the last one on.
template <typename T>
void fillBelow(const LevelList<Lum32s>& list, T* table) {
  fillIdentity(table, kLow<T>, std::min(list.levels[0], kEnd<T>));
}
template <typename T>
void fillAbove(const LevelList<Lum32s>& list, T* table) {
  fillIdentity(table, std::max(list.levels[list.pieces()], kLow<T>), kEnd<T>);
}

// The pieces of curves: fill(piece, from, to). The lower level is limited below the end, so that a piece
// beyond it has the last entry.
template <typename T, typename Fill>
void fillPieces(const LevelList<Lum32s>& list, T* table, const Fill& fill) {
  for (int k = 0; k < list.pieces(); ++k) {
    if (list.levels[k + 1] <= list.levels[k]) continue;
    const int from = std::clamp(list.levels[k], kLow<T>, kEnd<T> - 1),
              to = std::clamp(list.levels[k + 1], kLow<T>, kEnd<T>);
    if (to - from == 1)
      fillConstant(table, from, to, saturated<T>(list.values[k]));
    else
      fill(k, from, to);
  }
}

template <typename T>
void makeTable(Constant, const LevelList<Lum32s>& list, T* table) {
  fillBelow(list, table);
  for (int k = 0; k < list.pieces(); ++k)
    fillConstant(table, std::clamp(list.levels[k], kLow<T>, kEnd<T>),
                 std::clamp(list.levels[k + 1], kLow<T>, kEnd<T>), saturated<T>(list.values[k]));
  fillAbove(list, table);
}

template <typename T>
void makeTable(Linear, const LevelList<Lum32s>& list, T* table) {
  fillBelow(list, table);
  fillAbove(list, table);
  fillPieces(list, table, [&](int k, int from, int to) {
    const double level = list.levels[k], value = list.values[k];
    const double slope = (list.values[k + 1] - value) / (list.levels[k + 1] - level);  // of exact differences
    fillLine(table, from, to, {value + 0.5 - level * slope, slope});
  });
}

template <typename T>
void makeTable(Cubic, const LevelList<Lum32s>& list, T* table) {
  fillBelow(list, table);
  fillAbove(list, table);
  fillPieces(list, table, [&](int k, int from, int to) {
    const int origin = originOf(k, list.count);
    const CubicCoefficients curve = cubicOf(list, k);
    fillCurve(
        table, from, to,
        {static_cast<double>(list.levels[origin]), list.values[origin] + 0.5, curve.a, curve.b, curve.c});
  });
}

// Entries of a table, and behind the last one what filling it may read and store back.
template <typename T>
constexpr size_t kTableEntries = size_t{1} << (8 * sizeof(T));
constexpr size_t kBehindTables = 16;

template <typename Form, typename T, typename Lists>
void makeTables(const Lists& lists, T* tables) {
  for (size_t c = 0; c < lists.size(); ++c) makeTable(Form(), lists[c], tables + c * kTableEntries<T>);
}

template <typename T, typename Layout>
void lookUpPixels(SourceRows src, TargetRows dst, Extent pixels, const T* tables) {
  using Pixel = PixelLayout<Layout::kUsed, Layout::kStored, Layout::kStored>;
  lookUpRows<sizeof(T), sizeof(T), Pixel>(src, dst, pixels, reinterpret_cast<const Byte*>(tables));
}

template <typename Form, typename Layout>
LumStatus runBytes(SourceRows src, TargetRows dst, Extent pixels, const LevelLists<Lum32s, Layout>& lists) {
  Lum8u tables[kTableEntries<Lum8u> * static_cast<size_t>(Layout::kUsed) + kBehindTables];
  makeTables<Form>(lists, tables);
  lookUpBytesOf<Layout>(src, dst, pixels, tables);
  return lumStatusOk;
}

// So many steps take less time than tables that the nearest cache does not hold.
constexpr int kStepsBeforeTables = 8;

// Signed samples have tables like unsigned ones: their bits are the index. That a call fails without memory
// for the tables is part of the interface, so that steps, which need none, ask for it too.
template <typename Form, typename T, typename Layout>
LumStatus runWords(SourceRows src, TargetRows dst, Extent pixels, const LevelLists<Lum32s, Layout>& lists) {
  const Scratch scratch(static_cast<int64_t>(kTableEntries<T> * sizeof(T) * lists.size() + kBehindTables));
  if (!scratch) return lumStatusNoMemory;
  if constexpr (std::is_same_v<Form, Constant>) {
    if (haveFewSteps(lists, kStepsBeforeTables)) {
      runIntegerSteps<T, Layout>(src, dst, pixels, lists);
      return lumStatusOk;
    }
  }
  T* const tables = static_cast<T*>(scratch.data());
  makeTables<Form>(lists, tables);
  lookUpPixels<T, Layout>(src, dst, pixels, tables);
  return lumStatusOk;
}

template <typename Form, typename T, typename Layout, typename L>
LumStatus run(SourceRows src, TargetRows dst, Extent pixels, const LevelLists<L, Layout>& lists) {
  if constexpr (std::is_floating_point_v<T>)
    return runFloats<Form, Layout>(src, dst, pixels, lists);
  else if constexpr (sizeof(T) == 1)
    return runBytes<Form, Layout>(src, dst, pixels, lists);
  else
    return runWords<Form, T, Layout>(src, dst, pixels, lists);
}

// Where making a table would take longer than the image.
constexpr int64_t kMostDirectPixels = 4096;

template <typename Form, typename T, typename Layout>
constexpr bool kMayBeDirect = std::is_same_v<Form, Constant>&& std::is_integral_v<T> &&
                              sizeof(T) == 2 && Layout::kUsed == Layout::kStored&& Layout::kStored < 4;

template <typename Form, typename T, typename Layout, typename L>
LumStatus lookUpLists(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi,
                      const LevelLists<L, Layout>& lists) {
  const auto from = pixelRows<Layout>(src, srcStep);
  const auto to = pixelRows<Layout>(dst, dstStep);
  const Extent pixels = fusedExtent(roi, from, to);
  if constexpr (kMayBeDirect<Form, T, Layout>) {
    if (int64_t{roi.width} * roi.height <= kMostDirectPixels) {
      runDirectly<T, Layout>(from, to, pixels, lists);
      return lumStatusOk;
    }
  }
  if constexpr (std::is_same_v<Form, Cubic>) {
    const auto isShort = [](const LevelList<L>& list) { return list.count < 4; };
    if (std::any_of(lists.begin(), lists.end(), isShort))
      return run<Linear, T, Layout>(from, to, pixels, lists);
  }
  return run<Form, T, Layout>(from, to, pixels, lists);
}

template <typename Form, typename T, typename Layout, typename Values, typename Count>
LumStatus lookUp(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, Values values, Values levels,
                 Count count) {
  LumStatus fault = lumStatusOk;
  if constexpr (Layout::kStored == 1)
    fault = check::levelCall(src, srcStep, dst, dstStep, roi, values, levels, count);
  else
    fault = check::levelCall<Layout>(src, srcStep, dst, dstStep, roi, values, levels, count);
  if (fault) return fault;
  return lookUpLists<Form, T, Layout>(src, srcStep, dst, dstStep, roi,
                                      levelLists<Layout>(values, levels, count));
}

template <typename Form, typename T, typename Layout, typename Values, typename Count>
LumStatus lookUpInPlace(T* srcDst, int step, LumiSize roi, Values values, Values levels, Count count) {
  return lookUp<Form, T, Layout>(srcDst, step, srcDst, step, roi, values, levels, count);
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/lut.inc"
