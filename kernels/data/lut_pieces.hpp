// SPDX-License-Identifier: MIT
// Functions of pieces between levels, computed for each sample: no table is made.
#pragma once

#include <cstddef>
#include <cstdint>

#include "kernels/rows.hpp"

namespace lumi {

// A value for each channel of a pixel, over and over: as many as a vector has from any channel on. Patterns
// of floats and words lie in a line of the cache.
template <typename T>
struct Pattern {
  static constexpr size_t kLanes = sizeof(T) == 8 ? 16 : 64 / sizeof(T);
  alignas(64) T lane[kLanes];

  void set(const T* values, int channels) {
    if (channels == 1)
      for (T& each : lane) each = *values;
    else
      for (size_t i = 0, c = 0; i < kLanes; ++i, c = c + 1 < static_cast<size_t>(channels) ? c + 1 : 0)
        lane[i] = values[c];
  }
};

// A step of a function: from a level on its piece is the next one. Results are
//   ConstantStep  value
//   LinearStep    (x - level) * slope + value
//   CubicStep     (t^2 a + c) t + (value + t^2 b), with t = x - origin
// with differences of floats, and all else in doubles.
template <typename T>
struct ConstantStep {
  using Sample = T;
  Pattern<T> level, value;
};
struct LinearStep {
  using Sample = float;
  Pattern<float> level, value, slope;
};
struct CubicStep {
  using Sample = float;
  Pattern<float> level, value, origin;
  Pattern<double> a, b, c;
};

// A function of each channel with levels that ascend, steps[0].level being the first one. Steps that a
// channel does not have repeat its last one. Samples stay where they are below the first level, and from
// `last` on; of integers it is the last sample of the last piece.
template <typename Step>
struct Stepped {
  Pattern<typename Step::Sample> last;
  const Step* steps;
  int count, channels;
};

// More steps are slower than to search for the one that counts.
inline constexpr int kMostSteps = 32;

// src and dst may be the same image; of every four samples the last `alpha` stay.
template <typename Step, int alpha>
void piecewiseRows(SourceRows src, TargetRows dst, Extent samples, const Stepped<Step>& pieces);

}  // namespace lumi
