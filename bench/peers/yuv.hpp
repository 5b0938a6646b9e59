// SPDX-License-Identifier: MIT
// libyuv: planes and pixels of 8 bits.
#pragma once

#include "bench/harness.hpp"

namespace bench::yuv {

[[gnu::weak]] void hold();  // keeps it to our level from here on
[[gnu::weak]] Library library();

[[gnu::weak]] Peer fill(View dst, Value value);
[[gnu::weak]] Peer copy(View src, View dst);
[[gnu::weak]] Peer split(View src, std::vector<View> dst);
[[gnu::weak]] Peer merge(std::vector<View> src, View dst);
[[gnu::weak]] Peer dropAlpha(View src, View dst);

[[gnu::weak]] Peer transpose(View src, View dst);    // one channel, or four of 8 bits
[[gnu::weak]] Peer mirror(View src, View dst);       // about the vertical axis
[[gnu::weak]] Peer halfTurn(View src, View dst);     // about both axes
[[gnu::weak]] Peer swapRedBlue(View src, View dst);  // three and four channels of 8 bits
[[gnu::weak]] Peer convert(View src, View dst);      // 8u to 32f

// Planes of 8 and 16 bits, and four channels of 8.
[[gnu::weak]] Peer resizeNearest(View src, View dst);
[[gnu::weak]] Peer resizeLinear(View src, View dst);

}  // namespace bench::yuv
