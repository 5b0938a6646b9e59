// SPDX-License-Identifier: MIT
#include "panels.hpp"
#include "pieces.hpp"

namespace {

// A quarter of the light is left in the corners.
AnyImage vignette(const Colour& photo, Calls& calls) {
  const Colour mask = radialLight(photo.size(), 191);
  Colour result(photo.size());
  calls.time("lumiMulScale_8u_C3R", photo.size(), [&] {
    return lumiMulScale_8u_C3R(photo.data(), photo.step(), mask.data(), mask.step(), result.data(),
                               result.step(), photo.size());
  });
  return result;
}

AnyImage warmer(const Colour& photo, Calls& calls) {
  constexpr Lum8u light[] = {255, 220, 170};
  Colour result(photo.size());
  calls.time("lumiMulCScale_8u_C3R", photo.size(), [&] {
    return lumiMulCScale_8u_C3R(photo.data(), photo.step(), light, result.data(), result.step(),
                                photo.size());
  });
  return result;
}

const Panels panels("arithmetic", "mul_scale",
                    {
                        {"vignette", "Vignette", vignette},
                        {"warmer", "Warmer light", warmer},
                    });

}  // namespace
