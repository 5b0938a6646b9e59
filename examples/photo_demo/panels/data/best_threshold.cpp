// SPDX-License-Identifier: MIT
#include "panels.hpp"
#include "pieces.hpp"

namespace {

// Green as 255 where it is above the threshold that parts it best, and as 0 elsewhere: that threshold is
// never 255.
Grey brightPart(const Colour& photo, Calls& calls) {
  const Planes planes = split(photo);
  const Grey& green = planes.green;
  Grey mask(photo.size());
  Lum8u threshold = 0;
  calls.time("lumiComputeThreshold_Otsu_8u_C1R", photo.size(), [&] {
    return lumiComputeThreshold_Otsu_8u_C1R(green.data(), green.step(), photo.size(), &threshold);
  });
  calls.time("lumiThreshold_GTVal_8u_C1R", photo.size(), [&] {
    return lumiThreshold_GTVal_8u_C1R(green.data(), green.step(), mask.data(), mask.step(), photo.size(),
                                      threshold, 255);
  });
  calls.time("lumiThreshold_LTVal_8u_C1IR", photo.size(),
             [&] { return lumiThreshold_LTVal_8u_C1IR(mask.data(), mask.step(), photo.size(), 255, 0); });
  return mask;
}

// The bright part in colour, on grey.
AnyImage segmented(const Colour& photo, Calls& calls) {
  const Grey mask = brightPart(photo, calls);
  Colour result = greyed(photo, calls);
  calls.time("lumiCopy_8u_C3MR", photo.size(), [&] {
    return lumiCopy_8u_C3MR(photo.data(), photo.step(), result.data(), result.step(), photo.size(),
                            mask.data(), mask.step());
  });
  return result;
}

AnyImage mask(const Colour& photo, Calls& calls) { return brightPart(photo, calls); }

const Panels panels("data", "best_threshold",
                    {
                        {"segmented", "Parted by the best threshold", segmented},
                        {"mask", "The bright part", mask},
                    });

}  // namespace
