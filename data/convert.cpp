// SPDX-License-Identifier: MIT
// Change of sample type: plain, from floats by a round mode, with a scale factor.
#include "lumi/convert.h"

#include <cstring>
#include <limits>
#include <type_traits>

#include "frame/check.hpp"
#include "frame/layout.hpp"
#include "frame/rounding_control.hpp"
#include "frame/rows.hpp"
#include "frame/streaming.hpp"
#include "frame/zero.hpp"
#include "kernels/data/convert.hpp"
#include "kernels/fence.hpp"

namespace lumi {
namespace {

using namespace check;

// The conversions whose stores bypass the cache where the images are large.
template <typename S, typename D, typename Layout>
constexpr bool mayStream() {
  if (kAlpha<S, Layout> != 0) return false;
  if (std::is_same_v<S, Lum8u>) return !std::is_same_v<D, Lum8s>;
  if (std::is_same_v<S, Lum8s>) return std::is_same_v<D, Lum32s> || std::is_same_v<D, Lum32f>;
  if (std::is_same_v<S, Lum16s> || std::is_same_v<S, Lum16u>)
    return std::is_same_v<D, Lum32f> || std::is_same_v<D, Lum8u>;
  return false;
}

template <typename S, typename D, typename Layout>
LumStatus convert(const S* src, int srcStep, D* dst, int dstStep, LumiSize roi) {
  if (LumStatus fault = firstFault(pointers(src, dst), size(roi), steps(srcStep, dstStep))) return fault;
  constexpr int movedBytes = kPixelBytes<S, Layout> + kPixelBytes<D, Layout>;
  if constexpr (mayStream<S, D, Layout>()) {
    if (streamsOperation(bytesMoved(roi, movedBytes))) {
      runSamples<Layout>(src, srcStep, dst, dstStep, roi, convertRows<S, D, 0, true>);
      storeFence();
      return lumStatusOk;
    }
  }
  runSamples<Layout>(src, srcStep, dst, dstStep, roi, convertRows<S, D, kAlpha<S, Layout>>);
  return lumStatusOk;
}

// To a type without negative values.
template <typename S, typename D, typename Layout>
LumStatus convertNegativeToZero(const S* src, int srcStep, D* dst, int dstStep, LumiSize roi) {
  if (LumStatus fault = firstFault(pointers(src, dst), size(roi))) return fault;
  runSamples<Layout>(src, srcStep, dst, dstStep, roi, convertRows<S, D, 0>);
  return lumStatusOk;
}

// Converts with the rounding control as the mode asks, and puts it back.
template <typename S, typename D, typename Layout>
void convertRounding(const S* src, int srcStep, D* dst, int dstStep, LumiSize roi, LumRoundMode mode,
                     FloatConversion how) {
  how.away = mode != lumRoundTowardZero && mode != lumRoundNearestEven;
  const unsigned before = setRounding(mode == lumRoundNearestEven ? Rounding::Nearest : Rounding::Truncate);
  runSamples<Layout>(src, srcStep, dst, dstStep, roi, [&](SourceRows s, TargetRows d, Extent samples) {
    convertFloatRows<D, kAlpha<S, Layout>>(s, d, samples, how);
  });
  restoreRounding(before);
}

template <typename S, typename D, typename Layout>
LumStatus convertFloats(const S* src, int srcStep, D* dst, int dstStep, LumiSize roi, LumRoundMode mode) {
  if (LumStatus fault = firstFault(pointers(src, dst), size(roi), steps(srcStep, dstStep))) return fault;
  convertRounding<S, D, Layout>(src, srcStep, dst, dstStep, roi, mode, {});
  return lumStatusOk;
}

// 2^-s as 1 doubled or halved |s| times: infinite or 0 where that leaves the floats. It is put together from
// its bits, so that the caller's rounding control has no say in it.
float factorOf(int s) {
  uint32_t bits = 0;
  if (s < -127)
    bits = 0x7F800000;
  else if (s <= 126)
    bits = static_cast<uint32_t>(127 - s) << 23;
  else if (s <= 149)
    bits = uint32_t{1} << (149 - s);  // a denormal
  float factor;
  std::memcpy(&factor, &bits, sizeof factor);
  return factor;
}

template <typename S, typename D, typename Layout>
LumStatus convertFloatsScaled(const S* src, int srcStep, D* dst, int dstStep, LumiSize roi, LumRoundMode mode,
                              int scaleFactor) {
  if (LumStatus fault = firstFault(pointers(src, dst), size(roi))) return fault;
  convertRounding<S, D, Layout>(src, srcStep, dst, dstStep, roi, mode,
                                {false, scaleFactor != 0, factorOf(scaleFactor)});
  return lumStatusOk;
}

// Floats that make room for integers of their size.
template <typename S, typename D, typename Layout>
LumStatus convertFloatsScaledInPlace(D* srcDst, int step, LumiSize roi, LumRoundMode mode, int scaleFactor) {
  return convertFloatsScaled<S, D, Layout>(reinterpret_cast<const S*>(srcDst), step, srcDst, step, roi, mode,
                                           scaleFactor);
}

// Scale factors above the first give 0 everywhere; below the second, the limit on the sample's side. They are
// given, not derived: some results inside and outside them would be others. None of the first exceeds the
// bits of a sample, beyond which nothing is left by the formula either.
struct ScaleLimits {
  int zeroAbove, extremeBelow;
};

template <typename S, typename D>
constexpr ScaleLimits scaleLimits() {
  if (std::is_same_v<S, Lum8u>) return {8, -6};
  if (std::is_same_v<S, Lum16s>) return {16, -6};
  if (std::is_same_v<S, Lum16u>) return std::is_same_v<D, Lum8s> ? ScaleLimits{15, -6} : ScaleLimits{16, -14};
  if (std::is_same_v<S, Lum32s>) return {32, -14};
  if (std::is_same_v<D, Lum32s>) return {32, -30};
  if (sizeof(D) == 1) return {15, -6};
  return {std::is_same_v<D, Lum16s> ? 31 : 32, -15};
}

// Inside the limits. Multiplied by 2^n, where 2^n - 1 is the highest value, every sample but 0 is beyond it.
template <typename S, typename D>
Rescaling rescaling(LumRoundMode mode, int s) {
  if (s == 0) return {Rescaling::Saturate, 0};
  if (s < scaleLimits<S, D>().extremeBelow) return {Rescaling::Multiply, std::numeric_limits<D>::digits};
  if (s < 0) return {Rescaling::Multiply, -s};
  if (mode == lumRoundTowardZero) return {Rescaling::Truncate, s};
  return {mode == lumRoundNearestEven ? Rescaling::RoundEven : Rescaling::RoundAway, s};
}

template <typename S, typename D, typename Layout>
LumStatus convertScaled(const S* src, int srcStep, D* dst, int dstStep, LumiSize roi, LumRoundMode mode,
                        int scaleFactor) {
  if (LumStatus fault = firstFault(pointers(src, dst), size(roi))) return fault;
  if (scaleFactor > scaleLimits<S, D>().zeroAbove) return fillZero<D, Layout>(dst, dstStep, roi);
  const Rescaling how = rescaling<S, D>(mode, scaleFactor);
  runSamples<Layout>(src, srcStep, dst, dstStep, roi, [&](SourceRows s, TargetRows d, Extent samples) {
    convertScaledRows<S, D>(s, d, samples, how);
  });
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/convert.inc"
