// SPDX-License-Identifier: MIT
// Bit images: from bits to grey values and back.
#include "lumi/bits.h"

#include <cstring>
#include <type_traits>

#include "frame/check.hpp"
#include "frame/layout.hpp"
#include "frame/rows.hpp"
#include "kernels/data/bits.hpp"

namespace lumi {
namespace {

using namespace check;

// Only the bit within the first byte counts; whole bytes do not move the pointer.
unsigned firstBit(int offset) { return static_cast<unsigned>(offset) % 8; }

// The unsigned integer of a sample's size, with the sample's bits.
template <typename T>
auto bitsOf(T sample) {
  std::conditional_t<sizeof(T) == 1, uint8_t, std::conditional_t<sizeof(T) == 2, uint16_t, uint32_t>> bits;
  static_assert(sizeof bits == sizeof sample);
  std::memcpy(&bits, &sample, sizeof bits);
  return bits;
}

// The checks of all members, and kernel(source, destination, bit, extent in pixels).
template <typename S, typename D, typename Kernel>
LumStatus walkBits(const S* src, int srcStep, D* dst, int dstStep, int offset, LumiSize roi, Kernel kernel) {
  if (LumStatus fault = firstFault(pointers(src, dst), size(roi), steps(srcStep, dstStep), bitOffset(offset)))
    return fault;
  kernel(rows(src, srcStep), rows(dst, dstStep), firstBit(offset),
         Extent{static_cast<size_t>(roi.width), roi.height});
  return lumStatusOk;
}

template <typename, typename T, typename>
LumStatus expand(const Lum8u* src, int srcStep, int srcBitOffset, T* dst, int dstStep, LumiSize roi,
                 T zeroValue, T oneValue) {
  return walkBits(src, srcStep, dst, dstStep, srcBitOffset, roi,
                  [&](SourceRows s, TargetRows d, unsigned bit, Extent pixels) {
                    expandBitsRows(s, bit, d, pixels, bitsOf(zeroValue), bitsOf(oneValue));
                  });
}

template <typename, typename, typename>
LumStatus expandToFull(const Lum8u* src, int srcStep, int srcBitOffset, Lum8u* dst, int dstStep,
                       LumiSize roi) {
  return walkBits(src, srcStep, dst, dstStep, srcBitOffset, roi,
                  [](SourceRows s, TargetRows d, unsigned bit, Extent pixels) {
                    expandBitsToFullRows(s, bit, d, pixels);
                  });
}

template <typename T, typename, typename>
LumStatus compare(const T* src, int srcStep, Lum8u* dst, int dstStep, int dstBitOffset, LumiSize roi,
                  T threshold) {
  return walkBits(src, srcStep, dst, dstStep, dstBitOffset, roi,
                  [&](SourceRows s, TargetRows d, unsigned bit, Extent pixels) {
                    bitsAboveRows<T>(s, d, bit, pixels, threshold);
                  });
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/bits.inc"
