// SPDX-License-Identifier: MIT
// Shifts of samples by one count, or by one for each channel.
#include "lumi/shift.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <limits>
#include <type_traits>

#include "dispatch/copy.hpp"
#include "frame/check.hpp"
#include "frame/rows.hpp"
#include "frame/zero.hpp"
#include "kernels/arithmetic/shift.hpp"

namespace lumi {
namespace {

using namespace check;

template <typename T>
constexpr Lum32u kBits = 8 * sizeof(T);

// Zeros come in from the side, and in the end are all that is left.
template <typename Op, typename T>
constexpr bool kBringsZeros = std::is_same_v<Op, Left> || std::is_unsigned_v<T>;

// A count within the type that gives the same.
template <typename Op, typename T>
int limited(Lum32u count) {
  return static_cast<int>(std::min(count, kBringsZeros<Op, T> ? kBits<T> : kBits<T> - 1));
}

template <typename T, typename Layout>
LumStatus copyUnlessInPlace(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi) {
  if (src == dst && srcStep == dstStep) return lumStatusOk;
  using Copied = std::conditional_t<std::is_same_v<T, Lum8s>, Lum8u, T>;
  return call::CopyR<Copied, Layout>(reinterpret_cast<const Copied*>(src), srcStep,
                                     reinterpret_cast<Copied*>(dst), dstStep, roi);
}

// All channels by one count.
template <typename Op, typename T, typename Layout>
LumStatus shiftAlike(const T* src, int srcStep, Lum32u count, T* dst, int dstStep, LumiSize roi) {
  if (count == 0) return copyUnlessInPlace<T, Layout>(src, srcStep, dst, dstStep, roi);
  if constexpr (kBringsZeros<Op, T>)
    if (count >= kBits<T>) return fillZero<T, Layout>(dst, dstStep, roi);
  runFused(
      roi,
      [bits = limited<Op, T>(count)](SourceRows s, TargetRows d, Extent pixels) {
        shiftRows<Op, T, kAlpha<T, Layout> != 0>(s, d, pixels.times(Layout::kStored), bits);
      },
      pixelRows<Layout>(src, srcStep), pixelRows<Layout>(dst, dstStep));
  return lumStatusOk;
}

template <typename Op, typename T, typename Layout>
LumStatus shift(const T* src, int srcStep, Lum32u count, T* dst, int dstStep, LumiSize roi) {
  if (LumStatus fault = firstFault(pointers(src, dst), steps(srcStep, dstStep), size(roi))) return fault;
  return shiftAlike<Op, T, Layout>(src, srcStep, count, dst, dstStep, roi);
}

template <typename Op, typename T, typename Layout>
LumStatus shift(const T* src, int srcStep, const Lum32u* given, T* dst, int dstStep, LumiSize roi) {
  if (LumStatus fault = firstFault(pointers(given, src, dst), steps(srcStep, dstStep), size(roi)))
    return fault;
  Lum32u counts[Layout::kUsed];
  std::memcpy(counts, given, sizeof counts);
  if (std::equal(std::begin(counts) + 1, std::end(counts), std::begin(counts))) {
    if constexpr (Layout::kUsed < Layout::kStored)
      return shiftAlike<Op, T, Layout>(src, srcStep, counts[0], dst, dstStep, roi);
    // A row of samples, whose width wraps as unsigned numbers do and is checked again.
    roi.width = static_cast<int>(static_cast<unsigned>(roi.width) * Layout::kStored);
    return shift<Op, T, C1>(src, srcStep, counts[0], dst, dstStep, roi);
  }
  if constexpr (kBringsZeros<Op, T>)
    if (*std::min_element(std::begin(counts), std::end(counts)) >= kBits<T>)
      return fillZero<T, Layout>(dst, dstStep, roi);
  int bits[Layout::kUsed];
  std::transform(std::begin(counts), std::end(counts), bits, limited<Op, T>);
  runFused(
      roi,
      [&](SourceRows s, TargetRows d, Extent pixels) {
        shiftChannels<Op, T, Layout::kStored, Layout::kUsed>(s, d, pixels.times(Layout::kStored), bits);
      },
      pixelRows<Layout>(src, srcStep), pixelRows<Layout>(dst, dstStep));
  return lumStatusOk;
}

// In place.
template <typename Op, typename T, typename Layout, typename Counts>
LumStatus shift(Counts counts, T* srcDst, int srcDstStep, LumiSize roi) {
  return shift<Op, T, Layout>(srcDst, srcDstStep, counts, srcDst, srcDstStep, roi);
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/shift.inc"
