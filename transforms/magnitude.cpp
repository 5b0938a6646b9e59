// SPDX-License-Identifier: MIT
// Magnitudes of complex samples.
#include "lumi/magnitude.h"

#include "frame/check.hpp"
#include "frame/layout.hpp"
#include "frame/rows.hpp"
#include "kernels/transforms/magnitude.hpp"

namespace lumi {
namespace {

using namespace check;

template <typename C, typename T, typename Layout>
LumStatus magnitude(const C* src, int srcStep, T* dst, int dstStep, LumiSize roi, int scaleFactor = 0) {
  static_assert(std::is_same_v<Component<C>, T>);
  if (LumStatus fault = firstFault(pointers(src, dst), size(roi), steps(srcStep, dstStep))) return fault;
  runSamples<Layout>(src, srcStep, dst, dstStep, roi, [=](SourceRows s, TargetRows d, Extent samples) {
    magnitudeRows<T>(s, d, samples, scaleFactor);
  });
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/magnitude.inc"
