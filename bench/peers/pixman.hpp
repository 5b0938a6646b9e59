// SPDX-License-Identifier: MIT
// pixman: fills.
#pragma once

#include "bench/harness.hpp"

namespace bench::pixman {

[[gnu::weak]] Library library();

[[gnu::weak]] Peer fill(View dst, Value value);

}  // namespace bench::pixman
