// SPDX-License-Identifier: MIT
#include <memory>

#include "panels.hpp"
#include "pieces.hpp"

namespace {

using GreyFloat = Image<1, Lum32f>;
using Plan = std::unique_ptr<LumiDFTSpec_R_32f, LumStatus (*)(LumiDFTSpec_R_32f*)>;

// Scaled backwards, so that an image that goes there and back is itself.
constexpr Lum32s kScaleInverse = 2;

Plan planFor(LumiSize size) {
  LumiDFTSpec_R_32f* spec = nullptr;
  check(lumiDFTInitAlloc_R_32f(&spec, size.width, size.height, kScaleInverse, 0), "lumiDFTInitAlloc_R_32f");
  return {spec, lumiDFTFree_R_32f};
}

// Of the green plane.
GreyFloat spectrumOf(const Colour& photo, const LumiDFTSpec_R_32f* plan, Calls& calls) {
  const Planes planes = split(photo);
  GreyFloat image(photo.size());
  GreyFloat result(photo.size());
  check(lumiConvert_8u32f_C1R(planes.green.data(), planes.green.step(), image.data(), image.step(),
                              photo.size()),
        "lumiConvert_8u32f_C1R");
  calls.time("lumiDFTFwd_RToPack_32f_C1R", photo.size(), [&] {
    return lumiDFTFwd_RToPack_32f_C1R(image.data(), image.step(), result.data(), result.step(), plan,
                                      nullptr);
  });
  return result;
}

Grey bytesOf(const GreyFloat& image) {
  Grey result(image.size());
  check(lumiConvert_32f8u_C1R(image.data(), image.step(), result.data(), result.step(), image.size(),
                              lumRoundNearestEven),
        "lumiConvert_32f8u_C1R");
  return result;
}

// Logarithms of magnitudes: sixteen shades of grey for each power of e.
AnyImage logarithms(const Colour& photo, Calls& calls) {
  const LumiSize size = photo.size();
  const Plan plan = planFor(size);
  const GreyFloat spectrum = spectrumOf(photo, plan.get(), calls);
  GreyFloat result(size);
  check(lumiMagnitudePack_32f_C1R(spectrum.data(), spectrum.step(), result.data(), result.step(), size),
        "lumiMagnitudePack_32f_C1R");
  check(lumiAddC_32f_C1IR(1, result.data(), result.step(), size), "lumiAddC_32f_C1IR");
  check(lumiLn_32f_C1IR(result.data(), result.step(), size), "lumiLn_32f_C1IR");
  check(lumiMulC_32f_C1IR(16, result.data(), result.step(), size), "lumiMulC_32f_C1IR");
  return bytesOf(result);
}

// Only the lowest frequencies stay: an eighth of those of rows and of columns.
AnyImage lowPass(const Colour& photo, Calls& calls) {
  const LumiSize size = photo.size();
  const Plan plan = planFor(size);
  GreyFloat image = spectrumOf(photo, plan.get(), calls);
  const int columns = size.width / 16, rows = size.height / 16;
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      // The first and the last column are packed downwards.
      const bool isReal = x == 0 || (x == size.width - 1 && size.width % 2 == 0);
      const int u = (x + 1) / 2, v = isReal ? (y + 1) / 2 : y < size.height - y ? y : size.height - y;
      if (u > columns || v > rows) *image.at(x, y) = 0;
    }
  }
  GreyFloat result(size);
  calls.time("lumiDFTInv_PackToR_32f_C1R", size, [&] {
    return lumiDFTInv_PackToR_32f_C1R(image.data(), image.step(), result.data(), result.step(), plan.get(),
                                      nullptr);
  });
  return bytesOf(result);
}

const Panels panels("transforms", "dft",
                    {
                        {"spectrum", "Logarithms of the spectrum", logarithms},
                        {"low-pass", "The lowest frequencies", lowPass},
                    });

}  // namespace
