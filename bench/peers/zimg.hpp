// SPDX-License-Identifier: MIT
// zimg: single planes, resized.
#pragma once

#include "bench/harness.hpp"

namespace bench::zimg {

[[gnu::weak]] void hold();  // keeps the peers made from here on to our level
[[gnu::weak]] Library library();

// Planes of bytes, 16-bit words and floats that lie on 64 bytes row by row. Where it shrinks, the linear one
// widens its kernel against aliasing.
[[gnu::weak]] Peer resizeNearest(View src, View dst);
[[gnu::weak]] Peer resizeLinear(View src, View dst);

}  // namespace bench::zimg
