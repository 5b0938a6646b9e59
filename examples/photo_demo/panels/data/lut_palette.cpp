// SPDX-License-Identifier: MIT
#include <array>

#include "panels.hpp"

namespace {

// Green as a colour between blue, red and yellow.
AnyImage falseColour(const Colour& photo, Calls& calls) {
  std::array<Lum8u, 256 * 3> table{};
  for (int i = 0; i < 256; ++i) {
    const auto at = [&](int c) -> Lum8u& { return table[static_cast<size_t>(3 * i + c)]; };
    at(0) = static_cast<Lum8u>(i < 128 ? 2 * i : 255);
    at(1) = static_cast<Lum8u>(i < 128 ? 0 : 2 * (i - 128));
    at(2) = static_cast<Lum8u>(i < 128 ? 255 - 2 * i : 0);
  }
  Grey green(photo.size());
  Colour result(photo.size());
  check(lumiCopy_8u_C3C1R(photo.data() + 1, photo.step(), green.data(), green.step(), photo.size()),
        "lumiCopy_8u_C3C1R");
  calls.time("lumiLUTPalette_8u24u_C1R", photo.size(), [&] {
    return lumiLUTPalette_8u24u_C1R(green.data(), green.step(), result.data(), result.step(), photo.size(),
                                    table.data(), 8);
  });
  return result;
}

const Panels panels("data", "lut_palette", {{"false-colour", "False colour by a palette", falseColour}});

}  // namespace
