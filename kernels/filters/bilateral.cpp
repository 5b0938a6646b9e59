// SPDX-License-Identifier: MIT
// Eight pixels at a time, in the lanes of float vectors. A point is added as its weight, and as the product
// of it with its samples; the middle comes first, then the points row after row.
#include "kernels/filters/bilateral.hpp"

#include <algorithm>

#include "kernels/simd/likeness.hpp"

namespace lumi {
namespace {

using namespace simd;

constexpr size_t kBlock = 8;

// Calls f(point, weight) for all points but the middle, given the leftmost one's place in its row.
template <typename F>
[[gnu::always_inline]] inline void forEachPoint(const DiscPoints& disc, size_t at, const F& f) {
  const int r = disc.radius, slots = 2 * r + 1;
  const Byte* weight = disc.weights;
  int slot = disc.first, half = 0;
  for (int dy = -r; dy <= r; ++dy) {
    const auto isInside = [&](int dx) { return dx * dx + dy * dy <= r * r; };
    while (dy <= 0 && half < r && isInside(half + 1)) ++half;
    while (!isInside(half)) --half;
    const Byte* const row = disc.ring + slot * disc.rowBytes + at;
    slot = slot + 1 == slots ? 0 : slot + 1;
    for (int dx = -half; dx <= half; ++dx, weight += sizeof(float))
      if (dx != 0 || dy != 0) f(row, dx + r, floatAt(weight));
  }
}

template <typename F>
[[gnu::always_inline]] inline void forEachPoint(const GridPoints& grid, size_t at, const F& f) {
  const auto weight = [&](int steps) {
    return floatAt(grid.weights + sizeof(float) * static_cast<size_t>(steps));
  };
  for (int j = -grid.reachY; j <= grid.reachY; ++j) {
    const Byte* const row = grid.src.row(j * grid.step) + at;
    const float ofRow = weight(j < 0 ? -j : j);
    for (int i = -grid.reachX; i <= grid.reachX; ++i)
      if (i != 0 || j != 0) f(row, i * grid.step, weight(i < 0 ? -i : i) * ofRow);
  }
}

// The pixel in the middle, in the first plane.
const Byte* middleOf(const DiscPoints& disc, size_t at, size_t sampleBytes) {
  const int slots = 2 * disc.radius + 1, slot = (disc.first + disc.radius) % slots;
  return disc.ring + slot * disc.rowBytes + at + sampleBytes * static_cast<size_t>(disc.radius);
}
const Byte* middleOf(const GridPoints& grid, size_t at, size_t) { return grid.src.first + at; }

ptrdiff_t planeBytesOf(const DiscPoints& disc) { return disc.planeBytes; }
ptrdiff_t planeBytesOf(const GridPoints&) { return 0; }

template <typename V, int channels>
struct Pixels {
  V sample[channels];
};

// Bytes: a table tells the weight of the differences of all channels together.
template <int channels>
struct ByTable {
  using Sample = U8;
  using All = Pixels<U8, channels>;
  static constexpr size_t kSampleBytes = 1;
  const Byte* table;

  static U8 load(const Byte* p) { return {loadFew<8>(p)}; }

  Floats8 likeness(const All& a, const All& b) const {
    if constexpr (channels == 1) {
      return gathered(table, distance(a.sample[0], b.sample[0]));
    } else {
      U16 sum = widen<uint16_t>(distance(a.sample[0], b.sample[0]));
      for (int c = 1; c < channels; ++c) sum = sum + widen<uint16_t>(distance(a.sample[c], b.sample[c]));
      return gathered(table, sum);
    }
  }

  static Floats8 start(U8 middle) { return floatsOfBytes(middle); }
  static Floats8 value(U8, U8 x) { return floatsOfBytes(x); }
  // To nearest, ties to even, limited.
  static void store(Byte* dst, U8, Floats8 products, Floats8 weights) {
    const Ints8 x = truncated(nearest(products / weights));
    const S16 words = narrowSigned<int16_t>(lowHalf(x), highHalf(x));
    storeFirst8(dst, narrowSigned<uint8_t>(words, words).v);
  }
};

// Floats: differences from the middle are summed, so that pixels that are all alike stay as they are.
template <int channels>
struct ByFactor {
  using Sample = Floats8;
  using All = Pixels<Floats8, channels>;
  static constexpr size_t kSampleBytes = sizeof(float);
  float factor;

  static Floats8 load(const Byte* p) { return loadFloats8(p); }

  Floats8 likeness(const All& a, const All& b) const {
    Floats8 distance = magnitude(b.sample[0] - a.sample[0]);
    for (int c = 1; c < channels; ++c) distance = distance + magnitude(b.sample[c] - a.sample[c]);
    return powersOfTwo(distance * distance * broadcastFloat<Floats8>(factor));
  }

