// SPDX-License-Identifier: MIT
// Sums and means of the samples of each channel.
#include "lumi/sum.h"

#include <type_traits>

#include "dispatch/sum.hpp"
#include "frame/check.hpp"
#include "frame/results.hpp"
#include "frame/rows.hpp"
#include "kernels/statistics/sum.hpp"

namespace lumi {
namespace {

using namespace check;

enum class Adding { InDoubles, InFloats, RowsInFloats };

// Narrow images take doubles whatever the hint, where single precision is the rule.
template <typename Layout>
Adding addingOf(int width, int hint) {
  if constexpr (std::is_same_v<Layout, C4>)
    return hint == 1 ? Adding::InFloats : Adding::InDoubles;
  else if constexpr (std::is_same_v<Layout, AC4>)
    return hint == 2 ? Adding::InDoubles : Adding::RowsInFloats;
  else
    return hint == 2 || width <= (Layout::kStored == 1 ? 16 : 13) ? Adding::InDoubles : Adding::InFloats;
}

template <typename T, typename Layout, typename... Hint>
ChannelSums sumsOf(const T* src, int srcStep, LumiSize roi, Hint... hint) {
  const auto image = pixelRows<Layout>(src, srcStep);
  if constexpr (std::is_integral_v<T>) {
    return sumsOfIntegers<T, Layout::kStored>(image, fusedExtent(roi, image));
  } else {
    const Adding adding = addingOf<Layout>(roi.width, hint...);
    if constexpr (std::is_same_v<Layout, AC4>)
      if (adding == Adding::RowsInFloats)
        return sumsOfRowsInFloats(image, {static_cast<size_t>(roi.width), roi.height});
    const auto sums =
        adding == Adding::InFloats ? sumsInFloats<Layout::kStored> : sumsInDoubles<Layout::kStored>;
    return sums(image, fusedExtent(roi, image));
  }
}

template <typename T, typename Layout, typename... Hint>
LumStatus sumOf(const T* src, int srcStep, LumiSize roi, Lum64f* sum, Hint... hint) {
  if (LumStatus fault = firstFault(pointers(src, sum), size(roi))) return fault;
  storeChannels<Layout>(sum, sumsOf<T, Layout>(src, srcStep, roi, hint...));
  return lumStatusOk;
}

template <typename T, typename Layout, typename... Hint>
LumStatus meanOf(const T* src, int srcStep, LumiSize roi, Lum64f* mean, Hint... hint) {
  if (LumStatus fault = firstFault(pointers(mean))) return fault;
  ChannelSums means;
  if (LumStatus fault = call::SumR<T, Layout>(src, srcStep, roi, means.of, hint...)) return fault;
  // The interface's product, which wraps.
  const auto pixels = static_cast<int>(static_cast<unsigned>(roi.width) * static_cast<unsigned>(roi.height));
  if constexpr (Layout::kStored == 1) {
    means.of[0] /= pixels;
  } else {
    const double share = 1.0 / pixels;
    for (int c = 0; c < Layout::kUsed; ++c) means.of[c] *= share;
  }
  storeChannels<Layout>(mean, means);
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/sum.inc"
