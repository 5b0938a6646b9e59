// SPDX-License-Identifier: MIT
#include "panels.hpp"
#include "panels/transforms/gradient.hpp"

namespace {

// Gradients turned by 45 degrees: their real part is light from a corner.
AnyImage relief(const Colour& photo, Calls& calls) {
  const LumiSize size = photo.size();
  const auto gradient = gradientOf<GradientFloat>(photo);
  Image<1, Lum32f> strength(size), phase(size);
  check(lumiMagnitude_32fc32f_C1R(gradient.data(), gradient.step(), strength.data(), strength.step(), size),
        "lumiMagnitude_32fc32f_C1R");
  check(lumiPhase_32fc32f_C1R(gradient.data(), gradient.step(), phase.data(), phase.step(), size),
        "lumiPhase_32fc32f_C1R");
  check(lumiSubC_32f_C1IR(0.785398163f, phase.data(), phase.step(), size), "lumiSubC_32f_C1IR");
  Gradient16 turned(size);
  calls.time("lumiPolarToCart_16sc_C1R", size, [&] {
    return lumiPolarToCart_16sc_C1R(strength.data(), phase.data(), phase.step(), 0, size, turned.data(),
                                    turned.step());
  });
  Grey result(size);
  for (int y = 0; y < size.height; ++y)
    for (int x = 0; x < size.width; ++x)
      *result.at(x, y) = static_cast<Lum8u>(std::clamp(128 + turned.at(x, y)->re, 0, 255));
  return result;
}

const Panels panels("transforms", "polar_to_cart", {{"relief", "Gradient turned by 45 degrees", relief}});

}  // namespace
