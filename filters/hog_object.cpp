// SPDX-License-Identifier: MIT
#include "filters/hog_object.hpp"

#include <cstring>

#include "frame/check.hpp"
#include "kernels/filters/exponential.hpp"

namespace lumi {
namespace {

using namespace check;

constexpr int kLeast = 2, kMost = 16;  // of a cell's side, and of bins
constexpr int kMostSide = 2 * kMost;   // of a block

bool isTaken(int n) { return n >= kLeast && n <= kMost; }

LumStatus configuration(const LumiHOGConfig& c) {
  const bool fits = isTaken(c.cellSize) && isTaken(c.binCount) && c.blockSize == 2 * c.cellSize &&
                    c.blockStride > 0 && c.blockStride % c.cellSize == 0 && c.sigma > 0 && c.clipping > 0;
  if (!fits) return lumStatusUnsupportedMode;
  const auto isOnGrid = [&](int side) {
    return side >= c.blockSize && (side - c.blockSize) % c.blockStride == 0;
  };
  return isOnGrid(c.windowWidth) && isOnGrid(c.windowHeight) ? lumStatusOk : lumStatusBadSize;
}

int blocksAlong(int window, const LumiHOGConfig& c) { return (window - c.blockSize) / c.blockStride + 1; }

// Modulo 2^32: what does not fit is no memory of anybody's.
int product(int a, int b) { return static_cast<int>(static_cast<Lum32u>(a) * static_cast<Lum32u>(b)); }

// What the place along one side brings into the weight of the near cell, for all places of a block.
struct WeightsAlong {
  double at[kMostSide];

  explicit WeightsAlong(const LumiHOGConfig& c) {
    const double perVariance = 1 / (2 * (static_cast<double>(c.sigma) * static_cast<double>(c.sigma)));
    for (int x = 0; x < c.blockSize; ++x) {
      const double centre = x + 0.5, fromMiddle = centre - c.cellSize;
      const double fromCell = centre / c.cellSize - 0.5;
      const double share = 1 - (fromCell < 0 ? -fromCell : fromCell);
      const bool isFar = x >= c.blockSize - c.cellSize / 2;
      at[x] = isFar ? 0 : share * exponentialOfNegative(-(fromMiddle * fromMiddle) * perVariance);
    }
  }
};

void storeWeights(const LumiHOGConfig& c, Lum8u* to) {
  const WeightsAlong along(c);
  for (int y = 0; y < c.blockSize; ++y)
    for (int x = 0; x < c.blockSize; ++x) {
      const double left = along.at[x], right = along.at[c.blockSize - 1 - x];
      const double top = along.at[y], bottom = along.at[c.blockSize - 1 - y];
      const float weights[] = {static_cast<float>(left * top), static_cast<float>(left * bottom),
                               static_cast<float>(right * top), static_cast<float>(right * bottom)};
      std::memcpy(to, weights, sizeof weights);
      to += sizeof weights;
    }
}

}  // namespace

HogObject hogObjectAt(const LumiHOGSpec* spec) {
  HogObject object;
  std::memcpy(&object, static_cast<const void*>(spec), sizeof object);
  return object;
}

HogGrid hogGridAt(const LumiHOGSpec* spec) {
  const LumiHOGConfig c = hogObjectAt(spec).config;
  return {c.blockSize,
          c.blockStride,
          blocksAlong(c.windowWidth, c),
          blocksAlong(c.windowHeight, c),
          c.blockOrder != 0,
          c.binCount,
          c.clipping,
          reinterpret_cast<const Lum8u*>(spec) + kHogHeader};
}

LumStatus hogIdentity(const LumiHOGSpec* spec) {
  return hogObjectAt(spec).identifier == kHogIdentifier ? lumStatusOk : lumStatusBadContext;
}

LumStatus hogRoi(const LumiHOGSpec* spec, LumiSize roi) {
  const LumiHOGConfig c = hogObjectAt(spec).config;
  return roi.width < c.windowWidth || roi.height < c.windowHeight ? lumStatusBadSize : lumStatusOk;
}

LumStatus hogObjectSize(const LumiHOGConfig* config, int* size) {
  if (LumStatus fault = firstFault(pointers(config, size), [=] { return configuration(*config); }))
    return fault;
  *size = kHogHeader + 16 * config->blockSize * config->blockSize;
  return lumStatusOk;
}

LumStatus initHog(const LumiHOGConfig* config, LumiHOGSpec* spec) {
  if (LumStatus fault = firstFault(pointers(config, spec), [=] { return configuration(*config); }))
    return fault;
  const LumiHOGConfig c = *config;
  const int blockLength = 4 * c.binCount;
  const int blocks = product(blocksAlong(c.windowWidth, c), blocksAlong(c.windowHeight, c));
  const HogObject object{kHogIdentifier, c, 2, 2, blockLength, product(blockLength, blocks)};
  auto* const memory = reinterpret_cast<Lum8u*>(spec);
  std::memset(memory, 0, kHogHeader);
  std::memcpy(memory, &object, sizeof object);
  storeWeights(c, memory + kHogHeader);
  return lumStatusOk;
}

LumStatus hogBufferSize(const LumiHOGSpec* spec, LumiSize roi, int* size) {
  if (LumStatus fault = firstFault(
          pointers(spec, size), [=] { return hogIdentity(spec); }, [=] { return hogRoi(spec, roi); }))
    return fault;
  *size = product(12, product(roi.width, roi.height));
  return lumStatusOk;
}

LumStatus hogDescriptorSize(const LumiHOGSpec* spec, int* size) {
  if (LumStatus fault = firstFault(pointers(spec, size), [=] { return hogIdentity(spec); })) return fault;
  *size = product(4, hogObjectAt(spec).descriptorLength);
  return lumStatusOk;
}

}  // namespace lumi
