// SPDX-License-Identifier: MIT
#include "kernels/statistics/quality_index.hpp"

#include <algorithm>

#include "kernels/planes.hpp"
#include "kernels/simd/elementary.hpp"
#include "kernels/simd/scale.hpp"

namespace lumi {
namespace {

using namespace simd;

constexpr size_t kBlock = kCentredBlock;

template <typename T>
Floats8 eightFloats(const Byte* p) {
  if constexpr (sizeof(T) == 1)
    return floatsOf8Bytes(p);
  else if constexpr (sizeof(T) == 2)
    return floatsOf8Words(p);
  else
    return loadFloats8(p);
}

}  // namespace

template <typename T, int channels>
void centredRow(const uint8_t* src, size_t pixels, float mean, float* row, size_t room) {
  // The samples first go to the end of the row: a block of floats then ends where its samples end, or before.
  Byte* const floats = reinterpret_cast<Byte*>(row);
  Byte* const samples = floats + (sizeof(float) - sizeof(T)) * room;
  if constexpr (channels == 1)
    std::memcpy(samples, src, pixels * sizeof(T));
  else
    channelToPlaneRows<sizeof(T), channels>({src, 0}, {samples, 0}, {pixels, 1});
  std::fill(samples + pixels * sizeof(T), samples + room * sizeof(T), Byte{0});
  const Floats8 less = broadcastFloat<Floats8>(mean);
  for (size_t i = 0; i < room; i += kBlock) {
    const Floats8 a = eightFloats<T>(samples + i * sizeof(T)),
                  b = eightFloats<T>(samples + (i + 8) * sizeof(T));
    store32(floats + i * sizeof(float), bytesOf(a - less));
    store32(floats + (i + 8) * sizeof(float), bytesOf(b - less));
  }
  std::fill(row + pixels, row + room, 0.0f);
}

RowProducts rowProducts(const float* a, const float* b, size_t room) {
  Floats8 product[2], square1[2], square2[2];
  for (auto* sums : {product, square1, square2}) sums[0] = sums[1] = broadcastFloat<Floats8>(0);
  for (size_t i = 0; i < room; i += kBlock)
    for (size_t k = 0; k < 2; ++k) {
      const Floats8 x = loadFloats8(reinterpret_cast<const Byte*>(a + i + 8 * k)),
                    y = loadFloats8(reinterpret_cast<const Byte*>(b + i + 8 * k));
      product[k] = product[k] + x * y;
      square1[k] = square1[k] + x * x;
      square2[k] = square2[k] + y * y;
    }
  const auto total = [](const Floats8(&sums)[2]) {
    float lanes[8];
    store32(reinterpret_cast<Byte*>(lanes), bytesOf(sums[0] + sums[1]));
    return ((lanes[0] + lanes[4]) + (lanes[1] + lanes[5])) + ((lanes[2] + lanes[6]) + (lanes[3] + lanes[7]));
  };
  // The nearest float is that of the nearest double.
  const auto root = [](float x) { return static_cast<float>(squareRoot(double{x})); };
  return {total(product), root(total(square1)), root(total(square2))};
}

#define LUMI_CENTRED(T)                                                          \
  template void centredRow<T, 1>(const uint8_t*, size_t, float, float*, size_t); \
  template void centredRow<T, 3>(const uint8_t*, size_t, float, float*, size_t); \
  template void centredRow<T, 4>(const uint8_t*, size_t, float, float*, size_t);
LUMI_CENTRED(uint8_t)
LUMI_CENTRED(uint16_t)
LUMI_CENTRED(float)

}  // namespace lumi