  static Floats8 start(Floats8) { return broadcastFloat<Floats8>(0); }
  static Floats8 value(Floats8 middle, Floats8 x) { return x - middle; }
  static void store(Byte* dst, Floats8 middle, Floats8 products, Floats8 weights) {
    store32(dst, bytesOf(middle + products / weights));
  }
};

// Results of a block of pixels, one channel behind the other.
template <int channels, typename Rule, typename Points, typename Load>
[[gnu::always_inline]] inline void bilateralBlock(const Rule& rule, const Points& points, size_t at,
                                                  const Load& load, Byte* results) {
  const ptrdiff_t plane = planeBytesOf(points);
  const auto pixels = [&](const Byte* p) {
    typename Rule::All all;
    for (int c = 0; c < channels; ++c) all.sample[c] = load(p + c * plane);
    return all;
  };
  const typename Rule::All middle = pixels(middleOf(points, at, Rule::kSampleBytes));
  Floats8 weights = broadcastFloat<Floats8>(1), products[channels];
  for (int c = 0; c < channels; ++c) products[c] = Rule::start(middle.sample[c]);
  forEachPoint(
      points, at, [&](const Byte* row, int dx, float position) __attribute__((always_inline)) {
        const typename Rule::All x = pixels(row + dx * static_cast<ptrdiff_t>(Rule::kSampleBytes));
        const Floats8 weight = rule.likeness(middle, x) * broadcastFloat<Floats8>(position);
        weights = weights + weight;
        for (int c = 0; c < channels; ++c)
          products[c] = products[c] + weight * Rule::value(middle.sample[c], x.sample[c]);
      });
  for (int c = 0; c < channels; ++c)
    Rule::store(results + static_cast<size_t>(c) * kBlock * Rule::kSampleBytes, middle.sample[c], products[c],
                weights);
}

// Channels side by side.
template <int channels, size_t bytes>
void storePixels(const Byte* planes, Byte* dst, size_t pixels) {
  if constexpr (channels == 1) {
    std::memcpy(dst, planes, pixels * bytes);
  } else {
    for (size_t x = 0; x < pixels; ++x)
      for (size_t c = 0; c < channels; ++c)
        std::memcpy(dst + (x * channels + c) * bytes, planes + (c * kBlock + x) * bytes, bytes);
  }
}

// Fewer pixels than a block are made in copies of what is there.
template <int channels, typename Rule, typename Points>
[[gnu::noinline]] void bilateralFew(const Rule& rule, const Points& points, Byte* dst, size_t pixels) {
  alignas(32) Byte results[channels * kBlock * Rule::kSampleBytes];
  const size_t bytes = pixels * Rule::kSampleBytes;
  const auto load = [=](const Byte* p) {
    Byte copy[kBlock * Rule::kSampleBytes] = {};
    std::memcpy(copy, p, bytes);
    return Rule::load(copy);
  };
  bilateralBlock<channels>(rule, points, 0, load, results);
  storePixels<channels, Rule::kSampleBytes>(results, dst, pixels);
}

template <int channels, typename Rule, typename Points>
void bilateralRow(const Rule& rule, const Points& points, Byte* dst, size_t pixels) {
  if (pixels < kBlock) return bilateralFew<channels>(rule, points, dst, pixels);
  constexpr size_t kPixel = channels * Rule::kSampleBytes;
  alignas(32) Byte results[kBlock * kPixel];
  for (size_t i = 0;; i = std::min(i + kBlock, pixels - kBlock)) {
    bilateralBlock<channels>(
        rule, points, i * Rule::kSampleBytes, [](const Byte* p) { return Rule::load(p); }, results);
    storePixels<channels, Rule::kSampleBytes>(results, dst + i * kPixel, kBlock);
    if (i + kBlock == pixels) return;
  }
}

}  // namespace

template <int channels>
void bilateralBytes(const DiscPoints& points, const uint8_t* table, uint8_t* dst, size_t pixels) {
  bilateralRow<channels>(ByTable<channels>{table}, points, dst, pixels);
}
void bilateralBytes(const GridPoints& points, const uint8_t* table, uint8_t* dst, size_t pixels) {
  bilateralRow<1>(ByTable<1>{table}, points, dst, pixels);
}
template <int channels>
void bilateralFloats(const DiscPoints& points, float factor, uint8_t* dst, size_t pixels) {
  bilateralRow<channels>(ByFactor<channels>{factor}, points, dst, pixels);
}

template void bilateralBytes<1>(const DiscPoints&, const uint8_t*, uint8_t*, size_t);
template void bilateralBytes<3>(const DiscPoints&, const uint8_t*, uint8_t*, size_t);
template void bilateralFloats<1>(const DiscPoints&, float, uint8_t*, size_t);
template void bilateralFloats<3>(const DiscPoints&, float, uint8_t*, size_t);

}  // namespace lumi
