// SPDX-License-Identifier: MIT
#include <utility>

#include "panels.hpp"
#include "pieces.hpp"

namespace {

AnyImage swapped(const Colour& photo, Calls& calls) {
  const Planes planes = split(photo);
  const Lum8u* const backwards[3] = {planes.blue.data(), planes.green.data(), planes.red.data()};
  Colour result(photo.size());
  calls.time("lumiCopy_8u_P3C3R", photo.size(), [&] {
    return lumiCopy_8u_P3C3R(backwards, planes.red.step(), result.data(), result.step(), photo.size());
  });
  return result;
}

template <Grey Planes::*plane>
AnyImage onePlane(const Colour& photo, Calls& calls) {
  Planes planes(photo.size());
  calls.time("lumiCopy_8u_C3P3R", photo.size(), [&] {
    return lumiCopy_8u_C3P3R(photo.data(), photo.step(), planes.first.data(), planes.red.step(),
                             photo.size());
  });
  return std::move(planes.*plane);
}

AnyImage grey(const Colour& photo, Calls& calls) { return greyed(photo, calls); }

AnyImage opaque(const Colour& photo, Calls& calls) {
  ColourAlpha result(photo.size());
  calls.time("lumiSet_8u_C4CR", photo.size(),
             [&] { return lumiSet_8u_C4CR(255, result.data() + 3, result.step(), photo.size()); });
  calls.time("lumiCopy_8u_C3AC4R", photo.size(), [&] {
    return lumiCopy_8u_C3AC4R(photo.data(), photo.step(), result.data(), result.step(), photo.size());
  });
  return result;
}

AnyImage alphaFromMask(const Colour& photo, Calls& calls) { return discAsAlpha(photo, calls); }

const Panels panels("data", "copy_channels",
                    {
                        {"swapped", "Planes merged as B G R", swapped},
                        {"red", "Red plane", onePlane<&Planes::red>},
                        {"green", "Green plane", onePlane<&Planes::green>},
                        {"blue", "Blue plane", onePlane<&Planes::blue>},
                        {"grey", "Grey made colour", grey},
                        {"opaque", "Opaque alpha added", opaque},
                        {"alpha", "Mask as alpha plane", alphaFromMask},
                    });

}  // namespace
