// SPDX-License-Identifier: MIT
// Linear interpolation of samples that are blended as floats.
#include <algorithm>

#include "kernels/geometry/resize_linear.hpp"
#include "kernels/path_count.hpp"
#include "kernels/simd/resize.hpp"

namespace lumi {
namespace {

using namespace simd;

// The formula of both stages, of scalars and of vectors.
template <typename F>
F blended(F a, F b, F weight) {
  return a + (b - a) * weight;
}

template <typename T>
T sampleAt(const Byte* p) {
  T sample;
  std::memcpy(&sample, p, sizeof sample);
  return sample;
}

// A result as the sample type wants it.
template <typename T>
T finished(BlendElement<T> x) {
  if constexpr (std::is_integral_v<T>)
    return static_cast<T>(
        std::clamp<int>(roundedToEven(x), std::numeric_limits<T>::min(), std::numeric_limits<T>::max()));
  else
    return x;
}

// Pixels that are next to each other, apart: the first ones and the second ones.
template <typename Vector>
struct Pair {
  Vector first, second;
};

template <typename T>
struct Gather {
  using Vector = Floats8;
  static constexpr size_t kLanes = 8;

  static Pair<Vector> pairs(const Byte* base, const int32_t* index) {
    const auto at = [=](int i) {
      return base + static_cast<ptrdiff_t>(index[i]) * static_cast<ptrdiff_t>(sizeof(T));
    };
    return apart(gatherDwords(at(0), at(1), at(2), at(3)), gatherDwords(at(4), at(5), at(6), at(7)));
  }
  static Pair<Vector> apart(Bytes16 low, Bytes16 high) {
    return {floatsOf(joined(lowWords<T>(low), lowWords<T>(high))),
            floatsOf(joined(highWords<T>(low), highWords<T>(high)))};
  }
  // Four samples.
  static Floats4 pixel(const Byte* p) { return floatsOf(widen<int32_t>(Samples16<T>{loadFew<8>(p)})); }
  static Floats4 weight(float w) { return broadcastFloat<Floats4>(w); }
};

template <>
struct Gather<float> : Gather<int16_t> {
  static Pair<Vector> pairs(const Byte* base, const int32_t* index) {
    const auto at = [=](int i) { return base + static_cast<ptrdiff_t>(index[i]) * 4; };
    const Bytes32 a = joined(gatherQuadwords(at(0), at(1)), gatherQuadwords(at(4), at(5))),
                  b = joined(gatherQuadwords(at(2), at(3)), gatherQuadwords(at(6), at(7)));
    return {evens(a, b), odds(a, b)};
  }
  static Floats4 pixel(const Byte* p) { return loadFloats4(p); }
};

template <>
struct Gather<double> {
  using Vector = Doubles4;
  static constexpr size_t kLanes = 4;

  static Pair<Vector> pairs(const Byte* base, const int32_t* index) {
    const auto at = [=](int i) { return load16(base + static_cast<ptrdiff_t>(index[i]) * 8); };
    const Bytes32 a = joined(at(0), at(2)), b = joined(at(1), at(3));
    return {evenDoubles(a, b), oddDoubles(a, b)};
  }
  static Doubles4 pixel(const Byte* p) { return doublesOf(load32(p)); }
  static Doubles4 weight(double w) { return broadcastWide(w); }
};

// Where four columns and their right neighbours lie in `span` samples in a row, they are picked from these by
// a control of four bytes for each column, made of its distance from the first of them.
template <typename T, int32_t span>
struct Window {
  static constexpr int32_t kSpan = span;

  static uint32_t control(int32_t at) { return 0x03020100U + 0x02020202U * static_cast<uint32_t>(at); }
  static Floats8 blend(const Byte* low, const Byte* high, const Byte* controls, Floats8 weights) {
    const auto pair = Gather<T>::apart(shuffleBytes(load16(low), load16(controls)),
                                       shuffleBytes(load16(high), load16(controls + 16)));
    return blended(pair.first, pair.second, weights);
  }
};

// Of floats the control's low bits are the place in a vector, and its sign tells the first one of two.
template <int32_t span>
struct Window<float, span> {
  static constexpr int32_t kSpan = span;

