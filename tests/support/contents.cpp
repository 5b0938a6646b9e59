// SPDX-License-Identifier: MIT
#include "support/contents.hpp"

#include <cmath>
#include <limits>
#include <type_traits>
#include <vector>

#include "lumi/types.h"

namespace test {
namespace {

template <typename T>
T anyOf(Contents contents, Random& random) {
  using Limits = std::numeric_limits<T>;
  const auto low = static_cast<int64_t>(Limits::min()), high = static_cast<int64_t>(Limits::max());
  if (contents == Contents::Small) return static_cast<T>(random.between(low < 0 ? -9 : 0, 9));
  const int64_t near = random.between(0, 3);
  switch (random.below(6)) {
    case 0:
      return static_cast<T>(low + near);
    case 1:
      return static_cast<T>(high - near);
    case 2:
      return static_cast<T>(near);
    case 3:
      return static_cast<T>(Limits::is_signed ? -near : high / 2 + near);
    case 4:  // about a power of two
      return static_cast<T>((int64_t{1} << random.below(Limits::digits)) + near - 2);
    default:
      return static_cast<T>(random.next());
  }
}

float anyFloat(Contents contents, Random& random) {
  using Limits = std::numeric_limits<float>;
  if (contents == Contents::Bytes) {
    const auto bits = static_cast<uint32_t>(random.next());
    float any;
    std::memcpy(&any, &bits, sizeof any);
    return std::isnan(any) ? Limits::quiet_NaN() : any;
  }
  if (contents == Contents::Small) return static_cast<float>(random.between(-40, 40)) * 0.25f;
  static const float specials[] = {0.0f,          -0.0f,         Limits::infinity(),   -Limits::infinity(),
                                   Limits::max(), Limits::min(), Limits::denorm_min(), Limits::quiet_NaN(),
                                   0.49999997f,   -0.49999997f,  8388608.5f,           16777217.0f};
  static const float limits[] = {127,           -128,           255,          32767, -32768, 65535,
                                 2147483648.0f, -2147483648.0f, 4294967296.0f};
  switch (random.below(4)) {
    case 0:
      return random.pick(specials);
    case 1:
      return random.pick(limits) + static_cast<float>(random.between(-4, 4)) * 0.5f;
    case 2: {
      const float x = random.pick(limits);
      return std::nextafter(x, random.oneIn(2) ? 0.0f : 2 * x);
    }
    default:
      return std::ldexp(static_cast<float>(random.between(-4096, 4096)), random.between(-12, 20));
  }
}

template <typename T>
std::vector<T> makeStock(Contents contents, size_t count) {
  Random random(count);
  std::vector<T> stock(count);
  for (T& sample : stock) {
    if constexpr (std::is_floating_point_v<T>)
      sample = static_cast<T>(anyFloat(contents, random));
    else
      sample = anyOf<T>(contents, random);
  }
  return stock;
}

// Drawn from a stock: making each anew would take most of the tests' time.
template <typename T>
void fill(unsigned char* first, int bytes, Contents contents, Random& random) {
  constexpr size_t stock = 1 << 12;
  static const std::vector<T> stocks[] = {makeStock<T>(Contents::Bytes, stock),
                                          makeStock<T>(Contents::Edges, stock),
                                          makeStock<T>(Contents::Small, stock)};
  const std::vector<T>& from = stocks[static_cast<int>(contents)];
  uint64_t word = 0;
  for (int i = 0, n = bytes / static_cast<int>(sizeof(T)); i < n; ++i, word >>= 16) {
    if (i % 4 == 0) word = random.next();
    std::memcpy(first + static_cast<size_t>(i) * sizeof(T), &from[word % stock], sizeof(T));
  }
}

}  // namespace

void fillSamples(const std::string& type, unsigned char* first, int bytes, Contents contents,
                 Random& random) {
  const bool isFloat = type == "32f" || type == "32fc";
  if (isFloat) return fill<float>(first, bytes, contents, random);
  if (type == "64f") return fill<double>(first, bytes, contents, random);
  if (contents == Contents::Bytes || type == "1u") return random.fill(first, static_cast<size_t>(bytes));
  if (type == "8u") return fill<uint8_t>(first, bytes, contents, random);
  if (type == "8s") return fill<int8_t>(first, bytes, contents, random);
  if (type == "16u") return fill<uint16_t>(first, bytes, contents, random);
  if (type == "16s" || type == "16sc") return fill<int16_t>(first, bytes, contents, random);
  if (type == "32u") return fill<uint32_t>(first, bytes, contents, random);
  fill<int32_t>(first, bytes, contents, random);
}

}  // namespace test
