// SPDX-License-Identifier: MIT
// Lines of an interlaced image, made from those around them.
#pragma once

#include <cstddef>
#include <cstdint>

namespace lumi {

// Rows y - 3 to y + 3 of the row that is made, which may be one of them. Thresholds above 2040 are never
// reached.
void deinterlaceRow(const uint8_t* const (&rows)[7], int threshold, uint8_t* dst, size_t samples);

}  // namespace lumi
