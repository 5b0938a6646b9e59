// SPDX-License-Identifier: MIT
#include "panels.hpp"
#include "pieces.hpp"

namespace {

// A small part of the photo, to be enlarged to its size.
Colour detail(const Colour& photo) {
  const LumiSize part = scaled(photo.size(), 1, 8);
  return cut(photo, photo.size().width * 5 / 8 - part.width / 2,
             photo.size().height * 3 / 8 - part.height / 2, part);
}

template <int interpolation>
AnyImage enlarged(const Colour& photo, Calls& calls) {
  const Colour small = detail(photo);
  return resized(small, scaled(small.size(), 8, 1), interpolation, calls);
}

template <int interpolation>
AnyImage reduced(const Colour& photo, Calls& calls) {
  return resized(photo, scaled(photo.size(), 2, 5), interpolation, calls);
}

// The same in four by four tiles; their seams do not show.
AnyImage enlargedInTiles(const Colour& photo, Calls& calls) {
  const Colour small = detail(photo);
  const LumiSize whole = scaled(small.size(), 8, 1);
  return resizedInTiles(small, whole, scaled(whole, 1, 4), lumInterpLinear, calls);
}

const Panels panels("geometry", "resize",
                    {
                        {"reduced-nearest", "Reduced, nearest", reduced<lumInterpNearest>},
                        {"reduced-linear", "Reduced, linear", reduced<lumInterpLinear>},
                        {"enlarged-nearest", "Enlarged, nearest", enlarged<lumInterpNearest>},
                        {"enlarged-linear", "Enlarged, linear", enlarged<lumInterpLinear>},
                        {"enlarged-tiles", "Enlarged in tiles", enlargedInTiles},
                    });

}  // namespace
