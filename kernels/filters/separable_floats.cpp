// SPDX-License-Identifier: MIT
// Float taps. No product is fused with a sum: the order of the sums, and so each bit, is part of the result.
#include <algorithm>
#include <type_traits>
#include <utility>

#include "kernels/filters/filter_blocks.hpp"
#include "kernels/filters/filter_floats.hpp"
#include "kernels/filters/separable.hpp"
#include "kernels/simd/elementary.hpp"

namespace lumi {
namespace {

using namespace simd;

// Samples as a vector of sums, or as a single one.
template <typename V, typename T>
V loadAs(const Byte* p) {
  if constexpr (std::is_arithmetic_v<V>) {
    T sample;
    move<sizeof sample>(reinterpret_cast<Byte*>(&sample), p);
    return static_cast<V>(sample);
  } else if constexpr (std::is_floating_point_v<T>) {
    return samplesOf<T>(load32(p));
  } else {
    return floatsAt<T>(p);
  }
}

template <typename V, typename Tap>
V broadcastTap(const Tap* at) {
  const Tap tap = loadAs<Tap, Tap>(reinterpret_cast<const Byte*>(at));
  if constexpr (std::is_arithmetic_v<V>)
    return tap;
  else if constexpr (std::is_same_v<V, Doubles4>)
    return broadcastDouble(tap);
  else
    return broadcastFloat<V>(tap);
}

template <typename T, typename V>
void storeSamples(Byte* dst, V sums) {
  if constexpr (std::is_floating_point_v<T> && std::is_arithmetic_v<V>) {
    move<sizeof sums>(dst, reinterpret_cast<const Byte*>(&sums));
  } else if constexpr (std::is_floating_point_v<T>) {
    store32(dst, bytesOf(sums));
  } else if constexpr (std::is_arithmetic_v<V>) {
    Byte stored[16];
    storeAs<T>(stored, broadcastFloat<Floats8>(sums));
    move<sizeof(T)>(dst, stored);
  } else {
    storeAs<T>(dst, sums);
  }
}

template <typename F, int... i>
[[gnu::always_inline]] inline void eachOf(std::integer_sequence<int, i...>, [[maybe_unused]] F f) {
  (f(std::integral_constant<int, i>()), ...);
}

// Taps over samples of type S, which lie a step apart, with results of type D.
template <typename S, typename D, typename Tap>
class FloatLine {
 public:
  FloatLine(const Tap* taps, int count, ptrdiff_t step)
      : last_(taps + (count - 1)), count_(count), step_(step) {}

  void run(SourceRows src, TargetRows dst, Extent samples) const {
    if (samples.length < kWide)
      return walkRows(
          samples.rows, [&](const Byte* s, Byte* d) { few(s, d, samples.length); }, src, dst);
    int y = 0;
    if (src.step == step_ && count_ >= kShared - 1)
      for (; y + kShared <= samples.rows; y += kShared)
        inBlocks<kWide>(samples.length, [&](auto, size_t i) { block<Wide, kShared, 1>(src, dst, y, i); });
    for (; y < samples.rows; ++y)
      inBlocks<4 * kWide, kWide>(samples.length, [&](auto size, size_t i) {
        block<Wide, 1, decltype(size)::value / kWide>(src, dst, y, i);
      });
  }

 private:
  using Wide = std::conditional_t<std::is_same_v<Tap, double>, Doubles4, Floats8>;
  static constexpr int kWide = static_cast<int>(32 / sizeof(Tap));
  static constexpr int kShared = 4;  // rows of the result that share samples

  void few(const Byte* src, Byte* dst, size_t samples) const {
    for (size_t i = 0; i < samples; ++i) block<Tap, 1, 1>({src, 0}, {dst, 0}, 0, i);
  }

  template <typename V, int rows, int vectors>
  [[gnu::always_inline]] void block(SourceRows src, TargetRows dst, int y, size_t i) const {
    constexpr size_t lanes = sizeof(V) / sizeof(Tap);
    V sums[rows][vectors] = {};
    sum(sums, src.row(y) + i * sizeof(S));
    for (int r = 0; r < rows; ++r)
      for (size_t v = 0; v < vectors; ++v)
        storeSamples<D>(dst.row(y + r) + (i + v * lanes) * sizeof(D), sums[r][v]);
  }

