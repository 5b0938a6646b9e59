// SPDX-License-Identifier: MIT
// Thresholds of the surroundings. Both members, by plain and by weighted means, have one frame; they differ
// in what is summed, and in the kernel that compares.
#include "lumi/threshold_adaptive.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "filters/box_mean.hpp"
#include "frame/check.hpp"
#include "kernels/filters/exponential.hpp"
#include "kernels/filters/threshold_adaptive.hpp"
#include "lumi/set.h"

namespace lumi {
namespace {

using namespace check;

LumStatus sides(LumiSize mask) {
  const bool isGood = mask.width == mask.height && mask.width >= 1 && mask.width % 2 == 1;
  return isGood ? lumStatusOk : lumStatusBadMaskSize;
}
constexpr LumStatus bytesOnly(LumiDataType type) {
  return type == lumiData8u ? lumStatusOk : lumStatusBadDataType;
}
constexpr LumStatus oneChannel(int channels) {
  return channels == 1 ? lumStatusOk : lumStatusBadChannelCount;
}
constexpr LumStatus borderType(LumiBorderType border) {
  const bool isKnown = BorderMode(border).isOneOf(lumiBorderConst, lumiBorderReplicate, lumiBorderInMemory);
  return isKnown ? lumStatusOk : lumStatusBadBorder;
}

// Modulo 2^32.
int adaptiveBytes(LumiSize area, LumiSize mask) {
  using U = uint32_t;
  const auto padded = [](U n) { return (n + 31) & ~U{31}; };
  const U width = static_cast<U>(area.width), height = static_cast<U>(area.height);
  const U side = static_cast<U>(mask.width), reach = side / 2, columns = side + width - 1;
  const U base = padded((padded(columns) + 4) * side + padded(4 * width) * (side + 1));
  if (mask.width > area.width || mask.width > area.height)
    return static_cast<int>(base + padded(columns * (side + height - 1)));
  return static_cast<int>(base + padded((std::max(width, height) + (side & ~U{1})) * 3 * reach) +
                          2 * padded(reach * width) + 2 * padded(reach * height));
}

LumStatus adaptiveBufferSize(LumiSize area, LumiSize mask, LumiDataType dataType, int channels,
                             int* bufferSize) {
  if (LumStatus fault = firstFault(pointers(bufferSize), size(area), sides(mask), bytesOnly(dataType),
                                   oneChannel(channels)))
    return fault;
  *bufferSize = adaptiveBytes(area, mask);
  return lumStatusOk;
}

// What both members take.
struct Arguments {
  const Lum8u* src;
  int srcStep;
  Lum8u* dst;
  int dstStep;
  LumiSize roi;
  LumiSize mask;
  Lum32f delta;
  Lum8u above, notAbove;
  LumiBorderType border;
  Lum8u borderValue;
  Lum8u* buffer;

