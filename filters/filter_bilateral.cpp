// SPDX-License-Identifier: MIT
// Runs of bilateral filters. With a border, rows and what is beside them are copied into the buffer, each
// when a disc first covers it.
#include "lumi/filter_bilateral.h"

#include <algorithm>
#include <cstring>

#include "filters/bordered_image.hpp"
#include "filters/filter_bilateral_object.hpp"
#include "frame/check.hpp"
#include "frame/layout.hpp"
#include "kernels/filters/bilateral.hpp"
#include "kernels/planes.hpp"

namespace lumi {
namespace {

using namespace check;

// The rows that discs cover, in turn; channels are planes.
template <typename T, int channels>
class DiscRows {
 public:
  using Image = BorderedImage<static_cast<int>(sizeof(T)) * channels>;

  DiscRows(const Image& image, int radius, Byte* memory)
      : image_(image),
        radius_(radius),
        width_(image.size().width + 2 * radius),
        plane_(static_cast<ptrdiff_t>(sizeof(T)) * width_),
        memory_(memory) {
    for (int y = -radius; y < radius; ++y) take(y);
  }

  // Those of a row of results, from the first to the last.
  DiscPoints next(int y, const Byte* weights) {
    take(y + radius_);
    return {memory_, plane_ * channels, plane_, y % slots(), radius_, weights};
  }

 private:
  int slots() const { return 2 * radius_ + 1; }

  void take(int y) {
    Byte* const row = memory_ + (y + radius_) % slots() * plane_ * channels;
    if constexpr (channels == 1) {
      image_.copy(y, -radius_, image_.size().width + radius_, row);
    } else {
      constexpr int kPiece = 64, kPixel = static_cast<int>(sizeof(T)) * channels;
      alignas(32) Byte piece[kPiece * kPixel];
      for (int x = 0; x < width_; x += kPiece) {
        const int pixels = std::min(kPiece, width_ - x);
        image_.copy(y, x - radius_, x - radius_ + pixels, piece);
        Byte* const to = row + static_cast<ptrdiff_t>(sizeof(T)) * x;
        const PlaneRows<Byte, 3> planes{{to, to + plane_, to + 2 * plane_}, 0};
        splitRows<sizeof(T), 3>({piece, 0}, planes, {static_cast<size_t>(pixels), 1}, false);
      }
    }
  }

  const Image& image_;
  int radius_, width_;
  ptrdiff_t plane_;
  Byte* memory_;
};

// The weights of positions, one for each point. Those of small discs are kept without repetition; at radius 1
// they are part of the weights of values, if there are some.
class PositionWeights {
 public:
  PositionWeights(const Lum8u* stored, int radius, bool areInValues) : weights_(stored) {
    if (radius > 2) return;
    int i = 0;
    for (int dy = -radius; dy <= radius; ++dy)
      for (int dx = -radius; dx <= radius; ++dx) {
        const int squared = dx * dx + dy * dy;
        if (squared > radius * radius) continue;
        float weight = 1;
        const int at = radius == 1 || squared == 4 ? 0 : squared == 2 ? 1 : 2;
        if (squared > 0 && !(radius == 1 && areInValues))
          std::memcpy(&weight, stored + sizeof weight * static_cast<size_t>(at), sizeof weight);
        std::memcpy(few_ + sizeof weight * static_cast<size_t>(i++), &weight, sizeof weight);
      }
    weights_ = few_;
  }
  PositionWeights(const PositionWeights&) = delete;
  PositionWeights& operator=(const PositionWeights&) = delete;

  const Byte* data() const { return weights_; }

