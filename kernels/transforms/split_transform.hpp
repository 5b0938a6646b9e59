// SPDX-License-Identifier: MIT
// The outer transforms of a split one.
#pragma once

#include "kernels/transforms/transform.hpp"

namespace lumi::transforms {

// The roots that a block of eight c is turned by: those of k are `apart` floats behind those of k - 1. Room
// has space for a point of each k.
struct BlockRoots {
  const float* first;
  size_t apart;
};
BlockRoots rootsOfBlock(const Transform& transform, size_t block, float* room);

// Where rootsOfBlock may work in the local memory of a transform.
inline float* roomForRoots(const Transform& transform, float* local) {
  return local + transform.localFloats() - transform.outer.length * kPointFloats;
}

// From load(place) to points k * inner + c, turned.
template <typename Load>
void runOuter(const Transform& transform, const Load& load, float* points, float* local) {
  const size_t inner = transform.inner.length;
  BlockRoots roots = {};
  for (size_t c = 0; c < inner; ++c) {
    if (c % kLanes == 0) roots = rootsOfBlock(transform, c / kLanes, roomForRoots(transform, local));
    const float* const first = roots.first + c % kLanes;
    runPowerOfTwo<Lanes>(
        transform.outer, [&](size_t a) { return load(c + a * inner); }, local,
        [=](size_t k, Complex<Lanes> x) {
          const float* const w = first + k * roots.apart;
          const Complex<Lanes> root = {broadcastLane<Lanes>(w), broadcastLane<Lanes>(w + kLanes)};
          storePoint(points + (k * inner + c) * kPointFloats, x * root);
        });
  }
}

}  // namespace lumi::transforms
