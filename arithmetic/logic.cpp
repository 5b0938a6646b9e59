// SPDX-License-Identifier: MIT
// Bitwise logic of images, and of an image and a constant.
#include "lumi/logic.h"

#include <cstring>
#include <limits>

#include "frame/check.hpp"
#include "frame/constant.hpp"
#include "frame/rows.hpp"
#include "kernels/arithmetic/logic.hpp"

namespace lumi {
namespace {

using namespace check;

// Kernels work on bytes, and need to know of pixels only where some bytes of each stay.
template <typename Layout>
constexpr bool kKeepsAlpha = Layout::kUsed < Layout::kStored;
template <typename T, typename Layout>
constexpr int kKernelPixel = kKeepsAlpha<Layout> ? kPixelBytes<T, Layout> : 1;
template <typename T, typename Layout>
constexpr int kKernelUsed = kKeepsAlpha<Layout> ? kUsedBytes<T, Layout> : 1;

template <typename Op, typename T, typename Layout>
LumStatus combine(const T* src1, int src1Step, const T* src2, int src2Step, T* dst, int dstStep,
                  LumiSize roi) {
  if (LumStatus fault = firstFault(pointers(src1, src2, dst), steps(src1Step, src2Step, dstStep), size(roi)))
    return fault;
  runFused(
      roi,
      [](SourceRows a, SourceRows b, TargetRows d, Extent pixels) {
        combineBits<Op, kKernelPixel<T, Layout>, kKernelUsed<T, Layout>>(
            a, b, d, pixels.times(kPixelBytes<T, Layout>));
      },
      pixelRows<Layout>(src1, src1Step), pixelRows<Layout>(src2, src2Step), pixelRows<Layout>(dst, dstStep));
  return lumStatusOk;
}

// In place.
template <typename Op, typename T, typename Layout>
LumStatus combine(const T* src, int srcStep, T* srcDst, int srcDstStep, LumiSize roi) {
  return combine<Op, T, Layout>(src, srcStep, srcDst, srcDstStep, srcDst, srcDstStep, roi);
}

template <typename Op, typename T, typename Layout, typename Value>
LumStatus combineConstant(const T* src, int srcStep, Value value, T* dst, int dstStep, LumiSize roi) {
  if (LumStatus fault = firstFault(pointers(value, src, dst), steps(srcStep, dstStep), size(roi)))
    return fault;
  if constexpr (Layout::kStored == 3) {
    // Equal values make a row of samples, whose width wraps as unsigned numbers do and is checked again.
    T values[3];
    std::memcpy(values, value, sizeof values);
    if (values[0] == values[1] && values[1] == values[2]) {
      roi.width = static_cast<int>(static_cast<unsigned>(roi.width) * 3);
      return combineConstant<Op, T, C1>(src, srcStep, values[0], dst, dstStep, roi);
    }
  }
  const PixelPattern constant = patternOf<T, Layout>(value);
  runFused(
      roi,
      [&](SourceRows s, TargetRows d, Extent pixels) {
        combineBitsWithConstant<Op, kKernelPixel<T, Layout>, kKernelUsed<T, Layout>, Layout::kStored == 3>(
            constant, s, d, pixels.times(kPixelBytes<T, Layout>));
      },
      pixelRows<Layout>(src, srcStep), pixelRows<Layout>(dst, dstStep));
  return lumStatusOk;
}

// In place.
template <typename Op, typename T, typename Layout, typename Value>
LumStatus combineConstant(Value value, T* srcDst, int srcDstStep, LumiSize roi) {
  return combineConstant<Op, T, Layout>(srcDst, srcDstStep, value, srcDst, srcDstStep, roi);
}

template <typename T, typename Layout>
LumStatus invert(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi) {
  constexpr T ones = std::numeric_limits<T>::max();
  static constexpr T values[] = {ones, ones, ones, ones};
  if constexpr (Layout::kStored == 1)
    return combineConstant<Xor, T, Layout>(src, srcStep, ones, dst, dstStep, roi);
  else
    return combineConstant<Xor, T, Layout>(src, srcStep, &values[0], dst, dstStep, roi);
}

// In place.
template <typename T, typename Layout>
LumStatus invert(T* srcDst, int srcDstStep, LumiSize roi) {
  return invert<T, Layout>(srcDst, srcDstStep, srcDst, srcDstStep, roi);
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/logic.inc"
