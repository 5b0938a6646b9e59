// SPDX-License-Identifier: MIT
// Filtering with kernels of one dimension.
#include "lumi/separable.h"

#include <algorithm>
#include <cstring>

#include "filters/filter_rounding.hpp"
#include "frame/check.hpp"
#include "frame/layout.hpp"
#include "frame/rows.hpp"
#include "frame/scratch.hpp"
#include "kernels/filters/separable.hpp"

namespace lumi {
namespace {

using namespace check;

// Bytes from a tap's samples to those of the next one, and the least step of a source.
struct AlongRows {
  template <typename T, typename Layout>
  static ptrdiff_t tapStep(int) {
    return kPixelBytes<T, Layout>;
  }
  template <typename T, typename Layout>
  static int64_t rowBytes(LumiSize roi, int kernelSize) {
    return (int64_t{roi.width} + kernelSize - 1) * kPixelBytes<T, Layout>;
  }
};
struct DownColumns {
  template <typename T, typename Layout>
  static ptrdiff_t tapStep(int srcStep) {
    return srcStep;
  }
  template <typename T, typename Layout>
  static int64_t rowBytes(LumiSize roi, int) {
    return int64_t{roi.width} * static_cast<int>(sizeof(T));
  }
};

// Images of one call.
template <typename Direction, typename T, typename Layout>
struct Images {
  const T* src;
  int srcStep;
  T* dst;
  int dstStep;
  LumiSize roi;
  int kernelSize, anchor;

  LumStatus sizes() const { return firstFault(size(roi), kernelSize < 1 ? lumStatusBadSize : lumStatusOk); }
  LumStatus steps() const {
    const int64_t samples = int64_t{roi.width} * static_cast<int>(sizeof(T));  // channels do not count
    const bool fit =
        srcStep >= Direction::template rowBytes<T, Layout>(roi, kernelSize) && dstStep >= samples;
    return fit ? lumStatusOk : lumStatusBadStep;
  }

  // Calls filter(source, tap step, destination, samples).
  template <typename Filter>
  void run(const Filter& filter) const {
    const ptrdiff_t tapStep = Direction::template tapStep<T, Layout>(srcStep);
    // The anchor may lie anywhere: the sum is one of addresses, which wrap.
    const auto before = static_cast<uintptr_t>((int64_t{anchor} - kernelSize + 1) * tapStep);
    const SourceRows s{reinterpret_cast<const Byte*>(reinterpret_cast<uintptr_t>(src) + before), srcStep};
    const TargetRows d = rows(dst, dstStep);
    if constexpr (kAlpha<T, Layout> == 0)
      filter(s, tapStep, d, {static_cast<size_t>(roi.width) * Layout::kStored, roi.height});
    else
      runWithoutAlpha(filter, s, tapStep, d);
  }

 private:
  static constexpr int kPieceWidth = 64, kPieceHeight = 8;

  // Alpha is not written, not even with its own value: results are made apart, of all four samples.
  template <typename Filter>
  void runWithoutAlpha(const Filter& filter, SourceRows s, ptrdiff_t tapStep, TargetRows d) const {
    constexpr int pixel = kPixelBytes<T, Layout>;
    Byte piece[kPieceHeight * kPieceWidth * pixel];
    const TargetRows made{piece, kPieceWidth * pixel};
    const int width = std::min(kPieceWidth, roi.width);
    for (int y = 0; y < roi.height; y += kPieceHeight)
      for (int x = 0; x < roi.width; x += std::min(kPieceWidth, roi.width - x)) {
        const ptrdiff_t at = ptrdiff_t{std::min(x, roi.width - width)} * pixel;
        const int height = std::min(kPieceHeight, roi.height - y);
        filter({s.row(y) + at, s.step}, tapStep, made,
               {static_cast<size_t>(width) * Layout::kStored, height});
        for (int i = 0; i < height; ++i)
          for (int k = 0; k < width; ++k)
            std::memcpy(d.row(y + i) + at + k * pixel, made.row(i) + k * pixel, kUsedBytes<T, Layout>);
      }
  }
};

// What so many taps become: in the call's own memory where they are few, else in memory of the core library.
class TapMemory {
 public:
  TapMemory(int taps, int64_t bytes) : allocated_(taps > kOwnTaps ? allocate(bytes) : nullptr) {
    data_ = taps > kOwnTaps ? static_cast<Byte*>(allocated_) : own_;
  }
  ~TapMemory() { release(allocated_); }
  TapMemory(const TapMemory&) = delete;
  TapMemory& operator=(const TapMemory&) = delete;

