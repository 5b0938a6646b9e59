// SPDX-License-Identifier: MIT
#include <algorithm>

#include "panels.hpp"
#include "pieces.hpp"

namespace {

constexpr int kAround = 4;  // at the most, filters reach so far

struct Fraction {
  int number, results, samples;

  int of(int side) const { return side / samples * results; }
};
constexpr Fraction kHalf = {0, 1, 2}, kTwoThirds = {2, 2, 3}, kThreeQuarters = {4, 3, 4};

// The green plane made smaller: rows first, those above and below it too, then columns.
template <const Fraction& fraction>
AnyImage decimated(const Colour& photo, Calls& calls) {
  const Planes planes = split(photo);
  const LumiSize size = photo.size(), whole = {size.width + 2 * kAround, size.height + 2 * kAround};
  Grey src(whole);
  calls.time("lumiCopyReplicateBorder_8u_C1R", whole, [&] {
    return lumiCopyReplicateBorder_8u_C1R(planes.green.data(), planes.green.step(), size, src.data(),
                                          src.step(), whole, kAround, kAround);
  });
  const LumiSize tall = {size.width, whole.height};
  const LumiSize made = {std::max(1, fraction.of(size.width)), std::max(1, fraction.of(size.height))};
  Grey rows({made.width, whole.height}), result(made);
  calls.time("lumiDecimateFilterRow_8u_C1R", tall, [&] {
    return lumiDecimateFilterRow_8u_C1R(src.at(kAround, 0), src.step(), tall, rows.data(), rows.step(),
                                        fraction.number);
  });
  calls.time("lumiDecimateFilterColumn_8u_C1R", {made.width, size.height}, [&] {
    return lumiDecimateFilterColumn_8u_C1R(rows.at(0, kAround), rows.step(), {made.width, size.height},
                                           result.data(), result.step(), fraction.number);
  });
  return result;
}

const Panels panels("filters", "decimate_filter",
                    {
                        {"half", "1/2, decimated", decimated<kHalf>},
                        {"two-thirds", "2/3, decimated", decimated<kTwoThirds>},
                        {"three-quarters", "3/4, decimated", decimated<kThreeQuarters>},
                    });

}  // namespace
