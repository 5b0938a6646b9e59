// SPDX-License-Identifier: MIT
#include "panels.hpp"
#include "pieces.hpp"

namespace {

// What each row has above its least samples, channel by channel.
AnyImage aboveLeast(const Colour& photo, Calls& calls) {
  const LumiSize size = photo.size(), row{size.width, 1};
  Colour result(size);
  const auto subtract = [&] {
    LumStatus status = lumStatusOk;
    for (int y = 0; y < size.height && status == lumStatusOk; ++y) {
      Lum8u least[3];
      status = lumiMin_8u_C3R(photo.at(0, y), photo.step(), row, least);
      if (status == lumStatusOk)
        status =
            lumiSubC_8u_C3RSfs(photo.at(0, y), photo.step(), least, result.at(0, y), result.step(), row, 0);
    }
    return status;
  };
  calls.time("lumiMin_8u_C3R", size, subtract);
  return result;
}

// Green from its least sample up to its greatest one, in as many steps as there are greys.
AnyImage stretched(const Colour& photo, Calls& calls) {
  const Planes planes = split(photo);
  const Grey& green = planes.green;
  Lum8u least = 0, greatest = 0;
  calls.time("lumiMinMax_8u_C1R", photo.size(),
             [&] { return lumiMinMax_8u_C1R(green.data(), green.step(), photo.size(), &least, &greatest); });
  std::array<Lum32s, 257> levels;
  std::array<Lum32s, 256> values;
  for (int i = 0; i < 256; ++i) {
    levels[static_cast<size_t>(i)] = i;
    values[static_cast<size_t>(i)] = std::clamp((i - least) * 255 / std::max(greatest - least, 1), 0, 255);
  }
  levels[256] = 256;
  Grey result(photo.size());
  calls.time("lumiLUT_8u_C1R", photo.size(), [&] {
    return lumiLUT_8u_C1R(green.data(), green.step(), result.data(), result.step(), photo.size(),
                          values.data(), levels.data(), 257);
  });
  return result;
}

const Panels panels("statistics", "min_max",
                    {
                        {"above", "What rows have above their least", aboveLeast},
                        {"stretched", "From the least to the greatest", stretched},
                    });

}  // namespace
