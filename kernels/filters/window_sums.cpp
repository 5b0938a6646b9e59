// SPDX-License-Identifier: MIT
#include "kernels/filters/window_sums.hpp"

#include <type_traits>

#include "kernels/simd/running.hpp"

namespace lumi {
namespace {

using namespace simd;

template <typename T>
T at(const Byte* samples, size_t i) {
  T sample;
  move<sizeof(T)>(reinterpret_cast<Byte*>(&sample), samples + i * sizeof(T));
  return sample;
}
template <typename T>
void put(Byte* samples, size_t i, T sample) {
  move<sizeof(T)>(samples + i * sizeof(T), reinterpret_cast<const Byte*>(&sample));
}

// Columns from some on, as what can be added up: a vector of integers, or one sum.
template <typename Sum>
struct Sums {
  const Byte* columns;

  auto vector(size_t i) const { return Samples16<Sum>{load16(columns + i * sizeof(Sum))}; }
  Sum one(size_t i) const { return at<Sum>(columns, i); }
};
template <typename T, typename Sum>
struct Widened {
  const Byte* row;

  auto vector(size_t i) const { return loadWidened<Sum, T>(row + i * sizeof(T)); }
  // Signed samples are what they are modulo the sum's type.
  Sum one(size_t i) const { return static_cast<Sum>(at<T>(row, i)); }
};

// Of one row at least.
template <typename T, typename Sum>
struct RowsSum {
  const Byte* const* rows;
  int taken;

  auto vector(size_t i) const {
    auto sum = Widened<T, Sum>{rows[0]}.vector(i);
    for (int k = 1; k < taken; ++k) sum = sum + Widened<T, Sum>{rows[k]}.vector(i);
    return sum;
  }
  Sum one(size_t i) const {
    Sum sum = Widened<T, Sum>{rows[0]}.one(i);
    for (int k = 1; k < taken; ++k) sum = static_cast<Sum>(sum + Widened<T, Sum>{rows[k]}.one(i));
    return sum;
  }
};

// sums(i) = make(operands...) at i: integers by vectors, and what is left, and all floats, one by one.
template <typename Sum, typename Make, typename... Operand>
[[gnu::always_inline]] inline void forEachSum(Byte* sums, size_t count, const Make& make,
                                              const Operand&... operand) {
  size_t i = 0;
  if constexpr (std::is_integral_v<Sum>) {
    constexpr size_t lanes = 16 / sizeof(Sum);
    for (; i + 2 * lanes <= count; i += 2 * lanes) {
      const Samples16<Sum> first = make(operand.vector(i)...), second = make(operand.vector(i + lanes)...);
      store16(sums + i * sizeof(Sum), first.v);
      store16(sums + (i + lanes) * sizeof(Sum), second.v);
    }
    for (; i + lanes <= count; i += lanes) store16(sums + i * sizeof(Sum), make(operand.vector(i)...).v);
  }
  for (; i < count; ++i) put<Sum>(sums, i, static_cast<Sum>(make(operand.one(i)...)));
}

template <typename T, typename Sum>
struct Columns {
  using Row = Widened<T, Sum>;

  static void set(const Byte* const* rows, int taken, Byte* columns, size_t count) {
    forEachSum<Sum>(
        columns, count, [](auto sample) { return sample; }, RowsSum<T, Sum>{rows, taken});
  }
  static void add(const Byte* const* rows, int taken, Byte* columns, size_t count) {
    forEachSum<Sum>(
        columns, count, [](auto sum, auto samples) { return sum + samples; }, Sums<Sum>{columns},
        RowsSum<T, Sum>{rows, taken});
  }
  static void replace(const Byte* entering, const Byte* leaving, Byte* columns, size_t count) {
    forEachSum<Sum>(
        columns, count, [](auto sum, auto in, auto out) { return sum + (in - out); }, Sums<Sum>{columns},
        Row{entering}, Row{leaving});
  }
};

// The first sum of each channel. As many vectors as a pixel has samples begin with a pixel's first one again.
template <typename Sum, int channels>
void firstSums(const Byte* columns, size_t pixels, Sum (&first)[channels]) {
  const size_t count = pixels * channels;
  size_t i = 0;
  for (Sum& sum : first) sum = 0;
  if constexpr (std::is_integral_v<Sum>) {
    constexpr size_t lanes = 16 / sizeof(Sum), block = lanes * channels;
    Samples16<Sum> sums[channels] = {};
    for (; i + block <= count; i += block)
      for (size_t k = 0; k < channels; ++k)
        sums[k] = sums[k] + Samples16<Sum>{load16(columns + (i + k * lanes) * sizeof(Sum))};
    if (i > 0)
      for (size_t k = 0; k < block; ++k) {
        const Sum sum = at<Sum>(reinterpret_cast<const Byte*>(sums), k);
        first[k % channels] = static_cast<Sum>(first[k % channels] + sum);
      }
  }
  for (; i < count; ++i) first[i % channels] = static_cast<Sum>(first[i % channels] + at<Sum>(columns, i));
}

template <typename Sum, int channels>
void along(const Byte* columns, size_t pixels, Byte* sums, size_t count) {
  Sum first[channels];
  firstSums(columns, pixels, first);
  const Byte* const behind = columns + pixels * channels * sizeof(Sum);
  if constexpr (std::is_integral_v<Sum>) {
    constexpr size_t lanes = 16 / sizeof(Sum);
    alignas(16) Sum pixel[lanes];
    for (size_t i = 0; i < lanes; ++i) pixel[i] = first[i % channels];
    Samples16<Sum> before{load16(reinterpret_cast<const Byte*>(pixel))};
    const Bytes16 lastPixel = vectorOf(lastPixelControl<channels, sizeof(Sum)>());
    for (size_t i = 0; i < count; i += lanes) {
      const size_t byte = i * sizeof(Sum);
      const Samples16<Sum> change =
          Samples16<Sum>{load16(behind + byte)} - Samples16<Sum>{load16(columns + byte)};
      const Samples16<Sum> next = before + sumsSoFar<channels>(change);  // the sums one pixel further on
      store16(sums + byte, (next - change).v);
      before = {shuffleBytes(next.v, lastPixel)};
    }
  } else {
    for (size_t i = 0; i < count; ++i) {
      Sum& sum = first[i % channels];
      put<Sum>(sums, i, sum);
      if (i + channels < count) sum += at<Sum>(behind, i) - at<Sum>(columns, i);
    }
  }
}

}  // namespace

template <typename T, typename Sum>
const SumKernels& sumKernels(int channels) {
  using Of = Columns<T, Sum>;
  static constexpr SumKernels all[] = {
      {sizeof(Sum), Of::set, Of::add, Of::replace, along<Sum, 1>},
      {sizeof(Sum), Of::set, Of::add, Of::replace, along<Sum, 3>},
      {sizeof(Sum), Of::set, Of::add, Of::replace, along<Sum, 4>},
  };
  return all[channels == 1 ? 0 : channels - 2];
}

template const SumKernels& sumKernels<uint8_t, uint16_t>(int);
template const SumKernels& sumKernels<uint8_t, uint32_t>(int);
template const SumKernels& sumKernels<uint16_t, uint32_t>(int);
template const SumKernels& sumKernels<int16_t, uint32_t>(int);
template const SumKernels& sumKernels<uint8_t, float>(int);
template const SumKernels& sumKernels<uint16_t, float>(int);
template const SumKernels& sumKernels<int16_t, float>(int);

}  // namespace lumi
