// SPDX-License-Identifier: MIT
// Orthonormal cosine transforms of 8 x 8 floats: eight rows of eight, which may be source and destination at
// once.
#pragma once

#include "kernels/rows.hpp"

namespace lumi {

void forwardFloats8x8(SourceRows src, TargetRows dst);
void inverseFloats8x8(SourceRows src, TargetRows dst);

}  // namespace lumi
