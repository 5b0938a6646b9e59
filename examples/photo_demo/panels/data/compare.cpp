// SPDX-License-Identifier: MIT
#include "panels.hpp"
#include "pieces.hpp"

namespace {

Grey redderThanGreen(const Colour& photo, Calls& calls) {
  const Planes planes = split(photo);
  const Grey &red = planes.red, &green = planes.green;
  Grey mask(photo.size());
  calls.time("lumiCompare_8u_C1R", photo.size(), [&] {
    return lumiCompare_8u_C1R(red.data(), red.step(), green.data(), green.step(), mask.data(), mask.step(),
                              photo.size(), lumCmpOpGreater);
  });
  return mask;
}

AnyImage mask(const Colour& photo, Calls& calls) { return redderThanGreen(photo, calls); }

// What is redder than green stays in colour.
AnyImage warm(const Colour& photo, Calls& calls) {
  const Grey mask = redderThanGreen(photo, calls);
  Colour result = greyed(photo, calls);
  check(lumiCopy_8u_C3MR(photo.data(), photo.step(), result.data(), result.step(), photo.size(), mask.data(),
                         mask.step()),
        "lumiCopy_8u_C3MR");
  return result;
}

// Pixels that are dark in every channel.
AnyImage dark(const Colour& photo, Calls& calls) {
  const Lum8u limit[3] = {140, 140, 140};
  Grey result(photo.size());
  calls.time("lumiCompareC_8u_C3R", photo.size(), [&] {
    return lumiCompareC_8u_C3R(photo.data(), photo.step(), limit, result.data(), result.step(), photo.size(),
                               lumCmpOpLess);
  });
  return result;
}

const Panels panels("data", "compare",
                    {
                        {"mask", "Redder than green", mask},
                        {"warm", "Warm colours stay", warm},
                        {"dark", "Dark in every channel", dark},
                    });

}  // namespace
