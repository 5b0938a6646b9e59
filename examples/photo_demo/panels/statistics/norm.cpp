// SPDX-License-Identifier: MIT
#include <cmath>

#include "panels.hpp"
#include "pieces.hpp"

namespace {

using NormDiff = LumStatus (*)(const Lum8u*, int, const Lum8u*, int, LumiSize, Lum64f*);

// The photo and its reflection: each row in the colour of the norm of their differences there, over a
// divisor.
Colour rowsOfNorms(const char* name, NormDiff norm, double divisor, const Colour& photo, Calls& calls) {
  const Colour reflection = flipped(photo);
  const LumiSize row{photo.size().width, 1};
  Colour result(photo.size());
  calls.time(name, photo.size(), [&] {
    LumStatus status = lumStatusOk;
    for (int y = 0; y < photo.size().height && status == lumStatusOk; ++y) {
      Lum64f norms[3];
      status = norm(photo.at(0, y), photo.step(), reflection.at(0, y), reflection.step(), row, norms);
      Lum8u colour[3];
      for (int c = 0; c < 3; ++c) colour[c] = static_cast<Lum8u>(norms[c] / divisor);
      if (status == lumStatusOk) status = lumiSet_8u_C3R(colour, result.at(0, y), result.step(), row);
    }
    return status;
  });
  return result;
}

AnyImage largest(const Colour& photo, Calls& calls) {
  return rowsOfNorms("lumiNormDiff_Inf_8u_C3R", lumiNormDiff_Inf_8u_C3R, 1, photo, calls);
}
AnyImage mean(const Colour& photo, Calls& calls) {
  return rowsOfNorms("lumiNormDiff_L1_8u_C3R", lumiNormDiff_L1_8u_C3R, photo.size().width, photo, calls);
}
AnyImage rootOfMeanSquare(const Colour& photo, Calls& calls) {
  return rowsOfNorms("lumiNormDiff_L2_8u_C3R", lumiNormDiff_L2_8u_C3R, std::sqrt(photo.size().width), photo,
                     calls);
}

const Panels panels("statistics", "norm",
                    {
                        {"inf", "Largest differences of rows", largest},
                        {"l1", "Mean differences of rows", mean},
                        {"l2", "Root mean square of rows", rootOfMeanSquare},
                    });

}  // namespace
