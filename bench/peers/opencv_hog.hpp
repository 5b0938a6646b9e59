// SPDX-License-Identifier: MIT
#pragma once

#include "bench/harness.hpp"

namespace bench::opencv {

// The descriptor of one window, in blocks of 16 x 16 pixels and cells of 8 x 8 with nine bins, of bytes.
[[gnu::weak]] Peer hog(View src, LumiSize window, int stride);

}  // namespace bench::opencv
