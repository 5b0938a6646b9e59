// SPDX-License-Identifier: MIT
// Histograms: samples counted in bins between levels, which each call brings along or an object holds.
#include "lumi/histogram.h"

#include <algorithm>
#include <array>

#include "frame/rows.hpp"
#include "frame/scratch.hpp"
#include "kernels/statistics/histogram.hpp"
#include "statistics/histogram_object.hpp"

namespace lumi {
namespace {

using namespace check;

template <typename T>
using Level = std::conditional_t<std::is_floating_point_v<T>, Lum32f, Lum32s>;

// The bins of each channel that is counted.
template <typename L, size_t channels>
using BinLists = std::array<BinList<L>, channels>;

template <typename L>
bool ascends(const BinList<L>& list) {
  for (int k = 0; k < list.size(); ++k)
    if (!(list.levels[k] < list.levels[k + 1])) return false;
  return true;
}

// Words are counted by a table where there are more levels than this, by the count of pixels. It shows, for
// it takes memory.
struct Limit {
  int pixels, levels;
};
constexpr Limit kAscending[] = {{36864, 2},  {25600, 6}, {20736, 22}, {16384, 34},
                                {12544, 50}, {9216, 78}, {6400, 134}};
constexpr Limit kAny[] = {{43264, 2}, {30976, 6}, {25600, 10}, {20736, 14}, {16384, 22}, {12544, 34},
                          {9216, 50}, {6400, 78}, {4096, 126}, {2304, 222}, {1024, 434}};

template <size_t n>
bool isAbove(const Limit (&limits)[n], int64_t pixels, int levels) {
  for (const Limit& limit : limits)
    if (pixels >= limit.pixels) return levels > limit.levels;
  return false;
}

bool takesTable(Extent pixels, const BinList<Lum32s>& list) {
  return ascends(list) ? isAbove(kAscending, pixels.count(), list.count)
                       : isAbove(kAny, pixels.count(), list.count);
}

// So few levels take less time one by one, for a whole vector of samples, than a table of words or a look for
// each float.
template <typename T>
constexpr int kFewLevels = sizeof(T) == 2 ? 24 : 12;

template <typename T>
void binWithoutTable(const Channel& channel, const BinList<Level<T>>& list) {
  if (list.count > kFewLevels<T> && ascends(list))
    binBySearch<T>(channel, list);
  else
    binByLevels<T>(channel, list);
}

template <typename T, typename Layout, size_t channels>
std::array<Channel, channels> channelsOf(const T* src, int step, LumiSize roi) {
  const auto all = pixelRows<Layout>(src, step);
  const Extent pixels = fusedExtent(roi, all);
  std::array<Channel, channels> result;
  for (size_t c = 0; c < channels; ++c)
    result[c] = {{all.first + c * sizeof(T), all.step}, pixels, static_cast<size_t>(all.pixelBytes)};
  return result;
}

template <typename T, typename Layout, size_t channels>
void countEachByte(const T* src, int step, LumiSize roi, const BinLists<Lum32s, channels>& lists) {
  ByteCounts counts[channels];
  runFused(
      roi,
      [&](SourceRows rows, Extent pixels) {
        countBytes<Layout::kStored, static_cast<int>(channels)>(rows, pixels, counts);
      },
      pixelRows<Layout>(src, step));
  for (size_t c = 0; c < channels; ++c) binBytes(counts[c], lists[c]);
}

template <typename T, typename Layout, size_t channels>
LumStatus countInLists(const T* src, int step, LumiSize roi, const BinLists<Level<T>, channels>& lists) {
  const auto image = channelsOf<T, Layout, channels>(src, step, roi);
  if constexpr (sizeof(T) == 2) {
    const auto isLarge = [&](const BinList<Lum32s>& list) { return takesTable(image[0].pixels, list); };
    if (std::any_of(lists.begin(), lists.end(), isLarge)) {
      const Scratch table(kWordTableBytes);
      if (!table) return lumStatusNoMemory;
      for (size_t c = 0; c < channels; ++c)
        if (isLarge(lists[c]) && lists[c].count > kFewLevels<T>)
          binWordsByTable<T>(image[c], lists[c], static_cast<Byte*>(table.data()));
        else
          binWithoutTable<T>(image[c], lists[c]);
      return lumStatusOk;
    }
  }
  if constexpr (sizeof(T) == 1)
    countEachByte<T, Layout>(src, step, roi, lists);
  else
    for (size_t c = 0; c < channels; ++c) binWithoutTable<T>(image[c], lists[c]);
  return lumStatusOk;
}

// Calls with one channel have their arrays and numbers alone, those with more have an array of each.
template <typename Each>
Each channelOf(Each one, size_t) {
  return one;
}
template <typename Each>
Each channelOf(const Each* all, size_t c) {
  return Unaligned<Each>{all}[c];
}

template <typename L, size_t channels, typename Histograms, typename Levels, typename Counts>
BinLists<L, channels> binLists(Histograms histograms, Levels levels, Counts counts) {
  BinLists<L, channels> lists;
  for (size_t c = 0; c < channels; ++c)
    lists[c] = {
        {channelOf<const L*>(levels, c)}, channelOf<int>(counts, c), channelOf<Lum32s*>(histograms, c)};
  return lists;
}

// Members of more channels look at the lists first.
template <size_t channels, typename T, typename L>
LumStatus levelCall(const T* src, int step, LumiSize roi, Lum32s* histogram, L* levels, int count) {
  static_assert(channels == 1);
  return firstFault(pointers(src, histogram, levels), size(roi), steps(step), histogramLevelCount(count));
}
template <size_t channels, typename T, typename L>
LumStatus levelCall(const T* src, int step, LumiSize roi, Lum32s* const* histograms, L* const* levels,
                    const int* counts) {
  const auto lists = [=] {
    for (size_t c = 0; c < channels; ++c)
      if (const LumStatus fault =
              firstFault(pointers(channelOf<Lum32s*>(histograms, c), channelOf<L*>(levels, c)),
                         histogramLevelCount(channelOf<int>(counts, c))))
        return fault;
    return LumStatus{lumStatusOk};
  };
  return firstFault(pointers(src, histograms, levels, counts), lists, size(roi), steps(step));
}

template <typename T, typename Layout, typename Histograms, typename Levels, typename Counts>
LumStatus histogramRange(const T* src, int srcStep, LumiSize roi, Histograms histogram, Levels levels,
                         Counts count) {
  constexpr size_t channels = Layout::kUsed;
  if (LumStatus fault = levelCall<channels>(src, srcStep, roi, histogram, levels, count)) return fault;
  return countInLists<T, Layout>(src, srcStep, roi, binLists<Level<T>, channels>(histogram, levels, count));
}

// Each level lies between the bounds, and no further from the one before it than they are: at most 2^32.
void storeEvenLevels(Lum32s lower, Lum32s upper, int count, Lum32s* levels) {
  const int64_t range = int64_t{upper} - lower, step = range / (count - 1);
  int64_t level = lower, rest = range % (count - 1);
  for (int k = 0; k < count; ++k) {
    const auto stored = static_cast<Lum32s>(level);
    std::memcpy(reinterpret_cast<Byte*>(levels) + sizeof stored * static_cast<size_t>(k), &stored,
                sizeof stored);
    level += step;
    if (rest > 0) ++level, --rest;
    if (rest < 0) --level, ++rest;
  }
}

// Whether bins of one width, a whole number, are found by division.
constexpr int64_t kMostDividedPixels = 65535;
template <typename L>
bool isDivided(Extent pixels, const BinList<L>& list, int64_t range) {
  return range % list.size() == 0 && pixels.count() <= kMostDividedPixels;
}

template <typename T, typename Layout, typename Histograms, typename Levels, typename Counts, typename Bounds>
LumStatus histogramEven(const T* src, int srcStep, LumiSize roi, Histograms histogram, Levels levels,
                        Counts count, Bounds lower, Bounds upper) {
  constexpr size_t channels = Layout::kUsed;
  if (LumStatus fault = firstFault(pointers(lower, upper), [=] {
        return levelCall<channels>(src, srcStep, roi, histogram, levels, count);
      }))
    return fault;
  for (size_t c = 0; c < channels; ++c)
    storeEvenLevels(channelOf<Lum32s>(lower, c), channelOf<Lum32s>(upper, c), channelOf<int>(count, c),
                    channelOf<Lum32s*>(levels, c));
  const auto lists = binLists<Lum32s, channels>(histogram, levels, count);
  if constexpr (sizeof(T) == 2 && Layout::kStored == 1) {
    const Channel channel = channelsOf<T, Layout, 1>(src, srcStep, roi)[0];
    if (isDivided(channel.pixels, lists[0], int64_t{upper} - lower)) {
      binByDivision<T>(channel, lists[0]);
      return lumStatusOk;
    }
  }
  return countInLists<T, Layout>(src, srcStep, roi, lists);
}

// An object of integers may come to floats, and one of fewer channels to more: the levels are what their bits
// are, and channels that it has not have no bins.
template <typename T, size_t channels, typename Histograms>
BinLists<Level<T>, channels> binListsOf(const HistogramObject& object, Histograms histogram) {
  BinLists<Level<T>, channels> lists;
  for (size_t c = 0; c < channels; ++c)
    lists[c] = {
        {static_cast<const Level<T>*>(object.levels[c])}, object.counts[c], channelOf<Lum32s*>(histogram, c)};
  return lists;
}

template <typename T>
void countWords(const Channel& channel, const BinList<Lum32s>& list, bool isUniform, Byte* table) {
  const int64_t range = int64_t{list.levels[list.size()]} - list.levels[0];
  if (isUniform && isDivided(channel.pixels, list, range))
    binByDivision<T>(channel, list);
  else if (takesTable(channel.pixels, list) && list.count > kFewLevels<T>)
    binWordsByTable<T>(channel, list, table);
  else
    binWithoutTable<T>(channel, list);
}

template <size_t channels>
LumStatus histograms(Lum32s* one) {
  return pointers(one);
}
template <size_t channels>
LumStatus histograms(Lum32s* const* all) {
  if (!all) return lumStatusNullPointer;
  for (size_t c = 0; c < channels; ++c)
    if (!channelOf<Lum32s*>(all, c)) return lumStatusNullPointer;
  return lumStatusOk;
}

template <typename Layout, typename T>
LumStatus wholeRows(const T*, int step, LumiSize roi) {
  return step < 1 || step < int64_t{roi.width} * kPixelBytes<T, Layout> ? lumStatusBadStep : lumStatusOk;
}

template <typename T, typename Layout, typename Histograms>
LumStatus histogramOf(const T* src, int srcStep, LumiSize roi, Histograms histogram,
                      const LumiHistogramSpec* spec, Lum8u* buffer) {
  constexpr size_t channels = Layout::kUsed;
  const bool hasBuffer = std::is_floating_point_v<T> || buffer != nullptr;
  if (LumStatus fault = firstFault(pointers(src, spec), histograms<channels>(histogram),
                                   hasBuffer ? lumStatusOk : lumStatusNullPointer, size(roi),
                                   wholeRows<Layout>(src, srcStep, roi), [=] { return identity(spec); }))
    return fault;
  const HistogramObject object = histogramObjectAt(spec);
  const auto lists = binListsOf<T, channels>(object, histogram);
  if constexpr (sizeof(T) == 2) {
    const auto image = channelsOf<T, Layout, channels>(src, srcStep, roi);
    for (size_t c = 0; c < channels; ++c)
      if (lists[c].size() > 0) countWords<T>(image[c], lists[c], object.uniform != 0, buffer);
    return lumStatusOk;
  } else {
    return countInLists<T, Layout>(src, srcStep, roi, lists);
  }
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/histogram.inc"
