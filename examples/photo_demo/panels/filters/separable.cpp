// SPDX-License-Identifier: MIT
#include <algorithm>
#include <vector>

#include "panels.hpp"
#include "pieces.hpp"

namespace {

// The photo with its edges repeated around it, since filters read what lies there.
Colour bordered(const Colour& photo, LumiSize around, Calls& calls) {
  const LumiSize size = {photo.size().width + 2 * around.width, photo.size().height + 2 * around.height};
  Colour result(size);
  calls.time("lumiCopyReplicateBorder_8u_C3R", size, [&] {
    return lumiCopyReplicateBorder_8u_C3R(photo.data(), photo.step(), photo.size(), result.data(),
                                          result.step(), size, around.height, around.width);
  });
  return result;
}

const std::vector<Lum32s> kHill = {1, 6, 15, 20, 15, 6, 1};
constexpr int kReach = 3, kHillSum = 64;

// Rows first, those above and below the photo too, then columns.
AnyImage smoothed(const Colour& photo, Calls& calls) {
  const Colour src = bordered(photo, {kReach, kReach}, calls);
  const LumiSize tall = {photo.size().width, photo.size().height + 2 * kReach};
  Colour rows(tall), result(photo.size());
  const int count = static_cast<int>(kHill.size());
  calls.time("lumiFilterRow_8u_C3R", tall, [&] {
    return lumiFilterRow_8u_C3R(src.at(kReach, 0), src.step(), rows.data(), rows.step(), tall, kHill.data(),
                                count, kReach, kHillSum);
  });
  calls.time("lumiFilterColumn_8u_C3R", photo.size(), [&] {
    return lumiFilterColumn_8u_C3R(rows.at(0, kReach), rows.step(), result.data(), result.step(),
                                   photo.size(), kHill.data(), count, kReach, kHillSum);
  });
  return result;
}

// The pixels to the left of each one, as many as the camera has moved by.
AnyImage moved(const Colour& photo, Calls& calls) {
  constexpr int kLength = 21;
  const Colour src = bordered(photo, {kLength - 1, 0}, calls);
  Colour result(photo.size());
  const std::vector<Lum32f> taps(kLength, 1.0F / kLength);
  calls.time("lumiFilterRow32f_8u_C3R", photo.size(), [&] {
    return lumiFilterRow32f_8u_C3R(src.at(kLength - 1, 0), src.step(), result.data(), result.step(),
                                   photo.size(), taps.data(), kLength, 0);
  });
  return result;
}

const Panels panels("filters", "separable",
                    {
                        {"smoothed", "Hill of 7, rows and columns", smoothed},
                        {"moved", "Moved to the right", moved},
                    });

}  // namespace
