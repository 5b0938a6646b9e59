// SPDX-License-Identifier: MIT
// Cosine transforms of images: forward along rows, then down columns; inverse the other way round.
#include "lumi/dct.h"

#include "frame/rows.hpp"
#include "kernels/transforms/dct_8x8_float.hpp"
#include "transforms/dct_spec.hpp"
#include "transforms/image_rows.hpp"
#include "transforms/spectrum_runs.hpp"

namespace lumi {
namespace {

using namespace transforms;

class CosineRows {
 public:
  CosineRows(const CosineTransform& transform, bool inverse, float* scratch)
      : transform_(transform), inverse_(inverse), scratch_(scratch) {}

  size_t atOnce() const { return kLanes; }
  void run(const Byte* const* src, Byte* const* dst, size_t count) {
    EightRows rows = {};
    rows.count = static_cast<int>(count);
    for (size_t i = 0; i < kLanes; ++i) {
      rows.src[i] = src[i < count ? i : 0];
      rows.dst[i] = i < count ? dst[i] : nullptr;
    }
    transformCosineRows(transform_, inverse_, rows, scratch_);
  }

 private:
  const CosineTransform& transform_;
  const bool inverse_;
  float* const scratch_;
};

template <typename Layout>
void transformCosines(const DctObject& object, bool inverse, SourceRows src, TargetRows dst, float* scratch) {
  const auto width = static_cast<size_t>(object.width), height = static_cast<size_t>(object.height);
  const auto alongRows = [&](SourceRows from) {
    constexpr bool kHasPlanes = Layout::kStored > 1;
    CosineRows runner(object.row->transform, inverse, scratch + (kHasPlanes ? kLanes * width : 0));
    if constexpr (kHasPlanes)
      runChannelRows<Layout>(runner, width, height, from, dst, scratch);
    else
      runImageRows(runner, height, from, dst);
  };
  const auto downColumns = [&](SourceRows from) {
    transformCosineColumns(object.columnAxis().transform, inverse, from, dst, width * Layout::kStored,
                           Layout::kUsed < Layout::kStored, scratch);
  };
  const SourceRows done{dst.first, dst.step};
  if (inverse) {
    downColumns(src);
    alongRows(done);
  } else {
    alongRows(src);
    downColumns(done);
  }
}

template <typename T, typename Layout, typename Spec>
LumStatus transformCosines(const T* src, int srcStep, T* dst, int dstStep, const Spec* object,
                           Lum8u* buffer) {
  if (LumStatus fault = runFault(object, src, srcStep, dst, dstStep)) return fault;
  constexpr bool kInverse = std::is_same_v<Spec, LumiDCTInvSpec_32f>;
  const auto& words = *objectAt<DctObject>(object);
  const SourceRows from = rows(src, srcStep);
  const TargetRows to = rows(dst, dstStep);
  constexpr int kBlockStep = 8 * sizeof(Lum32f);
  const bool isBlock = Layout::kStored == 1 && words.isBlock != 0;
  const auto block = [=] { kInverse ? inverseFloats8x8(from, to) : forwardFloats8x8(from, to); };
  if (isBlock && srcStep == kBlockStep && dstStep == kBlockStep) {
    block();
    return lumStatusOk;
  }
  return withScratch(buffer, words.workBytes, [=, &words](float* scratch) {
    if (isBlock)
      block();
    else
      transformCosines<Layout>(words, kInverse, from, to, scratch);
  });
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/dct.inc"
