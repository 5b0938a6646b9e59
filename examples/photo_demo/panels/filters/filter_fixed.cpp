// SPDX-License-Identifier: MIT
#include "lumi/filter_fixed.h"

#include "panels.hpp"
#include "pieces.hpp"

namespace {

// The photo with a ring of pixels around it, which the filters read: its edges once more.
template <typename Image, typename Sample>
Image surrounded(const Image& photo, int reach,
                 LumStatus (*copy)(const Sample*, int, LumiSize, Sample*, int, LumiSize, int, int),
                 const char* name, Calls& calls) {
  const LumiSize larger = {photo.size().width + 2 * reach, photo.size().height + 2 * reach};
  Image around(larger);
  calls.time(name, larger, [&] {
    return copy(photo.data(), photo.step(), photo.size(), around.data(), around.step(), larger, reach, reach);
  });
  return around;
}

constexpr int kReach = 2;
using MaskedFilter = LumStatus (*)(const Lum8u*, int, Lum8u*, int, LumiSize, LumiMaskSize);
using Filter = LumStatus (*)(const Lum8u*, int, Lum8u*, int, LumiSize);

Colour filtered(const Colour& photo, Filter filter, const char* name, Calls& calls) {
  const Colour around =
      surrounded(photo, kReach, lumiCopyReplicateBorder_8u_C3R, "lumiCopyReplicateBorder_8u_C3R", calls);
  Colour result(photo.size());
  calls.time(name, photo.size(), [&] {
    return filter(around.at(kReach, kReach), around.step(), result.data(), result.step(), photo.size());
  });
  return result;
}

template <MaskedFilter filter, LumiMaskSize mask>
LumStatus withMask(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi) {
  return filter(src, srcStep, dst, dstStep, roi, mask);
}

// Brighter where a gradient is larger; its negative half is black in 8u.
AnyImage sobel(const Colour& photo, Calls& calls) {
  return filtered(photo, lumiFilterSobelVert_8u_C3R, "lumiFilterSobelVert_8u_C3R", calls);
}
AnyImage prewitt(const Colour& photo, Calls& calls) {
  return filtered(photo, lumiFilterPrewittHoriz_8u_C3R, "lumiFilterPrewittHoriz_8u_C3R", calls);
}
AnyImage roberts(const Colour& photo, Calls& calls) {
  return filtered(photo, lumiFilterRobertsDown_8u_C3R, "lumiFilterRobertsDown_8u_C3R", calls);
}
AnyImage laplace(const Colour& photo, Calls& calls) {
  return filtered(photo, withMask<lumiFilterLaplace_8u_C3R, lumiMask5x5>, "lumiFilterLaplace_8u_C3R", calls);
}
AnyImage gauss(const Colour& photo, Calls& calls) {
  return filtered(photo, withMask<lumiFilterGauss_8u_C3R, lumiMask5x5>, "lumiFilterGauss_8u_C3R", calls);
}
AnyImage lowpass(const Colour& photo, Calls& calls) {
  return filtered(photo, withMask<lumiFilterLowpass_8u_C3R, lumiMask5x5>, "lumiFilterLowpass_8u_C3R", calls);
}
AnyImage sharpened(const Colour& photo, Calls& calls) {
  return filtered(photo, lumiFilterSharpen_8u_C3R, "lumiFilterSharpen_8u_C3R", calls);
}

const Panels panels("filters", "filter_fixed",
                    {{"sobel", "Sobel, lines from top to bottom", sobel},
                     {"prewitt", "Prewitt, lines from left to right", prewitt},
                     {"roberts", "Roberts, downward", roberts},
                     {"laplace", "Laplacian of 5 x 5", laplace},
                     {"gauss", "Gaussian of 5 x 5", gauss},
                     {"lowpass", "Mean of 5 x 5", lowpass},
                     {"sharpened", "Sharpened", sharpened}});

}  // namespace
