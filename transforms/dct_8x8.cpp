// SPDX-License-Identifier: MIT
// Cosine transforms of 8 x 8 blocks, and inverses of a part of the coefficients or to means of the samples.
#include "lumi/dct_8x8.h"

#include "frame/check.hpp"
#include "frame/rows.hpp"
#include "kernels/transforms/dct_8x8.hpp"
#include "kernels/transforms/dct_8x8_float.hpp"

namespace lumi {
namespace {

using namespace check;

const Byte* bytesOf(const Lum16s* block) { return reinterpret_cast<const Byte*>(block); }
Byte* bytesOf(Lum16s* block) { return reinterpret_cast<Byte*>(block); }

// The rows of a block lie one behind the other.
template <typename T>
auto blockRows(T* block) {
  return rows(block, 8 * static_cast<int>(sizeof(T)));
}

template <typename T>
LumStatus forwardBlock(const T* src, T* dst) {
  if (LumStatus fault = pointers(src, dst)) return fault;
  if constexpr (std::is_same_v<T, Lum32f>)
    forwardFloats8x8(blockRows(src), blockRows(dst));
  else
    forwardWords8x8(blockRows(src), bytesOf(dst));
  return lumStatusOk;
}
template <typename T>
LumStatus forwardBlock(T* block) {
  return forwardBlock(block, block);
}

template <typename T>
LumStatus forwardRows(const T* src, int srcStep, Lum16s* dst, Lum16s levelShift = 0) {
  if (LumStatus fault = firstFault(pointers(src, dst), steps(srcStep))) return fault;
  if constexpr (sizeof(T) == 1)
    forwardBytes8x8(rows(src, srcStep), bytesOf(dst), levelShift);
  else
    forwardWords8x8(rows(src, srcStep), bytesOf(dst));
  return lumStatusOk;
}

template <typename T>
LumStatus inverseBlock(const T* src, T* dst) {
  if (LumStatus fault = pointers(src, dst)) return fault;
  if constexpr (std::is_same_v<T, Lum32f>)
    inverseFloats8x8(blockRows(src), blockRows(dst));
  else
    inverseWords8x8(bytesOf(src), blockRows(dst));
  return lumStatusOk;
}
template <typename T>
LumStatus inverseBlock(T* block) {
  return inverseBlock(block, block);
}

template <typename T>
LumStatus inverseRows(const Lum16s* src, T* dst, int dstStep, Lum16s levelShift = 0, Lum8u minimum = 0,
                      Lum8u maximum = 255) {
  if (LumStatus fault = firstFault(pointers(src, dst), steps(dstStep))) return fault;
  if constexpr (sizeof(T) == 1)
    inverseBytes8x8(bytesOf(src), rows(dst, dstStep), {levelShift, minimum, maximum});
  else
    inverseWords8x8(bytesOf(src), rows(dst, dstStep));
  return lumStatusOk;
}

// An inverse of other words than all, or to others: its kernel takes the block and the destination.
template <void kernel(const Byte*, Byte*)>
LumStatus inversePart(const Lum16s* src, Lum16s* dst) {
  if (LumStatus fault = pointers(src, dst)) return fault;
  kernel(bytesOf(src), bytesOf(dst));
  return lumStatusOk;
}
template <void kernel(const Byte*, Byte*)>
LumStatus inversePart(Lum16s* block) {
  return inversePart<kernel>(block, block);
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/dct_8x8.inc"
