// SPDX-License-Identifier: MIT
#include "panels.hpp"
#include "pieces.hpp"

namespace {

AnyImage grains(const Colour& photo, Calls&) { return peppered(photo); }

// Grains disappear, and with larger windows all that is smaller than half of them; edges stay.
template <int side>
AnyImage cleaned(const Colour& photo, Calls& calls) {
  constexpr int kReach = side / 2;
  const Colour around = widened(peppered(photo), kReach);
  Colour result(photo.size());
  calls.time("lumiFilterMedian_8u_C3R", photo.size(), [&] {
    return lumiFilterMedian_8u_C3R(around.at(kReach, kReach), around.step(), result.data(), result.step(),
                                   photo.size(), {side, side}, {kReach, kReach});
  });
  return result;
}

const Panels panels("filters", "filter_median",
                    {
                        {"three", "Median of 3 x 3", cleaned<3>},
                        {"grains", "Salt and pepper", grains},
                        {"five", "Median of 5 x 5", cleaned<5>},
                        {"nine", "Median of 9 x 9", cleaned<9>},
                    });

}  // namespace
