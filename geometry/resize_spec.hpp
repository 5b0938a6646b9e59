// SPDX-License-Identifier: MIT
// The plan of a resize: sizes, borders, and for each axis the source index and the weight of every position.
#pragma once

#include "frame/object.hpp"
#include "geometry/positions.hpp"
#include "lumi/types.h"

namespace lumi {

// Pointers of an axis are null where the plan has no such table.
struct ResizeAxis {
  int32_t srcSize, dstSize;
  int32_t reducedSrc, reducedDst;  // divided by their greatest common divisor
  int32_t* index;
  Lum32f* floatWeights;
  Lum16u* fixedWeights;  // of rows c, of columns pairs (16384 - c, c)
  void* reserved;
  int32_t low, high;  // positions that lie before the first source position, and at the last or beyond it

  template <typename W>
  W*& weights() {
    if constexpr (std::is_same_v<W, Lum32f>)
      return floatWeights;
    else
      return fixedWeights;
  }
  template <typename W>
  const W* weights() const {
    return const_cast<ResizeAxis*>(this)->weights<W>();
  }
};

struct ResizePlan {
  static constexpr uint32_t kIdentifier = 0x4b617389;
  static constexpr int kTableBoundary = 1;  // tables follow one another without gaps

  uint32_t identifier;
  LumiInterpolationType interpolation;
  int32_t horizontalRadius, verticalRadius;  // taps on each side of a position
  int32_t antialiasing;
  LumiBorderSize border;
  ResizeAxis vertical, horizontal;

  void setRadius(int32_t radius) { horizontalRadius = verticalRadius = radius; }
  void* tables() { return this + 1; }
};

struct ResizeAxis64f {
  int32_t srcSize, dstSize;
  int32_t reducedSrc, reducedDst;
  int32_t* index;
  Lum64f* doubleWeights;
  int32_t low, high;

  template <typename W>
  W*& weights() {
    return doubleWeights;
  }
  template <typename W>
  const W* weights() const {
    return doubleWeights;
  }
};

struct ResizePlan64f {
  static constexpr uint32_t kIdentifier = 0x4b61738c;
  static constexpr int kTableBoundary = 64;
  static constexpr int kHeaderBytes = 128;

  uint32_t identifier;
  LumiInterpolationType interpolation;
  int32_t radius;
  int32_t antialiasing;
  LumiBorderSize border;
  ResizeAxis64f vertical, horizontal;

  void setRadius(int32_t taps) { radius = taps; }
  void* tables() { return reinterpret_cast<uint8_t*>(this) + kHeaderBytes; }
};

// The sizes reported leave 180 and 128 bytes for what is before the tables, whatever a pointer's size.
static_assert(sizeof(void*) == 8 || sizeof(ResizePlan) == 29 * 4);
static_assert(sizeof(void*) == 8 || sizeof(ResizePlan64f) == 24 * 4);
static_assert(sizeof(ResizePlan) <= 180 && sizeof(ResizePlan64f) <= ResizePlan64f::kHeaderBytes);

template <typename Opaque>
struct PlanOf;
template <>
struct PlanOf<LumiResizeSpec> {
  using Type = ResizePlan;
};
template <>
struct PlanOf<LumiResizeSpec64f> {
  using Type = ResizePlan64f;
};

// The plan behind a caller's argument.
template <typename Opaque>
auto planAt(Opaque* object) {
  return objectAt<typename PlanOf<std::remove_const_t<Opaque>>::Type>(object);
}

// The source position where destination position x starts: floor(x * s) with the ratio s in double precision.
template <typename Axis>
int32_t sourceStart(const Axis& axis, int32_t x) {
  return withPositions(axis.reducedSrc, axis.reducedDst, [=](const auto& positions) {
    return static_cast<int32_t>(positions.product(x));  // not negative: truncated is floor
  });
}

// A destination rectangle without what is beyond the destination; its offset lies inside.
template <typename Plan>
LumiSize clipped(const Plan& plan, LumiPoint offset, LumiSize size) {
  const auto limited = [](int32_t n, int32_t room) { return n < room ? n : room; };
  return {limited(size.width, plan.horizontal.dstSize - offset.x),
          limited(size.height, plan.vertical.dstSize - offset.y)};
}

template <typename Plan>
LumStatus aboveWhole(const Plan& plan, LumiSize size) {
  return size.width > plan.horizontal.dstSize || size.height > plan.vertical.dstSize ? lumStatusSizeAboveSpec
                                                                                     : lumStatusOk;
}

template <typename Plan>
LumStatus identity(const Plan& plan) {
  return plan.identifier == Plan::kIdentifier ? lumStatusOk : lumStatusBadContext;
}

template <typename Plan>
LumStatus offsetInside(const Plan& plan, LumiPoint offset) {
  const bool inside = offset.x >= 0 && offset.y >= 0 && offset.x < plan.horizontal.dstSize &&
                      offset.y < plan.vertical.dstSize;
  return inside ? lumStatusOk : lumStatusOutOfRange;
}

inline LumStatus notZero(LumiSize size) {
  return size.width == 0 || size.height == 0 ? lumStatusNothingToDo : lumStatusOk;
}

// Scratch that a run over a tile is given, as the query tells.
int64_t scratchBytes(const ResizePlan& plan, LumiSize tile, int64_t channels);
int64_t scratchBytes(const ResizePlan64f& plan, LumiSize tile, int64_t channels);

// The operations on plans; Opaque is LumiResizeSpec or LumiResizeSpec64f.
template <typename Opaque>
LumStatus planSize(LumiSize srcSize, LumiSize dstSize, LumiInterpolationType interpolation,
                   Lum32u antialiasing, Lum32s* objectSize, Lum32s* initSize);
template <typename Opaque>
LumStatus initNearest(LumiSize srcSize, LumiSize dstSize, Opaque* object);
template <typename Sample, typename Opaque>
LumStatus initLinear(LumiSize srcSize, LumiSize dstSize, Opaque* object);
template <typename Opaque>
LumStatus bufferSizeOf(const Opaque* object, LumiSize dstSize, Lum32u channels, Lum32s* bufferSize);
template <typename Opaque>
LumStatus borderSizeOf(const Opaque* object, LumiBorderSize* borderSize);
template <typename Opaque>
LumStatus sourceOffset(const Opaque* object, LumiPoint dstOffset, LumiPoint* srcOffset);
template <typename Opaque>
LumStatus sourceRoi(const Opaque* object, LumiPoint dstOffset, LumiSize dstSize, LumiPoint* srcOffset,
                    LumiSize* srcSize);

}  // namespace lumi
