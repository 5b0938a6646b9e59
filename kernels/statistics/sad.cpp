// SPDX-License-Identifier: MIT
#include "kernels/statistics/sad.hpp"

#include <algorithm>
#include <cmath>

#include "kernels/simd/convert.hpp"
#include "kernels/simd/floats.hpp"
#include "kernels/statistics/differences.hpp"
#include "kernels/unaligned.hpp"

namespace lumi {
namespace {

using namespace simd;

template <typename T>
Unaligned<T> samplesAt(const Byte* p) {
  return {reinterpret_cast<const T*>(p)};
}

// Sums over 2^scale, to the nearest, ties to even. With q of n the quotient and r the remainder, that is
// q + (r + 2^(scale - 1) - 1 + (q & 1) >> scale); the sum in parentheses is below 2^scale * 1.5, which 32
// bits hold up to a scale of 31. A scale of 32 is a halving that keeps a set last bit, and 31.
class Scale {
 public:
  explicit Scale(int scale)
      : scale_(scale),
        halving_(scale == 32),
        by_(halving_ ? 31 : scale),
        remainder_(broadcast16(halving_ ? UINT32_MAX >> 1 : (uint32_t{1} << scale) - 1)),
        half_(broadcast16(scale == 0 ? 0 : (halving_ ? uint32_t{1} << 30 : uint32_t{1} << (scale - 1)) - 1)),
        last_(broadcast16(uint32_t{halving_})) {}

  U32 operator()(U32 n) const {
    if (scale_ > 0) {
      n = (n >> Shift(halving_)) | (n & last_);
      const U32 q = n >> by_;
      n = q + (((n & remainder_) + half_ + (q & broadcast16(uint32_t{1}))) >> by_);
    }
    return min(n, broadcast16(uint32_t{INT32_MAX}));
  }

 private:
  int scale_;
  bool halving_;
  Shift by_;
  U32 remainder_, half_, last_;
};

// What the windows of neighbouring columns add up to.
template <typename T>
class Sums;

// Sixteen windows of bytes, in words as long as those hold the sums.
template <>
class Sums<uint8_t> {
 public:
  static constexpr size_t kWindows = 16, kSample = 1;

  [[gnu::always_inline]] void addRow(const Byte* p, const Byte* t, size_t taps) {
    // Four taps are a step, and each tap behind them is one: at most kMost of them in a part.
    constexpr size_t part = 4 * (kMost - 3);
    for (; taps > part; taps -= part, p += part, t += part) addPart(p, t, part);
    addPart(p, t, taps);
  }
  void store(Byte* dst, const Scale& scale) {
    flush();
    for (size_t i = 0; i < 4; ++i) store16(dst + 16 * i, scale(sums_[i]).v);
  }
  static uint32_t single(const Byte* p, const Byte* t, size_t taps, uint32_t sum) {
    for (size_t i = 0; i < taps; ++i) sum += static_cast<uint32_t>(std::abs(p[i] - t[i]));
    return sum;
  }

 private:
  static constexpr size_t kMost = UINT16_MAX / (4 * UINT8_MAX);  // steps, each of four taps or one

  [[gnu::always_inline]] void addPart(const Byte* p, const Byte* t, size_t taps) {
    const size_t steps = taps / 4 + taps % 4;
    if (held_ + steps > kMost) flush();
    held_ += steps;
    size_t i = 0;
    for (; i + 4 <= taps; i += 4) {
      const U8 four{loadFew<4>(t + i)};
      low_ = low_ + sumsAtEightPlaces(U8{load16(p + i)}, four);
      // The last window's taps end with the last byte of this load.
      high_ = high_ + sumsAtEightPlaces(U8{bytesFrom<5>(load16(p + i + 3))}, four);
    }
    for (; i < taps; ++i) {
      const U8 d = Distance()(U8{load16(p + i)}, broadcast16(t[i]));
      low_ = low_ + widenLow(d);
      high_ = high_ + widenHigh(d);
    }
  }
  void flush() {
    sums_[0] = sums_[0] + widenLow(low_);
    sums_[1] = sums_[1] + widenHigh(low_);
    sums_[2] = sums_[2] + widenLow(high_);
    sums_[3] = sums_[3] + widenHigh(high_);
    low_ = high_ = broadcast16(uint16_t{0});
    held_ = 0;
  }

  U16 low_ = broadcast16(uint16_t{0}), high_ = low_;
  U32 sums_[4] = {broadcast16(0u), broadcast16(0u), broadcast16(0u), broadcast16(0u)};
  size_t held_ = 0;
};

// Sixteen windows of words.
template <typename T>
class Sums {
 public:
  static constexpr size_t kWindows = 16, kSample = sizeof(T);

