// SPDX-License-Identifier: MIT
// Row kernels that store a value: whole rows.
#pragma once

#include "kernels/pattern.hpp"
#include "kernels/rows.hpp"

namespace lumi {

// Fills `bytes` bytes, a multiple of the pixel. With `streaming` vector stores bypass the cache, and the
// caller fences; the string store of long rows finds its own way.
template <int pixelBytes>
void fillRows(const PixelPattern& pattern, TargetRows dst, Extent bytes, bool streaming);

}  // namespace lumi
