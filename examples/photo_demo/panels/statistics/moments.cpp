// SPDX-License-Identifier: MIT
#include <cmath>
#include <vector>

#include "panels.hpp"
#include "pieces.hpp"

namespace {

constexpr Rgb kAxis = {255, 64, 0}, kSmallAxis = {0, 160, 255};

struct Ellipse {
  double x, y, angle, length, width;  // half axes
};

// A disc's mask, drawn out to the right so that it has a direction.
Grey shapeOf(const Colour& photo) {
  Grey mask = plainMask(photo.size(), 0);
  const LumiSize size = photo.size();
  const int radius = shortSide(photo) / 6;
  for (int i = 0; i < 4; ++i)
    addDisc(mask, {size.width / 3 + i * radius, size.height / 3 + i * radius / 2}, radius);
  return mask;
}

// The ellipse that has the second moments of the shape.
Ellipse ellipseOf(const Grey& shape, Calls& calls) {
  std::vector<Lum64f> memory(50);
  auto* const state = reinterpret_cast<LumiMomentState*>(memory.data());
  check(lumiMomentInit_64f(state, 0), "lumiMomentInit_64f");
  calls.time("lumiMoments64f_8u_C1R", shape.size(),
             [&] { return lumiMoments64f_8u_C1R(shape.data(), shape.step(), shape.size(), state); });
  const auto spatial = [&](int m, int n) {
    double value = 0;
    check(lumiGetSpatialMoment_64f(state, m, n, 0, {0, 0}, &value), "lumiGetSpatialMoment_64f");
    return value;
  };
  const auto central = [&](int m, int n) {
    double value = 0;
    check(lumiGetCentralMoment_64f(state, m, n, 0, &value), "lumiGetCentralMoment_64f");
    return value / spatial(0, 0);
  };
  const double a = central(2, 0), b = central(1, 1), c = central(0, 2);
  const double half = std::sqrt((a - c) * (a - c) / 4 + b * b), middle = (a + c) / 2;
  return {spatial(1, 0) / spatial(0, 0), spatial(0, 1) / spatial(0, 0), std::atan2(2 * b, a - c) / 2,
          2 * std::sqrt(middle + half), 2 * std::sqrt(std::max(0.0, middle - half))};
}

void drawAxis(Colour& image, const Ellipse& e, double angle, double length, const Rgb& colour) {
  for (double t = -length; t <= length; t += 0.5) {
    const int x = static_cast<int>(std::lround(e.x + t * std::cos(angle))),
              y = static_cast<int>(std::lround(e.y + t * std::sin(angle)));
    if (x >= 0 && y >= 0 && x < image.size().width && y < image.size().height)
      fillRect(image, {x, y, 1, 1}, colour);
  }
}

// The photo inside a shape, with the axes that its moments tell.
AnyImage axes(const Colour& photo, Calls& calls) {
  const Grey shape = shapeOf(photo);
  const Ellipse ellipse = ellipseOf(shape, calls);
  Colour result(photo.size());
  fill(result, {40, 40, 40});
  check(lumiCopy_8u_C3MR(photo.data(), photo.step(), result.data(), result.step(), photo.size(), shape.data(),
                         shape.step()),
        "lumiCopy_8u_C3MR");
  drawAxis(result, ellipse, ellipse.angle + std::acos(0.0), ellipse.width, kSmallAxis);
  drawAxis(result, ellipse, ellipse.angle, ellipse.length, kAxis);
  return result;
}

const Panels panels("statistics", "moments", {{"axes", "Centre and axes of a shape", axes}});

}  // namespace
