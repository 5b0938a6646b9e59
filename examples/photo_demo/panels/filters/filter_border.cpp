// SPDX-License-Identifier: MIT
#include <algorithm>
#include <vector>

#include "panels.hpp"
#include "pieces.hpp"

namespace {

// A kernel for bytes of three channels, as the caller writes it down.
class Filter {
 public:
  Filter(LumiSize kernelSize, std::vector<Lum16s> taps, int divisor, LumiSize largest) {
    int objectBytes = 0, bufferBytes = 0;
    check(
        lumiFilterBorderGetSize(kernelSize, largest, lumiData8u, lumiData16s, 3, &objectBytes, &bufferBytes),
        "lumiFilterBorderGetSize");
    memory_.resize(static_cast<size_t>(objectBytes));
    buffer_.resize(static_cast<size_t>(bufferBytes));
    check(lumiFilterBorderInit_16s(taps.data(), kernelSize, divisor, lumiData8u, 3, lumRoundNearestEven,
                                   object()),
          "lumiFilterBorderInit_16s");
  }

  LumStatus run(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi, LumiBorderType border,
                const Rgb& outside) {
    return lumiFilterBorder_8u_C3R(src, srcStep, dst, dstStep, roi, border, outside.data(), object(),
                                   buffer_.data());
  }

 private:
  LumiFilterBorderSpec* object() { return reinterpret_cast<LumiFilterBorderSpec*>(memory_.data()); }

  std::vector<Lum8u> memory_, buffer_;
};

constexpr Rgb kOutside = {255, 0, 255};

Colour filtered(const Colour& photo, LumiSize kernelSize, const std::vector<Lum16s>& taps, int divisor,
                LumiBorderType border, Calls& calls) {
  Filter filter(kernelSize, taps, divisor, photo.size());
  Colour result(photo.size());
  calls.time("lumiFilterBorder_8u_C3R", photo.size(), [&] {
    return filter.run(photo.data(), photo.step(), result.data(), result.step(), photo.size(), border,
                      kOutside);
  });
  return result;
}

const std::vector<Lum16s> kBlur(81, 1);
const std::vector<Lum16s> kSharpen = {0, -1, 0, -1, 5, -1, 0, -1, 0};
const std::vector<Lum16s> kEmboss = {2, 1, 0, 1, 1, -1, 0, -1, -2};

AnyImage blurred(const Colour& photo, Calls& calls) {
  return filtered(photo, {9, 9}, kBlur, 81, lumiBorderReplicate, calls);
}

AnyImage sharpened(const Colour& photo, Calls& calls) {
  return filtered(photo, {3, 3}, kSharpen, 1, lumiBorderReplicate, calls);
}

// The pixels around the ROI are in memory: the outermost ones are only read.
AnyImage embossed(const Colour& photo, Calls& calls) {
  Colour result(photo.size());
  calls.time("lumiCopy_8u_C3R", photo.size(), [&] {
    return lumiCopy_8u_C3R(photo.data(), photo.step(), result.data(), result.step(), photo.size());
  });
  const LumiSize inner = {photo.size().width - 2, photo.size().height - 2};
  if (std::min(inner.width, inner.height) < 1) return result;
  Filter filter({3, 3}, kEmboss, 1, inner);
  calls.time("lumiFilterBorder_8u_C3R", inner, [&] {
    return filter.run(photo.at(1, 1), photo.step(), result.at(1, 1), result.step(), inner, lumiBorderInMemory,
                      kOutside);
  });
  return result;
}

// A corner of the blurred photo, enlarged: what the border brought in shows.
template <int border>
AnyImage blurredCorner(const Colour& photo, Calls& calls) {
  const Colour blurry = filtered(photo, {9, 9}, kBlur, 81, border, calls);
  const LumiSize corner = scaled(photo.size(), 1, 16);
  return resized(cut(blurry, 0, 0, corner), scaled(corner, 16, 1), lumInterpNearest, calls);
}

const Panels panels("filters", "filter_border",
                    {
                        {"blurred", "Blurred by 9 x 9", blurred},
                        {"sharpened", "Sharpened", sharpened},
                        {"embossed", "Embossed, border in memory", embossed},
                        {"corner-value", "Corner, border of a value", blurredCorner<lumiBorderConst>},
                        {"corner-edges", "Corner, edges repeated", blurredCorner<lumiBorderReplicate>},
                    });

}  // namespace
