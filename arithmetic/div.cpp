// SPDX-License-Identifier: MIT
// Division of images, and of an image by a constant.
#include "lumi/div.h"

#include "arithmetic/mul.hpp"
#include "kernels/arithmetic/div.hpp"

namespace lumi {
namespace {

// Quotients of integers are zero above the largest scale factor, and leave the type below the least one,
// whatever the samples: for 32-bit complex ones, of 2^-63 to 2^32 in size, no such limits are stated, and
// these lie beyond what matters. A far exponent, which floats and doubles still hold, stands for all of
// those.
template <typename T>
struct ScaleLimits;
template <>
struct ScaleLimits<Lum8u> {
  static constexpr int kLeast = -15, kLargest = 8;
};
template <>
struct ScaleLimits<Lum16u> {
  static constexpr int kLeast = -31, kLargest = 16;
};
template <>
struct ScaleLimits<Lum16s> {
  static constexpr int kLeast = -30, kLargest = 15;
};

template <>
struct ScaleLimits<Lum16sc> {
  static constexpr int kLeast = -32, kLargest = 32;
};
template <>
struct ScaleLimits<Lum32sc> {
  static constexpr int kLeast = -100, kLargest = 100;
};
constexpr int kFarExponent = 100;

template <typename T>
Division divisionOf(int scaleFactor, Division::Mode mode = Division::NearestEven) {
  using Limits = ScaleLimits<T>;
  if (scaleFactor > Limits::kLargest) return {-kFarExponent, mode};
  if (scaleFactor < Limits::kLeast) return {kFarExponent, mode};
  return {-scaleFactor, mode};
}

struct RoundedScale {
  LumRoundMode mode;
  int scaleFactor;
};

LumStatus modeFault(LumRoundMode mode) {
  return mode < lumRoundTowardZero || mode > lumRoundHalfAway ? lumStatusBadRoundMode : lumStatusOk;
}

}  // namespace

template <>
struct Operation<Div> {
  static constexpr bool kStreams = false;
  template <typename T, typename... Step>
  static LumStatus fault(int, LumiSize roi, Step... steps) {
    return check::firstFault(check::size(roi), check::steps(steps...));
  }
  template <typename T>
  static std::optional<Division> scaling(int scaleFactor) {
    if constexpr (std::is_floating_point_v<Component<T>>)
      return Division();
    else
      return divisionOf<T>(scaleFactor);
  }
  template <typename T>
  using Sample = std::conditional_t<kComponents<T> == 1, T, Complex<Component<T>>>;
};

template <>
struct Operation<DivRound> : Operation<Div> {
  template <typename T, typename... Step>
  static LumStatus fault(RoundedScale how, LumiSize roi, Step... steps) {
    return check::firstFault(check::size(roi), check::steps(steps...), modeFault(how.mode));
  }
  template <typename T>
  static std::optional<Division> scaling(RoundedScale how) {
    return divisionOf<T>(how.scaleFactor, static_cast<Division::Mode>(how.mode));
  }
};

namespace {

static_assert(Division::TowardZero == static_cast<int>(lumRoundTowardZero) &&
              Division::NearestEven == static_cast<int>(lumRoundNearestEven) &&
              Division::HalfAway == static_cast<int>(lumRoundHalfAway));

template <typename T, typename Layout>
LumStatus divideRounded(const T* src1, int src1Step, const T* src2, int src2Step, T* dst, int dstStep,
                        LumiSize roi, LumRoundMode mode, int scaleFactor) {
  return combine<DivRound, T, Layout>(src1, src1Step, src2, src2Step, dst, dstStep, roi,
                                      RoundedScale{mode, scaleFactor});
}

// In place.
template <typename T, typename Layout>
LumStatus divideRounded(const T* src, int srcStep, T* srcDst, int srcDstStep, LumiSize roi, LumRoundMode mode,
                        int scaleFactor) {
  return combine<DivRound, T, Layout>(src, srcStep, srcDst, srcDstStep, roi, RoundedScale{mode, scaleFactor});
}

// The constants of a pixel: a copy, so that what was tested is what divides.
template <typename T, typename Layout>
struct Constants {
  T values[Layout::kUsed];

  template <typename Value>
  explicit Constants(const Value& value) {
    std::memcpy(values, samplesOf(value), sizeof values);
  }
};

template <typename T>
bool isZero(T x) {
  if constexpr (std::is_same_v<T, Lum32fc>)
    return x.re * x.re + x.im * x.im == 0;
  else if constexpr (kComponents<T> == 2)
    return x.re == 0 && x.im == 0;
  else
    return x == 0;
}

// What a product with it divides by x.
Lum32f reciprocal(Lum32f x) { return 1 / x; }
Lum32fc reciprocal(Lum32fc x) {
  const Lum32f m = 1 / (x.re * x.re + x.im * x.im);
  return {x.re * m, -(x.im * m)};
}

// Floats are multiplied by the reciprocal: a result may differ from a true quotient in its last bit.
template <typename T, typename Layout>
LumStatus multiplyByReciprocals(Constants<T, Layout> constants, const T* src, int srcStep, T* dst,
                                int dstStep, LumiSize roi) {
  for (T& x : constants.values) x = reciprocal(x);
  runConstant<Mul, T, Layout>(patternOf<T, Layout>(&constants.values[0]), src, srcStep, dst, dstStep, roi,
                              Scaling());
  return lumStatusOk;
}

// 16-bit unsigned members do not look at steps.
template <typename T, typename Layout, typename Value>
LumStatus divideByConstant(const T* src, int srcStep, Value value, T* dst, int dstStep, LumiSize roi,
                           int scaleFactor = 0) {
  constexpr bool anyStep = std::is_same_v<T, Lum16u>;
  if (LumStatus fault = check::firstFault(check::pointers(value, src, dst), check::size(roi),
                                          anyStep ? lumStatusOk : check::steps(srcStep, dstStep)))
    return fault;
  const Constants<T, Layout> constants(value);
  for (T x : constants.values)
    if (isZero(x)) return lumStatusDivisionByZero;
  if constexpr (std::is_floating_point_v<Component<T>>) {
    return multiplyByReciprocals(constants, src, srcStep, dst, dstStep, roi);
  } else {
    if (kComponents<T> == 1 && scaleFactor > ScaleLimits<T>::kLargest)
      return fillZero<T, Layout>(dst, dstStep, roi);
    if constexpr (kHasOutcome<T, Layout>)
      if (value == 1 && scaleFactor == 0)
        return settle<T, Layout>(Outcome::Copied, src, srcStep, dst, dstStep, roi);
    runConstant<Div, T, Layout>(patternOf<T, Layout>(&constants.values[0]), src, srcStep, dst, dstStep, roi,
                                divisionOf<T>(scaleFactor));
    return lumStatusOk;
  }
}

// In place.
template <typename T, typename Layout, typename Value>
LumStatus divideByConstant(Value value, T* srcDst, int srcDstStep, LumiSize roi, int scaleFactor = 0) {
  return divideByConstant<T, Layout>(srcDst, srcDstStep, value, srcDst, srcDstStep, roi, scaleFactor);
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/div.inc"