  explicit operator bool() const { return data_ != nullptr; }
  Byte* data() const { return data_; }

 private:
  static constexpr int kOwnTaps = 64;
  static constexpr int64_t kOwnBytes = IntegerTaps::pairBytes(kOwnTaps);
  static_assert(kOwnBytes >= kOwnTaps * int64_t{sizeof(Lum32f)});

  void* const allocated_;
  Byte* data_;
  alignas(Lum32f) Byte own_[kOwnBytes];
};

constexpr LumStatus isDivisor(int divisor) { return divisor == 0 ? lumStatusZeroDivisor : lumStatusOk; }

template <typename Direction, typename T, typename Layout>
LumStatus filterBytes(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, const Lum32s* kernel,
                      int kernelSize, int anchor, int divisor) {
  const Images<Direction, T, Layout> images{src, srcStep, dst, dstStep, roi, kernelSize, anchor};
  if (LumStatus fault = firstFault(pointers(src, dst, kernel), images.sizes(), isDivisor(divisor),
                                   [&] { return images.steps(); }))
    return fault;
  const FilterRounding rounding = roundingBy(divisor, lumRoundNearestEven);
  const bool inPairs = IntegerTaps::fitPairs(kernel, kernelSize);
  const TapMemory memory(inPairs ? kernelSize : 0, IntegerTaps::pairBytes(kernelSize));
  if (!memory) return lumStatusNoMemory;
  const IntegerTaps taps = inPairs ? IntegerTaps(kernel, kernelSize, rounding, memory.data())
                                   : IntegerTaps(kernel, kernelSize, rounding);
  images.run([&](SourceRows s, ptrdiff_t tapStep, TargetRows d, Extent samples) {
    taps.filterRows(s, tapStep, d, samples);
  });
  return lumStatusOk;
}

template <typename Direction, typename T, typename Layout, typename Tap>
void runFloats(const Images<Direction, T, Layout>& images, const Tap* kernel) {
  images.run([&](SourceRows s, ptrdiff_t tapStep, TargetRows d, Extent samples) {
    filterFloatTaps<T>(kernel, images.kernelSize, s, tapStep, d, samples);
  });
}

template <typename Direction, typename T, typename Layout>
LumStatus filterWords(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, const Lum32s* kernel,
                      int kernelSize, int anchor, int divisor) {
  const Images<Direction, T, Layout> images{src, srcStep, dst, dstStep, roi, kernelSize, anchor};
  if (LumStatus fault = firstFault(pointers(src, dst, kernel), images.sizes(), isDivisor(divisor),
                                   [&] { return images.steps(); }))
    return fault;
  const TapMemory memory(kernelSize, int64_t{kernelSize} * static_cast<int>(sizeof(Lum32f)));
  if (!memory) return lumStatusNoMemory;
  auto* const floats = reinterpret_cast<Lum32f*>(memory.data());
  const float scale = 1.0F / static_cast<float>(divisor);
  for (int i = 0; i < kernelSize; ++i) {
    Lum32s tap;
    std::memcpy(&tap, kernel + i, sizeof tap);
    floats[i] = static_cast<float>(tap) * scale;
  }
  runFloats(images, floats);
  return lumStatusOk;
}

template <typename Direction, typename T, typename Layout, typename Tap>
LumStatus filterByFloats(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, const Tap* kernel,
                         int kernelSize, int anchor) {
  const Images<Direction, T, Layout> images{src, srcStep, dst, dstStep, roi, kernelSize, anchor};
  if (LumStatus fault =
          firstFault(pointers(src, dst, kernel), images.sizes(), [&] { return images.steps(); }))
    return fault;
  runFloats(images, kernel);
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/separable.inc"
