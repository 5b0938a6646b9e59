// SPDX-License-Identifier: MIT
// Lets tests see which fast path a call takes: results do not tell, for every path stores the same. Only in
// builds with LUMI_COUNT_PATHS, and never in a product.
#pragma once

namespace lumi {

enum class Path {
  StringMove,
  StringFill,
  StreamingFill,
  StreamingRows,
  StreamingPlanes,
  FusedRows,
  NearestHalved,
  NearestDoubled,
  NearestWindows,
  NearestRowCopied,
  LinearHalved,
  LinearDoubled,
  LinearByteWindows,
  LinearFloatWindows,
  LookUpOneTable,
  LookUpSixteen,
  LookUpSteps,
  FilterWordSums,
  FilterStrip,
  WidePairs,
  TapWordSums,
  TapRowsShared,
  BoxOfThree,
  WindowSumsOfWords,
  WindowStrips,
  GradientsInPlace,
  HogBlocksTogether,
  MedianHistograms,
};

}  // namespace lumi

#ifdef LUMI_COUNT_PATHS
// The test program has it; without one nothing is told.
extern "C" [[gnu::weak, gnu::visibility("default")]] void lumiPathTaken(int path);
#endif

namespace lumi {

// Once a row, or once a call, that takes the path.
inline void countPath([[maybe_unused]] Path path) {
#ifdef LUMI_COUNT_PATHS
  if (lumiPathTaken != nullptr) lumiPathTaken(static_cast<int>(path));
#endif
}

}  // namespace lumi
