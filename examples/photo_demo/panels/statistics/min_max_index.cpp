// SPDX-License-Identifier: MIT
#include "panels.hpp"
#include "pieces.hpp"

namespace {

// A square about a place, as far as it lies in the picture.
void mark(Colour& image, int x, int y, const Rgb& colour) {
  constexpr int kReach = 2;
  const int left = std::max(x - kReach, 0), top = std::max(y - kReach, 0);
  const int right = std::min(x + kReach + 1, image.size().width);
  const int bottom = std::min(y + kReach + 1, image.size().height);
  fillRect(image, {left, top, right - left, bottom - top}, colour);
}

// The first of the darkest and of the brightest places of each channel, in black and in the channel's colour.
AnyImage marked(const Colour& photo, Calls& calls) {
  Colour result = copyOf(photo);
  Lum8u least[3], greatest[3];
  Lum32s leastX[3], leastY[3], greatestX[3], greatestY[3];
  calls.time("lumiMinIndx_8u_C3R", photo.size(), [&] {
    return lumiMinIndx_8u_C3R(photo.data(), photo.step(), photo.size(), least, leastX, leastY);
  });
  calls.time("lumiMaxIndx_8u_C3R", photo.size(), [&] {
    return lumiMaxIndx_8u_C3R(photo.data(), photo.step(), photo.size(), greatest, greatestX, greatestY);
  });
  for (size_t c = 0; c < 3; ++c) {
    mark(result, leastX[c], leastY[c], {0, 0, 0});
    Rgb colour{};
    colour[c] = 255;
    mark(result, greatestX[c], greatestY[c], colour);
  }
  return result;
}

const Panels panels("statistics", "min_max_index", {{"marked", "Darkest and brightest places", marked}});

}  // namespace
