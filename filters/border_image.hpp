// SPDX-License-Identifier: MIT
// Border images: a part of an image with a frame around it, so that filters need no test for the edge. They
// are made by the public operations, which know every type and layout.
#pragma once

#include "frame/layout.hpp"
#include "frame/rows.hpp"
#include "lumi/border.h"

namespace lumi {

// A part of an image, and where in the border image it goes.
struct BorderPart {
  Rows<const Byte> image;
  LumiSize size;
  int top, left;
};

// By number of channels.
template <typename T>
struct BorderOperations;
template <>
struct BorderOperations<Lum8u> {
  static constexpr auto constant1 = lumiCopyConstBorder_8u_C1R;
  static constexpr auto constant3 = lumiCopyConstBorder_8u_C3R, constant4 = lumiCopyConstBorder_8u_C4R;
  static constexpr decltype(&lumiCopyReplicateBorder_8u_C1R) replicate[] = {
      lumiCopyReplicateBorder_8u_C1R, nullptr, lumiCopyReplicateBorder_8u_C3R,
      lumiCopyReplicateBorder_8u_C4R};
};
template <>
struct BorderOperations<Lum16u> {
  static constexpr auto constant1 = lumiCopyConstBorder_16u_C1R;
  static constexpr auto constant3 = lumiCopyConstBorder_16u_C3R, constant4 = lumiCopyConstBorder_16u_C4R;
  static constexpr decltype(&lumiCopyReplicateBorder_16u_C1R) replicate[] = {
      lumiCopyReplicateBorder_16u_C1R, nullptr, lumiCopyReplicateBorder_16u_C3R,
      lumiCopyReplicateBorder_16u_C4R};
};
template <>
struct BorderOperations<Lum16s> {
  static constexpr auto constant1 = lumiCopyConstBorder_16s_C1R;
  static constexpr auto constant3 = lumiCopyConstBorder_16s_C3R, constant4 = lumiCopyConstBorder_16s_C4R;
  static constexpr decltype(&lumiCopyReplicateBorder_16s_C1R) replicate[] = {
      lumiCopyReplicateBorder_16s_C1R, nullptr, lumiCopyReplicateBorder_16s_C3R,
      lumiCopyReplicateBorder_16s_C4R};
};
template <>
struct BorderOperations<Lum32f> {
  static constexpr auto constant1 = lumiCopyConstBorder_32f_C1R;
  static constexpr auto constant3 = lumiCopyConstBorder_32f_C3R, constant4 = lumiCopyConstBorder_32f_C4R;
  static constexpr decltype(&lumiCopyReplicateBorder_32f_C1R) replicate[] = {
      lumiCopyReplicateBorder_32f_C1R, nullptr, lumiCopyReplicateBorder_32f_C3R,
      lumiCopyReplicateBorder_32f_C4R};
};

// Fills all of the border image, of rows `step` bytes apart, which is large enough for the part.
template <typename T, typename Layout>
void replicateBorder(const BorderPart& part, Rows<Byte> image, LumiSize size) {
  BorderOperations<T>::replicate[Layout::kStored - 1](
      reinterpret_cast<const T*>(part.image.first), static_cast<int>(part.image.step), part.size,
      reinterpret_cast<T*>(image.first), static_cast<int>(image.step), size, part.top, part.left);
}

template <typename T, typename Layout>
void constantBorder(const BorderPart& part, const T* value, Rows<Byte> image, LumiSize size) {
  const auto* const src = reinterpret_cast<const T*>(part.image.first);
  auto* const dst = reinterpret_cast<T*>(image.first);
  const int srcStep = static_cast<int>(part.image.step), step = static_cast<int>(image.step);
  using Operations = BorderOperations<T>;
  if constexpr (Layout::kStored == 1)
    Operations::constant1(src, srcStep, part.size, dst, step, size, part.top, part.left, *value);
  else if constexpr (Layout::kStored == 3)
    Operations::constant3(src, srcStep, part.size, dst, step, size, part.top, part.left, value);
  else
    Operations::constant4(src, srcStep, part.size, dst, step, size, part.top, part.left, value);
}

}  // namespace lumi
