// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>

namespace lumi::transforms {

// Three planes of floats into the first three samples of pixels of four; the fourth ones stay.
void mergeColours(const uint8_t* red, const uint8_t* green, const uint8_t* blue, uint8_t* dst, size_t pixels);

}  // namespace lumi::transforms
