// SPDX-License-Identifier: MIT
#include <cmath>

#include "panels.hpp"
#include "pieces.hpp"

namespace {

// How much the rows of the photo are like those of its reflection: white where one is a multiple of the
// other.
AnyImage likeness(const Colour& photo, Calls& calls) {
  const Colour reflection = flipped(photo);
  const LumiSize row{photo.size().width, 1};
  Colour result(photo.size());
  calls.time("lumiDotProd_8u64f_C3R", photo.size(), [&] {
    LumStatus status = lumStatusOk;
    for (int y = 0; y < photo.size().height && status == lumStatusOk; ++y) {
      const Lum8u *a = photo.at(0, y), *b = reflection.at(0, y);
      Lum64f products[3], first[3], second[3];
      status = lumiDotProd_8u64f_C3R(a, photo.step(), b, reflection.step(), row, products);
      if (status == lumStatusOk) status = lumiNorm_L2_8u_C3R(a, photo.step(), row, first);
      if (status == lumStatusOk) status = lumiNorm_L2_8u_C3R(b, reflection.step(), row, second);
      Lum8u colour[3];
      for (int c = 0; c < 3; ++c)
        colour[c] = static_cast<Lum8u>(254 * products[c] / std::fmax(first[c] * second[c], 1));
      if (status == lumStatusOk) status = lumiSet_8u_C3R(colour, result.at(0, y), result.step(), row);
    }
    return status;
  });
  return result;
}

// Each row with a share of the rows above and below it; the outermost are repeated.
AnyImage verticalBlur(const Colour& photo, Calls& calls) {
  const LumiSize size = photo.size();
  ColourFloat samples(size), sums(size);
  check(lumiConvert_8u32f_C3R(photo.data(), photo.step(), samples.data(), samples.step(), size),
        "lumiConvert_8u32f_C3R");
  const Lum32f weights[] = {0.125f, 0.25f, 0.25f, 0.25f, 0.125f};
  calls.time("lumiDotProdCol_32f_L2", size, [&] {
    LumStatus status = lumStatusOk;
    for (int y = 0; y < size.height && status == lumStatusOk; ++y) {
      const Lum32f* rows[5];
      for (int k = 0; k < 5; ++k) rows[k] = samples.at(0, std::clamp(y + k - 2, 0, size.height - 1));
      status = lumiDotProdCol_32f_L2(rows, weights, 5, sums.at(0, y), 3 * size.width);
    }
    return status;
  });
  Colour result(size);
  check(
      lumiConvert_32f8u_C3R(sums.data(), sums.step(), result.data(), result.step(), size, lumRoundTowardZero),
      "lumiConvert_32f8u_C3R");
  return result;
}

const Panels panels("statistics", "dot_prod",
                    {
                        {"likeness", "Rows and their reflection", likeness},
                        {"blur", "Weighted sums of five rows", verticalBlur},
                    });

}  // namespace