  [[gnu::always_inline]] void addRow(const Byte* p, const Byte* t, size_t taps) {
    for (size_t i = 0; i < taps; ++i, p += sizeof(T)) {
      const Samples16<T> tap = broadcast16(samplesAt<T>(t)[i]);
      const U16 a = Distance()(Samples16<T>{load16(p)}, tap),
                b = Distance()(Samples16<T>{load16(p + 16)}, tap);
      sums_[0] = sums_[0] + widenLow(a);
      sums_[1] = sums_[1] + widenHigh(a);
      sums_[2] = sums_[2] + widenLow(b);
      sums_[3] = sums_[3] + widenHigh(b);
    }
  }
  void store(Byte* dst, const Scale& scale) const {
    for (size_t i = 0; i < 4; ++i) store16(dst + 16 * i, scale(sums_[i]).v);
  }
  static uint32_t single(const Byte* p, const Byte* t, size_t taps, uint32_t sum) {
    for (size_t i = 0; i < taps; ++i)
      sum += static_cast<uint32_t>(std::abs(samplesAt<T>(p)[i] - samplesAt<T>(t)[i]));
    return sum;
  }

 private:
  U32 sums_[4] = {broadcast16(0u), broadcast16(0u), broadcast16(0u), broadcast16(0u)};
};

// Eight windows of floats a vector; with four vectors additions do not wait for one another.
template <size_t vectors>
class FloatSums {
 public:
  static constexpr size_t kWindows = 8 * vectors, kSample = sizeof(float);

  FloatSums() {
    for (Floats8& sum : sums_) sum = broadcastFloat<Floats8>(0);
  }
  [[gnu::always_inline]] void addRow(const Byte* p, const Byte* t, size_t taps) {
    for (size_t i = 0; i < taps; ++i, p += sizeof(float)) {
      const Floats8 tap = broadcastFloat<Floats8>(samplesAt<float>(t)[i]);
      for (size_t k = 0; k < vectors; ++k)
        sums_[k] = sums_[k] + Distance()(loadFloats8(p + k * sizeof(Floats8)), tap);
    }
  }
  void store(Byte* dst, const Scale&) const {
    for (size_t k = 0; k < vectors; ++k) store32(dst + k * sizeof(Floats8), bytesOf(sums_[k]));
  }
  static float single(const Byte* p, const Byte* t, size_t taps, float sum) {
    for (size_t i = 0; i < taps; ++i) sum += std::fabs(samplesAt<float>(p)[i] - samplesAt<float>(t)[i]);
    return sum;
  }

 private:
  Floats8 sums_[vectors];
};

// One window by itself.
template <typename Sums>
void storeSingle(SourceRows window, SourceRows tpl, Extent taps, const Scale& scale, Byte* dst) {
  decltype(Sums::single(nullptr, nullptr, 0, {})) sum = 0;
  walkRows(
      taps.rows, [&](const Byte* p, const Byte* t) { sum = Sums::single(p, t, taps.length, sum); }, window,
      tpl);
  if constexpr (std::is_integral_v<decltype(sum)>) sum = firstDword(scale(broadcast16(sum)).v);
  std::memcpy(dst, &sum, sizeof sum);
}

template <typename Sums>
void storeWindows(SourceRows window, SourceRows tpl, Extent taps, const Scale& scale, Byte* dst) {
  Sums sums;
  walkRows(
      taps.rows, [&](const Byte* p, const Byte* t) { sums.addRow(p, t, taps.length); }, window, tpl);
  sums.store(dst, scale);
}

template <typename Sums>
void storeAll(SourceRows src, SourceRows tpl, Extent taps, TargetRows dst, Extent windows,
              const Scale& scale) {
  constexpr size_t step = Sums::kWindows, sumBytes = 4;
  for (int y = 0; y < windows.rows; ++y) {
    const auto windowAt = [&](size_t x) { return SourceRows{src.row(y) + x * Sums::kSample, src.step}; };
    Byte* const d = dst.row(y);
    if (windows.length < step) {
      for (size_t x = 0; x < windows.length; ++x)
        storeSingle<Sums>(windowAt(x), tpl, taps, scale, d + x * sumBytes);
      continue;
    }
    // The last windows are made together too, some of them twice.
    for (size_t x = 0;;) {
      storeWindows<Sums>(windowAt(x), tpl, taps, scale, d + x * sumBytes);
      if (x + step == windows.length) break;
      x = std::min(x + step, windows.length - step);
    }
  }
}

}  // namespace

template <typename T>
void sumDifferences(SourceRows src, SourceRows tpl, Extent tplSamples, TargetRows dst, Extent windows,
                    int scale) {
  storeAll<Sums<T>>(src, tpl, tplSamples, dst, windows, Scale(scale));
}
template <>
void sumDifferences<float>(SourceRows src, SourceRows tpl, Extent tplSamples, TargetRows dst, Extent windows,
                           int) {
  if (windows.length < FloatSums<4>::kWindows)
    storeAll<FloatSums<1>>(src, tpl, tplSamples, dst, windows, Scale(0));
  else
    storeAll<FloatSums<4>>(src, tpl, tplSamples, dst, windows, Scale(0));
}

template void sumDifferences<uint8_t>(SourceRows, SourceRows, Extent, TargetRows, Extent, int);
template void sumDifferences<uint16_t>(SourceRows, SourceRows, Extent, TargetRows, Extent, int);
template void sumDifferences<int16_t>(SourceRows, SourceRows, Extent, TargetRows, Extent, int);

}  // namespace lumi
