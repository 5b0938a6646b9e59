// SPDX-License-Identifier: MIT
#include "panels.hpp"

namespace {

// Green as red, blue as green, red as blue.
AnyImage rotatedColours(const Colour& photo, Calls& calls) {
  const Lum32s order[] = {1, 2, 0};
  Colour result(photo.size());
  calls.time("lumiSwapChannels_8u_C3R", photo.size(), [&] {
    return lumiSwapChannels_8u_C3R(photo.data(), photo.step(), result.data(), result.step(), photo.size(),
                                   order);
  });
  return result;
}

const Panels panels("data", "swap_channels",
                    {
                        {"rotated", "Colours passed on", rotatedColours},
                    });

}  // namespace
