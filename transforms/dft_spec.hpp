// SPDX-License-Identifier: MIT
// Objects of Fourier transforms of any size.
#pragma once

#include "transforms/objects.hpp"
#include "transforms/spectrum.hpp"

namespace lumi {

// The transform of one axis. Its tables lie behind it.
struct DftAxis {
  Lum32s identifier, length, flag;
  RowMethod method;
  // Along rows that of a real transform's half, where the length is even.
  transforms::RealTransform rows;
  transforms::Transform columns;
};

TransformBytes complexDftBytes(int64_t length);
TransformBytes realDftBytes(int64_t length);
DftAxis* makeComplexDft(int length, Lum32s flag, Tables& memory, float* scratch);
DftAxis* makeRealDft(int length, Lum32s flag, Tables& memory, float* scratch);

SpectrumPlan planOf(const LumiDFTSpec_C_32fc* object, bool inverse);
SpectrumPlan planOf(const LumiDFTSpec_R_32f* object, bool inverse);

// What the interface does with objects.
template <bool real>
LumStatus getDftSize(int width, int height, Lum32s flag, LumAlgorithmHint hint, Lum32s* objectSize,
                     Lum32s* initSize, Lum32s* bufferSize);
template <typename Spec>
LumStatus initDft(int width, int height, Lum32s flag, LumAlgorithmHint hint, Spec* object, Lum8u* scratch);
template <typename Spec>
LumStatus initAllocatedDft(Spec** object, int width, int height, Lum32s flag, LumAlgorithmHint hint);

}  // namespace lumi
