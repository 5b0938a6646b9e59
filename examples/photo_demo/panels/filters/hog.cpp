// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>
#include <vector>

#include "panels.hpp"

namespace {

constexpr int kCell = 8, kBlock = 2 * kCell, kBins = 9;

// Blocks side by side, one window as large as they fit.
LumiHOGConfig configFor(LumiSize size) {
  return {
      0, kCell, kBlock, kBlock, kBins, 4, 0.2F, size.width / kBlock * kBlock, size.height / kBlock * kBlock};
}

std::vector<float> describe(const Colour& photo, const LumiHOGConfig& config, Calls& calls) {
  int objectBytes = 0, bufferBytes = 0, descriptorBytes = 0;
  check(lumiHOGGetSize(&config, &objectBytes), "lumiHOGGetSize");
  std::vector<Lum8u> object(static_cast<size_t>(objectBytes));
  auto* const spec = reinterpret_cast<LumiHOGSpec*>(object.data());
  check(lumiHOGInit(&config, spec), "lumiHOGInit");
  check(lumiHOGGetBufferSize(spec, photo.size(), &bufferBytes), "lumiHOGGetBufferSize");
  check(lumiHOGGetDescriptorSize(spec, &descriptorBytes), "lumiHOGGetDescriptorSize");
  std::vector<Lum8u> buffer(static_cast<size_t>(bufferBytes));
  std::vector<float> descriptor(static_cast<size_t>(descriptorBytes) / sizeof(float));
  const Lum8u outside[3] = {};
  calls.time("lumiHOG_8u32f_C3R", photo.size(), [&] {
    return lumiHOG_8u32f_C3R(photo.data(), photo.step(), photo.size(), nullptr, 1, descriptor.data(), spec,
                             lumiBorderReplicate, outside, buffer.data());
  });
  return descriptor;
}

// A ray for each bin, along the edge that such a gradient crosses.
void drawStar(Colour& picture, int left, int top, const float* bins) {
  for (int bin = 0; bin < kBins; ++bin) {
    const double angle = (bin + 0.5) * 3.14159265358979 / kBins;
    const auto light = static_cast<Lum8u>(std::lround(255 * std::min(1.0F, 3 * bins[bin])));
    for (double t = -3; t <= 3; t += 0.5) {
      const long x = std::lround(3.5 - t * std::sin(angle)), y = std::lround(3.5 + t * std::cos(angle));
      Lum8u* const pixel = picture.at(left + static_cast<int>(x), top + static_cast<int>(y));
      std::for_each(pixel, pixel + 3, [&](Lum8u& sample) { sample = std::max(sample, light); });
    }
  }
}

// The darkened photo, with a star in each cell.
AnyImage stars(const Colour& photo, Calls& calls) {
  Colour result(photo.size());
  const Lum32u half[3] = {1, 1, 1};
  calls.time("lumiRShiftC_8u_C3R", photo.size(), [&] {
    return lumiRShiftC_8u_C3R(photo.data(), photo.step(), half, result.data(), result.step(), photo.size());
  });
  if (std::min(photo.size().width, photo.size().height) < kBlock) return result;
  const LumiHOGConfig config = configFor(photo.size());
  const std::vector<float> descriptor = describe(photo, config, calls);
  const float* bins = descriptor.data();
  for (int y = 0; y < config.windowHeight; y += kBlock)
    for (int x = 0; x < config.windowWidth; x += kBlock)
      for (int cell = 0; cell < 4; ++cell, bins += kBins)
        drawStar(result, x + cell / 2 * kCell, y + cell % 2 * kCell, bins);
  return result;
}

const Panels panels("filters", "hog", {{"stars", "Directions of edges by cells", stars}});

}  // namespace
