// SPDX-License-Identifier: MIT
#include "lumi/filter_bilateral.h"

#include <vector>

#include "panels.hpp"

namespace {

constexpr int kRadius = 5;

// Skin and sky get smooth, outlines stay.
AnyImage smooth(const Colour& photo, Calls& calls) {
  const LumiSize size = photo.size();
  int specBytes = 0, bufferBytes = 0;
  check(
      lumiFilterBilateralBorderGetBufferSize(100, size, kRadius, lumiData8u, 3, 2, &specBytes, &bufferBytes),
      "lumiFilterBilateralBorderGetBufferSize");
  std::vector<Lum8u> memory(static_cast<size_t>(specBytes)), buffer(static_cast<size_t>(bufferBytes));
  auto* const spec = reinterpret_cast<LumiFilterBilateralBorderSpec*>(memory.data());
  check(lumiFilterBilateralBorderInit(100, size, kRadius, lumiData8u, 3, 2, 3600, 16, spec),
        "lumiFilterBilateralBorderInit");
  Colour result(size);
  calls.time("lumiFilterBilateralBorder_8u_C3R", size, [&] {
    return lumiFilterBilateralBorder_8u_C3R(photo.data(), photo.step(), result.data(), result.step(), size,
                                            lumiBorderReplicate, nullptr, spec, buffer.data());
  });
  return result;
}

const Panels panels("filters", "filter_bilateral", {{"smooth", "Smoothed, with its edges kept", smooth}});

}  // namespace
