// SPDX-License-Identifier: MIT
#include <algorithm>

#include "panels.hpp"
#include "pieces.hpp"

namespace {

void blur(const Colour& around, int reach, Colour& result, LumiRect part, int side, Calls& calls) {
  const LumiSize size{part.width, part.height};
  calls.time("lumiFilterBox_8u_C3R", size, [&] {
    return lumiFilterBox_8u_C3R(around.at(part.x + reach, part.y + reach), around.step(),
                                result.at(part.x, part.y), result.step(), size, {side, side},
                                {side / 2, side / 2});
  });
}

constexpr int kSides[] = {1, 5, 15, 45};
constexpr int kLargestReach = 22;

// Four stripes under growing windows.
AnyImage growing(const Colour& photo, Calls& calls) {
  const Colour around = widened(photo, kLargestReach);
  Colour result = copyOf(photo);
  const auto [width, height] = photo.size();
  for (int i = 0; i < 4; ++i) {
    const int x = width * i / 4, end = width * (i + 1) / 4;
    if (end > x) blur(around, kLargestReach, result, {x, 0, end - x, height}, kSides[i], calls);
  }
  return result;
}

// The photo and half of what it is more, or less, than its surroundings.
AnyImage unsharpMasked(const Colour& photo, Calls& calls) {
  constexpr int kReach = 4;
  Colour blurred(photo.size()), more(photo.size()), less(photo.size());
  const LumiSize size = photo.size();
  blur(widened(photo, kReach), kReach, blurred, {0, 0, size.width, size.height}, 2 * kReach + 1, calls);
  const auto halfOf = [&](const Colour& large, const Colour& small, Colour& difference) {
    check(lumiSub_8u_C3RSfs(small.data(), small.step(), large.data(), large.step(), difference.data(),
                            difference.step(), size, 1),
          "lumiSub_8u_C3RSfs");
  };
  halfOf(photo, blurred, more);
  halfOf(blurred, photo, less);
  check(lumiAdd_8u_C3IRSfs(photo.data(), photo.step(), more.data(), more.step(), size, 0),
        "lumiAdd_8u_C3IRSfs");
  check(lumiSub_8u_C3IRSfs(less.data(), less.step(), more.data(), more.step(), size, 0),
        "lumiSub_8u_C3IRSfs");
  return more;
}

const Panels panels("filters", "filter_box",
                    {
                        {"growing", "Box of 1, 5, 15, 45", growing},
                        {"unsharp", "Unsharp mask", unsharpMasked},
                    });

}  // namespace