  // The first samples are under no tap of the later rows, and the last ones under none of the earlier rows.
  template <typename V, int rows, int vectors>
  [[gnu::always_inline]] void sum(V (&sums)[rows][vectors], const Byte* p) const {
    const std::make_integer_sequence<int, rows - 1> others;
    ptrdiff_t at = 0;
    eachOf(others, [&](auto i) { add<0, i + 1>(sums, p, at), p += step_, --at; });
    for (int left = count_ - rows + 1; left > 0; --left, p += step_, --at) add<0, rows>(sums, p, at);
    eachOf(others, [&](auto i) { add<i + 1, rows>(sums, p, at), p += step_, --at; });
  }

  // The products of the samples at p, for some of the rows; `at` tells which tap the first row has.
  template <int first, int end, typename V, int rows, int vectors>
  [[gnu::always_inline]] void add(V (&sums)[rows][vectors], const Byte* p, ptrdiff_t at) const {
    for (int v = 0; v < vectors; ++v) {
      const V x = loadAs<V, S>(p + v * static_cast<ptrdiff_t>(sizeof(V) / sizeof(Tap) * sizeof(S)));
      for (int r = first; r < end; ++r) sums[r][v] = sums[r][v] + x * broadcastTap<V>(last_ + at + r);
    }
  }

  const Tap* last_;
  int count_;
  ptrdiff_t step_;
};

// A row of integer samples is made floats once, in pieces that stay in the nearest cache.
constexpr size_t kPiece = 256, kMostChannels = 4;
constexpr int kMostPieceTaps = 64;

template <typename T>
void filterPieces(const float* taps, int count, const Byte* src, ptrdiff_t tapStep, Byte* dst,
                  size_t samples) {
  const size_t channels = static_cast<size_t>(tapStep) / sizeof(T);
  const FloatLine<float, T, float> line(taps, count, static_cast<ptrdiff_t>(channels * sizeof(float)));
  const size_t reach = static_cast<size_t>(count - 1) * channels;
  float piece[kPiece + (kMostPieceTaps - 1) * kMostChannels];
  for (size_t i = 0; i < samples; i += kPiece) {
    const size_t at = std::min(i, samples - 8), length = std::min(kPiece, samples - at);
    toFloats<T>(src + at * sizeof(T), piece, length + reach);
    line.run({reinterpret_cast<const Byte*>(piece), 0}, {dst + at * sizeof(T), 0}, {length, 1});
  }
}

template <typename T>
bool fitsPieces(int count, ptrdiff_t tapStep, size_t samples) {
  constexpr ptrdiff_t size = sizeof(T);
  return count <= kMostPieceTaps && samples >= 8 && tapStep <= size * static_cast<ptrdiff_t>(kMostChannels) &&
         tapStep % size == 0;
}

}  // namespace

template <typename T, typename Tap>
void filterFloatTaps(const Tap* taps, int count, SourceRows src, ptrdiff_t tapStep, TargetRows dst,
                     Extent samples) {
  if constexpr (std::is_integral_v<T>)
    if (fitsPieces<T>(count, tapStep, samples.length))
      return walkRows(
          samples.rows,
          [&](const Byte* s, Byte* d) { filterPieces<T>(taps, count, s, tapStep, d, samples.length); }, src,
          dst);
  FloatLine<T, T, Tap>(taps, count, tapStep).run(src, dst, samples);
}

template void filterFloatTaps<uint8_t>(const float*, int, SourceRows, ptrdiff_t, TargetRows, Extent);
template void filterFloatTaps<uint16_t>(const float*, int, SourceRows, ptrdiff_t, TargetRows, Extent);
template void filterFloatTaps<int16_t>(const float*, int, SourceRows, ptrdiff_t, TargetRows, Extent);
template void filterFloatTaps<float>(const float*, int, SourceRows, ptrdiff_t, TargetRows, Extent);
template void filterFloatTaps<double>(const double*, int, SourceRows, ptrdiff_t, TargetRows, Extent);

}  // namespace lumi
