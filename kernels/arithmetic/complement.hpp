// SPDX-License-Identifier: MIT
#pragma once

#include "kernels/rows.hpp"

namespace lumi {

// 32-bit samples between two's complement and sign and magnitude, in place: the magnitude of a negative one
// with the top bit set. The smallest one stays.
void complementRows(TargetRows srcDst, Extent samples);

}  // namespace lumi
