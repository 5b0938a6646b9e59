// SPDX-License-Identifier: MIT
// Gradient vectors: strips of rows become words or floats, and each row of a strip its gradients.
#include "lumi/gradient_vector.h"

#include <algorithm>
#include <type_traits>

#include "filters/strip_source.hpp"
#include "frame/check.hpp"
#include "kernels/filters/gradient_vector.hpp"

namespace lumi {
namespace {

using namespace check;

template <typename Layout>
using GradientStrips = Strip<static_cast<int>(kMostGradients) / Layout::kStored>;

enum Operator { kSobel, kPrewitt, kScharr };

constexpr int kNormL1 = 2, kNormL2 = 4;

constexpr bool isMaskSize(LumiMaskSize mask) { return mask == lumiMask3x3 || mask == lumiMask5x5; }

LumStatus isOneOf(bool taken, LumStatus otherwise) { return taken ? lumStatusOk : otherwise; }

template <typename T>
LumStatus stepOfSamples(int step) {
  if (step < 1) return lumStatusBadStep;
  return step % static_cast<int>(sizeof(T)) != 0 ? lumStatusOddStep : lumStatusOk;
}

// An image of results, which need not be given.
template <typename T>
struct Result {
  T* image;
  int step;

  LumStatus check() const { return image ? stepOfSamples<T>(step) : lumStatusOk; }
  Byte* at(int x, int y) const {
    return image ? rows(image, step).row(y) + static_cast<ptrdiff_t>(x) * static_cast<ptrdiff_t>(sizeof(T))
                 : nullptr;
  }
};

template <typename D>
struct Results {
  Result<D> gx, gy, magnitude;
  Result<Lum32f> angle;
  bool isL2;

  bool isAny() const { return gx.image || gy.image || magnitude.image || angle.image; }
};

template <GradientMask mask, typename T, typename D, typename Layout>
void run(const BorderedImage<kPixelBytes<T, Layout>>& image, const Results<D>& results) {
  constexpr int reach = gradientReach(mask), rows = 2 * reach + 1;
  using Strips = GradientStrips<Layout>;
  const StripSource<T, T, Layout, Strips> source(image);
  RowRing<T, Layout, Strips, rows> ring;
  alignas(32) Byte work[2][Strips::kPixels * sizeof(D)];
  const LumiSize size = image.size();
  for (int x = 0; x < size.width; x += Strips::kPixels) {
    const int width = std::min(Strips::kPixels, size.width - x);
    const auto pixels = static_cast<size_t>(width);
    const auto read = [&](int y) { source.read(y, x - reach, x + width + reach, ring.row(y) - reach); };
    for (int y = -reach; y < reach; ++y) read(y);
    for (int y = 0; y < size.height; ++y) {
      read(y + reach);
      const T* window[rows];
      for (int i = 0; i < rows; ++i) window[i] = ring.row(y + i - reach);
      Byte* const gx = results.gx.image ? results.gx.at(x, y) : work[0];
      Byte* const gy = results.gy.image ? results.gy.at(x, y) : work[1];
      gradientRow<mask, Layout::kStored>(window, Strips::kRow, gx, gy, pixels);
      if (Byte* const dst = results.magnitude.at(x, y))
        gradientMagnitudeRow<D>(gx, gy, dst, pixels, results.isL2);
      if (Byte* const dst = results.angle.at(x, y)) gradientAngleRow<D>(gx, gy, dst, pixels);
    }
  }
}

// Three channels have their constants by a pointer. The types of the name follow from the arguments.
template <Operator gradient, typename... Name, typename T, typename D, typename Value>
LumStatus gradientVector(const T* src, int srcStep, D* gx, int gxStep, D* gy, int gyStep, D* magnitude,
                         int magnitudeStep, Lum32f* angle, int angleStep, LumiSize roi, LumiMaskSize mask,
                         int norm, LumiBorderType borderType, Value borderValue, Lum8u* buffer) {
  constexpr bool isColour = std::is_pointer_v<Value>;
  using Layout = std::conditional_t<isColour, C3, C1>;
  const BorderMode border(borderType);
  const Results<D> results{
      {gx, gxStep}, {gy, gyStep}, {magnitude, magnitudeStep}, {angle, angleStep}, norm == kNormL2};
  const bool isNorm = !magnitude || norm == kNormL1 || norm == kNormL2;
  const bool isMask = gradient == kSobel ? isMaskSize(mask) : mask == lumiMask3x3;
  if (LumStatus fault = firstFault(
          pointers(src), stepOfSamples<T>(srcStep), pointers(buffer), results.gx.check(), results.gy.check(),
          results.magnitude.check(), isOneOf(isNorm, lumStatusBadArgument), results.angle.check(), size(roi),
          isOneOf(border.isOneOf(lumiBorderConst, lumiBorderReplicate, lumiBorderInMemory),
                  lumStatusBadArgument),
          pointers(borderValue), isOneOf(isMask, lumStatusBadMaskSize)))
    return fault;
  if (!results.isAny()) return lumStatusOk;
  const void* value = &borderValue;
  if constexpr (isColour) value = borderValue;
  const BorderedImage<kPixelBytes<T, Layout>> image(rows(src, srcStep), roi, border, value);
  if constexpr (gradient == kSobel) {
    if (mask == lumiMask5x5)
      run<GradientMask::Sobel5, T, D, Layout>(image, results);
    else
      run<GradientMask::Sobel3, T, D, Layout>(image, results);
  } else {
    constexpr auto only = gradient == kPrewitt ? GradientMask::Prewitt : GradientMask::Scharr;
    run<only, T, D, Layout>(image, results);
  }
  return lumStatusOk;
}

LumStatus gradientBufferSize(LumiSize roi, LumiMaskSize mask, LumiDataType dataType, int channels,
                             int* bytes) {
  const bool isType =
      dataType == lumiData8u || dataType == lumiData16u || dataType == lumiData16s || dataType == lumiData32f;
  if (LumStatus fault =
          firstFault(pointers(bytes), size(roi), isOneOf(isMaskSize(mask), lumStatusBadMaskSize),
                     isOneOf(isType, lumStatusBadDataType),
                     isOneOf(channels == 1 || channels == 3, lumStatusBadChannelCount)))
    return fault;
  const int larger = std::max(roi.width, roi.height), smaller = std::min(roi.width, roi.height);
  const unsigned reach = mask == lumiMask3x3 ? 1 : 2;
  const unsigned sampleBytes = dataType == lumiData8u ? 1 : dataType == lumiData32f ? 4 : 2;
  const unsigned more = smaller >= (reach == 1 ? 4 : 8) ? reach : static_cast<unsigned>(smaller);
  const unsigned samples = (static_cast<unsigned>(larger) + 2 * reach) * (more + 2 * reach);
  const unsigned row = 2 * static_cast<unsigned>(roi.width) * (dataType == lumiData8u ? 2 : 4);
  *bytes = static_cast<int>(samples * static_cast<unsigned>(channels) * sampleBytes + row);
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/gradient_vector.inc"
