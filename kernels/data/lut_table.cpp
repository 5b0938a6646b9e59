// SPDX-License-Identifier: MIT
#include "kernels/data/lut_table.hpp"

#include <algorithm>
#include <limits>

#include "kernels/simd/lut.hpp"

namespace lumi {
namespace {

using namespace simd;

template <typename T>
constexpr int kEntries = 16 / static_cast<int>(sizeof(T));  // of a vector

// Keeps so many bytes of a vector: those from 16 - bytes on.
alignas(32) constexpr auto kFirstBytes = pixelMask<32, 16, 32>();

// Stores f(x), the entries from x on, for all x of a piece. Entries behind a short piece keep their value.
template <typename T, typename F>
[[gnu::always_inline]] inline void fillPiece(T* table, int from, int to, const F& f) {
  constexpr int n = kEntries<T>;
  const auto at = [=](int x) {
    return reinterpret_cast<Byte*>(table + static_cast<std::make_unsigned_t<T>>(x));
  };
  if (to - from >= n) {
    int x = from;
    for (; x <= to - n; x += n) store16(at(x), f(x));
    if (x < to) store16(at(to - n), f(to - n));
  } else if (from < to) {
    const Bytes16 mask = load16(kFirstBytes.bytes + 16 - static_cast<size_t>(to - from) * sizeof(T));
    store16(at(from), ifThenElse(mask, f(from), load16(at(from))));
  }
}

// Values of different signs do not lie side by side.
template <typename T, typename F>
[[gnu::always_inline]] inline void fill(T* table, int from, int to, const F& f) {
  if (std::is_signed_v<T> && from < 0 && to > 0) {
    fillPiece(table, from, 0, f);
    from = 0;
  }
  fillPiece(table, from, to, f);
}

template <typename T>
Samples16<T> ascending() {
  if constexpr (sizeof(T) == 1)
    return {_mm_setr_epi8(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15)};
  else
    return {_mm_setr_epi16(0, 1, 2, 3, 4, 5, 6, 7)};
}

// Four entries as dwords, from a function of four doubles.
template <typename T, typename F>
struct EntriesOf {
  const F& f;

  S32 four(double x) const {
    const Doubles4 each = broadcastDouble(x) + Doubles4{_mm256_setr_pd(0, 1, 2, 3)};
    // The order of the operands makes what is no number the lower limit.
    const Doubles4 notBelow = max(f(each), broadcastDouble(std::numeric_limits<T>::min()));
    return truncated(min(notBelow, broadcastDouble(std::numeric_limits<T>::max())));
  }
  Bytes16 operator()(int from) const {
    const auto x = static_cast<double>(from);
    const auto words = [&](double first) {
      return narrowSigned<std::conditional_t<std::is_same_v<T, uint16_t>, uint16_t, int16_t>>(
          four(first), four(first + 4));
    };
    if constexpr (sizeof(T) == 1)
      return narrowSigned<T>(words(x), words(x + 8)).v;
    else
      return words(x).v;
  }
};

}  // namespace

template <typename T>
void fillIdentity(T* table, int from, int to) {
  fill(table, from, to, [](int x) { return (broadcast16(static_cast<T>(x)) + ascending<T>()).v; });
}

template <typename T>
void fillConstant(T* table, int from, int to, T value) {
  fill(table, from, to, [v = broadcast16(value).v](int) { return v; });
}

template <typename T>
void fillLine(T* table, int from, int to, const Line& line) {
  const Doubles4 offset = broadcastDouble(line.offset), slope = broadcastDouble(line.slope);
  const auto f = [=](Doubles4 x) { return offset + slope * x; };
  fill(table, from, to, EntriesOf<T, decltype(f)>{f});
}

template <typename T>
void fillCurve(T* table, int from, int to, const CubicCurve& curve) {
  const Doubles4 origin = broadcastDouble(curve.origin), base = broadcastDouble(curve.base),
                 a = broadcastDouble(curve.a), b = broadcastDouble(curve.b), c = broadcastDouble(curve.c);
  const auto f = [=](Doubles4 x) {
    const Doubles4 t = x - origin, square = t * t;
    return base + a * (square * t) + b * square + c * t;
  };
  fill(table, from, to, EntriesOf<T, decltype(f)>{f});
}

#define LUMI_TABLES(T)                                  \
  template void fillIdentity<T>(T*, int, int);          \
  template void fillConstant<T>(T*, int, int, T);       \
  template void fillLine<T>(T*, int, int, const Line&); \
  template void fillCurve<T>(T*, int, int, const CubicCurve&);
LUMI_TABLES(uint8_t)
LUMI_TABLES(uint16_t)
LUMI_TABLES(int16_t)
#undef LUMI_TABLES

}  // namespace lumi
