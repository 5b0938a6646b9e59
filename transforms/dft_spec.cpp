// SPDX-License-Identifier: MIT
// Fourier transforms of any size: sizes and making of objects.
#include "transforms/dft_spec.hpp"

#include "frame/check.hpp"
#include "transforms/fft_spec.hpp"

namespace lumi {

using transforms::anyLength;
using transforms::AnyLength;
using transforms::isPowerOfTwo;
using transforms::orderOf;

namespace {

constexpr int kMostLength = 0x7ffffff, kMostChirpLength = 0x3ffffff;
constexpr int kStraightLine = 17;  // lengths below it have no tables of their own
constexpr Lum32s kComplexAxis = 13, kRealAxis = 15;

// Mixed radices and convolutions take scratch; of passes none is used.
int64_t initBytes(int64_t length, const AnyLength& any) {
  return length < kStraightLine || isPowerOfTwo(length) ? 0 : 4 * any.scratchFloats + 64;
}

constexpr int64_t kHeader = aligned(sizeof(DftAxis)) + 64;

}  // namespace

TransformBytes complexDftBytes(int64_t length) {
  if (isPowerOfTwo(length)) {
    const TransformBytes bytes = complexAxisBytes(orderOf(length));
    return {bytes.object + kHeader, bytes.init, bytes.work};
  }
  const AnyLength any = anyLength(length);
  return {any.tableBytes + kHeader, initBytes(length, any), rowBytes(length, any.localFloats)};
}

TransformBytes realDftBytes(int64_t length) {
  if (isPowerOfTwo(length)) {
    const TransformBytes bytes = realAxisBytes(orderOf(length));
    return {bytes.object + kHeader, bytes.init, bytes.work};
  }
  const int64_t half = complexLength(length);
  const AnyLength any = anyLength(half);
  return {any.tableBytes + 4 * (half + 4) + kHeader + 64, initBytes(length, any),
          rowBytes(half, any.localFloats)};
}

DftAxis* makeComplexDft(int length, Lum32s flag, Tables& memory, float* scratch) {
  auto* const axis = memory.take<DftAxis>(1, kObjectAlignment);
  *axis = {kComplexAxis, length, flag, RowMethod::eight, {}, {}};
  if (isPowerOfTwo(length)) {
    const FftAxis& fft = *makeComplexAxis(orderOf(length), flag, memory);
    axis->columns = fft.columns();
    axis->rows.half = fft.rows();
    if (fft.rows().isSplit()) axis->method = RowMethod::single;
  } else {
    void* const tables = memory.take<Lum8u>(anyLength(length).tableBytes, 64);
    axis->columns = axis->rows.half = transforms::anyTransform(length, tables, scratch);
  }
  return axis;
}

DftAxis* makeRealDft(int length, Lum32s flag, Tables& memory, float* scratch) {
  auto* const axis = memory.take<DftAxis>(1, kObjectAlignment);
  *axis = {kRealAxis, length, flag, length % 2 == 0 ? RowMethod::eight : RowMethod::odd, {}, {}};
  if (isPowerOfTwo(length)) {
    const FftAxis& fft = *makeRealAxis(orderOf(length), flag, memory);
    axis->rows = {fft.rows(), fft.splitRe, fft.splitIm};
    if (fft.rows().isSplit()) axis->method = RowMethod::single;
    return axis;
  }
  const int64_t half = complexLength(length);
  const RootTable split = makeRoots(half / 2 + 1, length, memory);
  void* const tables = memory.take<Lum8u>(anyLength(half).tableBytes, 64);
  axis->rows = {transforms::anyTransform(half, tables, scratch), split.re, split.im};
  return axis;
}

namespace {

using DftObject = SpectrumObjectOf<DftAxis>;

template <typename Spec>
constexpr bool isReal = std::is_same_v<Spec, LumiDFTSpec_R_32f>;

SpectrumPlan planOfObject(const DftObject& object, bool inverse) {
  const DftAxis& row = *object.row;
  const DftAxis& column = object.column ? *object.column : row;
  return {static_cast<size_t>(object.width),
          static_cast<size_t>(object.height),
          row.rows,
          row.method,
          column.columns,
          inverse,
          scaleOf(row.flag, inverse, object.width),
          scaleOf(row.flag, inverse, object.height)};
}

using namespace check;

// A real transform of an even length needs a convolution where its half does.
LumStatus lengthFault(int length, bool real) {
  if (length > kMostLength) return lumStatusBadSize;
  const int64_t made = real ? complexLength(length) : length;
  return length > kMostChirpLength && !transforms::isMadeByPasses(made) ? lumStatusBadSize : lumStatusOk;
}

template <bool real>
LumStatus axesFault(int width, int height, Lum32s flag) {
  return firstFault(
      size(LumiSize{width, height}), isTransformFlag(flag) ? lumStatusOk : lumStatusBadTransformFlag,
      [=] { return lengthFault(width, real); },
      [=] { return firstFault(real ? lengthFault(height, true) : lumStatusOk, lengthFault(height, false)); });
}

// Of the object with its row's and its columns' transforms.
template <bool real>
TransformBytes bytesOf(int width, int height) {
  const TransformBytes column = complexDftBytes(height);
  const bool differ = width != height;
  if constexpr (real) {
    const TransformBytes row = realDftBytes(width), down = realDftBytes(height);
    return {withRoom(64 + aligned(row.object) + (differ ? aligned(down.object) : 0) + aligned(column.object)),
            withRoom(aligned(row.init) + (differ ? aligned(down.init) : 0) + aligned(column.init)),
            aligned(std::max({16 * int64_t{width} + row.work, 16 * int64_t{height} + down.work,
                              64 * int64_t{height} + column.work}))};
  } else {
    const TransformBytes row = complexDftBytes(width);
    return {withRoom(64 + aligned(row.object) + (differ ? aligned(column.object) : 0)),
            withRoom(aligned(row.init) + (differ ? aligned(column.init) : 0)),
            aligned(std::max(row.work, column.work + 64 * int64_t{height}))};
  }
}

template <typename Spec>
void make(int width, int height, Lum32s flag, LumAlgorithmHint hint, Spec* object, void* scratch) {
  auto* const words = objectAt<DftObject>(object);
  const Lum32s workBytes = told(bytesOf<isReal<Spec>>(width, height).work);
  static_cast<SpectrumObject&>(*words) = {identifierOf(object), width, height, hint, workBytes, 0};
  Tables memory(words + 1);
  auto* const floats = static_cast<float*>(scratch);
  words->column = nullptr;
  if constexpr (isReal<Spec>) {
    words->row = makeRealDft(width, flag, memory, floats);
    words->column = makeComplexDft(height, flag, memory, floats);
  } else {
    words->row = makeComplexDft(width, flag, memory, floats);
    if (width != height) words->column = makeComplexDft(height, flag, memory, floats);
  }
}

}  // namespace

SpectrumPlan planOf(const LumiDFTSpec_C_32fc* object, bool inverse) {
  return planOfObject(*objectAt<DftObject>(object), inverse);
}
SpectrumPlan planOf(const LumiDFTSpec_R_32f* object, bool inverse) {
  return planOfObject(*objectAt<DftObject>(object), inverse);
}

template <bool real>
LumStatus getDftSize(int width, int height, Lum32s flag, LumAlgorithmHint /*hint*/, Lum32s* objectSize,
                     Lum32s* initSize, Lum32s* bufferSize) {
  if (LumStatus fault = firstFault(pointers(objectSize, initSize, bufferSize),
                                   [=] { return axesFault<real>(width, height, flag); }))
    return fault;
  const TransformBytes bytes = bytesOf<real>(width, height);
  *objectSize = told(bytes.object);
  *initSize = told(bytes.init);
  *bufferSize = told(withRoom(bytes.work));
  return lumStatusOk;
}
template LumStatus getDftSize<true>(int, int, Lum32s, LumAlgorithmHint, Lum32s*, Lum32s*, Lum32s*);
template LumStatus getDftSize<false>(int, int, Lum32s, LumAlgorithmHint, Lum32s*, Lum32s*, Lum32s*);

template <typename Spec>
LumStatus initDft(int width, int height, Lum32s flag, LumAlgorithmHint hint, Spec* object, Lum8u* scratch) {
  constexpr bool kReal = isReal<Spec>;
  if (LumStatus fault = firstFault(pointers(object), axesFault<kReal>(width, height, flag))) return fault;
  const TransformBytes bytes = bytesOf<kReal>(width, height);
  if (LumStatus fault = firstFault(bytes.init > 0 ? pointers(scratch) : lumStatusOk, isTold(bytes.object),
                                   isTold(bytes.init)))
    return fault;
  make(width, height, flag, hint, object, alignedUp(scratch, kObjectAlignment));
  return lumStatusOk;
}
template LumStatus initDft(int, int, Lum32s, LumAlgorithmHint, LumiDFTSpec_C_32fc*, Lum8u*);
template LumStatus initDft(int, int, Lum32s, LumAlgorithmHint, LumiDFTSpec_R_32f*, Lum8u*);

template <typename Spec>
LumStatus initAllocatedDft(Spec** object, int width, int height, Lum32s flag, LumAlgorithmHint hint) {
  using Real = RealOfIntegers<Spec>;
  constexpr bool kReal = isReal<Spec> || !std::is_void_v<Real>;
  if (LumStatus fault = firstFault(pointers(object), axesFault<kReal>(width, height, flag))) return fault;
  if constexpr (std::is_void_v<Real>) {
    const TransformBytes bytes = bytesOf<kReal>(width, height);
    const Scratch scratch(std::max<int64_t>(bytes.init, 1));
    if (!scratch) return lumStatusNoMemory;
    return allocateObject(object, bytes.object, [&](Spec* made) -> LumStatus {
      make(width, height, flag, hint, made, alignedUp(static_cast<Lum8u*>(scratch.data()), kObjectAlignment));
      return lumStatusOk;
    });
  } else {
    return allocateObject(object, sizeof(IntegersObject<Real>), [=](Spec* made) -> LumStatus {
      Real* real = nullptr;
      if (LumStatus fault = initAllocatedDft(&real, width, height, flag, hint)) return fault;
      const int64_t planes = (16 * int64_t{height} + 4) * width;
      return makeIntegersObject(made, identifierOf(made), *wordsOf(real), planes, real);
    });
  }
}
template LumStatus initAllocatedDft(LumiDFTSpec_C_32fc**, int, int, Lum32s, LumAlgorithmHint);
template LumStatus initAllocatedDft(LumiDFTSpec_R_32f**, int, int, Lum32s, LumAlgorithmHint);
template LumStatus initAllocatedDft(LumiDFTSpec_R_32s**, int, int, Lum32s, LumAlgorithmHint);

}  // namespace lumi
