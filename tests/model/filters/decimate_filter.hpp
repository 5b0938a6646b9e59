// SPDX-License-Identifier: MIT
// Decimation with a filter, result by result.
#pragma once

#include <algorithm>
#include <vector>

#include "model/access.hpp"

namespace model {

struct Fraction {
  int results, samples;
  struct Phase {
    int first;
    std::vector<int> taps;
  };
  std::vector<Phase> phases;

  // Samples before the first group, and behind the last one, of a line that has any.
  int before() const {
    int low = 0;
    for (const Phase& p : phases) low = std::min(low, p.first);
    return -low;
  }
  int behind() const {
    int high = 0;
    for (const Phase& p : phases) high = std::max(high, p.first + static_cast<int>(p.taps.size()));
    return high - samples;
  }
};

inline const std::vector<Fraction>& fractions() {
  static const std::vector<Fraction> all = {
      {1, 2, {{-4, {2, -6, -15, 33, 114, 114, 33, -15, -6, 2}}}},
      {3,
       5,
       {{-4, {1, -2, -18, 49, 151, 92, -10, -9, 2}},
        {-2, {2, -9, -10, 92, 151, 49, -18, -2, 1}},
        {0, {1, -16, 13, 130, 130, 13, -16, 1}}}},
      {2, 3, {{-3, {2, -18, 27, 163, 102, -16, -5, 1}}, {-2, {1, -5, -16, 102, 163, 27, -18, 2}}}},
      {7,
       10,
       {{-3, {3, -17, 25, 171, 94, -20, -1, 1}},
        {-2, {1, -5, -15, 119, 160, 7, -13, 2}},
        {0, {2, -21, 46, 180, 70, -22, 1}},
        {1, {2, -9, -6, 141, 141, -6, -9, 2}},
        {3, {1, -22, 70, 180, 46, -21, 2}},
        {4, {2, -13, 7, 160, 119, -15, -5, 1}},
        {5, {1, -1, -20, 94, 171, 25, -17, 3}}}},
      {3,
       4,
       {{-3, {2, -15, 22, 187, 81, -23, 2}},
        {-2, {1, -4, -14, 145, 145, -14, -4, 1}},
        {0, {2, -23, 81, 187, 22, -15, 2}}}}};
  return all;
}

inline LumiSize decimatedSize(LumiSize roi, const Fraction& f, bool isColumn) {
  int& side = isColumn ? roi.height : roi.width;
  side = side / f.samples * f.results;
  return roi;
}

inline void decimate(Image src, LumiSize roi, Image dst, const Fraction& f, bool isColumn) {
  const LumiSize size = decimatedSize(roi, f, isColumn);
  for (int y = 0; y < size.height; ++y)
    for (int x = 0; x < size.width; ++x) {
      const int at = isColumn ? y : x;
      const Fraction::Phase& phase = f.phases[static_cast<size_t>(at % f.results)];
      int sum = 128;
      for (int i = 0; i < static_cast<int>(phase.taps.size()); ++i) {
        const int from = at / f.results * f.samples + phase.first + i;
        sum += phase.taps[static_cast<size_t>(i)] *
               (isColumn ? load<Lum8u>(src.row(from), x) : load<Lum8u>(src.row(y), from));
      }
      store(dst.row(y), x, static_cast<Lum8u>(std::clamp(sum >> 8, 0, 255)));
    }
}

}  // namespace model
