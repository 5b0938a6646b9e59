// SPDX-License-Identifier: MIT
// Zigzag order of 8 x 8 blocks.
#include "lumi/zigzag.h"

#include "frame/check.hpp"
#include "kernels/transforms/zigzag.hpp"

namespace lumi {
namespace {

using namespace check;

template <void kernel(const uint8_t*, uint8_t*)>
LumStatus reorder(const Lum16s* src, Lum16s* dst) {
  if (LumStatus fault = pointers(src, dst)) return fault;
  kernel(reinterpret_cast<const uint8_t*>(src), reinterpret_cast<uint8_t*>(dst));
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/zigzag.inc"
