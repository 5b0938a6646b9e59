// SPDX-License-Identifier: MIT
#include "lumi/filter_box.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "model/filters/box.hpp"
#include "support/core_guard.hpp"
#include "support/member.hpp"
#include "support/random.hpp"

namespace test {
namespace {

using model::Image;
using model::Window;

using BoxTypes = Types<Lum8u, Lum16u, Lum16s, Lum32f, Lum64f>;

// A place outside the window, which some members refuse, covers nothing.
Window windowOf(const Call& c) {
  const bool isPlain = std::any_of(c.chosen.begin(), c.chosen.end(), [](const Call::Chosen& each) {
    return std::string(each.name) == "maskSize";
  });
  return {c.size(isPlain ? "maskSize" : "mask"), c.point(isPlain ? "anchor" : "place")};
}
bool isInside(const Window& w) { return w.anchor.x < w.size.width && w.anchor.y < w.size.height; }

Member::Surroundings surroundings(const Call& c) {
  const Window w = windowOf(c);
  if (!isInside(w)) return {};
  return {w.anchor.x, w.anchor.y, w.size.width - 1 - w.anchor.x, w.size.height - 1 - w.anchor.y};
}

// Sides that have forms of their own, a sum of bytes that needs more than 16 bits (17 x 17), and single rows
// and columns. Images of wide pixels would not fit in their memory under high windows.
std::vector<Value> masks(int pixelBytes) {
  std::vector<Value> all = {{{3, 3}}, {{3, 3}}, {{5, 5}}, {{4, 3}}, {{3, 5}},  {{9, 2}},
                            {{1, 1}}, {{2, 1}}, {{1, 2}}, {{1, 6}}, {{15, 1}}, {{1, 3}}};
  if (pixelBytes <= 8) all.push_back({{7, 7}});
  if (pixelBytes <= 2) all.insert(all.end(), {{{17, 17}}, {{6, 31}}});
  return all;
}

// What a member refuses is told by its model; a place is not tested, and is in the window here.
void chooseWindows(Member& m, bool isPlace) {
  if (isPlace) {
    m.choose("mask", {{{3, 3}}, {{2, 2}}, {{5, 4}}, {{4, 3}}, {{9, 2}}, {{2, 13}}});
    m.choose("place", {{{0, 0}}, {{1, 0}}, {{1, 1}}});
  } else {
    m.choose("maskSize", masks(m.dst.pixelBytes));
    m.choose("anchor", {{{0, 0}}, {{0, 0}}, {{1, 0}}, {{0, 1}}, {{1, 1}}, {{2, 2}}, {{3, 1}}});
  }
}

const bool added = addModelTests(membersOf(
    "FilterBox",
    [](Member& m, auto, auto sample) {
      using T = decltype(sample);
      const bool doubles = sizeof(T) == 8, rowsTold = m.checksRows;
      chooseWindows(m, doubles);
      m.surroundings = surroundings;
      m.contents = std::is_floating_point_v<T> ? std::vector<Contents>{Contents::Small} : kAnyContents;
      m.floatResults = std::is_floating_point_v<T>;
      m.aliasing = m.inPlace ? Aliasing::None : Aliasing::SameImage;
      m.separateRows = true;
      m.allocates = true;
      m.mayStream = false;
      m.rounds = 12;
      m.model = [=, layout = m.layouts.back(), channels = m.channels](const Call& c) -> LumStatus {
        const Window w = windowOf(c);
        if (!isInside(w)) return lumStatusBadAnchor;
        if (rowsTold && c.srcStep < (c.roi.width + w.size.width - 1) * channels.src * int{sizeof(T)})
          return lumStatusBadStep;
        model::box<T>(c.srcImage(), c.dstImage(), c.roi, channels, w, layout);
        return lumStatusOk;
      };
    },
    BoxTypes()));

}  // namespace
}  // namespace test
