// SPDX-License-Identifier: MIT
#include "statistics/histogram_object.hpp"

#include <algorithm>

#include "kernels/unaligned.hpp"

namespace lumi {
namespace {

using namespace check;

LumStatus dataTypes(LumiDataType type) {
  return type == lumiData8u || type == lumiData16u || type == lumiData16s || type == lumiData32f
             ? lumStatusOk
             : lumStatusBadDataType;
}

LumStatus channelCount(int channels) {
  return channels == 1 || channels == 3 || channels == 4 ? lumStatusOk : lumStatusBadChannelCount;
}

// check(channel) of each channel, until one finds a fault.
template <typename Check>
LumStatus ofChannels(int channels, const Check& check) {
  LumStatus fault = lumStatusOk;
  for (int c = 0; c < channels && !fault; ++c) fault = check(c);
  return fault;
}

bool ascends(Unaligned<Lum32f> levels, int count) {
  for (int k = 1; k < count; ++k)
    if (!(levels[k - 1] < levels[k])) return false;
  return true;
}

// Towards zero, and limited to what there is; NaN is the lowest.
Lum32s truncated(double x) {
  if (!(x > INT32_MIN)) return INT32_MIN;
  return x < INT32_MAX ? static_cast<Lum32s>(x) : INT32_MAX;
}

// Stores the levels of one channel, as the object's type has them.
class LevelWriter {
 public:
  LevelWriter(LumiDataType type, Lum8u* first) : isFloat_(type == lumiData32f), next_(first) {}

  const void* next() const { return next_; }
  void store(double level) {
    const auto f = static_cast<Lum32f>(level);
    const Lum32s i = truncated(level);
    std::memcpy(next_, isFloat_ ? static_cast<const void*>(&f) : &i, sizeof i);
    next_ += sizeof i;
  }

 private:
  bool isFloat_;
  Lum8u* next_;
};

// Makes the object, of which store(channel, writer) stores the levels. The identifier is the last to be
// written, so that nothing but a finished object has one.
template <typename Store>
void makeObject(LumiDataType dataType, Unaligned<int> count, int channels, bool uniform,
                LumiHistogramSpec* spec, const Store& store) {
  auto* const memory = reinterpret_cast<Lum8u*>(spec);
  HistogramObject object{dataType, channels, uniform, 0, {}, {}};
  LevelWriter writer(dataType, memory + sizeof object);
  for (int c = 0; c < channels; ++c) {
    object.counts[c] = count[c];
    object.levels[c] = writer.next();
    store(c, writer);
  }
  std::memcpy(memory, &object, sizeof object);
  std::memcpy(memory + offsetof(HistogramObject, identifier), &kHistogramIdentifier,
              sizeof kHistogramIdentifier);
}

// The levels that divide a range evenly. The first and the last one are the bounds themselves.
class EvenLevels {
 public:
  EvenLevels(LumiDataType type, Lum32f lower, Lum32f upper, int count)
      : lower_(lower), upper_(upper), last_(count - 1) {
    step_ = type == lumiData32f ? (upper - lower) / static_cast<Lum32f>(last_)
                                : (static_cast<double>(upper) - lower) / last_;
  }
  double step() const { return step_; }
  double operator[](int k) const { return k == 0 ? lower_ : k == last_ ? upper_ : lower_ + step_ * k; }

 private:
  double lower_, upper_, step_;
  int last_;
};

}  // namespace

LumStatus histogramSizes(LumiDataType dataType, LumiSize roi, const int* count, int channels, int,
                         int* specSize, int* bufferSize) {
  const Unaligned<int> counts{count};
  const auto levelCounts = [=] {
    return ofChannels(channels, [=](int c) { return histogramLevelCount(counts[c]); });
  };
  if (LumStatus fault =
          firstFault(pointers(count, specSize, bufferSize), size(roi), channelCount(channels), levelCounts))
    return fault;
  Lum32u levels = 0;
  for (int c = 0; c < channels; ++c) levels += static_cast<Lum32u>(counts[c]);
  const bool isWord = dataType == lumiData16u || dataType == lumiData16s;
  *specSize = static_cast<int>(static_cast<Lum32u>(sizeof(HistogramObject)) + 4 * levels);
  *bufferSize = channels * (dataType == lumiData8u ? 1024 : isWord ? 262144 : 0);
  return dataTypes(dataType);
}

LumStatus initHistogram(LumiDataType dataType, const Lum32f* const* levels, const int* count, int channels,
                        LumiHistogramSpec* spec) {
  const Unaligned<int> counts{count};
  const Unaligned<const Lum32f*> lists{levels};
  const auto level = [=](int c) {
    return firstFault(pointers(lists[c]), histogramLevelCount(counts[c]),
                      [=] { return ascends({lists[c]}, counts[c]) ? lumStatusOk : lumStatusBadRange; });
  };
  if (LumStatus fault = firstFault(dataTypes(dataType), pointers(levels, count, spec), channelCount(channels),
                                   [=] { return ofChannels(channels, level); }))
    return fault;
  makeObject(dataType, counts, channels, false, spec, [=](int c, LevelWriter& writer) {
    for (int k = 0; k < counts[c]; ++k) writer.store(Unaligned<Lum32f>{lists[c]}[k]);
  });
  return lumStatusOk;
}

LumStatus initUniformHistogram(LumiDataType dataType, const Lum32f* lower, const Lum32f* upper,
                               const int* count, int channels, LumiHistogramSpec* spec) {
  const Unaligned<int> counts{count};
  const Unaligned<Lum32f> lowest{lower}, highest{upper};
  const auto range = [=](int c) {
    return firstFault(histogramLevelCount(counts[c]),
                      lowest[c] < highest[c] ? lumStatusOk : lumStatusBadRange);
  };
  if (LumStatus fault = firstFault(dataTypes(dataType), pointers(lower, upper, count, spec),
                                   channelCount(channels), [=] { return ofChannels(channels, range); }))
    return fault;
  bool haveEmpty = false;
  makeObject(dataType, counts, channels, true, spec, [&](int c, LevelWriter& writer) {
    const EvenLevels levels(dataType, lowest[c], highest[c], counts[c]);
    for (int k = 0; k < counts[c]; ++k) writer.store(levels[k]);
    haveEmpty |= dataType != lumiData32f && levels.step() < 1;
  });
  return haveEmpty ? lumStatusSizeAboveSpec : lumStatusOk;
}

LumStatus histogramLevels(const LumiHistogramSpec* spec, Lum32f* const* levels) {
  const Unaligned<Lum32f*> lists{levels};
  const auto arrays = [=] {
    return ofChannels(histogramObjectAt(spec).channels, [=](int c) { return pointers(lists[c]); });
  };
  if (LumStatus fault = firstFault(
          pointers(spec, levels), [=] { return identity(spec); }, arrays))
    return fault;
  const HistogramObject object = histogramObjectAt(spec);
  for (int c = 0; c < object.channels; ++c) {
    const auto* const from = static_cast<const Lum8u*>(object.levels[c]);
    auto* const to = reinterpret_cast<Lum8u*>(lists[c]);
    for (size_t at = 0; at < sizeof(Lum32f) * static_cast<size_t>(object.counts[c]); at += sizeof(Lum32f)) {
      Lum32s integer;
      std::memcpy(&integer, from + at, sizeof integer);
      const auto level = static_cast<Lum32f>(integer);
      if (object.dataType == lumiData32f)
        std::memcpy(to + at, &integer, sizeof integer);
      else
        std::memcpy(to + at, &level, sizeof level);
    }
  }
  return lumStatusOk;
}

}  // namespace lumi
