// SPDX-License-Identifier: MIT
#include "lumi/filter_gradient_border.h"

#include <algorithm>
#include <vector>

#include "panels.hpp"
#include "pieces.hpp"

namespace {

// Gradients of green: 128 where there is none, darker and brighter for the two signs.
template <LumStatus (*filter)(const Lum8u*, int, Lum16s*, int, LumiSize, LumiMaskSize, LumiBorderType, Lum8u,
                              Lum8u*),
          LumStatus (*bufferSize)(LumiSize, LumiMaskSize, LumiDataType, LumiDataType, int, int*)>
Grey signedGradient(const Colour& photo, const char* name, Calls& calls) {
  const Grey green = split(photo).green;
  int bytes = 0;
  check(bufferSize(photo.size(), lumiMask3x3, lumiData8u, lumiData16s, 1, &bytes), "buffer size");
  std::vector<Lum8u> buffer(static_cast<size_t>(bytes));
  Image<1, Lum16s> gradient(photo.size());
  calls.time(name, photo.size(), [&] {
    return filter(green.data(), green.step(), gradient.data(), gradient.step(), photo.size(), lumiMask3x3,
                  lumiBorderMirror, 0, buffer.data());
  });
  Grey result(photo.size());
  for (int y = 0; y < photo.size().height; ++y)
    for (int x = 0; x < photo.size().width; ++x)
      *result.at(x, y) = static_cast<Lum8u>(std::clamp(128 + *gradient.at(x, y) / 4, 0, 255));
  return result;
}

AnyImage scharrAcross(const Colour& photo, Calls& calls) {
  return signedGradient<lumiFilterScharrVertMaskBorder_8u16s_C1R,
                        lumiFilterScharrVertMaskBorderGetBufferSize>(
      photo, "lumiFilterScharrVertMaskBorder_8u16s_C1R", calls);
}
AnyImage sobelDown(const Colour& photo, Calls& calls) {
  return signedGradient<lumiFilterSobelHorizBorder_8u16s_C1R, lumiFilterSobelHorizBorderGetBufferSize>(
      photo, "lumiFilterSobelHorizBorder_8u16s_C1R", calls);
}

const Panels panels("filters", "filter_gradient_border",
                    {{"across", "Scharr, right minus left", scharrAcross},
                     {"down", "Sobel, below minus above", sobelDown}});

}  // namespace
