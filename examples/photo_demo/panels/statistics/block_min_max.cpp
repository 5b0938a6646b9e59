// SPDX-License-Identifier: MIT
#include "panels.hpp"
#include "pieces.hpp"

namespace {

// How much green differs in each block: edges are bright, even parts dark.
AnyImage contrast(const Colour& photo, Calls& calls) {
  constexpr int kSide = 4;
  const LumiSize size = photo.size();
  const LumiSize blocks{(size.width - 1) / kSide + 1, (size.height - 1) / kSide + 1};
  const Planes planes = split(photo);
  const Grey& green = planes.green;
  Grey least(blocks), greatest(blocks);
  calls.time("lumiBlockMinMax_8u_C1R", size, [&] {
    return lumiBlockMinMax_8u_C1R(green.data(), green.step(), size, least.data(), least.step(),
                                  greatest.data(), greatest.step(), {kSide, kSide}, nullptr, nullptr);
  });
  Grey result(blocks);
  calls.time("lumiSub_8u_C1RSfs", blocks, [&] {
    return lumiSub_8u_C1RSfs(least.data(), least.step(), greatest.data(), greatest.step(), result.data(),
                             result.step(), blocks, 0);
  });
  return result;
}

const Panels panels("statistics", "block_min_max", {{"contrast", "Contrast of blocks", contrast}});

}  // namespace
