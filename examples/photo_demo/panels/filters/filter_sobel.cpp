// SPDX-License-Identifier: MIT
#include <vector>

#include "panels.hpp"
#include "pieces.hpp"

namespace {

// How steep the green plane is, twice as dark as it could be.
template <int mask>
AnyImage edges(const Colour& photo, Calls& calls) {
  const LumiSize size = photo.size();
  const Grey green = split(photo).green;
  Image<1, Lum16s> magnitude(size);
  int bytes = 0;
  check(lumiFilterSobelGetBufferSize(size, mask, 2, lumiData8u, lumiData16s, 1, &bytes),
        "lumiFilterSobelGetBufferSize");
  std::vector<Lum8u> buffer(static_cast<size_t>(bytes));
  calls.time("lumiFilterSobel_8u16s_C1R", size, [&] {
    return lumiFilterSobel_8u16s_C1R(green.data(), green.step(), magnitude.data(), magnitude.step(), size,
                                     mask, 2, lumiBorderReplicate, 0, buffer.data());
  });
  const Lum32u shift = mask == lumiMask3x3 ? 1 : 4;
  check(lumiRShiftC_16s_C1IR(shift, magnitude.data(), magnitude.step(), size), "lumiRShiftC_16s_C1IR");
  Grey result(size);
  check(lumiConvert_16s8u_C1R(magnitude.data(), magnitude.step(), result.data(), result.step(), size),
        "lumiConvert_16s8u_C1R");
  return result;
}

const Panels panels("filters", "filter_sobel",
                    {
                        {"edges", "Sobel magnitudes, 3 x 3", edges<lumiMask3x3>},
                        {"wide-edges", "Sobel magnitudes, 5 x 5", edges<lumiMask5x5>},
                    });

}  // namespace
