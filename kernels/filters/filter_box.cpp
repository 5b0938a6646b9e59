// SPDX-License-Identifier: MIT
#include "kernels/filters/filter_box.hpp"

#include "kernels/simd/convert.hpp"

namespace lumi {
namespace {

using namespace simd;

// Sums of three rows' sums, of which the last two are kept.
struct ThreeRows {
  U16 last{}, lastTwo{}, all{};

  [[gnu::always_inline]] void take(U16 row) {
    all = lastTwo + row;
    lastTwo = last + row;
    last = row;
  }
};

// sum * 29128 / 2^18, whose 2^3 a factor of 16 bits takes in.
U16 cutOff(U16 sum) { return multiplyHigh(sum, broadcast16(uint16_t{29128 / 4})); }
U16 nearest(U16 sum) {
  return shiftRight<2>(multiplyHigh(sum, broadcast16(uint16_t{29128})) + broadcast16(uint16_t{2}));
}

// Neighbours are bytes side by side: one sum of pairs serves the samples at even and at odd places, which are
// kept apart.
struct Box3x3 {
  using Source = uint8_t;
  using Result = uint8_t;
  static constexpr int kRows = 3, kBlock = 16;

  ThreeRows even{}, odd{};

  [[gnu::always_inline]] void take(const WindowRows& rows) {
    const U16 pairs = as<uint16_t>(multiplyAddPairs(U8{load16(rows(0))}, broadcast16(int8_t{1})));
    even.take(pairs + (U16{load16(rows(0, -1))} & broadcast16(uint16_t{0xFF})));
    odd.take(pairs + shiftRight<8>(U16{load16(rows(0, 1))}));
  }
  [[gnu::always_inline]] void store(Byte* dst, const WindowRows&) const {
    store16(dst, (cutOff(even.all) | shiftLeft<8>(cutOff(odd.all))).v);
  }
};

template <bool rounded>
struct Box3x3Colours {
  using Source = uint8_t;
  using Result = uint8_t;
  static constexpr int kRows = 3, kBlock = 16;

  ThreeRows low{}, high{};

  [[gnu::always_inline]] void take(const WindowRows& rows) {
    const U8 left{load16(rows(0, -1))}, middle{load16(rows(0))}, right{load16(rows(0, 1))};
    low.take(widenLow(left) + widenLow(middle) + widenLow(right));
    high.take(widenHigh(left) + widenHigh(middle) + widenHigh(right));
  }
  static S16 mean(U16 sum) { return as<int16_t>(rounded ? nearest(sum) : cutOff(sum)); }
  [[gnu::always_inline]] void store(Byte* dst, const WindowRows&) const {
    store16(dst, narrowSigned<uint8_t>(mean(low.all), mean(high.all)).v);
  }
};

}  // namespace

const WindowFilter kBox3x3 = windowFilter<Box3x3>();
const WindowFilter kBox3x3Colours = windowFilter<Box3x3Colours<false>>();
const WindowFilter kBox3x3Nearest = windowFilter<Box3x3Colours<true>>();

}  // namespace lumi
