// SPDX-License-Identifier: MIT
#include "bench/peers/pixman.hpp"

#include <pixman.h>

#include "bench/peers/pixel.hpp"

namespace bench::pixman {

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

}  // namespace bench::pixman
