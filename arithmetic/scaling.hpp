// SPDX-License-Identifier: MIT
// The path of a scale factor, for the operations that have one.
#pragma once

#include <algorithm>
#include <limits>
#include <optional>

#include "kernels/scaling.hpp"

namespace lumi {

// The path of a scale factor for results of type T; none where all of them round to zero, from `largest` + 1
// on. A negative factor that shifts out every bit of a sample saturates all but zero, as any lower one does.
template <typename T>
std::optional<Scaling> scalingOf(int scaleFactor, int largest) {
  constexpr int bits = std::numeric_limits<T>::digits;
  if (scaleFactor > largest) return std::nullopt;
  if (scaleFactor > 1) return Scaling{Scaling::Divide, scaleFactor};
  if (scaleFactor == 1) return Scaling{Scaling::Halve, 1};
  if (scaleFactor == 0) return Scaling{Scaling::Saturate, 0};
  return Scaling{Scaling::Multiply, scaleFactor < -bits ? bits : -scaleFactor};
}

}  // namespace lumi
