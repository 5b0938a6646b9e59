// SPDX-License-Identifier: MIT
#include "bench/peers/pixman.hpp"

#include <pixman.h>

#include <cstdint>
#include <memory>

#include "bench/peers/pixel.hpp"

namespace bench::pixman {
namespace {

std::shared_ptr<pixman_image_t> image(const View& view) {
  return {pixman_image_create_bits(PIXMAN_a8r8g8b8, view.roi.width, view.roi.height,
                                   reinterpret_cast<uint32_t*>(view.bytes), view.step),
          pixman_image_unref};
}

bool isAligned(const View& view) {
  return reinterpret_cast<std::uintptr_t>(view.bytes) % 4 == 0 && view.step % 4 == 0;
}

Peer resize(View src, View dst, pixman_filter_t filter) {
  if (src.depth != Depth::u8 || src.channels != 4 || !isAligned(src) || !isAligned(dst)) return {};
  const auto from = image(src), to = image(dst);
  pixman_transform_t scale;
  pixman_transform_init_scale(&scale, pixman_double_to_fixed(double{1} * src.roi.width / dst.roi.width),
                              pixman_double_to_fixed(double{1} * src.roi.height / dst.roi.height));
  pixman_image_set_transform(from.get(), &scale);
  pixman_image_set_filter(from.get(), filter, nullptr, 0);
  pixman_image_set_repeat(from.get(), PIXMAN_REPEAT_PAD);
  return peer("pixman", [=] {
    pixman_image_composite32(PIXMAN_OP_SRC, from.get(), nullptr, to.get(), 0, 0, 0, 0, 0, 0, dst.roi.width,
                             dst.roi.height);
  });
}

}  // namespace

// Its x86 paths end at SSSE3.
Library library() { return {"pixman", pixman_version_string(), false}; }

Peer fill(View dst, Value value) {
  const int bytes = dst.pixelBytes();
  if ((bytes != 1 && bytes != 2 && bytes != 4) || dst.step % 4 != 0) return {};
  const uint32_t word = pixelWord(dst, value);
  return peer("pixman", [=] {
    pixman_fill(reinterpret_cast<uint32_t*>(dst.bytes), dst.step / 4, bytes * 8, 0, 0, dst.roi.width,
                dst.roi.height, word);
  });
}

Peer resizeNearest(View src, View dst) { return resize(src, dst, PIXMAN_FILTER_NEAREST); }
Peer resizeLinear(View src, View dst) { return resize(src, dst, PIXMAN_FILTER_BILINEAR); }

}  // namespace bench::pixman
