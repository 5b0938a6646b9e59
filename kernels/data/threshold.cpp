// SPDX-License-Identifier: MIT
#include "kernels/data/threshold_rows.hpp"

namespace lumi {

LUMI_LAYOUTS(uint8_t)
LUMI_LAYOUTS(float)

}  // namespace lumi
