// SPDX-License-Identifier: MIT
#include "kernels/filters/deinterlace.hpp"

#include <algorithm>

#include "kernels/simd/convert.hpp"

namespace lumi {
namespace {

using namespace simd;

using Words = Samples<int16_t>;

// Half a vector of results as words. Sums are at most 7 * 510 + 2040 + 510 + 8.
[[gnu::always_inline]] inline Words linesOf(const Byte* const (&rows)[7], size_t at, Words threshold) {
  const auto row = [&](int dy) { return as<int16_t>(loadAs<uint8_t, uint16_t>(rows[dy + 3] + at)); };
  const Words above = row(-1), below = row(1), middle = row(0);
  const Words rise = shiftLeft<2>(middle + middle - row(-2) - row(2));
  const Words near = above + below, far = row(-3) + row(3);
  const Words sum = shiftLeft<3>(near) - near + rise + far + broadcast<int16_t>(8);
  const Words line = shiftRight<4>(sum);
  const Words limited = min(max(line, min(above, below)), max(above, below));
  return ifThenElse(isAboveSigned(threshold, as<int16_t>(magnitude(rise))), limited, line);
}

[[gnu::always_inline]] inline VectorBytes blockOf(const Byte* const (&rows)[7], size_t at, Words threshold) {
  const Words first = linesOf(rows, at, threshold), second = linesOf(rows, at + kVectorBytes / 2, threshold);
  return narrowSigned<uint8_t>(first, second).v;
}

}  // namespace

void deinterlaceRow(const uint8_t* const (&rows)[7], int threshold, uint8_t* dst, size_t samples) {
  const Words limit = broadcast(static_cast<int16_t>(std::min(threshold, 2041)));
  size_t i = 0;
  for (; i + kVectorBytes <= samples; i += kVectorBytes) storeVector(dst + i, blockOf(rows, i, limit));
  if (i == samples) return;
  alignas(32) Byte last[7][kVectorBytes] = {}, results[kVectorBytes];
  const Byte* copies[7];
  for (int y = 0; y < 7; ++y)
    copies[y] = static_cast<const Byte*>(std::memcpy(last[y], rows[y] + i, samples - i));
  storeVector(results, blockOf(copies, 0, limit));
  std::memcpy(dst + i, results, samples - i);
}

}  // namespace lumi
