// SPDX-License-Identifier: MIT
#pragma once

#include "model/access.hpp"

namespace model {

// Images: means of two, of their squares, of their product.
template <typename Real>
void ssim(const Image (&src)[5], Image dst, LumiSize roi, float c1, float c2) {
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x) {
      const auto at = [&](int i) { return Real{load<Lum32f>(src[i].row(y), x)}; };
      const Real t = Real{2} * at(0) * at(1), s = at(0) * at(0) + at(1) * at(1);
      const Real above = (t + Real{c1}) * (Real{2} * at(4) - t + Real{c2});
      const Real below = (s + Real{c1}) * (at(2) + at(3) - s + Real{c2});
      store<Lum32f>(dst.row(y), x, static_cast<Lum32f>(above / below));
    }
}

}  // namespace model
