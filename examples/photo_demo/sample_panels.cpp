// SPDX-License-Identifier: MIT
#include <algorithm>

#include "panels.hpp"
#include "shapes.hpp"

namespace {

Colour flipped(const Colour& photo) {
  Colour result(photo.size());
  check(lumiCopy_8u_C3R(photo.at(0, photo.size().height - 1), -photo.step(), result.data(), result.step(),
                        photo.size()),
        "lumiCopy_8u_C3R");
  return result;
}

AnyImage brighter(const Colour& photo, Calls& calls) {
  constexpr Lum8u amount[] = {50, 50, 50};
  Colour result(photo.size());
  calls.time("lumiAddC_8u_C3RSfs", photo.size(), [&] {
    return lumiAddC_8u_C3RSfs(photo.data(), photo.step(), amount, result.data(), result.step(), photo.size(),
                              0);
  });
  return result;
}

// (sample - 64) * 2: the scale factor -1 doubles what is left, and limits it.
AnyImage moreContrast(const Colour& photo, Calls& calls) {
  constexpr Lum8u dark[] = {64, 64, 64};
  Colour result(photo.size());
  calls.time("lumiSubC_8u_C3RSfs", photo.size(), [&] {
    return lumiSubC_8u_C3RSfs(photo.data(), photo.step(), dark, result.data(), result.step(), photo.size(),
                              -1);
  });
  return result;
}

// The scale factor 1 halves the sum.
AnyImage doubleExposure(const Colour& photo, Calls& calls) {
  const Colour other = flipped(photo);
  Colour result(photo.size());
  calls.time("lumiAdd_8u_C3RSfs", photo.size(), [&] {
    return lumiAdd_8u_C3RSfs(photo.data(), photo.step(), other.data(), other.step(), result.data(),
                             result.step(), photo.size(), 1);
  });
  return result;
}

// |a - b| of the photo and itself moved a little, doubled: of the two differences one is zero.
AnyImage difference(const Colour& photo, Calls& calls) {
  const LumiSize size = photo.size();
  const int x = std::min(3, size.width - 1), y = std::min(3, size.height - 1);
  const LumiSize both = {size.width - x, size.height - y};
  Colour result(size), positive(size), negative(size);
  fill(result, {0, 0, 0});
  calls.time("lumiSub_8u_C3RSfs", both, [&] {
    return lumiSub_8u_C3RSfs(photo.data(), photo.step(), photo.at(x, y), photo.step(), positive.data(),
                             positive.step(), both, -1);
  });
  check(lumiSub_8u_C3RSfs(photo.at(x, y), photo.step(), photo.data(), photo.step(), negative.data(),
                          negative.step(), both, -1),
        "lumiSub_8u_C3RSfs");
  calls.time("lumiAdd_8u_C3RSfs", both, [&] {
    return lumiAdd_8u_C3RSfs(positive.data(), positive.step(), negative.data(), negative.step(),
                             result.data(), result.step(), both, 0);
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

}  // namespace

std::vector<Panel> samplePanels() {
  return {
      {"brighter", "50 added", brighter},
      {"contrast", "64 subtracted, doubled", moreContrast},
      {"exposure", "Half the sum of two", doubleExposure},
      {"difference", "Difference of two", difference},
      {"through-16-bits", "16 bits and back", through16Bits},
      {"stretched", "Stretched in floats", stretchedInFloats},
      {"bit-mask", "Mask of single bits", bitMask},
      {"bits-applied", "Two mixed by the bits", bitMaskApplied},
  };
}
