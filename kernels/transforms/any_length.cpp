// SPDX-License-Identifier: MIT
// Plans of transforms of any length: passes of mixed radices, and convolutions with a chirp.
#include <algorithm>

#include "kernels/transforms/roots.hpp"
#include "kernels/transforms/transform.hpp"

namespace lumi::transforms {
namespace {

constexpr int kMostFactors = 32;

// Radices in the order of the passes: large ones first, whose roots would cost most; of the twos, an 8 first
// where their number is odd, and fours.
struct Factors {
  int count = 0;
  size_t radix[kMostFactors];

  explicit Factors(int64_t length) {
    int twos = 0;
    for (; length % 2 == 0; length /= 2) ++twos;
    for (int64_t p = 3; length > 1; p += 2) {
      if (p * p > length) p = length;
      for (; length % p == 0; length /= p) radix[count++] = static_cast<size_t>(p);
    }
    std::reverse(radix, radix + count);
    if (twos == 1) radix[count++] = 2;
    if (twos % 2 == 1 && twos > 1) radix[count++] = 8;
    for (int i = twos % 2 == 0 ? 0 : std::min(twos, 3); i < twos; i += 2) radix[count++] = 4;
  }
};

// The smallest length of a convolution that goes around in 2n - 1 points.
int64_t convolutionLength(int64_t n) {
  constexpr int kGood[] = {128,  144,  160,  192,  200,  256,  288,  320,  384,  400,  512,
                           576,  640,  768,  800,  1024, 1152, 1280, 1536, 1600, 2048, 2304,
                           2560, 3072, 3200, 4096, 4608, 5120, 6144, 6400, 8192};
  for (const int good : kGood)
    if (good >= 2 * n - 1) return good;
  int64_t length = 16384;
  while (length < 2 * n - 1) length *= 2;
  return length;
}

template <typename T>
T* take(uint8_t*& memory, int64_t count) {
  memory = reinterpret_cast<uint8_t*>((reinterpret_cast<uintptr_t>(memory) + 63) & ~uintptr_t{63});
  T* const table = reinterpret_cast<T*>(memory);
  memory += static_cast<size_t>(count) * sizeof(T);
  return table;
}

// Each table begins on a boundary of its own. Of roots there are below 4n floats, of circles twice the sum of
// radices.
constexpr int64_t kBoundaries = 64 * (kMostFactors + 8);
int64_t passesBytes(int64_t n) {
  int64_t circles = 0;
  const Factors factors(n);
  for (int i = 0; i < factors.count; ++i) circles += 8 * static_cast<int64_t>(factors.radix[i]);
  return (16 + 4) * n + circles + kMostFactors * static_cast<int64_t>(sizeof(Pass<Lanes>)) + kBoundaries;
}

float* circleOf(size_t radix, uint8_t*& memory) {
  float* const circle = take<float>(memory, 2 * static_cast<int64_t>(radix));
  for (size_t j = 0; j < radix; ++j) {
    const Root w = root(static_cast<int64_t>(j), static_cast<int64_t>(radix));
    circle[2 * j] = static_cast<float>(w.re);
    circle[2 * j + 1] = static_cast<float>(-w.im);
  }
  return circle;
}

Transform mixedTransform(int64_t length, uint8_t* memory) {
  const Factors factors(length);
  auto* const passes = take<Pass<Lanes>>(memory, kMostFactors);
  int64_t m = 1;
  for (int i = 0; i < factors.count; ++i) {
    const size_t radix = factors.radix[i];
    const int64_t joined = m * static_cast<int64_t>(radix);
    float* const roots = take<float>(memory, 2 * (joined - m));
    float* next = roots;
    for (int64_t j = 0; j < m; ++j) {
      for (int64_t k = 1; k < static_cast<int64_t>(radix); ++k) {
        const Root w = root(j * k, joined);
        *next++ = static_cast<float>(w.re);
        *next++ = static_cast<float>(w.im);
      }
    }
    passes[i] = {radix, static_cast<size_t>(m), roots, radix % 2 == 1 ? circleOf(radix, memory) : nullptr};
    m = joined;
  }
  auto* const slots = take<uint32_t>(memory, length);
  for (int64_t n = 0; n < length; ++n) {
    int64_t rest = n, slot = 0, weight = length;
    for (int i = factors.count - 1; i >= 0; --i) {
      const auto radix = static_cast<int64_t>(factors.radix[i]);
      weight /= radix;
      slot += rest % radix * weight;
      rest /= radix;
    }
    slots[n] = static_cast<uint32_t>(slot);
  }
  const Passes<Lanes> all = {static_cast<size_t>(length), factors.count, passes, slots};
  return {all.length, passesOfOrder(0), all, nullptr, nullptr, nullptr, 0, nullptr, false};
}

Transform powerOfTwo(int64_t length, uint8_t* memory) {
  const int order = orderOf(length);
  if (order <= kLargestTable) return wholeTransform(order);
  if (order > kLargestRoots) return largeTransform(order, take<double>(memory, 0));
  float* const roots = take<float>(memory, 2 * length);
  fillRoots(order, roots);
  return splitTransform(order, roots);
}

int64_t powerOfTwoBytes(int64_t length) {
  const int order = orderOf(length);
  if (order <= kLargestTable) return 0;
  return (order > kLargestRoots ? largeTransformBytes(order) : 8 * length) + 64;
}

// The spectrum of 1 / t(n) is made as any other, in the first lane.
void fillSpectrum(const Chirp& chirp, int64_t n, float* spectrum, float* scratch) {
  const Transform& convolution = chirp.convolution;
  const size_t length = convolution.length;
  std::fill_n(scratch, length * kPointFloats, 0.0f);
  for (int64_t i = 0; i < n; ++i) {
    const auto ahead = static_cast<size_t>(i);
    for (const size_t place : {ahead, ahead == 0 ? 0 : length - ahead}) {
      float* const point = scratch + convolution.slotOfPlace(place) * kPointFloats;
      point[0] = chirp.turns[2 * i];
      point[kLanes] = -chirp.turns[2 * i + 1];
    }
  }
  transformPoints(convolution, scratch, scratch + length * kPointFloats);
  for (size_t k = 0; k < length; ++k) {
    const float* const point = scratch + convolution.slotOfFrequency(k) * kPointFloats;
    spectrum[2 * k] = point[0] / static_cast<float>(length);
    spectrum[2 * k + 1] = point[kLanes] / static_cast<float>(length);
  }
}

Transform chirpTransform(int64_t length, uint8_t* memory, float* scratch) {
  const int64_t convolution = convolutionLength(length);
  auto* const chirp = take<Chirp>(memory, 1);
  float* const turns = take<float>(memory, 2 * length);
  for (int64_t n = 0; n < length; ++n) {
    const Root w = root(n * n % (2 * length), 2 * length);
    turns[2 * n] = static_cast<float>(w.re);
    turns[2 * n + 1] = static_cast<float>(w.im);
  }
  float* const spectrum = take<float>(memory, 2 * convolution);
  *chirp = {anyTransform(convolution, memory, scratch), turns, spectrum};
  fillSpectrum(*chirp, length, spectrum, scratch);
  return {static_cast<size_t>(length),
          passesOfOrder(0),
          passesOfOrder(0),
          nullptr,
          nullptr,
          nullptr,
          0,
          chirp,
          false};
}

}  // namespace

// Fours and a two go out first, odd factors up to 49 then, as long as their square is not above the rest; a
// rest of at most 50, or of 150 where a four went out, is the last radix.
bool isMadeByPasses(int64_t length) {
  if (length < 17 || isPowerOfTwo(length)) return true;
  const bool hasFour = length % 4 == 0;
  int64_t rest = length;
  while (rest % 2 == 0) rest /= 2;
  for (int64_t p = 3; p <= 49 && p * p <= rest; p += 2)
    while (rest % p == 0) rest /= p;
  return rest <= (hasFour ? 150 : 50);
}

AnyLength anyLength(int64_t length) {
  constexpr auto kFloats = static_cast<int64_t>(kPointFloats);
  if (isPowerOfTwo(length)) {
    const int order = orderOf(length);
    const int64_t longer = int64_t{1} << (order - order / 2);
    return {powerOfTwoBytes(length), 0, order > kLargestTable ? 2 * longer * kFloats : 0};
  }
  if (isMadeByPasses(length)) return {passesBytes(length), 0, 0};
  const int64_t points = convolutionLength(length);
  const AnyLength convolution = anyLength(points);
  const int64_t bytes =
      static_cast<int64_t>(sizeof(Chirp)) + 8 * (length + points) + convolution.tableBytes + kBoundaries;
  return {bytes, points * kFloats + convolution.localFloats, 2 * points * kFloats + convolution.localFloats};
}

Transform anyTransform(int64_t length, void* memory, float* scratch) {
  auto* const tables = static_cast<uint8_t*>(memory);
  if (isPowerOfTwo(length)) return powerOfTwo(length, tables);
  if (isMadeByPasses(length)) return mixedTransform(length, tables);
  return chirpTransform(length, tables, scratch);
}

}  // namespace lumi::transforms
