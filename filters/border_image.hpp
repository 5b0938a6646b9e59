// SPDX-License-Identifier: MIT
// Border images: a part of an image with pixels around it, so that filters need no test for the edge. They
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

// The operations of a sample type, by number of channels.
template <typename T>
struct BorderOperations;

// No template puts names together.
#define LUMI_BORDER_OPERATIONS(type)                                                         \
  template <>                                                                                \
  struct BorderOperations<Lum##type> {                                                       \
    static constexpr auto constant1 = lumiCopyConstBorder_##type##_C1R;                      \
    static constexpr auto constant3 = lumiCopyConstBorder_##type##_C3R;                      \
    static constexpr auto constant4 = lumiCopyConstBorder_##type##_C4R;                      \
    static constexpr decltype(&lumiCopyReplicateBorder_##type##_C1R) replicate[] = {         \
        lumiCopyReplicateBorder_##type##_C1R, nullptr, lumiCopyReplicateBorder_##type##_C3R, \
        lumiCopyReplicateBorder_##type##_C4R};                                               \
  };
LUMI_BORDER_OPERATIONS(8u)
LUMI_BORDER_OPERATIONS(16u)
LUMI_BORDER_OPERATIONS(16s)
LUMI_BORDER_OPERATIONS(32f)
#undef LUMI_BORDER_OPERATIONS

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
