// SPDX-License-Identifier: MIT
// Pictures by operations with specification objects: resized, and filtered with kernels of the caller.
#include <algorithm>
#include <vector>

#include "../resizer.hpp"
#include "panels.hpp"
#include "shapes.hpp"

namespace {

// Sources of linear interpolation have two rows and columns at least.
LumiInterpolationType fitting(LumiInterpolationType wanted, LumiSize from) {
  return std::min(from.width, from.height) < 2 ? LumiInterpolationType{lumInterpNearest} : wanted;
}

Colour resizedInTiles(const Colour& from, LumiSize to, LumiSize tile, LumiInterpolationType interpolation,
                      Calls& calls) {
  const Resizer resizer(from.size(), to, fitting(interpolation, from.size()));
  std::vector<Lum8u> scratch = resizer.scratchFor(tile);
  Colour result(to);
  calls.time(resizer.runName(), to, [&] {
    LumStatus status = lumStatusOk;
    for (int y = 0; y < to.height && status == lumStatusOk; y += tile.height)
      for (int x = 0; x < to.width && status == lumStatusOk; x += tile.width)
        status =
            resizer.run(from.data(), from.step(), result.data(), result.step(), {x, y},
                        {std::min(tile.width, to.width - x), std::min(tile.height, to.height - y)}, scratch);
    return status;
  });
  return result;
}

Colour resized(const Colour& from, LumiSize to, LumiInterpolationType interpolation, Calls& calls) {
  return resizedInTiles(from, to, to, interpolation, calls);
}

LumiSize scaled(LumiSize size, int factor, int divisor) {
  return {std::max(size.width * factor / divisor, 1), std::max(size.height * factor / divisor, 1)};
}

Colour cut(const Colour& photo, int x, int y, LumiSize size) {
  Colour part(size);
  check(lumiCopy_8u_C3R(photo.at(x, y), photo.step(), part.data(), part.step(), size), "lumiCopy_8u_C3R");
  return part;
}

template <int interpolation>
AnyImage reduced(const Colour& photo, Calls& calls) {
  return resized(photo, scaled(photo.size(), 2, 5), interpolation, calls);
}

// A small part of the photo, to be enlarged to its size.
Colour detail(const Colour& photo) {
  const LumiSize part = scaled(photo.size(), 1, 8);
  return cut(photo, photo.size().width * 5 / 8 - part.width / 2,
             photo.size().height * 3 / 8 - part.height / 2, part);
}

template <int interpolation>
AnyImage enlarged(const Colour& photo, Calls& calls) {
  const Colour small = detail(photo);
  return resized(small, scaled(small.size(), 8, 1), interpolation, calls);
}

// The same in four by four tiles; their seams do not show.
AnyImage enlargedInTiles(const Colour& photo, Calls& calls) {
  const Colour small = detail(photo);
  const LumiSize whole = scaled(small.size(), 8, 1);
  return resizedInTiles(small, whole, scaled(whole, 1, 4), lumInterpLinear, calls);
}

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

// A frame around a small part, enlarged: its edge pixels repeated.
AnyImage framed(const Colour& photo, Calls& calls) {
  const LumiSize part = scaled(photo.size(), 1, 12);
  const int left = std::max(part.width / 4, 1), top = std::max(part.height / 4, 1);
  const LumiSize whole = {part.width + 2 * left, part.height + 2 * top};
  const Colour small = cut(photo, photo.size().width / 3, photo.size().height / 2, part);
  Colour frame(whole);
  calls.time("lumiCopyReplicateBorder_8u_C3R", whole, [&] {
    return lumiCopyReplicateBorder_8u_C3R(small.data(), small.step(), part, frame.data(), frame.step(), whole,
                                          top, left);
  });
  return resized(frame, scaled(whole, 8, 1), lumInterpNearest, calls);
}

}  // namespace

std::vector<Panel> geometryPanels() {
  return {
      {"reduced-nearest", "Reduced, nearest", reduced<lumInterpNearest>},
      {"reduced-linear", "Reduced, linear", reduced<lumInterpLinear>},
      {"enlarged-nearest", "Enlarged, nearest", enlarged<lumInterpNearest>},
      {"enlarged-linear", "Enlarged, linear", enlarged<lumInterpLinear>},
      {"enlarged-tiles", "Enlarged in tiles", enlargedInTiles},
      {"blurred", "Blurred by 9 x 9", blurred},
      {"sharpened", "Sharpened", sharpened},
      {"embossed", "Embossed, border in memory", embossed},
      {"corner-value", "Corner, border of a value", blurredCorner<lumiBorderConst>},
      {"corner-edges", "Corner, edges repeated", blurredCorner<lumiBorderReplicate>},
      {"framed", "Frame of repeated edges", framed},
  };
}
