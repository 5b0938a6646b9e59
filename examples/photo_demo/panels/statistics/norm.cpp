// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

#include "panels.hpp"
#include "pieces.hpp"
#include "text.hpp"

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

using Figures = std::array<Lum64f, 3>;

// Mean and deviation of the photo, and how far a blurred copy is from it, in each channel.
struct Lines {
  std::vector<std::string> all;

  void add(const char* name, const Figures& of) {
    char line[64];
    std::snprintf(line, sizeof line, "%-18s %6.2f %6.2f %6.2f", name, of[0], of[1], of[2]);
    all.push_back(line);
  }
};

AnyImage figures(const Colour& photo, Calls& calls) {
  const Colour blurred = resized(resized(photo, scaled(photo.size(), 1, 4), lumInterpLinear, calls),
                                 photo.size(), lumInterpLinear, calls);
  const double pixels = 1.0 * photo.size().width * photo.size().height;
  Lines lines;
  Figures mean{}, norm{}, deviation{};
  calls.time("lumiMean_8u_C3R", photo.size(),
             [&] { return lumiMean_8u_C3R(photo.data(), photo.step(), photo.size(), mean.data()); });
  calls.time("lumiNorm_L2_8u_C3R", photo.size(),
             [&] { return lumiNorm_L2_8u_C3R(photo.data(), photo.step(), photo.size(), norm.data()); });
  for (size_t c = 0; c < 3; ++c)
    deviation[c] = std::sqrt(std::max(0.0, norm[c] * norm[c] / pixels - mean[c] * mean[c]));
  lines.add("mean", mean);
  lines.add("deviation", deviation);
  const auto add = [&](const char* name, const char* function, NormDiff norms, double divisor) {
    Figures of{};
    calls.time(function, photo.size(), [&] {
      const LumStatus status =
          norms(photo.data(), photo.step(), blurred.data(), blurred.step(), photo.size(), of.data());
      return status == lumStatusDivideByZeroWarning ? lumStatusOk : status;  // of a black copy
    });
    for (double& each : of) each /= divisor;
    lines.add(name, of);
  };
  add("largest difference", "lumiNormDiff_Inf_8u_C3R", lumiNormDiff_Inf_8u_C3R, 1);
  add("mean difference", "lumiNormDiff_L1_8u_C3R", lumiNormDiff_L1_8u_C3R, pixels);
  add("root mean square", "lumiNormDiff_L2_8u_C3R", lumiNormDiff_L2_8u_C3R, std::sqrt(pixels));
  add("relative", "lumiNormRel_L2_8u_C3R", lumiNormRel_L2_8u_C3R, 1);
  const Font font(1);
  const int leading = 2 * font.height();
  Colour card(
      {font.width(lines.all.front()) + 2 * leading, leading * (static_cast<int>(lines.all.size()) + 1)});
  fill(card, {44, 48, 58});
  for (size_t i = 0; i < lines.all.size(); ++i)
    font.draw(lines.all[i], card, leading, leading * static_cast<int>(i) + leading * 3 / 4, {240, 242, 246});
  return card;
}

const Panels panels("statistics", "norm",
                    {
                        {"inf", "Largest differences of rows", largest},
                        {"l1", "Mean differences of rows", mean},
                        {"l2", "Root mean square of rows", rootOfMeanSquare},
                        {"figures", "The photo, and a blurred copy", figures},
                    });

}  // namespace
