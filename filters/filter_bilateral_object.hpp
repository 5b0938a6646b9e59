// SPDX-License-Identifier: MIT
// The objects of bilateral filters.
#pragma once

#include "lumi/types.h"

namespace lumi {

// The object of lumiFilterBilateralBorder. It begins on a boundary of eight bytes behind the caller's
// pointer, whose first byte tells how far; the tables follow.
struct BilateralObject {
  Lum32u magic;
  Lum32s filterType, distanceMethod, dataType, channels, radius;
  Lum32f valueVariance, positionVariance;
};
inline constexpr int kBilateralHeader = 32;
static_assert(sizeof(BilateralObject) == kBilateralHeader);

// A copy of the object, and where its tables are; null where the first byte leads nowhere.
const Lum8u* bilateralMemory(const LumiFilterBilateralBorderSpec* spec);
BilateralObject bilateralObjectAt(const LumiFilterBilateralBorderSpec* spec);
LumStatus bilateralIdentity(const LumiFilterBilateralBorderSpec* spec, LumiDataType type, int channels);

// Entries of the table of values, and of positions.
int bilateralValues(LumiDataType type, int channels);
int bilateralPositions(int radius);

LumStatus bilateralBorderSizes(int filterType, LumiSize roi, int radius, LumiDataType type, int channels,
                               int distanceMethod, int* specSize, int* bufferSize);
LumStatus initBilateralBorder(int filterType, LumiSize roi, int radius, LumiDataType type, int channels,
                              int distanceMethod, Lum32f valueVariance, Lum32f positionVariance,
                              LumiFilterBilateralBorderSpec* spec);

// The object of lumiFilterBilateral, at any address: 256 weights of values, and those of positions that are
// reached.
struct GridBilateralObject {
  Lum32u magic;
  Lum32s positions, step, unused;
};
inline constexpr int kGridBilateralHeader = 16, kByteValues = 256, kMostPositions = 256;

LumStatus gridBilateralIdentity(const LumiFilterBilateralSpec* spec);
LumStatus gridBilateralSize(int filterType, LumiSize roi, LumiSize mask, int* size);
LumStatus initGridBilateral(int filterType, LumiSize mask, Lum32f valueSigma, Lum32f positionSigma, int step,
                            LumiFilterBilateralSpec* spec);

}  // namespace lumi
