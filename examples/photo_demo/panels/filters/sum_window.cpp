// SPDX-License-Identifier: MIT
#include "panels.hpp"
#include "pieces.hpp"

namespace {

constexpr int kCount = 31, kReach = kCount / 2;

using Sum = LumStatus (*)(const Lum8u*, int, Lum32f*, int, LumiSize, int, int);

// Means of pixels in a line, as a moving camera would see them; edges are repeated.
AnyImage streaks(const Colour& photo, const char* name, Sum sum, Calls& calls) {
  const LumiSize size = photo.size();
  const Colour around = widened(photo, kReach);
  Colour result(size);
  ColourFloat sums(size);
  calls.time(name, size, [&] {
    return sum(around.at(kReach, kReach), around.step(), sums.data(), sums.step(), size, kCount, kReach);
  });
  constexpr Lum32f scale = 1.0F / kCount, scales[3] = {scale, scale, scale};
  check(lumiMulC_32f_C3IR(scales, sums.data(), sums.step(), size), "lumiMulC_32f_C3IR");
  check(lumiConvert_32f8u_C3R(sums.data(), sums.step(), result.data(), result.step(), size,
                              lumRoundNearestEven),
        "lumiConvert_32f8u_C3R");
  return result;
}

AnyImage alongRows(const Colour& photo, Calls& calls) {
  return streaks(photo, "lumiSumWindowRow_8u32f_C3R", lumiSumWindowRow_8u32f_C3R, calls);
}
AnyImage downColumns(const Colour& photo, Calls& calls) {
  return streaks(photo, "lumiSumWindowColumn_8u32f_C3R", lumiSumWindowColumn_8u32f_C3R, calls);
}

const Panels panels("filters", "sum_window",
                    {
                        {"row", "Sums along rows", alongRows},
                        {"column", "Sums along columns", downColumns},
                    });

}  // namespace
