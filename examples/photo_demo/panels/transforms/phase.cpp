// SPDX-License-Identifier: MIT
#include "panels.hpp"
#include "panels/transforms/gradient.hpp"

namespace {

// Where green changes to: grey is to the right, or nowhere.
AnyImage directions(const Colour& photo, Calls& calls) {
  const LumiSize size = photo.size();
  const auto gradient = gradientOf<Gradient16>(photo);
  Image<1, Lum16s> phase(size);
  calls.time("lumiPhase_16sc16s_C1RSfs", size, [&] {  // 32 for each radian
    return lumiPhase_16sc16s_C1RSfs(gradient.data(), gradient.step(), phase.data(), phase.step(), size, -5);
  });
  check(lumiAddC_16s_C1IRSfs(128, phase.data(), phase.step(), size, 0), "lumiAddC_16s_C1IRSfs");
  Grey result(size);
  check(lumiConvert_16s8u_C1R(phase.data(), phase.step(), result.data(), result.step(), size),
        "lumiConvert_16s8u_C1R");
  return result;
}

const Panels panels("transforms", "phase", {{"directions", "Phase of the gradient", directions}});

}  // namespace
