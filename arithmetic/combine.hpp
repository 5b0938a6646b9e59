// SPDX-License-Identifier: MIT
// The frame of operations on two images, and on an image and a constant: checks, choice of the path, rows.
//
// A family tells of an operation, which its kernels know by the same tag, by a specialization of Operation:
//   fault<T>(how, roi, steps...)  what is checked after the pointers; how is the scale factor, or what else
//                                 tells how results are made
//   scaling<T>(how)               the path, or what else functions are chosen by; none where all is zero
//   kStreams                      whether rows that the frame streams for others are streamed
//   Sample<T>                     what the kernels take a sample for: itself, or its real parts
//   outcome(value, scaleFactor)   what a single constant integer makes of any image
//
// Functions are each source's own, so that compilers may pass their arguments as they like: in registers.
#pragma once

#include "arithmetic/scaling.hpp"
#include "dispatch/copy.hpp"
#include "dispatch/set.hpp"
#include "frame/check.hpp"
#include "frame/constant.hpp"
#include "frame/streaming.hpp"
#include "frame/zero.hpp"
#include "kernels/arithmetic/combine.hpp"

namespace lumi {

enum class Outcome {
  Combined,   // no short cut
  Copied,     // the image as it is
  AllZero,    // fills, which read no source
  AllLargest  // with the largest sample
};

template <typename Op>
struct Operation;

// Of operations with a scale factor. Limits::kLargestScale<T> is the largest that leaves anything of T
// samples; floats take none. Complex members alone check the steps.
template <typename Limits>
struct ScaledOperation {
  static constexpr bool kStreams = true;
  template <typename T, typename... Step>
  static LumStatus fault(int, LumiSize roi, Step... steps) {
    return check::firstFault(check::size(roi), kComponents<T> == 1 ? lumStatusOk : check::steps(steps...));
  }
  template <typename T>
  static std::optional<Scaling> scaling(int scaleFactor) {
    if constexpr (std::is_floating_point_v<Component<T>>)
      return Scaling();
    else
      return scalingOf<Component<T>>(scaleFactor, Limits::template kLargestScale<T>);
  }
};

// How the kernels of an operation see a layout.
template <typename Op, typename T, typename Layout>
struct Seen {
  using Sample = typename Operation<Op>::template Sample<T>;
  static constexpr int kParts = sizeof(T) / sizeof(Sample);
  static constexpr int kPixelSamples = Layout::kStored * kParts;
  static constexpr int kAlpha = (Layout::kStored - Layout::kUsed) * kParts;
};

// The one thing that samples can be marked for is a zero that divides.
template <typename Op, typename T, typename Layout, typename How>
static LumStatus combineImages(const T* src1, int src1Step, const T* src2, int src2Step, T* dst, int dstStep,
                               LumiSize roi, How how) {
  if (LumStatus fault =
          check::firstFault(check::pointers(src1, src2, dst),
                            Operation<Op>::template fault<T>(how, roi, src1Step, src2Step, dstStep)))
    return fault;
  const auto scaling = Operation<Op>::template scaling<T>(how);
  if (!scaling) return fillZero<T, Layout>(dst, dstStep, roi);
  using As = Seen<Op, T, Layout>;
  bool bad = false;
  runFused(
      roi,
      [&](SourceRows a, SourceRows b, TargetRows d, Extent pixels) {
        bad = combineRows<Op, typename As::Sample, As::kAlpha>(a, b, d, pixels.times(As::kPixelSamples),
                                                               *scaling);
      },
      pixelRows<Layout>(src1, src1Step), pixelRows<Layout>(src2, src2Step), pixelRows<Layout>(dst, dstStep));
  return bad ? lumStatusDivideByZeroWarning : lumStatusOk;
}

// What is done to all channels alike is done to a row of samples: the width is checked and multiplied, as
// unsigned numbers wrap, before anything else is looked at.
template <typename Op, typename T, typename Layout, typename How = int>
static LumStatus combine(const T* src1, int src1Step, const T* src2, int src2Step, T* dst, int dstStep,
                         LumiSize roi, How how = How()) {
  if constexpr (Layout::kUsed == Layout::kStored && Layout::kStored > 1) {
    if (LumStatus fault = check::width(roi)) return fault;
    roi.width = static_cast<int>(static_cast<unsigned>(roi.width) * Layout::kStored);
    return combineImages<Op, T, C1>(src1, src1Step, src2, src2Step, dst, dstStep, roi, how);
  } else {
    return combineImages<Op, T, Layout>(src1, src1Step, src2, src2Step, dst, dstStep, roi, how);
  }
}

// In place.
template <typename Op, typename T, typename Layout, typename How = int>
static LumStatus combine(const T* src, int srcStep, T* srcDst, int srcDstStep, LumiSize roi,
                         How how = How()) {
  return combine<Op, T, Layout>(src, srcStep, srcDst, srcDstStep, srcDst, srcDstStep, roi, how);
}

// What a constant comes to is looked at in single channels of integers.
template <typename T, typename Layout>
constexpr bool kHasOutcome = std::is_integral_v<T>&& std::is_same_v<Layout, C1>;

template <typename T, typename Layout>
static LumStatus settle(Outcome outcome, const T* src, int srcStep, T* dst, int dstStep, LumiSize roi) {
  if (outcome == Outcome::AllZero) return fillZero<T, Layout>(dst, dstStep, roi);
  if (outcome == Outcome::AllLargest)
    return call::SetR<T, Layout>(std::numeric_limits<T>::max(), dst, dstStep, roi);
  return src == dst && srcStep == dstStep ? lumStatusOk
                                          : call::CopyR<T, Layout>(src, srcStep, dst, dstStep, roi);
}

// Rows of three 16-bit complex samples bypass the cache where both images together span a mebibyte and are
// not the same, and where samples begin on their boundaries; no fence follows.
template <typename Op, typename T, typename Layout>
constexpr bool kMayStream = Operation<Op>::kStreams&& std::is_same_v<T, Lum16sc>&& std::is_same_v<Layout, C3>;

inline bool streamsRows(int srcStep, const Lum16sc* dst, int dstStep, int height) {
  const bool aligned = ((reinterpret_cast<uintptr_t>(dst) | static_cast<uintptr_t>(dstStep)) & 3) == 0;
  return aligned && (int64_t{srcStep} + dstStep) * height >= kStreamingFloor;
}

// The rows themselves, after all checks and short cuts.
template <typename Op, typename T, typename Layout>
static void runConstant(const PixelPattern& constant, const T* src, int srcStep, T* dst, int dstStep,
                        LumiSize roi, ChoiceOf<Op> choice) {
  using As = Seen<Op, T, Layout>;
  constexpr bool ofThree = Layout::kStored == 3;
  bool streaming = false;
  if constexpr (kMayStream<Op, T, Layout>)
    streaming = src != dst && streamsRows(srcStep, dst, dstStep, roi.height);
  runFused(
      roi,
      [&](SourceRows s, TargetRows d, Extent pixels) {
        const Extent samples = pixels.times(As::kPixelSamples);
        using Sample = typename As::Sample;
        if constexpr (kMayStream<Op, T, Layout>)
          if (streaming)
            return combineWithConstant<Op, Sample, As::kAlpha, ofThree, true>(constant, s, d, samples,
                                                                              choice);
        combineWithConstant<Op, Sample, As::kAlpha, ofThree>(constant, s, d, samples, choice);
      },
      pixelRows<Layout>(src, srcStep), pixelRows<Layout>(dst, dstStep));
}

template <typename Op, typename T, typename Layout, typename Value>
static LumStatus combineConstant(const T* src, int srcStep, Value value, T* dst, int dstStep, LumiSize roi,
                                 int scaleFactor = 0) {
  if (LumStatus fault =
          check::firstFault(check::pointers(value, src, dst),
                            Operation<Op>::template fault<T>(scaleFactor, roi, srcStep, dstStep)))
    return fault;
  const auto scaling = Operation<Op>::template scaling<T>(scaleFactor);
  if (!scaling) return fillZero<T, Layout>(dst, dstStep, roi);
  if constexpr (kHasOutcome<T, Layout>) {
    const Outcome outcome = Operation<Op>::outcome(value, scaleFactor);
    if (outcome != Outcome::Combined) return settle<T, Layout>(outcome, src, srcStep, dst, dstStep, roi);
  }
  runConstant<Op, T, Layout>(patternOf<T, Layout>(value), src, srcStep, dst, dstStep, roi, *scaling);
  return lumStatusOk;
}

// In place.
template <typename Op, typename T, typename Layout, typename Value>
static LumStatus combineConstant(Value value, T* srcDst, int srcDstStep, LumiSize roi, int scaleFactor = 0) {
  return combineConstant<Op, T, Layout>(srcDst, srcDstStep, value, srcDst, srcDstStep, roi, scaleFactor);
}

}  // namespace lumi
