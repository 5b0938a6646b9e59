// SPDX-License-Identifier: MIT
// Sums of absolute differences between a template and the windows of an image.
#include "lumi/sad.h"

#include "frame/check.hpp"
#include "frame/layout.hpp"
#include "frame/rows.hpp"
#include "frame/zero.hpp"
#include "kernels/statistics/sad.hpp"

namespace lumi {
namespace {

using namespace check;

constexpr int kInside = 0x10000;
// From here on half of a divisor is more than any sum.
constexpr int kLeastScaleOfZero = 33;

constexpr LumStatus modeIsKnown(int mode) { return mode == kInside ? lumStatusOk : lumStatusUnsupportedMode; }

// Steps of 32-bit samples.
template <typename... Step>
constexpr LumStatus ofDwords(Step... each) {
  return ((each % 4 != 0) || ...) ? lumStatusBadStep : lumStatusOk;
}

LumiSize windowsOf(LumiSize src, LumiSize tpl) {
  return {src.width - tpl.width + 1, src.height - tpl.height + 1};
}

bool isEmpty(LumiSize size) { return size.width < 1 || size.height < 1; }

// Whether a corner, the first byte of its sample, lies in a row of the image.
template <typename T>
bool holdsCorner(const T* image, int step, LumiSize size, const uintptr_t (&corners)[4]) {
  const auto rowBytes = static_cast<size_t>(size.width) * sizeof(T);
  for (int y = 0; y < size.height; ++y) {
    const auto row = reinterpret_cast<uintptr_t>(rows(image, step).row(y));
    for (const uintptr_t corner : corners)
      if (corner - row < rowBytes) return true;
  }
  return false;
}

// The images of a call.
template <typename T, typename D>
struct Images {
  const T* src;
  int srcStep;
  LumiSize srcSize;
  const T* tpl;
  int tplStep;
  LumiSize tplSize;
  D* dst;
  int dstStep;

  LumStatus sizes() const { return firstFault(size(srcSize), size(tplSize)); }
  // A destination without samples overlaps nothing.
  LumStatus areApart() const {
    const LumiSize windows = windowsOf(srcSize, tplSize);
    if (isEmpty(windows)) return lumStatusOk;
    const auto top = reinterpret_cast<uintptr_t>(dst),
               bottom = reinterpret_cast<uintptr_t>(rows(dst, dstStep).row(windows.height - 1)),
               right = static_cast<uintptr_t>(windows.width - 1) * sizeof(D);
    const uintptr_t corners[] = {top, top + right, bottom, bottom + right};
    const bool overlap =
        holdsCorner(src, srcStep, srcSize, corners) || holdsCorner(tpl, tplStep, tplSize, corners);
    return overlap ? lumStatusUnsupportedMode : lumStatusOk;
  }
  void sum(int scale) const {
    const LumiSize windows = windowsOf(srcSize, tplSize);
    if (isEmpty(windows)) return;
    sumDifferences<T>(rows(src, srcStep), rows(tpl, tplStep),
                      {static_cast<size_t>(tplSize.width), tplSize.height}, rows(dst, dstStep),
                      {static_cast<size_t>(windows.width), windows.height}, scale);
  }
};

template <typename T, typename D, typename Layout>
LumStatus sadOfIntegers(const T* src, int srcStep, LumiSize srcSize, const T* tpl, int tplStep,
                        LumiSize tplSize, D* dst, int dstStep, int mode, int scaleFactor, Lum8u*) {
  const Images<T, D> images{src, srcStep, srcSize, tpl, tplStep, tplSize, dst, dstStep};
  if (LumStatus fault = firstFault(
          pointers(src, tpl, dst), steps(srcStep, tplStep, dstStep), ofDwords(dstStep), images.sizes(),
          modeIsKnown(mode), [&] { return images.areApart(); },
          scaleFactor < 0 ? lumStatusBadArgument : lumStatusOk))
    return fault;
  const LumiSize windows = windowsOf(srcSize, tplSize);
  if (scaleFactor >= kLeastScaleOfZero && !isEmpty(windows))
    return fillZero<D, Layout>(dst, dstStep, windows);
  images.sum(scaleFactor);
  return lumStatusOk;
}

template <typename T, typename Layout>
LumStatus sadOfFloats(const T* src, int srcStep, LumiSize srcSize, const T* tpl, int tplStep,
                      LumiSize tplSize, T* dst, int dstStep, int mode, Lum8u*) {
  const Images<T, T> images{src, srcStep, srcSize, tpl, tplStep, tplSize, dst, dstStep};
  if (LumStatus fault = firstFault(pointers(src, tpl, dst), steps(srcStep, tplStep, dstStep),
                                   ofDwords(srcStep, tplStep, dstStep), images.sizes(), modeIsKnown(mode),
                                   [&] { return images.areApart(); }))
    return fault;
  images.sum(0);
  return lumStatusOk;
}

LumStatus sadBufferSize(LumiSize srcSize, LumiSize tplSize, LumiDataType dataType, int channels, int mode,
                        Lum32s* bufferSize) {
  const bool isKnown =
      dataType == lumiData8u || dataType == lumiData16u || dataType == lumiData16s || dataType == lumiData32f;
  if (LumStatus fault = firstFault(pointers(bufferSize), size(srcSize), size(tplSize),
                                   isKnown ? lumStatusOk : lumStatusBadDataType,
                                   channels == 1 ? lumStatusOk : lumStatusUnsupportedMode, modeIsKnown(mode)))
    return fault;
  *bufferSize = 0;
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/sad.inc"
