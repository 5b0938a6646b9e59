// SPDX-License-Identifier: MIT
#include "lumi/filter_wiener.h"

#include <vector>

#include "panels.hpp"

namespace {

constexpr LumiSize kMask{5, 5};
constexpr int kReach = 2;

// The photo with grain of about equal strength everywhere, by a generator of its own.
Colour grainy(const Colour& photo) {
  Colour result(photo.size());
  unsigned state = 1;
  const auto grain = [&] {
    int sum = 0;
    for (int i = 0; i < 4; ++i) {
      state = state * 1664525U + 1013904223U;
      sum += static_cast<int>(state >> 26);  // 0 to 63
    }
    return sum - 126;
  };
  for (int y = 0; y < photo.size().height; ++y)
    for (int x = 0; x < photo.size().width; ++x)
      for (int c = 0; c < 3; ++c) {
        const int sample = photo.at(x, y)[c] + grain() / 2;
        result.at(x, y)[c] = static_cast<Lum8u>(sample < 0 ? 0 : sample > 255 ? 255 : sample);
      }
  return result;
}

AnyImage noisy(const Colour& photo, Calls&) { return grainy(photo); }

// The grain taken out again: its strength is estimated.
AnyImage denoised(const Colour& photo, Calls& calls) {
  const LumiSize size = photo.size(), larger = {size.width + 2 * kReach, size.height + 2 * kReach};
  const Colour grain = grainy(photo);
  Colour around(larger), result(size);
  check(lumiCopyReplicateBorder_8u_C3R(grain.data(), grain.step(), size, around.data(), around.step(), larger,
                                       kReach, kReach),
        "lumiCopyReplicateBorder_8u_C3R");
  int bytes = 0;
  check(lumiFilterWienerGetBufferSize(size, kMask, 3, &bytes), "lumiFilterWienerGetBufferSize");
  std::vector<Lum8u> buffer(static_cast<size_t>(bytes));
  calls.time("lumiFilterWiener_8u_C3R", size, [&] {
    Lum32f noise[3] = {};
    return lumiFilterWiener_8u_C3R(around.at(kReach, kReach), around.step(), result.data(), result.step(),
                                   size, kMask, {kReach, kReach}, noise, buffer.data());
  });
  return result;
}

const Panels panels("filters", "filter_wiener",
                    {{"denoised", "Grain taken out", denoised}, {"noisy", "Photo with grain", noisy}});

}  // namespace
