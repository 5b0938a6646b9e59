// SPDX-License-Identifier: MIT
#include "kernels/filters/wiener.hpp"

#include <limits>
#include <type_traits>

#include "kernels/simd/moments.hpp"

namespace lumi {
namespace {

using namespace simd;

constexpr size_t kPair = 2 * sizeof(double);

template <typename T>
auto sampleAt(const Byte* p) {
  T x;
  std::memcpy(&x, p, sizeof x);
  if constexpr (std::is_floating_point_v<T>)
    return x;
  else
    return static_cast<int>(x);
}

// One channel. Along the row a window wins a column and loses one.
template <typename T, bool leaves>
void moveChannel(const Byte* entering, const Byte* leaving, size_t pixelBytes, size_t window, Byte* pairs,
                 size_t pairBytes, size_t pixels) {
  const auto column = [=](size_t x) {
    const auto in = sampleAt<T>(entering + x * pixelBytes);
    if constexpr (leaves) return momentsOf(in, sampleAt<T>(leaving + x * pixelBytes));
    return momentsOf(in, decltype(in){});
  };
  Doubles2 moments = column(0);
  for (size_t x = 1; x < window; ++x) moments = moments + column(x);
  for (size_t x = 0;; ++x) {
    Byte* const pair = pairs + x * pairBytes;
    storePair(pair, loadPair(pair) + moments);
    if (x + 1 == pixels) return;
    moments = moments + (column(x + window) - column(x));
  }
}

// Calls take(place, phase, count) for four samples at a time.
template <typename Take>
void inFours(size_t samples, const Take& take) {
  size_t phase = 0;
  for (size_t i = 0; i < samples; i += 4, phase = phase == 8 ? 0 : phase + 4)
    take(i, phase, samples - i < 4 ? samples - i : 4);
}

[[gnu::always_inline]] inline Doubles4 variancesOf(const FourMoments& moments, Doubles4 n) {
  return n * moments.squares - moments.sums * moments.sums;
}

}  // namespace

template <typename T>
void moveWindows(const uint8_t* entering, const uint8_t* leaving, PixelSamples pixel, int window,
                 uint8_t* pairs, size_t pixels) {
  const auto bytes = static_cast<size_t>(pixel.stored) * sizeof(T), used = static_cast<size_t>(pixel.used);
  for (size_t c = 0; c < used; ++c) {
    const Byte *const in = entering + c * sizeof(T), *const out = leaving ? leaving + c * sizeof(T) : nullptr;
    const auto move = leaving ? moveChannel<T, true> : moveChannel<T, false>;
    move(in, out, bytes, static_cast<size_t>(window), pairs + c * kPair, used * kPair, pixels);
  }
}

void addVariances(const uint8_t* pairs, double n, double (&totals)[kPhases], size_t samples) {
  Doubles4 sums[3];
  for (int i = 0; i < 3; ++i) sums[i] = loadDoubles4(totals + 4 * i);
  inFours(samples, [&](size_t i, size_t phase, size_t count) {
    alignas(32) Byte last[4 * kPair] = {};
    const Byte* from = pairs + i * kPair;
    if (count < 4) from = static_cast<const Byte*>(std::memcpy(last, from, count * kPair));
    sums[phase / 4] = sums[phase / 4] + variancesOf(loadMoments(from), broadcastDouble(n));
  });
  for (int i = 0; i < 3; ++i) store32(reinterpret_cast<Byte*>(totals + 4 * i), bytesOf(sums[i]));
}

template <typename T>
void wienerRow(const uint8_t* src, const uint8_t* pairs, const WienerNoise& noise, uint8_t* dst,
               size_t samples) {
  const Doubles4 n = broadcastDouble(noise.n), least = broadcastDouble(std::numeric_limits<double>::min());
  const auto make = [&](const Byte* s, size_t i, size_t phase, Byte* d) {
    const FourMoments moments = loadMoments(pairs + i * kPair);
    const Doubles4 x = loadDoubles<T>(s);
    const Doubles4 level = max(loadDoubles4(noise.noise + phase), least);
    const Doubles4 variance = max(variancesOf(moments, n), level);
    const Doubles4 towardsMean = (moments.sums - n * x) * loadDoubles4(noise.share + phase);
    storeDoubles<T>(d, x + towardsMean / variance);
  };
  inFours(samples, [&](size_t i, size_t phase, size_t count) {
    const size_t at = i * sizeof(T);
    if (count == 4) return make(src + at, i, phase, dst + at);
    alignas(16) Byte s[4 * sizeof(T)] = {}, d[4 * sizeof(T)];
    std::memcpy(s, src + at, count * sizeof(T));
    make(s, i, phase, d);
    std::memcpy(dst + at, d, count * sizeof(T));
  });
}

template void moveWindows<uint8_t>(const uint8_t*, const uint8_t*, PixelSamples, int, uint8_t*, size_t);
template void moveWindows<int16_t>(const uint8_t*, const uint8_t*, PixelSamples, int, uint8_t*, size_t);
template void moveWindows<float>(const uint8_t*, const uint8_t*, PixelSamples, int, uint8_t*, size_t);
template void wienerRow<uint8_t>(const uint8_t*, const uint8_t*, const WienerNoise&, uint8_t*, size_t);
template void wienerRow<int16_t>(const uint8_t*, const uint8_t*, const WienerNoise&, uint8_t*, size_t);
template void wienerRow<float>(const uint8_t*, const uint8_t*, const WienerNoise&, uint8_t*, size_t);

}  // namespace lumi
