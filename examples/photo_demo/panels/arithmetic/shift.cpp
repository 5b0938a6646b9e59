// SPDX-License-Identifier: MIT
#include "panels.hpp"
#include "pieces.hpp"

namespace {

// Eight strips of the green plane, from its highest bit to its lowest: each comes to the top, and then, as a
// sign, over the whole sample.
AnyImage bitPlanes(const Colour& photo, Calls& calls) {
  const LumiSize size = photo.size();
  Grey result = split(photo).green;
  for (int strip = 0; strip < 8; ++strip) {
    const int left = size.width * strip / 8;
    const LumiSize part = {size.width * (strip + 1) / 8 - left, size.height};
    if (part.width == 0) continue;
    Lum8u* const first = result.at(left, 0);
    check(lumiLShiftC_8u_C1IR(static_cast<Lum32u>(strip), first, result.step(), part), "lumiLShiftC_8u_C1IR");
    calls.time("lumiRShiftC_8s_C1IR", part,
               [&] { return lumiRShiftC_8s_C1IR(7, reinterpret_cast<Lum8s*>(first), result.step(), part); });
  }
  return result;
}

// Red stays, green is halved, blue is quartered.
AnyImage sunset(const Colour& photo, Calls& calls) {
  constexpr Lum32u counts[] = {0, 1, 2};
  Colour result(photo.size());
  calls.time("lumiRShiftC_8u_C3R", photo.size(), [&] {
    return lumiRShiftC_8u_C3R(photo.data(), photo.step(), counts, result.data(), result.step(), photo.size());
  });
  return result;
}

const Panels panels("arithmetic", "shift",
                    {
                        {"planes", "Bits from high to low", bitPlanes},
                        {"sunset", "Green by 1, blue by 2", sunset},
                    });

}  // namespace
