// SPDX-License-Identifier: MIT
// Channel swaps: any channel from any other, also in place, and with a channel inserted.
#include "lumi/swap_channels.h"

#include <cstring>

#include "frame/check.hpp"
#include "frame/layout.hpp"
#include "frame/rows.hpp"
#include "kernels/data/swap_channels.hpp"

namespace lumi {
namespace {

using namespace check;

template <typename... Step>
LumStatus stepsThatMove(Step... each) {
  return ((each == 0) || ...) ? lumStatusBadStep : lumStatusOk;
}

// The entries of a pixel's used samples, which lie at any address; read here and never again.
template <int entries>
ChannelSources sourcesOf(const Lum32s* order) {
  ChannelSources sources{};
  std::memcpy(sources.channels, order, entries * sizeof *order);
  return sources;
}

// Whether each of so many entries is below the limit, and not negative.
template <int entries>
LumStatus entriesBelow(const ChannelSources& sources, Lum32u limit) {
  for (int i = 0; i < entries; ++i)
    if (static_cast<Lum32u>(sources.channels[i]) >= limit) return lumStatusBadChannelOrder;
  return lumStatusOk;
}

// Source channels that may be named: alpha is none of them where it stays in the destination.
template <typename From, typename To>
constexpr Lum32u kNamed = To::kStored == 4 ? To::kUsed : From::kStored;

template <typename From, typename To, typename T>
void swapRows(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, const ChannelSources& sources) {
  const auto swap = [&](SourceRows s, TargetRows d, Extent pixels) {
    swapChannelRows<sizeof(T), From::kStored, To::kStored, To::kUsed>(s, d, pixels, sources);
  };
  runFused(roi, swap, pixelRows<From>(src, srcStep), pixelRows<To>(dst, dstStep));
}

template <typename Layout, typename T>
void swapRowsInPlace(T* image, int step, LumiSize roi, const ChannelSources& sources) {
  const auto swap = [&](TargetRows all, Extent pixels) {
    constexpr int channels = Layout::kStored;
    swapChannelRows<sizeof(T), channels, channels, channels>({all.first, all.step}, all, pixels, sources);
  };
  runFused(roi, swap, pixelRows<Layout>(image, step));
}

// Members differ in when they look at the order's pointer, and at the steps: with the other pointers and
// behind the size, or by itself and before it.
struct Together {
  static LumStatus fault(const void* src, const void* dst, const void* order, LumiSize roi, int srcStep,
                         int dstStep) {
    return firstFault(pointers(src, dst, order), size(roi), stepsThatMove(srcStep, dstStep));
  }
};
struct OrderApart {
  static LumStatus fault(const void* src, const void* dst, const void* order, LumiSize roi, int srcStep,
                         int dstStep) {
    return firstFault(pointers(src, dst), stepsThatMove(srcStep, dstStep), size(roi), pointers(order));
  }
};

template <typename Checks, typename T, typename From, typename To = From>
LumStatus swapChannels(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, const Lum32s* order) {
  if (LumStatus fault = Checks::fault(src, dst, order, roi, srcStep, dstStep)) return fault;
  const ChannelSources sources = sourcesOf<To::kUsed>(order);
  if (LumStatus fault = entriesBelow<To::kUsed>(sources, kNamed<From, To>)) return fault;
  if constexpr (kPixelBytes<T, From> == 3) {
    if (src == dst) return swapRowsInPlace<From>(dst, dstStep, roi, sources), lumStatusOk;
  }
  swapRows<From, To>(src, srcStep, dst, dstStep, roi, sources);
  return lumStatusOk;
}

template <typename T, typename Layout>
LumStatus swapInPlace(T* image, int step, LumiSize roi, const Lum32s* order) {
  constexpr int channels = Layout::kStored;
  const LumStatus early = channels == 3 ? pointers(image) : pointers(image, order);
  if (LumStatus fault = firstFault(early, stepsThatMove(step), size(roi), pointers(order))) return fault;
  const ChannelSources sources = sourcesOf<channels>(order);
  if (LumStatus fault = entriesBelow<channels>(sources, channels)) return fault;
  swapRowsInPlace<Layout>(image, step, roi, sources);
  return lumStatusOk;
}

template <typename T, typename From, typename To>
LumStatus swapOrInsert(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, const Lum32s* order,
                       T value) {
  if (LumStatus fault = Together::fault(src, dst, order, roi, srcStep, dstStep)) return fault;
  ChannelSources sources = sourcesOf<4>(order);
  if (LumStatus fault = entriesBelow<4>(sources, 0x80000000)) return fault;
  std::memcpy(&sources.value, &value, sizeof value);
  swapRows<From, To>(src, srcStep, dst, dstStep, roi, sources);
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/swap_channels.inc"
