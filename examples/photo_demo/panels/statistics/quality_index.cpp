// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>

#include "panels.hpp"
#include "pieces.hpp"

namespace {

// Blocks of n x n pixels have one value.
Colour coarsened(const Colour& photo, int n, Calls& calls) {
  return resized(resized(photo, scaled(photo.size(), 1, n), lumInterpNearest, calls), photo.size(),
                 lumInterpNearest, calls);
}

// Flat channels have no index, and no bar. The lower part is the coarse copy; bars as long as each channel's
// index, of the photo's width, lie on it.
template <int block>
AnyImage alike(const Colour& photo, Calls& calls) {
  const Colour copy = coarsened(photo, block, calls);
  std::array<Lum32f, 3> quality{};
  calls.time("lumiQualityIndex_8u32f_C3R", photo.size(), [&] {
    const LumStatus status = lumiQualityIndex_8u32f_C3R(photo.data(), photo.step(), copy.data(), copy.step(),
                                                        photo.size(), quality.data());
    return status == lumStatusZeroQualityDenominator ? lumStatusOk : status;
  });
  Colour result = copyOf(photo);
  const LumiSize size = photo.size();
  const int half = size.height / 2, bar = std::max(1, size.height / 20);
  if (half > 0) place(cut(copy, 0, half, {size.width, size.height - half}), result, 0, half);
  for (int c = 0; c < 3; ++c) {
    Rgb colour{};
    colour[static_cast<size_t>(c)] = 255;
    const auto length =
        static_cast<int>(static_cast<float>(size.width) * std::max(0.0f, quality[static_cast<size_t>(c)]));
    const int top = half + 2 * c * bar;
    if (length > 0 && top + bar <= size.height) fillRect(result, {0, top, length, bar}, colour);
  }
  return result;
}

const Panels panels("statistics", "quality_index",
                    {
                        {"blocks2", "Quality of blocks of 2 x 2", alike<2>},
                        {"blocks8", "Quality of blocks of 8 x 8", alike<8>},
                    });

}  // namespace
