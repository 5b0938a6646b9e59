// SPDX-License-Identifier: MIT
#pragma once

#include "kernels/rows.hpp"

namespace lumi {

// The medians of the bytes of three images at each place. The destination may be any of them.
void medianOfPlanes(const PlaneRows<const uint8_t, 3>& planes, TargetRows dst, Extent samples);

}  // namespace lumi
