// SPDX-License-Identifier: MIT
#include "pieces.hpp"

#include <algorithm>
#include <cstdint>

#include "resizer.hpp"
#include "shapes.hpp"

Planes split(const Colour& photo) {
  Planes planes(photo.size());
  check(lumiCopy_8u_C3P3R(photo.data(), photo.step(), planes.first.data(), planes.red.step(), photo.size()),
        "lumiCopy_8u_C3P3R");
  return planes;
}

int shortSide(const Colour& photo) { return std::min(photo.size().width, photo.size().height); }

Grey middleDisc(const Colour& photo) {
  const LumiSize size = photo.size();
  Grey mask = plainMask(size, 0);
  addDisc(mask, {size.width / 2, size.height / 2}, shortSide(photo) * 2 / 5);
  return mask;
}

Colour greyed(const Colour& photo, Calls& calls) {
  const Planes planes = split(photo);
  Colour result(photo.size());
  calls.time("lumiDup_8u_C1C3R", photo.size(), [&] {
    return lumiDup_8u_C1C3R(planes.green.data(), planes.green.step(), result.data(), result.step(),
                            photo.size());
  });
  return result;
}

ColourAlpha discAsAlpha(const Colour& photo, Calls& calls) {
  const Planes planes = split(photo);
  const Grey disc = middleDisc(photo);
  const Lum8u* const four[4] = {planes.red.data(), planes.green.data(), planes.blue.data(), disc.data()};
  ColourAlpha result(photo.size());
  calls.time("lumiCopy_8u_P4C4R", photo.size(), [&] {
    return lumiCopy_8u_P4C4R(four, disc.step(), result.data(), result.step(), photo.size());
  });
  return result;
}

Colour flipped(const Colour& photo) {
  Colour result(photo.size());
  check(lumiCopy_8u_C3R(photo.at(0, photo.size().height - 1), -photo.step(), result.data(), result.step(),
                        photo.size()),
        "lumiCopy_8u_C3R");
  return result;
}

LumiSize scaled(LumiSize size, int factor, int divisor) {
  return {std::max(size.width * factor / divisor, 1), std::max(size.height * factor / divisor, 1)};
}

Colour cut(const Colour& photo, int x, int y, LumiSize size) {
  Colour part(size);
  check(lumiCopy_8u_C3R(photo.at(x, y), photo.step(), part.data(), part.step(), size), "lumiCopy_8u_C3R");
  return part;
}

Colour widened(const Colour& photo, int reach) {
  const LumiSize size = photo.size(), whole{size.width + 2 * reach, size.height + 2 * reach};
  Colour result(whole);
  check(lumiCopyReplicateBorder_8u_C3R(photo.data(), photo.step(), size, result.data(), result.step(), whole,
                                       reach, reach),
        "lumiCopyReplicateBorder_8u_C3R");
  return result;
}

Colour peppered(const Colour& photo) {
  Colour result = copyOf(photo);
  const auto [width, height] = photo.size();
  uint32_t random = 1;
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x) {
      random = random * 1664525 + 1013904223;
      const uint32_t chosen = (random >> 16) % 20;
      if (chosen < 2) std::fill_n(result.at(x, y), 3, static_cast<Lum8u>(chosen * 255));
    }
  return result;
}

namespace {

// Sources of linear interpolation have two rows and columns at least.
LumiInterpolationType fitting(LumiInterpolationType wanted, LumiSize from) {
  return std::min(from.width, from.height) < 2 ? LumiInterpolationType{lumInterpNearest} : wanted;
}

}  // namespace

Colour radialLight(LumiSize size, int loss) {
  Colour light(size);
  const int width = size.width, height = size.height;
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x) {
      // Twice the distance to the middle, so that all numbers are whole.
      const int64_t dx = 2 * x - (width - 1), dy = 2 * y - (height - 1);
      const int64_t corner = int64_t{width} * width + int64_t{height} * height;
      const auto left = static_cast<Lum8u>(255 - loss * (dx * dx + dy * dy) / corner);
      for (int c = 0; c < 3; ++c) light.at(x, y)[c] = left;
    }
  return light;
}

Colour resizedInTiles(const Colour& from, LumiSize to, LumiSize tile, LumiInterpolationType interpolation,
                      Calls& calls) {
  const Resizer resizer(from.size(), to, fitting(interpolation, from.size()));
  std::vector<Lum8u> scratch = resizer.scratchFor(tile);
  Colour result(to);
  calls.time(resizer.runName(), to, [&] {
    LumStatus status = lumStatusOk;
    for (int y = 0; y < to.height && status == lumStatusOk; y += tile.height)
      for (int x = 0; x < to.width && status == lumStatusOk; x += tile.width)
        status =
            resizer.run(from.data(), from.step(), result.data(), result.step(), {x, y},
                        {std::min(tile.width, to.width - x), std::min(tile.height, to.height - y)}, scratch);
    return status;
  });
  return result;
}

Colour resized(const Colour& from, LumiSize to, LumiInterpolationType interpolation, Calls& calls) {
  return resizedInTiles(from, to, to, interpolation, calls);
}
