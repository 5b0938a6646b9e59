// SPDX-License-Identifier: MIT
#include <vector>

#include "panels.hpp"
#include "pieces.hpp"

namespace {

constexpr Rgb kOutside = {255, 160, 0};

// What lies outside shows in the frame that the window brings in.
template <LumiBorderType border>
AnyImage blurred(const Colour& photo, Calls& calls) {
  const LumiSize mask{31, 31};
  int bytes = 0;
  check(lumiFilterBoxBorderGetBufferSize(photo.size(), mask, lumiData8u, 3, &bytes),
        "lumiFilterBoxBorderGetBufferSize");
  std::vector<Lum8u> buffer(static_cast<size_t>(bytes));
  Colour result(photo.size());
  calls.time("lumiFilterBoxBorder_8u_C3R", photo.size(), [&] {
    return lumiFilterBoxBorder_8u_C3R(photo.data(), photo.step(), result.data(), result.step(), photo.size(),
                                      mask, border, kOutside.data(), buffer.data());
  });
  return result;
}

const Panels panels("filters", "filter_box_border",
                    {
                        {"edges", "Box of 31, edges repeated", blurred<lumiBorderReplicate>},
                        {"value", "Box of 31, border of a value", blurred<lumiBorderConst>},
                    });

}  // namespace
