// SPDX-License-Identifier: MIT
#include "kernels/transforms/window.hpp"

#include "kernels/pointwise.hpp"
#include "kernels/simd/constants.hpp"
#include "kernels/simd/elementary.hpp"
#include "kernels/simd/scale.hpp"

namespace lumi {
namespace {

using namespace simd;

// Samples that become sixteen bytes, times both factors.
Floats8 factored(Floats8 x, const float* columns, Floats8 row) {
  return x * loadFloats8(reinterpret_cast<const Byte*>(columns)) * row;
}
struct Bytes {
  static Bytes16 sixteen(const Byte* p, const float* columns, Floats8 row) {
    const Ints8 a = roundedToEven(factored(floatsOf8Bytes(p), columns, row)),
                b = roundedToEven(factored(floatsOf8Bytes(p + 8), columns + 8, row));
    return narrowSaturated<uint8_t>(lowHalf(a), highHalf(a), lowHalf(b), highHalf(b)).v;
  }
};
struct Words {
  static Bytes16 sixteen(const Byte* p, const float* columns, Floats8 row) {
    const Ints8 x = roundedToEven(factored(floatsOf8Words(p), columns, row));
    return narrowSigned<uint16_t>(lowHalf(x), highHalf(x)).v;
  }
};

// A row of an image under a row of a window.
template <typename T>
struct UnderWindow {
  ImageRow<T, T> image;
  const float* columns;
  Floats8 row;

  static constexpr size_t kSample = sizeof(T), kPeriod = 1;
  static constexpr int kSources = 1;
  struct Phase {};

  Phase phase(size_t) const { return {}; }
  [[gnu::always_inline]] auto block(size_t at, Phase) const {
    if constexpr (std::is_floating_point_v<T>)
      return bytesOf(factored(loadFloats8(image(at)), columns + at / kSample, row));
    else
      return halves(sixteen(at), sixteen(at + sizeof(Bytes16)));
  }
  [[gnu::always_inline]] VectorBytes vector(size_t at) const {
    if constexpr (kVectorBytes == kBlock) return joined(block(at, {}));
    if constexpr (kVectorBytes < kBlock) return sixteen(at);
  }
  void advance(int) {}
  bool isApart(TargetRows dst, size_t bytes, int rows) const { return image.isApart(dst, bytes, rows); }
  void describe(PieceSource* sources) const { image.describe(sources); }
  UnderWindow onPieces(const Byte* const* pieces, size_t at) const {
    return {image.onPieces(pieces, at), columns + at / kSample, row};
  }

 private:
  [[gnu::always_inline]] Bytes16 sixteen(size_t at) const {
    const float* const factors = columns + at / kSample;
    if constexpr (std::is_floating_point_v<T>)
      return bytesOf(loadFloats4(image(at)) * loadFloats4(reinterpret_cast<const Byte*>(factors)) *
                     lowHalf(row));
    else
      return std::conditional_t<sizeof(T) == 1, Bytes, Words>::sixteen(image(at), factors, row);
  }
};

// sin x = x + x^3 p(x^2) up to pi/2, with coefficients that make the largest error smallest (Remez): 2^-27.
enum { kQuarter, kBase, kDepth, kP0, kP1, kP2, kP3 };
constexpr auto kTable =
    spread(1.57079637F, 0.54F, 0.46F, -0.166666571F, 0.00833301729F, -0.000198066152F, 2.6000547e-06F);

struct RaisedCosine {
  Constants constants{kTable};

  Floats8 operator()(Floats8 angle) const {
    const auto c = [&](int which) { return constants.get<Floats8>(which); };
    const Floats8 x = c(kQuarter) - angle, z = x * x;
    const Floats8 cosine = x + (x * z) * (c(kP0) + z * (c(kP1) + z * (c(kP2) + z * c(kP3))));
    return c(kBase) - c(kDepth) * cosine;
  }
};

Floats8 all(float x) { return broadcastFloat<Floats8>(x); }

// factors[i] = f(i). Whole vectors: what lies behind the last one is padding.
template <typename F>
[[gnu::always_inline]] inline void fillFactors(float* factors, size_t count, const F& f) {
  static constexpr float kFirst[] = {0, 1, 2, 3, 4, 5, 6, 7};
  Floats8 x = loadFloats8(reinterpret_cast<const Byte*>(kFirst));
  for (size_t i = 0; i < count; i += 8) {
    store32(reinterpret_cast<Byte*>(factors + i), bytesOf(f(x)));
    x = x + all(8);
  }
}

template <typename F>
[[gnu::always_inline]] inline void radialFactors(float* factors, size_t columns, const RadialRow& row,
                                                 const F& f) {
  const Floats8 half = all(row.half), square = all(row.square), scale = all(row.scale);
  fillFactors(factors, columns, [&](Floats8 x) {
    const Floats8 dx = half - x, left = half - squareRoot(dx * dx + square);
    return f(left * scale) & isBelow(all(0), left);
  });
}

}  // namespace

template <typename T>
[[gnu::flatten]] void windowRows(SourceRows src, TargetRows dst, Extent samples, const float* columns,
                                 const float* rows) {
  walkRows(
      samples.rows,
      [&, y = 0](const Byte* s, Byte* d) mutable {
        const UnderWindow<T> rule{ImageRow<T, T>(SourceRows{s, 0}), columns,
                                  broadcastFloat<Floats8>(rows[y++])};
        runRows({d, 0}, {samples.length, 1}, rule);
      },
      src, dst);
}

template void windowRows<uint8_t>(SourceRows, TargetRows, Extent, const float*, const float*);
template void windowRows<uint16_t>(SourceRows, TargetRows, Extent, const float*, const float*);
template void windowRows<float>(SourceRows, TargetRows, Extent, const float*, const float*);

[[gnu::flatten]] void triangleFactors(float* factors, size_t count) {
  const Floats8 last = all(static_cast<float>(count - 1)), middle = all(static_cast<float>((count - 1) / 2));
  fillFactors(factors, count, [&](Floats8 x) {
    const Floats8 part = all(2) * x / last;
    return ifThenElse(isAtLeast(middle, x), part, all(2) - part);
  });
}

[[gnu::flatten]] void coneFactors(float* factors, size_t columns, const RadialRow& row) {
  radialFactors(factors, columns, row, [](Floats8 x) { return x; });
}

[[gnu::flatten]] void raisedCosineFactors(float* factors, size_t columns, const RadialRow& row) {
  radialFactors(factors, columns, row, RaisedCosine());
}

}  // namespace lumi
