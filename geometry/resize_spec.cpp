// SPDX-License-Identifier: MIT
// Plans of a resize: how large they are, how they are made, and what they tell.
#include "geometry/resize_spec.hpp"

#include <cmath>

#include "frame/check.hpp"
#include "kernels/geometry/resize_linear.hpp"

namespace lumi {
namespace {

using namespace check;

constexpr int kGranularity = 32;   // sizes of tables are counted in multiples of it
constexpr int64_t kInitSize = 64;  // scratch of an Init that takes no tables there
constexpr int64_t kHeaderRoom = 180 + kObjectAlignment;

struct PlanBytes {
  int64_t object, init;
};

int64_t al32(int64_t n) { return roundedUp(n, kGranularity); }

LumStatus notZero(LumiSize src, LumiSize dst) { return firstFault(lumi::notZero(src), lumi::notZero(dst)); }

LumStatus atLeast(LumiSize size, int32_t least) {
  return size.width < least || size.height < least ? lumStatusBadSize : lumStatusOk;
}

LumStatus known(LumiInterpolationType interpolation) {
  switch (interpolation) {
    case lumInterpNone:
    case lumInterpNearest:
    case lumInterpLinear:
    case lumInterpCubic:
    case lumInterpSuper:
    case lumInterpLanczos:
      return lumStatusOk;
    default:
      return lumStatusBadInterpolation;
  }
}

LumStatus antialiased(LumiInterpolationType interpolation, Lum32u antialiasing) {
  const bool offered = interpolation != lumInterpNearest && interpolation != lumInterpSuper;
  return antialiasing == 0 || offered ? lumStatusOk : lumStatusUnsupportedMode;
}

// Averages cover whole pixels: only sizes that do not grow.
LumStatus reduces(LumiSize src, LumiSize dst) {
  return src.width < dst.width || src.height < dst.height ? lumStatusBadSize : lumStatusOk;
}

LumStatus sourceSuffices(LumiInterpolationType interpolation, LumiSize src, LumiSize dst) {
  switch (interpolation) {
    case lumInterpNearest:
      return lumStatusOk;
    case lumInterpLinear:
      return atLeast(src, 2);
    case lumInterpSuper:
      return reduces(src, dst);
    case lumInterpCubic:
    case lumInterpLanczos:
      return atLeast(src, 4);
    default:
      return lumStatusUnsupportedMode;
  }
}

LumStatus offers(const ResizePlan*, LumiInterpolationType interpolation, LumiSize src, LumiSize dst) {
  return sourceSuffices(interpolation, src, dst);
}

LumStatus offers(const ResizePlan64f*, LumiInterpolationType interpolation, LumiSize src, LumiSize dst) {
  if (interpolation == lumInterpLinear) return atLeast(src, 2);
  return firstFault(interpolation == lumInterpSuper ? reduces(src, dst) : lumStatusOk,
                    static_cast<LumStatus>(lumStatusUnsupportedMode));
}

// By remainders: the standard library's counts trailing zeros, in an encoding above the level.
int32_t commonDivisor(int32_t a, int32_t b) {
  while (b != 0) {
    const int32_t rest = a % b;
    a = b;
    b = rest;
  }
  return a;
}

// Table entries of an averaging axis: a group for each position of a period.
int64_t superEntries(int32_t srcSize, int32_t dstSize) {
  const int32_t divisor = commonDivisor(srcSize, dstSize);
  const int64_t src = srcSize / divisor, dst = dstSize / divisor, rest = src % dst;
  return dst * (src / dst + (rest < 2 ? rest : 2));
}

// Taps of an antialiasing axis, for `base` of them where the axis does not shrink.
int64_t antialiasingTaps(int32_t src, int32_t dst, int32_t base) {
  if (src <= dst) return base;
  return withPositions(src, dst, [=](const auto& positions) {
    return 2 * static_cast<int64_t>(std::ceil(positions.product(base)));
  });
}

PlanBytes antialiasingBytes(LumiInterpolationType interpolation, LumiSize src, LumiSize dst, int64_t padded) {
  const int32_t base = interpolation == lumInterpLinear ? 2 : interpolation == lumInterpCubic ? 4 : 6;
  int64_t object = 4 * padded + al32(int64_t{4} * dst.width * antialiasingTaps(src.width, dst.width, base)) +
                   al32(int64_t{4} * dst.height * antialiasingTaps(src.height, dst.height, base)) +
                   kHeaderRoom;
  if (interpolation == lumInterpLinear && src.width <= dst.width) object += al32(int64_t{4} * dst.width);
  return {object, 8 * padded + kInitSize};
}

// Bytes of the weights of one axis, with room for a start on any boundary.
int64_t tapBytes(int64_t positions, int taps, int spare) { return 4 * al32(taps * positions + spare); }

PlanBytes planBytes(const ResizePlan*, LumiInterpolationType interpolation, bool antialiasing, LumiSize src,
                    LumiSize dst) {
  const int64_t padded = al32(dst.width) + al32(dst.height);
  if (antialiasing) return antialiasingBytes(interpolation, src, dst, padded);
  const auto taps = [&](int count, int spare) -> PlanBytes {
    return {4 * padded + tapBytes(dst.width, count, spare) + tapBytes(dst.height, count, spare) + kHeaderRoom,
            4 * padded + kInitSize};
  };
  switch (interpolation) {
    case lumInterpNearest:
      return {4 * padded + kHeaderRoom, kInitSize};
    case lumInterpLinear:
      return {8 * padded + kHeaderRoom, kInitSize};
    case lumInterpCubic:
      return taps(4, 96);
    case lumInterpLanczos:
      return taps(6, 160);
    default: {
      const int64_t a = superEntries(src.width, dst.width), b = superEntries(src.height, dst.height);
      return {4 * (a + b + al32(a) + al32(b)) + kHeaderRoom, kInitSize};
    }
  }
}

PlanBytes planBytes(const ResizePlan64f*, LumiInterpolationType, bool, LumiSize, LumiSize dst) {
  const int64_t padded = al32(dst.width) + al32(dst.height);
  return {12 * padded + ResizePlan64f::kHeaderBytes + kObjectAlignment, kInitSize};
}

bool fitsInt(int64_t n) { return n <= INT32_MAX; }

template <typename Axis>
void setSizes(Axis& axis, int32_t src, int32_t dst) {
  const int32_t divisor = commonDivisor(src, dst);
  axis = {};
  axis.srcSize = src;
  axis.dstSize = dst;
  axis.reducedSrc = src / divisor;
  axis.reducedDst = dst / divisor;
}

template <typename Plan>
void begin(Plan& plan, LumiSize src, LumiSize dst, LumiInterpolationType interpolation) {
  const int radius = interpolation == lumInterpLinear ? 1 : 0;
  const auto border = static_cast<Lum32u>(radius);
  plan.identifier = Plan::kIdentifier;
  plan.interpolation = interpolation;
  plan.setRadius(radius);
  plan.antialiasing = 0;
  plan.border = {border, border, border, border};
  setSizes(plan.vertical, src.height, dst.height);
  setSizes(plan.horizontal, src.width, dst.width);
}

// Weights as a run wants them, made of a fraction.
template <bool isHorizontal, typename P>
void putWeight(const P&, Lum16u* table, int32_t i, double fraction) {
  const uint16_t c = P::asQ14(fraction);
  if constexpr (isHorizontal) {
    table[2 * i] = static_cast<Lum16u>(kQ14 - c);
    table[2 * i + 1] = c;
  } else {
    table[i] = c;
  }
}
template <bool isHorizontal, typename P>
void putWeight(const P&, Lum32f* table, int32_t i, double fraction) {
  table[i] = P::asFloat(fraction);
}
template <bool isHorizontal, typename P>
void putWeight(const P&, Lum64f* table, int32_t i, double fraction) {
  table[i] = fraction;
}

template <bool isHorizontal, typename W, typename Axis>
void fillLinear(Axis& axis) {
  withPositions(axis.reducedSrc, axis.reducedDst, [&](const auto& positions) {
    W* const weights = axis.template weights<W>();
    for (int32_t i = 0; i < axis.dstSize; ++i) {
      const Between position = positions.between(i);
      axis.index[i] = static_cast<int32_t>(position.index);
      putWeight<isHorizontal>(positions, weights, i, position.fraction);
      if (position.index < 0) ++axis.low;
      if (position.index >= axis.srcSize - 1) ++axis.high;
    }
  });
}

void fillNearest(ResizeAxis& axis) {
  withPositions(axis.reducedSrc, axis.reducedDst, [&](const auto& positions) {
    for (int32_t i = 0; i < axis.dstSize; ++i) axis.index[i] = positions.nearest(i);
  });
}

}  // namespace

int64_t scratchBytes(const ResizePlan& plan, LumiSize tile, int64_t channels) {
  return al32(int64_t{4} * tile.width) + al32(int64_t{4} * tile.height) +
         2 * plan.verticalRadius * al32(4 * channels * tile.width) + 64;
}

int64_t scratchBytes(const ResizePlan64f&, LumiSize tile, int64_t channels) {
  return 4 * (al32(tile.width) + al32(tile.height)) + 8 * channels * al32(int64_t{2} * tile.width + 32) + 64;
}

template <typename Opaque>
LumStatus planSize(LumiSize srcSize, LumiSize dstSize, LumiInterpolationType interpolation,
                   Lum32u antialiasing, Lum32s* objectSize, Lum32s* initSize) {
  using Plan = typename PlanOf<Opaque>::Type;
  constexpr const Plan* kind = nullptr;
  if (LumStatus fault =
          firstFault(pointers(objectSize, initSize), notZero(srcSize, dstSize), atLeast(srcSize, 1),
                     atLeast(dstSize, 1), known(interpolation), antialiased(interpolation, antialiasing),
                     offers(kind, interpolation, srcSize, dstSize)))
    return fault;
  const PlanBytes bytes = planBytes(kind, interpolation, antialiasing != 0, srcSize, dstSize);
  if (!fitsInt(bytes.object) || !fitsInt(bytes.init)) return lumStatusBadSize;
  *objectSize = static_cast<Lum32s>(bytes.object);
  *initSize = static_cast<Lum32s>(bytes.init);
  return lumStatusOk;
}

template <typename Opaque>
LumStatus initNearest(LumiSize srcSize, LumiSize dstSize, Opaque* object) {
  if (LumStatus fault =
          firstFault(pointers(object), notZero(srcSize, dstSize), atLeast(srcSize, 1), atLeast(dstSize, 1)))
    return fault;
  auto& plan = *planAt(object);
  begin(plan, srcSize, dstSize, lumInterpNearest);
  Tables tables(plan.tables());
  plan.vertical.index = tables.take<int32_t>(dstSize.height);
  plan.horizontal.index = tables.take<int32_t>(dstSize.width);
  fillNearest(plan.vertical);
  fillNearest(plan.horizontal);
  return lumStatusOk;
}

template <typename Sample, typename Opaque>
LumStatus initLinear(LumiSize srcSize, LumiSize dstSize, Opaque* object) {
  using W = BlendWeight<Sample>;
  constexpr int kColumnWeights = sizeof(W) == 2 ? 2 : 1;
  if (LumStatus fault = firstFault(pointers(object), notZero(srcSize, dstSize), atLeast(srcSize, 1),
                                   atLeast(dstSize, 1), atLeast(srcSize, 2)))
    return fault;
  auto& plan = *planAt(object);
  begin(plan, srcSize, dstSize, lumInterpLinear);
  const uintptr_t boundary = std::remove_reference_t<decltype(plan)>::kTableBoundary;
  Tables tables(plan.tables());
  plan.vertical.index = tables.take<int32_t>(dstSize.height, boundary);
  plan.horizontal.index = tables.take<int32_t>(dstSize.width, boundary);
  plan.vertical.template weights<W>() = tables.take<W>(dstSize.height, boundary);
  plan.horizontal.template weights<W>() = tables.take<W>(int64_t{kColumnWeights} * dstSize.width, boundary);
  fillLinear<false, W>(plan.vertical);
  fillLinear<true, W>(plan.horizontal);
  return lumStatusOk;
}

// Checks that look into the plan, when their turn comes.
template <typename Opaque>
auto isPlan(const Opaque* object) {
  return [=] { return identity(*planAt(object)); };
}
template <typename Opaque>
auto isInside(const Opaque* object, LumiPoint dstOffset) {
  return [=] { return offsetInside(*planAt(object), dstOffset); };
}

template <typename Opaque>
LumStatus bufferSizeOf(const Opaque* object, LumiSize dstSize, Lum32u channels, Lum32s* bufferSize) {
  const bool taken = channels == 1 || channels == 3 || channels == 4;
  const LumStatus badChannels = taken ? lumStatusOk : lumStatusBadChannelCount;
  if (LumStatus fault = firstFault(pointers(object, bufferSize), lumi::notZero(dstSize), isPlan(object),
                                   badChannels, size(dstSize)))
    return fault;
  const auto& plan = *planAt(object);
  const int64_t bytes = scratchBytes(plan, clipped(plan, {0, 0}, dstSize), channels);
  if (!fitsInt(bytes)) return lumStatusBadSize;
  *bufferSize = static_cast<Lum32s>(bytes);
  return aboveWhole(plan, dstSize);
}

template <typename Opaque>
LumStatus borderSizeOf(const Opaque* object, LumiBorderSize* borderSize) {
  if (LumStatus fault = firstFault(pointers(object, borderSize), isPlan(object))) return fault;
  *borderSize = planAt(object)->border;
  return lumStatusOk;
}

template <typename Opaque>
LumStatus sourceOffset(const Opaque* object, LumiPoint dstOffset, LumiPoint* srcOffset) {
  if (LumStatus fault = firstFault(pointers(object, srcOffset), isPlan(object), isInside(object, dstOffset)))
    return fault;
  const auto& plan = *planAt(object);
  *srcOffset = {sourceStart(plan.horizontal, dstOffset.x), sourceStart(plan.vertical, dstOffset.y)};
  return lumStatusOk;
}

template <typename Opaque>
LumStatus sourceRoi(const Opaque* object, LumiPoint dstOffset, LumiSize dstSize, LumiPoint* srcOffset,
                    LumiSize* srcSize) {
  if (LumStatus fault = firstFault(pointers(object, srcOffset, srcSize), size(dstSize), isPlan(object),
                                   isInside(object, dstOffset)))
    return fault;
  const auto& plan = *planAt(object);
  const LumiSize tile = clipped(plan, dstOffset, dstSize);
  const LumiPoint start{sourceStart(plan.horizontal, dstOffset.x), sourceStart(plan.vertical, dstOffset.y)};
  *srcOffset = start;
  *srcSize = {plan.horizontal.index[dstOffset.x + tile.width - 1] - start.x + 1,
              plan.vertical.index[dstOffset.y + tile.height - 1] - start.y + 1};
  return aboveWhole(plan, dstSize);
}

template LumStatus planSize<LumiResizeSpec>(LumiSize, LumiSize, LumiInterpolationType, Lum32u, Lum32s*,
                                            Lum32s*);
template LumStatus planSize<LumiResizeSpec64f>(LumiSize, LumiSize, LumiInterpolationType, Lum32u, Lum32s*,
                                               Lum32s*);
template LumStatus initNearest(LumiSize, LumiSize, LumiResizeSpec*);
template LumStatus initLinear<Lum8u>(LumiSize, LumiSize, LumiResizeSpec*);
template LumStatus initLinear<Lum32f>(LumiSize, LumiSize, LumiResizeSpec*);
template LumStatus initLinear<Lum64f>(LumiSize, LumiSize, LumiResizeSpec64f*);
template LumStatus bufferSizeOf(const LumiResizeSpec*, LumiSize, Lum32u, Lum32s*);
template LumStatus bufferSizeOf(const LumiResizeSpec64f*, LumiSize, Lum32u, Lum32s*);
template LumStatus borderSizeOf(const LumiResizeSpec*, LumiBorderSize*);
template LumStatus borderSizeOf(const LumiResizeSpec64f*, LumiBorderSize*);
template LumStatus sourceOffset(const LumiResizeSpec*, LumiPoint, LumiPoint*);
template LumStatus sourceOffset(const LumiResizeSpec64f*, LumiPoint, LumiPoint*);
template LumStatus sourceRoi(const LumiResizeSpec*, LumiPoint, LumiSize, LumiPoint*, LumiSize*);
template LumStatus sourceRoi(const LumiResizeSpec64f*, LumiPoint, LumiSize, LumiPoint*, LumiSize*);

}  // namespace lumi
