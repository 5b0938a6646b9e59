// SPDX-License-Identifier: MIT
// pixman: fills, and four channels of 8 bits resized.
#pragma once

#include "bench/harness.hpp"

namespace bench::pixman {

[[gnu::weak]] Library library();

[[gnu::weak]] Peer fill(View dst, Value value);

// The nearest pixel is repeated outside.
[[gnu::weak]] Peer resizeNearest(View src, View dst);
[[gnu::weak]] Peer resizeLinear(View src, View dst);

}  // namespace bench::pixman
