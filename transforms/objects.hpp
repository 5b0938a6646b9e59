// SPDX-License-Identifier: MIT
// What objects of all transforms of images have in common.
#pragma once

#include <algorithm>
#include <climits>
#include <cstdint>
#include <type_traits>

#include "frame/check.hpp"
#include "frame/object.hpp"
#include "frame/scratch.hpp"
#include "lumi/types.h"

namespace lumi {

// Where a transform of one axis multiplies: forward by 1 / n, inverse by 1 / n, both by 1 / sqrt(n), or
// nowhere.
enum TransformFlag : Lum32s { kScaleForward = 1, kScaleInverse = 2, kScaleBoth = 4, kScaleNowhere = 8 };

constexpr bool isTransformFlag(Lum32s flag) {
  return flag == kScaleForward || flag == kScaleInverse || flag == kScaleBoth || flag == kScaleNowhere;
}

// What each transform of n points multiplies its results by.
float scaleOf(Lum32s flag, bool inverse, int64_t n);

// Bytes of an object, of the scratch of its Init, and of the scratch of a run. That of a run is without what
// its alignment takes.
struct TransformBytes {
  int64_t object, init, work;
};

constexpr int64_t aligned(int64_t bytes) { return roundedUp(bytes, kObjectAlignment); }
constexpr int64_t withRoom(int64_t bytes) { return bytes > 0 ? bytes + kObjectAlignment : 0; }
// No memory is as large as what 31 bits do not tell; runs then have none.
inline Lum32s told(int64_t bytes) { return static_cast<Lum32s>(std::min<int64_t>(bytes, INT_MAX)); }

inline LumStatus isTold(int64_t bytes) { return bytes < INT_MAX ? lumStatusOk : lumStatusNoMemory; }

// Of a real transform of an even length, which is complex and half as long.
constexpr int64_t complexLength(int64_t length) { return length % 2 == 0 ? length / 2 : length; }

// exp(-2 pi i k / n) for k < count, real parts and imaginary ones apart.
struct RootTable {
  const float *re, *im;
};
RootTable makeRoots(int64_t count, int64_t n, Tables& memory);

// Width and height are orders where lengths are powers of two.
struct SpectrumObject {
  Lum32s identifier, width, height, hint, workBytes, reserved;
};
template <typename Axis>
struct SpectrumObjectOf : SpectrumObject {
  const Axis *row, *column;
};
// Of integers; it lies at its own address. The object of the real transform in it is the opaque one.
template <typename Real>
struct IntegersObject : SpectrumObject {
  Real* real;
};

constexpr Lum32s identifierOf(const LumiFFTSpec_C_32fc*) { return 25; }
constexpr Lum32s identifierOf(const LumiFFTSpec_R_32f*) { return 26; }
constexpr Lum32s identifierOf(const LumiDFTSpec_C_32fc*) { return 27; }
constexpr Lum32s identifierOf(const LumiDFTSpec_R_32f*) { return 28; }
constexpr Lum32s identifierOf(const LumiFFTSpec_R_32s*) { return 29; }
constexpr Lum32s identifierOf(const LumiDFTSpec_R_32s*) { return 30; }
constexpr Lum32s identifierOf(const LumiDCTFwdSpec_32f*) { return 31; }
constexpr Lum32s identifierOf(const LumiDCTInvSpec_32f*) { return 32; }

// The real transform's object in one of integers.
template <typename Spec>
struct RealOf {
  using Type = void;
};
template <>
struct RealOf<LumiFFTSpec_R_32s> {
  using Type = LumiFFTSpec_R_32f;
};
template <>
struct RealOf<LumiDFTSpec_R_32s> {
  using Type = LumiDFTSpec_R_32f;
};
template <typename Spec>
using RealOfIntegers = typename RealOf<std::remove_const_t<Spec>>::Type;

// The words of an object; null where there is none.
template <typename Spec>
auto wordsOf(Spec* object) {
  using Plain = std::remove_const_t<Spec>;
  using Words = std::conditional_t<std::is_const_v<Spec>, const SpectrumObject, SpectrumObject>;
  if constexpr (std::is_void_v<RealOfIntegers<Plain>>)
    return object ? objectAt<SpectrumObject>(object) : static_cast<Words*>(nullptr);
  else
    return reinterpret_cast<Words*>(object);
}
template <typename Spec>
LumStatus identity(const Spec* object) {
  return wordsOf(object)->identifier == identifierOf(object) ? lumStatusOk : lumStatusBadContext;
}

// A run of integers converts the image to floats in its scratch, in up to four planes, and transforms them
// there.
template <typename Real>
LumStatus makeIntegersObject(void* made, Lum32s identifier, const SpectrumObject& words, int64_t planes,
                             Real* real) {
  auto* const object = static_cast<IntegersObject<Real>*>(made);
  static_cast<SpectrumObject&>(*object) = words;
  object->identifier = identifier;
  object->workBytes = told(planes + withRoom(wordsOf(real)->workBytes) + 64);
  object->real = real;
  return lumStatusOk;
}

// What the interface does with objects of any kind.
template <typename Spec>
LumStatus freeTransform(Spec* object) {
  using Real = RealOfIntegers<Spec>;
  if constexpr (std::is_void_v<Real>) {
    return freeObject<SpectrumObject>(object, identifierOf(object));
  } else {
    if (!object) return lumStatusNullPointer;
    if (LumStatus fault = identity(object)) return fault;
    wordsOf(object)->identifier = 0;
    freeTransform(reinterpret_cast<IntegersObject<Real>*>(object)->real);
    release(object);
    return lumStatusOk;
  }
}
template <typename Spec>
LumStatus getTransformBufferSize(const Spec* object, Lum32s* bufferSize) {
  if (LumStatus fault =
          check::firstFault(check::pointers(object, bufferSize), [=] { return identity(object); }))
    return fault;
  const int64_t bytes = wordsOf(object)->workBytes;
  *bufferSize = told(std::is_void_v<RealOfIntegers<Spec>> ? withRoom(bytes) : bytes);
  return lumStatusOk;
}

}  // namespace lumi
