// SPDX-License-Identifier: MIT
#include <vector>

#include "panels.hpp"
#include "pieces.hpp"

namespace {

// The larger the window, the more a photo becomes a picture of flat paint.
AnyImage painted(const Colour& photo, Calls& calls) {
  constexpr LumiSize kMask{21, 21};
  const Grey grey = split(photo).green;
  int bytes = 0;
  check(lumiFilterMedianBorderGetBufferSize(grey.size(), kMask, lumiData8u, 1, &bytes),
        "lumiFilterMedianBorderGetBufferSize");
  std::vector<Lum8u> buffer(static_cast<size_t>(bytes));
  Grey result(grey.size());
  calls.time("lumiFilterMedianBorder_8u_C1R", grey.size(), [&] {
    return lumiFilterMedianBorder_8u_C1R(grey.data(), grey.step(), result.data(), result.step(), grey.size(),
                                         kMask, lumiBorderReplicate, 0, buffer.data());
  });
  return result;
}

const Panels panels("filters", "filter_median_border",
                    {{"painted", "Median of 21, edges repeated", painted}});

}  // namespace
