// SPDX-License-Identifier: MIT
// Argument checks. A family names them in its own order, which is part of the interface:
//   if (LumStatus fault = firstFault(pointers(src, dst), size(roi))) return fault;
#pragma once

#include <type_traits>

#include "lumi/types.h"

namespace lumi::check {

template <typename T>
constexpr bool isNull(T argument) {
  if constexpr (std::is_pointer_v<T>)
    return argument == nullptr;
  else
    return false;  // a constant by value
}

// Every pointer, in any order.
template <typename... T>
constexpr LumStatus pointers(T... arguments) {
  return (isNull(arguments) || ...) ? lumStatusNullPointer : lumStatusOk;
}

// An array of plane pointers, then each of them.
template <int planes, typename T>
constexpr LumStatus planePointers(T* const* array) {
  if (!array) return lumStatusNullPointer;
  for (int i = 0; i < planes; ++i)
    if (!array[i]) return lumStatusNullPointer;
  return lumStatusOk;
}

constexpr LumStatus width(LumiSize roi) { return roi.width < 1 ? lumStatusBadSize : lumStatusOk; }

constexpr LumStatus size(LumiSize roi) {
  return roi.width < 1 || roi.height < 1 ? lumStatusBadSize : lumStatusOk;
}

template <typename... Step>
constexpr LumStatus steps(Step... each) {
  return ((each < 1) || ...) ? lumStatusBadStep : lumStatusOk;
}

// Bounds whose difference is no number are refused too.
constexpr LumStatus range(Lum32f lower, Lum32f upper) {
  return upper - lower > 0 ? lumStatusOk : lumStatusBadDataRange;
}

// Of the first bit of an image of bits.
constexpr LumStatus bitOffset(int offset) { return offset < 0 ? lumStatusBadSize : lumStatusOk; }

template <typename Check>
constexpr LumStatus resultOf(const Check& check) {
  if constexpr (std::is_invocable_v<Check>)
    return check();
  else
    return check;
}

// The first status that is not zero. What looks into memory is given as a function, which is called when its
// turn comes: not before the pointers that lead there have passed.
//   firstFault(pointers(object), [=] { return identity(*objectAt<Plan>(object)); })
template <typename... Check>
constexpr LumStatus firstFault(const Check&... checks) {
  LumStatus first = lumStatusOk;
  static_cast<void>(((first = resultOf(checks)) || ...));
  return first;
}

}  // namespace lumi::check
