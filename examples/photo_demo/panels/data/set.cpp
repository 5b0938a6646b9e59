// SPDX-License-Identifier: MIT
#include "panels.hpp"
#include "pieces.hpp"

namespace {

constexpr Rgb kOrange = {255, 140, 0}, kTeal = {0, 150, 160};

AnyImage ringPainted(const Colour& photo, Calls& calls) {
  const LumiSize size = photo.size();
  Grey ring = middleDisc(photo);
  addDisc(ring, {size.width / 2, size.height / 2}, shortSide(photo) * 3 / 10, 0);
  Colour result = copyOf(photo);
  calls.time("lumiSet_8u_C3MR", size, [&] {
    return lumiSet_8u_C3MR(kOrange.data(), result.data(), result.step(), size, ring.data(), ring.step());
  });
  return result;
}

AnyImage blueFilled(const Colour& photo, Calls& calls) {
  Colour result = greyed(photo, calls);
  calls.time("lumiSet_8u_C3CR", photo.size(),
             [&] { return lumiSet_8u_C3CR(96, result.data() + 2, result.step(), photo.size()); });
  return result;
}

// The lower half gets another colour; what was transparent stays so.
AnyImage alphaKept(const Colour& photo, Calls& calls) {
  ColourAlpha result = discAsAlpha(photo, calls);
  const LumiSize lower = {photo.size().width, (photo.size().height + 1) / 2};
  calls.time("lumiSet_8u_AC4R", lower, [&] {
    return lumiSet_8u_AC4R(kTeal.data(), result.at(0, photo.size().height - lower.height), result.step(),
                           lower);
  });
  return result;
}

const Panels panels("data", "set",
                    {
                        {"ring", "Ring painted by mask", ringPainted},
                        {"blue-filled", "Blue channel filled", blueFilled},
                        {"alpha-kept", "Colour set, alpha kept", alphaKept},
                    });

}  // namespace
