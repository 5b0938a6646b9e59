// SPDX-License-Identifier: MIT
#include "lumi/lbp.h"

#include "panels.hpp"
#include "pieces.hpp"

namespace {

AnyImage patterns(const Colour& photo, Calls& calls) {
  const Grey grey = split(photo).green;
  Grey result(photo.size());
  calls.time("lumiLBPImage3x3_8u_C1R", photo.size(), [&] {
    return lumiLBPImage3x3_8u_C1R(grey.data(), grey.step(), result.data(), result.step(), photo.size(),
                                  lumiBorderReplicate, 0);
  });
  return result;
}

// Textures that go on alike a few pixels to the right are dark.
AnyImage distances(const Colour& photo, Calls& calls) {
  const Grey codes = std::get<Grey>(patterns(photo, calls));
  Grey result(photo.size());
  calls.time("lumiLBPImageHorizCorr_8u_C1R", photo.size(), [&] {
    return lumiLBPImageHorizCorr_8u_C1R(codes.data(), codes.step(), codes.data(), codes.step(), result.data(),
                                        result.step(), photo.size(), 4, lumiBorderReplicate, 0);
  });
  return result;
}

const Panels panels("filters", "lbp",
                    {{"patterns", "Local binary patterns", patterns},
                     {"distances", "Distance of patterns, 4 pixels on", distances}});

}  // namespace
