// SPDX-License-Identifier: MIT
// Objects of cosine transforms.
#pragma once

#include "kernels/transforms/cosine.hpp"
#include "transforms/objects.hpp"

namespace lumi {

// The transform of one axis. Its tables lie behind it.
struct DctAxis {
  Lum32s identifier, length;
  transforms::CosineTransform transform;
};

struct DctObject : SpectrumObject {
  Lum32s one, isBlock;  // of 8 x 8
  const DctAxis *row, *column;

  const DctAxis& columnAxis() const { return column ? *column : *row; }
};

template <typename Spec>
LumStatus getDctSize(int width, int height, Lum32s* objectSize, Lum32s* initSize, Lum32s* bufferSize);
template <typename Spec>
LumStatus initDct(int width, int height, Spec* object, Lum8u* scratch);
template <typename Spec>
LumStatus initAllocatedDct(Spec** object, int width, int height);

}  // namespace lumi