 private:
  static constexpr int kFew = 13;
  Byte few_[kFew * sizeof(float)];
  const Byte* weights_;
};

// 2^(factor * d^2) is the weight of a difference. Without a variance the factor is as large as it can be: d^2
// of 0 has the weight 1 all the same.
float factorOf(Lum32f variance) {
  const double factor = -1.4426950408889634 / (2 * static_cast<double>(variance));
  constexpr double kMost = 3e38;
  return static_cast<float>(factor > kMost ? kMost : factor < -kMost ? -kMost : factor);
}

template <typename T, typename Layout>
LumStatus filterBilateralBorder(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi,
                                LumiBorderType borderType, const T* borderValue,
                                const LumiFilterBilateralBorderSpec* spec, Lum8u* buffer) {
  constexpr LumiDataType type = sizeof(T) == 1 ? lumiData8u : lumiData32f;
  constexpr int channels = Layout::kStored;
  const BorderMode border(borderType);
  const bool isTaken = border.isOneOf(lumiBorderConst, lumiBorderReplicate, lumiBorderInMemory);
  if (LumStatus fault =
          firstFault(pointers(src, dst, spec, buffer), size(roi), isTaken ? lumStatusOk : lumStatusBadBorder,
                     [=] { return bilateralIdentity(spec, type, channels); }))
    return fault;
  const BilateralObject object = bilateralObjectAt(spec);
  const Lum8u* const values = bilateralMemory(spec) + kBilateralHeader;
  const int count = bilateralValues(type, channels);
  const PositionWeights weights(values + sizeof(float) * static_cast<size_t>(count), object.radius,
                                count > 0);
  const typename DiscRows<T, channels>::Image image(rows(src, srcStep), roi, border, borderValue);
  DiscRows<T, channels> discs(image, object.radius, buffer);
  const Rows<Byte> results = rows(dst, dstStep);
  for (int y = 0; y < roi.height; ++y) {
    const DiscPoints points = discs.next(y, weights.data());
    if constexpr (sizeof(T) == 1)
      bilateralBytes<channels>(points, values, results.row(y), static_cast<size_t>(roi.width));
    else
      bilateralFloats<channels>(points, factorOf(object.valueVariance), results.row(y),
                                static_cast<size_t>(roi.width));
  }
  return lumStatusOk;
}

// The mask of a run may be larger than that of the object: points beyond it have no weight.
template <typename T, typename Layout>
LumStatus filterBilateral(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, LumiSize mask,
                          const LumiFilterBilateralSpec* spec) {
  if (LumStatus fault = firstFault(pointers(src, dst, spec), size(roi), size(mask), steps(srcStep, dstStep),
                                   [=] { return gridBilateralIdentity(spec); }))
    return fault;
  GridBilateralObject object;
  std::memcpy(&object, static_cast<const void*>(spec), sizeof object);
  const auto* const values = reinterpret_cast<const Byte*>(spec) + kGridBilateralHeader;
  const Byte* const positions = values + sizeof(float) * kByteValues;
  // By steps, where the object has them by pixels.
  alignas(32) Byte weights[sizeof(float) * kMostPositions];
  const int most = (object.positions - 1) / object.step;
  for (int i = 0; i <= most; ++i)
    std::memcpy(weights + sizeof(float) * static_cast<size_t>(i),
                positions + sizeof(float) * static_cast<size_t>(i * object.step), sizeof(float));
  const auto reach = [&](int side) { return std::min((side - 1) / 2 / object.step, most); };
  const Rows<const Byte> sources = rows(src, srcStep);
  const Rows<Byte> results = rows(dst, dstStep);
  for (int y = 0; y < roi.height; ++y)
    bilateralBytes(
        {{sources.row(y), sources.step}, reach(mask.width), reach(mask.height), object.step, weights}, values,
        results.row(y), static_cast<size_t>(roi.width));
  return lumStatusOk;
}

// By the types and the layout of the names.
template <typename T, typename Layout>
LumStatus filterBilateralSize(int filterType, LumiSize roi, LumiSize mask, int* bytes) {
  return gridBilateralSize(filterType, roi, mask, bytes);
}
template <typename T, typename Layout>
LumStatus filterBilateralInit(int filterType, LumiSize mask, Lum32f valueSigma, Lum32f positionSigma,
                              int step, LumiFilterBilateralSpec* spec) {
  return initGridBilateral(filterType, mask, valueSigma, positionSigma, step, spec);
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/filter_bilateral.inc"
