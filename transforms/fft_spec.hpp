// SPDX-License-Identifier: MIT
// Objects of fast Fourier transforms.
#pragma once

#include "transforms/objects.hpp"
#include "transforms/spectrum.hpp"

namespace lumi {

// The transform of one axis. Its tables lie behind it.
struct FftAxis {
  Lum32s identifier, order, flag;
  const float* roots;                  // of a split transform
  const float *splitRe, *splitIm;      // of a real one
  const transforms::Transform* large;  // beyond tables of its length

  // The complex transform, of a real one the half as long; down columns short ones are whole.
  transforms::Transform rows() const;
  transforms::Transform columns() const;
};

inline constexpr Lum32s kFftComplexAxis = 4, kFftRealAxis = 6;
TransformBytes realAxisBytes(int order);
TransformBytes complexAxisBytes(int order);
FftAxis* makeRealAxis(int order, Lum32s flag, Tables& memory);
FftAxis* makeComplexAxis(int order, Lum32s flag, Tables& memory);

SpectrumPlan planOf(const LumiFFTSpec_C_32fc* object, bool inverse);
SpectrumPlan planOf(const LumiFFTSpec_R_32f* object, bool inverse);

// What the interface does with objects.
template <bool real>
LumStatus getFftSize(int orderX, int orderY, Lum32s flag, LumAlgorithmHint hint, Lum32s* objectSize,
                     Lum32s* initSize, Lum32s* bufferSize);
template <bool real, typename Spec>
LumStatus initFft(int orderX, int orderY, Lum32s flag, LumAlgorithmHint hint, Spec* object, Lum8u* scratch);
template <typename Spec>
LumStatus initAllocatedFft(Spec** object, int orderX, int orderY, Lum32s flag, LumAlgorithmHint hint);

}  // namespace lumi
