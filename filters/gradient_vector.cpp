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

constexpr int kChunk = 512;  // pixels whose sums stay in the nearest cache

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
    isInPlace_ = Layout::kStored == 1 && x > 0 && x + width + kEnd <= image_.size().width;
    for (int y = -kReach; y < kReach; ++y) take(y);
  }

  // Makes the rows about row y those that are under the mask; rows are taken in their order.
  void moveTo(int y) {
    take(y + kReach);
    for (int i = 0; i < kCount; ++i) rows_[i] = *place(y + i - kReach);
  }

  // These rows from a pixel of the strip on.
  void at(int pixel, int channel, const T* (&rows)[kCount]) const {
    for (int i = 0; i < kCount; ++i)
      rows[i] = rows_[i] ? rows_[i] + pixel + channel * Strips::kRow : constants_ + Strips::kBefore;
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

// The results of some pixels of a row, from the sums of their columns.
template <GradientMask mask, typename D, int channels>
class RowResults {
 public:
  static constexpr int kColumns = kChunk + 48;  // with those beside, and a vector that begins there

  D* smooth(int channel) { return smooth_[channel]; }
  D* rise(int channel) { return rise_[channel]; }

  void store(const Results<D>& results, int x, int y, size_t pixels) {
    const GradientSums<D> sums{smooth_[0], rise_[0], kColumns};
    const auto storeVectors = [&](Byte* gx, Byte* gy) {
      const auto orElse = [](Byte* dst, D* work) { return dst ? dst : reinterpret_cast<Byte*>(work); };
      gradientRow<mask, channels>(sums, orElse(gx, vectors_[0]), orElse(gy, vectors_[1]), pixels);
    };
    if (results.gx.image || results.gy.image) storeVectors(results.gx.at(x, y), results.gy.at(x, y));
    if (Byte* const dst = results.magnitude.at(x, y))
      gradientMagnitudeRow<mask, channels>(sums, dst, pixels, results.isL2);
    if (Byte* const dst = results.angle.at(x, y)) {
      storeVectors(nullptr, nullptr);
      gradientAngleRow(vectors_[0], vectors_[1], dst, pixels);
    }
  }

 private:
  alignas(32) D smooth_[channels][kColumns], rise_[channels][kColumns];
  alignas(32) D vectors_[2][kColumns];  // for angles, and in place of what is not wanted
};

template <GradientMask mask, typename T, typename D, typename Layout>
void run(const BorderedImage<kPixelBytes<T, Layout>>& image, const Results<D>& results) {
  using Rows = MaskRows<mask, T, Layout>;
  Rows source(image);
  RowResults<mask, D, Layout::kStored> row;
  const LumiSize size = image.size();
  for (int x = 0, width = 0; x < size.width; x += width) {
    width = source.widthAt(x);
    source.start(x, width);
    for (int y = 0; y < size.height; ++y) {
      source.moveTo(y);
      for (int first = 0; first < width; first += kChunk) {
        const auto pixels = static_cast<size_t>(std::min(kChunk, width - first));
        for (int c = 0; c < Layout::kStored; ++c) {
          const T* rows[Rows::kCount];
          source.at(first, c, rows);
          sumColumns<mask>(rows, pixels, row.smooth(c), row.rise(c));
        }
        row.store(results, x + first, y, pixels);
      }
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
