// SPDX-License-Identifier: MIT
// Resizing of pictures with three bytes a pixel, whole or tile by tile.
#pragma once

#include <lumi.h>

#include <cstddef>
#include <vector>

#include "check.hpp"

// A specification object for one pair of sizes. Runs only read it: any number of threads may share it.
class Resizer {
 public:
  // lumInterpNearest or lumInterpLinear.
  Resizer(LumiSize from, LumiSize to, LumiInterpolationType interpolation) : interpolation_(interpolation) {
    int objectBytes = 0, initBytes = 0;
    check(lumiResizeGetSize_8u(from, to, interpolation, 0, &objectBytes, &initBytes), "lumiResizeGetSize_8u");
    memory_.resize(static_cast<size_t>(objectBytes));
    auto* const object = reinterpret_cast<LumiResizeSpec*>(memory_.data());
    if (interpolation == lumInterpLinear)
      check(lumiResizeLinearInit_8u(from, to, object), "lumiResizeLinearInit_8u");
    else
      check(lumiResizeNearestInit_8u(from, to, object), "lumiResizeNearestInit_8u");
  }
  // The object holds pointers into itself.
  Resizer(const Resizer&) = delete;
  Resizer& operator=(const Resizer&) = delete;

  // For runs over tiles up to this size; runs at the same time need scratch each of their own.
  std::vector<Lum8u> scratchFor(LumiSize tile) const {
    int bytes = 0;
    check(lumiResizeGetBufferSize_8u(object(), tile, 3, &bytes), "lumiResizeGetBufferSize_8u");
    return std::vector<Lum8u>(static_cast<size_t>(bytes));
  }

  // The tile of `to` that begins at `where`; both pictures are given by their first pixels. The tile's source
  // begins where the object says. What lies around it inside the picture is read, and the picture's own edge
  // is repeated.
  LumStatus run(const Lum8u* from, int fromStep, Lum8u* to, int toStep, LumiPoint where, LumiSize tile,
                std::vector<Lum8u>& scratch) const {
    LumiPoint source = {};
    check(lumiResizeGetSrcOffset_8u(object(), where, &source), "lumiResizeGetSrcOffset_8u");
    const Lum8u* const src = from + ptrdiff_t{source.y} * fromStep + ptrdiff_t{source.x} * 3;
    Lum8u* const dst = to + ptrdiff_t{where.y} * toStep + ptrdiff_t{where.x} * 3;
    if (interpolation_ == lumInterpNearest)
      return lumiResizeNearest_8u_C3R(src, fromStep, dst, toStep, where, tile, object(), scratch.data());
    const Lum8u unused[3] = {};
    return lumiResizeLinear_8u_C3R(src, fromStep, dst, toStep, where, tile, lumiBorderReplicate, unused,
                                   object(), scratch.data());
  }

  const char* runName() const {
    return interpolation_ == lumInterpLinear ? "lumiResizeLinear_8u_C3R" : "lumiResizeNearest_8u_C3R";
  }

 private:
  const LumiResizeSpec* object() const { return reinterpret_cast<const LumiResizeSpec*>(memory_.data()); }

  LumiInterpolationType interpolation_;
  std::vector<Lum8u> memory_;  // the object finds its boundary in it by itself
};
