// SPDX-License-Identifier: MIT
// Columns are smoothed and differenced first, then rows of those. Words hold every sum: 5 x 5 Sobel of bytes
// reaches 16 * 3 * 255, and the sum of both magnitudes twice as much.
#include "kernels/filters/gradient_vector.hpp"

#include <cstring>
#include <type_traits>

#include "kernels/simd/angles.hpp"
#include "kernels/simd/filter.hpp"

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

// What samples become.
template <typename T>
using Wide = std::conditional_t<sizeof(T) == 1, int16_t, float>;

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

template <int n, typename V>
V times(V x) {
  if constexpr (n == 1)
    return x;
  else if constexpr (n == 2)
    return x + x;
  else if constexpr (n == 4)
    return times<2>(times<2>(x));
  else if constexpr (std::is_same_v<V, Floats8>)
    return x * broadcastFloat<V>(n);
  else
    return x * broadcast(int16_t{n});
}

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

// Of each column of samples, the first one that of the leftmost sample under the first mask.
template <typename W, size_t most>
struct ColumnSums {
  alignas(32) W smooth[most + 48], rise[most + 48];
};

template <GradientMask mask, typename T, typename W, size_t most>
[[gnu::always_inline]] inline void sumColumns(const T* const* rows, ptrdiff_t channel, size_t pixels,
                                              ColumnSums<W, most>& sums) {
  constexpr ptrdiff_t reach = gradientReach(mask);
  for (size_t i = 0; i < pixels + 2 * reach; i += kLanes<W>) {
    const ptrdiff_t at = channel + static_cast<ptrdiff_t>(i) - reach;
    const auto down = [&](int row) { return loadWide(rows[row] + at); };
    const auto up = [&](int row) { return loadWide(rows[2 * reach - row] + at); };
    storeLanes(reinterpret_cast<Byte*>(sums.smooth + i), smoothed<mask>(down));
    storeLanes(reinterpret_cast<Byte*>(sums.rise + i), fall<mask>(up));
  }
}

template <typename V>
struct Gradients {
  V x, y;
};

template <GradientMask mask, typename W, size_t most>
[[gnu::always_inline]] inline Gradients<Lanes<W>> gradientsAt(const ColumnSums<W, most>& sums, size_t i) {
  return {fall<mask>([&](int column) { return load<W>(sums.smooth + i + static_cast<size_t>(column)); }),
          smoothed<mask>([&](int column) { return load<W>(sums.rise + i + static_cast<size_t>(column)); })};
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

// The first ones of so many lanes, up to all of them.
template <typename W>
void storeSome(Byte* p, Lanes<W> x, size_t lanes) {
  if (lanes >= kLanes<W>)
    storeLanes(p, x);
  else
    std::memcpy(p, &x, lanes * sizeof(W));
}
template <typename W>
Lanes<W> loadSome(const Byte* p, size_t lanes) {
  if (lanes >= kLanes<W>) return load<W>(p);
  alignas(32) Byte some[sizeof(Lanes<W>)] = {};
  std::memcpy(some, p, lanes * sizeof(W));
  return load<W>(some);
}

Floats8 magnitudesOf(const Gradients<Floats8>& g, bool isL2) {
  return isL2 ? squareRoot(sumOfSquares(g)) : magnitude(g.x) + magnitude(g.y);
}

// Rounded roots of four or eight sums.
S32 rootsOf(S32 squares) { return roundedToEven(squareRoot(floatsOf(squares))); }
#ifdef __AVX2__
Samples32<int32_t> rootsOf(Samples32<int32_t> squares) {
  return roundedToEven(squareRoot(floatsOf(squares)));
}
#endif

Samples<int16_t> magnitudesOf(const Gradients<Samples<int16_t>>& g, bool isL2) {
  if (!isL2) return as<int16_t>(magnitude(g.x) + magnitude(g.y));
  const SquaresOfWords squares = sumOfSquares(g);
  return narrowInterleaved<int16_t>(rootsOf(squares.low), rootsOf(squares.high));
}

Gradients<Floats8> floatGradients(const Byte* gx, const Byte* gy, size_t i, size_t lanes, float) {
  return {loadSome<float>(gx + 4 * i, lanes), loadSome<float>(gy + 4 * i, lanes)};
}
Gradients<Floats8> floatGradients(const Byte* gx, const Byte* gy, size_t i, size_t lanes, int16_t) {
  const auto floats = [&](const Byte* p) {
    alignas(16) Byte some[16] = {};
    if (lanes < 8) std::memcpy(some, p, 2 * lanes);
    const S16 words{load16(lanes < 8 ? some : p)};
    return joined(floatsOf(widen<int32_t>(words)), floatsOf(widen<int32_t>(upperHalf(words))));
  };
  return {floats(gx + 2 * i), floats(gy + 2 * i)};
}

}  // namespace

template <GradientMask mask, int channels, typename T>
void gradientRow(const T* const* rows, ptrdiff_t channel, uint8_t* gx, uint8_t* gy, size_t pixels) {
  using W = Wide<T>;
  ColumnSums<W, kMostGradients / channels> sums[channels];
  for (int c = 0; c < channels; ++c) sumColumns<mask>(rows, c * channel, pixels, sums[c]);
  for (size_t i = 0; i < pixels; i += kLanes<W>) {
    auto g = gradientsAt<mask>(sums[0], i);
    for (int c = 1; c < channels; ++c) g = strongest(g, gradientsAt<mask>(sums[c], i));
    storeSome<W>(gx + i * sizeof(W), g.x, pixels - i);
    storeSome<W>(gy + i * sizeof(W), g.y, pixels - i);
  }
}

template <typename W>
void gradientMagnitudeRow(const uint8_t* gx, const uint8_t* gy, uint8_t* dst, size_t pixels, bool isL2) {
  for (size_t i = 0; i < pixels; i += kLanes<W>) {
    const size_t at = i * sizeof(W), left = pixels - i;
    const Gradients<Lanes<W>> g{loadSome<W>(gx + at, left), loadSome<W>(gy + at, left)};
    storeSome<W>(dst + at, magnitudesOf(g, isL2), left);
  }
}

template <typename W>
void gradientAngleRow(const uint8_t* gx, const uint8_t* gy, uint8_t* dst, size_t pixels) {
  const AngleOfFloats angle;
  for (size_t i = 0; i < pixels; i += 8) {
    const Gradients<Floats8> g = floatGradients(gx, gy, i, pixels - i, W());
    storeSome<float>(dst + 4 * i, angle(g.y, g.x), pixels - i);
  }
}

// Of every sample type, for one channel and three.
#define LUMI_GRADIENT_ROWS(mask, T)                                                                         \
  template void gradientRow<GradientMask::mask, 1>(const T* const*, ptrdiff_t, uint8_t*, uint8_t*, size_t); \
  template void gradientRow<GradientMask::mask, 3>(const T* const*, ptrdiff_t, uint8_t*, uint8_t*, size_t);
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
template void gradientMagnitudeRow<int16_t>(const uint8_t*, const uint8_t*, uint8_t*, size_t, bool);
template void gradientMagnitudeRow<float>(const uint8_t*, const uint8_t*, uint8_t*, size_t, bool);
template void gradientAngleRow<int16_t>(const uint8_t*, const uint8_t*, uint8_t*, size_t);
template void gradientAngleRow<float>(const uint8_t*, const uint8_t*, uint8_t*, size_t);

}  // namespace lumi
