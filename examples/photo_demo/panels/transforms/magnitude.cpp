// SPDX-License-Identifier: MIT
#include "panels.hpp"
#include "panels/transforms/gradient.hpp"

namespace {

// How much green changes: edges are bright.
AnyImage edges(const Colour& photo, Calls& calls) {
  const LumiSize size = photo.size();
  const auto gradient = gradientOf<Gradient16>(photo);
  Image<1, Lum16s> strength(size);
  calls.time("lumiMagnitude_16sc16s_C1RSfs", size, [&] {
    return lumiMagnitude_16sc16s_C1RSfs(gradient.data(), gradient.step(), strength.data(), strength.step(),
                                        size, 0);
  });
  Grey result(size);
  check(lumiConvert_16s8u_C1R(strength.data(), strength.step(), result.data(), result.step(), size),
        "lumiConvert_16s8u_C1R");
  return result;
}

const Panels panels("transforms", "magnitude", {{"edges", "Magnitude of the gradient", edges}});

}  // namespace
