// SPDX-License-Identifier: MIT
#include "lumi/deinterlace.h"

#include <algorithm>

#include "panels.hpp"
#include "pieces.hpp"

namespace {

constexpr int kMoved = 6;

// Two fields of a camera that turned between them: odd rows are some pixels on. Heights are even.
Grey combed(const Colour& photo) {
  const Grey grey = split(photo).green;
  const LumiSize size = {photo.size().width, std::max(photo.size().height & ~1, 8)};
  Grey result(size);
  for (int y = 0; y < size.height; ++y)
    for (int x = 0; x < size.width; ++x) {
      const int from = std::min(x + (y % 2 != 0 ? kMoved : 0), photo.size().width - 1);
      *result.at(x, y) = *grey.at(from, std::min(y, photo.size().height - 1));
    }
  return result;
}

AnyImage fields(const Colour& photo, Calls&) { return combed(photo); }

AnyImage joined(const Colour& photo, Calls& calls) {
  const Grey fields = combed(photo);
  Grey result(fields.size());
  calls.time("lumiDeinterlaceFilterCAVT_8u_C1R", fields.size(), [&] {
    return lumiDeinterlaceFilterCAVT_8u_C1R(fields.data(), fields.step(), result.data(), result.step(), 2041,
                                            fields.size());
  });
  return result;
}

const Panels panels("filters", "deinterlace",
                    {{"joined", "Odd rows made anew", joined}, {"fields", "Two fields", fields}});

}  // namespace
