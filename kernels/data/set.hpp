// SPDX-License-Identifier: MIT
// Row kernels that store a value: whole rows.
#pragma once

#include <cstddef>
#include <cstdint>

#include "kernels/pattern.hpp"

namespace lumi {

// Fills `bytes` bytes, a multiple of the pixel. With `streaming` vector stores bypass the cache, and the
// caller fences; the string store of long rows finds its own way.
template <int pixelBytes>
void fillRow(const PixelPattern& pattern, uint8_t* dst, size_t bytes, bool streaming);

}  // namespace lumi
