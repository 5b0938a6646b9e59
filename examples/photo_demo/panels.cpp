// SPDX-License-Identifier: MIT
#include "panels.hpp"

#include <algorithm>
#include <array>
#include <utility>

#include "shapes.hpp"

namespace {

constexpr Rgb kOrange = {255, 140, 0}, kTeal = {0, 150, 160}, kWhite = {255, 255, 255};

struct Planes {
  Grey red, green, blue;
  std::array<Lum8u*, 3> first = {red.data(), green.data(), blue.data()};

  explicit Planes(LumiSize size) : red(size), green(size), blue(size) {}
};

Planes split(const Colour& photo) {
  Planes planes(photo.size());
  check(lumiCopy_8u_C3P3R(photo.data(), photo.step(), planes.first.data(), planes.red.step(), photo.size()),
        "lumiCopy_8u_C3P3R");
  return planes;
}

int shortSide(const Colour& photo) { return std::min(photo.size().width, photo.size().height); }

// The disc that several panels choose their pixels by.
Grey middleDisc(const Colour& photo) {
  const LumiSize size = photo.size();
  Grey mask = plainMask(size, 0);
  addDisc(mask, {size.width / 2, size.height / 2}, shortSide(photo) * 2 / 5);
  return mask;
}

AnyImage original(const Colour& photo, Calls& calls) {
  Colour copy(photo.size());
  calls.time("lumiCopy_8u_C3R", photo.size(), [&] {
    return lumiCopy_8u_C3R(photo.data(), photo.step(), copy.data(), copy.step(), photo.size());
  });
  return copy;
}

template <Grey Planes::*plane>
AnyImage onePlane(const Colour& photo, Calls& calls) {
  Planes planes(photo.size());
  calls.time("lumiCopy_8u_C3P3R", photo.size(), [&] {
    return lumiCopy_8u_C3P3R(photo.data(), photo.step(), planes.first.data(), planes.red.step(),
                             photo.size());
  });
  return std::move(planes.*plane);
}

AnyImage swapped(const Colour& photo, Calls& calls) {
  const Planes planes = split(photo);
  const Lum8u* const backwards[3] = {planes.blue.data(), planes.green.data(), planes.red.data()};
  Colour result(photo.size());
  calls.time("lumiCopy_8u_P3C3R", photo.size(), [&] {
    return lumiCopy_8u_P3C3R(backwards, planes.red.step(), result.data(), result.step(), photo.size());
  });
  return result;
}

// A pointer to a channel's first sample chooses the channel.
AnyImage greenIntoRed(const Colour& photo, Calls& calls) {
  Colour result = copyOf(photo);
  calls.time("lumiCopy_8u_C3CR", photo.size(), [&] {
    return lumiCopy_8u_C3CR(photo.data() + 1, photo.step(), result.data(), result.step(), photo.size());
  });
  return result;
}

AnyImage greyToColour(const Colour& photo, Calls& calls) {
  const Planes planes = split(photo);
  Colour result(photo.size());
  calls.time("lumiDup_8u_C1C3R", photo.size(), [&] {
    return lumiDup_8u_C1C3R(planes.green.data(), planes.green.step(), result.data(), result.step(),
                            photo.size());
  });
  return result;
}

AnyImage blueFilled(const Colour& photo, Calls& calls) {
  Colour result = std::get<Colour>(greyToColour(photo, calls));
  calls.time("lumiSet_8u_C3CR", photo.size(),
             [&] { return lumiSet_8u_C3CR(96, result.data() + 2, result.step(), photo.size()); });
  return result;
}

AnyImage ringPainted(const Colour& photo, Calls& calls) {
  const LumiSize size = photo.size();
  Grey ring = middleDisc(photo);
  addDisc(ring, {size.width / 2, size.height / 2}, shortSide(photo) * 3 / 10, 0);
  Colour result = copyOf(photo);
  calls.time("lumiSet_8u_C3MR", size, [&] {
    return lumiSet_8u_C3MR(kOrange.data(), result.data(), result.step(), size, ring.data(), ring.step());
  });
  return result;
}

AnyImage colourInDisc(const Colour& photo, Calls& calls) {
  const Grey disc = middleDisc(photo);
  Colour result = std::get<Colour>(greyToColour(photo, calls));
  calls.time("lumiCopy_8u_C3MR", photo.size(), [&] {
    return lumiCopy_8u_C3MR(photo.data(), photo.step(), result.data(), result.step(), photo.size(),
                            disc.data(), disc.step());
  });
  return result;
}

AnyImage opaque(const Colour& photo, Calls& calls) {
  ColourAlpha result(photo.size());
  calls.time("lumiSet_8u_C4CR", photo.size(),
             [&] { return lumiSet_8u_C4CR(255, result.data() + 3, result.step(), photo.size()); });
  calls.time("lumiCopy_8u_C3AC4R", photo.size(), [&] {
    return lumiCopy_8u_C3AC4R(photo.data(), photo.step(), result.data(), result.step(), photo.size());
  });
  return result;
}

// The mask is the fourth plane: opaque where it chooses, transparent elsewhere.
AnyImage alphaFromMask(const Colour& photo, Calls& calls) {
  const Planes planes = split(photo);
  const Grey disc = middleDisc(photo);
  const Lum8u* const four[4] = {planes.red.data(), planes.green.data(), planes.blue.data(), disc.data()};
  ColourAlpha result(photo.size());
  calls.time("lumiCopy_8u_P4C4R", photo.size(), [&] {
    return lumiCopy_8u_P4C4R(four, disc.step(), result.data(), result.step(), photo.size());
  });
  return result;
}

// The lower half gets another colour; what was transparent stays so.
AnyImage alphaKept(const Colour& photo, Calls& calls) {
  ColourAlpha result = std::get<ColourAlpha>(alphaFromMask(photo, calls));
  const LumiSize lower = {photo.size().width, (photo.size().height + 1) / 2};
  calls.time("lumiSet_8u_AC4R", lower, [&] {
    return lumiSet_8u_AC4R(kTeal.data(), result.at(0, photo.size().height - lower.height), result.step(),
                           lower);
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

}  // namespace

const std::vector<Panel>& panels() {
  static const std::vector<Panel> list = [] {
    std::vector<Panel> all = {
        {"original", "Original", original},
        {"red", "Red plane", onePlane<&Planes::red>},
        {"green", "Green plane", onePlane<&Planes::green>},
        {"blue", "Blue plane", onePlane<&Planes::blue>},
        {"swapped", "Planes merged as B G R", swapped},
        {"green-into-red", "Green copied into red", greenIntoRed},
        {"grey", "Grey made colour", greyToColour},
        {"blue-filled", "Blue channel filled", blueFilled},
        {"ring", "Ring painted by mask", ringPainted},
        {"disc", "Colour copied by mask", colourInDisc},
        {"opaque", "Opaque alpha added", opaque},
        {"alpha", "Mask as alpha plane", alphaFromMask},
        {"alpha-kept", "Colour set, alpha kept", alphaKept},
        {"mosaic", "Tiles transposed", mosaic},
        {"upside-down", "Flipped by a step", upsideDown},
        {"inset", "Picture in picture", pictureInPicture},
    };
    for (const Panel& panel : samplePanels()) all.push_back(panel);
    for (const Panel& panel : geometryPanels()) all.push_back(panel);
    return all;
  }();
  return list;
}
