// SPDX-License-Identifier: MIT
// Fast Fourier transforms: sizes and making of objects.
#include "transforms/fft_spec.hpp"

#include <algorithm>
#include <climits>

#include "frame/check.hpp"
#include "frame/scratch.hpp"
#include "kernels/simd/elementary.hpp"
#include "kernels/transforms/roots.hpp"
#include "lumi/fft.h"

namespace lumi {

using transforms::Transform;

float scaleOf(Lum32s flag, bool inverse, int64_t n) {
  if (flag == kScaleBoth) return static_cast<float>(1 / simd::squareRoot(static_cast<double>(n)));
  return flag == (inverse ? kScaleInverse : kScaleForward) ? 1 / static_cast<float>(n) : 1.0f;
}

namespace {

// Orders from which a transform is split along rows, and down columns.
constexpr int kSplitRow = 7;
constexpr int kNoInitScratch = 10;
constexpr int kMostRealOrder = 29, kMostComplexOrder = 28, kMostOrder = 30;

constexpr int64_t lengthOf(int order) { return int64_t{1} << order; }

constexpr int64_t initBytes(int order) {
  return order > kNoInitScratch ? roundedUp(lengthOf(order) + 4, 64) + 64 : 0;
}

constexpr bool isLarge(int order) { return order > transforms::kLargestRoots; }

}  // namespace

TransformBytes complexAxisBytes(int order) {
  const int64_t n = lengthOf(order);
  if (order < kSplitRow) return {152, 0, 0};
  if (!isLarge(order))
    return {roundedUp(8 * n + 8, 64) + roundedUp(n + 4, 64) + 192, initBytes(order), 8 * n + 64};
  // Local memory of both factors and of roots is in the scratch.
  const int64_t local = 2 * transforms::kPointBytes * lengthOf(order - order / 2);
  return {transforms::largeTransformBytes(order) + 512, 64, roundedUp(8 * n, 64) + local + 64};
}

TransformBytes realAxisBytes(int order) {
  const int64_t n = lengthOf(order);
  const int64_t tables = (4 * n + 126) & ~int64_t{127};
  if (order < 5) return {152, 0, 0};
  if (order <= kSplitRow) return {tables + 192, 0, 0};
  if (order < 18)
    return {roundedUp(4 * n + 8, 64) + roundedUp(n / 2 + 4, 64) + tables + 192, initBytes(order), 4 * n + 64};
  const TransformBytes half = complexAxisBytes(order - 1);
  return {half.object + 2 * n + 128, half.init, half.work};
}

Transform FftAxis::rows() const {
  if (large) return *large;
  const int half = identifier == kFftRealAxis ? order - 1 : order;
  return half < kSplitRow ? transforms::wholeTransform(std::max(half, 0)) : transforms::splitTransform(half, roots);
}

Transform FftAxis::columns() const {
  return order <= transforms::kLargestTable ? transforms::wholeTransform(order) : rows();
}

namespace {

// The tables of a complex transform of 2^half points.
void makeTables(FftAxis& axis, int half, Tables& memory) {
  if (isLarge(half)) {
    auto* const large = memory.take<Transform>(1, 64);
    void* const tables = memory.take<Lum8u>(transforms::largeTransformBytes(half), 64);
    *large = transforms::largeTransform(half, tables);
    axis.large = large;
  } else if (half >= kSplitRow) {
    auto* const roots = memory.take<float>(2 * lengthOf(half), 64);
    transforms::fillRoots(half, roots);
    axis.roots = roots;
  }
}

}  // namespace

FftAxis* makeComplexAxis(int order, Lum32s flag, Tables& memory) {
  auto* const axis = memory.take<FftAxis>(1, kObjectAlignment);
  *axis = {kFftComplexAxis, order, flag, static_cast<Lum32s>(std::min<int64_t>(complexAxisBytes(order).work, INT_MAX)),
           nullptr,         nullptr, nullptr, nullptr};
  makeTables(*axis, order, memory);
  return axis;
}

FftAxis* makeRealAxis(int order, Lum32s flag, Tables& memory) {
  auto* const axis = memory.take<FftAxis>(1, kObjectAlignment);
  *axis = {kFftRealAxis, order, flag, static_cast<Lum32s>(std::min<int64_t>(realAxisBytes(order).work, INT_MAX)),
           nullptr,      nullptr, nullptr, nullptr};
  if (order == 0) return axis;
  const int64_t quarter = lengthOf(order) / 4;
  auto* const re = memory.take<float>(quarter + 1);
  auto* const im = memory.take<float>(quarter + 1);
  for (int64_t k = 0; k <= quarter; ++k) {
    const transforms::Root w = transforms::root(k, lengthOf(order));
    re[k] = static_cast<float>(w.re);
    im[k] = static_cast<float>(w.im);
  }
  axis->splitRe = re;
  axis->splitIm = im;
  makeTables(*axis, order - 1, memory);
  return axis;
}

SpectrumPlan planOf(const FftSpec& spec, bool isReal, bool inverse) {
  const FftAxis& row = *spec.row;
  const FftAxis& column = spec.column ? *spec.column : row;
  const int half = isReal ? spec.orderX - 1 : spec.orderX;
  return {static_cast<size_t>(lengthOf(spec.orderX)),
          static_cast<size_t>(lengthOf(spec.orderY)),
          {row.rows(), row.splitRe, row.splitIm},
          half >= kSplitRow,
          column.columns(),
          inverse,
          scaleOf(row.flag, inverse, lengthOf(spec.orderX)),
          scaleOf(row.flag, inverse, lengthOf(spec.orderY))};
}

namespace {

using namespace check;

// The tests that the transform of an axis makes, in its order.
LumStatus axisFault(int order, Lum32s flag, int mostOrder) {
  if (order < 0 || order > kMostOrder) return lumStatusBadFftOrder;
  if (!isTransformFlag(flag)) return lumStatusBadTransformFlag;
  return order > mostOrder ? lumStatusBadFftOrder : lumStatusOk;
}

template <bool real>
LumStatus axesFault(int orderX, int orderY, Lum32s flag) {
  constexpr int kMostRow = real ? kMostRealOrder : kMostComplexOrder;
  return firstFault([=] { return axisFault(orderX, flag, kMostRow); },
                    [=] { return axisFault(orderY, flag, kMostComplexOrder); });
}

constexpr int64_t aligned(int64_t bytes) { return roundedUp(bytes, 64); }
constexpr int64_t withRoom(int64_t bytes) { return bytes > 0 ? bytes + 64 : 0; }

// Of the object with its row's and its columns' transforms. `work` is without what its alignment takes.
template <bool real>
TransformBytes bytesOf(int orderX, int orderY) {
  const int64_t width = lengthOf(orderX), height = lengthOf(orderY);
  const TransformBytes column = complexAxisBytes(orderY);
  const bool differ = orderX != orderY;
  if constexpr (real) {
    const TransformBytes row = realAxisBytes(orderX), down = realAxisBytes(orderY);
    return {withRoom(aligned(row.object) + (differ ? aligned(down.object) : 0) + aligned(column.object) + 64),
            withRoom(aligned(row.init) + (differ ? aligned(down.init) : 0) + aligned(column.init)),
            aligned(std::max({16 * width + row.work, 16 * height + down.work, 64 * height + column.work}))};
  } else {
    const TransformBytes row = complexAxisBytes(orderX);
    return {withRoom(aligned(row.object) + (differ ? aligned(column.object) : 0) + 64),
            withRoom(aligned(row.init) + (differ ? aligned(column.init) : 0)),
            aligned(std::max(row.work, column.work + 64 * height))};
  }
}

// No memory is as large as what 31 bits do not tell; runs then have none.
Lum32s told(int64_t bytes) { return static_cast<Lum32s>(std::min<int64_t>(bytes, INT_MAX)); }

template <bool real>
void make(int orderX, int orderY, Lum32s flag, LumAlgorithmHint hint, void* object) {
  auto* const spec = objectAt<FftSpec>(object);
  *spec = {real ? kFftReal : kFftComplex,  orderX, orderY, hint, told(bytesOf<real>(orderX, orderY).work), 0,
           nullptr, nullptr};
  Tables memory(spec + 1);
  if constexpr (real) {
    spec->row = makeRealAxis(orderX, flag, memory);
    spec->column = makeComplexAxis(orderY, flag, memory);
  } else {
    spec->row = makeComplexAxis(orderX, flag, memory);
    if (orderX != orderY) spec->column = makeComplexAxis(orderY, flag, memory);
  }
}

template <bool real, typename Spec>
LumStatus initAllocated(Spec** object, int orderX, int orderY, Lum32s flag, LumAlgorithmHint hint) {
  if (LumStatus fault = firstFault(pointers(object), axesFault<real>(orderX, orderY, flag))) return fault;
  return allocateObject(object, bytesOf<real>(orderX, orderY).object, [=](Spec* made) {
    make<real>(orderX, orderY, flag, hint, made);
    return lumStatusOk;
  });
}

constexpr bool isReal(const LumiFFTSpec_R_32f*) { return true; }
constexpr bool isReal(const LumiFFTSpec_C_32fc*) { return false; }

}  // namespace

template <bool real>
LumStatus getFftSize(int orderX, int orderY, Lum32s flag, LumAlgorithmHint /*hint*/, Lum32s* objectSize,
                     Lum32s* initSize, Lum32s* bufferSize) {
  if (LumStatus fault = firstFault(pointers(objectSize, initSize, bufferSize),
                                   [=] { return axesFault<real>(orderX, orderY, flag); }))
    return fault;
  const TransformBytes bytes = bytesOf<real>(orderX, orderY);
  *objectSize = told(bytes.object);
  *initSize = told(bytes.init);
  *bufferSize = told(withRoom(bytes.work));
  return lumStatusOk;
}
template LumStatus getFftSize<true>(int, int, Lum32s, LumAlgorithmHint, Lum32s*, Lum32s*, Lum32s*);
template LumStatus getFftSize<false>(int, int, Lum32s, LumAlgorithmHint, Lum32s*, Lum32s*, Lum32s*);

template <bool real, typename Spec>
LumStatus initFft(int orderX, int orderY, Lum32s flag, LumAlgorithmHint hint, Spec* object, Lum8u* scratch) {
  const bool belowLimit = orderX <= kMostOrder && orderY <= kMostOrder;
  const bool needsScratch = std::max(orderX, orderY) > kNoInitScratch;
  if (LumStatus fault =
          firstFault(belowLimit ? lumStatusOk : lumStatusBadFftOrder, pointers(object),
                     axesFault<real>(orderX, orderY, flag), needsScratch ? pointers(scratch) : lumStatusOk))
    return fault;
  make<real>(orderX, orderY, flag, hint, object);
  return lumStatusOk;
}
template LumStatus initFft<true>(int, int, Lum32s, LumAlgorithmHint, LumiFFTSpec_R_32f*, Lum8u*);
template LumStatus initFft<false>(int, int, Lum32s, LumAlgorithmHint, LumiFFTSpec_C_32fc*, Lum8u*);

template <typename Spec>
LumStatus initAllocatedFft(Spec** object, int orderX, int orderY, Lum32s flag, LumAlgorithmHint hint) {
  return initAllocated<isReal(static_cast<Spec*>(nullptr))>(object, orderX, orderY, flag, hint);
}
template LumStatus initAllocatedFft(LumiFFTSpec_R_32f**, int, int, Lum32s, LumAlgorithmHint);
template LumStatus initAllocatedFft(LumiFFTSpec_C_32fc**, int, int, Lum32s, LumAlgorithmHint);

// A run converts the image to floats in its scratch, plane by plane, and transforms them there.
template <>
LumStatus initAllocatedFft(LumiFFTSpec_R_32s** object, int orderX, int orderY, Lum32s flag, LumAlgorithmHint hint) {
  if (LumStatus fault = firstFault(pointers(object), axesFault<true>(orderX, orderY, flag))) return fault;
  return allocateObject(object, sizeof(FftSpecOfIntegers), [=](LumiFFTSpec_R_32s* made) -> LumStatus {
    LumiFFTSpec_R_32f* real = nullptr;
    if (LumStatus fault = initAllocated<true>(&real, orderX, orderY, flag, hint)) return fault;
    const int64_t planes = (16 * lengthOf(orderY) + 4) * lengthOf(orderX);
    const int64_t bytes = planes + withRoom(bytesOf<true>(orderX, orderY).work) + 64;
    *reinterpret_cast<FftSpecOfIntegers*>(made) = {kFftIntegers, orderX, orderY, hint, told(bytes), 0, real};
    return lumStatusOk;
  });
}

template <typename Spec>
LumStatus freeFft(Spec* object) {
  return freeObject<FftSpec>(object, isReal(object) ? kFftReal : kFftComplex);
}
template LumStatus freeFft(LumiFFTSpec_R_32f*);
template LumStatus freeFft(LumiFFTSpec_C_32fc*);

template <>
LumStatus freeFft(LumiFFTSpec_R_32s* object) {
  if (!object) return lumStatusNullPointer;
  auto* const spec = reinterpret_cast<FftSpecOfIntegers*>(object);
  if (spec->identifier != kFftIntegers) return lumStatusBadContext;
  spec->identifier = 0;
  freeFft(spec->real);
  release(object);
  return lumStatusOk;
}

template <typename Spec>
LumStatus getFftBufferSize(const Spec* object, Lum32s* bufferSize) {
  if (LumStatus fault = pointers(object, bufferSize)) return fault;
  const auto* const spec = objectAt<FftSpec>(object);
  if (spec->identifier != (isReal(object) ? kFftReal : kFftComplex)) return lumStatusBadContext;
  *bufferSize = told(withRoom(spec->workBytes));
  return lumStatusOk;
}
template LumStatus getFftBufferSize(const LumiFFTSpec_R_32f*, Lum32s*);
template LumStatus getFftBufferSize(const LumiFFTSpec_C_32fc*, Lum32s*);

template <>
LumStatus getFftBufferSize(const LumiFFTSpec_R_32s* object, Lum32s* bufferSize) {
  if (LumStatus fault = pointers(object, bufferSize)) return fault;
  const auto* const spec = reinterpret_cast<const FftSpecOfIntegers*>(object);
  if (spec->identifier != kFftIntegers) return lumStatusBadContext;
  *bufferSize = spec->workBytes;
  return lumStatusOk;
}

}  // namespace lumi
