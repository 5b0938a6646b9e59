// SPDX-License-Identifier: MIT
// The magnitude of gradient vectors alone, with checks of its own before theirs.
#include "lumi/filter_sobel.h"

#include <type_traits>

#include "dispatch/gradient_vector.hpp"
#include "frame/border.hpp"
#include "frame/check.hpp"
#include "frame/layout.hpp"

namespace lumi {
namespace {

using namespace check;

LumStatus maskSize(LumiMaskSize mask) {
  return mask == lumiMask3x3 || mask == lumiMask5x5 ? lumStatusOk : lumStatusBadMaskSize;
}
LumStatus normType(int norm) { return norm == 2 || norm == 4 ? lumStatusOk : lumStatusBadArgument; }
LumStatus borderType(LumiBorderType border) {
  const bool isType = BorderMode(border).isOneOf(lumiBorderConst, lumiBorderReplicate, lumiBorderInMemory);
  return isType && border <= 255 ? lumStatusOk : lumStatusBadArgument;
}
template <typename T>
LumStatus multipleOf(int step) {
  return step % static_cast<int>(sizeof(T)) != 0 ? lumStatusOddStep : lumStatusOk;
}

// The types of the name follow from the arguments.
template <typename... Name, typename T, typename D>
LumStatus filterSobel(const T* src, int srcStep, D* dst, int dstStep, LumiSize roi, LumiMaskSize mask,
                      int norm, LumiBorderType border, T borderValue, Lum8u* buffer) {
  if (LumStatus fault =
          firstFault(pointers(src, dst, buffer), size(roi), multipleOf<T>(srcStep), multipleOf<D>(dstStep),
                     maskSize(mask), normType(norm), borderType(border)))
    return fault;
  const auto gradient = [&](auto operation) {
    return operation(src, srcStep, nullptr, 0, nullptr, 0, dst, dstStep, nullptr, 0, roi, mask, norm, border,
                     borderValue, buffer);
  };
  if constexpr (std::is_same_v<T, D>)
    return gradient(call::GradientVectorSobelR<T, C1>);
  else
    return gradient(call::GradientVectorSobelR<T, D, C1>);
}

LumStatus filterSobelBufferSize(LumiSize roi, LumiMaskSize mask, int norm, LumiDataType srcType,
                                LumiDataType dstType, int channels, int* bytes) {
  const bool isByte = srcType == lumiData8u && dstType == lumiData16s;
  const bool isWide =
      (srcType == lumiData16u || srcType == lumiData16s || srcType == lumiData32f) && dstType == lumiData32f;
  if (LumStatus fault =
          firstFault(maskSize(mask), normType(norm), isByte || isWide ? lumStatusOk : lumStatusBadDataType,
                     channels == 1 ? lumStatusOk : lumStatusBadChannelCount))
    return fault;
  return lumiGradientVectorGetBufferSize(roi, mask, srcType, channels, bytes);
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/filter_sobel.inc"
