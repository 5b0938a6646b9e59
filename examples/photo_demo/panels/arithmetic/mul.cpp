// SPDX-License-Identifier: MIT
#include "panels.hpp"
#include "pieces.hpp"

namespace {

// Seven quarters: the scale factor 2 divides the product by four, to the nearest.
AnyImage brighter(const Colour& photo, Calls& calls) {
  constexpr Lum8u sevenQuarters[] = {7, 7, 7};
  Colour result(photo.size());
  calls.time("lumiMulC_8u_C3RSfs", photo.size(), [&] {
    return lumiMulC_8u_C3RSfs(photo.data(), photo.step(), sevenQuarters, result.data(), result.step(),
                              photo.size(), 2);
  });
  return result;
}

// A tone curve of products: the scale factor 8 makes a square of each sample a sample again.
AnyImage squared(const Colour& photo, Calls& calls) {
  Colour result(photo.size());
  calls.time("lumiMul_8u_C3RSfs", photo.size(), [&] {
    return lumiMul_8u_C3RSfs(photo.data(), photo.step(), photo.data(), photo.step(), result.data(),
                             result.step(), photo.size(), 8);
  });
  return result;
}

const Panels panels("arithmetic", "mul",
                    {
                        {"brighter", "Times 7 / 4", brighter},
                        {"squared", "Squared", squared},
                    });

}  // namespace
