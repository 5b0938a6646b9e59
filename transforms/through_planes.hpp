// SPDX-License-Identifier: MIT
// Runs: their scratch, and those of integers, channel by channel by way of a plane of floats in it.
#pragma once

#include <climits>

#include "dispatch/copy_channels.hpp"
#include "frame/object.hpp"
#include "frame/scratch.hpp"
#include "lumi/convert.h"
#include "transforms/spectrum.hpp"

namespace lumi {

// Calls run(scratch) with the caller's buffer, which may be null: then there is memory for the call. What no
// size could tell of is more than either has.
template <typename Run>
LumStatus withScratch(Lum8u* buffer, int64_t bytes, const Run& run) {
  if (bytes >= INT_MAX - kObjectAlignment) return lumStatusNoMemory;
  if (buffer) {
    run(reinterpret_cast<float*>(alignedUp(buffer, kObjectAlignment)));
    return lumStatusOk;
  }
  const Scratch scratch(bytes + kObjectAlignment);
  if (!scratch) return lumStatusNoMemory;
  run(static_cast<float*>(
      static_cast<void*>(alignedUp(static_cast<Lum8u*>(scratch.data()), kObjectAlignment))));
  return lumStatusOk;
}

// Channels as planes, and back: of one channel the image is the plane.
template <typename T, typename Layout>
void channelToPlane(const T* src, int srcStep, T* plane, int planeStep, LumiSize size) {
  call::Copy1R<T, Layout, C1>(src, srcStep, plane, planeStep, size);
}
template <typename T, typename Layout>
void planeToChannel(const T* plane, int planeStep, T* dst, int dstStep, LumiSize size) {
  if constexpr (Layout::kStored == 3)
    call::Copy3R<T, C1, C3>(plane, planeStep, dst, dstStep, size);
  else
    call::Copy4R<T, C1, C4>(plane, planeStep, dst, dstStep, size);
}

// Scratch: a plane of floats, one of bytes behind it, and that of the transform behind the room for four
// planes and a row.
template <typename Layout>
class ThroughPlanes {
 public:
  ThroughPlanes(const SpectrumPlan& plan, int scaleFactor, float* scratch)
      : plan_(plan),
        size_{static_cast<int>(plan.width), static_cast<int>(plan.height)},
        step_(size_.width * static_cast<int>(sizeof(float))),
        scaleFactor_(scaleFactor),
        plane_(scratch),
        ints_(reinterpret_cast<Lum32s*>(scratch)),
        bytes_(reinterpret_cast<Lum8u*>(scratch + plan.width * plan.height)),
        work_(alignedUp(scratch + (4 * plan.height + 1) * plan.width, kObjectAlignment)) {}

  void run(const Lum8u* src, int srcStep, Lum32s* dst, int dstStep) const {
    for (int c = 0; c < Layout::kUsed; ++c) {
      if constexpr (Layout::kStored == 1) {
        lumiConvert_8u32f_C1R(src, srcStep, plane_, step_, size_);
      } else {
        channelToPlane<Lum8u, Stored>(src + c, srcStep, bytes_, size_.width, size_);
        lumiConvert_8u32f_C1R(bytes_, size_.width, plane_, step_, size_);
      }
      transformPlane();
      if constexpr (Layout::kStored == 1) {
        lumiConvert_32f32s_C1RSfs(plane_, step_, dst, dstStep, size_, lumRoundNearestEven, scaleFactor_);
      } else {
        lumiConvert_32f32s_C1RSfs(plane_, step_, ints_, step_, size_, lumRoundNearestEven, scaleFactor_);
        planeToChannel<Lum32s, Stored>(ints_, step_, dst + c, dstStep, size_);
      }
    }
  }
  void run(const Lum32s* src, int srcStep, Lum8u* dst, int dstStep) const {
    for (int c = 0; c < Layout::kUsed; ++c) {
      if constexpr (Layout::kStored == 1) {
        lumiConvert_32s32f_C1R(src, srcStep, plane_, step_, size_);
      } else {
        channelToPlane<Lum32s, Stored>(src + c, srcStep, ints_, step_, size_);
        lumiConvert_32s32f_C1R(ints_, step_, plane_, step_, size_);
      }
      transformPlane();
      if constexpr (Layout::kStored == 1) {
        lumiConvert_32f8u_C1RSfs(plane_, step_, dst, dstStep, size_, lumRoundNearestEven, scaleFactor_);
      } else {
        lumiConvert_32f8u_C1RSfs(plane_, step_, bytes_, size_.width, size_, lumRoundNearestEven,
                                 scaleFactor_);
        planeToChannel<Lum8u, Stored>(bytes_, size_.width, dst + c, dstStep, size_);
      }
    }
  }

 private:
  // Alpha stays as it is, since channels go one by one.
  using Stored = std::conditional_t<Layout::kStored == 4, C4, C3>;

  void transformPlane() const {
    auto* const plane = reinterpret_cast<uint8_t*>(plane_);
    transformPacked<C1>(plan_, {plane, step_}, {plane, step_}, work_);
  }

  const SpectrumPlan& plan_;
  const LumiSize size_;
  const int step_, scaleFactor_;
  Lum32f* const plane_;
  Lum32s* const ints_;
  Lum8u* const bytes_;
  float* const work_;
};

}  // namespace lumi
