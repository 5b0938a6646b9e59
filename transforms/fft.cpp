// SPDX-License-Identifier: MIT
// Fast Fourier transforms of images: runs.
#include "lumi/fft.h"

#include <climits>

#include "frame/check.hpp"
#include "frame/rows.hpp"
#include "frame/scratch.hpp"
#include "transforms/fft_spec.hpp"
#include "transforms/through_planes.hpp"

namespace lumi {
namespace {

using namespace check;

template <typename T>
LumStatus runFault(const FftSpec* spec, Lum32s identifier, const T* src, int srcStep, const T* dst, int dstStep) {
  return firstFault(
      pointers(spec), [=] { return spec->identifier == identifier ? lumStatusOk : lumStatusBadContext; },
      pointers(src, dst), steps(srcStep, dstStep));
}

template <bool inverse, typename T, typename Layout>
LumStatus transformImage(const T* src, int srcStep, T* dst, int dstStep, const LumiFFTSpec_C_32fc* object,
                         Lum8u* buffer) {
  const auto* const spec = object ? objectAt<FftSpec>(object) : nullptr;
  if (LumStatus fault = runFault(spec, kFftComplex, src, srcStep, dst, dstStep)) return fault;
  return withScratch(buffer, spec->workBytes, [=](float* scratch) {
    transformComplex(planOf(*spec, false, inverse), rows(src, srcStep), rows(dst, dstStep), scratch);
  });
}
template <bool inverse, typename T, typename Layout>
LumStatus transformImage(T* image, int step, const LumiFFTSpec_C_32fc* object, Lum8u* buffer) {
  return transformImage<inverse, T, Layout>(image, step, image, step, object, buffer);
}

template <bool inverse, typename T, typename Layout>
LumStatus transformSamples(const T* src, int srcStep, T* dst, int dstStep, const LumiFFTSpec_R_32f* object,
                           Lum8u* buffer) {
  const auto* const spec = object ? objectAt<FftSpec>(object) : nullptr;
  if (LumStatus fault = runFault(spec, kFftReal, src, srcStep, dst, dstStep)) return fault;
  return withScratch(buffer, spec->workBytes, [=](float* scratch) {
    transformPacked<Layout>(planOf(*spec, true, inverse), rows(src, srcStep), rows(dst, dstStep), scratch);
  });
}
template <bool inverse, typename T, typename Layout>
LumStatus transformSamples(T* image, int step, const LumiFFTSpec_R_32f* object, Lum8u* buffer) {
  return transformSamples<inverse, T, Layout>(image, step, image, step, object, buffer);
}

template <bool inverse, typename S, typename D, typename Layout>
LumStatus transformIntegers(const S* src, int srcStep, D* dst, int dstStep, const LumiFFTSpec_R_32s* object,
                            int scaleFactor, Lum8u* buffer) {
  const auto* const spec = reinterpret_cast<const FftSpecOfIntegers*>(object);
  if (LumStatus fault = firstFault(
          pointers(object), [=] { return spec->identifier == kFftIntegers ? lumStatusOk : lumStatusBadContext; },
          pointers(src, dst), steps(srcStep, dstStep)))
    return fault;
  const SpectrumPlan plan = planOf(*objectAt<FftSpec>(spec->real), true, inverse);
  return withScratch(buffer, spec->workBytes - 64, [=](float* scratch) {
    ThroughPlanes<Layout>(plan, scaleFactor, scratch).run(src, srcStep, dst, dstStep);
  });
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/fft.inc"
