// SPDX-License-Identifier: MIT
#include "shapes.hpp"

#include <algorithm>
#include <cmath>

#include "calls.hpp"

Grey plainMask(LumiSize size, Lum8u value) {
  Grey mask(size);
  check(lumiSet_8u_C1R(value, mask.data(), mask.step(), size), "lumiSet_8u_C1R");
  return mask;
}

void addDisc(Grey& mask, LumiPoint centre, int radius, Lum8u value) {
  const LumiSize size = mask.size();
  for (int y = std::max(centre.y - radius, 0); y < std::min(centre.y + radius + 1, size.height); ++y) {
    const double dy = y - centre.y;
    const int half = static_cast<int>(std::lround(std::sqrt(1.0 * radius * radius - dy * dy)));
    const int left = std::max(centre.x - half, 0), right = std::min(centre.x + half + 1, size.width);
    if (left >= right) continue;
    check(lumiSet_8u_C1R(value, mask.at(left, y), mask.step(), {right - left, 1}), "lumiSet_8u_C1R");
  }
}

void fill(Colour& image, const Rgb& colour) {
  check(lumiSet_8u_C3R(colour.data(), image.data(), image.step(), image.size()), "lumiSet_8u_C3R");
}

void fillRect(Colour& image, LumiRect rect, const Rgb& colour) {
  check(lumiSet_8u_C3R(colour.data(), image.at(rect.x, rect.y), image.step(), {rect.width, rect.height}),
        "lumiSet_8u_C3R");
}

void fillMasked(Colour& image, const Grey& mask, const Rgb& colour) {
  check(lumiSet_8u_C3MR(colour.data(), image.data(), image.step(), image.size(), mask.data(), mask.step()),
        "lumiSet_8u_C3MR");
}

void place(const Colour& picture, Colour& on, int x, int y) {
  check(lumiCopy_8u_C3R(picture.data(), picture.step(), on.at(x, y), on.step(), picture.size()),
        "lumiCopy_8u_C3R");
}

// A step of n rows leaves out the rows between; the columns are taken one by one.
Colour copyOf(const Colour& picture) {
  Colour copy(picture.size());
  place(picture, copy, 0, 0);
  return copy;
}

Colour everyNth(const Colour& picture, int n) {
  const LumiSize size = {(picture.size().width + n - 1) / n, (picture.size().height + n - 1) / n};
  Colour small(size);
  for (int x = 0; x < size.width; ++x) {
    check(lumiCopy_8u_C3R(picture.at(x * n, 0), n * picture.step(), small.at(x, 0), small.step(),
                          {1, size.height}),
          "lumiCopy_8u_C3R");
  }
  return small;
}

namespace {

Colour chequerboard(LumiSize size) {
  constexpr int square = 16;
  constexpr Rgb light = {222, 222, 226}, dark = {186, 186, 192};
  Colour board(size);
  fill(board, light);
  for (int y = 0; y < size.height; y += square) {
    for (int x = (y / square % 2) * square; x < size.width; x += 2 * square) {
      fillRect(board, {x, y, std::min(square, size.width - x), std::min(square, size.height - y)}, dark);
    }
  }
  return board;
}

Colour shownImage(const Grey& grey) {
  Colour colour(grey.size());
  check(lumiDup_8u_C1C3R(grey.data(), grey.step(), colour.data(), colour.step(), grey.size()),
        "lumiDup_8u_C1C3R");
  return colour;
}

Colour shownImage(const Colour& image) { return copyOf(image); }

// The alpha channel serves as the mask.
Colour shownImage(const ColourAlpha& image) {
  const LumiSize size = image.size();
  Colour colour(size), screen = chequerboard(size);
  Grey alpha(size);
  check(lumiCopy_8u_AC4C3R(image.data(), image.step(), colour.data(), colour.step(), size),
        "lumiCopy_8u_AC4C3R");
  check(lumiCopy_8u_C4C1R(image.data() + 3, image.step(), alpha.data(), alpha.step(), size),
        "lumiCopy_8u_C4C1R");
  check(lumiCopy_8u_C3MR(colour.data(), colour.step(), screen.data(), screen.step(), size, alpha.data(),
                         alpha.step()),
        "lumiCopy_8u_C3MR");
  return screen;
}

}  // namespace

Colour shown(const AnyImage& image) {
  return std::visit([](const auto& any) { return shownImage(any); }, image);
}
