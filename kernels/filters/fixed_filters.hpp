// SPDX-License-Identifier: MIT
// Filters whose taps are part of the library, for every sample type that has them.
#pragma once

#include "kernels/filters/window.hpp"

namespace lumi {

// By direction of their lines, as the names of the operations have it; 3 and 5 are the sides of the window.
enum class FixedFilter {
  SobelVert3,
  SobelVert5,
  SobelHoriz3,
  SobelHoriz5,
  SobelVertSecond3,
  SobelVertSecond5,
  SobelHorizSecond3,
  SobelHorizSecond5,
  SobelCross3,
  SobelCross5,
  ScharrVert,
  ScharrHoriz,
  PrewittVert,
  PrewittHoriz,
  RobertsDown,
  RobertsUp,
  Laplace3,  // and Hipass3
  Laplace5,
  Hipass5,
  Gauss3,
  Gauss5,
  Lowpass3,
  Lowpass5,
  Sharpen,
};

// From samples of type S to D; those that no operation has are not there: its `run` is null.
template <typename S, typename D>
WindowFilter fixedFilter(FixedFilter filter);
template <>
WindowFilter fixedFilter<uint8_t, uint8_t>(FixedFilter filter);
template <>
WindowFilter fixedFilter<uint8_t, int16_t>(FixedFilter filter);
template <>
WindowFilter fixedFilter<int8_t, int16_t>(FixedFilter filter);
template <>
WindowFilter fixedFilter<int16_t, int16_t>(FixedFilter filter);
template <>
WindowFilter fixedFilter<uint16_t, uint16_t>(FixedFilter filter);
template <>
WindowFilter fixedFilter<float, float>(FixedFilter filter);

}  // namespace lumi
