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

RootTable makeRoots(int64_t count, int64_t n, Tables& memory) {
  auto* const re = memory.take<float>(count);
  auto* const im = memory.take<float>(count);
  for (int64_t k = 0; k < count; ++k) {
    const transforms::Root w = transforms::root(k, n);
    re[k] = static_cast<float>(w.re);
    im[k] = static_cast<float>(w.im);
  }
  return {re, im};
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
  return half < kSplitRow ? transforms::wholeTransform(std::max(half, 0))
                          : transforms::splitTransform(half, roots);
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
  *axis = {kFftComplexAxis, order, flag, nullptr, nullptr, nullptr, nullptr};
  makeTables(*axis, order, memory);
  return axis;
}

FftAxis* makeRealAxis(int order, Lum32s flag, Tables& memory) {
  auto* const axis = memory.take<FftAxis>(1, kObjectAlignment);
  *axis = {kFftRealAxis, order, flag, nullptr, nullptr, nullptr, nullptr};
  if (order == 0) return axis;
  const RootTable split = makeRoots(lengthOf(order) / 4 + 1, lengthOf(order), memory);
  axis->splitRe = split.re;
  axis->splitIm = split.im;
  makeTables(*axis, order - 1, memory);
  return axis;
}

namespace {

using FftObject = SpectrumObjectOf<FftAxis>;

SpectrumPlan planOf(const FftObject& object, bool areReal, bool inverse) {
  const FftAxis& row = *object.row;
  const FftAxis& column = object.column ? *object.column : row;
  const int half = areReal ? object.width - 1 : object.width;
  return {static_cast<size_t>(lengthOf(object.width)),
          static_cast<size_t>(lengthOf(object.height)),
          {row.rows(), row.splitRe, row.splitIm},
          half >= kSplitRow ? RowMethod::single : RowMethod::eight,
          column.columns(),
          inverse,
          scaleOf(row.flag, inverse, lengthOf(object.width)),
          scaleOf(row.flag, inverse, lengthOf(object.height))};
}

}  // namespace

SpectrumPlan planOf(const LumiFFTSpec_C_32fc* object, bool inverse) {
  return planOf(*objectAt<FftObject>(object), false, inverse);
}
SpectrumPlan planOf(const LumiFFTSpec_R_32f* object, bool inverse) {
  return planOf(*objectAt<FftObject>(object), true, inverse);
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

template <typename Spec>
constexpr bool isReal = std::is_same_v<Spec, LumiFFTSpec_R_32f>;

// Of the object with its row's and its columns' transforms.
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

template <typename Spec>
void make(int orderX, int orderY, Lum32s flag, LumAlgorithmHint hint, Spec* object) {
  constexpr bool kReal = isReal<Spec>;
  auto* const words = objectAt<FftObject>(object);
  const Lum32s workBytes = told(bytesOf<kReal>(orderX, orderY).work);
  static_cast<SpectrumObject&>(*words) = {identifierOf(object), orderX, orderY, hint, workBytes, 0};
  Tables memory(words + 1);
  words->column = nullptr;
  if constexpr (kReal) {
    words->row = makeRealAxis(orderX, flag, memory);
    words->column = makeComplexAxis(orderY, flag, memory);
  } else {
    words->row = makeComplexAxis(orderX, flag, memory);
    if (orderX != orderY) words->column = makeComplexAxis(orderY, flag, memory);
  }
}

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
  make(orderX, orderY, flag, hint, object);
  return lumStatusOk;
}
template LumStatus initFft<true>(int, int, Lum32s, LumAlgorithmHint, LumiFFTSpec_R_32f*, Lum8u*);
template LumStatus initFft<false>(int, int, Lum32s, LumAlgorithmHint, LumiFFTSpec_C_32fc*, Lum8u*);

template <typename Spec>
LumStatus initAllocatedFft(Spec** object, int orderX, int orderY, Lum32s flag, LumAlgorithmHint hint) {
  using Real = RealOfIntegers<Spec>;
  constexpr bool kReal = isReal<Spec> || !std::is_void_v<Real>;
  if (LumStatus fault = firstFault(pointers(object), axesFault<kReal>(orderX, orderY, flag))) return fault;
  if constexpr (std::is_void_v<Real>) {
    return allocateObject(object, bytesOf<kReal>(orderX, orderY).object, [=](Spec* made) -> LumStatus {
      make(orderX, orderY, flag, hint, made);
      return lumStatusOk;
    });
  } else {
    return allocateObject(object, sizeof(IntegersObject<Real>), [=](Spec* made) -> LumStatus {
      Real* real = nullptr;
      if (LumStatus fault = initAllocatedFft(&real, orderX, orderY, flag, hint)) return fault;
      const int64_t planes = (16 * lengthOf(orderY) + 4) * lengthOf(orderX);
      return makeIntegersObject(made, identifierOf(made), *wordsOf(real), planes, real);
    });
  }
}
template LumStatus initAllocatedFft(LumiFFTSpec_C_32fc**, int, int, Lum32s, LumAlgorithmHint);
template LumStatus initAllocatedFft(LumiFFTSpec_R_32f**, int, int, Lum32s, LumAlgorithmHint);
template LumStatus initAllocatedFft(LumiFFTSpec_R_32s**, int, int, Lum32s, LumAlgorithmHint);

}  // namespace lumi