  static uint32_t control(int32_t at) { return static_cast<uint32_t>(at - 4); }
  static Floats8 blend(const Byte* low, const Byte* high, const Byte* controls, Floats8 weights) {
    const Bytes16 a = load16Once(controls), b = load16Once(controls + 16);
    const Bytes16 one = broadcast16(1).v;
    const Bytes32 at = joined(a, b), next = joined((S32{a} + S32{one}).v, (S32{b} + S32{one}).v);
    const Bytes32 first = joined(load16(low), load16(high));
    if constexpr (span == 4) return blended(floatsAt(first, at), floatsAt(first, next), weights);
    const Bytes32 second = joined(load16(low + 16), load16(high + 16));
    return blended(floatsAt(first, second, at), floatsAt(first, second, next), weights);
  }
};

template <typename T, int channels>
const Byte* pixelOf(const Byte* src, const TileColumns<T>& columns, size_t x) {
  return src + static_cast<ptrdiff_t>(columns.index[x] - columns.origin) *
                   static_cast<ptrdiff_t>(channels * sizeof(T));
}

template <typename T, int channels>
BlendElement<T> blendSample(const Byte* pixel, int channel, BlendWeight<T> weight) {
  using E = BlendElement<T>;
  const Byte* const sample = pixel + channel * static_cast<int>(sizeof(T));
  return blended(static_cast<E>(sampleAt<T>(sample)),
                 static_cast<E>(sampleAt<T>(sample + channels * sizeof(T))), weight);
}

// Columns that vectors may be loaded of: a 3-channel pixel with another one behind its neighbour.
template <typename T, int channels>
size_t vectorColumns(const TileColumns<T>& columns) {
  if (channels == 4) return columns.count;
  const int32_t* const end = columns.index + columns.count;
  return static_cast<size_t>(std::lower_bound(columns.index, end, end[-1]) - columns.index);
}

// Vectors of results as samples of the destination.
inline Bytes32 finishedBytes(Floats8 x, float) { return bytesOf(x); }
inline Bytes32 finishedBytes(Doubles4 x, double) { return bytesOf(x); }
template <typename T>
Bytes16 finishedBytes(Floats8 x, T) {
  const Ints8 rounds = roundedToEven(x);
  return narrowSaturated<T>(lowHalf(rounds), highHalf(rounds)).v;
}

// Windows begin at a block's first column, or where a row's last window can begin.
template <typename W, typename T>
int32_t lastWindow(const TileColumns<T>& columns) {
  return columns.index[columns.count - 1] - (W::kSpan - 2);
}
template <typename W, typename T>
int32_t windowStart(const TileColumns<T>& columns, size_t x) {
  return std::min(columns.index[x], lastWindow<W>(columns));
}
template <typename T>
size_t windowBlock(const TileColumns<T>& columns, size_t x) {
  return std::min(x, columns.count - Gather<T>::kLanes);
}

template <typename W, typename T>
bool suitsWindows(const TileColumns<T>& columns) {
  constexpr size_t kLanes = Gather<T>::kLanes;
  if (columns.count < kLanes || windowStart<W>(columns, 0) < columns.index[0]) return false;
  const auto fits = [&](size_t first) {
    return columns.index[first + 3] - windowStart<W>(columns, first) <= W::kSpan - 2;
  };
  for (size_t x = 0; x < columns.count; x += kLanes) {
    const size_t block = windowBlock(columns, x);
    if (!fits(block) || !fits(block + 4)) return false;
  }
  return true;
}

template <typename W, typename T>
void makeControls(const TileColumns<T>& columns, uint8_t* controls) {
  for (size_t x = 0; x < columns.count; x += Gather<T>::kLanes)
    for (size_t i = 0; i < Gather<T>::kLanes; ++i, controls += 4) {
      const size_t block = windowBlock(columns, x);
      const uint32_t control =
          W::control(columns.index[block + i] - windowStart<W>(columns, block + i / 4 * 4));
      move<4>(controls, reinterpret_cast<const Byte*>(&control));
    }
}

template <typename W, typename T>
void blendWindows(const Byte* base, const TileColumns<T>& columns, const uint8_t* controls, float* row) {
  countPath(Path::LinearFloatWindows);
  constexpr size_t kLanes = Gather<T>::kLanes;
  const int32_t* const index = columns.index;
  const float* const weights = columns.weights;
  const size_t count = columns.count;
  const int32_t lastStart = lastWindow<W>(columns);
  const auto window = [=](size_t x) {
    return base + static_cast<ptrdiff_t>(std::min(index[x], lastStart)) * static_cast<ptrdiff_t>(sizeof(T));
  };
  const auto block = [=](size_t x, const Byte* control) {
    store(row + x, W::blend(window(x), window(x + 4), control, load(weights + x)));
  };
  size_t x = 0;
  for (; x + kLanes <= count; x += kLanes) block(x, controls + 4 * x);
  if (x < count) block(count - kLanes, controls + 4 * x);
}

}  // namespace

template <typename T, int channels>
size_t ColumnBlender<T, channels>::scratchBytes(size_t columns) {
  constexpr size_t kLanes = Gather<T>::kLanes, kControl = 4;
  return channels == 1 && sizeof(T) <= 4 ? (columns + kLanes - 1) / kLanes * kLanes * kControl : 0;
}

template <typename T, int channels>
ColumnBlender<T, channels>::ColumnBlender(const TileColumns<T>& columns, uint8_t* scratch)
    : columns_(columns), controls_(scratch), span_(0) {
  if constexpr (channels == 1 && sizeof(T) <= 4) {
    const auto choose = [&](auto window) {
      using W = decltype(window);
      if (span_ != 0 || !suitsWindows<W>(columns)) return;
      span_ = W::kSpan;
      makeControls<W>(columns, scratch);
    };
    if constexpr (sizeof(T) == 4) choose(Window<T, 4>());
    choose(Window<T, 8>());
  }
}

template <typename T, int channels>
void ColumnBlender<T, channels>::blend(const uint8_t* src, BlendElement<T>* row) const {
  using G = Gather<T>;
  const size_t count = columns_.count;
  size_t x = 0;
  if constexpr (channels == 1) {
    const Byte* const base =
        src - static_cast<ptrdiff_t>(columns_.origin) * static_cast<ptrdiff_t>(sizeof(T));
    if constexpr (sizeof(T) == 4)
      if (span_ == 4) return blendWindows<Window<T, 4>>(base, columns_, controls_, row);
    if constexpr (sizeof(T) <= 4)
      if (span_ == 8) return blendWindows<Window<T, 8>>(base, columns_, controls_, row);
    for (; x + G::kLanes <= count; x += G::kLanes) {
      const auto pair = G::pairs(base, columns_.index + x);
      store(row + x, blended(pair.first, pair.second, load(columns_.weights + x)));
    }
  } else {
    for (const size_t byVectors = vectorColumns<T, channels>(columns_); x < byVectors; ++x) {
      const Byte* const pixel = pixelOf<T, channels>(src, columns_, x);
      store(row + x * channels,
            blended(G::pixel(pixel), G::pixel(pixel + channels * sizeof(T)), G::weight(columns_.weights[x])));
    }
  }
  for (; x < count; ++x)
    for (int k = 0; k < channels; ++k)
      row[x * channels + static_cast<size_t>(k)] =
          blendSample<T, channels>(pixelOf<T, channels>(src, columns_, x), k, columns_.weights[x]);
}

template <typename T>
void blendRows(const BlendElement<T>* first, const BlendElement<T>* second, BlendWeight<T> weight,
               uint8_t* dst, size_t samples) {
  constexpr size_t kLanes = Gather<T>::kLanes;
  const auto wide = broadcastWide(weight);
  size_t i = 0;
  for (; i + kLanes <= samples; i += kLanes)
    Cached::store(dst + i * sizeof(T), finishedBytes(blended(load(first + i), load(second + i), wide), T()));
  for (; i < samples; ++i) {
    const T sample = finished<T>(blended(first[i], second[i], weight));
    std::memcpy(dst + i * sizeof(T), &sample, sizeof sample);
  }
}

template <typename T, int channels>
void ColumnBlender<T, channels>::blendOnce(const uint8_t* src, const TileColumns<T>& columns, uint8_t* dst) {
  for (size_t x = 0; x < columns.count; ++x)
    for (int k = 0; k < channels; ++k, dst += sizeof(T)) {
      const T sample =
          finished<T>(blendSample<T, channels>(pixelOf<T, channels>(src, columns, x), k, columns.weights[x]));
      std::memcpy(dst, &sample, sizeof sample);
    }
}

template <typename T, int channels>
void ColumnBlender<T, channels>::repeatBlend(const uint8_t* first, const uint8_t* second,
                                             BlendWeight<T> weight, uint8_t* dst, size_t count) {
  using E = BlendElement<T>;
  T pixel[channels];
  for (size_t k = 0; k < channels; ++k)
    pixel[k] = finished<T>(blended(static_cast<E>(sampleAt<T>(first + k * sizeof(T))),
                                   static_cast<E>(sampleAt<T>(second + k * sizeof(T))), weight));
  for (size_t i = 0; i < count; ++i, dst += sizeof pixel) std::memcpy(dst, pixel, sizeof pixel);
}

template class ColumnBlender<uint16_t, 1>;
template class ColumnBlender<uint16_t, 3>;
template class ColumnBlender<uint16_t, 4>;
template class ColumnBlender<int16_t, 1>;
template class ColumnBlender<int16_t, 3>;
template class ColumnBlender<int16_t, 4>;
template class ColumnBlender<float, 1>;
template class ColumnBlender<float, 3>;
template class ColumnBlender<float, 4>;
template class ColumnBlender<double, 1>;
template class ColumnBlender<double, 3>;
template class ColumnBlender<double, 4>;
template void blendRows<uint16_t>(const float*, const float*, float, uint8_t*, size_t);
template void blendRows<int16_t>(const float*, const float*, float, uint8_t*, size_t);
template void blendRows<float>(const float*, const float*, float, uint8_t*, size_t);
template void blendRows<double>(const double*, const double*, double, uint8_t*, size_t);

}  // namespace lumi
