// SPDX-License-Identifier: MIT
#include "kernels/data/compare.hpp"

#include "kernels/pointwise.hpp"
#include "kernels/simd/convert.hpp"

namespace lumi {
namespace {

using namespace simd;

// Tests of samples.
struct Below {
  template <typename V>
  V operator()(V a, V b) const {
    return isAbove(b, a);
  }
};
struct NotAbove {
  template <typename V>
  V operator()(V a, V b) const {
    return isAtLeast(b, a);
  }
};
struct Equal {
  template <typename V>
  V operator()(V a, V b) const {
    return isEqual(a, b);
  }
};
// The one test of order that an integer type has for least: above for signed samples, not below for others,
// by a difference that takes either operand once: loads bound this.
struct Order {
  template <typename T>
  Samples16<T> operator()(Samples16<T> a, Samples16<T> b) const {
    if constexpr (std::is_signed_v<T>)
      return isAboveSigned(a, b);
    else
      return isEqual(subSaturated(b, a), broadcastLike(a, T{0}));
  }
};
struct Within {
  Floats8 tolerance, sign = broadcastFloat<Floats8>(-0.0f);

  explicit Within(float most) : tolerance(broadcastFloat<Floats8>(most)) {}
  Floats8 operator()(Floats8 a, Floats8 b) const { return isAtLeast(tolerance, andNot(sign, a - b)); }
};

// What passes: samples whose test holds, or all others, among those that are looked at.
struct Passing {
  U8 flip, used, expected;

  explicit Passing(bool holding, bool alpha) {
    static constexpr auto colour = pixelMask<4, 3, 16>();
    const U8 ones = broadcast16<uint8_t>(0xFF);
    flip = holding ? ones ^ ones : ones;
    used = alpha ? U8{load16(colour.bytes)} : ones;
    expected = holding ? used : ones ^ ones;
  }
};

constexpr size_t kPixels = 16;  // of a step

// The masks of sixteen samples.
template <typename T, typename F>
[[gnu::always_inline]] inline U8 sampleMasks(const Byte* a, const Byte* b, const F& f) {
  if constexpr (sizeof(T) == 1) {
    return f(Samples16<T>{load16(a)}, Samples16<T>{load16(b)});
  } else if constexpr (sizeof(T) == 2) {
    const auto words = [&](size_t at) {
      return as<int16_t>(f(Samples16<T>{load16(a + at)}, Samples16<T>{load16(b + at)}));
    };
    return as<uint8_t>(narrowSigned<int8_t>(words(0), words(16)));
  } else {
    const auto words = [&](size_t at) {
      const Bytes32 dwords = bytesOf(f(loadFloats8(a + at), loadFloats8(b + at)));
      return narrowSigned<int16_t>(S32{lowHalf(dwords)}, S32{highHalf(dwords)});
    };
    return as<uint8_t>(narrowSigned<int8_t>(words(0), words(32)));
  }
}

// Of sixteen pixels of three bytes, the bytes of a channel stand each in another place of their vectors: two
// choices bring them into one, and a shuffle into their order.
template <size_t channel>
constexpr Control kThird = [] {
  Control c{};
  for (size_t i = 0; i < 16; ++i) c[i] = static_cast<Byte>((3 * i + channel) % 16);
  return c;
}();
template <size_t channel>
[[gnu::always_inline]] inline U8 thirdOf(const U8 (&v)[3]) {
  static constexpr auto first = pixelMask<3, 1, 16>(), firstTwo = pixelMask<3, 2, 16>();
  const U8 two = ifThenElse(U8{load16(firstTwo.bytes)}, v[(channel + 2) % 3], v[(channel + 1) % 3]),
           all = ifThenElse(U8{load16(first.bytes)}, v[channel], two);
  return {shuffleBytes(all.v, simd::vectorOf(kThird<channel>))};
}

// The mask of sixteen pixels.
template <typename T, int channels, typename F>
[[gnu::always_inline]] inline Bytes16 pixelMasks(const Byte* a, const Byte* b, const F& f,
                                                 const Passing& passing) {
  const auto masks = [&](size_t i) {
    return sampleMasks<T>(a + i * kPixels * sizeof(T), b + i * kPixels * sizeof(T), f);
  };
  if constexpr (channels == 1) {
    return (masks(0) ^ passing.flip).v;
  } else if constexpr (channels == 3) {
    const U8 each[] = {masks(0) ^ passing.flip, masks(1) ^ passing.flip, masks(2) ^ passing.flip};
    return (thirdOf<0>(each) & thirdOf<1>(each) & thirdOf<2>(each)).v;
  } else {
    const auto four = [&](size_t i) {
      return isEqual(as<int32_t>(masks(i) & passing.used), as<int32_t>(passing.expected));
    };
    return narrowSigned<int8_t>(narrowSigned<int16_t>(four(0), four(1)),
                                narrowSigned<int16_t>(four(2), four(3)))
        .v;
  }
}

// Rows of fewer pixels than a step, in copies of theirs.
template <size_t pixelBytes, typename Masks>
[[gnu::always_inline]] inline void runShort(Comparand a, Comparand b, TargetRows mask, Extent pixels,
                                            const Masks& masks) {
  struct Copy {
    Byte bytes[kPixels * pixelBytes] = {};
    const Byte* of(const Comparand& from, int y, size_t length) {
      if (from.isConstant) return from.rows.first;
      std::memcpy(bytes, from.rows.row(y), length * pixelBytes);
      return bytes;
    }
  } first, second;
  for (int y = 0; y < pixels.rows; ++y) {
    Byte results[kPixels];
    store16(results, masks(first.of(a, y, pixels.length), second.of(b, y, pixels.length)));
    std::memcpy(mask.row(y), results, pixels.length);
  }
}

// Constants have as many pixels as a step. The last step may lie over the one before it.
template <typename T, int channels, typename F>
[[gnu::noinline, gnu::flatten]] void run(Comparand a, Comparand b, TargetRows mask, Extent pixels,
                                         const F& test, const Passing& passing) {
  constexpr size_t pixelBytes = channels * sizeof(T);
  const auto masks = [f = test, passing](const Byte* p, const Byte* q) {
    return pixelMasks<T, channels>(p, q, f, passing);
  };
  const size_t length = pixels.length;
  if (length < kPixels) return runShort<pixelBytes>(a, b, mask, pixels, masks);
  const size_t aPixel = a.isConstant ? 0 : pixelBytes, bPixel = b.isConstant ? 0 : pixelBytes;
  walkRows(
      pixels.rows,
      [=](const Byte* p, const Byte* q, Byte* d) {
        size_t x = 0;
        for (; x + kPixels <= length; x += kPixels, p += kPixels * aPixel, q += kPixels * bPixel)
          store16(d + x, masks(p, q));
        if (x == length) return;
        const size_t back = x + kPixels - length;
        store16(d + length - kPixels, masks(p - back * aPixel, q - back * bPixel));
      },
      a.rows, b.rows, mask);
}

// The steps' pixels of a constant.
template <size_t pixelBytes>
class Repeated {
 public:
  Comparand of(const Comparand& from) {
    if (!from.isConstant) return from;
    for (size_t i = 0; i < kPixels; ++i) move<pixelBytes>(bytes_ + i * pixelBytes, from.rows.first);
    return {{bytes_, 0}, true};
  }

