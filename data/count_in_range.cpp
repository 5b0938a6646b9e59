// SPDX-License-Identifier: MIT
// Counts of the samples that lie in a range.
#include "lumi/count_in_range.h"

#include <cstring>

#include "frame/check.hpp"
#include "frame/constant.hpp"
#include "frame/results.hpp"
#include "frame/rows.hpp"
#include "kernels/data/count_in_range.hpp"

namespace lumi {
namespace {

using namespace check;

// Alpha has a range too, whose count nobody takes.
template <typename T, typename Layout, typename Bound>
Ranges<T> rangesOf(const Bound& lower, const Bound& upper) {
  Ranges<T> ranges{};
  std::memcpy(ranges.lower, samplesOf(lower), sizeof(T) * Layout::kUsed);
  std::memcpy(ranges.upper, samplesOf(upper), sizeof(T) * Layout::kUsed);
  return ranges;
}

template <typename T, typename Layout, typename Bound>
LumStatus countInRange(const T* src, int srcStep, LumiSize roi, Lum32s* count, Bound lower, Bound upper) {
  if (LumStatus fault = firstFault(pointers(src, count, lower, upper), steps(srcStep), size(roi), [&] {
        return areInOrder<T, Layout>(lower, upper) ? lumStatusOk : lumStatusBadRange;
      }))
    return fault;
  const Ranges<T> ranges = rangesOf<T, Layout>(lower, upper);
  ChannelCounts counts{};
  runFused(
      roi,
      [&](SourceRows s, Extent pixels) { counts = countInRanges<T, Layout::kStored>(s, pixels, ranges); },
      pixelRows<Layout>(src, srcStep));
  storeChannels<Layout>(count, counts);
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/count_in_range.inc"
