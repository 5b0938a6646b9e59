// SPDX-License-Identifier: MIT
// Thresholds: samples beyond them are limited, or replaced by a value.
#include "lumi/threshold.h"

#include <type_traits>

#include "frame/check.hpp"
#include "frame/constant.hpp"
#include "frame/rows.hpp"
#include "frame/streaming.hpp"
#include "kernels/data/threshold.hpp"

namespace lumi {
namespace {

using namespace check;

// Other types and layouts never stream, and never ask for the cache.
template <typename T, typename Layout>
constexpr bool kMayStream = std::is_same_v<T, Lum16u>&& kAlpha<T, Layout> == 0;

bool streams(int64_t resultBytes) {
  if (resultBytes <= 0x40000) return false;
  const auto cache = largestCache();
  return cache && resultBytes > *cache / 2;
}

// The rows, after all checks. No fence follows streaming stores.
template <typename T, typename Layout, typename... Constant>
LumStatus run(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, bool mayStream, Beyond beyond,
              Constant... constants) {
  const PixelPattern patterns[] = {patternOf<T, Layout>(constants)...};
  constexpr bool alpha = kAlpha<T, Layout> != 0, ofThree = Layout::kStored == 3;
  auto* kernel = thresholdRows<T, alpha, ofThree>;
  if constexpr (kMayStream<T, Layout>)
    if (mayStream && streams(bytesMoved(roi, kPixelBytes<T, Layout>)) && src != dst)
      kernel = thresholdRows<T, alpha, ofThree, true>;
  runFused(
      roi,
      [&](SourceRows s, TargetRows d, Extent pixels) {
        kernel(s, d, pixels.times(Layout::kStored), beyond, patterns);
      },
      pixelRows<Layout>(src, srcStep), pixelRows<Layout>(dst, dstStep));
  return lumStatusOk;
}

constexpr LumStatus oneSided(LumCmpOp cmpOp) {
  return cmpOp == lumCmpOpLess || cmpOp == lumCmpOpGreater ? lumStatusOk : lumStatusUnsupportedMode;
}

template <typename T, typename Layout, typename Value>
LumStatus limit(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, Value threshold,
                LumCmpOp cmpOp) {
  if (LumStatus fault = firstFault(pointers(src, dst), size(roi), steps(srcStep, dstStep),
                                   pointers(threshold), oneSided(cmpOp)))
    return fault;
  return run<T, Layout>(src, srcStep, dst, dstStep, roi, true,
                        cmpOp == lumCmpOpLess ? Beyond::LimitedBelow : Beyond::LimitedAbove, threshold);
}

// In place.
template <typename T, typename Layout, typename Value>
LumStatus limit(T* srcDst, int step, LumiSize roi, Value threshold, LumCmpOp cmpOp) {
  return limit<T, Layout>(srcDst, step, srcDst, step, roi, threshold, cmpOp);
}

template <LumCmpOp cmpOp, typename T, typename Layout, typename... Argument>
LumStatus limitTo(Argument... arguments) {
  return limit<T, Layout>(arguments..., cmpOp);
}

template <typename T, typename Layout, typename Value>
LumStatus replace(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, Value threshold, Value value,
                  LumCmpOp cmpOp, bool mayStream = true) {
  if (LumStatus fault = firstFault(oneSided(cmpOp), pointers(src, dst), size(roi), steps(srcStep, dstStep),
                                   pointers(threshold, value)))
    return fault;
  return run<T, Layout>(src, srcStep, dst, dstStep, roi, mayStream,
                        cmpOp == lumCmpOpLess ? Beyond::ReplacedBelow : Beyond::ReplacedAbove, threshold,
                        value);
}

// In place. Members of four channels do not even ask for the cache.
template <typename T, typename Layout, typename Value>
LumStatus replace(T* srcDst, int step, LumiSize roi, Value threshold, Value value, LumCmpOp cmpOp) {
  return replace<T, Layout>(srcDst, step, srcDst, step, roi, threshold, value, cmpOp, Layout::kStored != 4);
}

template <LumCmpOp cmpOp, typename T, typename Layout, typename... Argument>
LumStatus replaceIf(Argument... arguments) {
  return replace<T, Layout>(arguments..., cmpOp);
}

template <typename T, typename Layout, typename Value>
LumStatus replaceBoth(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, Value thresholdLT,
                      Value valueLT, Value thresholdGT, Value valueGT) {
  if (LumStatus fault = firstFault(pointers(src, dst), size(roi), steps(srcStep, dstStep),
                                   pointers(thresholdLT, valueLT, thresholdGT, valueGT), [&] {
                                     return areInOrder<T, Layout>(thresholdLT, thresholdGT)
                                                ? lumStatusOk
                                                : lumStatusBadThresholdOrder;
                                   }))
    return fault;
  return run<T, Layout>(src, srcStep, dst, dstStep, roi, true, Beyond::ReplacedBoth, thresholdLT, valueLT,
                        thresholdGT, valueGT);
}

// In place.
template <typename T, typename Layout, typename Value>
LumStatus replaceBoth(T* srcDst, int step, LumiSize roi, Value thresholdLT, Value valueLT, Value thresholdGT,
                      Value valueGT) {
  return replaceBoth<T, Layout>(srcDst, step, srcDst, step, roi, thresholdLT, valueLT, thresholdGT, valueGT);
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/threshold.inc"
