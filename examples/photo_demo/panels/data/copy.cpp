// SPDX-License-Identifier: MIT
#include <algorithm>

#include "panels.hpp"
#include "pieces.hpp"

namespace {

constexpr Rgb kWhite = {255, 255, 255};

AnyImage original(const Colour& photo, Calls& calls) {
  Colour copy(photo.size());
  calls.time("lumiCopy_8u_C3R", photo.size(), [&] {
    return lumiCopy_8u_C3R(photo.data(), photo.step(), copy.data(), copy.step(), photo.size());
  });
  return copy;
}

// A pointer to a channel's first sample chooses the channel.
AnyImage greenIntoRed(const Colour& photo, Calls& calls) {
  Colour result = copyOf(photo);
  calls.time("lumiCopy_8u_C3CR", photo.size(), [&] {
    return lumiCopy_8u_C3CR(photo.data() + 1, photo.step(), result.data(), result.step(), photo.size());
  });
  return result;
}

AnyImage colourInDisc(const Colour& photo, Calls& calls) {
  const Grey disc = middleDisc(photo);
  Colour result = greyed(photo, calls);
  calls.time("lumiCopy_8u_C3MR", photo.size(), [&] {
    return lumiCopy_8u_C3MR(photo.data(), photo.step(), result.data(), result.step(), photo.size(),
                            disc.data(), disc.step());
  });
  return result;
}

// Eight by eight tiles, read along the rows and laid along the columns.
AnyImage mosaic(const Colour& photo, Calls& calls) {
  constexpr int count = 8;
  const LumiSize tile = {std::max(photo.size().width / count, 1), std::max(photo.size().height / count, 1)};
  const int across = std::min(photo.size().width / tile.width, count);
  const int down = std::min(photo.size().height / tile.height, count), turned = std::min(across, down);
  Colour result = copyOf(photo);
  calls.time("lumiCopy_8u_C3R", {turned * tile.width, turned * tile.height}, [&] {
    LumStatus status = lumStatusOk;
    for (int i = 0; i < turned * turned && status == lumStatusOk; ++i) {
      const int row = i / turned, column = i % turned;
      status = lumiCopy_8u_C3R(photo.at(column * tile.width, row * tile.height), photo.step(),
                               result.at(row * tile.width, column * tile.height), result.step(), tile);
    }
    return status;
  });
  return result;
}

// A negative step walks the rows from the last one upwards.
AnyImage upsideDown(const Colour& photo, Calls& calls) {
  Colour result(photo.size());
  calls.time("lumiCopy_8u_C3R", photo.size(), [&] {
    return lumiCopy_8u_C3R(photo.at(0, photo.size().height - 1), -photo.step(), result.data(), result.step(),
                           photo.size());
  });
  return result;
}

AnyImage pictureInPicture(const Colour& photo, Calls& calls) {
  constexpr int reduction = 3;
  const Colour small = everyNth(photo, reduction);
  const LumiSize size = small.size();
  const int border = shortSide(photo) / 100, margin = shortSide(photo) / 16;
  const int x = std::max(photo.size().width - size.width - margin, 0);
  const int y = std::max(photo.size().height - size.height - margin, 0);
  Colour result = copyOf(photo);
  fillRect(result, {x - border, y - border, size.width + 2 * border, size.height + 2 * border}, kWhite);
  calls.time("lumiCopy_8u_C3R", size, [&] {
    return lumiCopy_8u_C3R(small.data(), small.step(), result.at(x, y), result.step(), size);
  });
  return result;
}

const Panels panels("data", "copy",
                    {
                        {"original", "Original", original},
                        {"green-into-red", "Green copied into red", greenIntoRed},
                        {"disc", "Colour copied by mask", colourInDisc},
                        {"mosaic", "Tiles transposed", mosaic},
                        {"upside-down", "Flipped by a step", upsideDown},
                        {"inset", "Picture in picture", pictureInPicture},
                    });

}  // namespace
