// SPDX-License-Identifier: MIT
#include "lumi/image_memory.h"

#include <cstdint>

#include "lumcore.h"

namespace lumi {
namespace {

// Typed by the member that is bound to it.
struct Block {
  void* first;

  template <typename T>
  operator T*() const {
    return static_cast<T*>(first);
  }
};

// Width times B and height times step wrap in 32 bits, and the wrapped values are what is passed on.
template <uint32_t bytesPerPixel>
Block allocateImage(int width, int height, int* step) {
  constexpr uint32_t boundary = 64;
  if (!step) return {nullptr};
  if (width < 1 || height < 1) {
    *step = 0;
    return {nullptr};
  }
  const uint32_t rowStep = (static_cast<uint32_t>(width) * bytesPerPixel + (boundary - 1)) & ~(boundary - 1);
  *step = static_cast<int>(rowStep);
  return {lumMalloc(static_cast<int32_t>(static_cast<uint32_t>(height) * rowStep))};
}

void freeImage(void* image) { lumFree(image); }

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/image_memory.inc"
