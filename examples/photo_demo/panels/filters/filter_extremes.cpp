// SPDX-License-Identifier: MIT
#include "panels.hpp"
#include "pieces.hpp"

namespace {

constexpr int kReach = 4, kSide = 2 * kReach + 1;

// The photo with its edges repeated around it.
Colour widened(const Colour& photo) {
  const LumiSize size = photo.size(), whole{size.width + 2 * kReach, size.height + 2 * kReach};
  Colour result(whole);
  check(lumiCopyReplicateBorder_8u_C3R(photo.data(), photo.step(), size, result.data(), result.step(), whole,
                                       kReach, kReach),
        "lumiCopyReplicateBorder_8u_C3R");
  return result;
}

AnyImage brightest(const Colour& photo, Calls& calls) {
  const Colour around = widened(photo);
  Colour result(photo.size());
  calls.time("lumiFilterMax_8u_C3R", photo.size(), [&] {
    return lumiFilterMax_8u_C3R(around.at(kReach, kReach), around.step(), result.data(), result.step(),
                                result.size(), {kSide, kSide}, {kReach, kReach});
  });
  return result;
}

AnyImage darkest(const Colour& photo, Calls& calls) {
  const Colour around = widened(photo);
  Colour result(photo.size());
  calls.time("lumiFilterMin_8u_C3R", photo.size(), [&] {
    return lumiFilterMin_8u_C3R(around.at(kReach, kReach), around.step(), result.data(), result.step(),
                                result.size(), {kSide, kSide}, {kReach, kReach});
  });
  return result;
}

const Panels panels("filters", "filter_extremes",
                    {
                        {"max", "Brightest of 9 x 9", brightest},
                        {"min", "Darkest of 9 x 9", darkest},
                    });

}  // namespace
