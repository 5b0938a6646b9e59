// SPDX-License-Identifier: MIT
// Addition and subtraction of images, and of an image and a constant.
#include "lumi/add_sub.h"

#include "arithmetic/scaling.hpp"
#include "dispatch/copy.hpp"
#include "dispatch/set.hpp"
#include "frame/check.hpp"
#include "frame/constant.hpp"
#include "frame/streaming.hpp"
#include "frame/zero.hpp"
#include "kernels/arithmetic/add_sub.hpp"

namespace lumi {
namespace {

using namespace check;

// The scale factors above which every result of the operation rounds to zero: a half of the largest magnitude
// is then at most 2^(s-1), and a tie goes to zero.
template <typename Op, typename T>
constexpr int kLargestScale = std::numeric_limits<T>::digits + 1;
template <>
constexpr int kLargestScale<Sub, Lum8u> = 8;
template <>
constexpr int kLargestScale<Sub, Lum16u> = 16;

// Floats take no scaling.
template <typename Op, typename T>
std::optional<Scaling> scalingFor(int scaleFactor) {
  if constexpr (std::is_floating_point_v<T>)
    return Scaling();
  else
    return scalingOf<T>(scaleFactor, kLargestScale<Op, T>);
}

// Complex members alone check the steps.
template <typename T, typename... Step>
LumStatus complexSteps(Step... each) {
  return kComponents<T> == 1 ? lumStatusOk : steps(each...);
}

template <typename Op, typename T, typename Layout>
LumStatus combineImages(const T* src1, int src1Step, const T* src2, int src2Step, T* dst, int dstStep,
                        LumiSize roi, int scaleFactor) {
  if (LumStatus fault =
          firstFault(pointers(src1, src2, dst), size(roi), complexSteps<T>(src1Step, src2Step, dstStep)))
    return fault;
  using Sample = Component<T>;
  const auto scaling = scalingFor<Op, Sample>(scaleFactor);
  if (!scaling) return fillZero<T, Layout>(dst, dstStep, roi);
  runFused(
      roi,
      [&](SourceRows a, SourceRows b, TargetRows d, Extent pixels) {
        combineRows<Op, Sample, kAlpha<T, Layout>>(a, b, d, pixels.times(kPixelSamples<T, Layout>), *scaling);
      },
      pixelRows<Layout>(src1, src1Step), pixelRows<Layout>(src2, src2Step), pixelRows<Layout>(dst, dstStep));
  return lumStatusOk;
}

// What is done to all channels alike is done to a row of samples: the width is checked and multiplied, as
// unsigned numbers wrap, before anything else is looked at.
template <typename Op, typename T, typename Layout>
LumStatus combine(const T* src1, int src1Step, const T* src2, int src2Step, T* dst, int dstStep, LumiSize roi,
                  int scaleFactor = 0) {
  if constexpr (Layout::kUsed == Layout::kStored && Layout::kStored > 1) {
    if (LumStatus fault = width(roi)) return fault;
    roi.width = static_cast<int>(static_cast<unsigned>(roi.width) * Layout::kStored);
    return combineImages<Op, T, C1>(src1, src1Step, src2, src2Step, dst, dstStep, roi, scaleFactor);
  } else {
    return combineImages<Op, T, Layout>(src1, src1Step, src2, src2Step, dst, dstStep, roi, scaleFactor);
  }
}

// In place.
template <typename Op, typename T, typename Layout>
LumStatus combine(const T* src, int srcStep, T* srcDst, int srcDstStep, LumiSize roi, int scaleFactor = 0) {
  return combine<Op, T, Layout>(src, srcStep, srcDst, srcDstStep, srcDst, srcDstStep, roi, scaleFactor);
}

// A zero constant at scale factor 0 leaves a single channel of integers as it is.
template <typename T, typename Layout>
constexpr bool kCopiesAtZero = std::is_integral_v<T>&& std::is_same_v<Layout, C1>;

// Sums of unsigned samples are all at the maximum where a factor shifts every bit out of a constant that is
// not zero: a fill, which reads no source.
template <typename Op, typename T, typename Layout>
constexpr bool kFillsWhenShiftedOut =
    std::is_same_v<Op, Add>&& std::is_unsigned_v<T>&& std::is_same_v<Layout, C1>;

// Rows of three 16-bit complex samples bypass the cache where both images together span a mebibyte and are
// not the same, and where samples begin on their boundaries; no fence follows.
template <typename T, typename Layout>
constexpr bool kMayStream = std::is_same_v<T, Lum16sc>&& std::is_same_v<Layout, C3>;

bool streamsRows(int srcStep, const Lum16sc* dst, int dstStep, int height) {
  const bool aligned = ((reinterpret_cast<uintptr_t>(dst) | static_cast<uintptr_t>(dstStep)) & 3) == 0;
  return aligned && (int64_t{srcStep} + dstStep) * height >= kStreamingFloor;
}

template <typename Op, typename T, typename Layout, typename Value>
LumStatus combineConstant(const T* src, int srcStep, Value value, T* dst, int dstStep, LumiSize roi,
                          int scaleFactor = 0) {
  if (LumStatus fault = firstFault(pointers(value, src, dst), size(roi), complexSteps<T>(srcStep, dstStep)))
    return fault;
  using Sample = Component<T>;
  const auto scaling = scalingFor<Op, Sample>(scaleFactor);
  if (!scaling) return fillZero<T, Layout>(dst, dstStep, roi);
  if constexpr (kCopiesAtZero<T, Layout>)
    if (scaleFactor == 0 && value == 0)
      return src == dst && srcStep == dstStep ? lumStatusOk
                                              : call::CopyR<T, C1>(src, srcStep, dst, dstStep, roi);
  if constexpr (kFillsWhenShiftedOut<Op, T, Layout>)
    if (scaleFactor < 0 && scaling->bits == std::numeric_limits<T>::digits && value != 0)
      return call::SetR<T, C1>(std::numeric_limits<T>::max(), dst, dstStep, roi);
  constexpr int alpha = kAlpha<T, Layout>;
  constexpr bool ofThree = Layout::kStored == 3;
  const PixelPattern constant = patternOf<T, Layout>(value);
  bool streaming = false;
  if constexpr (kMayStream<T, Layout>)
    streaming = src != dst && streamsRows(srcStep, dst, dstStep, roi.height);
  runFused(
      roi,
      [&](SourceRows s, TargetRows d, Extent pixels) {
        const Extent samples = pixels.times(kPixelSamples<T, Layout>);
        if constexpr (kMayStream<T, Layout>)
          if (streaming)
            return combineWithConstant<Op, Sample, alpha, ofThree, true>(constant, s, d, samples, *scaling);
        combineWithConstant<Op, Sample, alpha, ofThree>(constant, s, d, samples, *scaling);
      },
      pixelRows<Layout>(src, srcStep), pixelRows<Layout>(dst, dstStep));
  return lumStatusOk;
}

// In place.
template <typename Op, typename T, typename Layout, typename Value>
LumStatus combineConstant(Value value, T* srcDst, int srcDstStep, LumiSize roi, int scaleFactor = 0) {
  return combineConstant<Op, T, Layout>(srcDst, srcDstStep, value, srcDst, srcDstStep, roi, scaleFactor);
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/add_sub.inc"
