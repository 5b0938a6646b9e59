// SPDX-License-Identifier: MIT
#include "filters/filter_bilateral_object.hpp"

#include <algorithm>
#include <cstring>

#include "frame/check.hpp"
#include "kernels/filters/exponential.hpp"

namespace lumi {
namespace {

using namespace check;

constexpr Lum32u kBorderMagic = 0x4B61738D, kGridMagic = 0x434D416C;
constexpr int kGaussian = 100, kOtherGaussian = 101, kSumOfChannels = 2;
constexpr float kLeastWeight = 1e-10F;

// exp(-squared / (2 * variance)); no variance leaves nothing but what does not differ.
double gaussian(double squared, double variance) {
  if (squared == 0) return 1;
  const double exponent = -squared / (2 * variance);
  return exponent > 0 ? 1 / exponentialOfNegative(-exponent) : exponentialOfNegative(exponent);
}

void storeFloat(Lum8u* table, int i, float x) {
  std::memcpy(table + sizeof x * static_cast<size_t>(i), &x, sizeof x);
}

// From the first entry on that is too small, all are 0.
template <typename Weight>
void storeValues(Lum8u* table, int count, const Weight& weight) {
  int i = 0;
  for (; i < count; ++i) {
    const float x = weight(i);
    if (x < kLeastWeight) break;
    storeFloat(table, i, x);
  }
  for (; i < count; ++i) storeFloat(table, i, 0);
}

// Products with the weight of the four neighbours.
void scaleValues(Lum8u* table, int count, float factor) {
  storeValues(table, count, [=](int i) {
    float x;
    std::memcpy(&x, table + sizeof x * static_cast<size_t>(i), sizeof x);
    return x * factor;
  });
}

void storePositions(Lum8u* table, int radius, double variance) {
  const auto weight = [=](int64_t squared) {
    return static_cast<float>(gaussian(static_cast<double>(squared), variance));
  };
  if (radius == 1) return storeFloat(table, 0, weight(1));
  if (radius == 2) {
    for (int i = 0; i < 3; ++i) storeFloat(table, i, weight(4 >> i));
    return;
  }
  int i = 0;
  for (int dy = -radius; dy <= radius; ++dy)
    for (int dx = -radius; dx <= radius; ++dx) {
      const int64_t squared = int64_t{dx} * dx + int64_t{dy} * dy;
      if (squared <= int64_t{radius} * radius) storeFloat(table, i++, weight(squared));
    }
}

LumStatus typeAndMethod(int filterType, int distanceMethod) {
  return filterType == kGaussian && distanceMethod == kSumOfChannels ? lumStatusOk : lumStatusUnsupportedMode;
}
LumStatus dataType(LumiDataType type) {
  return type == lumiData8u || type == lumiData32f ? lumStatusOk : lumStatusBadDataType;
}
LumStatus channelCount(int channels) {
  return channels == 1 || channels == 3 ? lumStatusOk : lumStatusBadChannelCount;
}
constexpr LumStatus atLeastOne(int n) { return n < 1 ? lumStatusBadMaskSize : lumStatusOk; }

// Sizes are modulo 2^32.
uint64_t objectBytes(LumiDataType type, int channels, int radius) {
  const auto entries = static_cast<uint64_t>(bilateralPositions(radius)) +
                       static_cast<uint64_t>(bilateralValues(type, channels));
  return 4 * entries + (type == lumiData8u ? 40 : 44);
}

// Strips at the edges have border images of their own; small images are in one as a whole.
uint64_t bufferBytes(LumiSize roi, int reach, LumiDataType type, int count) {
  const auto padded = [](uint64_t bytes) { return (bytes + 31) & ~uint64_t{31}; };
  const auto w = static_cast<uint64_t>(roi.width), h = static_cast<uint64_t>(roi.height);
  const auto radius = static_cast<uint64_t>(reach), channels = static_cast<uint64_t>(count);
  const uint64_t side = 2 * radius + 1, sample = type == lumiData8u ? 1 : 4;
  const uint64_t ofRow = type == lumiData32f && radius < 3 ? (w * 8 + 70) & ~uint64_t{63} : 0;
  if (side > w || side > h) return ofRow + padded(channels * sample * (w + side - 1) * (side + h - 1));
  const auto strip = [&](uint64_t length) { return ((radius * channels * length * sample + 31) >> 5) * 64; };
  return ofRow + padded(radius * 3 * channels * (std::max(w, h) + 2 * radius) * sample) + strip(w) + strip(h);
}

}  // namespace

int bilateralValues(LumiDataType type, int channels) { return type == lumiData8u ? 256 * channels : 0; }

// Modulo 2^32: a radius whose table is larger has no memory.
int bilateralPositions(int radius) {
  if (radius < 3) return radius == 1 ? 1 : 3;
  const int64_t r = radius;
  int64_t count = 2 * r + 1, half = r;
  for (int64_t dy = 1; dy <= r; ++dy) {
    while (half * half + dy * dy > r * r) --half;
    count += 2 * (2 * half + 1);
  }
  return static_cast<int>(count);
}

const Lum8u* bilateralMemory(const LumiFilterBilateralBorderSpec* spec) {
  const auto* const memory = reinterpret_cast<const Lum8u*>(spec);
  return *memory >= 1 && *memory <= 8 ? memory + *memory : nullptr;
}

BilateralObject bilateralObjectAt(const LumiFilterBilateralBorderSpec* spec) {
  BilateralObject object{};
  if (const Lum8u* const memory = bilateralMemory(spec)) std::memcpy(&object, memory, sizeof object);
  return object;
}

LumStatus bilateralIdentity(const LumiFilterBilateralBorderSpec* spec, LumiDataType type, int channels) {
  const BilateralObject object = bilateralObjectAt(spec);
  const bool isRight = object.magic == kBorderMagic && object.filterType == kGaussian &&
                       object.distanceMethod == kSumOfChannels && object.dataType == type &&
                       object.channels == channels;
  return isRight ? lumStatusOk : lumStatusBadContext;
}

LumStatus bilateralBorderSizes(int filterType, LumiSize roi, int radius, LumiDataType type, int channels,
                               int distanceMethod, int* specSize, int* bufferSize) {
  if (LumStatus fault =
          firstFault(pointers(specSize, bufferSize), size(roi), atLeastOne(radius),
                     typeAndMethod(filterType, distanceMethod), dataType(type), channelCount(channels)))
    return fault;
  *specSize = static_cast<int>(objectBytes(type, channels, radius));
  *bufferSize = static_cast<int>(bufferBytes(roi, radius, type, channels));
  return lumStatusOk;
}

LumStatus initBilateralBorder(int filterType, LumiSize roi, int radius, LumiDataType type, int channels,
                              int distanceMethod, Lum32f valueVariance, Lum32f positionVariance,
                              LumiFilterBilateralBorderSpec* spec) {
  if (LumStatus fault =
          firstFault(pointers(spec), size(roi), atLeastOne(radius), typeAndMethod(filterType, distanceMethod),
                     dataType(type), channelCount(channels)))
    return fault;
  auto* const memory = reinterpret_cast<Lum8u*>(spec);
  const auto distance = static_cast<Lum8u>(8 - (reinterpret_cast<uintptr_t>(memory) & 7));
  *memory = distance;
  const BilateralObject object{kBorderMagic, kGaussian, kSumOfChannels, type,
                               channels,     radius,    valueVariance,  positionVariance};
  std::memcpy(memory + distance, &object, sizeof object);
  Lum8u* const values = memory + distance + kBilateralHeader;
  const int count = bilateralValues(type, channels);
  storeValues(values, count, [=](int i) {
    return static_cast<float>(gaussian(static_cast<double>(i) * i, static_cast<double>(valueVariance)));
  });
  Lum8u* const positions = values + sizeof(float) * static_cast<size_t>(count);
  storePositions(positions, radius, static_cast<double>(positionVariance));
  if (radius == 1 && count > 0) {
    float weight;
    std::memcpy(&weight, positions, sizeof weight);
    scaleValues(values, count, weight);
  }
  return lumStatusOk;
}

namespace {

LumStatus gridType(int filterType) {
  return filterType == kGaussian || filterType == kOtherGaussian ? lumStatusOk : lumStatusUnsupportedMode;
}
constexpr LumStatus maskSides(LumiSize mask) {
  return mask.width < 1 || mask.height < 1 ? lumStatusBadMaskSize : lumStatusOk;
}
// The farthest point of the grid in either direction, and the one in the middle.
int positionsOf(LumiSize mask, int step) {
  const auto farthest = [=](int side) { return (side - 1) / 2 / step * step; };
  return std::max(farthest(mask.width), farthest(mask.height)) + 1;
}
LumStatus reach(LumiSize mask, int step) {
  return positionsOf(mask, step) > kMostPositions ? lumStatusBadMaskSize : lumStatusOk;
}

// Beyond this difference a weight counts as 0.
int valuesOf(LumiSize mask, double sigma) {
  const double points = static_cast<double>(mask.width) * mask.height;
  const double square = sigma * 1.42 * (naturalLogarithm(points) + 6.3);
  int last = 0;
  while (last < kByteValues && static_cast<double>(last + 1) * (last + 1) <= square) ++last;
  return std::min(last + 1, kByteValues);
}

}  // namespace

LumStatus gridBilateralIdentity(const LumiFilterBilateralSpec* spec) {
  Lum32u magic;
  std::memcpy(&magic, static_cast<const void*>(spec), sizeof magic);
  return magic == kGridMagic || magic == kGridMagic + 1 ? lumStatusOk : lumStatusBadContext;
}

LumStatus gridBilateralSize(int filterType, LumiSize roi, LumiSize mask, int* bytes) {
  if (LumStatus fault = firstFault(pointers(bytes), size(roi), maskSides(mask), gridType(filterType)))
    return fault;
  *bytes = kGridBilateralHeader + 4 * (kByteValues + std::min(positionsOf(mask, 1), kMostPositions));
  return lumStatusOk;
}

LumStatus initGridBilateral(int filterType, LumiSize mask, Lum32f valueSigma, Lum32f positionSigma, int step,
                            LumiFilterBilateralSpec* spec) {
  const bool isTaken = valueSigma > 0 && positionSigma > 0 && step > 0;
  if (LumStatus fault =
          firstFault(pointers(spec), maskSides(mask), isTaken ? lumStatusOk : lumStatusBadArgument,
                     gridType(filterType), [=] { return reach(mask, step); }))
    return fault;
  auto* const memory = reinterpret_cast<Lum8u*>(spec);
  const GridBilateralObject object{kGridMagic + (filterType == kGaussian ? 0 : 1), positionsOf(mask, step),
                                   step, 0};
  static_assert(sizeof object == kGridBilateralHeader);
  std::memcpy(memory, &object, sizeof object);
  const auto weight = [](int i, Lum32f sigma) {
    return static_cast<float>(gaussian(static_cast<double>(i) * i, static_cast<double>(sigma)));
  };
  Lum8u* const values = memory + kGridBilateralHeader;
  const int count = valuesOf(mask, static_cast<double>(valueSigma));
  for (int i = 0; i < kByteValues; ++i) storeFloat(values, i, i < count ? weight(i, valueSigma) : 0);
  Lum8u* const positions = values + sizeof(float) * kByteValues;
  for (int i = 0; i < object.positions; ++i) storeFloat(positions, i, weight(i, positionSigma));
  return lumStatusOk;
}

}  // namespace lumi
