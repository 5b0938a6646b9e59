// SPDX-License-Identifier: MIT
// Runs of transforms, with objects of any kind: planOf(object, inverse) tells what they hold.
#pragma once

#include "frame/check.hpp"
#include "frame/rows.hpp"
#include "transforms/objects.hpp"
#include "transforms/through_planes.hpp"

namespace lumi {

template <typename Spec, typename S, typename D>
LumStatus runFault(const Spec* object, const S* src, int srcStep, const D* dst, int dstStep) {
  using namespace check;
  return firstFault(
      pointers(object), [=] { return identity(object); }, pointers(src, dst), steps(srcStep, dstStep));
}

template <bool inverse, typename T, typename Layout, typename Spec>
LumStatus transformImage(const T* src, int srcStep, T* dst, int dstStep, const Spec* object, Lum8u* buffer) {
  if (LumStatus fault = runFault(object, src, srcStep, dst, dstStep)) return fault;
  return withScratch(buffer, wordsOf(object)->workBytes, [=](float* scratch) {
    transformComplex(planOf(object, inverse), rows(src, srcStep), rows(dst, dstStep), scratch);
  });
}
template <bool inverse, typename T, typename Layout, typename Spec>
LumStatus transformImage(T* image, int step, const Spec* object, Lum8u* buffer) {
  return transformImage<inverse, T, Layout>(image, step, image, step, object, buffer);
}

template <bool inverse, typename T, typename Layout, typename Spec>
LumStatus transformSamples(const T* src, int srcStep, T* dst, int dstStep, const Spec* object,
                           Lum8u* buffer) {
  if (LumStatus fault = runFault(object, src, srcStep, dst, dstStep)) return fault;
  return withScratch(buffer, wordsOf(object)->workBytes, [=](float* scratch) {
    transformPacked<Layout>(planOf(object, inverse), rows(src, srcStep), rows(dst, dstStep), scratch);
  });
}
template <bool inverse, typename T, typename Layout, typename Spec>
LumStatus transformSamples(T* image, int step, const Spec* object, Lum8u* buffer) {
  return transformSamples<inverse, T, Layout>(image, step, image, step, object, buffer);
}

template <bool inverse, typename S, typename D, typename Layout, typename Spec>
LumStatus transformIntegers(const S* src, int srcStep, D* dst, int dstStep, const Spec* object,
                            int scaleFactor, Lum8u* buffer) {
  if (LumStatus fault = runFault(object, src, srcStep, dst, dstStep)) return fault;
  const auto* const real = reinterpret_cast<const IntegersObject<RealOfIntegers<Spec>>*>(object)->real;
  // The size that is told has room for alignment.
  return withScratch(buffer, wordsOf(object)->workBytes - kObjectAlignment, [=](float* scratch) {
    const SpectrumPlan plan = planOf(real, inverse);
    ThroughPlanes<Layout>(plan, scaleFactor, scratch).run(src, srcStep, dst, dstStep);
  });
}

}  // namespace lumi
