// SPDX-License-Identifier: MIT
#include "kernels/transforms/colours.hpp"

#include "kernels/simd/bytes.hpp"

namespace lumi::transforms {

using namespace simd;

void mergeColours(const uint8_t* red, const uint8_t* green, const uint8_t* blue, uint8_t* dst,
                  size_t pixels) {
  for (size_t i = 0; i < pixels; ++i) {
    move<4>(dst + 16 * i, red + 4 * i);
    move<4>(dst + 16 * i + 4, green + 4 * i);
    move<4>(dst + 16 * i + 8, blue + 4 * i);
  }
}

}  // namespace lumi::transforms
