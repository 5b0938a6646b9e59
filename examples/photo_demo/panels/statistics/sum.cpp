// SPDX-License-Identifier: MIT
#include "panels.hpp"
#include "pieces.hpp"

namespace {

// Each tile in the mean of its pixels.
AnyImage meansOfTiles(const Colour& photo, Calls& calls) {
  constexpr int kSide = 8;
  const LumiSize size = photo.size();
  Colour result(size);
  const auto fillTiles = [&] {
    LumStatus status = lumStatusOk;
    for (int y = 0; y < size.height && status == lumStatusOk; y += kSide)
      for (int x = 0; x < size.width && status == lumStatusOk; x += kSide) {
        const LumiSize tile{std::min(kSide, size.width - x), std::min(kSide, size.height - y)};
        Lum64f means[3];
        status = lumiMean_8u_C3R(photo.at(x, y), photo.step(), tile, means);
        Lum8u colour[3];
        for (int c = 0; c < 3; ++c) colour[c] = static_cast<Lum8u>(means[c] + 0.5);
        if (status == lumStatusOk) status = lumiSet_8u_C3R(colour, result.at(x, y), result.step(), tile);
      }
    return status;
  };
  calls.time("lumiMean_8u_C3R", size, fillTiles);
  return result;
}

const Panels panels("statistics", "sum", {{"tiles", "Means of tiles", meansOfTiles}});

}  // namespace
