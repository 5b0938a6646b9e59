// SPDX-License-Identifier: MIT
// The extremes of blocks of an image.
#include "lumi/block_min_max.h"

#include <algorithm>
#include <cstring>

#include "frame/check.hpp"
#include "frame/rows.hpp"
#include "kernels/statistics/block_min_max.hpp"

namespace lumi {
namespace {

using namespace check;

// Of one kind: an image that may be absent, and what is the best of all.
template <typename T>
struct ExtremeMap {
  T* entries;
  int step;
  T extreme;

  template <typename Kernel>
  void takeBlocks(int row, SourceRows src, Extent samples, int blockWidth, Kernel kernel) {
    if (entries) kernel(src, samples, static_cast<size_t>(blockWidth), rows(entries, step).row(row), extreme);
  }
  void storeExtreme(T* result) const {
    if (result) std::memcpy(result, &extreme, sizeof extreme);
  }
};

template <typename T, typename Layout>
LumStatus blockExtremes(const T* src, int srcStep, LumiSize roi, T* minMap, int minMapStep, T* maxMap,
                        int maxMapStep, LumiSize blockSize, T* min, T* max) {
  const auto rowOf = [](const T* image, int step, auto samples) {
    return [=] {
      return image && int64_t{step} < samples() * int64_t{sizeof(T)} ? lumStatusBadStep : lumStatusOk;
    };
  };
  const auto across = [=] { return int64_t{(roi.width - 1) / blockSize.width + 1}; };
  if (LumStatus fault =
          firstFault(pointers(src), minMap || maxMap ? lumStatusOk : lumStatusNullPointer, size(roi),
                     size(blockSize), rowOf(src, srcStep, [=] { return int64_t{roi.width}; }),
                     rowOf(minMap, minMapStep, across), rowOf(maxMap, maxMapStep, across)))
    return fault;
  T first;
  std::memcpy(&first, src, sizeof first);
  ExtremeMap<T> least{minMap, minMapStep, first}, greatest{maxMap, maxMapStep, first};
  for (int y = 0, block = 0; y < roi.height; ++block) {
    const SourceRows image{rows(src, srcStep).row(y), srcStep};
    const Extent samples{static_cast<size_t>(roi.width), std::min(blockSize.height, roi.height - y)};
    least.takeBlocks(block, image, samples, blockSize.width, leastOfBlocks<T>);
    greatest.takeBlocks(block, image, samples, blockSize.width, greatestOfBlocks<T>);
    y += samples.rows;
  }
  least.storeExtreme(min);
  greatest.storeExtreme(max);
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/block_min_max.inc"
