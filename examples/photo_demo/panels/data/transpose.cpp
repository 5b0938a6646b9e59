// SPDX-License-Identifier: MIT
#include "panels.hpp"

namespace {

AnyImage transposed(const Colour& photo, Calls& calls) {
  Colour result({photo.size().height, photo.size().width});
  calls.time("lumiTranspose_8u_C3R", photo.size(), [&] {
    return lumiTranspose_8u_C3R(photo.data(), photo.step(), result.data(), result.step(), photo.size());
  });
  return result;
}

const Panels panels("data", "transpose",
                    {
                        {"transposed", "Rows become columns", transposed},
                    });

}  // namespace
