// SPDX-License-Identifier: MIT
// Means of bytes under windows of 3 x 3 and 5 x 5.
#pragma once

#include "kernels/filters/window.hpp"

namespace lumi {

// (sum * 29128) >> 18: the mean without its fraction; of three and four channels.
extern const WindowFilter kBox3x3, kBox3x3Colours;
// (sum * 29128 + 2^17) >> 18: to the nearest.
extern const WindowFilter kBox3x3Nearest;
// (sum * 20971 + 2^18) >> 19, and (sum * 41943 + 2^19) >> 20.
extern const WindowFilter kBox5x5, kBoxBorder5x5;

}  // namespace lumi
