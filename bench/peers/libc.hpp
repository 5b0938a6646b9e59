// SPDX-License-Identifier: MIT
// The C library's memory functions; tight images are one row to them, as to any good caller.
#pragma once

#include "bench/harness.hpp"

namespace bench::libc {

Library library();

Peer fill(View dst, Value value);
Peer copy(View src, View dst);

}  // namespace bench::libc
