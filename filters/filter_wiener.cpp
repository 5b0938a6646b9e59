// SPDX-License-Identifier: MIT
// Wiener filters. The sums of each pixel's window are in the buffer, and follow from row to row.
#include "lumi/filter_wiener.h"

#include <algorithm>
#include <cstring>

#include "frame/check.hpp"
#include "frame/layout.hpp"
#include "frame/rows.hpp"
#include "kernels/filters/wiener.hpp"

namespace lumi {
namespace {

using namespace check;

// The square of the full scale, and its inverse as results have it.
template <typename T>
constexpr double kFullScale = 1;
template <>
constexpr double kFullScale<Lum8u> = 65025.0;
template <>
constexpr double kFullScale<Lum16s> = 4294836224.0;
template <typename T>
constexpr float kPerFullScale = 1;
template <>
constexpr float kPerFullScale<Lum8u> = 1.53787e-5F;
template <>
constexpr float kPerFullScale<Lum16s> = 2.3283775e-10F;

constexpr float kNoNoise = 1.1920929e-7F;

struct WienerImage {
  SourceRows rows;  // at the first pixel of the first window
  LumiSize roi, mask;
  PixelSamples pixel;

  double n() const { return static_cast<double>(mask.width) * mask.height; }
  size_t samples() const { return static_cast<size_t>(roi.width) * static_cast<size_t>(pixel.used); }
};

// Calls row(y) for each row of results, when the sums of its windows are in `pairs`.
template <typename T, typename Row>
void forEachRow(const WienerImage& image, Byte* pairs, const Row& row) {
  const auto move = [&](const Byte* entering, const Byte* leaving) {
    moveWindows<T>(entering, leaving, image.pixel, image.mask.width, pairs,
                   static_cast<size_t>(image.roi.width));
  };
  std::memset(pairs, 0, 2 * sizeof(double) * image.samples());
  for (int y = 0; y < image.mask.height; ++y) move(image.rows.row(y), nullptr);
  for (int y = 0;; ++y) {
    row(y);
    if (y + 1 == image.roi.height) return;
    move(image.rows.row(y + image.mask.height), image.rows.row(y));
  }
}

// The means of rows' variances, each of a row first; as a part of the full scale's square.
template <typename T>
void estimate(const WienerImage& image, Byte* pairs, float* noise) {
  const auto channels = static_cast<size_t>(image.pixel.used);
  double sums[4] = {};
  forEachRow<T>(image, pairs, [&](int) {
    double ofRow[kPhases] = {};
    addVariances(pairs, image.n(), ofRow, image.samples());
    for (size_t c = 0; c < channels; ++c) {
      double sum = 0;
      for (size_t i = c; i < kPhases; i += channels) sum += ofRow[i];
      sums[c] += sum / image.roi.width;
    }
  });
  const double n = image.n();
  for (size_t c = 0; c < channels; ++c) {
    const double variance = std::max(sums[c] / image.roi.height / (n * n), 0.0);
    noise[c] = static_cast<float>(static_cast<double>(kPerFullScale<T>) * variance);
  }
}

template <typename T>
WienerNoise scaled(const WienerImage& image, const float* noise) {
  WienerNoise result{image.n(), {}, {}};
  for (size_t i = 0; i < kPhases; ++i) {
    const auto part = static_cast<double>(noise[i % static_cast<size_t>(image.pixel.used)]);
    result.noise[i] = kFullScale<T> * part * result.n * result.n;
    result.share[i] = result.noise[i] / result.n;
  }
  return result;
}

// Pixels whose alpha stays go through copies without it.
template <typename T>
void filterColours(const Byte* src, const Byte* pairs, const WienerNoise& noise, Byte* dst, int width) {
  constexpr int kPiece = 64;
  constexpr size_t kColours = 3 * sizeof(T), kPixel = 4 * sizeof(T);
  alignas(32) Byte before[kPiece * kColours], after[kPiece * kColours];
  for (int x = 0; x < width; x += kPiece) {
    const auto pixels = static_cast<size_t>(std::min(kPiece, width - x)), at = static_cast<size_t>(x);
    for (size_t i = 0; i < pixels; ++i) std::memcpy(before + i * kColours, src + (at + i) * kPixel, kColours);
    wienerRow<T>(before, pairs + at * 3 * 2 * sizeof(double), noise, after, 3 * pixels);
    for (size_t i = 0; i < pixels; ++i) std::memcpy(dst + (at + i) * kPixel, after + i * kColours, kColours);
  }
}

LumStatus maskSides(LumiSize mask) {
  return mask.width < 2 || mask.height < 2 ? lumStatusBadMaskSize : lumStatusOk;
}
LumStatus anchorInside(LumiSize mask, LumiPoint anchor) {
  const bool isInside = anchor.x >= 0 && anchor.y >= 0 && anchor.x < mask.width && anchor.y < mask.height;
  return isInside ? lumStatusOk : lumStatusBadAnchor;
}
template <size_t channels>
LumStatus noiseLevels(const float (&noise)[channels]) {
  const bool areTaken = std::all_of(noise, noise + channels, [](float x) { return x >= 0 && x < 1; });
  return areTaken ? lumStatusOk : lumStatusBadNoiseLevel;
}

template <typename T, typename Layout>
LumStatus filterWiener(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, LumiSize mask,
                       LumiPoint anchor, Lum32f* noise, Lum8u* buffer) {
  float levels[Layout::kUsed];
  if (LumStatus fault = firstFault(pointers(src, dst, noise, buffer), size(roi), maskSides(mask),
                                   anchorInside(mask, anchor), steps(srcStep, dstStep), [&] {
                                     std::memcpy(levels, static_cast<const void*>(noise), sizeof levels);
                                     return noiseLevels(levels);
                                   }))
    return fault;
  const Rows<const Byte> sources = rows(src, srcStep);
  const Byte* const first =
      sources.row(-anchor.y) - static_cast<ptrdiff_t>(anchor.x) * kPixelBytes<T, Layout>;
  const WienerImage image{{first, sources.step}, roi, mask, {Layout::kStored, Layout::kUsed}};
  if (std::all_of(levels, levels + Layout::kUsed, [](float x) { return x < kNoNoise; })) {
    estimate<T>(image, buffer, levels);
    std::memcpy(static_cast<void*>(noise), levels, sizeof levels);
  }
  const WienerNoise scaledNoise = scaled<T>(image, levels);
  const Rows<Byte> results = rows(dst, dstStep);
  forEachRow<T>(image, buffer, [&](int y) {
    if constexpr (Layout::kUsed < Layout::kStored)
      filterColours<T>(sources.row(y), buffer, scaledNoise, results.row(y), roi.width);
    else
      wienerRow<T>(sources.row(y), buffer, scaledNoise, results.row(y), image.samples());
  });
  return lumStatusOk;
}

// Modulo 2^32.
LumStatus wienerBufferSize(LumiSize roi, LumiSize mask, int channels, int* bytes) {
  const bool isCount = channels == 1 || channels == 3 || channels == 4;
  if (LumStatus fault = firstFault(pointers(bytes), size(roi),
                                   isCount ? lumStatusOk : lumStatusBadChannelCount, maskSides(mask)))
    return fault;
  const int64_t samples = channels == 1 ? int64_t{roi.width} + mask.width : int64_t{roi.width} * channels;
  *bytes = static_cast<int>(((samples + 6) & -4) * 16 + 15);
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/filter_wiener.inc"
