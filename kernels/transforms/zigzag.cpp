// SPDX-License-Identifier: MIT
#include "kernels/transforms/zigzag.hpp"

#include <utility>

#include "kernels/transforms/words8x8.hpp"

namespace lumi {
namespace {

using namespace simd;

// Where each value of the result lies in the source.
struct Order {
  int from[64];
};

// Along diagonals from the first value, up those of an even number, and down the others.
constexpr Order kZigzag = [] {
  Order order{};
  int i = 0;
  for (int diagonal = 0; diagonal < 15; ++diagonal) {
    const int first = diagonal < 8 ? 0 : diagonal - 7, last = diagonal < 8 ? diagonal : 7;
    for (int k = first; k <= last; ++k) {
      const int y = diagonal % 2 == 0 ? first + last - k : k;
      order.from[i++] = 8 * y + diagonal - y;
    }
  }
  return order;
}();
constexpr Order kRows = [] {
  Order order{};
  for (int i = 0; i < 64; ++i) order.from[kZigzag.from[i]] = i;
  return order;
}();

// For each row of the result and each row of the source, the words that go there, and whether there are any.
struct Controls {
  alignas(16) Control control[8][8];
  bool isUsed[8][8];
};
constexpr Controls controlsOf(const Order& order) {
  Controls all{};
  for (auto& row : all.control)
    for (auto& control : row)
      for (auto& byte : control) byte = kZero;
  for (int i = 0; i < 64; ++i) {
    const int from = order.from[i];
    Control& control = all.control[i / 8][from / 8];
    control[static_cast<size_t>(i % 8 * 2)] = static_cast<Byte>(from % 8 * 2);
    control[static_cast<size_t>(i % 8 * 2 + 1)] = static_cast<Byte>(from % 8 * 2 + 1);
    all.isUsed[i / 8][from / 8] = true;
  }
  return all;
}
constexpr Controls kToZigzag = controlsOf(kZigzag), kToRows = controlsOf(kRows);

template <const Controls& controls, size_t to, size_t... from>
[[gnu::always_inline]] inline Bytes16 rowOf(const Words8x8& src, std::index_sequence<from...>) {
  Bytes16 row = _mm_setzero_si128();
  const auto add = [&](auto index) {
    constexpr size_t i = index();
    if constexpr (controls.isUsed[to][i])
      row = bitOr(row, shuffleBytes(src.row[i].v, vectorOf(controls.control[to][i])));
  };
  (add(std::integral_constant<size_t, from>()), ...);
  return row;
}

template <const Controls& controls, size_t... to>
[[gnu::always_inline]] inline void reorder(const Byte* src, Byte* dst, std::index_sequence<to...> rows) {
  const Words8x8 words = loadWords8x8(src);
  const Words8x8 ordered{{S16{rowOf<controls, to>(words, rows)}...}};
  for (int y = 0; y < 8; ++y) store16(dst + 16 * y, ordered.row[y].v);
}

}  // namespace

void zigzag8x8(const Byte* src, Byte* dst) { reorder<kToZigzag>(src, dst, std::make_index_sequence<8>()); }
void rowOrder8x8(const Byte* src, Byte* dst) { reorder<kToRows>(src, dst, std::make_index_sequence<8>()); }

}  // namespace lumi
