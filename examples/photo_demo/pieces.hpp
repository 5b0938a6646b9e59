// SPDX-License-Identifier: MIT
// Pictures and parts of them that panels of several families begin with or end in.
#pragma once

#include <array>

#include "calls.hpp"
#include "image.hpp"
#include "shapes.hpp"

struct Planes {
  Grey red, green, blue;
  std::array<Lum8u*, 3> first = {red.data(), green.data(), blue.data()};

  explicit Planes(LumiSize size) : red(size), green(size), blue(size) {}
};

Planes split(const Colour& photo);

int shortSide(const Colour& photo);

// A mask that chooses a disc in the middle.
Grey middleDisc(const Colour& photo);

// Light of 255 in the middle that gets weaker towards the corners, where it has lost that much.
Colour radialLight(LumiSize size, int loss);

// The green plane in all three channels.
Colour greyed(const Colour& photo, Calls& calls);

// The disc in the middle is opaque, the rest transparent.
ColourAlpha discAsAlpha(const Colour& photo, Calls& calls);

Colour flipped(const Colour& photo);

// At least one pixel each way.
LumiSize scaled(LumiSize size, int factor, int divisor);

Colour cut(const Colour& photo, int x, int y, LumiSize size);

// The photo with its edges repeated around it, for windows that reach so far.
Colour widened(const Colour& photo, int reach);

// The photo with grains of salt and pepper: one pixel of ten is white or black.
Colour peppered(const Colour& photo);

// lumInterpNearest or lumInterpLinear.
Colour resized(const Colour& from, LumiSize to, LumiInterpolationType interpolation, Calls& calls);
Colour resizedInTiles(const Colour& from, LumiSize to, LumiSize tile, LumiInterpolationType interpolation,
                      Calls& calls);