  bool isInPlace() const { return src == dst && srcStep == dstStep; }
};

LumStatus fill(const Arguments& a, bool isAbove) {
  return lumiSet_8u_C1R(isAbove ? a.above : a.notAbove, a.dst, a.dstStep, a.roi);
}

// Calls run(image, memory behind that which it asks for by bytes(image)) unless delta or the window alone
// decide.
template <typename Bytes, typename Run>
LumStatus compareWithSurroundings(const Arguments& a, const Bytes& bytes, const Run& run) {
  if (a.delta > 255.0F) return fill(a, true);
  if (a.delta <= -255.0F) return fill(a, false);
  if (a.mask.width == 1) return fill(a, a.delta > 0);
  const int reach = a.mask.width / 2;
  WindowImage image{rows(a.src, a.srcStep), a.roi, 1, 1, a.mask, {reach, reach}};
  const BorderMode border(a.border);
  image.takeBorder(border);
  image.overwritten = a.isInPlace();
  Byte* const kept = a.buffer + bytes(image);
  if (border.type() == lumiBorderConst && !border.isAllInMemory()) {
    Byte* const constants = kept + image.keptBytes();
    std::memset(constants, a.borderValue, static_cast<size_t>(image.samplesInMemory()));
    image.constants = constants;
  }
  CoveredRows covered(image, kept);
  run(image, covered);
  return lumStatusOk;
}

using CompareSums = void (*)(const AdaptiveRule&, const Byte*, const Byte*, Byte*, size_t);

// The numbers that are exact for sums of the window, and what compares with them.
struct SumPlan {
  const SumKernels* sums;
  CompareSums compare;
};
SumPlan planOf(LumiSize mask) {
  const int64_t area = areaOf(mask);
  if (area == 9) return {&sumKernels<Lum8u, uint16_t>(1), compareWithNinths};
  if (area <= kWordArea) return {&sumKernels<Lum8u, uint16_t>(1), compareWithSums<uint16_t>};
  if (area <= kExactArea<Lum8u>) return {&sumKernels<Lum8u, uint32_t>(1), compareWithSums<uint32_t>};
  return {&sumKernels<Lum8u, float>(1), compareWithSums<float>};
}

LumStatus thresholdByBox(const Arguments& a) {
  const SumPlan plan = planOf(a.mask);
  const auto area = static_cast<float>(areaOf(a.mask));
  AdaptiveRule rule{a.above, a.notAbove, area * a.delta, area};
  const auto run = [&](const WindowImage& image, CoveredRows& covered) {
    // No delta beyond 255 comes here; one that is no number is never above.
    if (area == 9) rule.ninth = static_cast<int16_t>(std::isnan(a.delta) ? INT16_MIN : std::ceil(rule.delta));
    const Rows<Byte> dst = rows(a.dst, a.dstStep);
    forEachRow(image, covered, MovingSums(*plan.sums, image, covered, a.buffer),
               [&](const Byte* sums, int y) {
                 plan.compare(rule, sums, covered.inner(y), dst.row(y), static_cast<size_t>(a.roi.width));
               });
  };
  return compareWithSurroundings(
      a, [&](const WindowImage& image) { return MovingSums::bytes(image, plan.sums->sumBytes); }, run);
}

template <typename T, typename Layout>
LumStatus thresholdBox(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, LumiSize mask,
                       Lum32f delta, T above, T notAbove, LumiBorderType border, T borderValue,
                       Lum8u* buffer) {
  if (LumStatus fault = firstFault(pointers(src, dst, buffer), size(roi), sides(mask), borderType(border)))
    return fault;
  return thresholdByBox(
      {src, srcStep, dst, dstStep, roi, mask, delta, above, notAbove, border, borderValue, buffer});
}
template <typename T, typename Layout>
LumStatus thresholdBox(T* srcDst, int step, LumiSize roi, LumiSize mask, Lum32f delta, T above, T notAbove,
                       LumiBorderType border, T borderValue, Lum8u* buffer) {
  return thresholdBox<T, Layout>(srcDst, step, srcDst, step, roi, mask, delta, above, notAbove, border,
                                 borderValue, buffer);
}

// The object lies on the first boundary behind the caller's pointer; how far behind, the byte there tells.
struct GaussObject {
  uint32_t identifier;
  int32_t dataType, channels, side;
  float sigma;
  int32_t weights;  // bytes from the object to its weights; never 0

  const float* firstWeight() const {
    return reinterpret_cast<const float*>(reinterpret_cast<const Byte*>(this) + weights);
  }
};
constexpr uint32_t kGaussIdentifier = 0x4B61738E;
constexpr uintptr_t kGaussAlignment = 8;
static_assert(sizeof(GaussObject) + kGaussAlignment == 32);

LumStatus adaptiveSizes(LumiSize area, LumiSize mask, LumiDataType dataType, int channels, int* specSize,
                        int* bufferSize) {
  if (LumStatus fault = firstFault(
          pointers(specSize), [=] { return adaptiveBufferSize(area, mask, dataType, channels, bufferSize); }))
    return fault;
  *specSize = static_cast<int>(static_cast<uint32_t>(mask.width) * 4 + 32);
  return lumStatusOk;
}

LumStatus initAdaptiveGauss(LumiSize area, LumiSize mask, LumiDataType dataType, int channels, Lum32f sigma,
                            LumiThresholdAdaptiveGaussSpec* spec) {
  if (LumStatus fault =
          firstFault(pointers(spec), size(area), sides(mask), bytesOnly(dataType), oneChannel(channels)))
    return fault;
  auto* const start = reinterpret_cast<Byte*>(spec);
  Byte* const at = start + (kGaussAlignment - reinterpret_cast<uintptr_t>(start) % kGaussAlignment);
  *start = static_cast<Byte>(at - start);
  if (sigma <= 0) sigma = static_cast<float>(0.3 * ((mask.width - 1) * 0.5 - 1) + 0.8);
  constexpr int32_t header = sizeof(GaussObject);
  auto* const object = reinterpret_cast<GaussObject*>(at);
  *object = {kGaussIdentifier, dataType, channels, mask.width, sigma, header};
  auto* const weights = reinterpret_cast<float*>(at + header);
  const int reach = mask.width / 2;
  const float width = sigma * (sigma + sigma);
  float sum = 0;
  for (int i = -reach; i <= reach; ++i) {
    const auto weight = static_cast<float>(exponentialOfNegative(-(double{1} * i * i) / double{width}));
    weights[i + reach] = weight;
    sum += weight;
  }
  const float scale = 1.0F / sum;
  for (int i = 0; i < mask.width; ++i) weights[i] *= scale;
  return lumStatusOk;
}

const GaussObject* gaussObject(const LumiThresholdAdaptiveGaussSpec* spec) {
  const auto* const start = reinterpret_cast<const Byte*>(spec);
  return reinterpret_cast<const GaussObject*>(start + *start);
}

LumStatus isGaussObject(const LumiThresholdAdaptiveGaussSpec* spec) {
  const auto* const start = reinterpret_cast<const Byte*>(spec);
  if (*start < 1 || *start > kGaussAlignment ||
      reinterpret_cast<uintptr_t>(start + *start) % kGaussAlignment != 0)
    return lumStatusBadContext;
  const GaussObject& object = *gaussObject(spec);
  const bool isOne = object.identifier == kGaussIdentifier && object.dataType == lumiData8u &&
                     object.channels == 1 && object.side > 0 && object.side % 2 == 1 && object.weights != 0;
  return isOne ? lumStatusOk : lumStatusBadContext;
}

// Sums of weighted rows, column by column.
class WeighedColumns {
 public:
  WeighedColumns(const GaussObject& object, const WindowImage& image, const CoveredRows& rows, Byte* columns)
      : object_(object), image_(image), rows_(rows), columns_(columns) {
    if (!image.constants) return;
    const auto constant = [&](int) { return image.constants; };
    weigh(constant, constant_, 1);
  }

