// SPDX-License-Identifier: MIT
#pragma once

#include <xmmintrin.h>

namespace lumi {

// Orders streaming stores before everything that follows; once a call, after the last row.
inline void storeFence() { _mm_sfence(); }

}  // namespace lumi
