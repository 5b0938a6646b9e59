// SPDX-License-Identifier: MIT
// Between complex spectra and packed ones.
#include "lumi/cplx_pack.h"

#include "frame/check.hpp"
#include "frame/layout.hpp"
#include "frame/rows.hpp"
#include "kernels/transforms/cplx_pack.hpp"

namespace lumi {
namespace {

using namespace check;

Extent pixelsOf(LumiSize roi) { return {static_cast<size_t>(roi.width), roi.height}; }

template <typename Complex, typename T, typename Layout>
LumStatus packSpectrum(const Complex* src, int srcStep, LumiSize roi, T* dst, int dstStep) {
  if (LumStatus fault = firstFault(pointers(src, dst), size(roi), steps(srcStep, dstStep))) return fault;
  packRows<static_cast<int>(sizeof(T)), Layout::kStored>(rows(src, srcStep), rows(dst, dstStep),
                                                         pixelsOf(roi));
  return lumStatusOk;
}

template <typename T, typename Complex, typename>
LumStatus extendPack(const T* src, LumiSize roi, int srcStep, Complex* dst, int dstStep) {
  if (LumStatus fault = firstFault(pointers(src, dst), size(roi), steps(srcStep, dstStep))) return fault;
  extendPackedRows<T>(rows(src, srcStep), rows(dst, dstStep), pixelsOf(roi));
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/cplx_pack.inc"
