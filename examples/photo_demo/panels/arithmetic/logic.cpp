// SPDX-License-Identifier: MIT
#include "panels.hpp"
#include "pieces.hpp"

namespace {

AnyImage negative(const Colour& photo, Calls& calls) {
  Colour result(photo.size());
  calls.time("lumiNot_8u_C3R", photo.size(), [&] {
    return lumiNot_8u_C3R(photo.data(), photo.step(), result.data(), result.step(), photo.size());
  });
  return result;
}

// The two highest bits of each sample.
AnyImage posterised(const Colour& photo, Calls& calls) {
  constexpr Lum8u high[] = {0xC0, 0xC0, 0xC0};
  Colour result(photo.size());
  calls.time("lumiAndC_8u_C3R", photo.size(), [&] {
    return lumiAndC_8u_C3R(photo.data(), photo.step(), high, result.data(), result.step(), photo.size());
  });
  return result;
}

// A disc of ones keeps the photo, zeros around it leave nothing.
AnyImage spotlight(const Colour& photo, Calls& calls) {
  const Grey disc = middleDisc(photo);
  Colour result(photo.size());
  check(lumiDup_8u_C1C3R(disc.data(), disc.step(), result.data(), result.step(), photo.size()),
        "lumiDup_8u_C1C3R");
  calls.time("lumiAnd_8u_C3IR", photo.size(), [&] {
    return lumiAnd_8u_C3IR(photo.data(), photo.step(), result.data(), result.step(), photo.size());
  });
  return result;
}

const Panels panels("arithmetic", "logic",
                    {
                        {"negative", "All bits inverted", negative},
                        {"posterised", "Two bits a sample", posterised},
                        {"spotlight", "AND with a disc", spotlight},
                    });

}  // namespace
