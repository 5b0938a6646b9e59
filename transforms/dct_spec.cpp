// SPDX-License-Identifier: MIT
// Cosine transforms: sizes and making of objects.
#include "transforms/dct_spec.hpp"

#include "kernels/simd/elementary.hpp"

namespace lumi {
namespace {

using namespace check;
using transforms::anyLength;
using transforms::AnyLength;
using transforms::isPowerOfTwo;

constexpr int kMostPower = 0xfffffff, kMostOther = 0x3ffffff;
constexpr Lum32s kAxis = 21;
constexpr int kBlock = 8;

constexpr bool isBlock(int width, int height) { return width == kBlock && height == kBlock; }

TransformBytes axisBytes(int length) {
  const int64_t n = length, half = complexLength(n);
  const AnyLength any = anyLength(half);
  const int64_t roots = 4 * (2 * (n / 4 + 1) + 2 * (n / 2 + 1));
  const int64_t scratch =
      2 * n * transforms::kPointBytes / 2 + half * transforms::kPointBytes + 4 * any.localFloats;
  return {any.tableBytes + roots + aligned(sizeof(DctAxis)) + 192, 4 * any.scratchFloats + 64,
          // Planes of eight rows beside.
          scratch + 32 * n};
}

LumStatus lengthFault(int n) {
  return n > (isPowerOfTwo(n) ? kMostPower : kMostOther) ? lumStatusBadSize : lumStatusOk;
}
LumStatus lengthFaults(int width, int height) { return firstFault(lengthFault(width), lengthFault(height)); }

TransformBytes bytesOf(int width, int height) {
  const TransformBytes row = axisBytes(width), column = axisBytes(height);
  const int64_t differ = width == height ? 0 : 1;
  const int64_t init = isBlock(width, height) ? 0 : aligned(row.init) + differ * aligned(column.init);
  return {withRoom(64 + aligned(row.object) + differ * aligned(column.object)), withRoom(init),
          aligned(std::max(16 * int64_t{width} + row.work, 32 * int64_t{height} + column.work))};
}

// 1 / sqrt(n) from the processor's estimate by one step of Newton's in single precision, as it is told.
float inverseRoot(int n) {
  const auto x = static_cast<float>(n);
  const float e = simd::approximateInverseRoot(x);
  return -0.5f * e * (x * e * e - 3.0f);
}

DctAxis* makeAxis(int length, Tables& memory, float* scratch) {
  auto* const axis = memory.take<DctAxis>(1, kObjectAlignment);
  const int64_t half = complexLength(length);
  const RootTable split = makeRoots(length / 4 + 1, length, memory);
  const RootTable turns = makeRoots(length / 2 + 1, 4 * int64_t{length}, memory);
  void* const tables = memory.take<Lum8u>(anyLength(half).tableBytes, 64);
  const double root = simd::squareRoot(static_cast<double>(length));
  *axis = {kAxis,
           length,
           {static_cast<size_t>(length),
            {transforms::anyTransform(half, tables, scratch), split.re, split.im},
            turns.re,
            turns.im,
            inverseRoot(length),
            static_cast<float>(1.4142135623730951 / root)}};
  return axis;
}

template <typename Spec>
void make(int width, int height, Spec* object, void* scratch) {
  auto* const words = objectAt<DctObject>(object);
  const Lum32s workBytes = told(bytesOf(width, height).work);
  static_cast<SpectrumObject&>(*words) = {identifierOf(object), width, height, 0, workBytes, 0};
  words->one = 1;
  words->isBlock = isBlock(width, height) ? 1 : 0;
  Tables memory(words + 1);
  auto* const floats = static_cast<float*>(scratch);
  words->row = makeAxis(width, memory, floats);
  words->column = width == height ? nullptr : makeAxis(height, memory, floats);
}

}  // namespace

template <typename Spec>
LumStatus getDctSize(int width, int height, Lum32s* objectSize, Lum32s* initSize, Lum32s* bufferSize) {
  if (LumStatus fault = firstFault(pointers(objectSize, initSize, bufferSize), size(LumiSize{width, height}),
                                   [=] { return lengthFaults(width, height); }))
    return fault;
  const TransformBytes bytes = bytesOf(width, height);
  *objectSize = told(bytes.object);
  *initSize = told(bytes.init);
  *bufferSize = told(withRoom(bytes.work));
  return lumStatusOk;
}

template LumStatus getDctSize<LumiDCTFwdSpec_32f>(int, int, Lum32s*, Lum32s*, Lum32s*);
template LumStatus getDctSize<LumiDCTInvSpec_32f>(int, int, Lum32s*, Lum32s*, Lum32s*);

template <typename Spec>
LumStatus initDct(int width, int height, Spec* object, Lum8u* scratch) {
  if (LumStatus fault = firstFault(
          pointers(object), size(LumiSize{width, height}),
          isBlock(width, height) ? lumStatusOk : pointers(scratch),
          [=] { return lengthFaults(width, height); }, [=] { return isTold(bytesOf(width, height).object); },
          [=] { return isTold(bytesOf(width, height).init); }))
    return fault;
  make(width, height, object, alignedUp(scratch, kObjectAlignment));
  return lumStatusOk;
}
template LumStatus initDct(int, int, LumiDCTFwdSpec_32f*, Lum8u*);
template LumStatus initDct(int, int, LumiDCTInvSpec_32f*, Lum8u*);

template <typename Spec>
LumStatus initAllocatedDct(Spec** object, int width, int height) {
  if (LumStatus fault = firstFault(pointers(object), size(LumiSize{width, height}),
                                   [=] { return lengthFaults(width, height); }))
    return fault;
  const TransformBytes bytes = bytesOf(width, height);
  const Scratch scratch(std::max<int64_t>(bytes.init, 1));
  if (!scratch) return lumStatusNoMemory;
  return allocateObject(object, bytes.object, [&](Spec* made) -> LumStatus {
    make(width, height, made, alignedUp(static_cast<Lum8u*>(scratch.data()), kObjectAlignment));
    return lumStatusOk;
  });
}
template LumStatus initAllocatedDct(LumiDCTFwdSpec_32f**, int, int);
template LumStatus initAllocatedDct(LumiDCTInvSpec_32f**, int, int);

}  // namespace lumi
