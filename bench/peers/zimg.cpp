// SPDX-License-Identifier: MIT
#include "bench/peers/zimg.hpp"

#include <zimg.h>

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <optional>

namespace bench::zimg {
namespace {

constexpr std::size_t kAlignment = 64;  // of its widest vectors; it tests no address itself

zimg_cpu_type_e level = ZIMG_CPU_AUTO_64B;

bool isAligned(const View& view) {
  return reinterpret_cast<std::uintptr_t>(view.bytes) % kAlignment == 0 &&
         static_cast<std::size_t>(view.step) % kAlignment == 0;
}

std::optional<zimg_pixel_type_e> pixelType(Depth depth) {
  if (depth == Depth::u8) return ZIMG_PIXEL_BYTE;
  if (depth == Depth::u16) return ZIMG_PIXEL_WORD;
  if (depth == Depth::f32) return ZIMG_PIXEL_FLOAT;
  return {};
}

zimg_image_format format(const View& view, zimg_pixel_type_e type) {
  zimg_image_format result;
  zimg_image_format_default(&result, ZIMG_API_VERSION);
  result.width = static_cast<unsigned>(view.roi.width);
  result.height = static_cast<unsigned>(view.roi.height);
  result.pixel_type = type;
  result.depth = static_cast<unsigned>(sampleBytes(view.depth)) * 8;
  result.pixel_range = ZIMG_RANGE_FULL;
  return result;
}

Peer resize(View src, View dst, zimg_resample_filter_e filter) {
  const auto type = pixelType(src.depth);
  if (!type || src.channels != 1 || !isAligned(src) || !isAligned(dst)) return {};

  zimg_graph_builder_params parameters;
  zimg_graph_builder_params_default(&parameters, ZIMG_API_VERSION);
  parameters.resample_filter = filter;
  parameters.cpu_type = level;
  const auto from = format(src, *type), to = format(dst, *type);
  const std::shared_ptr<zimg_filter_graph> graph(zimg_filter_graph_build(&from, &to, &parameters),
                                                 zimg_filter_graph_free);
  std::size_t bytes = 0;
  if (graph == nullptr || zimg_filter_graph_get_tmp_size(graph.get(), &bytes) != ZIMG_ERROR_SUCCESS)
    return {};
  const std::size_t whole = (bytes / kAlignment + 1) * kAlignment;
  const std::shared_ptr<void> scratch(std::aligned_alloc(kAlignment, whole), std::free);

  zimg_image_buffer_const in{};
  in.version = ZIMG_API_VERSION;
  in.plane[0] = {src.bytes, src.step, ZIMG_BUFFER_MAX};
  zimg_image_buffer out{};
  out.version = ZIMG_API_VERSION;
  out.plane[0] = {dst.bytes, dst.step, ZIMG_BUFFER_MAX};
  return peer("zimg", [=] {
    zimg_filter_graph_process(graph.get(), &in, &out, scratch.get(), nullptr, nullptr, nullptr, nullptr);
  });
}

}  // namespace

void hold() { level = ZIMG_CPU_X86_AVX; }

Library library() {
  unsigned major = 0, minor = 0, micro = 0;
  zimg_get_version_info(&major, &minor, &micro);
  const bool isHeld = level == ZIMG_CPU_X86_AVX;
  return {"zimg", std::to_string(major) + "." + std::to_string(minor) + "." + std::to_string(micro),
          !isHeld && __builtin_cpu_supports("avx2") != 0};
}

Peer resizeNearest(View src, View dst) { return resize(src, dst, ZIMG_RESIZE_POINT); }
Peer resizeLinear(View src, View dst) { return resize(src, dst, ZIMG_RESIZE_BILINEAR); }

}  // namespace bench::zimg
