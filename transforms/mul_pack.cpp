// SPDX-License-Identifier: MIT
// Products of packed spectra.
#include "lumi/mul_pack.h"

#include "frame/check.hpp"
#include "frame/layout.hpp"
#include "frame/rows.hpp"
#include "kernels/transforms/mul_pack.hpp"

namespace lumi {
namespace {

using namespace check;

Extent pixelsOf(LumiSize roi) { return {static_cast<size_t>(roi.width), roi.height}; }

template <typename T, typename Layout>
LumStatus multiply(const T* src1, int src1Step, const T* src2, int src2Step, T* dst, int dstStep,
                   LumiSize roi, int scaleFactor = 0) {
  if (LumStatus fault = firstFault(pointers(src1, src2, dst), steps(src1Step, src2Step, dstStep), size(roi)))
    return fault;
  multiplyPacks<T, Layout::kStored, Layout::kUsed>(rows(src1, src1Step), rows(src2, src2Step),
                                                   rows(dst, dstStep), pixelsOf(roi), scaleFactor);
  return lumStatusOk;
}

template <typename T, typename Layout>
LumStatus multiply(const T* src, int srcStep, T* srcDst, int srcDstStep, LumiSize roi, int scaleFactor = 0) {
  return multiply<T, Layout>(src, srcStep, srcDst, srcDstStep, srcDst, srcDstStep, roi, scaleFactor);
}

template <typename T, typename Layout>
LumStatus multiplyConjugate(const T* src1, int src1Step, const T* src2, int src2Step, T* dst, int dstStep,
                            LumiSize roi) {
  if (LumStatus fault = firstFault(pointers(src1, src2, dst), steps(src1Step, src2Step, dstStep), size(roi)))
    return fault;
  multiplyPacksConjugate<Layout::kStored, Layout::kUsed>(rows(src1, src1Step), rows(src2, src2Step),
                                                         rows(dst, dstStep), pixelsOf(roi));
  return lumStatusOk;
}

template <typename T, typename Layout>
LumStatus multiplyConjugate(const T* src, int srcStep, T* srcDst, int srcDstStep, LumiSize roi) {
  return multiplyConjugate<T, Layout>(src, srcStep, srcDst, srcDstStep, srcDst, srcDstStep, roi);
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/mul_pack.inc"
