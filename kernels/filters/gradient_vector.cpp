// SPDX-License-Identifier: MIT
// Columns are smoothed and differenced first, then rows of those. Words hold every sum: 5 x 5 Sobel of bytes
// reaches 16 * 3 * 255, and the sum of both magnitudes twice as much.
#include "kernels/filters/gradient_vector.hpp"

#include <cstring>
#include <type_traits>

#include "kernels/simd/angles.hpp"
#include "kernels/simd/window.hpp"

namespace lumi {
namespace {

using namespace simd;

template <typename W>
using Lanes = std::conditional_t<std::is_same_v<W, float>, Floats8, Samples<int16_t>>;
template <typename W>
inline constexpr size_t kLanes = sizeof(Lanes<W>) / sizeof(W);

template <typename W>
Lanes<W> load(const void* p) {
  const auto* const bytes = static_cast<const Byte*>(p);
  if constexpr (std::is_same_v<W, float>)
    return loadFloats8(bytes);
  else
    return {loadVector(bytes)};
}

template <typename T>
using Dword = std::conditional_t<std::is_signed_v<T>, int32_t, uint32_t>;

template <typename T>
Lanes<Wide<T>> loadWide(const T* p) {
  const auto* const bytes = reinterpret_cast<const Byte*>(p);
  if constexpr (sizeof(T) == 1) {
    return loadAs<uint8_t, int16_t>(bytes);
  } else if constexpr (sizeof(T) == 2) {
    const Samples16<T> words{load16(bytes)};
    const Samples16<T> upper{upperHalf(as<int16_t>(words)).v};
    return joined(floatsOf(S32{widen<Dword<T>>(words).v}), floatsOf(S32{widen<Dword<T>>(upper).v}));
  } else {
    return load<float>(p);
  }
}

void storeLanes(Byte* p, Floats8 x) { store32(p, bytesOf(x)); }
void storeLanes(Byte* p, Samples<int16_t> x) { storeVector(p, x.v); }

// Weights of the outer and the inner samples of the smoothing.
template <GradientMask mask>
struct Weights {
  static constexpr int kOuter = mask == GradientMask::Scharr ? 3 : 1;
  static constexpr int kInner = mask == GradientMask::Scharr ? 10 : mask == GradientMask::Prewitt ? 1 : 2;
};

// Of as many samples in a row or a column as the mask has: at(0) is the first one.
template <GradientMask mask, typename At>
[[gnu::always_inline]] inline auto smoothed(const At& at) {
  if constexpr (mask == GradientMask::Sobel5)
    return ((at(0) + at(4)) + times<4>(at(1) + at(3))) + times<6>(at(2));
  else
    return times<Weights<mask>::kOuter>(at(0) + at(2)) + times<Weights<mask>::kInner>(at(1));
}
// The first ones less the last ones.
template <GradientMask mask, typename At>
[[gnu::always_inline]] inline auto fall(const At& at) {
  if constexpr (mask == GradientMask::Sobel5)
    return (at(0) - at(4)) + times<2>(at(1) - at(3));
  else
    return at(0) - at(2);
}

template <typename V>
struct Gradients {
  V x, y;
};

template <GradientMask mask, typename W>
[[gnu::always_inline]] inline Gradients<Lanes<W>> gradientsOf(const W* smooth, const W* rise) {
  return {fall<mask>([&](int column) { return load<W>(smooth + column); }),
          smoothed<mask>([&](int column) { return load<W>(rise + column); })};
}

Floats8 sumOfSquares(const Gradients<Floats8>& g) { return g.x * g.x + g.y * g.y; }

// Of the first and the last halves of each sixteen bytes.
struct SquaresOfWords {
  Samples<int32_t> low, high;
};
SquaresOfWords sumOfSquares(const Gradients<Samples<int16_t>>& g) {
  const auto low = interleaveLow(g.x, g.y), high = interleaveHigh(g.x, g.y);
  return {multiplyAddPairs(low, low), multiplyAddPairs(high, high)};
}

Floats8 isAboveOf(Floats8 a, Floats8 b) { return isAbove(a, b); }
Samples<int16_t> isAboveOf(const SquaresOfWords& a, const SquaresOfWords& b) {
  return narrowInterleaved<int16_t>(isAbove(a.low, b.low), isAbove(a.high, b.high));
}

template <typename V>
Gradients<V> strongest(const Gradients<V>& a, const Gradients<V>& b) {
  const V isSecond = isAboveOf(sumOfSquares(b), sumOfSquares(a));
  return {ifThenElse(isSecond, b.x, a.x), ifThenElse(isSecond, b.y, a.y)};
}

// Calls make(first pixel, store) for blocks of pixels and for those that are left: store(at, x) stores a
// block of samples W, or those alone.
template <typename W, size_t lanes, typename Make>
[[gnu::always_inline]] inline void inLanes(size_t pixels, const Make& make) {
  size_t i = 0;
  for (; i + lanes <= pixels; i += lanes) make(i, [](Byte* p, auto x) { storeLanes(p, x); });
  if (i == pixels) return;
  make(i, [&](Byte* p, auto x) {
    Byte all[sizeof x];
    storeLanes(all, x);
    std::memcpy(p, all, (pixels - i) * sizeof(W));
  });
}

// Smoothed columns of samples and the differences of their ends, from the leftmost column under the mask on.
template <typename W>
struct ColumnSums {
  alignas(32) W smooth[kMostGradients + 48], rise[kMostGradients + 48];
};

template <GradientMask mask, typename T>
[[gnu::always_inline]] inline void sumColumns(const T* const* rows, ptrdiff_t channel, size_t pixels,
                                              ColumnSums<Wide<T>>& sums) {
  constexpr int reach = gradientReach(mask), count = 2 * reach + 1;
  const T* row[count];  // which no store can be thought to change
  for (int k = 0; k < count; ++k) row[k] = rows[k] + channel - reach;
  for (size_t i = 0; i < pixels + 2 * reach; i += kLanes<Wide<T>>) {
    const auto down = [&](int k) { return loadWide(row[k] + i); };
    const auto up = [&](int k) { return loadWide(row[count - 1 - k] + i); };
    storeLanes(reinterpret_cast<Byte*>(sums.smooth + i), smoothed<mask>(down));
    storeLanes(reinterpret_cast<Byte*>(sums.rise + i), fall<mask>(up));
  }
}

template <GradientMask mask, int channels, typename W>
[[gnu::always_inline]] inline Gradients<Lanes<W>> gradientsAt(const ColumnSums<W> (&sums)[channels],
                                                              size_t i) {
  auto g = gradientsOf<mask>(sums[0].smooth + i, sums[0].rise + i);
  for (int c = 1; c < channels; ++c)
    g = strongest(g, gradientsOf<mask>(sums[c].smooth + i, sums[c].rise + i));
  return g;
}

Floats8 lengthOf(const Gradients<Floats8>& g) { return squareRoot(sumOfSquares(g)); }
Floats8 sumOf(const Gradients<Floats8>& g) { return magnitude(g.x) + magnitude(g.y); }

// Rounded roots of four or eight sums.
template <typename Sums>
Sums rootsOf(Sums squares) {
  return roundedToEven(squareRoot(floatsOf(squares)));
}

Samples<int16_t> lengthOf(const Gradients<Samples<int16_t>>& g) {
  const SquaresOfWords squares = sumOfSquares(g);
  return narrowInterleaved<int16_t>(rootsOf(squares.low), rootsOf(squares.high));
}
Samples<int16_t> sumOf(const Gradients<Samples<int16_t>>& g) {
  return as<int16_t>(magnitude(g.x) + magnitude(g.y));
}

Floats8 loadAsFloats(const float* p) { return load<float>(p); }
Floats8 loadAsFloats(const int16_t* p) { return loadWide<int16_t>(p); }

}  // namespace

template <GradientMask mask, int channels, typename T>
void gradientRow(const T* const* rows, ptrdiff_t channel, GradientTargets to, size_t pixels) {
  using W = Wide<T>;
  ColumnSums<W> sums[channels];
  for (int c = 0; c < channels; ++c) sumColumns<mask>(rows, c * channel, pixels, sums[c]);
  if (to.gx)
    inLanes<W, kLanes<W>>(pixels, [&](size_t i, const auto& store) {
      const auto g = gradientsAt<mask>(sums, i);
      store(to.gx + i * sizeof(W), g.x);
      store(to.gy + i * sizeof(W), g.y);
    });
  if (!to.magnitude) return;
  const auto storeMagnitudes = [&](const auto& magnitudeOf) {
    inLanes<W, kLanes<W>>(pixels, [&](size_t i, const auto& store) {
      store(to.magnitude + i * sizeof(W), magnitudeOf(gradientsAt<mask>(sums, i)));
    });
  };
  if (to.isL2)
    storeMagnitudes([](const auto& g) { return lengthOf(g); });
  else
    storeMagnitudes([](const auto& g) { return sumOf(g); });
}

template <typename W>
void gradientAngleRow(const W* gx, const W* gy, uint8_t* dst, size_t pixels) {
  const AngleOfFloats angle;
  inLanes<float, 8>(pixels, [&](size_t i, const auto& store) {
    store(dst + 4 * i, angle(loadAsFloats(gy + i), loadAsFloats(gx + i)));
  });
}

#define LUMI_GRADIENT_ROWS(mask, T)                                                                      \
  template void gradientRow<GradientMask::mask, 1>(const T* const*, ptrdiff_t, GradientTargets, size_t); \
  template void gradientRow<GradientMask::mask, 3>(const T* const*, ptrdiff_t, GradientTargets, size_t);
#define LUMI_GRADIENT_TYPES(mask)    \
  LUMI_GRADIENT_ROWS(mask, uint8_t)  \
  LUMI_GRADIENT_ROWS(mask, uint16_t) \
  LUMI_GRADIENT_ROWS(mask, int16_t)  \
  LUMI_GRADIENT_ROWS(mask, float)
LUMI_GRADIENT_TYPES(Sobel3)
LUMI_GRADIENT_TYPES(Sobel5)
LUMI_GRADIENT_TYPES(Prewitt)
LUMI_GRADIENT_TYPES(Scharr)
#undef LUMI_GRADIENT_TYPES
#undef LUMI_GRADIENT_ROWS
template void gradientAngleRow<int16_t>(const int16_t*, const int16_t*, uint8_t*, size_t);
template void gradientAngleRow<float>(const float*, const float*, uint8_t*, size_t);

}  // namespace lumi
