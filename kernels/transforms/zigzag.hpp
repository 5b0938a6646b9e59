// SPDX-License-Identifier: MIT
// Blocks of 8 x 8 words in zigzag order, and back. They have any alignment, and may be one block.
#pragma once

#include <cstdint>

namespace lumi {

void zigzag8x8(const uint8_t* src, uint8_t* dst);
void rowOrder8x8(const uint8_t* src, uint8_t* dst);

}  // namespace lumi