  const Byte* next() {
    const int64_t first = y_++ - image_.anchor.y;
    weigh([&](int i) { return rows_.row(first + i); },
          columns_ + static_cast<size_t>(image_.anchor.x - image_.inMemory.left) * sizeof(float),
          static_cast<size_t>(image_.samplesInMemory()));
    completeColumns(image_, sizeof(float), columns_, image_.constants ? constant_ : nullptr);
    return columns_;
  }

 private:
  template <typename RowOf>
  void weigh(const RowOf& rowOf, Byte* sums, size_t count) const {
    for (int i = 0; i < object_.side; i += kWeighedRows) {
      const Byte* rows[kWeighedRows];
      const int taken = std::min(kWeighedRows, object_.side - i);
      for (int k = 0; k < taken; ++k) rows[k] = rowOf(i + k);
      weighRows(rows, object_.firstWeight() + i, taken, i == 0, sums, count);
    }
  }

  const GaussObject& object_;
  const WindowImage& image_;
  const CoveredRows& rows_;
  Byte* columns_;
  Byte constant_[sizeof(float)];
  int64_t y_ = 0;
};

LumStatus thresholdByGauss(const Arguments& a, const GaussObject& object) {
  const AdaptiveRule rule{a.above, a.notAbove, a.delta};
  const auto run = [&](const WindowImage& image, CoveredRows& covered) {
    const Rows<Byte> dst = rows(a.dst, a.dstStep);
    forEachRow(image, covered, WeighedColumns(object, image, covered, a.buffer),
               [&](const Byte* columns, int y) {
                 compareWithWeighed(rule, columns, object.firstWeight(), object.side, covered.inner(y),
                                    dst.row(y), static_cast<size_t>(a.roi.width));
               });
  };
  return compareWithSurroundings(
      a, [](const WindowImage& image) { return image.covered() * static_cast<int64_t>(sizeof(float)); }, run);
}

template <typename T, typename Layout>
LumStatus thresholdGauss(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, Lum32f delta, T above,
                         T notAbove, LumiBorderType border, T borderValue,
                         const LumiThresholdAdaptiveGaussSpec* spec, Lum8u* buffer) {
  if (LumStatus fault = firstFault(pointers(src, dst, spec, buffer), size(roi), borderType(border),
                                   [=] { return isGaussObject(spec); }))
    return fault;
  const GaussObject& object = *gaussObject(spec);
  const LumiSize mask{object.side, object.side};
  return thresholdByGauss(
      {src, srcStep, dst, dstStep, roi, mask, delta, above, notAbove, border, borderValue, buffer}, object);
}
template <typename T, typename Layout>
LumStatus thresholdGauss(T* srcDst, int step, LumiSize roi, Lum32f delta, T above, T notAbove,
                         LumiBorderType border, T borderValue, const LumiThresholdAdaptiveGaussSpec* spec,
                         Lum8u* buffer) {
  return thresholdGauss<T, Layout>(srcDst, step, srcDst, step, roi, delta, above, notAbove, border,
                                   borderValue, spec, buffer);
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/threshold_adaptive.inc"
