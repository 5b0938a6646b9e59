// SPDX-License-Identifier: MIT
#include "panels.hpp"

namespace {

// Nothing is brighter than the light of a lamp.
AnyImage lampLight(const Colour& photo, Calls& calls) {
  const Lum8u lamp[3] = {255, 200, 120};
  Colour result(photo.size());
  calls.time("lumiThreshold_GT_8u_C3R", photo.size(), [&] {
    return lumiThreshold_GT_8u_C3R(photo.data(), photo.step(), result.data(), result.step(), photo.size(),
                                   lamp);
  });
  return result;
}

// Shadows and lights of each channel become flat.
AnyImage flatEnds(const Colour& photo, Calls& calls) {
  const Lum8u dark[3] = {90, 90, 90}, night[3] = {20, 30, 80}, bright[3] = {170, 170, 170},
              sun[3] = {255, 240, 180};
  Colour result(photo.size());
  calls.time("lumiThreshold_LTValGTVal_8u_C3R", photo.size(), [&] {
    return lumiThreshold_LTValGTVal_8u_C3R(photo.data(), photo.step(), result.data(), result.step(),
                                           photo.size(), dark, night, bright, sun);
  });
  return result;
}

const Panels panels("data", "threshold",
                    {
                        {"flat-ends", "Flat shadows and lights", flatEnds},
                        {"lamp-light", "Limited by channel", lampLight},
                    });

}  // namespace
