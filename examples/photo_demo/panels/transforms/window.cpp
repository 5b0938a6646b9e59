// SPDX-License-Identifier: MIT
#include "panels.hpp"
#include "pieces.hpp"

namespace {

// Applies a window to the green plane; what is too small for one stays.
template <typename Function>
AnyImage windowed(const Colour& photo, const char* name, Function window, Calls& calls) {
  Planes planes = split(photo);
  Grey& green = planes.green;
  const LumiSize size = photo.size();
  if (size.width < 3 || size.height < 3) return std::move(green);
  Grey result(size);
  calls.time(name, size,
             [&] { return window(green.data(), green.step(), result.data(), result.step(), size); });
  return result;
}

AnyImage cone(const Colour& photo, Calls& calls) {
  return windowed(photo, "lumiWinBartlett_8u_C1R", lumiWinBartlett_8u_C1R, calls);
}

AnyImage raisedCosines(const Colour& photo, Calls& calls) {
  return windowed(photo, "lumiWinHammingSep_8u_C1R", lumiWinHammingSep_8u_C1R, calls);
}

const Panels panels("transforms", "window",
                    {
                        {"cone", "Under a cone", cone},
                        {"raised-cosines", "Under raised cosines", raisedCosines},
                    });

}  // namespace
