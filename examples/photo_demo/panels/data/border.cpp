// SPDX-License-Identifier: MIT
#include <algorithm>

#include "panels.hpp"
#include "pieces.hpp"

namespace {

// A frame around a small part, enlarged: its edge pixels repeated.
AnyImage framed(const Colour& photo, Calls& calls) {
  const LumiSize part = scaled(photo.size(), 1, 12);
  const int left = std::max(part.width / 4, 1), top = std::max(part.height / 4, 1);
  const LumiSize whole = {part.width + 2 * left, part.height + 2 * top};
  const Colour small = cut(photo, photo.size().width / 3, photo.size().height / 2, part);
  Colour frame(whole);
  calls.time("lumiCopyReplicateBorder_8u_C3R", whole, [&] {
    return lumiCopyReplicateBorder_8u_C3R(small.data(), small.step(), part, frame.data(), frame.step(), whole,
                                          top, left);
  });
  return resized(frame, scaled(whole, 8, 1), lumInterpNearest, calls);
}

const Panels panels("data", "border",
                    {
                        {"framed", "Frame of repeated edges", framed},
                    });

}  // namespace
