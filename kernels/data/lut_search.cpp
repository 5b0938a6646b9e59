// SPDX-License-Identifier: MIT
#include "kernels/data/lut_search.hpp"

#include <algorithm>
#include <cstring>
#include <limits>

namespace lumi {
namespace {

using Byte = uint8_t;

// The last of the first `pieces` levels that is not above x, as halving finds it. Of a list in disorder it is
// the one that the halving ends with; the first is never compared.
template <typename L, typename X>
int bisect(Unaligned<L> levels, int pieces, X x) {
  int index = 0;
  for (int count = pieces; count > 1;) {
    const int half = count / 2;
    const bool below = x < levels[index + half];
    index += below ? 0 : half;
    count = below ? half : count - half;
  }
  return index;
}

// The piece that x is in, or -1.
int pieceOf(const PiecewiseFunction& f, float x) {
  const int pieces = f.count - 1;
  if (f.ascending) return x >= f.levels[0] && x < f.levels[pieces] ? bisect(f.levels, pieces, x) : -1;
  for (int k = 0; k < pieces; ++k)
    if (f.levels[k] <= x && f.levels[k + 1] > x) return k;
  return -1;
}

template <int degree>
void setValue(const PiecewiseFunction& f, int piece, float x, float& result) {
  if constexpr (degree == 0) {
    result = f.values[piece];
  } else if constexpr (degree == 1) {
    const double t = x - f.levels[piece];
    result = static_cast<float>(t * f.coefficients[piece] + static_cast<double>(f.values[piece]));
  } else {
    const int origin = originOf(piece, f.count);
    const double t = x - f.levels[origin], square = t * t;
    const double* const c = f.coefficients + size_t{3} * static_cast<size_t>(piece);
    result = static_cast<float>((square * c[0] + c[2]) * t +
                                (static_cast<double>(f.values[origin]) + square * c[1]));
  }
}

// Stores what f(channel, sample, result) makes, or the sample as it is where f makes nothing. Results go by
// reference: on its way through the x87 unit a signalling NaN would change.
template <typename T, typename F>
[[gnu::always_inline]] inline void mapRow(const Byte* s, Byte* d, size_t pixels, int used, int stored,
                                          const F& f) {
  const size_t pixelBytes = static_cast<size_t>(stored) * sizeof(T);
  for (size_t x = 0; x < pixels; ++x, s += pixelBytes, d += pixelBytes)
    for (int c = 0; c < used; ++c) {
      const size_t at = static_cast<size_t>(c) * sizeof(T);
      T sample, result;
      std::memcpy(&sample, s + at, sizeof(T));
      if (f(c, sample, result))
        std::memcpy(d + at, &result, sizeof(T));
      else
        std::memmove(d + at, s + at, sizeof(T));
    }
}

}  // namespace

template <int degree>
void searchRows(SourceRows src, TargetRows dst, Extent pixels, const PiecewiseFunction* functions, int used,
                int stored) {
  const auto value = [=](int c, float x, float& result) {
    const int piece = pieceOf(functions[c], x);
    if (piece >= 0) setValue<degree>(functions[c], piece, x, result);
    return piece >= 0;
  };
  walkPixels([&](const Byte* s, Byte* d, size_t length) { mapRow<float>(s, d, length, used, stored, value); },
             src, dst, pixels);
}

template <typename T>
void bisectRows(SourceRows src, TargetRows dst, Extent pixels, const StepFunction* functions, int channels) {
  constexpr int low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max();
  const auto value = [=](int c, int x, T& result) {
    const StepFunction& f = functions[c];
    const int pieces = f.count - 1;
    if (x < f.levels[0] || x >= f.levels[pieces]) return false;
    result = static_cast<T>(std::clamp(f.values[bisect(f.levels, pieces, x)], low, high));
    return true;
  };
  walkPixels(
      [&](const Byte* s, Byte* d, size_t length) { mapRow<T>(s, d, length, channels, channels, value); }, src,
      dst, pixels);
}

template void searchRows<0>(SourceRows, TargetRows, Extent, const PiecewiseFunction*, int, int);
template void searchRows<1>(SourceRows, TargetRows, Extent, const PiecewiseFunction*, int, int);
template void searchRows<3>(SourceRows, TargetRows, Extent, const PiecewiseFunction*, int, int);
template void bisectRows<uint16_t>(SourceRows, TargetRows, Extent, const StepFunction*, int);
template void bisectRows<int16_t>(SourceRows, TargetRows, Extent, const StepFunction*, int);

}  // namespace lumi
