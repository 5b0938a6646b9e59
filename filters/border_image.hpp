// SPDX-License-Identifier: MIT
// Border images: a part of an image with a frame around it, so that filters need no test for the edge.
#pragma once

#include "frame/rows.hpp"

namespace lumi {

// What the frame holds: a constant pixel, or the nearest pixel of the part where there is none.
struct BorderPixel {
  const Byte* constant;
  size_t bytes;
};

// A part of an image, and where in the border image it goes.
struct BorderPart {
  Rows<const Byte> image;
  LumiSize size;
  int top, left;
};

// Fills all of the border image, which is large enough for the part.
void buildBorderImage(const BorderPart& part, BorderPixel pixel, Rows<Byte> image, LumiSize size);

}  // namespace lumi
