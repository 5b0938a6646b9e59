// SPDX-License-Identifier: MIT
#include "panels.hpp"
#include "pieces.hpp"

namespace {

// The photo and its reflection: whichever is brighter, in each channel.
AnyImage brighter(const Colour& photo, Calls& calls) {
  Colour result = flipped(photo);
  calls.time("lumiMaxEvery_8u_C3IR", photo.size(), [&] {
    return lumiMaxEvery_8u_C3IR(photo.data(), photo.step(), result.data(), result.step(), photo.size());
  });
  return result;
}

// No sample is brighter than a light that gets weaker towards the corners.
AnyImage cappedByLight(const Colour& photo, Calls& calls) {
  Colour result = radialLight(photo.size(), 200);
  calls.time("lumiMinEvery_8u_C3IR", photo.size(), [&] {
    return lumiMinEvery_8u_C3IR(photo.data(), photo.step(), result.data(), result.step(), photo.size());
  });
  return result;
}

const Panels panels("data", "extremes",
                    {
                        {"brighter", "The brighter of two photos", brighter},
                        {"capped", "The darker of photo and light", cappedByLight},
                    });

}  // namespace
