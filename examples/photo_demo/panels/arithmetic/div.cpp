// SPDX-License-Identifier: MIT
#include "panels.hpp"
#include "pieces.hpp"

namespace {

// A picture of evenly lit paper tells what the lens darkened, which is made brighter. The scale factor -8
// takes 256 for the full light.
AnyImage flatField(const Colour& photo, Calls& calls) {
  const Colour field = radialLight(photo.size(), 159);
  Colour result(photo.size());
  calls.time("lumiDiv_8u_C3RSfs", photo.size(), [&] {
    return lumiDiv_8u_C3RSfs(field.data(), field.step(), photo.data(), photo.step(), result.data(),
                             result.step(), photo.size(), -8);
  });
  return result;
}

// Cut to eight levels, and spread over the range again: the scale factor -8 takes 256 for all of it.
AnyImage levels(const Colour& photo, Calls& calls) {
  constexpr Lum8u width[] = {32, 32, 32}, last[] = {7, 7, 7};
  Colour divisor(photo.size()), cut(photo.size()), result(photo.size());
  calls.time("lumiSet_8u_C3R", photo.size(),
             [&] { return lumiSet_8u_C3R(width, divisor.data(), divisor.step(), photo.size()); });
  calls.time("lumiDiv_Round_8u_C3RSfs", photo.size(), [&] {
    return lumiDiv_Round_8u_C3RSfs(divisor.data(), divisor.step(), photo.data(), photo.step(), cut.data(),
                                   cut.step(), photo.size(), lumRoundTowardZero, 0);
  });
  calls.time("lumiDivC_8u_C3RSfs", photo.size(), [&] {
    return lumiDivC_8u_C3RSfs(cut.data(), cut.step(), last, result.data(), result.step(), photo.size(), -8);
  });
  return result;
}

const Panels panels("arithmetic", "div",
                    {
                        {"flat-field", "Even light", flatField},
                        {"levels", "Eight levels", levels},
                    });

}  // namespace
