// SPDX-License-Identifier: MIT
#include "panels.hpp"
#include "shapes.hpp"

namespace {

enum Flip { kAboutHorizontal, kAboutVertical, kAboutBoth };

// A single pixel has nothing to flip, and a single row or column only one way to.
Colour mirrored(const Colour& photo, Flip flip, Calls& calls) {
  const LumiSize size = photo.size();
  Colour result = copyOf(photo);
  if (size.width < 2) flip = kAboutHorizontal;
  if (size.height < 2) flip = kAboutVertical;
  if (size.width < 2 && size.height < 2) return result;
  calls.time("lumiMirror_8u_C3R", photo.size(), [&] {
    return lumiMirror_8u_C3R(photo.data(), photo.step(), result.data(), result.step(), photo.size(), flip);
  });
  return result;
}

AnyImage leftToRight(const Colour& photo, Calls& calls) { return mirrored(photo, kAboutVertical, calls); }
AnyImage upsideDown(const Colour& photo, Calls& calls) { return mirrored(photo, kAboutBoth, calls); }

const Panels panels("data", "mirror",
                    {
                        {"left-right", "Left and right exchanged", leftToRight},
                        {"half-turn", "Half a turn", upsideDown},
                    });

}  // namespace
