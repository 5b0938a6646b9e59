// SPDX-License-Identifier: MIT
#include "scene.hpp"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "shapes.hpp"
#include "text.hpp"

namespace {

constexpr LumiSize kSize = {704, 468};
constexpr int kHorizon = 350;

Rgb mix(const Rgb& a, const Rgb& b, double part) {
  Rgb mixed{};
  for (size_t i = 0; i < mixed.size(); ++i)
    mixed[i] = static_cast<Lum8u>(std::lround(a[i] + (b[i] - a[i]) * part));
  return mixed;
}

// A colour of the rainbow; 0 and 1 are both red.
Rgb rainbow(double place) {
  constexpr Rgb colours[] = {{226, 54, 54},  {245, 166, 35}, {248, 228, 60}, {76, 175, 80},
                             {38, 166, 214}, {94, 80, 190},  {226, 54, 54}};
  const double scaled = place * (std::size(colours) - 1);
  const size_t first = scaled < 5 ? static_cast<size_t>(scaled) : 5;
  return mix(colours[first], colours[first + 1], scaled - static_cast<double>(first));
}

void disc(Colour& scene, LumiPoint centre, int radius, const Rgb& colour) {
  Grey mask = plainMask(kSize, 0);
  addDisc(mask, centre, radius);
  fillMasked(scene, mask, colour);
}

}  // namespace

Colour testScene() {
  constexpr Rgb night = {24, 40, 96}, dusk = {250, 160, 110}, sun = {255, 236, 150}, white = {255, 255, 255};
  Colour scene(kSize);
  for (int y = 0; y < kSize.height; ++y) {
    fillRect(scene, {0, y, kSize.width, 1}, mix(night, dusk, 1.0 * std::min(y, kHorizon) / kHorizon));
  }
  for (int ring = 0; ring < 5; ++ring) {
    disc(scene, {510, 232}, 124 - 11 * ring, mix({236, 150, 120}, sun, ring / 4.0));
  }
  disc(scene, {140, 724}, 386, {58, 92, 86});
  disc(scene, {564, 818}, 480, {38, 70, 70});
  disc(scene, {352, 1052}, 656, {22, 46, 52});
  for (int i = 0; i < 6; ++i) disc(scene, {74 + 54 * i, 232}, 22, rainbow(i / 6.0));
  const Font large(12), small(2);
  large.draw("lumi", scene, 50, 72, white);
  small.draw("image processing", scene, 54, 282, {255, 214, 190});
  for (int x = 0; x < kSize.width; ++x) {
    fillRect(scene, {x, kSize.height - 26, 1, 26}, rainbow(1.0 * x / (kSize.width - 1)));
  }
  return scene;
}
