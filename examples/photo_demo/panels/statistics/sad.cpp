// SPDX-License-Identifier: MIT
#include <algorithm>
#include <vector>

#include "panels.hpp"
#include "pieces.hpp"

namespace {

// A part of the green plane, looked for in all of it.
struct Search {
  Grey green;
  LumiPoint place;
  LumiSize part, windows;

  explicit Search(const Colour& photo) : green(std::move(split(photo).green)) {
    const LumiSize size = photo.size();
    constexpr int most = 40;  // of a side: the work grows with its square
    part = scaled(size, 1, 6);
    part = {std::min(part.width, most), std::min(part.height, most)};
    place = {size.width / 2, size.height / 3};
    windows = {size.width - part.width + 1, size.height - part.height + 1};
  }
  Image<1, Lum32s> sums(Calls& calls) const {
    Image<1, Lum32s> result(windows);
    calls.time("lumiSAD_8u32s_C1RSfs", windows, [&] {
      return lumiSAD_8u32s_C1RSfs(green.data(), green.step(), green.size(), green.at(place.x, place.y),
                                  green.step(), part, result.data(), result.step(), 0x10000, 0, nullptr);
    });
    return result;
  }
};

// Dark where the window that begins there is like the part.
AnyImage map(const Colour& photo, Calls& calls) {
  const Search search(photo);
  const Image<1, Lum32s> sums = search.sums(calls);
  Grey grey(search.windows);
  // The most that a mean difference comes to is 255, and most are below 128.
  const int pixels = search.part.width * search.part.height;
  for (int y = 0; y < search.windows.height; ++y)
    for (int x = 0; x < search.windows.width; ++x)
      *grey.at(x, y) = static_cast<Lum8u>(std::min(255, 2 * (*sums.at(x, y) / pixels)));
  return grey;
}

// A frame around the window of the least sum.
AnyImage found(const Colour& photo, Calls& calls) {
  const Search search(photo);
  const Image<1, Lum32s> sums = search.sums(calls);
  LumiPoint least = {0, 0};
  for (int y = 0; y < search.windows.height; ++y)
    for (int x = 0; x < search.windows.width; ++x)
      if (*sums.at(x, y) < *sums.at(least.x, least.y)) least = {x, y};
  Colour result = copyOf(photo);
  constexpr Rgb kFrame = {255, 230, 0};
  const auto [width, height] = search.part;
  const int line = std::max(1, shortSide(photo) / 150);
  fillRect(result, {least.x, least.y, width, line}, kFrame);
  fillRect(result, {least.x, least.y + height - line, width, line}, kFrame);
  fillRect(result, {least.x, least.y, line, height}, kFrame);
  fillRect(result, {least.x + width - line, least.y, line, height}, kFrame);
  return result;
}

const Panels panels("statistics", "sad",
                    {
                        {"found", "A part found again", found},
                        {"map", "Its differences from all windows", map},
                    });

}  // namespace
