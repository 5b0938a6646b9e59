// SPDX-License-Identifier: MIT
#include "panels.hpp"
#include "pieces.hpp"

namespace {

// How much of the light is left at each pixel: all of it in the middle, a quarter in the corners.
Colour radialMask(LumiSize size) {
  Colour mask(size);
  const int width = size.width, height = size.height;
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x) {
      // Twice the distance to the middle, so that all numbers are whole.
      const int64_t dx = 2 * x - (width - 1), dy = 2 * y - (height - 1);
      const int64_t corner = int64_t{width} * width + int64_t{height} * height;
      const auto left = static_cast<Lum8u>(255 - 191 * (dx * dx + dy * dy) / corner);
      for (int c = 0; c < 3; ++c) mask.at(x, y)[c] = left;
    }
  return mask;
}

AnyImage vignette(const Colour& photo, Calls& calls) {
  const Colour mask = radialMask(photo.size());
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
