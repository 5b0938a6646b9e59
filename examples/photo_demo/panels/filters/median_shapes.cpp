// SPDX-License-Identifier: MIT
#include "lumi/median_shapes.h"

#include "panels.hpp"
#include "pieces.hpp"

namespace {

constexpr int kReach = 2;

// The photo with every 13th pixel white or black, and with its edges once more around it, which the filters
// read.
Colour speckled(const Colour& photo) {
  const LumiSize size = photo.size(), larger = {size.width + 2 * kReach, size.height + 2 * kReach};
  Colour around(larger);
  check(lumiCopyReplicateBorder_8u_C3R(photo.data(), photo.step(), size, around.data(), around.step(), larger,
                                       kReach, kReach),
        "lumiCopyReplicateBorder_8u_C3R");
  for (int y = 0; y < larger.height; ++y)
    for (int x = 0; x < larger.width; ++x) {
      const int number = 5 * x + 7 * y;
      if (number % 13 != 0) continue;
      for (int c = 0; c < 3; ++c) around.at(x, y)[c] = number % 2 == 0 ? 255 : 0;
    }
  return around;
}

using Filter = LumStatus (*)(const Lum8u*, int, Lum8u*, int, LumiSize, LumiMaskSize);

template <Filter filter, LumiMaskSize mask>
AnyImage cleaned(const char* name, const Colour& photo, Calls& calls) {
  const Colour noisy = speckled(photo);
  Colour result(photo.size());
  calls.time(name, photo.size(), [&] {
    return filter(noisy.at(kReach, kReach), noisy.step(), result.data(), result.step(), photo.size(), mask);
  });
  return result;
}

AnyImage row(const Colour& photo, Calls& calls) {
  return cleaned<lumiFilterMedianHoriz_8u_C3R, lumiMask5x1>("lumiFilterMedianHoriz_8u_C3R", photo, calls);
}
AnyImage column(const Colour& photo, Calls& calls) {
  return cleaned<lumiFilterMedianVert_8u_C3R, lumiMask1x3>("lumiFilterMedianVert_8u_C3R", photo, calls);
}
AnyImage cross(const Colour& photo, Calls& calls) {
  return cleaned<lumiFilterMedianCross_8u_C3R, lumiMask5x5>("lumiFilterMedianCross_8u_C3R", photo, calls);
}
AnyImage colours(const Colour& photo, Calls& calls) {
  return cleaned<lumiFilterMedianColor_8u_C3R, lumiMask3x3>("lumiFilterMedianColor_8u_C3R", photo, calls);
}

AnyImage weighted(const Colour& photo, Calls& calls) {
  const Grey green = split(speckled(photo)).green;
  Grey result(photo.size());
  calls.time("lumiFilterMedianWeightedCenter3x3_8u_C1R", photo.size(), [&] {
    return lumiFilterMedianWeightedCenter3x3_8u_C1R(green.at(kReach, kReach), green.step(), result.data(),
                                                    result.step(), photo.size(), 5);
  });
  return result;
}

AnyImage planes(const Colour& photo, Calls& calls) {
  const Planes of = split(photo);
  const Lum8u* const src[] = {of.red.data(), of.green.data(), of.blue.data()};
  Grey result(photo.size());
  calls.time("lumiMedian_8u_P3C1R", photo.size(), [&] {
    return lumiMedian_8u_P3C1R(src, of.red.step(), result.data(), result.step(), photo.size());
  });
  return result;
}

const Panels panels("filters", "median_shapes",
                    {{"colours", "Speckles removed by colour medians", colours},
                     {"cross", "By medians of crosses", cross},
                     {"row", "By medians of rows", row},
                     {"column", "By medians of columns", column},
                     {"weighted", "By medians with weighted centres", weighted},
                     {"planes", "Median of red, green and blue", planes}});

}  // namespace
