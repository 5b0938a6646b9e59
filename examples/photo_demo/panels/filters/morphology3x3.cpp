// SPDX-License-Identifier: MIT
#include "panels.hpp"
#include "pieces.hpp"

namespace {

Colour widened(const Colour& photo) {
  const LumiSize size = photo.size(), whole{size.width + 2, size.height + 2};
  Colour result(whole);
  check(lumiCopyReplicateBorder_8u_C3R(photo.data(), photo.step(), size, result.data(), result.step(), whole,
                                       1, 1),
        "lumiCopyReplicateBorder_8u_C3R");
  return result;
}

// What lies between the brightest and the darkest neighbour, four times: contours as wide as two pixels.
AnyImage contours(const Colour& photo, Calls& calls) {
  const LumiSize size = photo.size();
  const Colour around = widened(photo);
  Colour bright(size), dark(size);
  calls.time("lumiDilate3x3_8u_C3R", size, [&] {
    return lumiDilate3x3_8u_C3R(around.at(1, 1), around.step(), bright.data(), bright.step(), size);
  });
  calls.time("lumiErode3x3_8u_C3R", size, [&] {
    return lumiErode3x3_8u_C3R(around.at(1, 1), around.step(), dark.data(), dark.step(), size);
  });
  check(lumiSub_8u_C3IRSfs(dark.data(), dark.step(), bright.data(), bright.step(), size, -2),
        "lumiSub_8u_C3IRSfs");
  return bright;
}

// Dilated and eroded again, in place: dark spots that are smaller than the square are gone.
AnyImage closed(const Colour& photo, Calls&) {
  const LumiSize size = photo.size();
  Colour image = widened(photo);
  check(lumiDilate3x3_8u_C3IR(image.at(1, 1), image.step(), size), "lumiDilate3x3_8u_C3IR");
  check(lumiErode3x3_8u_C3IR(image.at(1, 1), image.step(), size), "lumiErode3x3_8u_C3IR");
  Colour result(size);
  check(lumiCopy_8u_C3R(image.at(1, 1), image.step(), result.data(), result.step(), size), "lumiCopy_8u_C3R");
  return result;
}

const Panels panels("filters", "morphology3x3",
                    {
                        {"contours", "Dilated less eroded", contours},
                        {"closed", "Dilated, then eroded", closed},
                    });

}  // namespace
