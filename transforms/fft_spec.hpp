// SPDX-License-Identifier: MIT
// Objects of fast Fourier transforms.
#pragma once

#include "frame/object.hpp"
#include "lumi/types.h"
#include "transforms/spectrum.hpp"

namespace lumi {

// Where a transform of one axis multiplies: forward by 1 / n, inverse by 1 / n, both by 1 / sqrt(n), or nowhere.
enum TransformFlag : Lum32s { kScaleForward = 1, kScaleInverse = 2, kScaleBoth = 4, kScaleNowhere = 8 };

constexpr bool isTransformFlag(Lum32s flag) {
  return flag == kScaleForward || flag == kScaleInverse || flag == kScaleBoth || flag == kScaleNowhere;
}

// What each transform of n points multiplies its results by.
float scaleOf(Lum32s flag, bool inverse, int64_t n);

// Bytes of an object, of the scratch of its Init, and of the scratch of a run.
struct TransformBytes {
  int64_t object, init, work;
};

// The transform of one axis. Its tables lie behind it.
struct FftAxis {
  Lum32s identifier, order, flag, workBytes;
  const float* roots;                 // of a split transform
  const float *splitRe, *splitIm;     // of a real one
  const transforms::Transform* large; // beyond tables of its length

  // The complex transform, of a real one the half as long; down columns short ones are whole.
  transforms::Transform rows() const;
  transforms::Transform columns() const;
};

inline constexpr Lum32s kFftComplexAxis = 4, kFftRealAxis = 6;
inline constexpr Lum32s kFftComplex = 25, kFftReal = 26, kFftIntegers = 29;

TransformBytes realAxisBytes(int order);
TransformBytes complexAxisBytes(int order);
FftAxis* makeRealAxis(int order, Lum32s flag, Tables& memory);
FftAxis* makeComplexAxis(int order, Lum32s flag, Tables& memory);

struct FftSpec {
  Lum32s identifier, orderX, orderY, hint, workBytes, reserved;
  const FftAxis *row, *column;
};

// Lies at its own address. The object of the real transform in it is the opaque one.
struct FftSpecOfIntegers {
  Lum32s identifier, orderX, orderY, hint, workBytes, zero;
  LumiFFTSpec_R_32f* real;
};

SpectrumPlan planOf(const FftSpec& spec, bool isReal, bool inverse);

// What the interface does with objects.
template <bool real>
LumStatus getFftSize(int orderX, int orderY, Lum32s flag, LumAlgorithmHint hint, Lum32s* objectSize,
                     Lum32s* initSize, Lum32s* bufferSize);
template <bool real, typename Spec>
LumStatus initFft(int orderX, int orderY, Lum32s flag, LumAlgorithmHint hint, Spec* object, Lum8u* scratch);
template <typename Spec>
LumStatus initAllocatedFft(Spec** object, int orderX, int orderY, Lum32s flag, LumAlgorithmHint hint);
template <typename Spec>
LumStatus freeFft(Spec* object);
template <typename Spec>
LumStatus getFftBufferSize(const Spec* object, Lum32s* bufferSize);

}  // namespace lumi
