// SPDX-License-Identifier: MIT
// Box filtering with all that windows cover in memory.
#include "lumi/filter_box.h"

#include <cstring>
#include <type_traits>

#include "dispatch/copy.hpp"
#include "filters/box_mean.hpp"
#include "filters/window_checks.hpp"
#include "filters/window_walk.hpp"
#include "frame/check.hpp"
#include "frame/layout.hpp"
#include "kernels/filters/filter_box.hpp"

namespace lumi {

Reciprocal wordReciprocal(LumiSize window) {
  if (window.width + window.height == 3) return {4096, 13};
  const float r = reciprocalOf(window);
  if (r == 1.0F) return {4096, 12};
  auto u = static_cast<uint32_t>(static_cast<double>(r) * 4294967295.0);
  int shift = 12;
  for (; (u >> 31) == 0 && shift < 12 + 24; ++shift) u <<= 1;
  return {(u >> 20) + 1, shift};
}

namespace {

using namespace check;

constexpr int64_t kLargestIntegerArea = 8100;  // up to it a sum of bytes times its factor is below 2^32

// Whether the steps hold the source's and the destination's rows.
LumStatus rowsHold(int srcStep, int dstStep, int pixelBytes, LumiSize roi, LumiSize mask) {
  const int64_t covered = int64_t{roi.width} + mask.width - 1;
  const bool hold = covered * pixelBytes <= srcStep && int64_t{roi.width} * pixelBytes <= dstStep;
  return hold ? lumStatusOk : lumStatusBadStep;
}

bool isSquare(LumiSize mask, int side) { return mask.width == side && mask.height == side; }

template <typename Layout>
WindowMean byteMean(LumiSize mask, uint16_t) {
  constexpr bool three = std::is_same_v<Layout, C3>, one = std::is_same_v<Layout, C1>;
  if (isSquare(mask, 3) && !std::is_same_v<Layout, C4>) return wordMean(29128, false, 18, 0);
  if (isSquare(mask, 5) && (one || three)) return wordMean(20971, true, 19, 0);
  if (isSquare(mask, 7) && one) return wordMean(10700, true, 19, 0);
  const auto [factor, shift] = wordReciprocal(mask);
  return wordMean(factor, true, shift, shift < 17 ? 17 - shift : 0);
}
template <typename Layout>
WindowMean byteMean(LumiSize mask, uint32_t) {
  if (areaOf(mask) > kLargestIntegerArea) return truncatedMean<uint32_t>(reciprocalOf(mask));
  const auto [factor, shift] = wordReciprocal(mask);
  return dwordMean(factor, shift);
}
template <typename Layout>
WindowMean byteMean(LumiSize mask, float) {
  return truncatedMean<float>(reciprocalOf(mask));
}

template <typename T, typename Layout>
BoxPlan planOf(LumiSize mask) {
  return planOfSums<T>(mask, Layout::kStored, [=](auto sum) {
    if constexpr (sizeof(T) == 1)
      return byteMean<Layout>(mask, sum);
    else if constexpr (std::is_same_v<decltype(sum), uint16_t>)
      return WindowMean{};
    else
      return nearestMean<T, decltype(sum)>(reciprocalOf(mask));
  });
}

// All that windows cover, side by side, as the source of an image that is overwritten otherwise than row by
// row.
void copyCovered(WindowImage& image, Byte* to) {
  const auto bytes = static_cast<size_t>(image.covered()) * static_cast<size_t>(image.sampleBytes);
  const ptrdiff_t left = static_cast<ptrdiff_t>(image.anchor.x) * image.channels * image.sampleBytes;
  const int64_t end = int64_t{image.roi.height} + image.window.height - 1;
  Byte* row = to;
  for (int64_t y = 0; y < end; ++y, row += bytes)
    std::memcpy(row, image.rows.row(static_cast<int>(y - image.anchor.y)) - left, bytes);
  image.rows = {to + image.anchor.y * static_cast<ptrdiff_t>(bytes) + left, static_cast<ptrdiff_t>(bytes)};
}

// A place that may be outside its window: windows begin at the pixels of an image that is moved by it.
void moveToWindows(WindowImage& image) {
  const auto moved = static_cast<uintptr_t>(image.anchor.y) * static_cast<uintptr_t>(image.rows.step) +
                     static_cast<uintptr_t>(image.anchor.x) * static_cast<uintptr_t>(image.sampleBytes);
  image.rows.first = reinterpret_cast<const Byte*>(reinterpret_cast<uintptr_t>(image.rows.first) - moved);
  image.anchor = {0, 0};
}

// Bytes of that copy. Sides are below 2^32 and a pixel has at most 16 bytes.
int64_t coveredBytes(const WindowImage& image) {
  int64_t bytes = 0;
  const int64_t rows = int64_t{image.roi.height} + image.window.height - 1;
  const bool tooMuch = __builtin_mul_overflow(image.covered() * image.sampleBytes, rows, &bytes);
  return tooMuch || bytes > INT64_MAX / 4 ? INT64_MAX / 4 : bytes;
}

template <typename T, typename Layout>
LumStatus storeBox(const WindowImage& image, LumiSize mask, TargetRows dst, int64_t sumBytes,
                   const BoxPlan& plan, Byte* memory) {
  const auto store = [&](const WindowMean& mean, size_t each) {
    return MeanStore{mean, each, sizeof(T), Layout::kStored, Layout::kUsed};
  };
  if constexpr (std::is_floating_point_v<T>) {
    const T area = static_cast<T>(mask.width) * static_cast<T>(mask.height);
    const T reciprocal = sizeof(T) == 8 ? T{1} / area : static_cast<T>(reciprocalOf(mask));
    storeBlockMeans<T>(image, memory, memory + sumBytes, store(floatMean<T>(reciprocal), sizeof(T)), dst);
  } else {
    CoveredRows rows(image, memory + sumBytes);
    storeMeans(image, rows, MovingSums(*plan.sums, image, rows, memory),
               store(plan.mean, plan.sums->sumBytes), dst);
  }
  return lumStatusOk;
}

// Windows with sums in registers.
template <typename Layout>
const WindowFilter* smallBox(LumiSize mask) {
  constexpr bool one = std::is_same_v<Layout, C1>, four = std::is_same_v<Layout, C4>;
  if (isSquare(mask, 3)) return one ? &kBox3x3 : four ? &kBox3x3Nearest : &kBox3x3Colours;
  return isSquare(mask, 5) && (one || std::is_same_v<Layout, C3>) ? &kBox5x5 : nullptr;
}

// Of arguments that are right.
template <typename T, typename Layout>
LumStatus box(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, LumiSize mask, LumiPoint anchor) {
  const bool inPlace = src == dst;
  WindowImage image{rows(src, srcStep), roi, Layout::kStored, sizeof(T), mask, anchor};
  if constexpr (sizeof(T) == 8) moveToWindows(image);
  image.takeSurroundings();
  if constexpr (sizeof(T) == 1)
    if (const WindowFilter* const filter = inPlace ? nullptr : smallBox<Layout>(mask)) {
      if (mask.width == 3) countPath(Path::BoxOfThree);
      const int reach = mask.width / 2;
      const Byte* const centre =
          image.rows.row(reach - anchor.y) + (reach - anchor.x) * kPixelBytes<T, Layout>;
      filterWindows(*filter, {centre, srcStep}, rows(dst, dstStep), roi, kShape<Layout>);
      return lumStatusOk;
    }
  // Rows are overwritten one after the other where none of them reaches into its neighbours.
  const bool apart = srcStep == dstStep && image.covered() * image.sampleBytes <= srcStep;
  const bool copies = inPlace && (!apart || sizeof(T) == 8);
  image.overwritten = inPlace && !copies;
  BoxPlan plan{};
  if constexpr (std::is_integral_v<T>) plan = planOf<T, Layout>(mask);
  int64_t sumBytes = 0;
  if constexpr (std::is_integral_v<T>)
    sumBytes = MovingSums::bytes(image, plan.sums->sumBytes);
  else
    sumBytes = BlockSums<T>::bytes(image);
  const int64_t kept = copies ? coveredBytes(image) : image.keptBytes();
  WindowMemory scratch(sumBytes + kept);
  if (!scratch) return lumStatusNoMemory;
  if (copies) copyCovered(image, scratch.data() + sumBytes);
  return storeBox<T, Layout>(image, mask, rows(dst, dstStep), sumBytes, plan, scratch.data());
}

// The mean of a pixel is the pixel.
template <typename T, typename Layout>
LumStatus boxOrCopy(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, LumiSize mask,
                    LumiPoint anchor) {
  if (areaOf(mask) == 1) return call::CopyR<T, Layout>(src, srcStep, dst, dstStep, roi);
  return box<T, Layout>(src, srcStep, dst, dstStep, roi, mask, anchor);
}

template <typename T, typename Layout>
LumStatus filterBox(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, LumiSize mask,
                    LumiPoint anchor) {
  if (LumStatus fault = firstFault(pointers(src, dst), steps(srcStep, dstStep), size(roi), maskSize(mask),
                                   anchorIn(anchor, mask)))
    return fault;
  return boxOrCopy<T, Layout>(src, srcStep, dst, dstStep, roi, mask, anchor);
}

template <typename T, typename Layout>
LumStatus filterBox(T* srcDst, int step, LumiSize roi, LumiSize mask, LumiPoint anchor) {
  return filterBox<T, Layout>(srcDst, step, srcDst, step, roi, mask, anchor);
}

template <typename T, typename Layout>
LumStatus filterBoxRows(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, LumiSize mask,
                        LumiPoint anchor) {
  if (LumStatus fault =
          firstFault(pointers(src, dst), steps(srcStep, dstStep), size(roi), maskSize(mask),
                     anchorIn(anchor, mask), rowsHold(srcStep, dstStep, kPixelBytes<T, Layout>, roi, mask)))
    return fault;
  return boxOrCopy<T, Layout>(src, srcStep, dst, dstStep, roi, mask, anchor);
}

template <typename T, typename Layout>
LumStatus filterBoxDoubles(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, LumiSize mask,
                           LumiPoint place) {
  if (LumStatus fault = firstFault(pointers(src, dst), size(roi), size(mask),
                                   rowsHold(srcStep, dstStep, sizeof(T), roi, mask)))
    return fault;
  return box<T, Layout>(src, srcStep, dst, dstStep, roi, mask, place);
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/filter_box.inc"
