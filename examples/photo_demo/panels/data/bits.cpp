// SPDX-License-Identifier: MIT
#include <vector>

#include "panels.hpp"
#include "pieces.hpp"

namespace {

// A mask of one bit a pixel: where green is bright.
struct Bits {
  int step;
  std::vector<Lum8u> bytes;

  Bits(const Colour& photo, Calls& calls) : step((photo.size().width + 7) / 8) {
    bytes.resize(static_cast<size_t>(step) * static_cast<size_t>(photo.size().height));
    Grey green(photo.size());
    check(lumiCopy_8u_C3C1R(photo.data() + 1, photo.step(), green.data(), green.step(), photo.size()),
          "lumiCopy_8u_C3C1R");
    calls.time("lumiGrayToBin_8u1u_C1R", photo.size(), [&] {
      return lumiGrayToBin_8u1u_C1R(green.data(), green.step(), bytes.data(), step, 0, photo.size(), 127);
    });
  }

  Grey mask(LumiSize size, Calls& calls) const {
    Grey result(size);
    calls.time("lumiBinToGray_1u8u_C1R", size, [&] {
      return lumiBinToGray_1u8u_C1R(bytes.data(), step, 0, result.data(), result.step(), size, 0, 255);
    });
    return result;
  }
};

AnyImage bitMask(const Colour& photo, Calls& calls) { return Bits(photo, calls).mask(photo.size(), calls); }

AnyImage bitMaskApplied(const Colour& photo, Calls& calls) {
  const Grey mask = Bits(photo, calls).mask(photo.size(), calls);
  Colour result = flipped(photo);
  calls.time("lumiCopy_8u_C3MR", photo.size(), [&] {
    return lumiCopy_8u_C3MR(photo.data(), photo.step(), result.data(), result.step(), photo.size(),
                            mask.data(), mask.step());
  });
  return result;
}

const Panels panels("data", "bits",
                    {
                        {"mask", "Mask of single bits", bitMask},
                        {"applied", "Two mixed by the bits", bitMaskApplied},
                    });

}  // namespace
