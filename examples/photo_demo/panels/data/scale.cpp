// SPDX-License-Identifier: MIT
#include "panels.hpp"

namespace {

// To floats of 0 to 1 and back, of which a quarter to three quarters becomes the whole range.
AnyImage stretchedInFloats(const Colour& photo, Calls& calls) {
  ColourFloat floats(photo.size());
  Colour result(photo.size());
  calls.time("lumiScale_8u32f_C3R", photo.size(), [&] {
    return lumiScale_8u32f_C3R(photo.data(), photo.step(), floats.data(), floats.step(), photo.size(), 0, 1);
  });
  calls.time("lumiScale_32f8u_C3R", photo.size(), [&] {
    return lumiScale_32f8u_C3R(floats.data(), floats.step(), result.data(), result.step(), photo.size(),
                               0.25F, 0.75F);
  });
  return result;
}

// Every value comes back: 16 bits have room for 8.
AnyImage through16Bits(const Colour& photo, Calls& calls) {
  constexpr LumAlgorithmHint accurate = 2;
  Colour16 wide(photo.size());
  Colour result(photo.size());
  calls.time("lumiScale_8u16u_C3R", photo.size(), [&] {
    return lumiScale_8u16u_C3R(photo.data(), photo.step(), wide.data(), wide.step(), photo.size());
  });
  calls.time("lumiScale_16u8u_C3R", photo.size(), [&] {
    return lumiScale_16u8u_C3R(wide.data(), wide.step(), result.data(), result.step(), photo.size(),
                               accurate);
  });
  return result;
}

const Panels panels("data", "scale",
                    {
                        {"stretched", "Stretched in floats", stretchedInFloats},
                        {"through-16-bits", "16 bits and back", through16Bits},
                    });

}  // namespace
