// SPDX-License-Identifier: MIT
// Comparisons of images, and of an image and a constant, to masks of a byte for each pixel.
#include "lumi/compare.h"

#include <cstring>
#include <utility>

#include "frame/check.hpp"
#include "frame/constant.hpp"
#include "frame/rows.hpp"
#include "kernels/data/compare.hpp"

namespace lumi {
namespace {

using namespace check;

// A constant's pixel, read once; alpha is not looked at.
template <typename T, typename Layout>
struct Pixel {
  T samples[Layout::kStored] = {};

  template <typename Value>
  explicit Pixel(const Value& value) {
    std::memcpy(samples, samplesOf(value), kUsedBytes<T, Layout>);
  }
  Comparand comparand() const { return {rows(samples, 0), true}; }
};

template <typename T, typename Layout>
constexpr bool kIgnoresAlpha = Layout::kUsed < Layout::kStored;

// The first comparand is an image, the second one or a constant: with rows that touch one another as one.
// kernel(rows of the image, second comparand, rows of the mask, extent)
template <typename T, typename Layout, typename Kernel>
void run(const T* src1, int src1Step, const T* src2, int src2Step, Lum8u* mask, int maskStep, LumiSize roi,
         Kernel kernel) {
  runFused(
      roi,
      [&](SourceRows a, SourceRows b, TargetRows d, Extent pixels) {
        kernel(Comparand{a, false}, Comparand{b, false}, d, pixels);
      },
      pixelRows<Layout>(src1, src1Step), pixelRows<Layout>(src2, src2Step), pixelRows<C1>(mask, maskStep));
}
template <typename T, typename Layout, typename Value, typename Kernel>
void runConstant(const T* src, int srcStep, Value value, Lum8u* mask, int maskStep, LumiSize roi,
                 Kernel kernel) {
  const Pixel<T, Layout> pixel(value);
  runFused(
      roi,
      [&](SourceRows a, TargetRows d, Extent pixels) {
        kernel(Comparand{a, false}, pixel.comparand(), d, pixels);
      },
      pixelRows<Layout>(src, srcStep), pixelRows<C1>(mask, maskStep));
}

// The other two relations are these with the operands swapped.
template <typename T, typename Layout>
auto comparing(LumCmpOp cmpOp) {
  const bool swapped = cmpOp == lumCmpOpGreater || cmpOp == lumCmpOpGreaterEqual;
  const Relation relation = cmpOp == lumCmpOpEqual                              ? Relation::Equal
                            : cmpOp == lumCmpOpLess || cmpOp == lumCmpOpGreater ? Relation::Below
                                                                                : Relation::NotAbove;
  return [=](Comparand a, Comparand b, TargetRows mask, Extent pixels) {
    if (swapped) std::swap(a, b);
    compareRows<T, Layout::kStored>(a, b, mask, pixels, relation, kIgnoresAlpha<T, Layout>);
  };
}
template <typename Layout>
auto comparingWithin(Lum32f tolerance) {
  return [=](Comparand a, Comparand b, TargetRows mask, Extent pixels) {
    compareWithinRows<Layout::kStored>(a, b, mask, pixels, tolerance, kIgnoresAlpha<Lum32f, Layout>);
  };
}

// Below zero is none either.
constexpr bool isOperator(LumCmpOp cmpOp) {
  return static_cast<uint32_t>(cmpOp) <= static_cast<uint32_t>(lumCmpOpGreater);
}

template <typename T, typename Layout>
LumStatus compare(const T* src1, int src1Step, const T* src2, int src2Step, Lum8u* mask, int maskStep,
                  LumiSize roi, LumCmpOp cmpOp) {
  if (LumStatus fault =
          firstFault(pointers(src1, src2, mask), steps(src1Step, src2Step, maskStep), size(roi)))
    return fault;
  if (isOperator(cmpOp))
    run<T, Layout>(src1, src1Step, src2, src2Step, mask, maskStep, roi, comparing<T, Layout>(cmpOp));
  return lumStatusOk;
}

template <typename T, typename Layout, typename Value>
LumStatus compareConstant(const T* src, int srcStep, Value value, Lum8u* mask, int maskStep, LumiSize roi,
                          LumCmpOp cmpOp) {
  if (LumStatus fault = firstFault(pointers(value, src, mask), steps(srcStep, maskStep), size(roi)))
    return fault;
  if (isOperator(cmpOp))
    runConstant<T, Layout>(src, srcStep, value, mask, maskStep, roi, comparing<T, Layout>(cmpOp));
  return lumStatusOk;
}

// What is not a number passes.
constexpr LumStatus notNegative(Lum32f tolerance) {
  return tolerance < 0 ? lumStatusBadEpsilon : lumStatusOk;
}

template <typename T, typename Layout>
LumStatus compareWithin(const T* src1, int src1Step, const T* src2, int src2Step, Lum8u* mask, int maskStep,
                        LumiSize roi, Lum32f tolerance) {
  if (LumStatus fault = firstFault(pointers(src1, src2, mask), steps(src1Step, src2Step, maskStep), size(roi),
                                   notNegative(tolerance)))
    return fault;
  run<T, Layout>(src1, src1Step, src2, src2Step, mask, maskStep, roi, comparingWithin<Layout>(tolerance));
  return lumStatusOk;
}

template <typename T, typename Layout, typename Value>
LumStatus compareConstantWithin(const T* src, int srcStep, Value value, Lum8u* mask, int maskStep,
                                LumiSize roi, Lum32f tolerance) {
  if (LumStatus fault =
          firstFault(pointers(value, src, mask), steps(srcStep, maskStep), size(roi), notNegative(tolerance)))
    return fault;
  runConstant<T, Layout>(src, srcStep, value, mask, maskStep, roi, comparingWithin<Layout>(tolerance));
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/compare.inc"
