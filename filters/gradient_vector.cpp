// SPDX-License-Identifier: MIT
// Gradient vectors: strips of rows become words or floats, and each row of a strip its gradients.
#include "lumi/gradient_vector.h"

#include <algorithm>
#include <type_traits>

#include "filters/strip_source.hpp"
#include "frame/check.hpp"
#include "kernels/filters/gradient_vector.hpp"
#include "kernels/path_count.hpp"

namespace lumi {
namespace {

using namespace check;

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

constexpr int kChunk = static_cast<int>(kMostGradients);

// The rows under the mask at a strip of an image, one after the other: where they lie, or where that is not
// enough, copied with what the border says. Of wide images of one channel only strips at both ends are
// copied; rows of what lies between are done as a whole.
template <GradientMask mask, typename T, typename Layout>
class MaskRows {
 public:
  static constexpr int kReach = gradientReach(mask), kCount = 2 * kReach + 1;
  using Strips = Strip<kChunk>;

  explicit MaskRows(const BorderedImage<kPixelBytes<T, Layout>>& image) : image_(image), source_(image) {
    if (Layout::kStored == 1) image.fill(reinterpret_cast<Byte*>(constants_), Strips::kRow);
  }

  // The width of the strip that begins in column x.
  int widthAt(int x) const {
    const int left = image_.size().width - x;
    if (Layout::kStored > 1 || image_.size().width <= kChunk) return std::min(left, kChunk);
    return x == 0 || left <= kEnd ? kEnd : left - kEnd;
  }

  void start(int x, int width) {
    x_ = x;
    width_ = width;
    isInPlace_ = Layout::kStored == 1 && x > 0 && image_.size().width - x - width >= kEnd;
    if (isInPlace_) countPath(Path::GradientsInPlace);
    for (int y = -kReach; y < kReach; ++y) take(y);
  }

  // Makes the rows about row y those that are under the mask; rows are taken in their order.
  void moveTo(int y) {
    take(y + kReach);
    for (int i = 0; i < kCount; ++i) rows_[i] = *place(y + i - kReach);
  }

  // These rows from a pixel of the strip on; channels are planes behind one another.
  void at(int pixel, const T* (&rows)[kCount]) const {
    for (int i = 0; i < kCount; ++i) rows[i] = rows_[i] ? rows_[i] + pixel : constants_ + Strips::kBefore;
  }

 private:
  static constexpr int kEnd = 32;  // pixels at an end: more than are read beyond a strip

  const T** place(int y) { return &taken_[(y + kCount) % kCount]; }

  void take(int y) {
    if (isInPlace_) {
      const Byte* const row = image_.row(y);
      *place(y) = row ? reinterpret_cast<const T*>(row) + x_ : nullptr;
      return;
    }
    T* const copy = ring_.row(y);
    source_.read(y, x_ - kReach, x_ + width_ + kReach, copy - kReach);
    *place(y) = copy;
  }

  const BorderedImage<kPixelBytes<T, Layout>>& image_;
  StripSource<T, T, Layout, Strips> source_;
  RowRing<T, Layout, Strips, kCount> ring_;
  alignas(32) T constants_[Layout::kStored == 1 ? Strips::kRow : 1];
  const T *taken_[kCount], *rows_[kCount];
  int x_ = 0, width_ = 0;
  bool isInPlace_ = false;
};

template <GradientMask mask, typename T, typename D, typename Layout>
void run(const BorderedImage<kPixelBytes<T, Layout>>& image, const Results<D>& results) {
  using Rows = MaskRows<mask, T, Layout>;
  Rows source(image);
  alignas(32) D work[2][kChunk + 8];  // gradients for angles, and in place of one that is not wanted
  const auto orWork = [&](Byte* dst, int which) { return dst ? dst : reinterpret_cast<Byte*>(work[which]); };
  const LumiSize size = image.size();
  const auto runAt = [&](int x, int y, int first, int width) {
    const auto pixels = static_cast<size_t>(std::min(kChunk, width - first));
    const T* rows[Rows::kCount];
    source.at(first, rows);
    const auto make = [&](Byte* gx, Byte* gy, Byte* magnitude) {
      const GradientTargets to{gx, gy, magnitude, results.isL2};
      gradientRow<mask, Layout::kStored>(rows, Rows::Strips::kRow, to, pixels);
    };
    Byte *const gx = results.gx.at(x, y), *const gy = results.gy.at(x, y);
    Byte *const magnitude = results.magnitude.at(x, y), *const angle = results.angle.at(x, y);
    if (gx || gy)
      make(orWork(gx, 0), orWork(gy, 1), magnitude);
    else if (magnitude)
      make(nullptr, nullptr, magnitude);
    if (!angle) return;
    make(orWork(nullptr, 0), orWork(nullptr, 1), nullptr);
    gradientAngleRow(work[0], work[1], angle, pixels);
  };
  for (int x = 0, width = 0; x < size.width; x += width) {
    width = source.widthAt(x);
    source.start(x, width);
    for (int y = 0; y < size.height; ++y) {
      source.moveTo(y);
      for (int first = 0; first < width; first += kChunk) runAt(x + first, y, first, width);
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
