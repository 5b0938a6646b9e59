// SPDX-License-Identifier: MIT
// The object of lumiHOG. It takes no more memory than its fields do, at any address: what is in it is copied.
#pragma once

#include "kernels/filters/hog.hpp"
#include "lumi/types.h"

namespace lumi {

struct HogObject {
  Lum32u identifier;
  LumiHOGConfig config;
  Lum32s cellsAcross, cellsDown, blockLength, descriptorLength;  // lengths are numbers of floats
};

inline constexpr Lum32u kHogIdentifier = 0x4B61738F;
inline constexpr int kHogHeader = 72;  // the weights begin behind it
static_assert(sizeof(HogObject) <= kHogHeader);

HogObject hogObjectAt(const LumiHOGSpec* spec);
HogGrid hogGridAt(const LumiHOGSpec* spec);
LumStatus hogIdentity(const LumiHOGSpec* spec);
// Whether the ROI holds a window.
LumStatus hogRoi(const LumiHOGSpec* spec, LumiSize roi);

LumStatus hogObjectSize(const LumiHOGConfig* config, int* size);
LumStatus initHog(const LumiHOGConfig* config, LumiHOGSpec* spec);
LumStatus hogBufferSize(const LumiHOGSpec* spec, LumiSize roi, int* size);
LumStatus hogDescriptorSize(const LumiHOGSpec* spec, int* size);

}  // namespace lumi
