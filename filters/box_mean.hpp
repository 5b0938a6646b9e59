// SPDX-License-Identifier: MIT
// How sums of windows become means, and in which numbers the sums are exact.
#pragma once

#include "filters/moving_window.hpp"
#include "lumi/types.h"

namespace lumi {

inline int64_t areaOf(LumiSize window) { return int64_t{window.width} * window.height; }
inline float reciprocalOf(LumiSize window) { return 1.0F / static_cast<float>(areaOf(window)); }

// Windows of so many samples have sums below 2^16, or below 2^31.
inline constexpr int64_t kWordArea = 257;
template <typename T>
inline constexpr int64_t kExactArea = sizeof(T) == 1        ? 1 << 23
                                      : std::is_signed_v<T> ? 65535
                                                            : 32768;

// 1 / n as (x * factor) >> shift, of a factor of thirteen bits.
struct Reciprocal {
  uint32_t factor;
  int shift;
};
Reciprocal wordReciprocal(LumiSize window);

// The number type of the sums, and what becomes of them.
struct BoxPlan {
  const SumKernels* sums;
  WindowMean mean;
};

// Calls made(sum) with a sum of a type that is exact for the window, or of floats where none is.
template <typename T, int64_t exactArea = kExactArea<T>, typename Make>
BoxPlan planOfSums(LumiSize window, int channels, const Make& make) {
  const int64_t area = areaOf(window);
  const auto plan = [&](auto sum) { return BoxPlan{&sumKernels<T, decltype(sum)>(channels), make(sum)}; };
  if constexpr (sizeof(T) == 1)
    if (area <= kWordArea) {
      countPath(Path::WindowSumsOfWords);
      return plan(uint16_t());
    }
  return area <= exactArea ? plan(uint32_t()) : plan(float());
}

}  // namespace lumi
