// SPDX-License-Identifier: MIT
// Integer taps.
#include "kernels/filters/separable.hpp"

#include <algorithm>
#include <cstdlib>

#include "kernels/filters/filter_blocks.hpp"
#include "kernels/filters/tap_lines.hpp"
#include "kernels/path_count.hpp"

namespace lumi {
namespace {

using namespace simd;

constexpr size_t kFew = 8;  // what one block has at the least

// A tap in the order of the samples.
int32_t tapAt(const int32_t* taps, int count, int i) {
  int32_t tap;
  move<sizeof tap>(reinterpret_cast<Byte*>(&tap), reinterpret_cast<const Byte*>(taps + (count - 1 - i)));
  return tap;
}

// Every pair as often as sixteen bytes hold it.
template <typename Tap>
void pack(const int32_t* taps, int count, int later, Byte* packed) {
  const auto tap = [&](int i) { return static_cast<Tap>(i < 0 || i >= count ? 0 : tapAt(taps, count, i)); };
  for (int i = -later; i + later <= count; i += 2)
    for (size_t k = 0; k < kPairBytes; k += 2 * sizeof(Tap), packed += 2 * sizeof(Tap)) {
      const Tap pair[2] = {tap(i), tap(i + 1)};
      move<sizeof pair>(packed, reinterpret_cast<const Byte*>(pair));
    }
}

// Rows of at least kFew samples.
template <typename Form, typename Divide>
void runPairs(const TapPairs& taps, const Divide& divide, SourceRows src, ptrdiff_t tapStep, TargetRows dst,
              Extent samples) {
  if (Form::kSumBytes == 2) countPath(Path::TapWordSums);
  if (src.step == tapStep && samples.rows > 1) countPath(Path::TapRowsShared);
  int y = 0;
  if (src.step == tapStep)
    for (; y + 1 < samples.rows; y += 2) {
      const auto block = [&](auto size, size_t i) {
        storeTapSums<Form, 2, decltype(size)::value>(taps, src.row(y) + i, tapStep,
                                                     {dst.row(y) + i, dst.step}, divide);
      };
      if constexpr (Form::kSumBytes == 2)
        inBlocks<16, 8>(samples.length, block);
      else
        inBlocks<8>(samples.length, block);
    }
  for (; y < samples.rows; ++y)
    inVectorBlocks(samples.length, [&](auto size, size_t i) {
      storeTapSums<Form, 1, decltype(size)::value>(taps, src.row(y) + i, tapStep, {dst.row(y) + i, dst.step},
                                                   divide);
    });
}

// Sums of whole products, for any taps and any number of samples.
template <typename Divide>
class Dwords {
 public:
  Dwords(const int32_t* taps, int count, ptrdiff_t tapStep, const Divide& divide)
      : taps_(taps), count_(count), tapStep_(tapStep), divide_(divide) {}

  void run(const Byte* src, Byte* dst, size_t samples) const {
    if (samples < kFew) return few(src, dst, samples);
    inBlocks<kFew, kFew>(samples,
                         [&](auto, size_t i) { storeSums<uint8_t>(dst + i, sums(src + i), divide_); });
  }

 private:
  Sums<2, 16> sums(const Byte* p) const {
    Sums<2, 16> sums;
    for (int i = 0; i < count_; ++i, p += tapStep_) {
      const S32 tap = broadcast16(tapAt(taps_, count_, i));
      const U8 x{loadFew<8>(p)};
      sums.at[0] = sums.at[0] + as<int32_t>(widen<uint32_t>(x)) * tap;
      sums.at[1] = sums.at[1] + as<int32_t>(widen<uint32_t>(upperDword(x))) * tap;
    }
    return sums;
  }

  void few(const Byte* p, Byte* dst, size_t samples) const {
    uint32_t each[kFew] = {};
    for (int i = 0; i < count_; ++i, p += tapStep_)
      for (size_t s = 0; s < samples; ++s) each[s] += p[s] * static_cast<uint32_t>(tapAt(taps_, count_, i));
    Sums<2, 16> sums;
    for (const size_t half : {0, 1}) sums.at[half] = {load16(reinterpret_cast<const Byte*>(each + 4 * half))};
    Byte stored[kFew];
    storeSums<uint8_t>(stored, sums, divide_);
    std::copy_n(stored, samples, dst);
  }

  const int32_t* taps_;
  int count_;
  ptrdiff_t tapStep_;
  Divide divide_;
};

}  // namespace

bool IntegerTaps::fitPairs(const int32_t* taps, int count) {
  for (int i = 0; i < count; ++i) {
    const int32_t tap = tapAt(taps, count, i);
    if (tap != static_cast<int16_t>(tap)) return false;
  }
  return true;
}

// Sums of words have 255 times the taps' magnitudes at the most, and so have their pairs, which are limited
// to 2^15 - 1.
IntegerTaps::Form IntegerTaps::formOf() const {
  int64_t magnitudes = 0;
  int highest = 0, lowest = 0, highestPair = 0;
  for (int i = 0, before = 0; i < count_; ++i) {
    const int tap = tapAt(taps_, count_, i);
    magnitudes += std::abs(tap);
    highest = std::max(highest, tap);
    lowest = std::min(lowest, tap);
    highestPair = std::max(highestPair, before + tap);
    before = tap;
  }
  if (highest > INT8_MAX || rounding_.shift > kMostWordShift) return Form::Dwords;
  if (magnitudes <= 128) return Form::Words;
  const bool fits = lowest == 0 && highestPair <= 128 && magnitudes <= 257 && rounding_.shift > 0;
  return fits ? Form::UnsignedWords : Form::Dwords;
}

IntegerTaps::IntegerTaps(const int32_t* taps, int count, const FilterRounding& rounding, uint8_t* memory)
    : IntegerTaps(taps, count, rounding) {
  form_ = formOf();
  Byte* const second = memory + pairBytes(count) / 2;
  const auto packBoth = form_ == Form::Dwords ? pack<int16_t> : pack<int8_t>;
  packBoth(taps, count, 0, memory);
  packBoth(taps, count, 1, second);
  first_ = memory, second_ = second;
}

void IntegerTaps::filterRows(SourceRows src, ptrdiff_t tapStep, TargetRows dst, Extent samples) const {
  const TapPairs pairs{count_, first_, second_};
  const auto inWords = [&](const auto& divide) {
    runPairs<InWords>(pairs, divide, src, tapStep, dst, samples);
  };
  if (!first_ || samples.length < kFew)
    withDivision(rounding_, [&](const auto& divide) {
      const Dwords<std::decay_t<decltype(divide)>> line(taps_, count_, tapStep, divide);
      walkRows(
          samples.rows, [&](const Byte* s, Byte* d) { line.run(s, d, samples.length); }, src, dst);
    });
  else if (form_ == Form::Dwords)
    withDivision(rounding_,
                 [&](const auto& divide) { runPairs<InDwords>(pairs, divide, src, tapStep, dst, samples); });
  else if (form_ == Form::UnsignedWords)
    inWords(ByShiftUnsigned(rounding_));
  else
    withWordDivision(rounding_, inWords);
}

}  // namespace lumi
