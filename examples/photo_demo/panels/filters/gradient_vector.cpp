// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>
#include <vector>

#include "panels.hpp"

namespace {

constexpr double kTurn = 6.283185307179586;

// Full colours of a circle; 0 is red.
Lum8u hue(double turns, int channel, int light) {
  const double away = std::fabs(std::remainder(turns - channel / 3.0, 1.0)) * 6;  // 0 to 3
  return static_cast<Lum8u>(std::lround(light * std::clamp(2 - away, 0.0, 1.0)));
}

// Hue by direction, brightness by steepness.
AnyImage directions(const Colour& photo, Calls& calls) {
  const LumiSize size = photo.size();
  Image<1, Lum16s> magnitude(size);
  Image<1, Lum32f> angle(size);
  int bytes = 0;
  check(lumiGradientVectorGetBufferSize(size, lumiMask3x3, lumiData8u, 3, &bytes),
        "lumiGradientVectorGetBufferSize");
  std::vector<Lum8u> buffer(static_cast<size_t>(bytes));
  const Lum8u outside[3] = {};
  calls.time("lumiGradientVectorSobel_8u16s_C3C1R", size, [&] {
    return lumiGradientVectorSobel_8u16s_C3C1R(
        photo.data(), photo.step(), nullptr, 0, nullptr, 0, magnitude.data(), magnitude.step(), angle.data(),
        angle.step(), size, lumiMask3x3, 4, lumiBorderReplicate, outside, buffer.data());
  });
  Colour result(size);
  for (int y = 0; y < size.height; ++y)
    for (int x = 0; x < size.width; ++x)
      for (int c = 0; c < 3; ++c)
        result.at(x, y)[c] = hue(*angle.at(x, y) / kTurn, c, std::min(255, *magnitude.at(x, y) / 2));
  return result;
}

const Panels panels("filters", "gradient_vector",
                    {{"directions", "Gradients, hue by direction", directions}});

}  // namespace
