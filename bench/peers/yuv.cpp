// SPDX-License-Identifier: MIT
#include "bench/peers/yuv.hpp"

#include <libyuv.h>

#include "bench/peers/pixel.hpp"

namespace bench::yuv {
namespace {

constexpr int kAboveLevel = libyuv::kCpuHasAVX2 | libyuv::kCpuHasFMA3 | libyuv::kCpuHasF16C |
                            libyuv::kCpuHasAVX512BW | libyuv::kCpuHasAVX512VL | libyuv::kCpuHasAVX512VNNI |
                            libyuv::kCpuHasAVX512VBMI | libyuv::kCpuHasAVX512VBMI2 |
                            libyuv::kCpuHasAVX512VBITALG | libyuv::kCpuHasAVX512VPOPCNTDQ;

Peer resize(View src, View dst, libyuv::FilterMode filter) {
  const LumiSize from = src.roi, to = dst.roi;
  if (src.depth == Depth::u8 && src.channels == 1) {
    return peer("libyuv", [=] {
      libyuv::ScalePlane(src.bytes, src.step, from.width, from.height, dst.bytes, dst.step, to.width,
                         to.height, filter);
    });
  }
  if (src.depth == Depth::u8 && src.channels == 4) {
    return peer("libyuv", [=] {
      libyuv::ARGBScale(src.bytes, src.step, from.width, from.height, dst.bytes, dst.step, to.width,
                        to.height, filter);
    });
  }
  if (src.depth == Depth::u16 && src.channels == 1) {
    return peer("libyuv", [=] {
      libyuv::ScalePlane_16(reinterpret_cast<const uint16_t*>(src.bytes), src.step / 2, from.width,
                            from.height, reinterpret_cast<uint16_t*>(dst.bytes), dst.step / 2, to.width,
                            to.height, filter);
    });
  }
  return {};
}

}  // namespace

void hold() { libyuv::MaskCpuFlags(~kAboveLevel); }

Library library() {
  return {"libyuv", std::to_string(LIBYUV_VERSION), libyuv::TestCpuFlag(kAboveLevel) != 0};
}

Peer fill(View dst, Value value) {
  if (dst.pixelBytes() == 1) {
    const auto sample = static_cast<uint32_t>(value[0]);
    return peer("libyuv",
                [=] { libyuv::SetPlane(dst.bytes, dst.step, dst.roi.width, dst.roi.height, sample); });
  }
  if (dst.pixelBytes() != 4) return {};
  const uint32_t pixel = pixelWord(dst, value);
  return peer("libyuv",
              [=] { libyuv::ARGBRect(dst.bytes, dst.step, 0, 0, dst.roi.width, dst.roi.height, pixel); });
}

Peer copy(View src, View dst) {
  return peer("libyuv", [=] {
    libyuv::CopyPlane(src.bytes, src.step, dst.bytes, dst.step, src.rowBytes(), src.roi.height);
  });
}

// libyuv names the channels of four-channel pixels from the high byte down, so red is the third in memory.
Peer split(View src, std::vector<View> dst) {
  if (src.depth != Depth::u8) return {};
  const int width = src.roi.width, height = src.roi.height;
  if (src.channels == 3) {
    return peer("libyuv", [=] {
      libyuv::SplitRGBPlane(src.bytes, src.step, dst[0].bytes, dst[0].step, dst[1].bytes, dst[1].step,
                            dst[2].bytes, dst[2].step, width, height);
    });
  }
  return peer("libyuv", [=] {
    libyuv::SplitARGBPlane(src.bytes, src.step, dst[2].bytes, dst[2].step, dst[1].bytes, dst[1].step,
                           dst[0].bytes, dst[0].step, dst[3].bytes, dst[3].step, width, height);
  });
}

Peer merge(std::vector<View> src, View dst) {
  if (dst.depth != Depth::u8) return {};
  const int width = dst.roi.width, height = dst.roi.height;
  if (dst.channels == 3) {
    return peer("libyuv", [=] {
      libyuv::MergeRGBPlane(src[0].bytes, src[0].step, src[1].bytes, src[1].step, src[2].bytes, src[2].step,
                            dst.bytes, dst.step, width, height);
    });
  }
  return peer("libyuv", [=] {
    libyuv::MergeARGBPlane(src[2].bytes, src[2].step, src[1].bytes, src[1].step, src[0].bytes, src[0].step,
                           src[3].bytes, src[3].step, dst.bytes, dst.step, width, height);
  });
}

Peer dropAlpha(View src, View dst) {
  if (src.depth != Depth::u8) return {};
  return peer("libyuv", [=] {
    libyuv::ARGBToRGB24(src.bytes, src.step, dst.bytes, dst.step, src.roi.width, src.roi.height);
  });
}

Peer transpose(View src, View dst) {
  const int width = src.roi.width, height = src.roi.height;
  if (src.depth != Depth::u8 || src.channels != 1) return {};
  return peer("libyuv",
              [=] { libyuv::TransposePlane(src.bytes, src.step, dst.bytes, dst.step, width, height); });
}

Peer mirror(View src, View dst) {
  using Mirror = int (*)(const uint8_t*, int, uint8_t*, int, int, int);
  const Mirror mirrors[] = {libyuv::ARGBMirror, libyuv::RGB24Mirror};
  const int width = src.roi.width, height = src.roi.height;
  if (src.depth != Depth::u8) return {};
  if (src.channels == 1) {
    return peer("libyuv",
                [=] { libyuv::MirrorPlane(src.bytes, src.step, dst.bytes, dst.step, width, height); });
  }
  const Mirror mirror = mirrors[src.channels == 3];
  return peer("libyuv", [=] { mirror(src.bytes, src.step, dst.bytes, dst.step, width, height); });
}

Peer halfTurn(View src, View dst) {
  const int width = src.roi.width, height = src.roi.height;
  if (src.depth != Depth::u8 || src.channels == 3) return {};
  const auto turn = src.channels == 1 ? libyuv::RotatePlane : libyuv::ARGBRotate;
  return peer("libyuv",
              [=] { turn(src.bytes, src.step, dst.bytes, dst.step, width, height, libyuv::kRotate180); });
}

Peer swapRedBlue(View src, View dst) {
  if (src.depth != Depth::u8 || src.channels != dst.channels) return {};
  const auto swap = src.channels == 3 ? libyuv::RAWToRGB24 : libyuv::ABGRToARGB;
  return peer("libyuv",
              [=] { swap(src.bytes, src.step, dst.bytes, dst.step, src.roi.width, src.roi.height); });
}

Peer convert(View src, View dst) {
  if (src.depth != Depth::u8 || dst.depth != Depth::f32) return {};
  const bool isOneRow = src.isTight() && dst.isTight();
  const int height = isOneRow ? 1 : src.roi.height;
  const int samples = src.roi.width * src.channels * (isOneRow ? src.roi.height : 1);
  return peer("libyuv", [=] {
    for (int y = 0; y < height; ++y)
      libyuv::ByteToFloat(src.row(y), reinterpret_cast<float*>(dst.row(y)), 1, samples);
  });
}

Peer resizeNearest(View src, View dst) { return resize(src, dst, libyuv::kFilterNone); }
Peer resizeLinear(View src, View dst) { return resize(src, dst, libyuv::kFilterBilinear); }

}  // namespace bench::yuv
