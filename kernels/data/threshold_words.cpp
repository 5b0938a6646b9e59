// SPDX-License-Identifier: MIT
#include "kernels/data/threshold_rows.hpp"

namespace lumi {

LUMI_LAYOUTS(int16_t)
LUMI_LAYOUTS(uint16_t)
LUMI_ROWS(uint16_t, false, false, true)
LUMI_ROWS(uint16_t, false, true, true)

}  // namespace lumi
