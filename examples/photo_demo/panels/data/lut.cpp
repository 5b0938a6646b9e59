// SPDX-License-Identifier: MIT
#include "panels.hpp"

namespace {

// Four values for each channel; the last level is beyond the last sample.
AnyImage posterised(const Colour& photo, Calls& calls) {
  static constexpr Lum32s levels[] = {0, 64, 128, 192, 256}, values[] = {20, 90, 160, 240, 0};
  static constexpr const Lum32s *allLevels[] = {levels, levels, levels},
                                *allValues[] = {values, values, values};
  constexpr int counts[] = {5, 5, 5};
  Colour result(photo.size());
  calls.time("lumiLUT_8u_C3R", photo.size(), [&] {
    return lumiLUT_8u_C3R(photo.data(), photo.step(), result.data(), result.step(), photo.size(), allValues,
                          allLevels, counts);
  });
  return result;
}

// More contrast in the middle tones, warmer: a curve through five points for each channel.
AnyImage graded(const Colour& photo, Calls& calls) {
  static constexpr Lum32s levels[] = {0, 64, 128, 192, 256}, red[] = {0, 50, 140, 220, 255},
                          green[] = {0, 44, 128, 210, 255}, blue[] = {0, 40, 112, 190, 240};
  static constexpr const Lum32s *allLevels[] = {levels, levels, levels}, *allValues[] = {red, green, blue};
  constexpr int counts[] = {5, 5, 5};
  Colour result(photo.size());
  calls.time("lumiLUT_Cubic_8u_C3R", photo.size(), [&] {
    return lumiLUT_Cubic_8u_C3R(photo.data(), photo.step(), result.data(), result.step(), photo.size(),
                                allValues, allLevels, counts);
  });
  return result;
}

const Panels panels("data", "lut",
                    {
                        {"posterised", "Posterised by a table", posterised},
                        {"graded", "Graded by curves", graded},
                    });

}  // namespace