 private:
  Byte bytes_[kPixels * pixelBytes];
};

template <typename Run>
[[gnu::always_inline]] inline void chooseTest(Relation relation, const Run& run) {
  switch (relation) {
    case Relation::Below:
      return run(Below());
    case Relation::NotAbove:
      return run(NotAbove());
    case Relation::Equal:
      return run(Equal());
  }
}

// Bytes to bytes.
template <typename A, typename B>
[[gnu::flatten]] void runBytes(A a, B b, TargetRows mask, Extent pixels, Relation relation) {
  chooseTest(relation, [&](auto f) { runRows(mask, pixels, Binary<uint8_t, decltype(f), A, B>{a, b, f}); });
}

void compareBytes(Comparand a, Comparand b, TargetRows mask, Extent pixels, Relation relation) {
  using Image = ImageRow<uint8_t, uint8_t>;
  using Constant = ConstantRow<false>;
  if (!a.isConstant && !b.isConstant) return runBytes(Image(a.rows), Image(b.rows), mask, pixels, relation);
  const PixelPattern pattern = makePattern<1>((a.isConstant ? a : b).rows.first);
  if (a.isConstant)
    runBytes(Constant{pattern}, Image(b.rows), mask, pixels, relation);
  else
    runBytes(Image(a.rows), Constant{pattern}, mask, pixels, relation);
}

}  // namespace

template <typename T, int channels>
void compareRows(Comparand first, Comparand second, TargetRows mask, Extent pixels, Relation relation,
                 bool alpha) {
  if constexpr (sizeof(T) == 1 && channels == 1) {
    compareBytes(first, second, mask, pixels, relation);
  } else {
    Repeated<channels * sizeof(T)> constant;  // no more than one of them
    const Comparand a = constant.of(first), b = constant.of(second);
    const Passing holding(true, alpha);
    if constexpr (std::is_floating_point_v<T>) {
      chooseTest(relation, [&](auto test) { run<T, channels>(a, b, mask, pixels, test, holding); });
    } else {
      if (relation == Relation::Equal)
        return run<std::make_unsigned_t<T>, channels>(a, b, mask, pixels, Equal(), holding);
      // a < b is b > a, and is not a >= b; a <= b is b >= a, and is not a > b.
      if ((relation == Relation::Below) == std::is_signed_v<T>)
        run<T, channels>(b, a, mask, pixels, Order(), holding);
      else
        run<T, channels>(a, b, mask, pixels, Order(), Passing(false, alpha));
    }
  }
}

template <int channels>
void compareWithinRows(Comparand first, Comparand second, TargetRows mask, Extent pixels, float tolerance,
                       bool alpha) {
  Repeated<channels * sizeof(float)> constant;
  run<float, channels>(constant.of(first), constant.of(second), mask, pixels, Within(tolerance),
                       Passing(true, alpha));
}

#define LUMI_COMPARE(T, channels) \
  template void compareRows<T, channels>(Comparand, Comparand, TargetRows, Extent, Relation, bool);
#define LUMI_CHANNELS(channels)    \
  LUMI_COMPARE(uint8_t, channels)  \
  LUMI_COMPARE(uint16_t, channels) \
  LUMI_COMPARE(int16_t, channels)  \
  LUMI_COMPARE(float, channels)    \
  template void compareWithinRows<channels>(Comparand, Comparand, TargetRows, Extent, float, bool);
LUMI_CHANNELS(1)
LUMI_CHANNELS(3)
LUMI_CHANNELS(4)

}  // namespace lumi
