// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>

#include "panels.hpp"
#include "pieces.hpp"
#include "text.hpp"

namespace {

constexpr int kReach = 2, kSide = 2 * kReach + 1;
constexpr std::array<Lum8u, kSide* kSide> kDisc = {0, 1, 1, 1, 0,  //
                                                   1, 1, 1, 1, 1,  //
                                                   1, 1, 1, 1, 1,  //
                                                   1, 1, 1, 1, 1,  //
                                                   0, 1, 1, 1, 0};

using Operation = LumStatus (*)(const Lum8u*, int, Lum8u*, int, LumiSize, const Lum8u*, LumiSize, LumiPoint);

// Ink on paper.
Grey page(LumiSize size) {
  Colour paper(size);
  fill(paper, {235, 235, 235});
  const Font font(std::max(size.width / 220, 1));
  for (int y = font.height(); y < size.height; y += font.height() * 3 / 2)
    font.draw("DILATION LETS THE PAPER GROW INTO THE INK, AND EROSION THE INK OVER THE PAPER.", paper,
              font.height(), y, {40, 40, 40});
  return split(paper).green;
}

Grey under(Operation operation, const char* name, const Grey& image, Calls& calls) {
  const LumiSize size = image.size(), whole{size.width + 2 * kReach, size.height + 2 * kReach};
  Grey around(whole), result(size);
  check(lumiCopyReplicateBorder_8u_C1R(image.data(), image.step(), size, around.data(), around.step(), whole,
                                       kReach, kReach),
        "lumiCopyReplicateBorder_8u_C1R");
  calls.time(name, size, [&] {
    return operation(around.at(kReach, kReach), around.step(), result.data(), result.step(), size,
                     kDisc.data(), {kSide, kSide}, {kReach, kReach});
  });
  return result;
}
Grey dilate(const Grey& image, Calls& calls) {
  return under(lumiDilate_8u_C1R, "lumiDilate_8u_C1R", image, calls);
}
Grey erode(const Grey& image, Calls& calls) {
  return under(lumiErode_8u_C1R, "lumiErode_8u_C1R", image, calls);
}

AnyImage asItIs(const Colour& photo, Calls&) { return page(photo.size()); }
AnyImage eroded(const Colour& photo, Calls& calls) { return erode(page(photo.size()), calls); }
AnyImage dilated(const Colour& photo, Calls& calls) { return dilate(page(photo.size()), calls); }
AnyImage opened(const Colour& photo, Calls& calls) { return dilate(erode(page(photo.size()), calls), calls); }
AnyImage closed(const Colour& photo, Calls& calls) { return erode(dilate(page(photo.size()), calls), calls); }

const Panels panels("filters", "morphology",
                    {
                        {"page", "Ink on paper", asItIs},
                        {"eroded", "Eroded by a disc", eroded},
                        {"dilated", "Dilated by a disc", dilated},
                        {"opened", "Opened", opened},
                        {"closed", "Closed", closed},
                    });

}  // namespace
