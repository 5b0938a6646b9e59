// SPDX-License-Identifier: MIT
// The memory limit: the same traffic without any work.
#pragma once

#include <cstddef>
#include <vector>

#include "bench/harness.hpp"

namespace bench {

// Ways to fill, or copy, that many bytes. The C library's functions alone would be no limit: its 32-bit
// ones use 16-byte vectors, and streaming stores pay only beyond the caches.
std::vector<Peer> fillLimits(Lum8u* to, std::size_t size);
std::vector<Peer> copyLimits(const Lum8u* from, Lum8u* to, std::size_t size);

}  // namespace bench
