// SPDX-License-Identifier: MIT
#include <algorithm>

#include "panels.hpp"
#include "pieces.hpp"

namespace {

AnyImage brighter(const Colour& photo, Calls& calls) {
  constexpr Lum8u amount[] = {50, 50, 50};
  Colour result(photo.size());
  calls.time("lumiAddC_8u_C3RSfs", photo.size(), [&] {
    return lumiAddC_8u_C3RSfs(photo.data(), photo.step(), amount, result.data(), result.step(), photo.size(),
                              0);
  });
  return result;
}

// (sample - 64) * 2: the scale factor -1 doubles what is left, and limits it.
AnyImage moreContrast(const Colour& photo, Calls& calls) {
  constexpr Lum8u dark[] = {64, 64, 64};
  Colour result(photo.size());
  calls.time("lumiSubC_8u_C3RSfs", photo.size(), [&] {
    return lumiSubC_8u_C3RSfs(photo.data(), photo.step(), dark, result.data(), result.step(), photo.size(),
                              -1);
  });
  return result;
}

// The scale factor 1 halves the sum.
AnyImage doubleExposure(const Colour& photo, Calls& calls) {
  const Colour other = flipped(photo);
  Colour result(photo.size());
  calls.time("lumiAdd_8u_C3RSfs", photo.size(), [&] {
    return lumiAdd_8u_C3RSfs(photo.data(), photo.step(), other.data(), other.step(), result.data(),
                             result.step(), photo.size(), 1);
  });
  return result;
}

// |a - b| of the photo and itself moved a little, doubled: of the two differences one is zero.
AnyImage difference(const Colour& photo, Calls& calls) {
  const LumiSize size = photo.size();
  const int x = std::min(3, size.width - 1), y = std::min(3, size.height - 1);
  const LumiSize both = {size.width - x, size.height - y};
  Colour result(size), positive(size), negative(size);
  fill(result, {0, 0, 0});
  calls.time("lumiSub_8u_C3RSfs", both, [&] {
    return lumiSub_8u_C3RSfs(photo.data(), photo.step(), photo.at(x, y), photo.step(), positive.data(),
                             positive.step(), both, -1);
  });
  check(lumiSub_8u_C3RSfs(photo.at(x, y), photo.step(), photo.data(), photo.step(), negative.data(),
                          negative.step(), both, -1),
        "lumiSub_8u_C3RSfs");
  calls.time("lumiAdd_8u_C3RSfs", both, [&] {
    return lumiAdd_8u_C3RSfs(positive.data(), positive.step(), negative.data(), negative.step(),
                             result.data(), result.step(), both, 0);
  });
  return result;
}

const Panels panels("arithmetic", "add_sub",
                    {
                        {"brighter", "50 added", brighter},
                        {"contrast", "64 subtracted, doubled", moreContrast},
                        {"exposure", "Half the sum of two", doubleExposure},
                        {"difference", "Difference of two", difference},
                    });

}  // namespace
