// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

#include "model/access.hpp"

namespace model {

// A sum, and how far a result may lie from it.
struct Sum {
  Lum64f right;
  double tolerance;
};

// Half a unit in the last place of the precision that floats are added up in.
inline double sumUnit(const std::string& layout, int width, int hint) {
  const bool inDoubles = layout == "C4"   ? hint != 1
                         : layout == "C1" ? hint == 2 || width <= 16
                         : layout == "C3" ? hint == 2 || width <= 13
                                          : hint == 2;
  return std::ldexp(1.0, inDoubles ? -53 : -24);
}

template <typename T>
Sum sumOf(Image src, LumiSize roi, int stored, int channel, double) {
  int64_t sum = 0;
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x) sum += load<T>(src.row(y), x * stored + channel);
  return {static_cast<Lum64f>(sum), 0};
}

// In any order the error of n additions is below n unit sum|x| (1 + n unit); a half more stands for the last
// factor and for the rounding of this sum. Where sum|x| leaves single precision, lanes may overflow, or not,
// and nothing is told.
template <>
inline Sum sumOf<Lum32f>(Image src, LumiSize roi, int stored, int channel, double unit) {
  long double sum = 0, magnitude = 0;
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x) {
      const Lum32f sample = load<Lum32f>(src.row(y), x * stored + channel);
      sum += sample;
      if (std::isfinite(sample)) magnitude += std::abs(sample);
    }
  const bool mayOverflow = unit > 0x1p-53 && magnitude > 0x1p126L;
  return {static_cast<Lum64f>(sum),
          mayOverflow ? std::numeric_limits<double>::infinity()
                      : static_cast<double>(1.5L * roi.width * roi.height * unit * magnitude)};
}

// One channel is divided, several are multiplied by what is rounded.
inline Sum meanOf(Sum sum, LumiSize roi, int stored) {
  const Lum64f pixels = roi.width * roi.height;
  return {stored == 1 ? sum.right / pixels : sum.right * (1.0 / pixels), sum.tolerance / pixels};
}

}  // namespace model
