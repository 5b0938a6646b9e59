// SPDX-License-Identifier: MIT
#include "panels.hpp"
#include "pieces.hpp"

namespace {

// Where each place of a block comes in zigzag order, from black to white, in the blocks of the photo's area.
AnyImage order(const Colour& photo, Calls& calls) {
  constexpr int kSide = 8;
  const LumiSize block{kSide, kSide},
      size{kSide * scaled(photo.size(), 1, kSide).width, kSide * scaled(photo.size(), 1, kSide).height};
  Lum16s places[kSide * kSide], values[kSide * kSide];
  for (int i = 0; i < kSide * kSide; ++i) places[i] = static_cast<Lum16s>(4 * i);
  calls.time("lumiZigzagInv8x8_16s_C1", block, [&] { return lumiZigzagInv8x8_16s_C1(places, values); });
  Grey one(block), result(size);
  check(lumiConvert_16s8u_C1R(values, 2 * kSide, one.data(), one.step(), block), "lumiConvert_16s8u_C1R");
  for (int y = 0; y < size.height; y += kSide)
    for (int x = 0; x < size.width; x += kSide)
      check(lumiCopy_8u_C1R(one.data(), one.step(), result.at(x, y), result.step(), block),
            "lumiCopy_8u_C1R");
  return result;
}

const Panels panels("transforms", "zigzag", {{"order", "Zigzag order of blocks", order}});

}  // namespace
