// SPDX-License-Identifier: MIT
#include <algorithm>
#include <vector>

#include "panels.hpp"
#include "pieces.hpp"
#include "text.hpp"

namespace {

constexpr LumiSize kMask{15, 15};
constexpr float kDelta = 10;

// A page of text under a lamp that leaves its corners in the dark.
Colour page(LumiSize size) {
  Colour paper(size);
  fill(paper, {235, 230, 215});
  const Font font(std::max(size.width / 300, 1));
  int line = 0;
  for (int y = font.height(); y < size.height; y += font.height() * 3 / 2, ++line)
    font.draw("LIGHT FALLS OFF TO THE EDGES OF A PAGE: NO SINGLE LEVEL PARTS THE INK FROM THE PAPER.", paper,
              font.height() + line % 2 * font.height(), y, {70, 60, 50});
  const Colour light = radialLight(size, 200);
  Colour result(size);
  check(lumiMulScale_8u_C3R(paper.data(), paper.step(), light.data(), light.step(), result.data(),
                            result.step(), size),
        "lumiMulScale_8u_C3R");
  return result;
}

AnyImage unevenlyLit(const Colour& photo, Calls&) { return page(photo.size()); }

AnyImage ofTheMean(const Colour& photo, Calls& calls) {
  const LumiSize size = photo.size();
  const Grey grey = split(page(size)).green;
  int bytes = 0;
  check(lumiThresholdAdaptiveBoxGetBufferSize(size, kMask, lumiData8u, 1, &bytes),
        "lumiThresholdAdaptiveBoxGetBufferSize");
  std::vector<Lum8u> buffer(static_cast<size_t>(bytes));
  Grey result(size);
  calls.time("lumiThresholdAdaptiveBox_8u_C1R", size, [&] {
    return lumiThresholdAdaptiveBox_8u_C1R(grey.data(), grey.step(), result.data(), result.step(), size,
                                           kMask, kDelta, 255, 0, lumiBorderReplicate, 0, buffer.data());
  });
  return result;
}

AnyImage ofAWeightedMean(const Colour& photo, Calls& calls) {
  const LumiSize size = photo.size();
  const Grey grey = split(page(size)).green;
  int objectBytes = 0, bytes = 0;
  check(lumiThresholdAdaptiveGaussGetBufferSize(size, kMask, lumiData8u, 1, &objectBytes, &bytes),
        "lumiThresholdAdaptiveGaussGetBufferSize");
  std::vector<Lum8u> object(static_cast<size_t>(objectBytes)), buffer(static_cast<size_t>(bytes));
  auto* const spec = reinterpret_cast<LumiThresholdAdaptiveGaussSpec*>(object.data());
  check(lumiThresholdAdaptiveGaussInit(size, kMask, lumiData8u, 1, 0, spec),
        "lumiThresholdAdaptiveGaussInit");
  Grey result(size);
  calls.time("lumiThresholdAdaptiveGauss_8u_C1R", size, [&] {
    return lumiThresholdAdaptiveGauss_8u_C1R(grey.data(), grey.step(), result.data(), result.step(), size,
                                             kDelta, 255, 0, lumiBorderReplicate, 0, spec, buffer.data());
  });
  return result;
}

const Panels panels("filters", "threshold_adaptive",
                    {
                        {"box", "Page against its means", ofTheMean},
                        {"page", "Page, unevenly lit", unevenlyLit},
                        {"gauss", "Against weighted means", ofAWeightedMean},
                    });

}  // namespace
